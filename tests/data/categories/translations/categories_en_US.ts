<?xml version="1.0" encoding="utf-8"?>
<TS version="2.1" language="en">
<context>
    <name>Categories</name>
    <message><source>  Meine  Cliparts </source><translation>My Cliparts</translation></message>
    <message><source>Favoriten</source><translation>Favourites</translation></message>
    <message><source>Weihnachten</source><translation>Christmas</translation></message>
    <message><source>Winter</source><translation>Winter season</translation></message>
</context>
</TS>
