<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>Carnet</name>
    <message>
        <source>0,7 bar</source>
        <translation>0,7 bar</translation>
    </message>
    <message>
        <source>0,8 bar</source>
        <translation>0,8 bar</translation>
    </message>
    <message>
        <source>0,9 bar</source>
        <translation>0,9 bar</translation>
    </message>
    <message>
        <source>1,0 bar</source>
        <translation>1,0 bar</translation>
    </message>
    <message>
        <source>1,1 bar</source>
        <translation>1,1 bar</translation>
    </message>
    <message>
        <source>1,2 bar</source>
        <translation>1,2 bar</translation>
    </message>
    <message>
        <source>1,3 bar</source>
        <translation>1,3 bar</translation>
    </message>
    <message>
        <source>1,4 bar</source>
        <translation>1,4 bar</translation>
    </message>
    <message>
        <source>1,5 bar</source>
        <translation>1,5 bar</translation>
    </message>
    <message>
        <source>1,6 bar</source>
        <translation>1,6 bar</translation>
    </message>
    <message>
        <source>Air</source>
        <translation>Air</translation>
    </message>
    <message>
        <source>Aluminum</source>
        <translation>Aluminium</translation>
    </message>
    <message>
        <source>Bad</source>
        <translation>Mauvaise</translation>
    </message>
    <message>
        <source>Biology</source>
        <translation>Bio</translation>
    </message>
    <message>
        <source>Carbon</source>
        <translation>Carbone</translation>
    </message>
    <message>
        <source>Cave</source>
        <translation>Spéléo</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Beau</translation>
    </message>
    <message>
        <source>Cloudy</source>
        <translation>Nuageux</translation>
    </message>
    <message>
        <source>Drift</source>
        <translation>Dérivante</translation>
    </message>
    <message>
        <source>Dry suit</source>
        <translation>Étanche</translation>
    </message>
    <message>
        <source>ED50</source>
        <translation>ED50</translation>
    </message>
    <message>
        <source>East</source>
        <translation>Est</translation>
    </message>
    <message>
        <source>Easy</source>
        <translation>Facile</translation>
    </message>
    <message>
        <source>Every 10 s</source>
        <translation>10 s</translation>
    </message>
    <message>
        <source>Every 120 s</source>
        <translation>120 s</translation>
    </message>
    <message>
        <source>Every 20 s</source>
        <translation>20 s</translation>
    </message>
    <message>
        <source>Every 30 s</source>
        <translation>30 s</translation>
    </message>
    <message>
        <source>Every 4 s</source>
        <translation>4 s</translation>
    </message>
    <message>
        <source>Every 5 s</source>
        <translation>5 s</translation>
    </message>
    <message>
        <source>Every 5 s, code 6</source>
        <translation>5 s (code 6)</translation>
    </message>
    <message>
        <source>Every 60 s</source>
        <translation>60 s</translation>
    </message>
    <message>
        <source>Excellent</source>
        <translation>Excellente</translation>
    </message>
    <message>
        <source>Exceptional</source>
        <translation>Exceptionnelle</translation>
    </message>
    <message>
        <source>Execrable</source>
        <translation>Exécrable</translation>
    </message>
    <message>
        <source>Extreme</source>
        <translation>Extrême</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>Rechercher</translation>
    </message>
    <message>
        <source>Foggy</source>
        <translation>Brumeux</translation>
    </message>
    <message>
        <source>Force 0</source>
        <translation>Force 0</translation>
    </message>
    <message>
        <source>Force 1</source>
        <translation>Force 1</translation>
    </message>
    <message>
        <source>Force 10</source>
        <translation>Force 10</translation>
    </message>
    <message>
        <source>Force 11</source>
        <translation>Force 11</translation>
    </message>
    <message>
        <source>Force 12</source>
        <translation>Force 12</translation>
    </message>
    <message>
        <source>Force 2</source>
        <translation>Force 2</translation>
    </message>
    <message>
        <source>Force 3</source>
        <translation>Force 3</translation>
    </message>
    <message>
        <source>Force 4</source>
        <translation>Force 4</translation>
    </message>
    <message>
        <source>Force 5</source>
        <translation>Force 5</translation>
    </message>
    <message>
        <source>Force 6</source>
        <translation>Force 6</translation>
    </message>
    <message>
        <source>Force 7</source>
        <translation>Force 7</translation>
    </message>
    <message>
        <source>Force 8</source>
        <translation>Force 8</translation>
    </message>
    <message>
        <source>Force 9</source>
        <translation>Force 9</translation>
    </message>
    <message>
        <source>Found dives</source>
        <translation>%d plongées trouvées</translation>
    </message>
    <message>
        <source>GPS template</source>
        <translation>N __° __.___'  E ___° __.___'</translation>
    </message>
    <message>
        <source>Good</source>
        <translation>Bonne</translation>
    </message>
    <message>
        <source>Hail</source>
        <translation>Grêle</translation>
    </message>
    <message>
        <source>Hard</source>
        <translation>Difficile</translation>
    </message>
    <message>
        <source>Heliair</source>
        <translation>Héliair</translation>
    </message>
    <message>
        <source>Heliox</source>
        <translation>Héliox</translation>
    </message>
    <message>
        <source>Helitrox</source>
        <translation>Hélitrox</translation>
    </message>
    <message>
        <source>Helium percent</source>
        <translation>Le pourcentage d’hélium était hors limites et a été remis à 0.</translation>
    </message>
    <message>
        <source>High tide</source>
        <translation>Pleine mer</translation>
    </message>
    <message>
        <source>Low tide</source>
        <translation>Basse mer</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>Moyenne</translation>
    </message>
    <message>
        <source>Moderate</source>
        <translation>Modéré</translation>
    </message>
    <message>
        <source>Movies</source>
        <translation>Vidéo</translation>
    </message>
    <message>
        <source>N/A</source>
        <translation>N/A</translation>
    </message>
    <message>
        <source>NA</source>
        <translation>N/A</translation>
    </message>
    <message>
        <source>Nitrox</source>
        <translation>Nitrox</translation>
    </message>
    <message>
        <source>No Tek</source>
        <translation>Loisir</translation>
    </message>
    <message>
        <source>No suit</source>
        <translation>Sans combinaison</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Nul</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normale</translation>
    </message>
    <message>
        <source>North</source>
        <translation>Nord</translation>
    </message>
    <message>
        <source>North-east</source>
        <translation>Nord-est</translation>
    </message>
    <message>
        <source>North-west</source>
        <translation>Nord-ouest</translation>
    </message>
    <message>
        <source>One dive found</source>
        <translation>Une plongée trouvée</translation>
    </message>
    <message>
        <source>Open circuit</source>
        <translation>Circuit ouvert</translation>
    </message>
    <message>
        <source>Ordinary dive</source>
        <translation>—</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>Autre</translation>
    </message>
    <message>
        <source>Photo dive</source>
        <translation>Photo</translation>
    </message>
    <message>
        <source>Position other</source>
        <translation>…</translation>
    </message>
    <message>
        <source>Pressure in out</source>
        <translation>Vérifiez les pressions : la pression de fin dépasse celle du début, ou l’une d’elles est négative.</translation>
    </message>
    <message>
        <source>Profile</source>
        <translation>Profil</translation>
    </message>
    <message>
        <source>Quarry</source>
        <translation>Carrière</translation>
    </message>
    <message>
        <source>Rainy</source>
        <translation>Pluvieux</translation>
    </message>
    <message>
        <source>Recreational</source>
        <translation>Exploration</translation>
    </message>
    <message>
        <source>Recuperation</source>
        <translation>Récupération</translation>
    </message>
    <message>
        <source>SCR</source>
        <translation>SCR</translation>
    </message>
    <message>
        <source>Semi-dry suit</source>
        <translation>Semi-étanche</translation>
    </message>
    <message>
        <source>Shorty</source>
        <translation>Shorty</translation>
    </message>
    <message>
        <source>Snowy</source>
        <translation>Neigeux</translation>
    </message>
    <message>
        <source>South</source>
        <translation>Sud</translation>
    </message>
    <message>
        <source>South-east</source>
        <translation>Sud-est</translation>
    </message>
    <message>
        <source>South-west</source>
        <translation>Sud-ouest</translation>
    </message>
    <message>
        <source>Steel</source>
        <translation>Acier</translation>
    </message>
    <message>
        <source>Strong</source>
        <translation>Fort</translation>
    </message>
    <message>
        <source>T-shirt</source>
        <translation>T-shirt</translation>
    </message>
    <message>
        <source>TableView air Nx</source>
        <translation>Air / nitrox</translation>
    </message>
    <message>
        <source>TableView air Nx O2</source>
        <translation>Air / nitrox / O₂</translation>
    </message>
    <message>
        <source>TableView air O2</source>
        <translation>Air / O₂</translation>
    </message>
    <message>
        <source>TableView air tables</source>
        <translation>Tables air</translation>
    </message>
    <message>
        <source>TableView computer</source>
        <translation>Ordinateur</translation>
    </message>
    <message>
        <source>TableView nitrox tables</source>
        <translation>Tables nitrox</translation>
    </message>
    <message>
        <source>Tek</source>
        <translation>Tek</translation>
    </message>
    <message>
        <source>Tek configuration</source>
        <translation>Tek</translation>
    </message>
    <message>
        <source>Thundery</source>
        <translation>Orageux</translation>
    </message>
    <message>
        <source>Tide unknown</source>
        <translation>…</translation>
    </message>
    <message>
        <source>Tip add</source>
        <translation>Ajouter une plongée</translation>
    </message>
    <message>
        <source>Tip delete</source>
        <translation>Supprimer les plongées sélectionnées</translation>
    </message>
    <message>
        <source>Tip erase</source>
        <translation>Effacer la fiche</translation>
    </message>
    <message>
        <source>Training</source>
        <translation>Formation</translation>
    </message>
    <message>
        <source>Trimix</source>
        <translation>Trimix</translation>
    </message>
    <message>
        <source>Tropical suit</source>
        <translation>Tropicale</translation>
    </message>
    <message>
        <source>Under ice</source>
        <translation>Sous glace</translation>
    </message>
    <message>
        <source>Unforgettable dive</source>
        <translation>Inoubliable</translation>
    </message>
    <message>
        <source>Very bad</source>
        <translation>Très mauvaise</translation>
    </message>
    <message>
        <source>Very easy</source>
        <translation>Très facile</translation>
    </message>
    <message>
        <source>Very good</source>
        <translation>Très bonne</translation>
    </message>
    <message>
        <source>Very hard</source>
        <translation>Très difficile</translation>
    </message>
    <message>
        <source>Very strong</source>
        <translation>Très fort</translation>
    </message>
    <message>
        <source>Violent</source>
        <translation>Violent</translation>
    </message>
    <message>
        <source>WGS84</source>
        <translation>WGS84</translation>
    </message>
    <message>
        <source>Weak</source>
        <translation>Faible</translation>
    </message>
    <message>
        <source>West</source>
        <translation>Ouest</translation>
    </message>
    <message>
        <source>Wet suit</source>
        <translation>Humide</translation>
    </message>
    <message>
        <source>Work</source>
        <translation>Travail</translation>
    </message>
    <message>
        <source>Wreck</source>
        <translation>Épave</translation>
    </message>
    <message>
        <source>eCCR</source>
        <translation>eCCR</translation>
    </message>
    <message>
        <source>hCCR</source>
        <translation>hCCR</translation>
    </message>
    <message>
        <source>mCCR</source>
        <translation>mCCR</translation>
    </message>
