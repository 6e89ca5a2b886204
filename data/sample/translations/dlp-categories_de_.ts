<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de">
<context>
    <name>PvThematicCategory</name>
    <message>
        <source>category-last-downloaded</source>
        <translation>Zuletzt heruntergeladen</translation>
    </message>
    <message>
        <source>category-colours</source>
        <translation>Farbflächen</translation>
    </message>
    <message>
        <source>category-fits-to-styleV2</source>
        <translation>Passend zur Designvorlage</translation>
    </message>
    <message>
        <source>large</source>
        <translation>Großes Bild</translation>
    </message>
    <message>
        <source>full</source>
        <translation>Ganzseitig</translation>
    </message>
</context>
</TS>
