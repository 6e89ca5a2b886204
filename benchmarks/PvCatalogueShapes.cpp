#include "PvCatalogueShapes.h"

const char* const PvCatalogueShapes::photoBook = R"(<?xml version="1.0" encoding="UTF-8"?>
<!-- Generated photo book {index}: {binding}, {format}, {width} x {height}. -->
<products>
  <product name="{name}" class="photobook" binding="{binding}"
           isVario="false" isTwoSided="true" imageFXs="none"
           horizontalPages="true" productAlignment="normal" hasLogoOnSpine="{logo}"
           foldsafetymargin="{fold}">
    <pages>{pages}</pages>
    <productionnumbering>0,0,0,1</productionnumbering>
    <pageNumberConfig>
      <margin horizontalMargin="{margin}" verticalMargin="60"/>
      <font fontSize="20"/>
    </pageNumberConfig>
    <tilt angle="0"/>
    <rotationredirects>
      <rotationredirect from="0" to="2" angleinvert="-1"/>
    </rotationredirects>
    <contentredirects>
      <contentredirect from="0-2" to="3"/>
      <contentredirect from="{lastFrom}-{lastTo}" to="{lastPage}"/>
    </contentredirects>
    <variants>
      <variant id="matt" name="Seidenmatt" default="true"/>
      <variant id="glossy" name="Hochglanz"/>
      <variant id="wire" name="Wire-O-Bindung"/>
    </variants>
    <surroundings>
      <!-- The spine (page 1) shows where the logo is printed; listed first so that it wins. -->
      <surrounding type="BOOK" pageType="spine" pageNr="1" image="surroundings/{format}-spine-logo-zone.png"
                   paintOnTop="true" hasbindingshade="true"/>
      <surrounding type="BOOK" pageType="cover_back,spine,cover_front" alignment="left,center,right"
                   image="surroundings/{binding}-{format}-binding-shade.png" paintOnTop="true"
                   hasbindingshade="true" hasspinefold="true" spinefoldwidth="{spine}"
                   x="150" y="150" width="{width}" height="{height}"/>
      <surrounding type="TILED" pageType="cover_back,cover_front" variant="matt"
                   image="surroundings/{binding}-texture.png" tileWidth="{tile}" tileHeight="{tile}"
                   canBeHiddenByUser="true"/>
      <surrounding type="BOOK" pageType="flyleaf" image="surroundings/flyleaf-shade.png" paintOnTop="false"/>
      <surrounding type="BOOK" pageType="page" alignment="left,right" variant="wire"
                   image="surroundings/wire-o-gutter.png" paintOnTop="true">
        <spirals count="{loops}" loopWidth="54" loopHeight="150" loopDistance="54"
                 variant="spiralbinding-one-loop-vertical.png">
          <loopImages>
            <loopImage variant="silver" imagePath="spiralbinding-one-loop-vertical.png"/>
            <loopImage variant="black" imagePath="spiralbinding-one-loop-vertical-black.png"/>
          </loopImages>
        </spirals>
      </surrounding>
      <surrounding type="BOOK" pageType="page" alignment="left,right"
                   image="surroundings/book-inner-gutter.png" paintOnTop="true" hasbindingshade="true"/>
    </surroundings>
    <defaults>
      <default pageType="cover_front" templates="201,cover-title-{layout}"/>
      <default pageType="cover_back" alignment="left" background="201" layout="cover-back-empty"/>
      <default pageType="spine" layout="spine-title" background="201"/>
      <default pageType="flyleaf" templates="{background},flyleaf-plain"/>
      <default pageType="{left}" alignment="left" templates="{background},two-photos-landscape"/>
      <default pageType="{right}" alignment="right" templates="{background},one-photo-{layout}"/>
      <default pageType="{right}" pageNr="3" layout="Übersicht-Titelseite" design="design-first-page"/>
      <default pageType="{left},{right}" scenePageCount="2" layout="panorama-spread"/>
    </defaults>
    <extra_production_pages>
      <item>
        <target_pages>0,2</target_pages>
        <pdf filename="production/{binding}-{format}-lamination-mask.pdf" type="lamination" layer="1"/>
      </item>
      <item>
        <target_pages>3-{lastPage}</target_pages>
        <pdf filename="production/{format}-page-trim.pdf" type="trim" layer="0"/>
      </item>
    </extra_production_pages>
    <editorAbilities convertable="true">
      <assistant enabled="true"/>
      <pageNamingStyle>book</pageNamingStyle>
      <pageTilt disabled="true" pages="0,1,2"/>
      <startPage>3</startPage>
      <jigs showChangeBaseDesignButton="true">
        <background enabled="true" rotatable="false" fullOnEachPage="true">
          <categories pageType="cover_front,cover_back">{coverCategories}</categories>
          <categories pageType="page">{pageCategories}</categories>
        </background>
        <clipart enabled="true" rotatable="true">
          <categories pageType="page,flyleaf">{clipartCategories}</categories>
        </clipart>
        <layout enabled="true">
          <categories pageType="spine">Buchrücken</categories>
          <categories pageType="page">Collage,Klassisch,Elegant</categories>
        </layout>
        <passepartout enabled="true">
          <categories pageType="page">{maskCategories}</categories>
        </passepartout>
        <frame enabled="true" rotatable="true">
          <categories pageType="page,cover_front">Klassisch,Elegant,Muster</categories>
        </frame>
        <styles_v2 enabled="true" exactArticle="true">
          <categories pageType="cover_front">{styleCategories}</categories>
        </styles_v2>
        <content enabled="true"/>
        <storybook enabled="true" exactArticle="true"/>
      </jigs>
    </editorAbilities>
    <pricelist>
      <category>FB-{code}</category>
    </pricelist>
    <barcodes>
      <barcode type="code128" page="0" x="{barcodeX}" y="{barcodeY}" width="320" height="80"/>
    </barcodes>
  </product>
