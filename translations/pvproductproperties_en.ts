<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="de">
<context>
    <name>PvFotoBookShape</name>
    <message>
        <source>Mini</source>
        <translation>Mini</translation>
    </message>
    <message>
        <source>(ca. 15 x 11 cm)</source>
        <translation>(approx. 15 x 11 cm)</translation>
    </message>
    <message>
        <source>Kids</source>
        <translation>Kids</translation>
    </message>
    <message>
        <source>(ca. 14 x 14 cm)</source>
        <translation>(approx. 14 x 14 cm)</translation>
    </message>
    <message>
        <source>Compact Panorama</source>
        <translation>Compact Panorama</translation>
    </message>
    <message>
        <source>(ca. 19 x 15 cm)</source>
        <translation>(approx. 19 x 15 cm)</translation>
    </message>
    <message>
        <source>Compact Quadratisch</source>
        <translation>Compact Square</translation>
    </message>
    <message>
        <source>(ca. 15 x 15 cm)</source>
        <translation>(approx. 15 x 15 cm)</translation>
    </message>
    <message>
        <source>Groß</source>
        <translation>Large</translation>
    </message>
    <message>
        <source>(ca. 21 x 28 cm)</source>
        <translation>(approx. 21 x 28 cm)</translation>
    </message>
    <message>
        <source>Groß Panorama</source>
        <translation>Large Panorama</translation>
    </message>
    <message>
        <source>(ca. 28 x 21 cm)</source>
        <translation>(approx. 28 x 21 cm)</translation>
    </message>
    <message>
        <source>Quadratisch</source>
        <translation>Square</translation>
    </message>
    <message>
        <source>(ca. 21 x 21 cm)</source>
        <translation>(approx. 21 x 21 cm)</translation>
    </message>
    <message>
        <source>XL</source>
        <translation>XL</translation>
    </message>
    <message>
        <source>(ca. 30 x 30 cm)</source>
        <translation>(approx. 30 x 30 cm)</translation>
    </message>
    <message>
        <source>XXL</source>
        <translation>XXL</translation>
    </message>
    <message>
        <source>(ca. 28 x 36 cm)</source>
        <translation>(approx. 28 x 36 cm)</translation>
    </message>
    <message>
        <source>XXL Panorama</source>
        <translation>XXL Panorama</translation>
    </message>
    <message>
        <source>(ca. 38 x 29 cm)</source>
        <translation>(approx. 38 x 29 cm)</translation>
    </message>
    <message>
        <source>MIRAL FOTOBUCH</source>
        <translation>MIRAL PHOTO BOOK</translation>
    </message>
