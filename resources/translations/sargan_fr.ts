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
    <name>Files</name>
    <message>
        <source>Document open elsewhere</source>
        <translation>Un autre programme a ouvert ce fichier ; il n’a pas été touché.</translation>
    </message>
    <message>
        <source>Document no records</source>
        <translation>Son contenu n’est pas une liste de fiches.</translation>
    </message>
    <message>
        <source>Document damaged</source>
        <translation>Il est abîmé à l’octet %@ : %@.</translation>
    </message>
    <message>
        <source>Document other type</source>
        <translation>Un document du type « %@ » était attendu, et non « %@ ».</translation>
    </message>
    <message>
        <source>Document look only</source>
        <translation>Ce document a été ouvert en lecture seule ; le fichier n’a pas été touché.</translation>
    </message>
    <message>
        <source>Document not the same</source>
        <translation>Ce qui serait écrit ne se relit pas comme ce document ; rien n’a été écrit.</translation>
    </message>
    <message>
        <source>Document no export</source>
        <translation>Il n’y a pas de type d’export « %@ ».</translation>
    </message>
    <message>
        <source>Document never saved</source>
        <translation>Le document n’a jamais été enregistré.</translation>
    </message>
    <message>
        <source>Document foreign records</source>
        <translation>Ses fiches sont de la classe « %@ », que ce programme ne connaît pas.</translation>
    </message>
    <message>
        <source>Read bad name</source>
        <translation>« %@ » ne peut pas être lu : ce nom ne peut pas être celui d’un fichier.</translation>
    </message>
    <message>
        <source>Read directory</source>
        <translation>« %@ » ne peut pas être lu : c’est un dossier, pas un fichier.</translation>
    </message>
    <message>
        <source>Read failed</source>
        <translation>« %@ » ne peut pas être lu dans « %@ » : %@.</translation>
    </message>
    <message>
        <source>Read missing</source>
        <translation>« %@ » ne peut pas être lu : il n’y a pas de fichier de ce nom dans « %@ ».</translation>
    </message>
    <message>
        <source>Read no permission</source>
        <translation>« %@ » ne peut pas être lu : vous n’avez pas le droit de le lire ou d’entrer dans son dossier « %@ ».</translation>
    </message>
    <message>
        <source>Read not a file</source>
        <translation>« %@ » ne peut pas être lu : c’est un tube ou un périphérique, pas un fichier.</translation>
    </message>
    <message>
        <source>Read too large</source>
        <translation>« %@ » ne peut pas être lu : il est trop grand.</translation>
    </message>
    <message>
        <source>Save backup</source>
        <translation>« %@ » n’a pas été enregistré : sa version précédente n’a pas pu être conservée dans « %@ » (%@). Le fichier sur le disque est inchangé.</translation>
    </message>
    <message>
        <source>Save bad name</source>
        <translation>« %@ » n’a pas pu être enregistré : ce nom ne convient pas à un fichier. Rien n’a été modifié.</translation>
    </message>
    <message>
        <source>Save changed on disk</source>
        <translation>« %@ » n’a pas été enregistré : le fichier dans « %@ » a été modifié par un autre programme depuis sa lecture. Ce fichier est inchangé.</translation>
    </message>
    <message>
        <source>Save disk full</source>
        <translation>« %@ » n’a pas pu être enregistré : il n’y a plus de place sur le disque qui contient « %@ ». Le fichier sur le disque est inchangé.</translation>
    </message>
    <message>
        <source>Save failed</source>
        <translation>« %@ » n’a pas pu être enregistré dans « %@ » : %@. Le fichier sur le disque est inchangé.</translation>
    </message>
    <message>
        <source>Save flush</source>
        <translation>« %@ » n’a pas pu être enregistré : le disque qui contient « %@ » n’a pas confirmé les données (%@). Le fichier sur le disque est inchangé.</translation>
    </message>
    <message>
        <source>Save no folder</source>
        <translation>« %@ » n’a pas pu être enregistré : son dossier « %@ » est introuvable. Rien n’a été modifié.</translation>
    </message>
    <message>
        <source>Save no permission</source>
        <translation>« %@ » n’a pas pu être enregistré : vous n’avez pas le droit d’écrire ce fichier ou dans son dossier « %@ ». Le fichier sur le disque est inchangé.</translation>
    </message>
    <message>
        <source>Save not a file</source>
        <translation>« %@ » n’a pas pu être enregistré : ce qui porte ce nom dans « %@ » n’est pas un fichier. Rien n’a été modifié.</translation>
    </message>
    <message>
        <source>Save not durable</source>
        <translation>« %@ » a été enregistré dans « %@ », mais le disque ne l’a pas confirmé (%@) : la nouvelle version est en place et pourrait être perdue en cas de coupure de courant.</translation>
    </message>
    <message>
        <source>Save read only</source>
        <translation>« %@ » n’a pas pu être enregistré : le disque qui contient « %@ » est en lecture seule. Le fichier sur le disque est inchangé.</translation>
    </message>
    <message>
        <source>Save too large</source>
        <translation>« %@ » n’a pas pu être enregistré : il dépasse la taille permise pour un fichier dans « %@ ». Le fichier sur le disque est inchangé.</translation>
    </message>