</context>
<context>
    <name>Interface</name>
    <message>
        <source>Copy of</source>
        <translation>Copie de</translation>
    </message>
    <message>
        <source>Look at only</source>
        <translation>Lecture seule</translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation>Sans titre</translation>
    </message>
    <message>
        <source>Work on a copy</source>
        <translation>Travailler sur une copie</translation>
    </message>
</context>
<context>
    <name>Main</name>
    <message>
        <source>Add</source>
        <translation>Ajouter</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Carnet de plongee</source>
        <translation>Carnet de plongee</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Divers documents</source>
        <translation>Divers documents</translation>
    </message>
    <message>
        <source>Document open elsewhere</source>
        <translation>« %@ » est ouvert dans un autre programme. L’ouvrir en lecture seule ou travailler sur une copie ?</translation>
    </message>
    <message>
        <source>Erase</source>
        <translation>Effacer</translation>
    </message>
    <message>
        <source>Erase dive</source>
        <translation>Effacer les plongées sélectionnées ?</translation>
    </message>
    <message>
        <source>Materiel</source>
        <translation>Materiel</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Rebreather</source>
        <translation>Rebreather</translation>
    </message>
    <message>
        <source>Synthesis card</source>
        <translation>Synthèse</translation>
    </message>
</context>
</TS>