</context>
<context>
    <name>PvHumanReadable</name>
    <message>
        <source>Leinwand Ohne Rahmen</source>
        <translation>Canvas Without Frame</translation>
    </message>
    <message>
        <source>Poster Ohne Rahmen</source>
        <translation>Poster Without Frame</translation>
    </message>
    <message>
        <source>Kunststoff Schwarz</source>
        <translation>Plastic Black</translation>
    </message>
    <message>
        <source>Kunststoff Weiß</source>
        <translation>Plastic White</translation>
    </message>
    <message>
        <source>Weiß</source>
        <translation>White</translation>
    </message>
    <message>
        <source>Schwarz</source>
        <translation>Black</translation>
    </message>
    <message>
        <source>Grau</source>
        <translation>Grey</translation>
    </message>
    <message>
        <source>Cremeweiß</source>
        <translation>Cream</translation>
    </message>
    <message>
        <source>Glas</source>
        <translation>Glass</translation>
    </message>
    <message>
        <source>Kaschierung</source>
        <translation>Lamination</translation>
    </message>
    <message>
        <source>Landhaus Creme</source>
        <translation>Country House Cream</translation>
    </message>
    <message>
        <source>Landhaus Rot</source>
        <translation>Country House Red</translation>
    </message>
    <message>
        <source>Landhaus Blau</source>
        <translation>Country House Blue</translation>
    </message>
    <message>
        <source>Holzrahmen Natur</source>
        <translation>Wooden Frame Natural</translation>
    </message>
    <message>
        <source>Holzrahmen Eiche</source>
        <translation>Wooden Frame Oak</translation>
    </message>
    <message>
        <source>Holzrahmen Walnuss</source>
        <translation>Wooden Frame Walnut</translation>
    </message>
    <message>
        <source>Holzrahmen Schwarz</source>
        <translation>Wooden Frame Black</translation>
    </message>
    <message>
        <source>Holzrahmen Weiß</source>
        <translation>Wooden Frame White</translation>
    </message>
    <message>
        <source>Holzrahmen Grün</source>
        <translation>Wooden Frame Green</translation>
    </message>
    <message>
        <source>Holzrahmen Blau</source>
        <translation>Wooden Frame Blue</translation>
    </message>
    <message>
        <source>Holzrahmen Rot</source>
        <translation>Wooden Frame Red</translation>
    </message>
    <message>
        <source>Aluline Gold</source>
        <translation>Aluline Gold</translation>
    </message>
    <message>
        <source>Aluline Silber</source>
        <translation>Aluline Silver</translation>
    </message>
    <message>
        <source>Aluline Bronze</source>
        <translation>Aluline Bronze</translation>
    </message>
    <message>
        <source>Aluline Champagner</source>
        <translation>Aluline Champagne</translation>
    </message>
    <message>
        <source>Aluline Schwarz</source>
        <translation>Aluline Black</translation>
    </message>
    <message>
        <source>Aluline Weiß</source>
        <translation>Aluline White</translation>
    </message>
    <message>
        <source>Aluline Rot</source>
        <translation>Aluline Red</translation>
    </message>
    <message>
        <source>Aluline Blau</source>
        <translation>Aluline Blue</translation>
    </message>
    <message>
        <source>Aluline Grün</source>
        <translation>Aluline Green</translation>
    </message>
    <message>
        <source>Metallrahmen Schwarz</source>
        <translation>Metal Frame Black</translation>
    </message>
    <message>
        <source>Metallrahmen Silber</source>
        <translation>Metal Frame Silver</translation>
    </message>
    <message>
        <source>Metallrahmen Kupfer</source>
        <translation>Metal Frame Copper</translation>
    </message>
    <message>
        <source>Metallrahmen Gold</source>
        <translation>Metal Frame Gold</translation>
    </message>
    <message>
        <source>Premium-Poster Ohne Rahmen</source>
        <translation>Premium Poster Without Frame</translation>
    </message>
    <message>
        <source>Schattenfugenrahmen Schwarz</source>
        <translation>Floater Frame Black</translation>
    </message>
    <message>
        <source>Schattenfugenrahmen Natur</source>
        <translation>Floater Frame Natural</translation>
    </message>
    <message>
        <source>Galerierahmen Für Leinwand</source>
        <translation>Gallery Frame For Canvas</translation>
    </message>
    <message>
        <source>Bilderleiste Buche</source>
        <translation>Picture Rail Beech</translation>
    </message>
    <message>
        <source>Barockleiste Gold</source>
        <translation>Baroque Frame Gold</translation>
    </message>
    <message>
        <source>Barockleiste Silber</source>
        <translation>Baroque Frame Silver</translation>
    </message>
    <message>
        <source>Acrylrahmen Klar</source>
        <translation>Acrylic Frame Clear</translation>
    </message>
    <message>
        <source>Posterleiste Schwarz</source>
        <translation>Poster Hanger Black</translation>
    </message>
    <message>
        <source>Posterleiste Weiß</source>
        <translation>Poster Hanger White</translation>
    </message>
    <message>
        <source>Leinwand Schmaler Keilrahmen</source>
        <translation>Canvas Slim Stretcher Frame</translation>
    </message>
</context>
<context>
    <name>PvJigType</name>
    <message>
        <source>Hintergrund</source>
        <translation>Background</translation>
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
        <translation>Mask</translation>
    </message>
    <message>
        <source>Rahmen</source>
        <translation>Frame</translation>
    </message>
    <message>
        <source>Passepartout</source>
        <translation>Passe-partout</translation>
    </message>
    <message>
        <source>Glas</source>
        <translation>Glass</translation>
    </message>
    <message>
        <source>Wandhalterung</source>
        <translation>Wall Mount</translation>
    </message>
    <message>
        <source>Designvorlage</source>
        <translation>Design Template</translation>
    </message>
    <message>
        <source>Buchvorlage</source>
        <translation>Book Template</translation>
    </message>
</context>
<context>
    <name>PvPageNamingStyle</name>
    <message>
        <source>Buch</source>
        <translation>Book</translation>
    </message>
    <message>
        <source>Kalender</source>
        <translation>Calendar</translation>
    </message>
    <message>
        <source>Einseitige Karte</source>
        <translation>Single-sided card</translation>
    </message>
    <message>
        <source>Beidseitige Karte</source>
        <translation>Double-sided card</translation>
    </message>
    <message>
        <source>Paarspiel</source>
        <translation>Pairs game</translation>
    </message>
    <message>
        <source>Collegeblock</source>
        <translation>Writing pad</translation>
    </message>
    <message>
        <source>Premium-Kissen</source>
        <translation>Premium cushion</translation>
    </message>
    <message>
        <source>Sticker</source>
        <translation>Sticker</translation>
    </message>
    <message>
        <source>Adressbuch</source>
        <translation>Address book</translation>
    </message>
    <message>
        <source>Jahreskalender beidseitig</source>
        <translation>Double-sided year planner</translation>
    </message>
    <message>
        <source>Spielkarten</source>
        <translation>Playing cards</translation>
    </message>
    <message>
        <source>Quartett</source>
        <translation>Quartet</translation>
    </message>
    <message>
        <source>Nummerierte Karten</source>
        <translation>Numbered cards</translation>
    </message>
    <message>
        <source>Terminplaner</source>
        <translation>Diary</translation>
    </message>
    <message>
        <source>Schafkopfkarten</source>
        <translation>Sheepshead cards</translation>
    </message>
    <message>
        <source>Postkarte</source>
        <translation>Postcard</translation>
    </message>
    <message>
        <source>Kunstdruck</source>
        <translation>Art print</translation>
    </message>
    <message>
        <source>Adventskalender</source>
        <translation>Advent calendar</translation>
    </message>
    <message>
        <source>Mini-Abzüge</source>
        <translation>Mini prints</translation>
    </message>
    <message>
        <source>Ohne Seitennamen</source>
        <translation>No page names</translation>
    </message>
    <message>
        <source>Deluxe-Adventskalender</source>
        <translation>Deluxe advent calendar</translation>
    </message>
    <message>
        <source>Bilderbox</source>
        <translation>Picture box</translation>
    </message>
    <message>
        <source>Magnet</source>
        <translation>Magnet</translation>
    </message>
    <message>
        <source>Adventskalender mit Türchenrückseiten</source>
        <translation>Advent calendar with printed door backs</translation>
    </message>
    <message>
        <source>Kinderbuch</source>
        <translation>Children&apos;s book</translation>
    </message>
    <message>
        <source>Karte mit Einlegekarte</source>
        <translation>Card with insert</translation>
    </message>
    <message>
        <source>Legespiel</source>
        <translation>Tile game</translation>
    </message>
    <message>
        <source>Poster mit Ausschnitt</source>
        <translation>Poster with cut-out</translation>
    </message>
    <message>
        <source>Adventskalender 4+1</source>
        <translation>Advent calendar 4+1</translation>
    </message>
    <message>
        <source>Schuber</source>
        <translation>Slipcase</translation>
    </message>
