<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>Calculators</name>
    <message>
        <source>%@: %@</source>
        <translation>%@: %@</translation>
    </message>
    <message>
        <source>Copy results (Ctrl+Shift+C)</source>
        <translation>Copy results (Ctrl+Shift+C)</translation>
    </message>
    <message>
        <source>⚠ outside the limits</source>
        <translation>⚠ outside the limits</translation>
    </message>
    <message>
        <source>%</source>
        <translation>%</translation>
    </message>
    <message>
        <source>1.2 bar</source>
        <translation>1.2 bar</translation>
    </message>
    <message>
        <source>1.3 bar</source>
        <translation>1.3 bar</translation>
    </message>
    <message>
        <source>1.4 bar</source>
        <translation>1.4 bar</translation>
    </message>
    <message>
        <source>1.5 bar</source>
        <translation>1.5 bar</translation>
    </message>
    <message>
        <source>1.6 bar</source>
        <translation>1.6 bar</translation>
    </message>
    <message>
        <source>Absorbent</source>
        <translation>Absorbent</translation>
    </message>
    <message>
        <source>Absorbent endurance</source>
        <translation>Absorbent endurance</translation>
    </message>
    <message>
        <source>Apparatus</source>
        <translation>Apparatus</translation>
    </message>
    <message>
        <source>Bar</source>
        <translation>Bar</translation>
    </message>
    <message>
        <source>Best diluent of a closed circuit</source>
        <translation>Best diluent of a closed circuit</translation>
    </message>
    <message>
        <source>Best nitrox for a depth</source>
        <translation>Best nitrox for a depth</translation>
    </message>
    <message>
        <source>Best trimix for a depth</source>
        <translation>Best trimix for a depth</translation>
    </message>
    <message>
        <source>By oxygen consumption</source>
        <translation>By oxygen consumption</translation>
    </message>
    <message>
        <source>CO₂ it absorbs</source>
        <translation>CO₂ it absorbs</translation>
    </message>
    <message>
        <source>CO₂ produced</source>
        <translation>CO₂ produced</translation>
    </message>
    <message>
        <source>Calculate</source>
        <translation>Calculate</translation>
    </message>
    <message>
        <source>Calculation</source>
        <translation>Calculation</translation>
    </message>
    <message>
        <source>Calculators</source>
        <translation>Calculators</translation>
    </message>
    <message>
        <source>Celsius</source>
        <translation>Celsius</translation>
    </message>
    <message>
        <source>Conversions</source>
        <translation>Conversions</translation>
    </message>
    <message>
        <source>Convert</source>
        <translation>Convert</translation>
    </message>
    <message>
        <source>Cubic feet</source>
        <translation>Cubic feet</translation>
    </message>
    <message>
        <source>Cubic inches</source>
        <translation>Cubic inches</translation>
    </message>
    <message>
        <source>Decimal degrees, to some 20 m (height: no use)</source>
        <translation>Decimal degrees, to some 20 m (height: no use)</translation>
    </message>
    <message>
        <source>Degrees, minutes and seconds: ED50 → WGS84</source>
        <translation>Degrees, minutes and seconds: ED50 → WGS84</translation>
    </message>
    <message>
        <source>Depth</source>
        <translation>Depth</translation>
    </message>
    <message>
        <source>Direction</source>
        <translation>Direction</translation>
    </message>
    <message>
        <source>ED50 → WGS84</source>
        <translation>ED50 → WGS84</translation>
    </message>
    <message>
        <source>Equivalent air and narcotic depth</source>
        <translation>Equivalent air and narcotic depth</translation>
    </message>
    <message>
        <source>Equivalent air depth</source>
        <translation>Equivalent air depth</translation>
    </message>
    <message>
        <source>Equivalent narcotic depth</source>
        <translation>Equivalent narcotic depth</translation>
    </message>
    <message>
        <source>Fahrenheit</source>
        <translation>Fahrenheit</translation>
    </message>
    <message>
        <source>Feet</source>
        <translation>Feet</translation>
    </message>
    <message>
        <source>Flow of a semi-closed circuit</source>
        <translation>Flow of a semi-closed circuit</translation>
    </message>
    <message>
        <source>From</source>
        <translation>From</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Height</translation>
    </message>
    <message>
        <source>Height above the ellipsoid</source>
        <translation>Height above the ellipsoid</translation>
    </message>
    <message>
        <source>Helium of the mix</source>
        <translation>Helium of the mix</translation>
    </message>
    <message>
        <source>In the cylinder</source>
        <translation>In the cylinder</translation>
    </message>
    <message>
        <source>K</source>
        <translation>K</translation>
    </message>
    <message>
        <source>Kelvin</source>
        <translation>Kelvin</translation>
    </message>
    <message>
        <source>Kilograms</source>
        <translation>Kilograms</translation>
    </message>
    <message>
        <source>Latitude</source>
        <translation>Latitude</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Length</translation>
    </message>
    <message>
        <source>Litres</source>
        <translation>Litres</translation>
    </message>
    <message>
        <source>Longitude</source>
        <translation>Longitude</translation>
    </message>
    <message>
        <source>Loop flush</source>
        <translation>Loop flush</translation>
    </message>
    <message>
        <source>Mass</source>
        <translation>Mass</translation>
    </message>
    <message>
        <source>Maximum depth</source>
        <translation>Maximum depth</translation>
    </message>
    <message>
        <source>Maximum ppO₂</source>
        <translation>Maximum ppO₂</translation>
    </message>
    <message>
        <source>Metres</source>
        <translation>Metres</translation>
    </message>
    <message>
        <source>Minimum depth</source>
        <translation>Minimum depth</translation>
    </message>
    <message>
        <source>Minimum ppO₂</source>
        <translation>Minimum ppO₂</translation>
    </message>
    <message>
        <source>Nitrox</source>
        <translation>Nitrox</translation>
    </message>
    <message>
        <source>Nitrox blending</source>
        <translation>Nitrox blending</translation>
    </message>
    <message>
        <source>Oxygen</source>
        <translation>Oxygen</translation>
    </message>
    <message>
        <source>Oxygen breathed on a semi-closed circuit</source>
        <translation>Oxygen breathed on a semi-closed circuit</translation>
    </message>
    <message>
        <source>Oxygen consumption</source>
        <translation>Oxygen consumption</translation>
    </message>
    <message>
        <source>Oxygen of the mix</source>
        <translation>Oxygen of the mix</translation>
    </message>
    <message>
        <source>Oxygen of the supply</source>
        <translation>Oxygen of the supply</translation>
    </message>
    <message>
        <source>Oxygen wanted in the loop</source>
        <translation>Oxygen wanted in the loop</translation>
    </message>
    <message>
        <source>Oxygen window</source>
        <translation>Oxygen window</translation>
    </message>
    <message>
        <source>Positions on ED50 and WGS84</source>
        <translation>Positions on ED50 and WGS84</translation>
    </message>
    <message>
        <source>Pounds</source>
        <translation>Pounds</translation>
    </message>
    <message>
        <source>Pounds per square inch</source>
        <translation>Pounds per square inch</translation>
    </message>
    <message>
        <source>Pressure</source>
        <translation>Pressure</translation>
    </message>
    <message>
        <source>Rebreather</source>
        <translation>Rebreather</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Result</translation>
    </message>
    <message>
        <source>Supply flow</source>
        <translation>Supply flow</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Temperature</translation>
    </message>
    <message>
        <source>Trimix</source>
        <translation>Trimix</translation>
    </message>
    <message>
        <source>Units</source>
        <translation>Units</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Volume</translation>
    </message>
    <message>
        <source>WGS84 → ED50</source>
        <translation>WGS84 → ED50</translation>
    </message>
    <message>
        <source>Wanted</source>
        <translation>Wanted</translation>
    </message>
    <message>
        <source>bar</source>
        <translation>bar</translation>
    </message>
    <message>
        <source>cubic feet</source>
        <translation>cubic feet</translation>
    </message>
    <message>
        <source>cubic inches</source>
        <translation>cubic inches</translation>
    </message>
    <message>
        <source>feet</source>
        <translation>feet</translation>
    </message>
    <message>
        <source>ft</source>
        <translation>ft</translation>
    </message>
    <message>
        <source>ft³</source>
        <translation>ft³</translation>
    </message>
    <message>
        <source>in³</source>
        <translation>in³</translation>
    </message>
    <message>
        <source>kg</source>
        <translation>kg</translation>
    </message>
    <message>
        <source>kilograms</source>
        <translation>kilograms</translation>
    </message>
    <message>
        <source>l</source>
        <translation>l</translation>
    </message>
    <message>
        <source>l/kg</source>
        <translation>l/kg</translation>
    </message>
    <message>
        <source>l/min</source>
        <translation>l/min</translation>
    </message>
    <message>
        <source>lb</source>
        <translation>lb</translation>
    </message>
    <message>
        <source>litres</source>
        <translation>litres</translation>
    </message>
    <message>
        <source>m</source>
        <translation>m</translation>
    </message>
    <message>
        <source>metres</source>
        <translation>metres</translation>
    </message>
    <message>
        <source>pounds</source>
        <translation>pounds</translation>
    </message>
    <message>
        <source>ppO₂ after the flush</source>
        <translation>ppO₂ after the flush</translation>
    </message>
    <message>
        <source>ppO₂ at that depth</source>
        <translation>ppO₂ at that depth</translation>
    </message>
    <message>
        <source>ppO₂ of the flush (noted only: 1.0 bar is used)</source>
        <translation>ppO₂ of the flush (noted only: 1.0 bar is used)</translation>
    </message>
    <message>
        <source>psi</source>
        <translation>psi</translation>
    </message>
    <message>
        <source>°</source>
        <translation>°</translation>
    </message>
    <message>
        <source>°C</source>
        <translation>°C</translation>
    </message>
    <message>
        <source>°F</source>
        <translation>°F</translation>
    </message>
    <message>
        <source>′</source>
        <translation>′</translation>
    </message>
    <message>
        <source>″</source>
        <translation>″</translation>
    </message>
