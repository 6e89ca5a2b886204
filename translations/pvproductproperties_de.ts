<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="de">
<context>
    <name>PvFotoBookShape</name>
    <message>
        <source>Mini</source>
        <translation>Mini</translation>
    </message>
    <message>
        <source>(ca. 15 x 11 cm)</source>
        <translation>(ca. 15 x 11 cm)</translation>
    </message>
    <message>
        <source>Kids</source>
        <translation>Kids</translation>
    </message>
    <message>
        <source>(ca. 14 x 14 cm)</source>
        <translation>(ca. 14 x 14 cm)</translation>
    </message>
    <message>
        <source>Compact Panorama</source>
        <translation>Compact Panorama</translation>
    </message>
    <message>
        <source>(ca. 19 x 15 cm)</source>
        <translation>(ca. 19 x 15 cm)</translation>
    </message>
    <message>
        <source>Compact Quadratisch</source>
        <translation>Compact Quadratisch</translation>
    </message>
    <message>
        <source>(ca. 15 x 15 cm)</source>
        <translation>(ca. 15 x 15 cm)</translation>
    </message>
    <message>
        <source>Groß</source>
        <translation>Groß</translation>
    </message>
    <message>
        <source>(ca. 21 x 28 cm)</source>
        <translation>(ca. 21 x 28 cm)</translation>
    </message>
    <message>
        <source>Groß Panorama</source>
        <translation>Groß Panorama</translation>
    </message>
    <message>
        <source>(ca. 28 x 21 cm)</source>
        <translation>(ca. 28 x 21 cm)</translation>
    </message>
    <message>
        <source>Quadratisch</source>
        <translation>Quadratisch</translation>
    </message>
    <message>
        <source>(ca. 21 x 21 cm)</source>
        <translation>(ca. 21 x 21 cm)</translation>
    </message>
    <message>
        <source>XL</source>
        <translation>XL</translation>
    </message>
    <message>
        <source>(ca. 30 x 30 cm)</source>
        <translation>(ca. 30 x 30 cm)</translation>
    </message>
    <message>
        <source>XXL</source>
        <translation>XXL</translation>
    </message>
    <message>
        <source>(ca. 28 x 36 cm)</source>
        <translation>(ca. 28 x 36 cm)</translation>
    </message>
    <message>
        <source>XXL Panorama</source>
        <translation>XXL Panorama</translation>
    </message>
    <message>
        <source>(ca. 38 x 29 cm)</source>
        <translation>(ca. 38 x 29 cm)</translation>
    </message>
    <message>
        <source>MIRAL FOTOBUCH</source>
        <translation>MIRAL FOTOBUCH</translation>
    </message>
