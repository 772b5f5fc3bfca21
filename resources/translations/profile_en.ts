<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>Profil</name>
    <message>
        <source>Time min</source>
        <translation>Time (min)</translation>
    </message>
    <message>
        <source>Depth m</source>
        <translation>Depth (m)</translation>
    </message>
    <message>
        <source>Gas bar</source>
        <translation>Gas (bar)</translation>
    </message>
    <message>
        <source>PpO2</source>
        <translation>max ppO₂</translation>
    </message>
    <message>
        <source>Bottom gas</source>
        <translation>Bottom gas</translation>
    </message>
    <message>
        <source>Oxygen</source>
        <translation>Oxygen</translation>
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
        <translation>%.1f m at %@</translation>
    </message>
    <message>
        <source>Depth no value</source>
        <translation>No sample here</translation>
    </message>
</context>
<context>
    <name>Interface</name>
    <message>
        <source>Decompression stops</source>
        <translation>Decompression stops</translation>
    </message>
    <message>
        <source>Fast ascents</source>
        <translation>Fast ascents</translation>
    </message>
    <message>
        <source>Ceiling violations</source>
        <translation>Ceiling violations</translation>
    </message>
    <message>
        <source>Oxygen switches</source>
        <translation>Oxygen switches</translation>
    </message>
    <message>
        <source>Save Picture</source>
        <translation>Save Picture</translation>
    </message>
    <message>
        <source>Save Picture…</source>
        <translation>Save Picture…</translation>
    </message>
    <message>
        <source>Save the graph as a picture</source>
        <translation>Save the graph as a picture</translation>
    </message>
    <message>
        <source>Markers</source>
        <translation>Markers</translation>
    </message>
</context>
<context>
    <name>Carnet</name>
    <message>
        <source>Tip profile</source>
        <translation>Graph of the dive’s profile</translation>
    </message>
</context>
</TS>
