<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en">
<context>
    <name>PvThematicCategory</name>
    <message>
        <source>Hintergründe</source>
        <translation>Backgrounds</translation>
    </message>
    <message>
        <source>Hochzeit</source>
        <translation>Wedding</translation>
    </message>
    <message>
        <source>Urlaub</source>
        <translation>Holiday</translation>
    </message>
    <message>
        <source>Familie</source>
        <translation>Family</translation>
    </message>
    <message>
        <source>Natur</source>
        <translation>Nature</translation>
    </message>
    <message>
        <source>Einfarbig</source>
        <translation>Plain colours</translation>
    </message>
    <message>
        <source>Baby</source>
        <translation>Baby</translation>
    </message>
    <message>
        <source>Geburtstag</source>
        <translation>Birthday</translation>
    </message>
    <message>
        <source>Buchrücken</source>
        <translation>Spine</translation>
    </message>
    <message>
        <source>Reisen</source>
        <translation>Travel</translation>
    </message>
    <message>
        <source>Liebe</source>
        <translation>Love</translation>
    </message>
    <message>
        <source>Fenster</source>
        <translation>Window</translation>
    </message>
    <message>
        <source>Frühling</source>
        <translation>Spring</translation>
    </message>
    <message>
        <source>Sommer</source>
        <translation>Summer</translation>
    </message>
    <message>
        <source>Herbst</source>
        <translation>Autumn</translation>
    </message>
    <message>
        <source>Winter</source>
        <translation>Winter</translation>
    </message>
    <message>
        <source>Weihnachten</source>
        <translation>Christmas</translation>
    </message>
    <message>
        <source>Jahreszeiten</source>
        <translation>Seasons</translation>
    </message>
    <message>
        <source>Feiertage</source>
        <translation>Public holidays</translation>
    </message>
    <message>
        <source>Kalendarium</source>
        <translation>Calendar grids</translation>
    </message>
    <message>
        <source>Ostern</source>
        <translation>Easter</translation>
    </message>
    <message>
        <source>Postkarte</source>
        <translation>Postcard</translation>
    </message>
    <message>
        <source>Spielkarten</source>
        <translation>Playing cards</translation>
    </message>
    <message>
        <source>Kinder</source>
        <translation>Children</translation>
    </message>
    <message>
        <source>Collage</source>
        <translation>Collage</translation>
    </message>
    <message>
        <source>Poster</source>
        <translation>Poster</translation>
    </message>
    <message>
        <source>Tasse</source>
        <translation>Mug</translation>
    </message>
    <message>
        <source>Muster</source>
        <translation>Patterns</translation>
    </message>
    <message>
        <source>Gold</source>
        <translation>Gold</translation>
    </message>
    <message>
        <source>Silber</source>
        <translation>Silver</translation>
    </message>
    <message>
        <source>Roségold</source>
        <translation>Rose gold</translation>
    </message>
    <message>
        <source>Effektlack</source>
        <translation>Spot varnish</translation>
    </message>
    <message>
        <source>Schwarz</source>
        <translation>Black</translation>
    </message>
    <message>
        <source>Weiß</source>
        <translation>White</translation>
    </message>
    <message>
        <source>Grau</source>
        <translation>Grey</translation>
    </message>
    <message>
        <source>Blau</source>
        <translation>Blue</translation>
    </message>
    <message>
        <source>Rot</source>
        <translation>Red</translation>
    </message>
    <message>
        <source>Grün</source>
        <translation>Green</translation>
    </message>
    <message>
        <source>Gelb</source>
        <translation>Yellow</translation>
    </message>
    <message>
        <source>Rosa</source>
        <translation>Pink</translation>
    </message>
    <message>
        <source>Braun</source>
        <translation>Brown</translation>
    </message>
    <message>
        <source>Farben</source>
        <translation>Colours</translation>
    </message>
    <message>
        <source>Favoriten</source>
        <translation>Favourites</translation>
    </message>
    <message>
        <source>Papierkorb</source>
        <translation>Recycle bin</translation>
    </message>
    <message>
        <source>Alle anzeigen</source>
        <translation>Show all</translation>
    </message>
    <message>
        <source>Meine Layouts</source>
        <translation>My layouts</translation>
    </message>
    <message>
        <source>Meine Cliparts</source>
        <translation>My cliparts</translation>
    </message>
    <message>
        <source>Meine Rahmen</source>
        <translation>My frames</translation>
    </message>
    <message>
        <source>Meine Masken</source>
        <translation>My masks</translation>
    </message>
    <message>
        <source>Meine Designvorlagen</source>
        <translation>My design templates</translation>
    </message>
    <message>
        <source>Passend zu Ihren Fotos</source>
        <translation>Matching your photos</translation>
    </message>
    <message>
        <source>Passend zur Einband-Innenseite</source>
        <translation>Matching the inside cover</translation>
    </message>
    <message>
        <source>Stile mit gewählter Veredelung</source>
        <translation>Styles with the chosen finish</translation>
    </message>
    <message>
        <source>category-last-downloaded</source>
        <translation>Last downloaded</translation>
    </message>
    <message>
        <source>category-colours</source>
        <translation>Colour fills</translation>
    </message>
    <message>
        <source>Oben</source>
        <translation>Top</translation>
    </message>
    <message>
        <source>Zentriert</source>
        <translation>Centred</translation>
    </message>
    <message>
        <source>Breiter Rand</source>
        <translation>Wide margin</translation>
    </message>
    <message>
        <source>Quadratisch</source>
        <translation>Square</translation>
    </message>
    <message>
        <source>Mittig</source>
        <translation>Middle</translation>
    </message>
    <message>
        <source>Elegant</source>
        <translation>Elegant</translation>
    </message>
    <message>
        <source>Klassisch</source>
        <translation>Classic</translation>
    </message>
    <message>
        <source>large</source>
        <translation>Large picture</translation>
    </message>
    <message>
        <source>full</source>
        <translation>Full page</translation>
    </message>
</context>
</TS>
