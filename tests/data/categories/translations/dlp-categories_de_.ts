<?xml version="1.0" encoding="utf-8"?>
<TS version="2.1" language="de">
<context>
    <message><source>Ostern</source><translation>Ostern (Paket)</translation></message>
</context>
</TS>
