<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
<context>
    <name>Categories</name>
    <message><source>Wedding</source><translation>Hochzeit</translation></message>
    <message><source>Gold</source><translation>Goldveredelung</translation></message>
    <message><source>Internal frames</source><translation>InterneRahmen</translation></message>
    <message><source>Winter</source><translation></translation></message>
    <message><source>Frames</source><translation>Rahmenleisten</translation></message>
    <message><source>  Frames </source><translation>Rahmen</translation></message>
    <message><source>Anniversary</source><translation type="unfinished">Jahrestag</translation></message>
    <message><translation>Ohne Quelle</translation></message>
</context>
<context>
    <name>Ignored</name>
    <message><source>Herbst</source><translation>Autumn</translation></message>
</context>
</TS>