</context>
<context>
    <name>Main</name>
    <message>
        <source>No valid datas</source>
        <translation>No valid data: oxygen must be from 1 to 16 %.</translation>
    </message>
</context>
<context>
    <name>Nitrox</name>
    <message>
        <source>Best Mix</source>
        <translation>Best mix: %.1f %% O₂</translation>
    </message>
    <message>
        <source>Oxygen to transfer</source>
        <translation>Oxygen to transfer: %.1f bar, oxygen of all that is added: %.1f %%</translation>
    </message>
    <message>
        <source>Oxygen window</source>
        <translation>1.6 bar of O₂ at %.1f m, minimum ppO₂ at %.1f m, usable down to %.1f m</translation>
    </message>
</context>
<context>
    <name>Rebreather</name>
    <message>
        <source>Best CCR Trimix</source>
        <translation>Oxygen: %.0f %%, helium: %.0f %%</translation>
    </message>
    <message>
        <source>Breathed frac</source>
        <translation>Oxygen breathed: %.1f %%</translation>
    </message>
    <message>
        <source>FracO2 loop flush</source>
        <translation>Oxygen of the flush gas: %.1f %%</translation>
    </message>
    <message>
        <source>Ideal flow</source>
        <translation>Ideal flow: %.2f l/min</translation>
    </message>
    <message>
        <source>Soda time</source>
        <translation>%d h %d min</translation>
    </message>
    <message>
        <source>Table breathed frac</source>
        <translation>%.1f l/min: %.1f %%</translation>
    </message>
    <message>
        <source>Table flow</source>
        <translation>%.1f l/min: flow %.2f l/min</translation>
    </message>
</context>
<context>
    <name>Trimix</name>
    <message>
        <source>Best Tx</source>
        <translation>Oxygen: %.1f %%, helium: %.1f %%</translation>
    </message>
    <message>
        <source>EAD END</source>
        <translation>EAD: %.1f m, END: %.1f m</translation>
    </message>
    <message>
        <source>Prof min</source>
        <translation>Minimum depth: %.1f m</translation>
    </message>
</context>
</TS>