</context>
<context>
    <name>PvPreview3DDescription</name>
    <message>
        <source>Produktvorschau</source>
        <translation>Product preview</translation>
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
        <translation>Photo on canvas</translation>
    </message>
    <message>
        <source>Foto auf Alu-Dibond</source>
        <translation>Photo on aluminium composite</translation>
    </message>
    <message>
        <source>Foto hinter Acrylglas</source>
        <translation>Photo behind acrylic glass</translation>
    </message>
    <message>
        <source>Foto auf Alu-Dibond (Direktdruck)</source>
        <translation>Photo on aluminium composite (direct print)</translation>
    </message>
    <message>
        <source>Foto hinter Acrylglas (Direktdruck)</source>
        <translation>Photo behind acrylic glass (direct print)</translation>
    </message>
    <message>
        <source>Premium Poster Digitaldruck Matt</source>
        <translation>Premium poster, digital print, matt</translation>
    </message>
    <message>
        <source>Foto auf Hartschaum (Direktdruck)</source>
        <translation>Photo on foam board (direct print)</translation>
    </message>
    <message>
        <source>Foto als Gallery Print</source>
        <translation>Photo as gallery print</translation>
    </message>
    <message>
        <source>Premium Poster Fotopapier Glänzend</source>
        <translation>Premium poster, photo paper, glossy</translation>
    </message>
    <message>
        <source>Premium Poster Digitaldruck Matt (100% recycelt)</source>
        <translation>Premium poster, digital print, matt (100% recycled)</translation>
    </message>
    <message>
        <source>Premium Poster Fotopapier Matt</source>
        <translation>Premium poster, photo paper, matt</translation>
    </message>
    <message>
        <source>Premium Poster Fotopapier Seidenraster</source>
        <translation>Premium poster, photo paper, silk</translation>
    </message>
    <message>
        <source>Premium Poster Fotopapier Perlmutt</source>
        <translation>Premium poster, photo paper, pearl</translation>
    </message>
    <message>
        <source>Premium Poster Digitaldruck Fine Art Matt</source>
        <translation>Premium poster, digital print, fine art matt</translation>
    </message>
    <message>
        <source>Fotoleiste als Gallery Print (Direktdruck)</source>
        <translation>Photo strip as gallery print (direct print)</translation>
    </message>
    <message>
        <source>Fotoleiste auf Alu-Dibond (Direktdruck)</source>
        <translation>Photo strip on aluminium composite (direct print)</translation>
    </message>
    <message>
        <source>Fotoleiste hinter Acrylglas (Direktdruck)</source>
        <translation>Photo strip behind acrylic glass (direct print)</translation>
    </message>
    <message>
        <source>Fotoleiste auf Hartschaum (Direktdruck)</source>
        <translation>Photo strip on foam board (direct print)</translation>
    </message>
    <message>
        <source>Fine Art Print</source>
        <translation>Fine art print</translation>
    </message>
    <message>
        <source>Foto auf Holz (Direktdruck)</source>
        <translation>Photo on wood (direct print)</translation>
    </message>
    <message>
        <source>Foto im Rahmen</source>
        <translation>Framed photo</translation>
    </message>
    <message>
        <source>Photo Streetmap Poster</source>
        <translation>Photo street map poster</translation>
    </message>
</context>
<context>
    <name>PvThematicCategory</name>
    <message>
        <source>Alle anzeigen</source>
        <translation>Show all</translation>
    </message>
</context>
<context>
    <name>PvThematicCategorySet</name>
    <message>
        <source>Sonstige</source>
        <translation>Other</translation>
    </message>
</context>
</TS>
