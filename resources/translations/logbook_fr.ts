<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>Main</name>
    <message>
        <source>Add item to ComboBox</source>
        <translation>Ajouter « %@ » à la liste ?</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Oui</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Non</translation>
    </message>
</context>
<context>
    <name>Carnet</name>
    <message>
        <source>Delta pressure</source>
        <translation>%d bar, %d l</translation>
    </message>
    <message>
        <source>CNS</source>
        <translation>ppO₂ %.2f bar, SNC %.1f %%</translation>
    </message>
    <message>
        <source>Dive number profile datas title</source>
        <translation>Plongée %d – données du profil</translation>
    </message>
    <message>
        <source>Datas</source>
        <translation>%d valeurs</translation>
    </message>
    <message>
        <source>No datas</source>
        <translation>Aucune donnée</translation>
    </message>
    <message>
        <source>Profile datas</source>
        <translation>Données du profil</translation>
    </message>
    <message>
        <source>Tip profile datas</source>
        <translation>Les points du profil en texte</translation>
    </message>
    <message>
        <source>%@ ft</source>
        <translation>%@ ft</translation>
    </message>
    <message>
        <source>%@ m</source>
        <translation>%@ m</translation>
    </message>
    <message>
        <source>%@ '</source>
        <translation>%@ '</translation>
    </message>
    <message>
        <source>Celsius</source>
        <translation>%d °C</translation>
    </message>
    <message>
        <source>Farenheit</source>
        <translation>%d °F</translation>
    </message>
    <message>
        <source>TableView exceptional</source>
        <translation>Exceptionnelle</translation>
    </message>
    <message>
        <source>TableView excellent</source>
        <translation>Excellente</translation>
    </message>
    <message>
        <source>TableView very good</source>
        <translation>Très bonne</translation>
    </message>
    <message>
        <source>TableView good</source>
        <translation>Bonne</translation>
    </message>
    <message>
        <source>TableView medium</source>
        <translation>Moyenne</translation>
    </message>
    <message>
        <source>TableView bad</source>
        <translation>Mauvaise</translation>
    </message>
    <message>
        <source>TableView very bad</source>
        <translation>Très mauvaise</translation>
    </message>
    <message>
        <source>TableView execrable</source>
        <translation>Exécrable</translation>
    </message>
    <message>
        <source>TableView high tide</source>
        <translation>%d pleine mer</translation>
    </message>
    <message>
        <source>TableView low tide</source>
        <translation>%d basse mer</translation>
    </message>
    <message>
        <source>TableView high tide only</source>
        <translation>Pleine mer</translation>
    </message>
    <message>
        <source>TableView low tide only</source>
        <translation>Basse mer</translation>
    </message>
    <message>
        <source>OC</source>
        <translation>CO</translation>
    </message>
    <message>
        <source>O2</source>
        <translation>O2</translation>
    </message>
    <message>
        <source>Nx %@</source>
        <translation>Nx %@</translation>
    </message>
    <message>
        <source>Heliox %@</source>
        <translation>Héliox %@</translation>
    </message>
    <message>
        <source>Tx %@/%@</source>
        <translation>Tx %@/%@</translation>
    </message>
</context>
<context>
    <name>Interface</name>
    <message>
        <source>hPa</source>
        <translation>hPa</translation>
    </message>
    <message>
        <source>l/min</source>
        <translation>l/min</translation>
    </message>
    <message>
        <source>Stops</source>
        <translation>Paliers</translation>
    </message>
    <message>
        <source>Fast ascent</source>
        <translation>Remontée</translation>
    </message>
    <message>
        <source>Ceiling</source>
        <translation>Plafond</translation>
    </message>
    <message>
        <source>Surface</source>
        <translation>Surface</translation>
    </message>
    <message>
        <source>Gas switches</source>
        <translation>Gaz</translation>
    </message>
    <message>
        <source>Pressure (bar)</source>
        <translation>Pression (bar)</translation>
    </message>
    <message>
        <source>Fav.</source>
        <translation>Fav.</translation>
    </message>
    <message>
        <source>Sort dives</source>
        <translation>tri des plongées</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Remplacer</translation>
    </message>
    <message>
        <source>Replace all seven</source>
        <translation>Remplacer les sept</translation>
    </message>
    <message>
        <source>Put into the dive</source>
        <translation>Mettre dans la plongée</translation>
    </message>
    <message>
        <source>Put the lists that are marked into the dive?</source>
        <translation>Mettre les listes cochées dans la plongée ?</translation>
    </message>
    <message>
        <source>Sample %d: %@, %.1f m</source>
        <translation>Point %d : %@, %.1f m</translation>
    </message>
    <message>
        <source>Used</source>
        <translation>Consommé</translation>
    </message>
    <message>
        <source>Oxygen</source>
        <translation>Oxygène</translation>
    </message>
</context>
</TS>
