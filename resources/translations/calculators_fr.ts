<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>Calculators</name>
    <message>
        <source>%@: %@</source>
        <translation>%@ : %@</translation>
    </message>
    <message>
        <source>Copy results (Ctrl+Shift+C)</source>
        <translation>Copier les résultats (Ctrl+Maj+C)</translation>
    </message>
    <message>
        <source>⚠ outside the limits</source>
        <translation>⚠ hors limites</translation>
    </message>
    <message>
        <source>%</source>
        <translation>%</translation>
    </message>
    <message>
        <source>1.2 bar</source>
        <translation>1,2 bar</translation>
    </message>
    <message>
        <source>1.3 bar</source>
        <translation>1,3 bar</translation>
    </message>
    <message>
        <source>1.4 bar</source>
        <translation>1,4 bar</translation>
    </message>
    <message>
        <source>1.5 bar</source>
        <translation>1,5 bar</translation>
    </message>
    <message>
        <source>1.6 bar</source>
        <translation>1,6 bar</translation>
    </message>
    <message>
        <source>Absorbent</source>
        <translation>Chaux</translation>
    </message>
    <message>
        <source>Absorbent endurance</source>
        <translation>Autonomie de la chaux</translation>
    </message>
    <message>
        <source>Apparatus</source>
        <translation>Appareil</translation>
    </message>
    <message>
        <source>Bar</source>
        <translation>Bars</translation>
    </message>
    <message>
        <source>Best diluent of a closed circuit</source>
        <translation>Meilleur diluant en circuit fermé</translation>
    </message>
    <message>
        <source>Best nitrox for a depth</source>
        <translation>Meilleur nitrox pour une profondeur</translation>
    </message>
    <message>
        <source>Best trimix for a depth</source>
        <translation>Meilleur trimix pour une profondeur</translation>
    </message>
    <message>
        <source>By oxygen consumption</source>
        <translation>Selon la consommation d’oxygène</translation>
    </message>
    <message>
        <source>CO₂ it absorbs</source>
        <translation>CO₂ absorbé</translation>
    </message>
    <message>
        <source>CO₂ produced</source>
        <translation>CO₂ produit</translation>
    </message>
    <message>
        <source>Calculate</source>
        <translation>Calculer</translation>
    </message>
    <message>
        <source>Calculation</source>
        <translation>Calcul</translation>
    </message>
    <message>
        <source>Calculators</source>
        <translation>Calculateurs</translation>
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
        <translation>Convertir</translation>
    </message>
    <message>
        <source>Cubic feet</source>
        <translation>Pieds cubes</translation>
    </message>
    <message>
        <source>Cubic inches</source>
        <translation>Pouces cubes</translation>
    </message>
    <message>
        <source>Decimal degrees, to some 20 m (height: no use)</source>
        <translation>Degrés décimaux, à une vingtaine de mètres (hauteur inutilisable)</translation>
    </message>
    <message>
        <source>Degrees, minutes and seconds: ED50 → WGS84</source>
        <translation>Degrés, minutes et secondes : ED50 → WGS84</translation>
    </message>
    <message>
        <source>Depth</source>
        <translation>Profondeur</translation>
    </message>
    <message>
        <source>Direction</source>
        <translation>Sens</translation>
    </message>
    <message>
        <source>ED50 → WGS84</source>
        <translation>ED50 → WGS84</translation>
    </message>
    <message>
        <source>Equivalent air and narcotic depth</source>
        <translation>Profondeurs équivalentes air et narcotique</translation>
    </message>
    <message>
        <source>Equivalent air depth</source>
        <translation>Profondeur équivalente air</translation>
    </message>
    <message>
        <source>Equivalent narcotic depth</source>
        <translation>Profondeur équivalente narcotique</translation>
    </message>
    <message>
        <source>Fahrenheit</source>
        <translation>Fahrenheit</translation>
    </message>
    <message>
        <source>Feet</source>
        <translation>Pieds</translation>
    </message>
    <message>
        <source>Flow of a semi-closed circuit</source>
        <translation>Débit d’un circuit semi-fermé</translation>
    </message>
    <message>
        <source>From</source>
        <translation>De</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Hauteur</translation>
    </message>
    <message>
        <source>Height above the ellipsoid</source>
        <translation>Hauteur au-dessus de l’ellipsoïde</translation>
    </message>
    <message>
        <source>Helium of the mix</source>
        <translation>Hélium du mélange</translation>
    </message>
    <message>
        <source>In the cylinder</source>
        <translation>Dans le bloc</translation>
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
        <translation>Kilogrammes</translation>
    </message>
    <message>
        <source>Latitude</source>
        <translation>Latitude</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Longueur</translation>
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
        <translation>Rinçage de la boucle</translation>
    </message>
    <message>
        <source>Mass</source>
        <translation>Masse</translation>
    </message>
    <message>
        <source>Maximum depth</source>
        <translation>Profondeur maximale</translation>
    </message>
    <message>
        <source>Maximum ppO₂</source>
        <translation>ppO₂ maximale</translation>
    </message>
    <message>
        <source>Metres</source>
        <translation>Mètres</translation>
    </message>
    <message>
        <source>Minimum depth</source>
        <translation>Profondeur minimale</translation>
    </message>
    <message>
        <source>Minimum ppO₂</source>
        <translation>ppO₂ minimale</translation>
    </message>
    <message>
        <source>Nitrox</source>
        <translation>Nitrox</translation>
    </message>
    <message>
        <source>Nitrox blending</source>
        <translation>Fabrication de nitrox</translation>
    </message>
    <message>
        <source>Oxygen</source>
        <translation>Oxygène</translation>
    </message>
    <message>
        <source>Oxygen breathed on a semi-closed circuit</source>
        <translation>Oxygène respiré en circuit semi-fermé</translation>
    </message>
    <message>
        <source>Oxygen consumption</source>
        <translation>Consommation d’oxygène</translation>
    </message>
    <message>
        <source>Oxygen of the mix</source>
        <translation>Oxygène du mélange</translation>
    </message>
    <message>
        <source>Oxygen of the supply</source>
        <translation>Oxygène du gaz fourni</translation>
    </message>
    <message>
        <source>Oxygen wanted in the loop</source>
        <translation>Oxygène voulu dans la boucle</translation>
    </message>
    <message>
        <source>Oxygen window</source>
        <translation>Fenêtre oxygène</translation>
    </message>
    <message>
        <source>Positions on ED50 and WGS84</source>
        <translation>Positions en ED50 et WGS84</translation>
    </message>
    <message>
        <source>Pounds</source>
        <translation>Livres</translation>
    </message>
    <message>
        <source>Pounds per square inch</source>
        <translation>Livres par pouce carré</translation>
    </message>
    <message>
        <source>Pressure</source>
        <translation>Pression</translation>
    </message>
    <message>
        <source>Rebreather</source>
        <translation>Recycleur</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Résultat</translation>
    </message>
    <message>
        <source>Supply flow</source>
        <translation>Débit fourni</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Température</translation>
    </message>
    <message>
        <source>Trimix</source>
        <translation>Trimix</translation>
    </message>
    <message>
        <source>Units</source>
        <translation>Unités</translation>
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
        <translation>Souhaité</translation>
    </message>
    <message>
        <source>bar</source>
        <translation>bar</translation>
    </message>
    <message>
        <source>cubic feet</source>
        <translation>pieds cubes</translation>
    </message>
    <message>
        <source>cubic inches</source>
        <translation>pouces cubes</translation>
    </message>
    <message>
        <source>feet</source>
        <translation>pieds</translation>
    </message>
    <message>
        <source>ft</source>
        <translation>pi</translation>
    </message>
    <message>
        <source>ft³</source>
        <translation>pi³</translation>
    </message>
    <message>
        <source>in³</source>
        <translation>po³</translation>
    </message>
    <message>
        <source>kg</source>
        <translation>kg</translation>
    </message>
    <message>
        <source>kilograms</source>
        <translation>kilogrammes</translation>
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
        <translation>mètres</translation>
    </message>
    <message>
        <source>pounds</source>
        <translation>livres</translation>
    </message>
    <message>
        <source>ppO₂ after the flush</source>
        <translation>ppO₂ après le rinçage</translation>
    </message>
    <message>
        <source>ppO₂ at that depth</source>
        <translation>ppO₂ à cette profondeur</translation>
    </message>
    <message>
        <source>ppO₂ of the flush (noted only: 1.0 bar is used)</source>
        <translation>ppO₂ de rinçage (pour mémoire : le calcul prend 1,0 bar)</translation>
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
        <translation>Données non valides : l’oxygène doit être compris entre 1 et 16 %.</translation>
    </message>
