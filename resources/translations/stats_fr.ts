<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>Carnet</name>
    <message>
        <source>&#xd;   - Shorty</source>
        <translation>&#xd;   - Shorty</translation>
    </message>
    <message>
        <source>&#xd;   - T-shirt</source>
        <translation>&#xd;   - T-shirt</translation>
    </message>
    <message>
        <source> Run Time</source>
        <translation>Run time</translation>
    </message>
    <message>
        <source>(...)</source>
        <translation>(...)</translation>
    </message>
    <message>
        <source>(Basse mer)</source>
        <translation>(basse mer)</translation>
    </message>
    <message>
        <source>(Pleine mer)</source>
        <translation>(pleine mer)</translation>
    </message>
    <message>
        <source>Air tables</source>
        <translation>Tables air</translation>
    </message>
    <message>
        <source>Air temperature</source>
        <translation>Température de l’air</translation>
    </message>
    <message>
        <source>Altitude</source>
        <translation>Altitude</translation>
    </message>
    <message>
        <source>At</source>
        <translation>à</translation>
    </message>
    <message>
        <source>Available gas</source>
        <translation>Gaz disponible</translation>
    </message>
    <message>
        <source>Bail-out :</source>
        <translation>Bail-out :</translation>
    </message>
    <message>
        <source>Boat</source>
        <translation>Bateau</translation>
    </message>
    <message>
        <source>Breathed gas</source>
        <translation>Gaz respiré</translation>
    </message>
    <message>
        <source>Buddies</source>
        <translation>Partenaires</translation>
    </message>
    <message>
        <source>CCR rebreather</source>
        <translation>recycleur fermé</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>Ordinateur</translation>
    </message>
    <message>
        <source>Conditions</source>
        <translation>Conditions</translation>
    </message>
    <message>
        <source>Configuration</source>
        <translation>Configuration</translation>
    </message>
    <message>
        <source>Current</source>
        <translation>Courant</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Date</translation>
    </message>
    <message>
        <source>Deco algorythm type</source>
        <translation>Algorithme</translation>
    </message>
    <message>
        <source>Deco conservatism</source>
        <translation>Conservatisme</translation>
    </message>
    <message>
        <source>Deco soft name</source>
        <translation>Logiciel de planification</translation>
    </message>
    <message>
        <source>Decompression</source>
        <translation>Décompression</translation>
    </message>
    <message>
        <source>Depth</source>
        <translation>Profondeur</translation>
    </message>
    <message>
        <source>Detail runtime</source>
        <translation>Détail du run time</translation>
    </message>
    <message>
        <source>Difficulty level</source>
        <translation>Difficulté</translation>
    </message>
    <message>
        <source>Diluent</source>
        <translation>Diluant</translation>
    </message>
    <message>
        <source>Dive number</source>
        <translation>Plongée n°</translation>
    </message>
    <message>
        <source>Dive type</source>
        <translation>Type de plongée</translation>
    </message>
    <message>
        <source>End pressure</source>
        <translation>Pression de fin</translation>
    </message>
    <message>
        <source>End time</source>
        <translation>Heure de fin</translation>
    </message>
    <message>
        <source>Equipment</source>
        <translation>Équipement</translation>
    </message>
    <message>
        <source>Flow</source>
        <translation>Débit</translation>
    </message>
    <message>
        <source>Gas</source>
        <translation>Gaz</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Généralités</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Lieu</translation>
    </message>
    <message>
        <source>Night</source>
        <translation>Nocturne</translation>
    </message>
    <message>
        <source>Nitrox tables</source>
        <translation>Tables nitrox</translation>
    </message>
    <message>
        <source>No wind</source>
        <translation>pas de vent</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Notes</translation>
    </message>
    <message>
        <source>Oxygen</source>
        <translation>Oxygène</translation>
    </message>
    <message>
        <source>Oxygen gas</source>
        <translation>Oxygène</translation>
    </message>
    <message>
        <source>PAtm</source>
        <translation>Pression atmosphérique</translation>
    </message>
    <message>
        <source>Parameters</source>
        <translation>Paramètres</translation>
    </message>
    <message>
        <source>Pays</source>
        <translation>Pays</translation>
    </message>
    <message>
        <source>Ponies</source>
        <translation>Blocs de décompression</translation>
    </message>
    <message>
        <source>SCR rebreather</source>
        <translation>recycleur semi-fermé</translation>
    </message>
    <message>
        <source>Scaphander</source>
        <translation>Scaphandre</translation>
    </message>
    <message>
        <source>Site</source>
        <translation>Site</translation>
    </message>
    <message>
        <source>Start pressure</source>
        <translation>Pression de départ</translation>
    </message>
    <message>
        <source>Start time</source>
        <translation>Heure de début</translation>
    </message>
    <message>
        <source>Statistics</source>
        <translation>Statistiques</translation>
    </message>
    <message>
        <source>Statistics air</source>
        <translation>
   Air :	</translation>
    </message>
    <message>
        <source>Statistics bio</source>
        <translation>
   Biologie :	</translation>
    </message>
    <message>
        <source>Statistics cave</source>
        <translation>
   Spéléo :	</translation>
    </message>
    <message>
        <source>Statistics current</source>
        <translation>

