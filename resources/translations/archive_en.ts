<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>Archive</name>
    <message>
        <source>&quot;%@&quot;, and %@</source>
        <translation>&quot;%@&quot;, and %@</translation>
    </message>
    <message>
        <source>%@ (%@)</source>
        <translation>%@ (%@)</translation>
    </message>
    <message>
        <source>%@ (bytes: %@)</source>
        <translation>%@ (bytes: %@)</translation>
    </message>
    <message>
        <source>%@ (type &quot;%@&quot;)</source>
        <translation>%@ (type &quot;%@&quot;)</translation>
    </message>
    <message>
        <source>%@ bytes left</source>
        <translation>%@ bytes left</translation>
    </message>
    <message>
        <source>%@ elements</source>
        <translation>%@ elements</translation>
    </message>
    <message>
        <source>%@ more bytes</source>
        <translation>%@ more bytes</translation>
    </message>
    <message>
        <source>%@ of 32 bits</source>
        <translation>%@ of 32 bits</translation>
    </message>
    <message>
        <source>a C string</source>
        <translation>a C string</translation>
    </message>
    <message>
        <source>a big-endian one</source>
        <translation>a big-endian one</translation>
    </message>
    <message>
        <source>a byte</source>
        <translation>a byte</translation>
    </message>
    <message>
        <source>a byte array</source>
        <translation>a byte array</translation>
    </message>
    <message>
        <source>a call for one more</source>
        <translation>a call for one more</translation>
    </message>
    <message>
        <source>a class</source>
        <translation>a class</translation>
    </message>
    <message>
        <source>a class name</source>
        <translation>a class name</translation>
    </message>
    <message>
        <source>a class version</source>
        <translation>a class version</translation>
    </message>
    <message>
        <source>a count</source>
        <translation>a count</translation>
    </message>
    <message>
        <source>a count that the remaining bytes (%@) can hold</source>
        <translation>a count that the remaining bytes (%@) can hold</translation>
    </message>
    <message>
        <source>a date</source>
        <translation>a date</translation>
    </message>
    <message>
        <source>a finished object</source>
        <translation>a finished object</translation>
    </message>
    <message>
        <source>a floating-point value (byte 83)</source>
        <translation>a floating-point value (byte 83)</translation>
    </message>
    <message>
        <source>a group</source>
        <translation>a group</translation>
    </message>
    <message>
        <source>a group or the end of an object</source>
        <translation>a group or the end of an object</translation>
    </message>
    <message>
        <source>a length</source>
        <translation>a length</translation>
    </message>
    <message>
        <source>a little-endian archive</source>
        <translation>a little-endian archive</translation>
    </message>
    <message>
        <source>a new item (byte 84)</source>
        <translation>a new item (byte 84)</translation>
    </message>
    <message>
        <source>a number</source>
        <translation>a number</translation>
    </message>
    <message>
        <source>a reference</source>
        <translation>a reference</translation>
    </message>
    <message>
        <source>a reference to another object</source>
        <translation>a reference to another object</translation>
    </message>
    <message>
        <source>a reference to item %@ of %@</source>
        <translation>a reference to item %@ of %@</translation>
    </message>
    <message>
        <source>a reference to item %@, which contains it</source>
        <translation>a reference to item %@, which contains it</translation>
    </message>
    <message>
        <source>a reference to item %@, which is none</source>
        <translation>a reference to item %@, which is none</translation>
    </message>
    <message>
        <source>a reference to string %@ of %@</source>
        <translation>a reference to string %@ of %@</translation>
    </message>
    <message>
        <source>a selector</source>
        <translation>a selector</translation>
    </message>
    <message>
        <source>a signature</source>
        <translation>a signature</translation>
    </message>
    <message>
        <source>a signature of 11 letters</source>
        <translation>a signature of 11 letters</translation>
    </message>
    <message>
        <source>a string</source>
        <translation>a string</translation>
    </message>
    <message>
        <source>a struct has no fields</source>
        <translation>a struct has no fields</translation>
    </message>
    <message>
        <source>a system version</source>
        <translation>a system version</translation>
    </message>
    <message>
        <source>a text</source>
        <translation>a text</translation>
    </message>
    <message>
        <source>a text in UTF-8</source>
        <translation>a text in UTF-8</translation>
    </message>
    <message>
        <source>a text with a zero byte in it</source>
        <translation>a text with a zero byte in it</translation>
    </message>
    <message>
        <source>a type encoding</source>
        <translation>a type encoding</translation>
    </message>
    <message>
        <source>an archive</source>
        <translation>an archive</translation>
    </message>
    <message>
        <source>an array</source>
        <translation>an array</translation>
    </message>
    <message>
        <source>an array has no length</source>
        <translation>an array has no length</translation>
    </message>
    <message>
        <source>an array length overflows</source>
        <translation>an array length overflows</translation>
    </message>
    <message>
        <source>an array of %@ elements</source>
        <translation>an array of %@ elements</translation>
    </message>
    <message>
        <source>an array of numbers</source>
        <translation>an array of numbers</translation>
    </message>
    <message>
        <source>an element of a collection</source>
        <translation>an element of a collection</translation>
    </message>
    <message>
        <source>an element of the root array</source>
        <translation>an element of the root array</translation>
    </message>
    <message>
        <source>an empty one</source>
        <translation>an empty one</translation>
    </message>
    <message>
        <source>an integer</source>
        <translation>an integer</translation>
    </message>
    <message>
        <source>an integer (byte %@)</source>
        <translation>an integer (byte %@)</translation>
    </message>
    <message>
        <source>an integer that fits type &quot;%@&quot;</source>
        <translation>an integer that fits type &quot;%@&quot;</translation>
    </message>
    <message>
        <source>an object</source>
        <translation>an object</translation>
    </message>
    <message>
        <source>an object of class %@</source>
        <translation>an object of class %@</translation>
    </message>
    <message>
        <source>an object of class %@ : NSObject</source>
        <translation>an object of class %@ : NSObject</translation>
    </message>
    <message>
        <source>at most 256 nested objects</source>
        <translation>at most 256 nested objects</translation>
    </message>
    <message>
        <source>at most 64 superclasses</source>
        <translation>at most 64 superclasses</translation>
    </message>
    <message>
        <source>expected %@, found %@</source>
        <translation>expected %@, found %@</translation>
    </message>
    <message>
        <source>it describes hardly any value</source>
        <translation>it describes hardly any value</translation>
    </message>
    <message>
        <source>it has an unknown letter or unbalanced brackets</source>
        <translation>it has an unknown letter or unbalanced brackets</translation>
    </message>
    <message>
        <source>it is empty</source>
        <translation>it is empty</translation>
    </message>
    <message>
        <source>it is nested too deeply</source>
        <translation>it is nested too deeply</translation>
    </message>
    <message>
        <source>its brackets are unbalanced</source>
        <translation>its brackets are unbalanced</translation>
    </message>
    <message>
        <source>its size overflows</source>
        <translation>its size overflows</translation>
    </message>
    <message>
        <source>more</source>
        <translation>more</translation>
    </message>
    <message>
        <source>more, counted through references</source>
        <translation>more, counted through references</translation>
    </message>
    <message>
        <source>nil</source>
        <translation>nil</translation>
    </message>
    <message>
        <source>nil (byte 85)</source>
        <translation>nil (byte 85)</translation>
    </message>
    <message>
        <source>nil or a reference</source>
        <translation>nil or a reference</translation>
    </message>
    <message>
        <source>no new object</source>
        <translation>no new object</translation>
    </message>
    <message>
        <source>one of class %@</source>
        <translation>one of class %@</translation>
    </message>
    <message>
        <source>one without seconds</source>
        <translation>one without seconds</translation>
    </message>
    <message>
        <source>other bytes</source>
        <translation>other bytes</translation>
    </message>
    <message>
        <source>streamer version 4</source>
        <translation>streamer version 4</translation>
    </message>
    <message>
        <source>the byte %@</source>
        <translation>the byte %@</translation>
    </message>
    <message>
        <source>the class of an object</source>
        <translation>the class of an object</translation>
    </message>
    <message>
        <source>the count of a collection</source>
        <translation>the count of a collection</translation>
    </message>
    <message>
        <source>the count of an array</source>
        <translation>the count of an array</translation>
    </message>
    <message>
        <source>the count of the root array</source>
        <translation>the count of the root array</translation>
    </message>
    <message>
        <source>the elements of an array hold nothing</source>
        <translation>the elements of an array hold nothing</translation>
    </message>
    <message>
        <source>the end of an object</source>
        <translation>the end of an object</translation>
    </message>
    <message>
        <source>the end of an object (byte 86)</source>
        <translation>the end of an object (byte 86)</translation>
    </message>
    <message>
        <source>the end of the file</source>
        <translation>the end of the file</translation>
    </message>
    <message>
        <source>the end of the file after %@ bytes</source>
        <translation>the end of the file after %@ bytes</translation>
    </message>
    <message>
        <source>the first element</source>
        <translation>the first element</translation>
    </message>
    <message>
        <source>the reference number %@</source>
        <translation>the reference number %@</translation>
    </message>
    <message>
        <source>the reserved byte %@</source>
        <translation>the reserved byte %@</translation>
    </message>
    <message>
        <source>the root array</source>
        <translation>the root array</translation>
    </message>
    <message>
        <source>the root object</source>
        <translation>the root object</translation>
    </message>
    <message>
        <source>the signature &quot;streamtyped&quot;</source>
        <translation>the signature &quot;streamtyped&quot;</translation>
    </message>
    <message>
        <source>the text of a C string</source>
        <translation>the text of a C string</translation>
    </message>
    <message>
        <source>type &quot;%@&quot;</source>
        <translation>type &quot;%@&quot;</translation>
    </message>
    <message>
        <source>version %@</source>
        <translation>version %@</translation>
    </message>
    <message>
        <source>version 1 of class NSString</source>
        <translation>version 1 of class NSString</translation>
    </message>
</context>
</TS>
