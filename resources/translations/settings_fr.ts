<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>Carnet</name>
    <message>
        <source>Degree Celsius</source>
        <translation>°C</translation>
    </message>
    <message>
        <source>Degree Farenheit</source>
        <translation>°F</translation>
    </message>
    <message>
        <source>Entries</source>
        <translation>Éléments : %d</translation>
    </message>
</context>
<context>
    <name>Interface</name>
    <message>
        <source>&amp;Settings</source>
        <translation>&amp;Réglages</translation>
    </message>
    <message>
        <source>Activities of firms</source>
        <translation>Activités des entreprises</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Apparence</translation>
    </message>
    <message>
        <source>Area below the line</source>
        <translation>Surface sous la courbe</translation>
    </message>
    <message>
        <source>As the system</source>
        <translation>Comme le système</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Fond</translation>
    </message>
    <message>
        <source>Below</source>
        <translation>En dessous de</translation>
    </message>
    <message>
        <source>Breathing gas</source>
        <translation>Gaz respiré</translation>
    </message>
    <message>
        <source>Causes of sinking</source>
        <translation>Causes de naufrage</translation>
    </message>
    <message>
        <source>Clubs and dive centres</source>
        <translation>Clubs et centres</translation>
    </message>
    <message>
        <source>Cold water</source>
        <translation>Eau froide</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>Couleur</translation>
    </message>
    <message>
        <source>Colour of depths</source>
        <translation>Couleur des profondeurs</translation>
    </message>
    <message>
        <source>Colour of durations</source>
        <translation>Couleur des durées</translation>
    </message>
    <message>
        <source>Columns of the logbook</source>
        <translation>Colonnes du carnet</translation>
    </message>
    <message>
        <source>Countries</source>
        <translation>Pays</translation>
    </message>
    <message>
        <source>Country codes</source>
        <translation>Codes de pays</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Sombre</translation>
    </message>
    <message>
        <source>Dashed lines</source>
        <translation>Lignes en tirets</translation>
    </message>
    <message>
        <source>Distance between stops</source>
        <translation>Distance entre paliers</translation>
    </message>
    <message>
        <source>Dive computers</source>
        <translation>Ordinateurs</translation>
    </message>
    <message>
        <source>Dive depth</source>
        <translation>Profondeur</translation>
    </message>
    <message>
        <source>Dive sites</source>
        <translation>Sites</translation>
    </message>
    <message>
        <source>Dives abroad</source>
        <translation>Plongées à l’étranger</translation>
    </message>
    <message>
        <source>Dives that stand out</source>
        <translation>Plongées à repérer</translation>
    </message>
    <message>
        <source>English</source>
        <translation>English</translation>
    </message>
    <message>
        <source>Equipment types</source>
        <translation>Types de matériel</translation>
    </message>
    <message>
        <source>Feet and degrees Fahrenheit</source>
        <translation>Pieds et degrés Fahrenheit</translation>
    </message>
    <message>
        <source>Filled</source>
        <translation>Remplie</translation>
    </message>
    <message>
        <source>First values into all panes; nothing is stored before you save</source>
        <translation>Remet les valeurs d’origine dans tous les volets ; rien n’est enregistré avant « Enregistrer »</translation>
    </message>
    <message>
        <source>Français</source>
        <translation>Français</translation>
    </message>
    <message>
        <source>Gradient</source>
        <translation>Dégradé</translation>
    </message>
    <message>
        <source>Gradient factors</source>
        <translation>Facteurs de gradient</translation>
    </message>
    <message>
        <source>Grid</source>
        <translation>Grille</translation>
    </message>
    <message>
        <source>High</source>
        <translation>Haut</translation>
    </message>
    <message>
        <source>Home country code</source>
        <translation>Code de votre pays</translation>
    </message>
    <message>
        <source>In colour</source>
        <translation>En couleur</translation>
    </message>
    <message>
        <source>In the column</source>
        <translation>Dans la colonne</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Langue</translation>
    </message>
    <message>
        <source>Life of a cell</source>
        <translation>Durée de vie d’une cellule</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Clair</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Courbe</translation>
    </message>
    <message>
        <source>Line colour</source>
        <translation>Couleur des lignes</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>Bas</translation>
    </message>
    <message>
        <source>Makers</source>
        <translation>Fabricants</translation>
    </message>
    <message>
        <source>Mixes in colour</source>
        <translation>Mélanges en couleur</translation>
    </message>
    <message>
        <source>New dives</source>
        <translation>Nouvelles plongées</translation>
    </message>
    <message>
        <source>New entry</source>
        <translation>Nouvel élément</translation>
    </message>
    <message>
        <source>Not saved yet</source>
        <translation>Pas encore enregistré</translation>
    </message>
    <message>
        <source>Opacity, 0 to 1</source>
        <translation>Opacité, de 0 à 1</translation>
    </message>
    <message>
        <source>Oxygen cells</source>
        <translation>Cellules à oxygène</translation>
    </message>
    <message>
        <source>Pick lists</source>
        <translation>Listes de choix</translation>
    </message>
    <message>
        <source>Places</source>
        <translation>Lieux</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>Préférences</translation>
    </message>
    <message>
        <source>Preferences…</source>
        <translation>Préférences…</translation>
    </message>
    <message>
        <source>Program</source>
        <translation>Programme</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Valeurs d’origine</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>Enregistré</translation>
    </message>
    <message>
        <source>Services</source>
        <translation>Prestations</translation>
    </message>
    <message>
        <source>Shops</source>
        <translation>Magasins</translation>
    </message>
    <message>
        <source>Small ticks of depth</source>
        <translation>Petites graduations de la profondeur</translation>
    </message>
    <message>
        <source>Small ticks of time</source>
        <translation>Petites graduations du temps</translation>
    </message>
    <message>
        <source>Tank makers</source>
        <translation>Fabricants de blocs</translation>
    </message>
    <message>
        <source>Tank pressure</source>
        <translation>Pression du bloc</translation>
    </message>
    <message>
        <source>Tank volume</source>
        <translation>Volume du bloc</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texte</translation>
    </message>
    <message>
        <source>Text in colour</source>
        <translation>Texte en couleur</translation>
    </message>
    <message>
        <source>Units</source>
        <translation>Unités</translation>
    </message>
    <message>
        <source>Units behind the values in tables</source>
        <translation>Unités après les valeurs des tableaux</translation>
    </message>
    <message>
        <source>Water temperature</source>
        <translation>Température de l’eau</translation>
    </message>
    <message>
        <source>Wreck types</source>
        <translation>Types d’épave</translation>
    </message>
    <message>
        <source>months</source>
        <translation>mois</translation>
    </message>
    <message>
        <source>ppO2 line</source>
        <translation>Ligne de ppO2</translation>
    </message>
</context>
<context>
    <name>Main</name>
    <message>
        <source>Deco</source>
        <translation>Déco</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Affichage</translation>
    </message>
    <message>
        <source>Erase selection</source>
        <translation>Supprimer les éléments sélectionnés ?</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Général</translation>
    </message>
    <message>
        <source>Logbook</source>
        <translation>Carnet</translation>
    </message>
    <message>
        <source>Profile</source>
        <translation>Profil</translation>
    </message>
</context>
</TS>