Carnet</translation>
    </message>
    <message>
        <source>Statistics depth</source>
        <translation>

Profondeurs</translation>
    </message>
    <message>
        <source>Statistics dive type</source>
        <translation>

Activités</translation>
    </message>
    <message>
        <source>Statistics drift</source>
        <translation>
   Dérivante :	</translation>
    </message>
    <message>
        <source>Statistics gas</source>
        <translation>

Gaz</translation>
    </message>
    <message>
        <source>Statistics header</source>
        <translation>Statistiques du carnet de plongée</translation>
    </message>
    <message>
        <source>Statistics heliox</source>
        <translation>
   Héliox :	</translation>
    </message>
    <message>
        <source>Statistics ice</source>
        <translation>
   Sous glace :	</translation>
    </message>
    <message>
        <source>Statistics min max</source>
        <translation>

Minima, maxima, totaux</translation>
    </message>
    <message>
        <source>Statistics night</source>
        <translation>
   Nocturne :	</translation>
    </message>
    <message>
        <source>Statistics nitrox</source>
        <translation>
   Nitrox :	</translation>
    </message>
    <message>
        <source>Statistics no prev dives</source>
        <translation>
(sans les plongées faites avant ce carnet)</translation>
    </message>
    <message>
        <source>Statistics other</source>
        <translation>
   Autre :	</translation>
    </message>
    <message>
        <source>Statistics photo</source>
        <translation>
   Photo :	</translation>
    </message>
    <message>
        <source>Statistics prof max</source>
        <translation>
   Profondeur maximale :	</translation>
    </message>
    <message>
        <source>Statistics prof moy</source>
        <translation>
   Profondeur moyenne :	</translation>
    </message>
    <message>
        <source>Statistics prof_1</source>
        <translation>
   0 à 9 m :	</translation>
    </message>
    <message>
        <source>Statistics prof_2</source>
        <translation>
   10 à 19 m :	</translation>
    </message>
    <message>
        <source>Statistics prof_3</source>
        <translation>
   20 à 29 m :	</translation>
    </message>
    <message>
        <source>Statistics prof_4</source>
        <translation>
   30 à 39 m :	</translation>
    </message>
    <message>
        <source>Statistics prof_5</source>
        <translation>
   40 à 49 m :	</translation>
    </message>
    <message>
        <source>Statistics prof_6</source>
        <translation>
   50 à 59 m :	</translation>
    </message>
    <message>
        <source>Statistics prof_7</source>
        <translation>
   60 m et plus :	</translation>
    </message>
    <message>
        <source>Statistics quarry</source>
        <translation>
   Carrière :	</translation>
    </message>
    <message>
        <source>Statistics recreational</source>
        <translation>
   Exploration :	</translation>
    </message>
    <message>
        <source>Statistics recuperation</source>
        <translation>
   Récupération :	</translation>
    </message>
    <message>
        <source>Statistics somme prof</source>
        <translation>
   Total des profondeurs :	</translation>
    </message>
    <message>
        <source>Statistics somme temps</source>
        <translation>
   Total des durées :	</translation>
    </message>
    <message>
        <source>Statistics tek</source>
        <translation>
   Technique :	</translation>
    </message>
    <message>
        <source>Statistics temp max</source>
        <translation>
   Eau la plus chaude :	</translation>
    </message>
    <message>
        <source>Statistics temp min</source>
        <translation>
   Eau la plus froide :	</translation>
    </message>
    <message>
        <source>Statistics temp moy</source>
        <translation>
   Température moyenne de l’eau :	</translation>
    </message>
    <message>
        <source>Statistics temps max</source>
        <translation>
   Durée maximale :	</translation>
    </message>
    <message>
        <source>Statistics temps moy</source>
        <translation>
   Durée moyenne :	</translation>
    </message>
    <message>
        <source>Statistics training</source>
        <translation>
   Formation :	</translation>
    </message>
    <message>
        <source>Statistics trimix</source>
        <translation>
   Trimix :	</translation>
    </message>
    <message>
        <source>Statistics video</source>
        <translation>
   Vidéo :	</translation>
    </message>
    <message>
        <source>Statistics work</source>
        <translation>
   Travail :	</translation>
    </message>
    <message>
        <source>Statistics wrecks</source>
        <translation>
   Épaves :	</translation>
    </message>
    <message>
        <source>Structure</source>
        <translation>Structure</translation>
    </message>
    <message>
        <source>Surface</source>
        <translation>Intervalle de surface</translation>
    </message>
    <message>
        <source>TTS</source>
        <translation>Durée de remontée</translation>
    </message>
    <message>
        <source>Tank pressure</source>
        <translation>Capacité</translation>
    </message>
    <message>
        <source>Tank_1</source>
        <translation>Premier bloc</translation>
    </message>
    <message>
        <source>Tank_2</source>
        <translation>Second bloc</translation>
    </message>
    <message>
        <source>Tide coefficient</source>
        <translation>Coefficient de marée</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Durée</translation>
    </message>
    <message>
        <source>Tip statistics</source>
        <translation>Les statistiques de ce carnet</translation>
    </message>
    <message>
        <source>Tip synthesis card</source>
        <translation>Une fiche des plongées, à lire et à imprimer</translation>
    </message>
    <message>
        <source>Total dives</source>
        <translation>Nombre total de plongées : %d</translation>
    </message>
    <message>
        <source>Used gas</source>
        <translation>Gaz consommé</translation>
    </message>
    <message>
        <source>Used pressure</source>
        <translation>Pression consommée</translation>
    </message>
    <message>
        <source>Visibility</source>
        <translation>Visibilité</translation>
    </message>
    <message>
        <source>Water temperature</source>
        <translation>Température de l’eau</translation>
    </message>
    <message>
        <source>Weather</source>
        <translation>Météo</translation>
    </message>
    <message>
        <source>Weight</source>
        <translation>Lestage</translation>
    </message>
    <message>
        <source>Wind</source>
        <translation>Vent</translation>
    </message>
    <message>
        <source>Wind force</source>
        <translation>force</translation>
    </message>
    <message>
        <source>Wind sector</source>
        <translation>secteur</translation>
    </message>
    <message>
        <source>Wrecks</source>
        <translation>Épaves</translation>
    </message>