</context>
<context>
    <name>Interface</name>
    <message>
        <source>%</source>
        <translation>%</translation>
    </message>
    <message>
        <source>%d dives</source>
        <translation>%d plongées</translation>
    </message>
    <message>
        <source>%d records</source>
        <translation>%d fiches</translation>
    </message>
    <message>
        <source>%d selected</source>
        <translation>%d sélectionnées</translation>
    </message>
    <message>
        <source>&amp;Dive</source>
        <translation>&amp;Plongée</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>É&amp;dition</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Fichier</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Aide</translation>
    </message>
    <message>
        <source>&amp;New logbook</source>
        <translation>&amp;Nouveau carnet</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>&amp;Ouvrir…</translation>
    </message>
    <message>
        <source>&amp;Window</source>
        <translation>Fe&amp;nêtre</translation>
    </message>
    <message>
        <source>1</source>
        <translation>1</translation>
    </message>
    <message>
        <source>1 dive</source>
        <translation>1 plongée</translation>
    </message>
    <message>
        <source>1 record</source>
        <translation>1 fiche</translation>
    </message>
    <message>
        <source>1 selected</source>
        <translation>1 sélectionnée</translation>
    </message>
    <message>
        <source>10</source>
        <translation>10</translation>
    </message>
    <message>
        <source>11</source>
        <translation>11</translation>
    </message>
    <message>
        <source>12</source>
        <translation>12</translation>
    </message>
    <message>
        <source>2</source>
        <translation>2</translation>
    </message>
    <message>
        <source>3</source>
        <translation>3</translation>
    </message>
    <message>
        <source>4</source>
        <translation>4</translation>
    </message>
    <message>
        <source>5</source>
        <translation>5</translation>
    </message>
    <message>
        <source>6</source>
        <translation>6</translation>
    </message>
    <message>
        <source>7</source>
        <translation>7</translation>
    </message>
    <message>
        <source>8</source>
        <translation>8</translation>
    </message>
    <message>
        <source>9</source>
        <translation>9</translation>
    </message>
    <message>
        <source>About Sargan</source>
        <translation>À propos de Sargan</translation>
    </message>
    <message>
        <source>Add dive</source>
        <translation>ajout d’une plongée</translation>
    </message>
    <message>
        <source>Air</source>
        <translation>Air</translation>
    </message>
    <message>
        <source>Air pressure</source>
        <translation>Pression atm.</translation>
    </message>
    <message>
        <source>Algorithm</source>
        <translation>Algorithme</translation>
    </message>
    <message>
        <source>All files</source>
        <translation>Tous les fichiers</translation>
    </message>
    <message>
        <source>Altitude</source>
        <translation>Altitude</translation>
    </message>
    <message>
        <source>Apparatus</source>
        <translation>Appareil</translation>
    </message>
    <message>
        <source>Bail-out tanks</source>
        <translation>Blocs de secours</translation>
    </message>
    <message>
        <source>Boat</source>
        <translation>Bateau</translation>
    </message>
    <message>
        <source>Boats</source>
        <translation>Bateaux</translation>
    </message>
    <message>
        <source>Buddies</source>
        <translation>Palanquée</translation>
    </message>
    <message>
        <source>Budget</source>
        <translation>Budget</translation>
    </message>
    <message>
        <source>CO₂ absorbent</source>
        <translation>Chaux</translation>
    </message>
    <message>
        <source>Choose a picture…</source>
        <translation>Choisir une image…</translation>
    </message>
    <message>
        <source>Clear Menu</source>
        <translation>Effacer le menu</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Club or centre</source>
        <translation>Structure</translation>
    </message>
    <message>
        <source>Clubs</source>
        <translation>Structures</translation>
    </message>
    <message>
        <source>Coefficient</source>
        <translation>Coefficient</translation>
    </message>
    <message>
        <source>Company</source>
        <translation>Équipe</translation>
    </message>
    <message>
        <source>Compressor</source>
        <translation>Compresseur</translation>
    </message>
    <message>
        <source>Computers</source>
        <translation>Ordinateurs</translation>
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
        <source>Conservatism</source>
        <translation>Durcissement</translation>
    </message>
    <message>
        <source>Consumables</source>
        <translation>Consommables</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copier</translation>
    </message>
    <message>
        <source>Copy of</source>
        <translation>Copie de</translation>
    </message>
    <message>
        <source>Country</source>
        <translation>Pays</translation>
    </message>
    <message>
        <source>Country code</source>
        <translation>Code pays</translation>
    </message>
    <message>
        <source>Current</source>
        <translation>Courant</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Couper</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Date</translation>
    </message>
    <message>
        <source>Decompression</source>
        <translation>Décompression</translation>
    </message>
    <message>
        <source>Decompression stages</source>
        <translation>Paliers</translation>
    </message>
    <message>
        <source>Delete dives</source>
        <translation>suppression de plongées</translation>
    </message>
    <message>
        <source>Depth</source>
        <translation>Prof.</translation>
    </message>
    <message>
        <source>Depth &amp; deco</source>
        <translation>Prof. &amp; déco</translation>
    </message>
    <message>
        <source>Depth (m)</source>
        <translation>Prof. (m)</translation>
    </message>
    <message>
        <source>Depth and time</source>
        <translation>Profondeur et temps</translation>
    </message>
    <message>
        <source>Difficulty</source>
        <translation>Difficulté</translation>
    </message>
    <message>
        <source>Dive</source>
        <translation>Plongée</translation>
    </message>
    <message>
        <source>Dive %d</source>
        <translation>Plongée %d</translation>
    </message>
    <message>
        <source>Dive bag</source>
        <translation>Sac de plongée</translation>
    </message>
    <message>
        <source>Dive computer</source>
        <translation>Ordinateur</translation>
    </message>
    <message>
        <source>Dive time</source>
        <translation>Temps de plongée</translation>
    </message>
    <message>
        <source>Documents</source>
        <translation>Documents</translation>
    </message>
    <message>
        <source>Documents file</source>
        <translation>Divers documents</translation>
    </message>
    <message>
        <source>Don’t save</source>
        <translation>Ne pas enregistrer</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Durée</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Modifier</translation>
    </message>
    <message>
        <source>Edit dive</source>
        <translation>modification de la plongée</translation>
    </message>
    <message>
        <source>Edit the dive</source>
        <translation>Modifier la plongée</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Fin</translation>
    </message>
    <message>
        <source>End (bar)</source>
        <translation>Fin (bar)</translation>
    </message>
    <message>
        <source>Equipment</source>
        <translation>Matériel</translation>
    </message>
    <message>
        <source>Find dives that contain the text</source>
        <translation>Trouver les plongées qui contiennent le texte</translation>
    </message>
    <message>
        <source>Find in: %@</source>
        <translation>Chercher dans : %@</translation>
    </message>
    <message>
        <source>Find…</source>
        <translation>Rechercher…</translation>
    </message>
    <message>
        <source>Firms</source>
        <translation>Entreprises</translation>
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
        <source>Gas &amp; tanks</source>
        <translation>Gaz &amp; blocs</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Général</translation>
    </message>
    <message>
        <source>Give up the changes in “%@” and read the file again?</source>
        <translation>Abandonner les modifications de « %@ » et relire le fichier ?</translation>
    </message>
    <message>
        <source>He</source>
        <translation>He</translation>
    </message>
    <message>
        <source>He (%)</source>
        <translation>He (%)</translation>
    </message>
    <message>
        <source>Heliox</source>
        <translation>Héliox</translation>
    </message>
    <message>
        <source>High gradient factor</source>
        <translation>GF haut</translation>
    </message>
    <message>
        <source>Load</source>
        <translation>Charger</translation>
    </message>
    <message>
        <source>Loading…</source>
        <translation>Chargement…</translation>
    </message>
    <message>
        <source>Logbook</source>
        <translation>Carnet de plongée</translation>
    </message>
    <message>
        <source>Look at only</source>
        <translation>Lecture seule</translation>
    </message>
    <message>
        <source>Low gradient factor</source>
        <translation>GF bas</translation>
    </message>
    <message>
        <source>Low set-point</source>
        <translation>Setpoint bas</translation>
    </message>
    <message>
        <source>Main tank</source>
        <translation>Bloc principal</translation>
    </message>
    <message>
        <source>Maker</source>
        <translation>Fabricant</translation>
    </message>
    <message>
        <source>Map datum</source>
        <translation>Système géodésique</translation>
    </message>
    <message>
        <source>Mark</source>
        <translation>Mention</translation>
    </message>
    <message>
        <source>Material</source>
        <translation>Alliage</translation>
    </message>
    <message>
        <source>Maximum depth</source>
        <translation>Profondeur max.</translation>
    </message>
    <message>
        <source>Method</source>
        <translation>Méthode</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Modèle</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Nouveau</translation>
    </message>
    <message>
        <source>New Document</source>
        <translation>Nouveau document</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Suivante</translation>
    </message>
    <message>
        <source>Next dive</source>
        <translation>Plongée suivante</translation>
    </message>
    <message>
        <source>Night dive</source>
        <translation>Plongée de nuit</translation>
    </message>
    <message>
        <source>Nitrox</source>
        <translation>Nitrox</translation>
    </message>
    <message>
        <source>No dive selected</source>
        <translation>Aucune plongée sélectionnée</translation>
    </message>
    <message>
        <source>No.</source>
        <translation>N°</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Notes</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Numéro</translation>
    </message>
    <message>
        <source>Number of the &amp;first dive:</source>
        <translation>Numéro de la &amp;première plongée :</translation>
    </message>
    <message>
        <source>N₂</source>
        <translation>N₂</translation>
    </message>
    <message>
        <source>One sample every</source>
        <translation>Un point toutes les</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Ouvrir</translation>
    </message>
    <message>
        <source>Open Recent</source>
        <translation>Ouvrir un document récent</translation>
    </message>
    <message>
        <source>Open to look at only: changes are not possible here.</source>
        <translation>Ouvert en lecture seule : les modifications ne sont pas possibles ici.</translation>
    </message>
    <message>
        <source>Open…</source>
        <translation>Ouvrir…</translation>
    </message>
    <message>
        <source>Overwrite</source>
        <translation>Écraser</translation>
    </message>
    <message>
        <source>O₂</source>
        <translation>O₂</translation>
    </message>
    <message>
        <source>O₂ (%)</source>
        <translation>O₂ (%)</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Coller</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Images</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Lieu</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Position</translation>
    </message>
    <message>
        <source>Previous</source>
        <translation>Précédente</translation>
    </message>
    <message>
        <source>Previous dive</source>
        <translation>Plongée précédente</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Quitter</translation>
    </message>
    <message>
        <source>Rated for</source>
        <translation>Pression de service</translation>
    </message>
    <message>
        <source>Rebreather</source>
        <translation>Recycleur</translation>
    </message>
    <message>
        <source>Record-keeping for divers: logbook, registers and calculators.</source>
        <translation>Le carnet, les registres et les calculs des plongeurs.</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Rétablir</translation>
    </message>
    <message>
        <source>Redo: %@</source>
        <translation>Rétablir : %@</translation>
    </message>
    <message>
        <source>Reminder note</source>
        <translation>Pense-bête</translation>
    </message>
    <message>
        <source>Renumber</source>
        <translation>Renuméroter</translation>
    </message>
    <message>
        <source>Renumber dives</source>
        <translation>Renumérotation des plongées</translation>
    </message>
    <message>
        <source>Renumber…</source>
        <translation>Renuméroter…</translation>
    </message>
    <message>
        <source>Revert</source>
        <translation>Revenir à la version enregistrée</translation>
    </message>
    <message>
        <source>Revert…</source>
        <translation>Revenir à la version enregistrée…</translation>
    </message>
    <message>
        <source>Run time</source>
        <translation>Run time</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>Enregistrer sous</translation>
    </message>
    <message>
        <source>Save As…</source>
        <translation>Enregistrer sous…</translation>
    </message>
    <message>
        <source>Save the changes in “%@”?</source>
        <translation>Enregistrer les modifications de « %@ » ?</translation>
    </message>
    <message>
        <source>Second tank</source>
        <translation>Deuxième bloc</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Tout sélectionner</translation>
    </message>
    <message>
        <source>Serial number</source>
        <translation>Numéro de série</translation>
    </message>
    <message>
        <source>Set-point</source>
        <translation>Setpoint</translation>
    </message>
    <message>
        <source>Show when the program starts</source>
        <translation>Afficher au démarrage du programme</translation>
    </message>
    <message>
        <source>Site</source>
        <translation>Site</translation>
    </message>
    <message>
        <source>Sky</source>
        <translation>Ciel</translation>
    </message>
    <message>
        <source>Software</source>
        <translation>Logiciel</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Début</translation>
    </message>
    <message>
        <source>Start (bar)</source>
        <translation>Début (bar)</translation>
    </message>
    <message>
        <source>State</source>
        <translation>État</translation>
    </message>
    <message>
        <source>Store</source>
        <translation>Valider</translation>
    </message>
    <message>
        <source>Store the form in the logbook</source>
        <translation>Enregistrer la fiche dans le carnet</translation>
    </message>
    <message>
        <source>Suit</source>
        <translation>Combinaison</translation>
    </message>
    <message>
        <source>Surface interval</source>
        <translation>Intervalle surface</translation>
    </message>
    <message>
        <source>The dives are numbered on from it in the order of the table.</source>
        <translation>Les plongées suivantes sont numérotées à la suite, dans l’ordre du tableau.</translation>
    </message>
    <message>
        <source>This picture cannot be shown</source>
        <translation>Cette image ne peut pas être affichée</translation>
    </message>
    <message>
        <source>Tide</source>
        <translation>Marée</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Heure</translation>
    </message>
    <message>
        <source>Time (min)</source>
        <translation>Temps (min)</translation>
    </message>
    <message>
        <source>Time in</source>
        <translation>Mise à l’eau</translation>
    </message>
    <message>
        <source>Time to surface</source>
        <translation>DTR</translation>
    </message>
    <message>
        <source>Toolbar</source>
        <translation>Barre d’outils</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Undo: %@</source>
        <translation>Annuler : %@</translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation>Sans titre</translation>
    </message>
    <message>
        <source>Visibility</source>
        <translation>Visibilité</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Volume</translation>
    </message>
    <message>
        <source>Volume (l)</source>
        <translation>Volume (l)</translation>
    </message>
    <message>
        <source>Water</source>
        <translation>Eau</translation>
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
        <source>What you want to be reminded of</source>
        <translation>Ce dont vous voulez vous souvenir</translation>
    </message>
    <message>
        <source>Wind force</source>
        <translation>Force du vent</translation>
    </message>
    <message>
        <source>Wind from</source>
        <translation>Vent de secteur</translation>
    </message>
    <message>
        <source>Work on a copy</source>
        <translation>Travailler sur une copie</translation>
    </message>
    <message>
        <source>Worn</source>
        <translation>Équipement</translation>
    </message>
    <message>
        <source>Wrecks</source>
        <translation>Épaves</translation>
    </message>
    <message>
        <source>bar</source>
        <translation>bar</translation>
    </message>
    <message>
        <source>kg</source>
        <translation>kg</translation>
    </message>
    <message>
        <source>l</source>
        <translation>l</translation>
    </message>
    <message>
        <source>m</source>
        <translation>m</translation>
    </message>
    <message>
        <source>min</source>
        <translation>min</translation>
    </message>
    <message>
        <source>°C</source>
        <translation>°C</translation>
    </message>
    <message>
        <source>“%@” is open in another window, so it was not replaced.</source>
        <translation>« %@ » est ouvert dans une autre fenêtre ; il n’a pas été remplacé.</translation>
    </message>
    <message>
        <source>“%@” was changed by another program since it was opened. Overwrite that version, or save under another name?</source>
        <translation>« %@ » a été modifié par un autre programme depuis son ouverture. Écraser cette version, ou enregistrer sous un autre nom ?</translation>
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
