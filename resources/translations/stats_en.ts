<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
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
        <translation>Planned run</translation>
    </message>
    <message>
        <source>(...)</source>
        <translation>(...)</translation>
    </message>
    <message>
        <source>(Basse mer)</source>
        <translation>(low tide)</translation>
    </message>
    <message>
        <source>(Pleine mer)</source>
        <translation>(high tide)</translation>
    </message>
    <message>
        <source>Air tables</source>
        <translation>Air tables</translation>
    </message>
    <message>
        <source>Air temperature</source>
        <translation>Air temperature</translation>
    </message>
    <message>
        <source>Altitude</source>
        <translation>Altitude</translation>
    </message>
    <message>
        <source>At</source>
        <translation>at</translation>
    </message>
    <message>
        <source>Available gas</source>
        <translation>Gas available</translation>
    </message>
    <message>
        <source>Bail-out :</source>
        <translation>Bail-out :</translation>
    </message>
    <message>
        <source>Boat</source>
        <translation>Boat</translation>
    </message>
    <message>
        <source>Breathed gas</source>
        <translation>Gas breathed</translation>
    </message>
    <message>
        <source>Buddies</source>
        <translation>Buddies</translation>
    </message>
    <message>
        <source>CCR rebreather</source>
        <translation>closed-circuit rebreather</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>Computer</translation>
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
        <translation>Current</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Date</translation>
    </message>
    <message>
        <source>Deco algorythm type</source>
        <translation>Algorithm</translation>
    </message>
    <message>
        <source>Deco conservatism</source>
        <translation>Conservatism</translation>
    </message>
    <message>
        <source>Deco soft name</source>
        <translation>Planning software</translation>
    </message>
    <message>
        <source>Decompression</source>
        <translation>Decompression</translation>
    </message>
    <message>
        <source>Depth</source>
        <translation>Depth</translation>
    </message>
    <message>
        <source>Detail runtime</source>
        <translation>Run time</translation>
    </message>
    <message>
        <source>Difficulty level</source>
        <translation>Difficulty</translation>
    </message>
    <message>
        <source>Diluent</source>
        <translation>Diluent</translation>
    </message>
    <message>
        <source>Dive number</source>
        <translation>Dive number</translation>
    </message>
    <message>
        <source>Dive type</source>
        <translation>Dive type</translation>
    </message>
    <message>
        <source>End pressure</source>
        <translation>End pressure</translation>
    </message>
    <message>
        <source>End time</source>
        <translation>End</translation>
    </message>
    <message>
        <source>Equipment</source>
        <translation>Equipment</translation>
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
        <source>General</source>
        <translation>General</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Place</translation>
    </message>
    <message>
        <source>Night</source>
        <translation>Night</translation>
    </message>
    <message>
        <source>Nitrox tables</source>
        <translation>Nitrox tables</translation>
    </message>
    <message>
        <source>No wind</source>
        <translation>no wind</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Notes</translation>
    </message>
    <message>
        <source>Oxygen</source>
        <translation>Oxygen</translation>
    </message>
    <message>
        <source>Oxygen gas</source>
        <translation>Oxygen</translation>
    </message>
    <message>
        <source>PAtm</source>
        <translation>Atmospheric pressure</translation>
    </message>
    <message>
        <source>Parameters</source>
        <translation>Parameters</translation>
    </message>
    <message>
        <source>Pays</source>
        <translation>Country</translation>
    </message>
    <message>
        <source>Ponies</source>
        <translation>Decompression tanks</translation>
    </message>
    <message>
        <source>SCR rebreather</source>
        <translation>semi-closed rebreather</translation>
    </message>
    <message>
        <source>Scaphander</source>
        <translation>Apparatus</translation>
    </message>
    <message>
        <source>Site</source>
        <translation>Site</translation>
    </message>
    <message>
        <source>Start pressure</source>
        <translation>Start pressure</translation>
    </message>
    <message>
        <source>Start time</source>
        <translation>Start</translation>
    </message>
    <message>
        <source>Statistics</source>
        <translation>Statistics</translation>
    </message>
    <message>
        <source>Statistics air</source>
        <translation>
   Air :	</translation>
    </message>
    <message>
        <source>Statistics bio</source>
        <translation>
   Biology :	</translation>
    </message>
    <message>
        <source>Statistics cave</source>
        <translation>
   Cave :	</translation>
    </message>
    <message>
        <source>Statistics current</source>
        <translation>

This logbook</translation>
    </message>
    <message>
        <source>Statistics depth</source>
        <translation>

Depths</translation>
    </message>
    <message>
        <source>Statistics dive type</source>
        <translation>

Activities</translation>
    </message>
    <message>
        <source>Statistics drift</source>
        <translation>
   Drift :	</translation>
    </message>
    <message>
        <source>Statistics gas</source>
        <translation>

Gases</translation>
    </message>
    <message>
        <source>Statistics header</source>
        <translation>Logbook statistics</translation>
    </message>
    <message>
        <source>Statistics heliox</source>
        <translation>
   Heliox :	</translation>
    </message>
    <message>
        <source>Statistics ice</source>
        <translation>
   Under ice :	</translation>
    </message>
    <message>
        <source>Statistics min max</source>
        <translation>

