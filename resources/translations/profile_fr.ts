<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>Profil</name>
    <message>
        <source>Time min</source>
        <translation>Temps (min)</translation>
    </message>
    <message>
        <source>Depth m</source>
        <translation>Profondeur (m)</translation>
    </message>
    <message>
        <source>Gas bar</source>
        <translation>Gaz (bar)</translation>
    </message>
    <message>
        <source>PpO2</source>
        <translation>ppO₂ max.</translation>
    </message>
    <message>
        <source>Bottom gas</source>
        <translation>Gaz fond</translation>
    </message>
    <message>
        <source>Oxygen</source>
        <translation>Oxygène</translation>
    </message>
    <message>
        <source>EAN %d</source>
        <translation>EAN %d</translation>
    </message>
    <message>
        <source>Tx %d/%d</source>
        <translation>Tx %d/%d</translation>
    </message>
    <message>
        <source>Depth time</source>
        <translation>%.1f m à %@</translation>
    </message>
    <message>
        <source>Depth no value</source>
        <translation>Aucune mesure ici</translation>
    </message>
</context>
<context>
    <name>Interface</name>
    <message>
        <source>Decompression stops</source>
        <translation>Paliers</translation>
    </message>
    <message>
        <source>Fast ascents</source>
        <translation>Remontées rapides</translation>
    </message>
    <message>
        <source>Ceiling violations</source>
        <translation>Dépassements du plafond</translation>
    </message>
    <message>
        <source>Oxygen switches</source>
        <translation>Passages à l’oxygène</translation>
    </message>
    <message>
        <source>Save Picture</source>
        <translation>Enregistrer l’image</translation>
    </message>
    <message>
        <source>Save Picture…</source>
        <translation>Enregistrer l’image…</translation>
    </message>
    <message>
        <source>Save the graph as a picture</source>
        <translation>Enregistrer le graphique comme image</translation>
    </message>
    <message>
        <source>Markers</source>
        <translation>Repères</translation>
    </message>
</context>
<context>
    <name>Carnet</name>
    <message>
        <source>Tip profile</source>
        <translation>Graphique du profil de la plongée</translation>
    </message>
</context>
</TS>
