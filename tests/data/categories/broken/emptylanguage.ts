<?xml version="1.0"?>
<TS language=""><context/></TS>
