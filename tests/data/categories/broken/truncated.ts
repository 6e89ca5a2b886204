<?xml version="1.0"?>
<TS language="de"><context>
