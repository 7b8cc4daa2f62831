<?xml version='1.0' encoding='utf-8'?>
<TS version="2.1" language="de_DE">
<context>
    <name>CZqCirclePE</name>
    <message>
        <source>%1 sq. in. (%2 sq. ft.)</source>
        <translation>%1 sq. in. (%2 sq. ft.)</translation>
    </message>
</context>
<context>
    <name>CZqCommandMinusProperties</name>
    <message>
        <source>-PROPERTIES</source>
        <comment>Command Name: Needs to be unique and all uppercase.</comment>
        <translation>-EIGENSCHAFTEN</translation>
    </message>
    <message>
        <source>Select objects:</source>
        <translation>Objekte wählen:</translation>
    </message>
    <message>
        <source>%1 found, %2 total</source>
        <translation>%1 gefunden, %2 gesamt</translation>
    </message>
    <message>
        <source>Nothing selected.</source>
        <translation>Nichts gewählt.</translation>
    </message>
    <message>
        <source>Enter property name or [List/eXit] &lt;eXit&gt;:</source>
        <translation>Eigenschaftsname eingeben oder [List/eXit] &lt;eXit&gt;:</translation>
    </message>
    <message>
        <source>%1 is read-only.</source>
        <translation>%1 ist schreibgeschützt.</translation>
    </message>
    <message>
        <source>Enter new value for %1 &lt;%2&gt;:</source>
        <translation>Neuen Wert für %1 eingeben &lt;%2&gt;:</translation>
    </message>
    <message>
        <source>Refused for %1: %2</source>
        <translation>Abgelehnt für %1: %2</translation>
    </message>
    <message>
        <source>invalid value</source>
        <translation>ungültiger Wert</translation>
    </message>
</context>
<context>
    <name>CZqDlgCloudSettings</name>
    <message>
        <source>Rectangular</source>
        <translation>Rechteckig</translation>
    </message>
    <message>
        <source>Elliptical</source>
        <translation>Elliptisch</translation>
    </message>
    <message>
        <source>Freehand</source>
        <translation>Freihand</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Benutzerdefiniert</translation>
    </message>
</context>
<context>
    <name>CZqPolylinePE</name>
    <message>
        <source>%1 sq. in. (%2 sq. ft.)</source>
        <translation>%1 sq. in. (%2 sq. ft.)</translation>
    </message>
</context>
<context>
    <name>entity_types</name>
    <message>
        <source>Circle</source>
        <translation>Kreis</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Linie</translation>
    </message>
    <message>
        <source>Point</source>
        <translation>Punkt</translation>
    </message>
    <message>
        <source>PolyLine</source>
        <translation>Polylinie</translation>
    </message>
    <message>
        <source>Ray</source>
        <translation>Strahl</translation>
    </message>
    <message>
        <source>ILine</source>
        <translation>Konstruktionslinie</translation>
    </message>
    <message>
        <source>Entity</source>
        <translation>Objekt</translation>
    </message>
</context>
<context>
    <name>errors</name>
    <message>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>Value must be positive and non-zero.</source>
        <translation>Der Wert muss positiv und ungleich null sein.</translation>
    </message>
    <message>
        <source>No property named "%1".</source>
        <translation>Keine Eigenschaft namens "%1".</translation>
    </message>
    <message>
        <source>"%1" is ambiguous: use Category/Name.</source>
        <translation>"%1" ist mehrdeutig: Kategorie/Name angeben.</translation>
    </message>
    <message>
        <source>The object has no such property.</source>
        <translation>Das Objekt hat diese Eigenschaft nicht.</translation>
    </message>
    <message>
        <source>The property is read-only.</source>
        <translation>Die Eigenschaft ist schreibgeschützt.</translation>
    </message>
    <message>
        <source>No drawing.</source>
        <translation>Keine Zeichnung.</translation>
    </message>
    <message>
        <source>Invalid input.</source>
        <translation>Ungültige Eingabe.</translation>
    </message>
    <message>
        <source>No such name:</source>
        <translation>Name nicht vorhanden:</translation>
    </message>
    <message>
        <source>The property cannot be set from text.</source>
        <translation>Die Eigenschaft kann nicht aus Text gesetzt werden.</translation>
    </message>
    <message>
        <source>Value must be positive</source>
        <translation>Der Wert muss positiv sein</translation>
    </message>
