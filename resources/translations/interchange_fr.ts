<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>Carnet</name>
    <message>
        <source>Import UDCF</source>
        <translation>Importer UDCF</translation>
    </message>
    <message>
        <source>Import UDDF</source>
        <translation>Importer UDDF</translation>
    </message>
    <message>
        <source>Tip import UDCF</source>
        <translation>Lire des plongées d’un fichier UDCF</translation>
    </message>
    <message>
        <source>Tip import UDDF</source>
        <translation>Lire des plongées d’un fichier UDDF</translation>
    </message>
</context>
<context>
    <name>Files</name>
    <message>
        <source>Export empty logbook</source>
        <translation>un carnet vide ne peut pas être exporté en UDDF, dont le gaz est celui de la première plongée</translation>
    </message>
    <message>
        <source>Export missing marks</source>
        <translation>la plongée %@ a %@ profondeurs mais seulement %@ marques « %@ » : rien n’a été exporté, les données de son profil sont d’abord à compléter</translation>
    </message>
    <message>
        <source>Import bad XML</source>
        <translation>ligne %@, colonne %@ : ce n’est pas du XML bien formé</translation>
    </message>
    <message>
        <source>Import bad attribute</source>
        <translation>ligne %@, colonne %@ : un attribut est mal écrit</translation>
    </message>
    <message>
        <source>Import bad comment</source>
        <translation>ligne %@, colonne %@ : un commentaire n’est pas terminé</translation>
    </message>
    <message>
        <source>Import bad end</source>
        <translation>ligne %@, colonne %@ : un élément ne se termine pas comme il a commencé</translation>
    </message>
    <message>
        <source>Import bad tag</source>
        <translation>ligne %@, colonne %@ : ce n’est pas une balise</translation>
    </message>
    <message>
        <source>Import no element</source>
        <translation>ligne %@, colonne %@ : il n’y a aucun élément XML dans ce fichier</translation>
    </message>
    <message>
        <source>Import no memory</source>
        <translation>ligne %@, colonne %@ : il n’y a pas assez de mémoire pour continuer la lecture</translation>
    </message>
    <message>
        <source>Import not UTF-16</source>
        <translation>ligne %@, colonne %@ : ce n’est pas du texte en UTF-16 ou UTF-32</translation>
    </message>
    <message>
        <source>Import not UTF-8</source>
        <translation>ligne %@, colonne %@ : ce n’est pas de l’UTF-8, et le fichier ne nomme aucun autre codage lisible</translation>
    </message>
    <message>
        <source>Import too many dives</source>
        <translation>il contient %@ plongées, plus que les %@ qui peuvent être lues en une fois</translation>
    </message>
    <message>
        <source>Import zero byte</source>
        <translation>ligne %@, colonne %@ : il y a un octet nul dans le texte</translation>
    </message>
</context>
<context>
    <name>Interface</name>
    <message>
        <source>%d dives were passed over: only the last group of a file is read.</source>
        <translation>%d plongées ont été laissées de côté : seul le dernier groupe d’un fichier est lu.</translation>
    </message>
    <message>
        <source>%d dives were read from %@.</source>
        <translation>%d plongées ont été lues dans %@.</translation>
    </message>
    <message>
        <source>%d files</source>
        <translation>%d fichiers</translation>
    </message>
    <message>
        <source>1 dive was passed over: only the last group of a file is read.</source>
        <translation>1 plongée a été laissée de côté : seul le dernier groupe d’un fichier est lu.</translation>
    </message>
    <message>
        <source>1 dive was read from %@.</source>
        <translation>1 plongée a été lue dans %@.</translation>
    </message>
    <message>
        <source>Dives as CSV with commas</source>
        <translation>Plongées en CSV (virgule)</translation>
    </message>
    <message>
        <source>Dives as CSV with semicolons</source>
        <translation>Plongées en CSV (point-virgule)</translation>
    </message>
    <message>
        <source>Dives as text with tabs</source>
        <translation>Plongées en texte (tabulation)</translation>
    </message>
    <message>
        <source>Dives concerned: %@.</source>
        <translation>Plongées concernées : %@.</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Exporter</translation>
    </message>
    <message>
        <source>Export dives</source>
        <translation>Exporter les plongées</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>Exporter…</translation>
    </message>
    <message>
        <source>Handheld logbook</source>
        <translation>Carnet de l’ordinateur de poche</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Importer</translation>
    </message>
    <message>
        <source>Import dives</source>
        <translation>Importer des plongées</translation>
    </message>
    <message>
        <source>Import handheld logbook</source>
        <translation>Importer un carnet d’ordinateur de poche</translation>
    </message>
    <message>
        <source>No dive was read from %@.</source>
        <translation>Aucune plongée n’a été lue dans %@.</translation>
    </message>
    <message>
        <source>Profiles as CSV with commas</source>
        <translation>Profils en CSV (virgule)</translation>
    </message>
    <message>
        <source>Reading dives…</source>
        <translation>Lecture des plongées…</translation>
    </message>
    <message>
        <source>Some characters do not exist in this format and were written as the nearest ones that do. Dives concerned: %@.</source>
        <translation>Certains caractères n’existent pas dans ce format et ont été remplacés par les plus proches. Plongées concernées : %@.</translation>
    </message>
    <message>
        <source>The file seems to be of the format %@.</source>
        <translation>Ce fichier semble être au format %@.</translation>
    </message>
    <message>
        <source>The import was stopped, and nothing was added.</source>
        <translation>L’importation a été interrompue ; rien n’a été ajouté.</translation>
    </message>
    <message>
        <source>UDCF</source>
        <translation>UDCF</translation>
    </message>
    <message>
        <source>UDCF (Universal Dive Computer Format)</source>
        <translation>UDCF (Universal Dive Computer Format)</translation>
    </message>
    <message>
        <source>UDDF</source>
        <translation>UDDF</translation>
    </message>
    <message>
        <source>UDDF (Universal Dive Data Format)</source>
        <translation>UDDF (Universal Dive Data Format)</translation>
    </message>
    <message>
        <source>“%@”</source>
        <translation>« %@ »</translation>
    </message>
    <message>
        <source>Dives from other programs</source>
        <translation>Plongées d’autres programmes</translation>
    </message>
    <message>
        <source>“%@” was written.</source>
        <translation>« %@ » a été écrit.</translation>
    </message>
</context>
</TS>