</context>
<context>
    <name>PvHumanReadable</name>
    <message>
        <source>Leinwand Ohne Rahmen</source>
        <translation>Leinwand Ohne Rahmen</translation>
    </message>
    <message>
        <source>Poster Ohne Rahmen</source>
        <translation>Poster Ohne Rahmen</translation>
    </message>
    <message>
        <source>Kunststoff Schwarz</source>
        <translation>Kunststoff Schwarz</translation>
    </message>
    <message>
        <source>Kunststoff Weiß</source>
        <translation>Kunststoff Weiß</translation>
    </message>
    <message>
        <source>Weiß</source>
        <translation>Weiß</translation>
    </message>
    <message>
        <source>Schwarz</source>
        <translation>Schwarz</translation>
    </message>
    <message>
        <source>Grau</source>
        <translation>Grau</translation>
    </message>
    <message>
        <source>Cremeweiß</source>
        <translation>Cremeweiß</translation>
    </message>
    <message>
        <source>Glas</source>
        <translation>Glas</translation>
    </message>
    <message>
        <source>Kaschierung</source>
        <translation>Kaschierung</translation>
    </message>
    <message>
        <source>Landhaus Creme</source>
        <translation>Landhaus Creme</translation>
    </message>
    <message>
        <source>Landhaus Rot</source>
        <translation>Landhaus Rot</translation>
    </message>
    <message>
        <source>Landhaus Blau</source>
        <translation>Landhaus Blau</translation>
    </message>
    <message>
        <source>Holzrahmen Natur</source>
        <translation>Holzrahmen Natur</translation>
    </message>
    <message>
        <source>Holzrahmen Eiche</source>
        <translation>Holzrahmen Eiche</translation>
    </message>
    <message>
        <source>Holzrahmen Walnuss</source>
        <translation>Holzrahmen Walnuss</translation>
    </message>
    <message>
        <source>Holzrahmen Schwarz</source>
        <translation>Holzrahmen Schwarz</translation>
    </message>
    <message>
        <source>Holzrahmen Weiß</source>
        <translation>Holzrahmen Weiß</translation>
    </message>
    <message>
        <source>Holzrahmen Grün</source>
        <translation>Holzrahmen Grün</translation>
    </message>
    <message>
        <source>Holzrahmen Blau</source>
        <translation>Holzrahmen Blau</translation>
    </message>
    <message>
        <source>Holzrahmen Rot</source>
        <translation>Holzrahmen Rot</translation>
    </message>
    <message>
        <source>Aluline Gold</source>
        <translation>Aluline Gold</translation>
    </message>
    <message>
        <source>Aluline Silber</source>
        <translation>Aluline Silber</translation>
    </message>
    <message>
        <source>Aluline Bronze</source>
        <translation>Aluline Bronze</translation>
    </message>
    <message>
        <source>Aluline Champagner</source>
        <translation>Aluline Champagner</translation>
    </message>
    <message>
        <source>Aluline Schwarz</source>
        <translation>Aluline Schwarz</translation>
    </message>
    <message>
        <source>Aluline Weiß</source>
        <translation>Aluline Weiß</translation>
    </message>
    <message>
        <source>Aluline Rot</source>
        <translation>Aluline Rot</translation>
    </message>
    <message>
        <source>Aluline Blau</source>
        <translation>Aluline Blau</translation>
    </message>
    <message>
        <source>Aluline Grün</source>
        <translation>Aluline Grün</translation>
    </message>
    <message>
        <source>Metallrahmen Schwarz</source>
        <translation>Metallrahmen Schwarz</translation>
    </message>
    <message>
        <source>Metallrahmen Silber</source>
        <translation>Metallrahmen Silber</translation>
    </message>
    <message>
        <source>Metallrahmen Kupfer</source>
        <translation>Metallrahmen Kupfer</translation>
    </message>
    <message>
        <source>Metallrahmen Gold</source>
        <translation>Metallrahmen Gold</translation>
    </message>
    <message>
        <source>Premium-Poster Ohne Rahmen</source>
        <translation>Premium-Poster Ohne Rahmen</translation>
    </message>
    <message>
        <source>Schattenfugenrahmen Schwarz</source>
        <translation>Schattenfugenrahmen Schwarz</translation>
    </message>
    <message>
        <source>Schattenfugenrahmen Natur</source>
        <translation>Schattenfugenrahmen Natur</translation>
    </message>
    <message>
        <source>Galerierahmen Für Leinwand</source>
        <translation>Galerierahmen Für Leinwand</translation>
    </message>
    <message>
        <source>Bilderleiste Buche</source>
        <translation>Bilderleiste Buche</translation>
    </message>
    <message>
        <source>Barockleiste Gold</source>
        <translation>Barockleiste Gold</translation>
    </message>
    <message>
        <source>Barockleiste Silber</source>
        <translation>Barockleiste Silber</translation>
    </message>
    <message>
        <source>Acrylrahmen Klar</source>
        <translation>Acrylrahmen Klar</translation>
    </message>
    <message>
        <source>Posterleiste Schwarz</source>
        <translation>Posterleiste Schwarz</translation>
    </message>
    <message>
        <source>Posterleiste Weiß</source>
        <translation>Posterleiste Weiß</translation>
    </message>
    <message>
        <source>Leinwand Schmaler Keilrahmen</source>
        <translation>Leinwand Schmaler Keilrahmen</translation>
    </message>
