<?xml version="1.0"?>
<TS><context/></TS>