</context>
<context>
    <name>info_items</name>
    <message>
        <source>Center  point</source>
        <translation>Mittelpunkt</translation>
    </message>
    <message>
        <source>Radius</source>
        <translation>Radius</translation>
    </message>
    <message>
        <source>Circumference</source>
        <translation>Umfang</translation>
    </message>
    <message>
        <source>Area</source>
        <translation>Fläche</translation>
    </message>
    <message>
        <source>Extrusion direction relative to UCS</source>
        <translation>Extrusionsrichtung relativ zum BKS</translation>
    </message>
    <message>
        <source>from point</source>
        <translation>von Punkt</translation>
    </message>
    <message>
        <source>to point</source>
        <translation>nach Punkt</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Länge</translation>
    </message>
    <message>
        <source>Length in CCS</source>
        <translation>Länge im BKS</translation>
    </message>
    <message>
        <source>Angle in XY Plane</source>
        <translation>Winkel in XY-Ebene</translation>
    </message>
    <message>
        <source>Delta X</source>
        <translation>Delta X</translation>
    </message>
    <message>
        <source>Delta Y</source>
        <translation>Delta Y</translation>
    </message>
    <message>
        <source>Delta Z</source>
        <translation>Delta Z</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Position</translation>
    </message>
    <message>
        <source>Angle of X Axis</source>
        <translation>Winkel der X-Achse</translation>
    </message>
    <message>
        <source>PolyLine Flags</source>
        <translation>Polylinien-Kennung</translation>
    </message>
    <message>
        <source>Perimeter</source>
        <translation>Umfang</translation>
    </message>
    <message>
        <source>Location %1</source>
        <translation>Position %1</translation>
    </message>
    <message>
        <source>Base point</source>
        <translation>Basispunkt</translation>
    </message>
    <message>
        <source>Unit direction</source>
        <translation>Einheitsrichtung</translation>
    </message>
    <message>
        <source>base point</source>
        <translation>basispunkt</translation>
    </message>
    <message>
        <source>unit direction</source>
        <translation>einheitsrichtung</translation>
    </message>
    <message>
        <source>Class name</source>
        <translation>Klassenname</translation>
    </message>
    <message>
        <source>Handle</source>
        <translation>Referenz</translation>
    </message>
    <message>
        <source>Layer</source>
        <translation>Layer</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Bereich</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Farbe</translation>
    </message>
    <message>
        <source>Linetype</source>
        <translation>Linientyp</translation>
    </message>
</context>
<context>
    <name>info_values</name>
    <message>
        <source>Closed</source>
        <translation>Geschlossen</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Offen</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nein</translation>
    </message>
    <message>
        <source>Block</source>
        <translation>Block</translation>
    </message>
    <message>
        <source>Model space</source>
        <translation>Modellbereich</translation>
    </message>
    <message>
        <source>Paper space</source>
        <translation>Papierbereich</translation>
    </message>
</context>
<context>
    <name>property_groups</name>
    <message>
        <source>General</source>
        <translation>Allgemein</translation>
    </message>
    <message>
        <source>Geometry</source>
        <translation>Geometrie</translation>
    </message>
    <message>
        <source>Misc</source>
        <translation>Verschiedenes</translation>
    </message>
    <message>
        <source>Cloud Settings</source>
        <translation>Wolkeneinstellungen</translation>
    </message>