</context>
<context>
    <name>PvJigType</name>
    <message>
        <source>Hintergrund</source>
        <translation>Hintergrund</translation>
    </message>
    <message>
        <source>Clipart</source>
        <translation>Clipart</translation>
    </message>
    <message>
        <source>Design</source>
        <translation>Design</translation>
    </message>
    <message>
        <source>Layout</source>
        <translation>Layout</translation>
    </message>
    <message>
        <source>Maske</source>
        <translation>Maske</translation>
    </message>
    <message>
        <source>Rahmen</source>
        <translation>Rahmen</translation>
    </message>
    <message>
        <source>Passepartout</source>
        <translation>Passepartout</translation>
    </message>
    <message>
        <source>Glas</source>
        <translation>Glas</translation>
    </message>
    <message>
        <source>Wandhalterung</source>
        <translation>Wandhalterung</translation>
    </message>
    <message>
        <source>Designvorlage</source>
        <translation>Designvorlage</translation>
    </message>
    <message>
        <source>Buchvorlage</source>
        <translation>Buchvorlage</translation>
    </message>
</context>
<context>
    <name>PvPageNamingStyle</name>
    <message>
        <source>Buch</source>
        <translation>Buch</translation>
    </message>
    <message>
        <source>Kalender</source>
        <translation>Kalender</translation>
    </message>
    <message>
        <source>Einseitige Karte</source>
        <translation>Einseitige Karte</translation>
    </message>
    <message>
        <source>Beidseitige Karte</source>
        <translation>Beidseitige Karte</translation>
    </message>
    <message>
        <source>Paarspiel</source>
        <translation>Paarspiel</translation>
    </message>
    <message>
        <source>Collegeblock</source>
        <translation>Collegeblock</translation>
    </message>
    <message>
        <source>Premium-Kissen</source>
        <translation>Premium-Kissen</translation>
    </message>
    <message>
        <source>Sticker</source>
        <translation>Sticker</translation>
    </message>
    <message>
        <source>Adressbuch</source>
        <translation>Adressbuch</translation>
    </message>
    <message>
        <source>Jahreskalender beidseitig</source>
        <translation>Jahreskalender beidseitig</translation>
    </message>
    <message>
        <source>Spielkarten</source>
        <translation>Spielkarten</translation>
    </message>
    <message>
        <source>Quartett</source>
        <translation>Quartett</translation>
    </message>
    <message>
        <source>Nummerierte Karten</source>
        <translation>Nummerierte Karten</translation>
    </message>
    <message>
        <source>Terminplaner</source>
        <translation>Terminplaner</translation>
    </message>
    <message>
        <source>Schafkopfkarten</source>
        <translation>Schafkopfkarten</translation>
    </message>
    <message>
        <source>Postkarte</source>
        <translation>Postkarte</translation>
    </message>
    <message>
        <source>Kunstdruck</source>
        <translation>Kunstdruck</translation>
    </message>
    <message>
        <source>Adventskalender</source>
        <translation>Adventskalender</translation>
    </message>
    <message>
        <source>Mini-Abzüge</source>
        <translation>Mini-Abzüge</translation>
    </message>
    <message>
        <source>Ohne Seitennamen</source>
        <translation>Ohne Seitennamen</translation>
    </message>
    <message>
        <source>Deluxe-Adventskalender</source>
        <translation>Deluxe-Adventskalender</translation>
    </message>
    <message>
        <source>Bilderbox</source>
        <translation>Bilderbox</translation>
    </message>
    <message>
        <source>Magnet</source>
        <translation>Magnet</translation>
    </message>
    <message>
        <source>Adventskalender mit Türchenrückseiten</source>
        <translation>Adventskalender mit Türchenrückseiten</translation>
    </message>
    <message>
        <source>Kinderbuch</source>
        <translation>Kinderbuch</translation>
    </message>
    <message>
        <source>Karte mit Einlegekarte</source>
        <translation>Karte mit Einlegekarte</translation>
    </message>
    <message>
        <source>Legespiel</source>
        <translation>Legespiel</translation>
    </message>
    <message>
        <source>Poster mit Ausschnitt</source>
        <translation>Poster mit Ausschnitt</translation>
    </message>
    <message>
        <source>Adventskalender 4+1</source>
        <translation>Adventskalender 4+1</translation>
    </message>
    <message>
        <source>Schuber</source>
        <translation>Schuber</translation>
    </message>
