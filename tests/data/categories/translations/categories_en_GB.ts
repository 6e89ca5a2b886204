<?xml version="1.0" encoding="utf-8"?>
<TS version="2.1" language="en_GB">
<context>
    <message><source>Winter</source><translation></translation></message>
    <message><source>Colour</source><translation>Colour (GB)</translation></message>
</context>
</TS>