Minima, maxima, totals</translation>
    </message>
    <message>
        <source>Statistics night</source>
        <translation>
   Night :	</translation>
    </message>
    <message>
        <source>Statistics nitrox</source>
        <translation>
   Nitrox :	</translation>
    </message>
    <message>
        <source>Statistics no prev dives</source>
        <translation>
(without the dives made before this logbook)</translation>
    </message>
    <message>
        <source>Statistics other</source>
        <translation>
   Other :	</translation>
    </message>
    <message>
        <source>Statistics photo</source>
        <translation>
   Photo :	</translation>
    </message>
    <message>
        <source>Statistics prof max</source>
        <translation>
   Deepest dive :	</translation>
    </message>
    <message>
        <source>Statistics prof moy</source>
        <translation>
   Mean depth :	</translation>
    </message>
    <message>
        <source>Statistics prof_1</source>
        <translation>
   0 to 9 m :	</translation>
    </message>
    <message>
        <source>Statistics prof_2</source>
        <translation>
   10 to 19 m :	</translation>
    </message>
    <message>
        <source>Statistics prof_3</source>
        <translation>
   20 to 29 m :	</translation>
    </message>
    <message>
        <source>Statistics prof_4</source>
        <translation>
   30 to 39 m :	</translation>
    </message>
    <message>
        <source>Statistics prof_5</source>
        <translation>
   40 to 49 m :	</translation>
    </message>
    <message>
        <source>Statistics prof_6</source>
        <translation>
   50 to 59 m :	</translation>
    </message>
    <message>
        <source>Statistics prof_7</source>
        <translation>
   60 m and more :	</translation>
    </message>
    <message>
        <source>Statistics quarry</source>
        <translation>
   Quarry :	</translation>
    </message>
    <message>
        <source>Statistics recreational</source>
        <translation>
   Recreational :	</translation>
    </message>
    <message>
        <source>Statistics recuperation</source>
        <translation>
   Salvage :	</translation>
    </message>
    <message>
        <source>Statistics somme prof</source>
        <translation>
   Total depth :	</translation>
    </message>
    <message>
        <source>Statistics somme temps</source>
        <translation>
   Total time :	</translation>
    </message>
    <message>
        <source>Statistics tek</source>
        <translation>
   Technical :	</translation>
    </message>
    <message>
        <source>Statistics temp max</source>
        <translation>
   Warmest water :	</translation>
    </message>
    <message>
        <source>Statistics temp min</source>
        <translation>
   Coldest water :	</translation>
    </message>
    <message>
        <source>Statistics temp moy</source>
        <translation>
   Mean water temperature :	</translation>
    </message>
    <message>
        <source>Statistics temps max</source>
        <translation>
   Longest dive :	</translation>
    </message>
    <message>
        <source>Statistics temps moy</source>
        <translation>
   Mean time :	</translation>
    </message>
    <message>
        <source>Statistics training</source>
        <translation>
   Training :	</translation>
    </message>
    <message>
        <source>Statistics trimix</source>
        <translation>
   Trimix :	</translation>
    </message>
    <message>
        <source>Statistics video</source>
        <translation>
   Video :	</translation>
    </message>
    <message>
        <source>Statistics work</source>
        <translation>
   Work :	</translation>
    </message>
    <message>
        <source>Statistics wrecks</source>
        <translation>
   Wrecks :	</translation>
    </message>
    <message>
        <source>Structure</source>
        <translation>Club</translation>
    </message>
    <message>
        <source>Surface</source>
        <translation>Surface interval</translation>
    </message>
    <message>
        <source>TTS</source>
        <translation>Time to surface</translation>
    </message>
    <message>
        <source>Tank pressure</source>
        <translation>Capacity</translation>
    </message>
    <message>
        <source>Tank_1</source>
        <translation>First tank</translation>
    </message>
    <message>
        <source>Tank_2</source>
        <translation>Second tank</translation>
    </message>
    <message>
        <source>Tide coefficient</source>
        <translation>Tide coefficient</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Time</translation>
    </message>
    <message>
        <source>Tip statistics</source>
        <translation>The statistics of this logbook</translation>
    </message>
    <message>
        <source>Tip synthesis card</source>
        <translation>A report of the dives to read and print</translation>
    </message>
    <message>
        <source>Total dives</source>
        <translation>Total dives: %d</translation>
    </message>
    <message>
        <source>Used gas</source>
        <translation>Gas used</translation>
    </message>
    <message>
        <source>Used pressure</source>
        <translation>Pressure used</translation>
    </message>
    <message>
        <source>Visibility</source>
        <translation>Visibility</translation>
    </message>
    <message>
        <source>Water temperature</source>
        <translation>Water temperature</translation>
    </message>
    <message>
        <source>Weather</source>
        <translation>Weather</translation>
    </message>
    <message>
        <source>Weight</source>
        <translation>Ballast</translation>
    </message>
    <message>
        <source>Wind</source>
        <translation>Wind</translation>
    </message>
    <message>
        <source>Wind force</source>
        <translation>force</translation>
    </message>
    <message>
        <source>Wind sector</source>
        <translation>sector</translation>
    </message>
    <message>
        <source>Wrecks</source>
        <translation>Wrecks</translation>
    </message>