</context>
<context>
    <name>PvPreview3DDescription</name>
    <message>
        <source>Produktvorschau</source>
        <translation>Produktvorschau</translation>
    </message>
</context>
<context>
    <name>PvProductClassificationGroup</name>
    <message>
        <source>Poster</source>
        <translation>Poster</translation>
    </message>
    <message>
        <source>Fotoleinwand</source>
        <translation>Fotoleinwand</translation>
    </message>
    <message>
        <source>Foto auf Alu-Dibond</source>
        <translation>Foto auf Alu-Dibond</translation>
    </message>
    <message>
        <source>Foto hinter Acrylglas</source>
        <translation>Foto hinter Acrylglas</translation>
    </message>
    <message>
        <source>Foto auf Alu-Dibond (Direktdruck)</source>
        <translation>Foto auf Alu-Dibond (Direktdruck)</translation>
    </message>
    <message>
        <source>Foto hinter Acrylglas (Direktdruck)</source>
        <translation>Foto hinter Acrylglas (Direktdruck)</translation>
    </message>
    <message>
        <source>Premium Poster Digitaldruck Matt</source>
        <translation>Premium Poster Digitaldruck Matt</translation>
    </message>
    <message>
        <source>Foto auf Hartschaum (Direktdruck)</source>
        <translation>Foto auf Hartschaum (Direktdruck)</translation>
    </message>
    <message>
        <source>Foto als Gallery Print</source>
        <translation>Foto als Gallery Print</translation>
    </message>
    <message>
        <source>Premium Poster Fotopapier Glänzend</source>
        <translation>Premium Poster Fotopapier Glänzend</translation>
    </message>
    <message>
        <source>Premium Poster Digitaldruck Matt (100% recycelt)</source>
        <translation>Premium Poster Digitaldruck Matt (100% recycelt)</translation>
    </message>
    <message>
        <source>Premium Poster Fotopapier Matt</source>
        <translation>Premium Poster Fotopapier Matt</translation>
    </message>
    <message>
        <source>Premium Poster Fotopapier Seidenraster</source>
        <translation>Premium Poster Fotopapier Seidenraster</translation>
    </message>
    <message>
        <source>Premium Poster Fotopapier Perlmutt</source>
        <translation>Premium Poster Fotopapier Perlmutt</translation>
    </message>
    <message>
        <source>Premium Poster Digitaldruck Fine Art Matt</source>
        <translation>Premium Poster Digitaldruck Fine Art Matt</translation>
    </message>
    <message>
        <source>Fotoleiste als Gallery Print (Direktdruck)</source>
        <translation>Fotoleiste als Gallery Print (Direktdruck)</translation>
    </message>
    <message>
        <source>Fotoleiste auf Alu-Dibond (Direktdruck)</source>
        <translation>Fotoleiste auf Alu-Dibond (Direktdruck)</translation>
    </message>
    <message>
        <source>Fotoleiste hinter Acrylglas (Direktdruck)</source>
        <translation>Fotoleiste hinter Acrylglas (Direktdruck)</translation>
    </message>
    <message>
        <source>Fotoleiste auf Hartschaum (Direktdruck)</source>
        <translation>Fotoleiste auf Hartschaum (Direktdruck)</translation>
    </message>
    <message>
        <source>Fine Art Print</source>
        <translation>Fine Art Print</translation>
    </message>
    <message>
        <source>Foto auf Holz (Direktdruck)</source>
        <translation>Foto auf Holz (Direktdruck)</translation>
    </message>
    <message>
        <source>Foto im Rahmen</source>
        <translation>Foto im Rahmen</translation>
    </message>
    <message>
        <source>Photo Streetmap Poster</source>
        <translation>Photo Streetmap Poster</translation>
    </message>
</context>
<context>
    <name>PvThematicCategory</name>
    <message>
        <source>Alle anzeigen</source>
        <translation>Alle anzeigen</translation>
    </message>
</context>
<context>
    <name>PvThematicCategorySet</name>
    <message>
        <source>Sonstige</source>
        <translation>Sonstige</translation>
    </message>
</context>
</TS>