</context>
<context>
    <name>property_types</name>
    <message>
        <source>Total Length</source>
        <translation>Gesamtlänge</translation>
    </message>
    <message>
        <source>Total Area</source>
        <translation>Gesamtfläche</translation>
    </message>
    <message>
        <source>Base point X</source>
        <translation>Basispunkt X</translation>
    </message>
    <message>
        <source>Base point Y</source>
        <translation>Basispunkt Y</translation>
    </message>
    <message>
        <source>Base point Z</source>
        <translation>Basispunkt Z</translation>
    </message>
    <message>
        <source>Second point X</source>
        <translation>Zweiter Punkt X</translation>
    </message>
    <message>
        <source>Second point Y</source>
        <translation>Zweiter Punkt Y</translation>
    </message>
    <message>
        <source>Second point Z</source>
        <translation>Zweiter Punkt Z</translation>
    </message>
    <message>
        <source>Direction vector X</source>
        <translation>Richtungsvektor X</translation>
    </message>
    <message>
        <source>Direction vector Y</source>
        <translation>Richtungsvektor Y</translation>
    </message>
    <message>
        <source>Direction vector Z</source>
        <translation>Richtungsvektor Z</translation>
    </message>
    <message>
        <source>Thickness</source>
        <translation>Objekthöhe</translation>
    </message>
    <message>
        <source>Center X</source>
        <translation>Zentrum X</translation>
    </message>
    <message>
        <source>Center Y</source>
        <translation>Zentrum Y</translation>
    </message>
    <message>
        <source>Center Z</source>
        <translation>Zentrum Z</translation>
    </message>
    <message>
        <source>Radius</source>
        <translation>Radius</translation>
    </message>
    <message>
        <source>Diameter</source>
        <translation>Durchmesser</translation>
    </message>
    <message>
        <source>Circumference</source>
        <translation>Umfang</translation>
    </message>
    <message>
        <source>Area</source>
        <translation>Fläche</translation>
    </message>
    <message>
        <source>Normal X</source>
        <translation>Normale X</translation>
    </message>
    <message>
        <source>Normal Y</source>
        <translation>Normale Y</translation>
    </message>
    <message>
        <source>Normal Z</source>
        <translation>Normale Z</translation>
    </message>
    <message>
        <source>Start X</source>
        <translation>Startpunkt X</translation>
    </message>
    <message>
        <source>Start Y</source>
        <translation>Startpunkt Y</translation>
    </message>
    <message>
        <source>Start Z</source>
        <translation>Startpunkt Z</translation>
    </message>
    <message>
        <source>End X</source>
        <translation>Endpunkt X</translation>
    </message>
    <message>
        <source>End Y</source>
        <translation>Endpunkt Y</translation>
    </message>
    <message>
        <source>End Z</source>
        <translation>Endpunkt Z</translation>
    </message>
    <message>
        <source>Delta X</source>
        <translation>Delta X</translation>
    </message>
    <message>
        <source>Delta Y</source>
        <translation>Delta Y</translation>
    </message>
    <message>
        <source>Delta Z</source>
        <translation>Delta Z</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Länge</translation>
    </message>
    <message>
        <source>Angle</source>
        <translation>Winkel</translation>
    </message>
    <message>
        <source>Position X</source>
        <translation>Position X</translation>
    </message>
    <message>
        <source>Position Y</source>
        <translation>Position Y</translation>
    </message>
    <message>
        <source>Position Z</source>
        <translation>Position Z</translation>
    </message>
    <message>
        <source>Shape</source>
        <translation>Form</translation>
    </message>
    <message>
        <source>Vertex</source>
        <translation>Scheitelpunkt</translation>
    </message>
    <message>
        <source>Vertex X</source>
        <translation>Scheitelpunkt X</translation>
    </message>
    <message>
        <source>Vertex Y</source>
        <translation>Scheitelpunkt Y</translation>
    </message>
    <message>
        <source>Start segment width</source>
        <translation>Startsegmentbreite</translation>
    </message>
    <message>
        <source>End segment width</source>
        <translation>Endsegmentbreite</translation>
    </message>
    <message>
        <source>Global width</source>
        <translation>Globale Breite</translation>
    </message>
    <message>
        <source>Elevation</source>
        <translation>Erhebung</translation>
    </message>
    <message>
        <source>Closed</source>
        <translation>Geschlossen</translation>
    </message>
    <message>
        <source>LineStyleGen</source>
        <translation>Linientypgenerierung</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Farbe</translation>
    </message>
    <message>
        <source>Layer</source>
        <translation>Layer</translation>
    </message>
    <message>
        <source>Linetype</source>
        <translation>Linientyp</translation>
    </message>
    <message>
        <source>Linetype scale</source>
        <translation>Linientypfaktor</translation>
    </message>
    <message>
        <source>Plot style</source>
        <translation>Plotstil</translation>
    </message>
    <message>
        <source>Lineweight</source>
        <translation>Linienstärke</translation>
    </message>
    <message>
        <source>Transparency</source>
        <translation>Transparenz</translation>
    </message>
    <message>
        <source>Hyperlink</source>
        <translation>Hyperlink</translation>
    </message>
</context>
<context>
    <name>property_values</name>
    <message>
        <source>Yes</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nein</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Aktiviert</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Deaktiviert</translation>
    </message>
    <message>
        <source>*VARIES*</source>
        <translation>*VARIIERT*</translation>
    </message>
    <message>
        <source>(read-only)</source>
        <translation>(schreibgeschützt)</translation>
    </message>
</context>
<context>
    <name>zqprops</name>
    <message>
        <source>zqprops: --set expects NAME=VALUE, got "%1"</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>zqprops: %1: %2 is read-only</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>zqprops: %1: %2: %3</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>zqprops: %1: %2 refused (%3)%4</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>zqprops: no object has a property named "%1"</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>zqprops: expected one drawing, got %1 (see --help)</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>zqprops: no translation catalog for "%1"; using English</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>cannot load ZQProperties: %1</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>warning: %1</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>zqprops: no object with handle %1</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>zqprops: cannot read script %1: %2</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>Command:</source>
        <translation>Befehl:</translation>
    </message>
    <message>
        <source>Unknown command "%1".</source>
        <translation>Unbekannter Befehl "%1".</translation>
    </message>
    <message>
        <source>Select objects:</source>
        <translation>Objekte wählen:</translation>
    </message>
    <message>
        <source>Save drawing as &lt;%1&gt;:</source>
        <translation>Zeichnung speichern unter &lt;%1&gt;:</translation>
    </message>
    <message>
        <source>zqprops: SAVE needs a file name (or -o).</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>Saved %1.</source>
        <translation>%1 gespeichert.</translation>
    </message>
    <message>
        <source>%1 is the input drawing; name it with -o to overwrite it.</source>
        <translation type="unfinished" />
    </message>
</context>
</TS>