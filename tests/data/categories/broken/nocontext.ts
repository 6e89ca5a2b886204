<?xml version="1.0"?>
<TS language="de"><message><source>A</source></message></TS>