</products>
)";

const char* const PvCatalogueShapes::calendar = R"(<?xml version="1.0" encoding="UTF-8"?>
<!-- Generated wall calendar {index}: cover and twelve months each with a picture and a
     calendarium page, wire spiral along the top edge and a hanging hole. -->
<products>
  <product name="{name}" class="calendar" binding="spiral"
           isTwoSided="false" horizontalPages="false" productAlignment="normal">
    <pages>cover,run_year</pages>
    <productionnumbering>0,1</productionnumbering>
    <pageswithcontent>0,1,2,3,4,5,6,7,8,9,10,11,12,13,14,15,16,17,18,19,20,21,22,23,24,25</pageswithcontent>
    <tilt angle="0"/>
    <rotationredirects>
      <rotationredirect from="0" to="-1" angleinvert="1"/>
    </rotationredirects>
    <contentredirects>
      <contentredirect from="4-25" to="3"/>
    </contentredirects>
    <variants>
      <variant id="silver" name="Spirale Silber" default="true"/>
      <variant id="gold" name="Spirale Gold"/>
      <variant id="black" name="Spirale Schwarz"/>
    </variants>
    <surroundings>
      <surrounding type="CALENDAR" pageType="cover,page,month" alignment="top,bottom"
                   image="surroundings/calendar-{width}-paper-edge.png" canBeHiddenByUser="true"
                   x="0" y="0" width="{width}" height="{height}">
        <hole diameter="60" distanceY="{holeY}"/>
        <spirals count="{loops}" hookWidth="200" hookHeight="60"
                 loopWidth="54" loopHeight="150" loopDistance="30"
                 variant="spiralbinding-one-loop-vertical.png">
          <loopImages>
            <loopImage variant="silver" imagePath="spiralbinding-one-loop-vertical.png"/>
            <loopImage variant="gold" imagePath="spiralbinding-one-loop-vertical-gold.png"/>
            <loopImage variant="black" imagePath="spiralbinding-one-loop-vertical-black.png"/>
          </loopImages>
        </spirals>
      </surrounding>
      <surrounding type="CALENDAR_FINELINE" pageType="month" alignment="bottom"
                   image="surroundings/calendarium-fineline.png" paintOnTop="false"/>
    </surroundings>
    <defaults>
      <default pageType="cover" templates="201,calendar-cover-title"/>
      <default pageType="page" templates="201,calendar-title-{layout}"/>
      <default pageType="month_page" alignment="top" templates="{background},one-photo-full"/>
      <default pageType="month_page" alignment="bottom" layout="calendarium-grid" background="201"/>
      <default pageType="month_page" alignment="top" scenePageCount="2" layout="calendar-spread"/>
    </defaults>
    <extra_production_pages>
      <item>
        <target_pages>2-25</target_pages>
        <pdf filename="production/calendar-{width}-hanger-strip.pdf" type="hanger" layer="2"/>
      </item>
    </extra_production_pages>
    <editorAbilities>
      <assistant enabled="true"/>
      <pageNamingStyle>calendar</pageNamingStyle>
      <startPage>1</startPage>
      <dateRangeConstraint isEnforced="true" minimumFromCurrentYear="0" maximumFromCurrentYear="{years}"/>
      <jigs>
        <background>
          <categories pageType="cover">{coverCategories}</categories>
          <categories pageType="month">Frühling,Sommer,Herbst,Winter,Weihnachten,Einfarbig</categories>
        </background>
        <clipart rotatable="true">
          <categories pageType="month">Jahreszeiten,Feiertage</categories>
        </clipart>
        <layout>
          <categories pageType="month">Kalendarium</categories>
        </layout>
        <content/>
      </jigs>
    </editorAbilities>
    <pricelist>
      <category>KAL-{code}</category>
    </pricelist>
  </product>