</context>
<context>
    <name>Interface</name>
    <message>
        <source>0 to 9 m</source>
        <translation>0 à 9 m</translation>
    </message>
    <message>
        <source>10 to 19 m</source>
        <translation>10 à 19 m</translation>
    </message>
    <message>
        <source>20 to 29 m</source>
        <translation>20 à 29 m</translation>
    </message>
    <message>
        <source>30 to 39 m</source>
        <translation>30 à 39 m</translation>
    </message>
    <message>
        <source>40 to 49 m</source>
        <translation>40 à 49 m</translation>
    </message>
    <message>
        <source>50 to 59 m</source>
        <translation>50 à 59 m</translation>
    </message>
    <message>
        <source>60 m and more</source>
        <translation>60 m et plus</translation>
    </message>
    <message>
        <source>Activities</source>
        <translation>Activités</translation>
    </message>
    <message>
        <source>All dives</source>
        <translation>Toutes les plongées</translation>
    </message>
    <message>
        <source>Closed circuit</source>
        <translation>Circuit fermé</translation>
    </message>
    <message>
        <source>Coldest water</source>
        <translation>Eau la plus froide</translation>
    </message>
    <message>
        <source>Deepest dive</source>
        <translation>Plongée la plus profonde</translation>
    </message>
    <message>
        <source>Depths</source>
        <translation>Profondeurs</translation>
    </message>
    <message>
        <source>Depths and gases as bars</source>
        <translation>Profondeurs et gaz en barres</translation>
    </message>
    <message>
        <source>Dives</source>
        <translation>Plongées</translation>
    </message>
    <message>
        <source>Dives to report on</source>
        <translation>Plongées à présenter</translation>
    </message>
    <message>
        <source>Ignore previous dives</source>
        <translation>Ignorer les plongées antérieures</translation>
    </message>
    <message>
        <source>Larger</source>
        <translation>Plus grand</translation>
    </message>
    <message>
        <source>Longest dive</source>
        <translation>Plongée la plus longue</translation>
    </message>
    <message>
        <source>Mean depth</source>
        <translation>Profondeur moyenne</translation>
    </message>
    <message>
        <source>Mean time</source>
        <translation>Durée moyenne</translation>
    </message>
    <message>
        <source>Mean water temperature</source>
        <translation>Température moyenne de l’eau</translation>
    </message>
    <message>
        <source>Minima, maxima, totals</source>
        <translation>Minima, maxima, totaux</translation>
    </message>
    <message>
        <source>Next page</source>
        <translation>Page suivante</translation>
    </message>
    <message>
        <source>Number of dives</source>
        <translation>Nombre de plongées</translation>
    </message>
    <message>
        <source>Page Setup…</source>
        <translation>Mise en page…</translation>
    </message>
    <message>
        <source>Previous dives</source>
        <translation>Plongées antérieures</translation>
    </message>
    <message>
        <source>Previous dives…</source>
        <translation>Plongées antérieures…</translation>
    </message>
    <message>
        <source>Previous page</source>
        <translation>Page précédente</translation>
    </message>
    <message>
        <source>Print Preview</source>
        <translation>Aperçu avant impression</translation>
    </message>
    <message>
        <source>Print Preview…</source>
        <translation>Aperçu avant impression…</translation>
    </message>
    <message>
        <source>Print…</source>
        <translation>Imprimer…</translation>
    </message>
    <message>
        <source>Save Report</source>
        <translation>Enregistrer le rapport</translation>
    </message>
    <message>
        <source>Save as PDF</source>
        <translation>Enregistrer en PDF</translation>
    </message>
    <message>
        <source>Save as PDF…</source>
        <translation>Enregistrer en PDF…</translation>
    </message>
    <message>
        <source>Semi-closed</source>
        <translation>Semi-fermé</translation>
    </message>
    <message>
        <source>Smaller</source>
        <translation>Plus petit</translation>
    </message>
    <message>
        <source>Statistics graphs</source>
        <translation>Graphiques des statistiques</translation>
    </message>
    <message>
        <source>Statistics page</source>
        <translation>Page des statistiques</translation>
    </message>
    <message>
        <source>The selected dive</source>
        <translation>La plongée sélectionnée</translation>
    </message>
    <message>
        <source>The statistics as a page to print</source>
        <translation>Les statistiques sur une page à imprimer</translation>
    </message>
    <message>
        <source>This program cannot write a file with such an ending.</source>
        <translation>Ce programme ne sait pas écrire de fichier avec cette extension.</translation>
    </message>
    <message>
        <source>Total depth</source>
        <translation>Total des profondeurs</translation>
    </message>
    <message>
        <source>Total time</source>
        <translation>Durée totale</translation>
    </message>
    <message>
        <source>Warmest water</source>
        <translation>Eau la plus chaude</translation>
    </message>
    <message>
        <source>Whole page</source>
        <translation>Page entière</translation>
    </message>
</context>
</TS>
