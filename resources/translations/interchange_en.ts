<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>Carnet</name>
    <message>
        <source>Import UDCF</source>
        <translation>Import UDCF</translation>
    </message>
    <message>
        <source>Import UDDF</source>
        <translation>Import UDDF</translation>
    </message>
    <message>
        <source>Tip import UDCF</source>
        <translation>Read dives from a UDCF file</translation>
    </message>
    <message>
        <source>Tip import UDDF</source>
        <translation>Read dives from a UDDF file</translation>
    </message>
</context>
<context>
    <name>Files</name>
    <message>
        <source>Export empty logbook</source>
        <translation>an empty logbook cannot be exported as UDDF, whose gas is that of the first dive</translation>
    </message>
    <message>
        <source>Export missing marks</source>
        <translation>dive %@ has %@ depths but only %@ marks "%@", so nothing was exported; its profile's data have to be completed first</translation>
    </message>
    <message>
        <source>Import bad XML</source>
        <translation>line %@, column %@: this is not well-formed XML</translation>
    </message>
    <message>
        <source>Import bad attribute</source>
        <translation>line %@, column %@: an attribute is not written correctly</translation>
    </message>
    <message>
        <source>Import bad comment</source>
        <translation>line %@, column %@: a comment does not end</translation>
    </message>
    <message>
        <source>Import bad end</source>
        <translation>line %@, column %@: an element does not end as it began</translation>
    </message>
    <message>
        <source>Import bad tag</source>
        <translation>line %@, column %@: this is no tag</translation>
    </message>
    <message>
        <source>Import no element</source>
        <translation>line %@, column %@: there is no XML element in this file</translation>
    </message>
    <message>
        <source>Import no memory</source>
        <translation>line %@, column %@: there is not enough memory to read on</translation>
    </message>
    <message>
        <source>Import not UTF-16</source>
        <translation>line %@, column %@: this is no text in UTF-16 or UTF-32</translation>
    </message>
    <message>
        <source>Import not UTF-8</source>
        <translation>line %@, column %@: this is no UTF-8, and the file names no other encoding that can be read</translation>
    </message>
    <message>
        <source>Import too many dives</source>
        <translation>there are %@ dives in it, more than the %@ that are read at once</translation>
    </message>
    <message>
        <source>Import zero byte</source>
        <translation>line %@, column %@: there is a zero byte in the text</translation>
    </message>
</context>
<context>
    <name>Interface</name>
    <message>
        <source>%d dives were passed over: only the last group of a file is read.</source>
        <translation>%d dives were passed over: only the last group of a file is read.</translation>
    </message>
    <message>
        <source>%d dives were read from %@.</source>
        <translation>%d dives were read from %@.</translation>
    </message>
    <message>
        <source>%d files</source>
        <translation>%d files</translation>
    </message>
    <message>
        <source>1 dive was passed over: only the last group of a file is read.</source>
        <translation>1 dive was passed over: only the last group of a file is read.</translation>
    </message>
    <message>
        <source>1 dive was read from %@.</source>
        <translation>1 dive was read from %@.</translation>
    </message>
    <message>
        <source>Dives as CSV with commas</source>
        <translation>Dives as CSV with commas</translation>
    </message>
    <message>
        <source>Dives as CSV with semicolons</source>
        <translation>Dives as CSV with semicolons</translation>
    </message>
    <message>
        <source>Dives as text with tabs</source>
        <translation>Dives as text with tabs</translation>
    </message>
    <message>
        <source>Dives concerned: %@.</source>
        <translation>Dives concerned: %@.</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Export</translation>
    </message>
    <message>
        <source>Export dives</source>
        <translation>Export dives</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>Export…</translation>
    </message>
    <message>
        <source>Handheld logbook</source>
        <translation>Handheld logbook</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Import</translation>
    </message>
    <message>
        <source>Import dives</source>
        <translation>Import dives</translation>
    </message>
    <message>
        <source>Import handheld logbook</source>
        <translation>Import handheld logbook</translation>
    </message>
    <message>
        <source>No dive was read from %@.</source>
        <translation>No dive was read from %@.</translation>
    </message>
    <message>
        <source>Profiles as CSV with commas</source>
        <translation>Profiles as CSV with commas</translation>
    </message>
    <message>
        <source>Reading dives…</source>
        <translation>Reading dives…</translation>
    </message>
    <message>
        <source>Some characters do not exist in this format and were written as the nearest ones that do. Dives concerned: %@.</source>
        <translation>Some characters do not exist in this format and were written as the nearest ones that do. Dives concerned: %@.</translation>
    </message>
    <message>
        <source>The file seems to be of the format %@.</source>
        <translation>The file seems to be of the format %@.</translation>
    </message>
    <message>
        <source>The import was stopped, and nothing was added.</source>
        <translation>The import was stopped, and nothing was added.</translation>
    </message>
    <message>
        <source>UDCF</source>
        <translation>UDCF</translation>
    </message>
    <message>
        <source>UDCF (Universal Dive Computer Format)</source>
        <translation>UDCF (Universal Dive Computer Format)</translation>
    </message>
    <message>
        <source>UDDF</source>
        <translation>UDDF</translation>
    </message>
    <message>
        <source>UDDF (Universal Dive Data Format)</source>
        <translation>UDDF (Universal Dive Data Format)</translation>
    </message>
    <message>
        <source>“%@”</source>
        <translation>“%@”</translation>
    </message>
    <message>
        <source>Dives from other programs</source>
        <translation>Dives from other programs</translation>
    </message>
    <message>
        <source>“%@” was written.</source>
        <translation>“%@” was written.</translation>
    </message>
</context>
</TS>