</context>
<context>
    <name>Nitrox</name>
    <message>
        <source>Best Mix</source>
        <translation>Meilleur mélange : %.1f %% O₂</translation>
    </message>
    <message>
        <source>Oxygen to transfer</source>
        <translation>Oxygène à transférer : %.1f bar, oxygène de tout ce qui est ajouté : %.1f %%</translation>
    </message>
    <message>
        <source>Oxygen window</source>
        <translation>1,6 bar d’O₂ à %.1f m, ppO₂ minimale à %.1f m, utilisable jusqu’à %.1f m</translation>
    </message>
</context>
<context>
    <name>Rebreather</name>
    <message>
        <source>Best CCR Trimix</source>
        <translation>Oxygène : %.0f %%, hélium : %.0f %%</translation>
    </message>
    <message>
        <source>Breathed frac</source>
        <translation>Oxygène respiré : %.1f %%</translation>
    </message>
    <message>
        <source>FracO2 loop flush</source>
        <translation>Oxygène du gaz de rinçage : %.1f %%</translation>
    </message>
    <message>
        <source>Ideal flow</source>
        <translation>Débit idéal : %.2f l/min</translation>
    </message>
    <message>
        <source>Soda time</source>
        <translation>%d h %d min</translation>
    </message>
    <message>
        <source>Table breathed frac</source>
        <translation>%.1f l/min : %.1f %%</translation>
    </message>
    <message>
        <source>Table flow</source>
        <translation>%.1f l/min : débit %.2f l/min</translation>
    </message>
</context>
<context>
    <name>Trimix</name>
    <message>
        <source>Best Tx</source>
        <translation>Oxygène : %.1f %%, hélium : %.1f %%</translation>
    </message>
    <message>
        <source>EAD END</source>
        <translation>Profondeur équivalente air : %.1f m, narcotique : %.1f m</translation>
    </message>
    <message>
        <source>Prof min</source>
        <translation>Profondeur minimale : %.1f m</translation>
    </message>
</context>
</TS>
