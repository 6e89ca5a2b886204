<?xml version="1.0"?>
<ts language="de"><context><message><source>A</source><translation>B</translation></message></context></ts>
