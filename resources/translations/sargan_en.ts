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
    <name>Files</name>
    <message>
        <source>Document open elsewhere</source>
        <translation>Another program has this file open, so it was left alone.</translation>
    </message>
    <message>
        <source>Document no records</source>
        <translation>Its content is not a list of records.</translation>
    </message>
    <message>
        <source>Document damaged</source>
        <translation>It is damaged at byte %@: %@.</translation>
    </message>
    <message>
        <source>Document other type</source>
        <translation>A document of the type “%@” was expected, not “%@”.</translation>
    </message>
    <message>
        <source>Document look only</source>
        <translation>This document was opened to look at only, so the file was left alone.</translation>
    </message>
    <message>
        <source>Document not the same</source>
        <translation>What would be written does not read back as this document, so nothing was written.</translation>
    </message>
    <message>
        <source>Document no export</source>
        <translation>There is no export type “%@”.</translation>
    </message>
    <message>
        <source>Document never saved</source>
        <translation>The document has never been saved.</translation>
    </message>
    <message>
        <source>Document foreign records</source>
        <translation>Its records are of the class “%@”, which is none of this program’s.</translation>
    </message>
    <message>
        <source>Read bad name</source>
        <translation>“%@” cannot be read: this name cannot be the name of a file.</translation>
    </message>
    <message>
        <source>Read directory</source>
        <translation>“%@” cannot be read: it is a folder, not a file.</translation>
    </message>
    <message>
        <source>Read failed</source>
        <translation>“%@” in “%@” cannot be read: %@.</translation>
    </message>
    <message>
        <source>Read missing</source>
        <translation>“%@” cannot be read: there is no such file in “%@”.</translation>
    </message>
    <message>
        <source>Read no permission</source>
        <translation>“%@” cannot be read: you may not read it, or not enter its folder “%@”.</translation>
    </message>
    <message>
        <source>Read not a file</source>
        <translation>“%@” cannot be read: it is a pipe or a device, not a file.</translation>
    </message>
    <message>
        <source>Read too large</source>
        <translation>“%@” cannot be read: it is too large.</translation>
    </message>
    <message>
        <source>Save backup</source>
        <translation>“%@” was not saved: its previous version could not be kept as a backup in “%@” (%@). The file on the disk is unchanged.</translation>
    </message>
    <message>
        <source>Save bad name</source>
        <translation>“%@” could not be saved: this name cannot be used for a file. Nothing was changed.</translation>
    </message>
    <message>
        <source>Save changed on disk</source>
        <translation>“%@” was not saved: the file in “%@” was changed by another program since it was read. That file is unchanged.</translation>
    </message>
    <message>
        <source>Save disk full</source>
        <translation>“%@” could not be saved: no space is left on the disk that holds “%@”. The file on the disk is unchanged.</translation>
    </message>
    <message>
        <source>Save failed</source>
        <translation>“%@” could not be saved in “%@”: %@. The file on the disk is unchanged.</translation>
    </message>
    <message>
        <source>Save flush</source>
        <translation>“%@” could not be saved: the disk that holds “%@” did not confirm the data (%@). The file on the disk is unchanged.</translation>
    </message>
    <message>
        <source>Save no folder</source>
        <translation>“%@” could not be saved: its folder “%@” cannot be found. Nothing was changed.</translation>
    </message>
    <message>
        <source>Save no permission</source>
        <translation>“%@” could not be saved: you may not write to it or to its folder “%@”. The file on the disk is unchanged.</translation>
    </message>
    <message>
        <source>Save not a file</source>
        <translation>“%@” could not be saved: what stands at this name in “%@” is not a file. Nothing was changed.</translation>
    </message>
    <message>
        <source>Save not durable</source>
        <translation>“%@” was saved in “%@”, but the disk did not confirm it (%@): the new version is in place and may be lost in a power failure.</translation>
    </message>
    <message>
        <source>Save read only</source>
        <translation>“%@” could not be saved: the disk that holds “%@” is read-only. The file on the disk is unchanged.</translation>
    </message>
    <message>
        <source>Save too large</source>
        <translation>“%@” could not be saved: it is larger than a file in “%@” may be. The file on the disk is unchanged.</translation>
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
        <translation>%d dives</translation>
    </message>
    <message>
        <source>%d records</source>
        <translation>%d records</translation>
    </message>
    <message>
        <source>%d selected</source>
        <translation>%d selected</translation>
    </message>
    <message>
        <source>&amp;Dive</source>
        <translation>&amp;Dive</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Edit</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;File</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Help</translation>
    </message>
    <message>
        <source>&amp;New logbook</source>
        <translation>&amp;New logbook</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>&amp;Open…</translation>
    </message>
    <message>
        <source>&amp;Window</source>
        <translation>&amp;Window</translation>
    </message>
    <message>
        <source>1</source>
        <translation>1</translation>
    </message>
    <message>
        <source>1 dive</source>
        <translation>1 dive</translation>
    </message>
    <message>
        <source>1 record</source>
        <translation>1 record</translation>
    </message>
    <message>
        <source>1 selected</source>
        <translation>1 selected</translation>
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
        <translation>About Sargan</translation>
    </message>
    <message>
        <source>Add dive</source>
        <translation>add dive</translation>
    </message>
    <message>
        <source>Air</source>
        <translation>Air</translation>
    </message>
    <message>
        <source>Air pressure</source>
        <translation>Air pressure</translation>
    </message>
    <message>
        <source>Algorithm</source>
        <translation>Algorithm</translation>
    </message>
    <message>
        <source>All files</source>
        <translation>All files</translation>
    </message>
    <message>
        <source>Altitude</source>
        <translation>Altitude</translation>
    </message>
    <message>
        <source>Apparatus</source>
        <translation>Apparatus</translation>
    </message>
    <message>
        <source>Bail-out tanks</source>
        <translation>Bail-out tanks</translation>
    </message>
    <message>
        <source>Boat</source>
        <translation>Boat</translation>
    </message>
    <message>
        <source>Boats</source>
        <translation>Boats</translation>
    </message>
    <message>
        <source>Buddies</source>
        <translation>Buddies</translation>
    </message>
    <message>
        <source>Budget</source>
        <translation>Budget</translation>
    </message>
    <message>
        <source>CO₂ absorbent</source>
        <translation>CO₂ absorbent</translation>
    </message>
    <message>
        <source>Choose a picture…</source>
        <translation>Choose a picture…</translation>
    </message>
    <message>
        <source>Clear Menu</source>
        <translation>Clear Menu</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Close</translation>
    </message>
    <message>
        <source>Club or centre</source>
        <translation>Club or centre</translation>
    </message>
    <message>
        <source>Clubs</source>
        <translation>Clubs</translation>
    </message>
    <message>
        <source>Coefficient</source>
        <translation>Coefficient</translation>
    </message>
    <message>
        <source>Company</source>
        <translation>Company</translation>
    </message>
    <message>
        <source>Compressor</source>
        <translation>Compressor</translation>
    </message>
    <message>
        <source>Computers</source>
        <translation>Computers</translation>
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
        <translation>Conservatism</translation>
    </message>
    <message>
        <source>Consumables</source>
        <translation>Consumables</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copy</translation>
    </message>
    <message>
        <source>Copy of</source>
        <translation>Copy of</translation>
    </message>
    <message>
        <source>Country</source>
        <translation>Country</translation>
    </message>
    <message>
        <source>Country code</source>
        <translation>Country code</translation>
    </message>
    <message>
        <source>Current</source>
        <translation>Current</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Cut</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Date</translation>
    </message>
    <message>
        <source>Decompression</source>
        <translation>Decompression</translation>
    </message>
    <message>
        <source>Decompression stages</source>
        <translation>Decompression stages</translation>
    </message>
    <message>
        <source>Delete dives</source>
        <translation>delete dives</translation>
    </message>
    <message>
        <source>Depth</source>
        <translation>Depth</translation>
    </message>
    <message>
        <source>Depth &amp; deco</source>
        <translation>Depth &amp; deco</translation>
    </message>
    <message>
        <source>Depth (m)</source>
        <translation>Depth (m)</translation>
    </message>
    <message>
        <source>Depth and time</source>
        <translation>Depth and time</translation>
    </message>
    <message>
        <source>Difficulty</source>
        <translation>Difficulty</translation>
    </message>
    <message>
        <source>Dive</source>
        <translation>Dive</translation>
    </message>
    <message>
        <source>Dive %d</source>
        <translation>Dive %d</translation>
    </message>
    <message>
        <source>Dive bag</source>
        <translation>Dive bag</translation>
    </message>
    <message>
        <source>Dive computer</source>
        <translation>Dive computer</translation>
    </message>
    <message>
        <source>Dive time</source>
        <translation>Dive time</translation>
    </message>
    <message>
        <source>Documents</source>
        <translation>Documents</translation>
    </message>
    <message>
        <source>Documents file</source>
        <translation>Documents file</translation>
    </message>
    <message>
        <source>Don’t save</source>
        <translation>Don’t save</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Duration</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Edit</translation>
    </message>
    <message>
        <source>Edit dive</source>
        <translation>edit dive</translation>
    </message>
    <message>
        <source>Edit the dive</source>
        <translation>Edit the dive</translation>
    </message>
    <message>
        <source>End</source>
        <translation>End</translation>
    </message>
    <message>
        <source>End (bar)</source>
        <translation>End (bar)</translation>
    </message>
    <message>
        <source>Equipment</source>
        <translation>Equipment</translation>
    </message>
    <message>
        <source>Find dives that contain the text</source>
        <translation>Find dives that contain the text</translation>
    </message>
    <message>
        <source>Find in: %@</source>
        <translation>Find in: %@</translation>
    </message>
    <message>
        <source>Find…</source>
        <translation>Find…</translation>
    </message>
    <message>
        <source>Firms</source>
        <translation>Firms</translation>
    </message>
    <message>
        <source>Flow</source>
        <translation>Flow</translation>
    </message>
    <message>
        <source>Gas</source>
        <translation>Gas</translation>
    </message>
    <message>
        <source>Gas &amp; tanks</source>
        <translation>Gas &amp; tanks</translation>
    </message>
    <message>
        <source>General</source>
        <translation>General</translation>
    </message>
    <message>
        <source>Give up the changes in “%@” and read the file again?</source>
        <translation>Give up the changes in “%@” and read the file again?</translation>
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
        <translation>Heliox</translation>
    </message>
    <message>
        <source>High gradient factor</source>
        <translation>High gradient factor</translation>
    </message>
    <message>
        <source>Load</source>
        <translation>Load</translation>
    </message>
    <message>
        <source>Loading…</source>
        <translation>Loading…</translation>
    </message>
    <message>
        <source>Logbook</source>
        <translation>Logbook</translation>
    </message>
    <message>
        <source>Look at only</source>
        <translation>Look at only</translation>
    </message>
    <message>
        <source>Low gradient factor</source>
        <translation>Low gradient factor</translation>
    </message>
    <message>
        <source>Low set-point</source>
        <translation>Low set-point</translation>
    </message>
    <message>
        <source>Main tank</source>
        <translation>Main tank</translation>
    </message>
    <message>
        <source>Maker</source>
        <translation>Maker</translation>
    </message>
    <message>
        <source>Map datum</source>
        <translation>Map datum</translation>
    </message>
    <message>
        <source>Mark</source>
        <translation>Mark</translation>
    </message>
    <message>
        <source>Material</source>
        <translation>Material</translation>
    </message>
    <message>
        <source>Maximum depth</source>
        <translation>Maximum depth</translation>
    </message>
    <message>
        <source>Method</source>
        <translation>Method</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Model</translation>
    </message>
    <message>
        <source>New</source>
        <translation>New</translation>
    </message>
    <message>
        <source>New Document</source>
        <translation>New Document</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Next</translation>
    </message>
    <message>
        <source>Next dive</source>
        <translation>Next dive</translation>
    </message>
    <message>
        <source>Night dive</source>
        <translation>Night dive</translation>
    </message>
    <message>
        <source>Nitrox</source>
        <translation>Nitrox</translation>
    </message>
    <message>
        <source>No dive selected</source>
        <translation>No dive selected</translation>
    </message>
    <message>
        <source>No.</source>
        <translation>No.</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Notes</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Number</translation>
    </message>
    <message>
        <source>Number of the &amp;first dive:</source>
        <translation>Number of the &amp;first dive:</translation>
    </message>
    <message>
        <source>N₂</source>
        <translation>N₂</translation>
    </message>
    <message>
        <source>One sample every</source>
        <translation>One sample every</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Open</translation>
    </message>
    <message>
        <source>Open Recent</source>
        <translation>Open Recent</translation>
    </message>
    <message>
        <source>Open to look at only: changes are not possible here.</source>
        <translation>Open to look at only: changes are not possible here.</translation>
    </message>
    <message>
        <source>Open…</source>
        <translation>Open…</translation>
    </message>
    <message>
        <source>Overwrite</source>
        <translation>Overwrite</translation>
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
        <translation>Paste</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Pictures</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Place</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Position</translation>
    </message>
    <message>
        <source>Previous</source>
        <translation>Previous</translation>
    </message>
    <message>
        <source>Previous dive</source>
        <translation>Previous dive</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Quit</translation>
    </message>
    <message>
        <source>Rated for</source>
        <translation>Rated for</translation>
    </message>
    <message>
        <source>Rebreather</source>
        <translation>Rebreather</translation>
    </message>
    <message>
        <source>Record-keeping for divers: logbook, registers and calculators.</source>
        <translation>Record-keeping for divers: logbook, registers and calculators.</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Redo</translation>
    </message>
    <message>
        <source>Redo: %@</source>
        <translation>Redo: %@</translation>
    </message>
    <message>
        <source>Reminder note</source>
        <translation>Reminder note</translation>
    </message>
    <message>
        <source>Renumber</source>
        <translation>Renumber</translation>
    </message>
    <message>
        <source>Renumber dives</source>
        <translation>Renumber dives</translation>
    </message>
    <message>
        <source>Renumber…</source>
        <translation>Renumber…</translation>
    </message>
    <message>
        <source>Revert</source>
        <translation>Revert</translation>
    </message>
    <message>
        <source>Revert…</source>
        <translation>Revert…</translation>
    </message>
    <message>
        <source>Run time</source>
        <translation>Run time</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Save</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>Save As</translation>
    </message>
    <message>
        <source>Save As…</source>
        <translation>Save As…</translation>
    </message>
    <message>
        <source>Save the changes in “%@”?</source>
        <translation>Save the changes in “%@”?</translation>
    </message>
    <message>
        <source>Second tank</source>
        <translation>Second tank</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Select All</translation>
    </message>
    <message>
        <source>Serial number</source>
        <translation>Serial number</translation>
    </message>
    <message>
        <source>Set-point</source>
        <translation>Set-point</translation>
    </message>
    <message>
        <source>Show when the program starts</source>
        <translation>Show when the program starts</translation>
    </message>
    <message>
        <source>Site</source>
        <translation>Site</translation>
    </message>
    <message>
        <source>Sky</source>
        <translation>Sky</translation>
    </message>
    <message>
        <source>Software</source>
        <translation>Software</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Start</translation>
    </message>
    <message>
        <source>Start (bar)</source>
        <translation>Start (bar)</translation>
    </message>
    <message>
        <source>State</source>
        <translation>State</translation>
    </message>
    <message>
        <source>Store</source>
        <translation>Store</translation>
    </message>
    <message>
        <source>Store the form in the logbook</source>
        <translation>Store the form in the logbook</translation>
    </message>
    <message>
        <source>Suit</source>
        <translation>Suit</translation>
    </message>
    <message>
        <source>Surface interval</source>
        <translation>Surface interval</translation>
    </message>
    <message>
        <source>The dives are numbered on from it in the order of the table.</source>
        <translation>The dives are numbered on from it in the order of the table.</translation>
    </message>
    <message>
        <source>This picture cannot be shown</source>
        <translation>This picture cannot be shown</translation>
    </message>
    <message>
        <source>Tide</source>
        <translation>Tide</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Time</translation>
    </message>
    <message>
        <source>Time (min)</source>
        <translation>Time (min)</translation>
    </message>
    <message>
        <source>Time in</source>
        <translation>Time in</translation>
    </message>
    <message>
        <source>Time to surface</source>
        <translation>Time to surface</translation>
    </message>
    <message>
        <source>Toolbar</source>
        <translation>Toolbar</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Undo</translation>
    </message>
    <message>
        <source>Undo: %@</source>
        <translation>Undo: %@</translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation>Untitled</translation>
    </message>
    <message>
        <source>Visibility</source>
        <translation>Visibility</translation>
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
        <translation>Water</translation>
    </message>
    <message>
        <source>Weather</source>
        <translation>Weather</translation>
    </message>
    <message>
        <source>Weight</source>
        <translation>Weight</translation>
    </message>
    <message>
        <source>What you want to be reminded of</source>
        <translation>What you want to be reminded of</translation>
    </message>
    <message>
        <source>Wind force</source>
        <translation>Wind force</translation>
    </message>
    <message>
        <source>Wind from</source>
        <translation>Wind from</translation>
    </message>
    <message>
        <source>Work on a copy</source>
        <translation>Work on a copy</translation>
    </message>
    <message>
        <source>Worn</source>
        <translation>Worn</translation>
    </message>
    <message>
        <source>Wrecks</source>
        <translation>Wrecks</translation>
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
        <translation>“%@” is open in another window, so it was not replaced.</translation>
    </message>
    <message>
        <source>“%@” was changed by another program since it was opened. Overwrite that version, or save under another name?</source>
        <translation>“%@” was changed by another program since it was opened. Overwrite that version, or save under another name?</translation>
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