</context>
<context>
    <name>Interface</name>
    <message>
        <source>0 to 9 m</source>
        <translation>0 to 9 m</translation>
    </message>
    <message>
        <source>10 to 19 m</source>
        <translation>10 to 19 m</translation>
    </message>
    <message>
        <source>20 to 29 m</source>
        <translation>20 to 29 m</translation>
    </message>
    <message>
        <source>30 to 39 m</source>
        <translation>30 to 39 m</translation>
    </message>
    <message>
        <source>40 to 49 m</source>
        <translation>40 to 49 m</translation>
    </message>
    <message>
        <source>50 to 59 m</source>
        <translation>50 to 59 m</translation>
    </message>
    <message>
        <source>60 m and more</source>
        <translation>60 m and more</translation>
    </message>
    <message>
        <source>Activities</source>
        <translation>Activities</translation>
    </message>
    <message>
        <source>All dives</source>
        <translation>All dives</translation>
    </message>
    <message>
        <source>Closed circuit</source>
        <translation>Closed circuit</translation>
    </message>
    <message>
        <source>Coldest water</source>
        <translation>Coldest water</translation>
    </message>
    <message>
        <source>Deepest dive</source>
        <translation>Deepest dive</translation>
    </message>
    <message>
        <source>Depths</source>
        <translation>Depths</translation>
    </message>
    <message>
        <source>Depths and gases as bars</source>
        <translation>Depths and gases as bars</translation>
    </message>
    <message>
        <source>Dives</source>
        <translation>Dives</translation>
    </message>
    <message>
        <source>Dives to report on</source>
        <translation>Dives to report on</translation>
    </message>
    <message>
        <source>Ignore previous dives</source>
        <translation>Ignore previous dives</translation>
    </message>
    <message>
        <source>Larger</source>
        <translation>Larger</translation>
    </message>
    <message>
        <source>Longest dive</source>
        <translation>Longest dive</translation>
    </message>
    <message>
        <source>Mean depth</source>
        <translation>Mean depth</translation>
    </message>
    <message>
        <source>Mean time</source>
        <translation>Mean time</translation>
    </message>
    <message>
        <source>Mean water temperature</source>
        <translation>Mean water temperature</translation>
    </message>
    <message>
        <source>Minima, maxima, totals</source>
        <translation>Minima, maxima, totals</translation>
    </message>
    <message>
        <source>Next page</source>
        <translation>Next page</translation>
    </message>
    <message>
        <source>Number of dives</source>
        <translation>Number of dives</translation>
    </message>
    <message>
        <source>Page Setup…</source>
        <translation>Page Setup…</translation>
    </message>
    <message>
        <source>Previous dives</source>
        <translation>Previous dives</translation>
    </message>
    <message>
        <source>Previous dives…</source>
        <translation>Previous dives…</translation>
    </message>
    <message>
        <source>Previous page</source>
        <translation>Previous page</translation>
    </message>
    <message>
        <source>Print Preview</source>
        <translation>Print Preview</translation>
    </message>
    <message>
        <source>Print Preview…</source>
        <translation>Print Preview…</translation>
    </message>
    <message>
        <source>Print…</source>
        <translation>Print…</translation>
    </message>
    <message>
        <source>Save Report</source>
        <translation>Save Report</translation>
    </message>
    <message>
        <source>Save as PDF</source>
        <translation>Save as PDF</translation>
    </message>
    <message>
        <source>Save as PDF…</source>
        <translation>Save as PDF…</translation>
    </message>
    <message>
        <source>Semi-closed</source>
        <translation>Semi-closed</translation>
    </message>
    <message>
        <source>Smaller</source>
        <translation>Smaller</translation>
    </message>
    <message>
        <source>Statistics graphs</source>
        <translation>Statistics graphs</translation>
    </message>
    <message>
        <source>Statistics page</source>
        <translation>Statistics page</translation>
    </message>
    <message>
        <source>The selected dive</source>
        <translation>The selected dive</translation>
    </message>
    <message>
        <source>The statistics as a page to print</source>
        <translation>The statistics as a page to print</translation>
    </message>
    <message>
        <source>This program cannot write a file with such an ending.</source>
        <translation>This program cannot write a file with such an ending.</translation>
    </message>
    <message>
        <source>Total depth</source>
        <translation>Total depth</translation>
    </message>
    <message>
        <source>Total time</source>
        <translation>Total time</translation>
    </message>
    <message>
        <source>Warmest water</source>
        <translation>Warmest water</translation>
    </message>
    <message>
        <source>Whole page</source>
        <translation>Whole page</translation>
    </message>
</context>
</TS>
