<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>Main</name>
    <message>
        <source>Add item to ComboBox</source>
        <translation>Add “%@” to the list?</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Yes</translation>
    </message>
    <message>
        <source>No</source>
        <translation>No</translation>
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
        <translation>ppO₂ %.2f bar, CNS %.1f %%</translation>
    </message>
    <message>
        <source>Dive number profile datas title</source>
        <translation>Dive %d – profile data</translation>
    </message>
    <message>
        <source>Datas</source>
        <translation>%d values</translation>
    </message>
    <message>
        <source>No datas</source>
        <translation>No data</translation>
    </message>
    <message>
        <source>Profile datas</source>
        <translation>Profile data</translation>
    </message>
    <message>
        <source>Tip profile datas</source>
        <translation>The profile’s samples as text</translation>
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
        <translation>Exceptional</translation>
    </message>
    <message>
        <source>TableView excellent</source>
        <translation>Excellent</translation>
    </message>
    <message>
        <source>TableView very good</source>
        <translation>Very good</translation>
    </message>
    <message>
        <source>TableView good</source>
        <translation>Good</translation>
    </message>
    <message>
        <source>TableView medium</source>
        <translation>Medium</translation>
    </message>
    <message>
        <source>TableView bad</source>
        <translation>Bad</translation>
    </message>
    <message>
        <source>TableView very bad</source>
        <translation>Very bad</translation>
    </message>
    <message>
        <source>TableView execrable</source>
        <translation>Execrable</translation>
    </message>
    <message>
        <source>TableView high tide</source>
        <translation>%d high tide</translation>
    </message>
    <message>
        <source>TableView low tide</source>
        <translation>%d low tide</translation>
    </message>
    <message>
        <source>TableView high tide only</source>
        <translation>High tide</translation>
    </message>
    <message>
        <source>TableView low tide only</source>
        <translation>Low tide</translation>
    </message>
    <message>
        <source>OC</source>
        <translation>OC</translation>
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
        <translation>Heliox %@</translation>
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
        <translation>Stops</translation>
    </message>
    <message>
        <source>Fast ascent</source>
        <translation>Fast ascent</translation>
    </message>
    <message>
        <source>Ceiling</source>
        <translation>Ceiling</translation>
    </message>
    <message>
        <source>Surface</source>
        <translation>Surface</translation>
    </message>
    <message>
        <source>Gas switches</source>
        <translation>Gas switches</translation>
    </message>
    <message>
        <source>Pressure (bar)</source>
        <translation>Pressure (bar)</translation>
    </message>
    <message>
        <source>Fav.</source>
        <translation>Fav.</translation>
    </message>
    <message>
        <source>Sort dives</source>
        <translation>sort dives</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Replace</translation>
    </message>
    <message>
        <source>Replace all seven</source>
        <translation>Replace all seven</translation>
    </message>
    <message>
        <source>Put into the dive</source>
        <translation>Put into the dive</translation>
    </message>
    <message>
        <source>Put the lists that are marked into the dive?</source>
        <translation>Put the lists that are marked into the dive?</translation>
    </message>
    <message>
        <source>Sample %d: %@, %.1f m</source>
        <translation>Sample %d: %@, %.1f m</translation>
    </message>
    <message>
        <source>Used</source>
        <translation>Used</translation>
    </message>
    <message>
        <source>Oxygen</source>
        <translation>Oxygen</translation>
    </message>
</context>
</TS>