</products>
)";

const char* const PvCatalogueShapes::wallDecor = R"(<?xml version="1.0" encoding="UTF-8"?>
<!-- Generated wall decor {index}: {class}, {cm} cm, with a choice of frames. -->
<products>
  <product name="{name}" class="{class}" binding="wall">
    <classification group="{group}" cm="{cm}" inch="{inch}"/>
    <pages>page</pages>
    <productionnumbering>1</productionnumbering>
    <tilt angle="0"/>
    <variants>
      <variant id="none" name="Ohne Rahmen" default="true"/>
      <variant id="shadow_gap_black" name="Schattenfugenrahmen Schwarz"/>
      <variant id="shadow_gap_white" name="Schattenfugenrahmen Weiß"/>
      <variant id="shadow_gap_oak" name="Schattenfugenrahmen Eiche"/>
      <variant id="shadow_gap_walnut" name="Schattenfugenrahmen Nussbaum"/>
    </variants>
    <surroundings>
      <surrounding type="FRAME" variant="shadow_gap_black" image="surroundings/frame-black-{cm}.png"
                   paintOnTop="true" canBeHiddenByUser="true" x="{frame}" y="{frame}" width="{width}" height="{height}"/>
      <surrounding type="FRAME" variant="shadow_gap_white" image="surroundings/frame-white-{cm}.png"
                   paintOnTop="true" canBeHiddenByUser="true" x="{frame}" y="{frame}" width="{width}" height="{height}"/>
      <surrounding type="FRAME" variant="shadow_gap_oak" image="surroundings/frame-oak-{cm}.png"
                   imageSpotColor="" paintOnTop="true" canBeHiddenByUser="true"/>
      <surrounding type="FRAME" variant="shadow_gap_walnut" image="surroundings/frame-walnut-{cm}.png"
                   imageSpotColor="" paintOnTop="true" canBeHiddenByUser="true"/>
      <surrounding type="BORDER" pageType="page" image="surroundings/{edge}.png"
                   paintOnTop="true" hideGrafikInPreview="true"/>
    </surroundings>
    <defaults>
      <default pageType="page" templates="{background},wall-one-photo"/>
      <default pageType="page" alignment="right,bottom" scenePageCount="1" layout="wall-collage-{layout}"/>
    </defaults>
    <editorAbilities convertable="true">
      <pageNamingStyle>art_print</pageNamingStyle>
      <jigs>
        <background>
          <categories pageType="page">{pageCategories}</categories>
        </background>
        <clipart rotatable="true">
          <categories pageType="page">{clipartCategories}</categories>
        </clipart>
        <layout>
          <categories pageType="page">Collage,Poster</categories>
        </layout>
        <content/>
        <frame/>
        <frame_passepartout enabled="false"/>
        <frame_glas/>
        <wallholder/>
      </jigs>
    </editorAbilities>
    <preview3D>
      <mesh file="wall-{class}.glb" flipY="false" pagesPer3DModel="1"/>
      <textureTarget name="Front" x="0" y="0" width="{width}" height="{height}" page="0"/>
      <camera><position x="0" y="0" z="5"/><lookAt x="0" y="0" z="0"/></camera>
      <cameraBig><position x="0" y="0" z="3.5"/><lookAt x="0" y="0" z="0"/></cameraBig>
      <windowSize width="640" height="480"/>
    </preview3D>
    <extra_production_pages>
      <item>
        <target_pages>0</target_pages>
        <pdf filename="production/{class}-{cm}-back-label.pdf" type="label" layer="1"/>
      </item>
    </extra_production_pages>
    <pricelist>
      <category>{code}</category>
    </pricelist>
    <barcodes>
      <barcode type="code128" page="0" x="{barcodeX}" y="{barcodeY}" width="320" height="80"/>
    </barcodes>
  </product>
