<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
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
        <translation>Entries: %d</translation>
    </message>
</context>
<context>
    <name>Interface</name>
    <message>
        <source>&amp;Settings</source>
        <translation>&amp;Settings</translation>
    </message>
    <message>
        <source>Activities of firms</source>
        <translation>Activities of firms</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Appearance</translation>
    </message>
    <message>
        <source>Area below the line</source>
        <translation>Area below the line</translation>
    </message>
    <message>
        <source>As the system</source>
        <translation>As the system</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Background</translation>
    </message>
    <message>
        <source>Below</source>
        <translation>Below</translation>
    </message>
    <message>
        <source>Breathing gas</source>
        <translation>Breathing gas</translation>
    </message>
    <message>
        <source>Causes of sinking</source>
        <translation>Causes of sinking</translation>
    </message>
    <message>
        <source>Clubs and dive centres</source>
        <translation>Clubs and dive centres</translation>
    </message>
    <message>
        <source>Cold water</source>
        <translation>Cold water</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>Colour</translation>
    </message>
    <message>
        <source>Colour of depths</source>
        <translation>Colour of depths</translation>
    </message>
    <message>
        <source>Colour of durations</source>
        <translation>Colour of durations</translation>
    </message>
    <message>
        <source>Columns of the logbook</source>
        <translation>Columns of the logbook</translation>
    </message>
    <message>
        <source>Countries</source>
        <translation>Countries</translation>
    </message>
    <message>
        <source>Country codes</source>
        <translation>Country codes</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Dark</translation>
    </message>
    <message>
        <source>Dashed lines</source>
        <translation>Dashed lines</translation>
    </message>
    <message>
        <source>Distance between stops</source>
        <translation>Distance between stops</translation>
    </message>
    <message>
        <source>Dive computers</source>
        <translation>Dive computers</translation>
    </message>
    <message>
        <source>Dive depth</source>
        <translation>Dive depth</translation>
    </message>
    <message>
        <source>Dive sites</source>
        <translation>Dive sites</translation>
    </message>
    <message>
        <source>Dives abroad</source>
        <translation>Dives abroad</translation>
    </message>
    <message>
        <source>Dives that stand out</source>
        <translation>Dives that stand out</translation>
    </message>
    <message>
        <source>English</source>
        <translation>English</translation>
    </message>
    <message>
        <source>Equipment types</source>
        <translation>Equipment types</translation>
    </message>
    <message>
        <source>Feet and degrees Fahrenheit</source>
        <translation>Feet and degrees Fahrenheit</translation>
    </message>
    <message>
        <source>Filled</source>
        <translation>Filled</translation>
    </message>
    <message>
        <source>First values into all panes; nothing is stored before you save</source>
        <translation>First values into all panes; nothing is stored before you save</translation>
    </message>
    <message>
        <source>Français</source>
        <translation>Français</translation>
    </message>
    <message>
        <source>Gradient</source>
        <translation>Gradient</translation>
    </message>
    <message>
        <source>Gradient factors</source>
        <translation>Gradient factors</translation>
    </message>
    <message>
        <source>Grid</source>
        <translation>Grid</translation>
    </message>
    <message>
        <source>High</source>
        <translation>High</translation>
    </message>
    <message>
        <source>Home country code</source>
        <translation>Home country code</translation>
    </message>
    <message>
        <source>In colour</source>
        <translation>In colour</translation>
    </message>
    <message>
        <source>In the column</source>
        <translation>In the column</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Language</translation>
    </message>
    <message>
        <source>Life of a cell</source>
        <translation>Life of a cell</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Light</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Line</translation>
    </message>
    <message>
        <source>Line colour</source>
        <translation>Line colour</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>Low</translation>
    </message>
    <message>
        <source>Makers</source>
        <translation>Makers</translation>
    </message>
    <message>
        <source>Mixes in colour</source>
        <translation>Mixes in colour</translation>
    </message>
    <message>
        <source>New dives</source>
        <translation>New dives</translation>
    </message>
    <message>
        <source>New entry</source>
        <translation>New entry</translation>
    </message>
    <message>
        <source>Not saved yet</source>
        <translation>Not saved yet</translation>
    </message>
    <message>
        <source>Opacity, 0 to 1</source>
        <translation>Opacity, 0 to 1</translation>
    </message>
    <message>
        <source>Oxygen cells</source>
        <translation>Oxygen cells</translation>
    </message>
    <message>
        <source>Pick lists</source>
        <translation>Pick lists</translation>
    </message>
    <message>
        <source>Places</source>
        <translation>Places</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>Preferences</translation>
    </message>
    <message>
        <source>Preferences…</source>
        <translation>Preferences…</translation>
    </message>
    <message>
        <source>Program</source>
        <translation>Program</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Reset</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>Saved</translation>
    </message>
    <message>
        <source>Services</source>
        <translation>Services</translation>
    </message>
    <message>
        <source>Shops</source>
        <translation>Shops</translation>
    </message>
    <message>
        <source>Small ticks of depth</source>
        <translation>Small ticks of depth</translation>
    </message>
    <message>
        <source>Small ticks of time</source>
        <translation>Small ticks of time</translation>
    </message>
    <message>
        <source>Tank makers</source>
        <translation>Tank makers</translation>
    </message>
    <message>
        <source>Tank pressure</source>
        <translation>Tank pressure</translation>
    </message>
    <message>
        <source>Tank volume</source>
        <translation>Tank volume</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Text in colour</source>
        <translation>Text in colour</translation>
    </message>
    <message>
        <source>Units</source>
        <translation>Units</translation>
    </message>
    <message>
        <source>Units behind the values in tables</source>
        <translation>Units behind the values in tables</translation>
    </message>
    <message>
        <source>Water temperature</source>
        <translation>Water temperature</translation>
    </message>
    <message>
        <source>Wreck types</source>
        <translation>Wreck types</translation>
    </message>
    <message>
        <source>months</source>
        <translation>months</translation>
    </message>
    <message>
        <source>ppO2 line</source>
        <translation>ppO2 line</translation>
    </message>
</context>
<context>
    <name>Main</name>
    <message>
        <source>Deco</source>
        <translation>Deco</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Display</translation>
    </message>
    <message>
        <source>Erase selection</source>
        <translation>Delete the selected entries?</translation>
    </message>
    <message>
        <source>General</source>
        <translation>General</translation>
    </message>
    <message>
        <source>Logbook</source>
        <translation>Logbook</translation>
    </message>
    <message>
        <source>Profile</source>
        <translation>Profile</translation>
    </message>
</context>
</TS>
