<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>Archive</name>
    <message>
        <source>&quot;%@&quot;, and %@</source>
        <translation>« %@ », et %@</translation>
    </message>
    <message>
        <source>%@ (%@)</source>
        <translation>%@ (%@)</translation>
    </message>
    <message>
        <source>%@ (bytes: %@)</source>
        <translation>%@ (octets : %@)</translation>
    </message>
    <message>
        <source>%@ (type &quot;%@&quot;)</source>
        <translation>%@ (type « %@ »)</translation>
    </message>
    <message>
        <source>%@ bytes left</source>
        <translation>%@ octets restants</translation>
    </message>
    <message>
        <source>%@ elements</source>
        <translation>%@ éléments</translation>
    </message>
    <message>
        <source>%@ more bytes</source>
        <translation>encore %@ octets</translation>
    </message>
    <message>
        <source>%@ of 32 bits</source>
        <translation>%@ sur 32 bits</translation>
    </message>
    <message>
        <source>a C string</source>
        <translation>une chaîne C</translation>
    </message>
    <message>
        <source>a big-endian one</source>
        <translation>une archive gros-boutiste</translation>
    </message>
    <message>
        <source>a byte</source>
        <translation>un octet</translation>
    </message>
    <message>
        <source>a byte array</source>
        <translation>un tableau d’octets</translation>
    </message>
    <message>
        <source>a call for one more</source>
        <translation>la demande d’un élément de plus</translation>
    </message>
    <message>
        <source>a class</source>
        <translation>une classe</translation>
    </message>
    <message>
        <source>a class name</source>
        <translation>un nom de classe</translation>
    </message>
    <message>
        <source>a class version</source>
        <translation>une version de classe</translation>
    </message>
    <message>
        <source>a count</source>
        <translation>un nombre d’éléments</translation>
    </message>
    <message>
        <source>a count that the remaining bytes (%@) can hold</source>
        <translation>un nombre d’éléments qui tienne dans les octets restants (%@)</translation>
    </message>
    <message>
        <source>a date</source>
        <translation>une date</translation>
    </message>
    <message>
        <source>a finished object</source>
        <translation>un objet terminé</translation>
    </message>
    <message>
        <source>a floating-point value (byte 83)</source>
        <translation>un nombre à virgule (octet 83)</translation>
    </message>
    <message>
        <source>a group</source>
        <translation>un groupe</translation>
    </message>
    <message>
        <source>a group or the end of an object</source>
        <translation>un groupe ou la fin d’un objet</translation>
    </message>
    <message>
        <source>a length</source>
        <translation>une longueur</translation>
    </message>
    <message>
        <source>a little-endian archive</source>
        <translation>une archive petit-boutiste</translation>
    </message>
    <message>
        <source>a new item (byte 84)</source>
        <translation>un nouvel élément (octet 84)</translation>
    </message>
    <message>
        <source>a number</source>
        <translation>un nombre</translation>
    </message>
    <message>
        <source>a reference</source>
        <translation>une référence</translation>
    </message>
    <message>
        <source>a reference to another object</source>
        <translation>une référence à un autre objet</translation>
    </message>
    <message>
        <source>a reference to item %@ of %@</source>
        <translation>une référence à l’élément %@ sur %@</translation>
    </message>
    <message>
        <source>a reference to item %@, which contains it</source>
        <translation>une référence à l’élément %@, qui la contient</translation>
    </message>
    <message>
        <source>a reference to item %@, which is none</source>
        <translation>une référence à l’élément %@, qui n’en est pas un</translation>
    </message>
    <message>
        <source>a reference to string %@ of %@</source>
        <translation>une référence à la chaîne %@ sur %@</translation>
    </message>
    <message>
        <source>a selector</source>
        <translation>un sélecteur</translation>
    </message>
    <message>
        <source>a signature</source>
        <translation>une signature</translation>
    </message>
    <message>
        <source>a signature of 11 letters</source>
        <translation>une signature de 11 lettres</translation>
    </message>
    <message>
        <source>a string</source>
        <translation>une chaîne</translation>
    </message>
    <message>
        <source>a struct has no fields</source>
        <translation>une structure n’a pas de champs</translation>
    </message>
    <message>
        <source>a system version</source>
        <translation>une version du système</translation>
    </message>
    <message>
        <source>a text</source>
        <translation>un texte</translation>
    </message>
    <message>
        <source>a text in UTF-8</source>
        <translation>un texte en UTF-8</translation>
    </message>
    <message>
        <source>a text with a zero byte in it</source>
        <translation>un texte contenant un octet nul</translation>
    </message>
    <message>
        <source>a type encoding</source>
        <translation>un codage de type</translation>
    </message>
    <message>
        <source>an archive</source>
        <translation>une archive</translation>
    </message>
    <message>
        <source>an array</source>
        <translation>un tableau</translation>
    </message>
    <message>
        <source>an array has no length</source>
        <translation>un tableau n’a pas de longueur</translation>
    </message>
    <message>
        <source>an array length overflows</source>
        <translation>la longueur d’un tableau est trop grande</translation>
    </message>
    <message>
        <source>an array of %@ elements</source>
        <translation>un tableau de %@ éléments</translation>
    </message>
    <message>
        <source>an array of numbers</source>
        <translation>un tableau de nombres</translation>
    </message>
    <message>
        <source>an element of a collection</source>
        <translation>un élément d’une collection</translation>
    </message>
    <message>
        <source>an element of the root array</source>
        <translation>un élément du tableau racine</translation>
    </message>
    <message>
        <source>an empty one</source>
        <translation>un nom vide</translation>
    </message>
    <message>
        <source>an integer</source>
        <translation>un entier</translation>
    </message>
    <message>
        <source>an integer (byte %@)</source>
        <translation>un entier (octet %@)</translation>
    </message>
    <message>
        <source>an integer that fits type &quot;%@&quot;</source>
        <translation>un entier qui tienne dans le type « %@ »</translation>
    </message>
    <message>
        <source>an object</source>
        <translation>un objet</translation>
    </message>
    <message>
        <source>an object of class %@</source>
        <translation>un objet de la classe %@</translation>
    </message>
    <message>
        <source>an object of class %@ : NSObject</source>
        <translation>un objet de la classe %@ : NSObject</translation>
    </message>
    <message>
        <source>at most 256 nested objects</source>
        <translation>au plus 256 objets imbriqués</translation>
    </message>
    <message>
        <source>at most 64 superclasses</source>
        <translation>au plus 64 classes parentes</translation>
    </message>
    <message>
        <source>expected %@, found %@</source>
        <translation>attendu : %@ ; trouvé : %@</translation>
    </message>
    <message>
        <source>it describes hardly any value</source>
        <translation>il ne décrit presque aucune valeur</translation>
    </message>
    <message>
        <source>it has an unknown letter or unbalanced brackets</source>
        <translation>il a une lettre inconnue ou des crochets mal fermés</translation>
    </message>
    <message>
        <source>it is empty</source>
        <translation>il est vide</translation>
    </message>
    <message>
        <source>it is nested too deeply</source>
        <translation>il est trop imbriqué</translation>
    </message>
    <message>
        <source>its brackets are unbalanced</source>
        <translation>ses crochets sont mal fermés</translation>
    </message>
    <message>
        <source>its size overflows</source>
        <translation>sa taille est trop grande</translation>
    </message>
    <message>
        <source>more</source>
        <translation>davantage</translation>
    </message>
    <message>
        <source>more, counted through references</source>
        <translation>davantage, en comptant les références</translation>
    </message>
    <message>
        <source>nil</source>
        <translation>nil</translation>
    </message>
    <message>
        <source>nil (byte 85)</source>
        <translation>nil (octet 85)</translation>
    </message>
    <message>
        <source>nil or a reference</source>
        <translation>nil ou une référence</translation>
    </message>
    <message>
        <source>no new object</source>
        <translation>aucun nouvel objet</translation>
    </message>
    <message>
        <source>one of class %@</source>
        <translation>un objet de la classe %@</translation>
    </message>
    <message>
        <source>one without seconds</source>
        <translation>une date sans secondes</translation>
    </message>
    <message>
        <source>other bytes</source>
        <translation>d’autres octets</translation>
    </message>
    <message>
        <source>streamer version 4</source>
        <translation>la version d’archiveur 4</translation>
    </message>
    <message>
        <source>the byte %@</source>
        <translation>l’octet %@</translation>
    </message>
    <message>
        <source>the class of an object</source>
        <translation>la classe d’un objet</translation>
    </message>
    <message>
        <source>the count of a collection</source>
        <translation>le nombre d’éléments d’une collection</translation>
    </message>
    <message>
        <source>the count of an array</source>
        <translation>le nombre d’éléments d’un tableau</translation>
    </message>
    <message>
        <source>the count of the root array</source>
        <translation>le nombre d’éléments du tableau racine</translation>
    </message>
    <message>
        <source>the elements of an array hold nothing</source>
        <translation>les éléments d’un tableau ne contiennent rien</translation>
    </message>
    <message>
        <source>the end of an object</source>
        <translation>la fin d’un objet</translation>
    </message>
    <message>
        <source>the end of an object (byte 86)</source>
        <translation>la fin d’un objet (octet 86)</translation>
    </message>
    <message>
        <source>the end of the file</source>
        <translation>la fin du fichier</translation>
    </message>
    <message>
        <source>the end of the file after %@ bytes</source>
        <translation>la fin du fichier après %@ octets</translation>
    </message>
    <message>
        <source>the first element</source>
        <translation>le premier élément</translation>
    </message>
    <message>
        <source>the reference number %@</source>
        <translation>le numéro de référence %@</translation>
    </message>
    <message>
        <source>the reserved byte %@</source>
        <translation>l’octet réservé %@</translation>
    </message>
    <message>
        <source>the root array</source>
        <translation>le tableau racine</translation>
    </message>
    <message>
        <source>the root object</source>
        <translation>l’objet racine</translation>
    </message>
    <message>
        <source>the signature &quot;streamtyped&quot;</source>
        <translation>la signature « streamtyped »</translation>
    </message>
    <message>
        <source>the text of a C string</source>
        <translation>le texte d’une chaîne C</translation>
    </message>
    <message>
        <source>type &quot;%@&quot;</source>
        <translation>le type « %@ »</translation>
    </message>
    <message>
        <source>version %@</source>
        <translation>la version %@</translation>
    </message>
    <message>
        <source>version 1 of class NSString</source>
        <translation>la version 1 de la classe NSString</translation>
    </message>
</context>
</TS>
