<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en">
<context>
    <name>marlevo::StatusBar</name>
    <message>
        <source>single_stroke</source>
        <translation>%1 stroke</translation>
    </message>
    <message>
        <source>multiple_strokes</source>
        <translation>%1 strokes</translation>
    </message>
</context>
</TS>
