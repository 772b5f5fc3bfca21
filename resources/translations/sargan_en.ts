<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
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
        <translation>Bad</translation>
    </message>
    <message>
        <source>Biology</source>
        <translation>Biology</translation>
    </message>
    <message>
        <source>Carbon</source>
        <translation>Carbon</translation>
    </message>
    <message>
        <source>Cave</source>
        <translation>Cave</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Clear</translation>
    </message>
    <message>
        <source>Cloudy</source>
        <translation>Cloudy</translation>
    </message>
    <message>
        <source>Drift</source>
        <translation>Drift</translation>
    </message>
    <message>
        <source>Dry suit</source>
        <translation>Dry suit</translation>
    </message>
    <message>
        <source>ED50</source>
        <translation>ED50</translation>
    </message>
    <message>
        <source>East</source>
        <translation>East</translation>
    </message>
    <message>
        <source>Easy</source>
        <translation>Easy</translation>
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
        <translation>Excellent</translation>
    </message>
    <message>
        <source>Exceptional</source>
        <translation>Exceptional</translation>
    </message>
    <message>
        <source>Execrable</source>
        <translation>Execrable</translation>
    </message>
    <message>
        <source>Extreme</source>
        <translation>Extreme</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>Find</translation>
    </message>
    <message>
        <source>Foggy</source>
        <translation>Foggy</translation>
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
        <translation>%d dives found</translation>
    </message>
    <message>
        <source>GPS template</source>
        <translation>N __° __.___'  E ___° __.___'</translation>
    </message>
    <message>
        <source>Good</source>
        <translation>Good</translation>
    </message>
    <message>
        <source>Hail</source>
        <translation>Hail</translation>
    </message>
    <message>
        <source>Hard</source>
        <translation>Hard</translation>
    </message>
    <message>
        <source>Heliair</source>
        <translation>Heliair</translation>
    </message>
    <message>
        <source>Heliox</source>
        <translation>Heliox</translation>
    </message>
    <message>
        <source>Helitrox</source>
        <translation>Helitrox</translation>
    </message>
    <message>
        <source>Helium percent</source>
        <translation>The helium percentage was out of range and has been set to 0.</translation>
    </message>
    <message>
        <source>High tide</source>
        <translation>High tide</translation>
    </message>
    <message>
        <source>Low tide</source>
        <translation>Low tide</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>Medium</translation>
    </message>
    <message>
        <source>Moderate</source>
        <translation>Moderate</translation>
    </message>
    <message>
        <source>Movies</source>
        <translation>Video</translation>
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
        <translation>Recreational</translation>
    </message>
    <message>
        <source>No suit</source>
        <translation>No suit</translation>
    </message>
    <message>
        <source>None</source>
        <translation>None</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>North</source>
        <translation>North</translation>
    </message>
    <message>
        <source>North-east</source>
        <translation>North-east</translation>
    </message>
    <message>
        <source>North-west</source>
        <translation>North-west</translation>
    </message>
    <message>
        <source>One dive found</source>
        <translation>One dive found</translation>
    </message>
    <message>
        <source>Open circuit</source>
        <translation>Open circuit</translation>
    </message>
    <message>
        <source>Ordinary dive</source>
        <translation>—</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>Other</translation>
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
        <translation>Check the pressures: the end pressure is above the start pressure, or one of them is negative.</translation>
    </message>
    <message>
        <source>Profile</source>
        <translation>Profile</translation>
    </message>
    <message>
        <source>Quarry</source>
        <translation>Quarry</translation>
    </message>
    <message>
        <source>Rainy</source>
        <translation>Rainy</translation>
    </message>
    <message>
        <source>Recreational</source>
        <translation>Recreational</translation>
    </message>
    <message>
        <source>Recuperation</source>
        <translation>Salvage</translation>
    </message>
    <message>
        <source>SCR</source>
        <translation>SCR</translation>
    </message>
    <message>
        <source>Semi-dry suit</source>
        <translation>Semi-dry suit</translation>
    </message>
    <message>
        <source>Shorty</source>
        <translation>Shorty</translation>
    </message>
    <message>
        <source>Snowy</source>
        <translation>Snowy</translation>
    </message>
    <message>
        <source>South</source>
        <translation>South</translation>
    </message>
    <message>
        <source>South-east</source>
        <translation>South-east</translation>
    </message>
    <message>
        <source>South-west</source>
        <translation>South-west</translation>
    </message>
    <message>
        <source>Steel</source>
        <translation>Steel</translation>
    </message>
    <message>
        <source>Strong</source>
        <translation>Strong</translation>
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
        <translation>Air tables</translation>
    </message>
    <message>
        <source>TableView computer</source>
        <translation>Computer</translation>
    </message>
    <message>
        <source>TableView nitrox tables</source>
        <translation>Nitrox tables</translation>
    </message>
    <message>
        <source>Tek</source>
        <translation>Technical</translation>
    </message>
    <message>
        <source>Tek configuration</source>
        <translation>Technical</translation>
    </message>
    <message>
        <source>Thundery</source>
        <translation>Thundery</translation>
    </message>
    <message>
        <source>Tide unknown</source>
        <translation>…</translation>
    </message>
    <message>
        <source>Tip add</source>
        <translation>Add a dive</translation>
    </message>
    <message>
        <source>Tip delete</source>
        <translation>Delete the selected dives</translation>
    </message>
    <message>
        <source>Tip erase</source>
        <translation>Erase the form</translation>
    </message>
    <message>
        <source>Training</source>
        <translation>Training</translation>
    </message>
    <message>
        <source>Trimix</source>
        <translation>Trimix</translation>
    </message>
    <message>
        <source>Tropical suit</source>
        <translation>Tropical suit</translation>
    </message>
    <message>
        <source>Under ice</source>
        <translation>Under ice</translation>
    </message>
    <message>
        <source>Unforgettable dive</source>
        <translation>Unforgettable</translation>
    </message>
    <message>
        <source>Very bad</source>
        <translation>Very bad</translation>
    </message>
    <message>
        <source>Very easy</source>
        <translation>Very easy</translation>
    </message>
    <message>
        <source>Very good</source>
        <translation>Very good</translation>
    </message>
    <message>
        <source>Very hard</source>
        <translation>Very hard</translation>
    </message>
    <message>
        <source>Very strong</source>
        <translation>Very strong</translation>
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
        <translation>Weak</translation>
    </message>
    <message>
        <source>West</source>
        <translation>West</translation>
    </message>
    <message>
        <source>Wet suit</source>
        <translation>Wet suit</translation>
    </message>
    <message>
        <source>Work</source>
        <translation>Work</translation>
    </message>
    <message>
        <source>Wreck</source>
        <translation>Wreck</translation>
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
        <translation>Copy of</translation>
    </message>
    <message>
        <source>Look at only</source>
        <translation>Look at only</translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation>Untitled</translation>
    </message>
    <message>
        <source>Work on a copy</source>
        <translation>Work on a copy</translation>
    </message>
</context>
<context>
    <name>Main</name>
    <message>
        <source>Add</source>
        <translation>Add</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>Carnet de plongee</source>
        <translation>Carnet de plongee</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Delete</translation>
    </message>
    <message>
        <source>Divers documents</source>
        <translation>Divers documents</translation>
    </message>
    <message>
        <source>Document open elsewhere</source>
        <translation>“%@” is open in another program. Open it to look at only, or work on a copy?</translation>
    </message>
    <message>
        <source>Erase</source>
        <translation>Erase</translation>
    </message>
    <message>
        <source>Erase dive</source>
        <translation>Erase the selected dives?</translation>
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
        <translation>Synthesis</translation>
    </message>
</context>
</TS>