</products>
)";

const char* const PvCatalogueShapes::card = R"(<?xml version="1.0" encoding="UTF-8"?>
<!-- Generated folded card {index}: front, inside left, inside right, back. -->
<products>
  <product name="{name}" class="card" binding="folded"
           isVario="false" isTwoSided="true" productAlignment="card" foldsafetymargin="{fold}">
    <pages>cover_front,left,right,cover_back</pages>
    <productionnumbering>1,2,3,4</productionnumbering>
    <pageswithcontent>0,1,2,3</pageswithcontent>
    <tilt angle="0"/>
    <rotationredirects>
      <rotationredirect from="0" to="3" angleinvert="-1"/>
    </rotationredirects>
    <variants>
      <variant id="envelope_white" name="Umschlag Weiß" default="true"/>
      <variant id="envelope_kraft" name="Umschlag Kraftpapier"/>
      <variant id="envelope_red" name="Umschlag Rot"/>
      <variant id="envelope_gold" name="Umschlag Gold"/>
    </variants>
    <surroundings>
      <surrounding type="BORDER" pageType="cover_front,cover_back,left,right"
                   image="surroundings/card-{size}-fold-line.png" paintOnTop="true" canBeHiddenByUser="true"/>
      <surrounding type="GIFT" pageType="cover_front" variant="envelope_kraft"
                   image="surroundings/card-{size}-envelope-kraft.png" paintOnTop="false"/>
      <surrounding type="GIFT" pageType="cover_front" variant="envelope_red"
                   image="surroundings/card-{size}-envelope-red.png" paintOnTop="false"/>
    </surroundings>
    <defaults>
      <default pageType="cover_front" templates="{background},card-front-photo"/>
      <default pageType="left,right" templates="201,card-inside-text"/>
      <default pageType="cover_back" layout="card-back-imprint"/>
      <default pageType="right" pageNr="2" layout="card-inside-greeting-{layout}"/>
      <default pageType="cover_front" scenePageCount="2" layout="card-open-spread"/>
    </defaults>
    <extra_production_pages>
      <item>
        <target_pages>3</target_pages>
        <pdf filename="production/card-{size}-envelope-imprint.pdf" type="envelope" layer="0"/>
      </item>
    </extra_production_pages>
    <editorAbilities>
      <assistant enabled="true"/>
      <pageNamingStyle>both_sided_card</pageNamingStyle>
      <startPage>0</startPage>
      <jigs showChangeBaseDesignButton="true">
        <background>
          <categories pageType="cover_front">{coverCategories}</categories>
          <categories pageType="left,right">Einfarbig</categories>
        </background>
        <clipart rotatable="true">
          <categories pageType="cover_front,left,right">{clipartCategories}</categories>
        </clipart>
        <layout/>
        <content/>
        <styles_v2 exactArticle="true"/>
      </jigs>
    </editorAbilities>
    <preview3D>
      <mesh file="card-folded-standing.glb" flipY="true" flipX="false" pagesPer3DModel="2"/>
      <textureTarget name="Front" x="0" y="0" width="{width}" height="{height}" page="0"/>
      <textureTarget name="Back" x="0" y="0" width="{width}" height="{height}" page="3"/>
      <camera><position x="0" y="0.4" z="4"/><lookAt x="0" y="0.2" z="0"/></camera>
      <cameraBig><position x="0" y="0.3" z="2.5"/><lookAt x="0" y="0.2" z="0"/></cameraBig>
      <windowSize width="640" height="480"/>
    </preview3D>
    <pricelist>
      <category>KA-{code}</category>
    </pricelist>
    <barcodes>
      <barcode type="code128" page="3" x="{barcodeX}" y="{barcodeY}" width="320" height="80"/>
    </barcodes>
  </product>
</products>
)";
