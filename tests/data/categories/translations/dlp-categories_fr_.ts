<?xml version="1.0" encoding="utf-8"?>
<TS version="2.1" language="fr">
<context>
    <message><source>Papierkorb</source><translation>Corbeille</translation></message>
</context>
</TS>
