<?xml version='1.0' encoding='utf-8'?>
<TS version="2.1" language="de_DE">
<context>
    <name>CZq2dPolylinePE</name>
    <message>
        <source>%1 sq. in. (%2 sq. ft.)</source>
        <translation>%1 sq. in. (%2 sq. ft.)</translation>
    </message>
</context>
<context>
    <name>CZq3dPolylinePE</name>
    <message>
        <source>%1 sq. in. (%2 sq. ft.)</source>
        <translation>%1 sq. in. (%2 sq. ft.)</translation>
    </message>
</context>
<context>
    <name>CZqArcPE</name>
    <message>
        <source>%1 sq. in. (%2 sq. ft.)</source>
        <translation>%1 sq. in. (%2 sq. ft.)</translation>
    </message>
</context>
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
    <name>CZqDimensionPE</name>
    <message>
        <source>None</source>
        <translation>Keine</translation>
    </message>
    <message>
        <source>Round</source>
        <translation>Rund</translation>
    </message>
    <message>
        <source>Angular</source>
        <translation>Eckig</translation>
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
        <source>Edit annotation scales</source>
        <translation>Beschriftungsmaßstäbe bearbeiten</translation>
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
    <name>CZqEllipsePE</name>
    <message>
        <source>%1 sq. in. (%2 sq. ft.)</source>
        <translation>%1 sq. in. (%2 sq. ft.)</translation>
    </message>
</context>
<context>
    <name>CZqFcfPE</name>
    <message>
        <source>Edit annotation scales</source>
        <translation>Beschriftungsmaßstäbe bearbeiten</translation>
    </message>
</context>
<context>
    <name>CZqHatchPE</name>
    <message>
        <source>%1 sq. in. (%2 sq. ft.)</source>
        <translation>%1 sq. in. (%2 sq. ft.)</translation>
    </message>
</context>
<context>
    <name>CZqLeaderPE</name>
    <message>
        <source>Edit annotation scales</source>
        <translation>Beschriftungsmaßstäbe bearbeiten</translation>
    </message>
</context>
<context>
    <name>CZqMLeaderPE</name>
    <message>
        <source>Edit annotation scales</source>
        <translation>Beschriftungsmaßstäbe bearbeiten</translation>
    </message>
</context>
<context>
    <name>CZqMTextPE</name>
    <message>
        <source>Edit annotation scales</source>
        <translation>Beschriftungsmaßstäbe bearbeiten</translation>
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
    <name>CZqRegionPE</name>
    <message>
        <source>%1 sq. in. (%2 sq. ft.)</source>
        <translation type="unfinished">%1 sq. in. (%2 sq. ft.)</translation>
    </message>
</context>
<context>
    <name>CZqSelection</name>
    <message>
        <source>model</source>
        <translation>Modell</translation>
    </message>
    <message>
        <source>paper</source>
        <translation>Papier</translation>
    </message>
    <message>
        <source>all</source>
        <translation>alle</translation>
    </message>
    <message>
        <source>The drawing has no object with handle %1.</source>
        <translation>Die Zeichnung hat kein Objekt mit der Referenz %1.</translation>
    </message>
    <message>
        <source>Space takes model, paper or all, not "%1".</source>
        <translation>Space nimmt model, paper oder all, nicht "%1".</translation>
    </message>
    <message>
        <source>"%1" names no kind of record: use layers, linetypes, textstyles, dimstyles, views, vports, groups, mlinestyles or tablestyles.</source>
        <translation>"%1" ist keine Art von Einträgen: layers, linetypes, textstyles, dimstyles, views, vports, groups, mlinestyles oder tablestyles verwenden.</translation>
    </message>
</context>
<context>
    <name>CZqSplinePE_Prop</name>
    <message>
        <source>%1 sq. in. (%2 sq. ft.)</source>
        <translation>%1 sq. in. (%2 sq. ft.)</translation>
    </message>
</context>
<context>
    <name>CZqTextPE</name>
    <message>
        <source>Edit annotation scales</source>
        <translation>Beschriftungsmaßstäbe bearbeiten</translation>
    </message>
</context>
<context>
    <name>OdDb3dSolid</name>
    <message>
        <source>The solid's position is not known, so it cannot be moved.</source>
        <translation>Die Lage des Volumenkörpers ist nicht bekannt, daher kann er nicht verschoben werden.</translation>
    </message>
</context>
<context>
    <name>OdDbAcis</name>
    <message>
        <source>The modeller data holds no geometry whose position is known.</source>
        <translation>Die Modelliererdaten enthalten keine Geometrie mit bekannter Lage.</translation>
    </message>
    <message>
        <source>The modeller data is damaged or cut off.</source>
        <translation>Die Modelliererdaten sind beschädigt oder abgeschnitten.</translation>
    </message>
    <message>
        <source>The region is not flat.</source>
        <translation>Die Region ist nicht eben.</translation>
    </message>
    <message>
        <source>The region has an edge of a kind that cannot be measured here (%1).</source>
        <translation>Die Region hat eine Kante einer Art, die hier nicht gemessen werden kann (%1).</translation>
    </message>
    <message>
        <source>The modeller data holds no face.</source>
        <translation>Die Modelliererdaten enthalten keine Fläche.</translation>
    </message>
    <message>
        <source>The modeller data is binary and cannot be moved here.</source>
        <translation>Die Modelliererdaten sind binär und können hier nicht verschoben werden.</translation>
    </message>
    <message>
        <source>The body has free-form geometry, which cannot be moved here.</source>
        <translation>Der Körper hat Freiformgeometrie, die hier nicht verschoben werden kann.</translation>
    </message>
    <message>
        <source>The body is stored in an old modeller format that cannot be written here.</source>
        <translation>Der Körper ist in einem alten Modelliererformat gespeichert, das hier nicht geschrieben werden kann.</translation>
    </message>
    <message>
        <source>The tube radius must be smaller than the torus radius.</source>
        <translation>Der Rohrradius muss kleiner als der Torusradius sein.</translation>
    </message>
    <message>
        <source>A cone's top radius must differ from its base radius.</source>
        <translation>Der obere Radius eines Kegels muss sich von seinem Basisradius unterscheiden.</translation>
    </message>
    <message>
        <source>The solid has no history to build its body from.</source>
        <translation>Der Volumenkörper hat keinen Verlauf, aus dem sein Körper aufgebaut werden könnte.</translation>
    </message>
    <message>
        <source>The solid was made from curves its history does not keep, so its body cannot be built again. Nothing was changed.</source>
        <translation>Der Volumenkörper wurde aus Kurven erzeugt, die sein Verlauf nicht aufbewahrt; sein Körper kann daher nicht neu aufgebaut werden. Es wurde nichts geändert.</translation>
    </message>
</context>
<context>
    <name>OdDxf</name>
    <message>
        <source>group code %1 cannot hold "%2": a drawing file cannot hold line breaks, tabs or other control characters in a text</source>
        <translation>Gruppencode %1 kann "%2" nicht aufnehmen: Eine Zeichnungsdatei kann in einem Text keine Zeilenumbrüche, Tabulatoren oder anderen Steuerzeichen enthalten</translation>
    </message>
    <message>
        <source>group code %1 value '%2' is out of the range of its type</source>
        <translation>Gruppencode %1: Wert '%2' liegt außerhalb des Bereichs seines Typs</translation>
    </message>
    <message>
        <source>group code %1 value '%2' is not a handle</source>
        <translation>Gruppencode %1: Wert '%2' ist keine Referenz</translation>
    </message>
    <message>
        <source>group code %1 value '%2' is not hexadecimal data</source>
        <translation>Gruppencode %1: Wert '%2' sind keine hexadezimalen Daten</translation>
    </message>
    <message>
        <source>group code %1 value '%2' is out of the range of a real</source>
        <translation>Gruppencode %1: Wert '%2' liegt außerhalb des Bereichs einer reellen Zahl</translation>
    </message>
    <message>
        <source>group code %1 value '%2' is not a number</source>
        <translation>Gruppencode %1: Wert '%2' ist keine Zahl</translation>
    </message>
    <message>
        <source>group code %1 value '%2' is not a finite number</source>
        <translation>Gruppencode %1: Wert '%2' ist keine endliche Zahl</translation>
    </message>
    <message>
        <source>group code %1 value '%2' is not an integer</source>
        <translation>Gruppencode %1: Wert '%2' ist keine ganze Zahl</translation>
    </message>
    <message>
        <source>Cannot write %1: %2.</source>
        <translation>%1 kann nicht geschrieben werden: %2.</translation>
    </message>
    <message>
        <source>%1 was not saved: %2. An existing file of that name is unchanged.</source>
        <translation>%1 wurde nicht gespeichert: %2. Eine vorhandene Datei dieses Namens ist unverändert.</translation>
    </message>
    <message>
        <source>%1 needs a drawing saved as %2 or later; this one is saved as %3.</source>
        <translation>%1 braucht eine Zeichnung im Format %2 oder neuer; diese ist im Format %3 gespeichert.</translation>
    </message>
    <message>
        <source>Lineweight</source>
        <translation>Die Linienstärke</translation>
    </message>
    <message>
        <source>Linetype scale</source>
        <translation>Der Linientypfaktor</translation>
    </message>
    <message>
        <source>A true colour</source>
        <translation>Eine True Color</translation>
    </message>
    <message>
        <source>Transparency</source>
        <translation>Die Transparenz</translation>
    </message>
    <message>
        <source>Cannot write %1: it is a folder, not a file.</source>
        <translation>%1 kann nicht geschrieben werden: es ist ein Ordner, keine Datei.</translation>
    </message>
    <message>
        <source>Cannot write %1: it is a device or another special file, not a regular file.</source>
        <translation>%1 kann nicht geschrieben werden: es ist ein Gerät oder eine andere Spezialdatei, keine gewöhnliche Datei.</translation>
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
    <message>
        <source>Simplenote</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Arc</source>
        <translation>Bogen</translation>
    </message>
    <message>
        <source>Ellipse</source>
        <translation>Ellipse</translation>
    </message>
    <message>
        <source>3D Face</source>
        <translation>3D-Fläche</translation>
    </message>
    <message>
        <source>2D Polyline</source>
        <translation>2D-Polylinie</translation>
    </message>
    <message>
        <source>Solid</source>
        <translation>Solid</translation>
    </message>
    <message>
        <source>Spline</source>
        <translation>Spline</translation>
    </message>
    <message>
        <source>Trace</source>
        <translation>Band</translation>
    </message>
    <message>
        <source>Vertex</source>
        <translation>Scheitelpunkt</translation>
    </message>
    <message>
        <source>ArcAlignedText</source>
        <translation>Bogentext</translation>
    </message>
    <message>
        <source>Attribute</source>
        <translation>Attribut</translation>
    </message>
    <message>
        <source>Attribute Definition</source>
        <translation>Attributdefinition</translation>
    </message>
    <message>
        <source>Dimension</source>
        <translation>Bemaßung</translation>
    </message>
    <message>
        <source>AlignedDimension</source>
        <translation>Ausgerichtete Bemaßung</translation>
    </message>
    <message>
        <source>RotatedDimension</source>
        <translation>Gedrehte Bemaßung</translation>
    </message>
    <message>
        <source>2LineAngularDimension</source>
        <translation>Winkelbemaßung (2 Linien)</translation>
    </message>
    <message>
        <source>3PointAngularDimension</source>
        <translation>Winkelbemaßung (3 Punkte)</translation>
    </message>
    <message>
        <source>ArcLengthDimension</source>
        <translation>Bogenlängenbemaßung</translation>
    </message>
    <message>
        <source>RadialDimension</source>
        <translation>Radiusbemaßung</translation>
    </message>
    <message>
        <source>RadialDimensionLarge</source>
        <translation>Verkürzte Radiusbemaßung</translation>
    </message>
    <message>
        <source>DiametricDimension</source>
        <translation>Durchmesserbemaßung</translation>
    </message>
    <message>
        <source>OrdinateDimension</source>
        <translation>Koordinatenbemaßung</translation>
    </message>
    <message>
        <source>MText</source>
        <translation>MText</translation>
    </message>
    <message>
        <source>Leader</source>
        <translation>Führung</translation>
    </message>
    <message>
        <source>MultiLeader</source>
        <translation>Multi-Führungslinie</translation>
    </message>
    <message>
        <source>Tolerance</source>
        <translation>Toleranz</translation>
    </message>
    <message>
        <source>Hatch</source>
        <translation>Schraffur</translation>
    </message>
    <message>
        <source>Body</source>
        <translation>Körper</translation>
    </message>
    <message>
        <source>Region</source>
        <translation>Region</translation>
    </message>
    <message>
        <source>3D Solid</source>
        <translation>3D-Volumenkörper</translation>
    </message>
    <message>
        <source>Surface (Planar)</source>
        <translation>Fläche (eben)</translation>
    </message>
    <message>
        <source>Surface (Extrusion)</source>
        <translation>Fläche (Extrusion)</translation>
    </message>
    <message>
        <source>Surface (Revolve)</source>
        <translation>Fläche (Rotation)</translation>
    </message>
    <message>
        <source>Surface (Sweep)</source>
        <translation>Fläche (Sweep)</translation>
    </message>
    <message>
        <source>Surface (Loft)</source>
        <translation>Fläche (Erhebung)</translation>
    </message>
    <message>
        <source>Block Reference</source>
        <translation>Blockreferenz</translation>
    </message>
    <message>
        <source>Multiple Block Reference</source>
        <translation>Mehrfach-Blockreferenz</translation>
    </message>
    <message>
        <source>Proxy Entity</source>
        <translation>Proxy-Objekt</translation>
    </message>
    <message>
        <source>Dimension Style</source>
        <translation>Bemaßungsstil</translation>
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
        <source>Text Style</source>
        <translation>Textstil</translation>
    </message>
    <message>
        <source>Viewport</source>
        <translation>Ansichtsfenster</translation>
    </message>
    <message>
        <source>Multiline</source>
        <translation>Multilinie</translation>
    </message>
    <message>
        <source>Polyface Mesh</source>
        <translation>Vielflächennetz</translation>
    </message>
    <message>
        <source>Polygon Mesh</source>
        <translation>Polygonnetz</translation>
    </message>
    <message>
        <source>3D Polyline</source>
        <translation>3D-Polylinie</translation>
    </message>
    <message>
        <source>Shape</source>
        <translation>Form</translation>
    </message>
    <message>
        <source>Mesh</source>
        <translation>Netz</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Licht</translation>
    </message>
    <message>
        <source>OLE Object</source>
        <translation>OLE-Objekt</translation>
    </message>
    <message>
        <source>Raster Image</source>
        <translation>Rasterbild</translation>
    </message>
    <message>
        <source>Table</source>
        <translation>Tabelle</translation>
    </message>
    <message>
        <source>PDF Underlay</source>
        <translation>PDF-Unterlage</translation>
    </message>
    <message>
        <source>DGN Underlay</source>
        <translation>DGN-Unterlage</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Gruppe</translation>
    </message>
    <message>
        <source>Multiline Style</source>
        <translation>Multilinienstil</translation>
    </message>
    <message>
        <source>Table Style</source>
        <translation>Tabellenstil</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Ansicht</translation>
    </message>
    <message>
        <source>Viewport Configuration</source>
        <translation>Ansichtsfensterkonfiguration</translation>
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
        <translation>Das Objekt hat keine solche Eigenschaft.</translation>
    </message>
    <message>
        <source>Invalid input.</source>
        <translation>Ungültige Eingabe.</translation>
    </message>
    <message>
        <source>Value must be positive</source>
        <translation>Der Wert muss positiv sein</translation>
    </message>
    <message>
        <source>layer</source>
        <translation>Layer</translation>
    </message>
    <message>
        <source>text style</source>
        <translation>Textstil</translation>
    </message>
    <message>
        <source>dimension style</source>
        <translation>Bemaßungsstil</translation>
    </message>
    <message>
        <source>linetype</source>
        <translation>Linientyp</translation>
    </message>
    <message>
        <source>block</source>
        <translation>Block</translation>
    </message>
    <message>
        <source>The object is in no drawing, so it can name no %1.</source>
        <translation>Das Objekt gehört zu keiner Zeichnung und kann daher keinen %1 nennen.</translation>
    </message>
    <message>
        <source>There is no %1 named "%2".</source>
        <translation>Es gibt keinen %1 namens "%2".</translation>
    </message>
    <message>
        <source>The value is not a %1 of this drawing.</source>
        <translation>Der Wert ist kein %1 dieser Zeichnung.</translation>
    </message>
    <message>
        <source>%1 takes one of: %2</source>
        <translation>%1 nimmt einen dieser Werte an: %2</translation>
    </message>
    <message>
        <source>%1 must be greater than 0</source>
        <translation>%1 muss größer als 0 sein</translation>
    </message>
    <message>
        <source>%1 must be 0 or greater</source>
        <translation>%1 muss 0 oder größer sein</translation>
    </message>
    <message>
        <source>%1 must not be 0</source>
        <translation>%1 darf nicht 0 sein</translation>
    </message>
    <message>
        <source>%1 must be between %2 and %3</source>
        <translation>%1 muss zwischen %2 und %3 liegen</translation>
    </message>
    <message>
        <source>Area must be an area other than 0, followed by "sq. in." in engineering and architectural units</source>
        <translation>Die Fläche muss eine Fläche ungleich 0 sein, in technischen und architektonischen Einheiten gefolgt von "sq. in."</translation>
    </message>
    <message>
        <source>%1 needs an angle.</source>
        <translation>%1 braucht einen Winkel.</translation>
    </message>
    <message>
        <source>%1 needs a number.</source>
        <translation>%1 braucht eine Zahl.</translation>
    </message>
    <message>
        <source>%1 needs text.</source>
        <translation>%1 braucht einen Text.</translation>
    </message>
    <message>
        <source>%1 needs a whole number.</source>
        <translation>%1 braucht eine ganze Zahl.</translation>
    </message>
    <message>
        <source>%1 needs a colour.</source>
        <translation>%1 braucht eine Farbe.</translation>
    </message>
    <message>
        <source>%1 needs one of its choices.</source>
        <translation>%1 braucht eine seiner Auswahlmöglichkeiten.</translation>
    </message>
    <message>
        <source>%1 needs one of the drawing's layers.</source>
        <translation>%1 braucht einen der Layer der Zeichnung.</translation>
    </message>
    <message>
        <source>%1 needs one of the drawing's linetypes.</source>
        <translation>%1 braucht einen der Linientypen der Zeichnung.</translation>
    </message>
    <message>
        <source>%1 needs one of the drawing's text styles.</source>
        <translation>%1 braucht einen der Textstile der Zeichnung.</translation>
    </message>
    <message>
        <source>%1 needs one of the drawing's dimension styles.</source>
        <translation>%1 braucht einen der Bemaßungsstile der Zeichnung.</translation>
    </message>
    <message>
        <source>%1 needs an object of the drawing.</source>
        <translation>%1 braucht ein Objekt der Zeichnung.</translation>
    </message>
    <message>
        <source>The object could not be opened for editing.</source>
        <translation>Das Objekt konnte nicht zum Bearbeiten geöffnet werden.</translation>
    </message>
    <message>
        <source>The object has no item %1 for %2.</source>
        <translation>Das Objekt hat kein Element %1 für %2.</translation>
    </message>
    <message>
        <source>%1 does not take this value.</source>
        <translation>%1 nimmt diesen Wert nicht an.</translation>
    </message>
    <message>
        <source>%1 is read-only.</source>
        <translation>%1 ist schreibgeschützt.</translation>
    </message>
    <message>
        <source>The object is on a locked layer.</source>
        <translation>Das Objekt liegt auf einem gesperrten Layer.</translation>
    </message>
    <message>
        <source>%1 has no such choice.</source>
        <translation>%1 hat keine solche Auswahl.</translation>
    </message>
    <message>
        <source>%1 needs a finite number.</source>
        <translation>%1 braucht eine endliche Zahl.</translation>
    </message>
    <message>
        <source>The drawing has no layer named "%1".</source>
        <translation>Die Zeichnung hat keinen Layer namens "%1".</translation>
    </message>
    <message>
        <source>The drawing has no linetype named "%1".</source>
        <translation>Die Zeichnung hat keinen Linientyp namens "%1".</translation>
    </message>
    <message>
        <source>The drawing has no text style named "%1".</source>
        <translation>Die Zeichnung hat keinen Textstil namens "%1".</translation>
    </message>
    <message>
        <source>The drawing has no dimension style named "%1".</source>
        <translation>Die Zeichnung hat keinen Bemaßungsstil namens "%1".</translation>
    </message>
    <message>
        <source>The drawing has nothing named "%1" for this property.</source>
        <translation>Die Zeichnung hat nichts namens "%1" für diese Eigenschaft.</translation>
    </message>
    <message>
        <source>There is no drawing to edit.</source>
        <translation>Es gibt keine Zeichnung zum Bearbeiten.</translation>
    </message>
    <message>
        <source>"%1" is not an angle: %2 needs a finite angle such as 45 or 45d30'.</source>
        <translation>"%1" ist kein Winkel: %2 braucht einen endlichen Winkel wie 45 oder 45d30'.</translation>
    </message>
    <message>
        <source>"%1" is not a number: %2 needs a finite number such as 12.5.</source>
        <translation>"%1" ist keine Zahl: %2 braucht eine endliche Zahl wie 12.5.</translation>
    </message>
    <message>
        <source>"%1" is not a lineweight: %2 takes ByLayer, ByBlock, Default or a standard lineweight from 0.00 mm to 2.11 mm (0.25 or 25 for 0.25 mm).</source>
        <translation>"%1" ist keine Linienstärke: %2 nimmt VonLayer, VonBlock, Vorgabe oder eine Standardlinienstärke von 0,00 mm bis 2,11 mm an (0.25 oder 25 für 0,25 mm).</translation>
    </message>
    <message>
        <source>%1 is out of range: %2 needs a whole number from -2147483648 to 2147483647.</source>
        <translation>%1 liegt außerhalb des Bereichs: %2 braucht eine ganze Zahl von -2147483648 bis 2147483647.</translation>
    </message>
    <message>
        <source>"%1" is not a whole number: %2 needs one.</source>
        <translation>"%1" ist keine ganze Zahl: %2 braucht eine.</translation>
    </message>
    <message>
        <source>"%1" is not a colour: %2 takes an index from 0 to 256, a colour name (red, yellow, green, cyan, blue, magenta, white), ByLayer, ByBlock or red,green,blue from 0 to 255.</source>
        <translation>"%1" ist keine Farbe: %2 nimmt eine Farbnummer von 0 bis 256, einen Farbnamen (red, yellow, green, cyan, blue, magenta, white), ByLayer, ByBlock oder Rot,Grün,Blau von 0 bis 255 an.</translation>
    </message>
    <message>
        <source>"%1" is not one of the choices of %2: %3.</source>
        <translation>"%1" ist keine der Auswahlmöglichkeiten von %2: %3.</translation>
    </message>
    <message>
        <source>%1 cannot be set from text.</source>
        <translation>%1 kann nicht aus Text gesetzt werden.</translation>
    </message>
    <message>
        <source>A true colour needs a drawing saved as %1 or later; this drawing is %2.</source>
        <translation>Eine True Color braucht eine Zeichnung im Format %1 oder neuer; diese Zeichnung ist %2.</translation>
    </message>
    <message>
        <source>The layer must be one of the drawing's layers.</source>
        <translation>Der Layer muss einer der Layer der Zeichnung sein.</translation>
    </message>
    <message>
        <source>The linetype must be one of the drawing's linetypes.</source>
        <translation>Der Linientyp muss einer der Linientypen der Zeichnung sein.</translation>
    </message>
    <message>
        <source>Linetype scale must be a finite number greater than 0.</source>
        <translation>Der Linientypfaktor muss eine endliche Zahl größer als 0 sein.</translation>
    </message>
    <message>
        <source>Linetype scale needs a drawing saved as %1 or later; this drawing is %2.</source>
        <translation>Der Linientypfaktor braucht eine Zeichnung im Format %1 oder neuer; diese Zeichnung ist %2.</translation>
    </message>
    <message>
        <source>This drawing plots by colour: its objects take only the plot style ByColor.</source>
        <translation>Diese Zeichnung plottet nach Farbe: ihre Objekte nehmen nur den Plotstil VonFarbe an.</translation>
    </message>
    <message>
        <source>This drawing uses named plot styles: choose ByLayer or one of %1.</source>
        <translation>Diese Zeichnung verwendet benannte Plotstile: wählen Sie VonLayer oder einen von %1.</translation>
    </message>
    <message>
        <source>The plot style ByBlock cannot be saved in the drawing: choose ByLayer or one of %1.</source>
        <translation>Der Plotstil VonBlock kann in der Zeichnung nicht gespeichert werden: wählen Sie VonLayer oder einen von %1.</translation>
    </message>
    <message>
        <source>Plot styles need a drawing saved as %1 or later; this drawing is %2.</source>
        <translation>Plotstile brauchen eine Zeichnung im Format %1 oder neuer; diese Zeichnung ist %2.</translation>
    </message>
    <message>
        <source>The drawing has no plot style named "%1": choose ByLayer or one of %2.</source>
        <translation>Die Zeichnung hat keinen Plotstil namens "%1": wählen Sie VonLayer oder einen von %2.</translation>
    </message>
    <message>
        <source>Lineweight must be ByLayer, ByBlock, Default or a standard lineweight from 0.00 mm to 2.11 mm.</source>
        <translation>Die Linienstärke muss VonLayer, VonBlock, Vorgabe oder eine Standardlinienstärke von 0,00 mm bis 2,11 mm sein.</translation>
    </message>
    <message>
        <source>Lineweight needs a drawing saved as %1 or later; this drawing is %2.</source>
        <translation>Die Linienstärke braucht eine Zeichnung im Format %1 oder neuer; diese Zeichnung ist %2.</translation>
    </message>
    <message>
        <source>Transparency must be ByLayer, ByBlock or a whole percentage from 0 to 90.</source>
        <translation>Die Transparenz muss VonLayer, VonBlock oder ein ganzer Prozentwert von 0 bis 90 sein.</translation>
    </message>
    <message>
        <source>Transparency needs a drawing saved as %1 or later; this drawing is %2.</source>
        <translation>Die Transparenz braucht eine Zeichnung im Format %1 oder neuer; diese Zeichnung ist %2.</translation>
    </message>
    <message>
        <source>A hyperlink cannot contain line breaks or control characters</source>
        <translation>Ein Hyperlink darf keine Zeilenumbrüche oder Steuerzeichen enthalten</translation>
    </message>
    <message>
        <source>Only a drawing read from a file can be saved as another release.</source>
        <translation>Nur eine aus einer Datei gelesene Zeichnung kann in einem anderen Format gespeichert werden.</translation>
    </message>
    <message>
        <source>an unnamed release</source>
        <translation>ein unbenanntes Format</translation>
    </message>
    <message>
        <source>%1 is not a release the drawing can be saved as.</source>
        <translation>%1 ist kein Format, in dem die Zeichnung gespeichert werden kann.</translation>
    </message>
    <message>
        <source>The drawing is %1 and cannot be saved as the older %2: what only %1 holds would be lost.</source>
        <translation>Die Zeichnung ist %1 und kann nicht im älteren Format %2 gespeichert werden: was nur %1 aufnimmt, ginge verloren.</translation>
    </message>
    <message>
        <source>The drawing is %1 and cannot be saved as %2: only drawings of R2000 or later can be moved to a newer release.</source>
        <translation>Die Zeichnung ist %1 und kann nicht als %2 gespeichert werden: nur Zeichnungen ab R2000 können in ein neueres Format gebracht werden.</translation>
    </message>
    <message>
        <source>An attribute tag must be one word without blanks</source>
        <translation>Eine Attributbezeichnung muss ein Wort ohne Leerzeichen sein</translation>
    </message>
    <message>
        <source>An attribute value is one line: it cannot contain line breaks or control characters</source>
        <translation>Ein Attributwert ist einzeilig: er darf keine Zeilenumbrüche oder Steuerzeichen enthalten</translation>
    </message>
    <message>
        <source>Locking the position of an attribute needs a drawing saved as %1 or later; this drawing is %2.</source>
        <translation>Das Sperren der Position eines Attributs braucht eine Zeichnung im Format %1 oder neuer; diese Zeichnung ist %2.</translation>
    </message>
    <message>
        <source>There is no vertex %1: the object has %2 vertices.</source>
        <translation>Es gibt keinen Scheitelpunkt %1: das Objekt hat %2 Scheitelpunkte.</translation>
    </message>
    <message>
        <source>Radius ratio must be greater than 0 and at most 1</source>
        <translation>Das Radienverhältnis muss größer als 0 und höchstens 1 sein</translation>
    </message>
    <message>
        <source>Minor radius must not be greater than the major radius</source>
        <translation>Der Nebenradius darf nicht größer als der Hauptradius sein</translation>
    </message>
    <message>
        <source>Degree must be a whole number from 1 to 10</source>
        <translation>Der Grad muss eine ganze Zahl von 1 bis 10 sein</translation>
    </message>
    <message>
        <source>The degree of a spline without fit points cannot be changed</source>
        <translation>Der Grad eines Splines ohne Anpassungspunkte kann nicht geändert werden</translation>
    </message>
    <message>
        <source>The degree must be lower than the number of fit points</source>
        <translation>Der Grad muss kleiner als die Anzahl der Anpassungspunkte sein</translation>
    </message>
    <message>
        <source>A prompt is one line: it cannot contain line breaks or control characters</source>
        <translation>Eine Eingabeaufforderung ist einzeilig: sie darf keine Zeilenumbrüche oder Steuerzeichen enthalten</translation>
    </message>
    <message>
        <source>%1 cannot take this value</source>
        <translation>%1 kann diesen Wert nicht annehmen</translation>
    </message>
    <message>
        <source>Decimal separator must be one character</source>
        <translation>Das Dezimaltrennzeichen muss genau ein Zeichen sein</translation>
    </message>
    <message>
        <source>A dimension text cannot hold control characters</source>
        <translation>Ein Bemaßungstext kann keine Steuerzeichen enthalten</translation>
    </message>
    <message>
        <source>Choose one of the drawing's blocks as the custom arrow</source>
        <translation>Wählen Sie einen Block der Zeichnung als Benutzerpfeil</translation>
    </message>
    <message>
        <source>The drawing has no block for the arrowhead "%1"</source>
        <translation>Die Zeichnung hat keinen Block für die Pfeilspitze "%1"</translation>
    </message>
    <message>
        <source>There is no such arrowhead</source>
        <translation>Diese Pfeilspitze gibt es nicht</translation>
    </message>
    <message>
        <source>Multiline text can hold line breaks and tabs but no other control characters</source>
        <translation>Mehrzeiliger Text kann Zeilenumbrüche und Tabulatoren, aber keine anderen Steuerzeichen enthalten</translation>
    </message>
    <message>
        <source>A hyperlink needs a drawing saved as %1 or later; this drawing is %2.</source>
        <translation>Ein Hyperlink braucht eine Zeichnung im Format %1 oder neuer; diese Zeichnung ist %2.</translation>
    </message>
    <message>
        <source>A text justified Aligned or Fit cannot be annotative.</source>
        <translation>Ein Text mit der Ausrichtung Ausgerichtet oder Eingepasst kann nicht beschriftend sein.</translation>
    </message>
    <message>
        <source>record</source>
        <translation>Eintrag</translation>
    </message>
    <message>
        <source>The %1 "%2" is part of every drawing and cannot be renamed.</source>
        <translation>%1 "%2" gehört zu jeder Zeichnung und kann nicht umbenannt werden.</translation>
    </message>
    <message>
        <source>A name cannot be empty.</source>
        <translation>Ein Name darf nicht leer sein.</translation>
    </message>
    <message>
        <source>A name cannot contain any of the characters %1; "%2" contains %3.</source>
        <translation>Ein Name darf keines der Zeichen %1 enthalten; "%2" enthält %3.</translation>
    </message>
    <message>
        <source>A name cannot begin or end with a blank.</source>
        <translation>Ein Name darf nicht mit einem Leerzeichen beginnen oder enden.</translation>
    </message>
    <message>
        <source>A %1 named "%2" already exists.</source>
        <translation>%1 "%2" gibt es bereits.</translation>
    </message>
    <message>
        <source>The drawing has no multileader style "%1".</source>
        <translation>Die Zeichnung hat keinen Multi-Führungslinienstil "%1".</translation>
    </message>
    <message>
        <source>The multileader's block is missing from the drawing.</source>
        <translation>Der Block der Multi-Führungslinie fehlt in der Zeichnung.</translation>
    </message>
    <message>
        <source>A multileader text cannot hold control characters; use \P for a new line.</source>
        <translation>Ein Multi-Führungslinientext kann keine Steuerzeichen enthalten; für eine neue Zeile \P verwenden.</translation>
    </message>
    <message>
        <source>The object is not open for changes.</source>
        <translation>Das Objekt ist nicht zum Ändern geöffnet.</translation>
    </message>
    <message>
        <source>Annotative objects need a drawing saved as %1 or later; this drawing is %2.</source>
        <translation>Beschriftende Objekte brauchen eine Zeichnung im Format %1 oder neuer; diese Zeichnung ist %2.</translation>
    </message>
    <message>
        <source>Only an annotative object can follow the orientation of the sheet.</source>
        <translation>Nur ein beschriftendes Objekt kann der Ausrichtung des Blatts folgen.</translation>
    </message>
    <message>
        <source>There is no hatch pattern named "%1".</source>
        <translation>Es gibt kein Schraffurmuster namens "%1".</translation>
    </message>
    <message>
        <source>Only a hatch made from boundary objects can be associative</source>
        <translation>Nur eine aus Umgrenzungsobjekten erzeugte Schraffur kann assoziativ sein</translation>
    </message>
    <message>
        <source>A gradient colour must be a colour of its own, not ByLayer or ByBlock</source>
        <translation>Eine Verlaufsfarbe muss eine eigene Farbe sein, nicht VonLayer oder VonBlock</translation>
    </message>
    <message>
        <source>The solid's position is not known, so it cannot be moved.</source>
        <translation>Die Position des Volumenkörpers ist unbekannt, daher kann er nicht verschoben werden.</translation>
    </message>
    <message>
        <source>%1 cannot be changed here: the solid's body would have to be built again from its history. Nothing was changed.</source>
        <translation>%1 kann hier nicht geändert werden: der Körper des Volumenkörpers müsste aus seinem Verlauf neu aufgebaut werden. Es wurde nichts geändert.</translation>
    </message>
    <message>
        <source>A pyramid has from 3 to 32 sides.</source>
        <translation>Eine Pyramide hat 3 bis 32 Seiten.</translation>
    </message>
    <message>
        <source>%1 cannot be changed here: the surface would have to be built again from the curves that made it. Nothing was changed.</source>
        <translation>%1 kann hier nicht geändert werden: die Fläche müsste aus den Kurven, die sie erzeugt haben, neu aufgebaut werden. Es wurde nichts geändert.</translation>
    </message>
    <message>
        <source>A layout cannot be placed as a block.</source>
        <translation>Ein Layout kann nicht als Block eingefügt werden.</translation>
    </message>
    <message>
        <source>A block cannot contain a reference to itself.</source>
        <translation>Ein Block kann keine Referenz auf sich selbst enthalten.</translation>
    </message>
    <message>
        <source>A scale factor cannot be 0.</source>
        <translation>Ein Skalierfaktor kann nicht 0 sein.</translation>
    </message>
    <message>
        <source>Rows and columns are counted in whole numbers.</source>
        <translation>Zeilen und Spalten werden in ganzen Zahlen gezählt.</translation>
    </message>
    <message>
        <source>Precision must be a whole number from 0 to 8.</source>
        <translation>Die Genauigkeit muss eine ganze Zahl von 0 bis 8 sein.</translation>
    </message>
    <message>
        <source>The current layer cannot be frozen.</source>
        <translation>Der aktuelle Layer kann nicht gefroren werden.</translation>
    </message>
    <message>
        <source>A layer's color must be a color of its own, not ByLayer or ByBlock.</source>
        <translation>Die Farbe eines Layers muss eine eigene Farbe sein, nicht VonLayer oder VonBlock.</translation>
    </message>
    <message>
        <source>A layer's linetype must be a linetype of its own, not ByLayer or ByBlock.</source>
        <translation>Der Linientyp eines Layers muss ein eigener Linientyp sein, nicht VonLayer oder VonBlock.</translation>
    </message>
    <message>
        <source>A layer's lineweight must be Default or a standard lineweight from 0.00 mm to 2.11 mm.</source>
        <translation>Die Linienstärke eines Layers muss Vorgabe oder eine Standardlinienstärke von 0,00 mm bis 2,11 mm sein.</translation>
    </message>
    <message>
        <source>A layer's transparency must be a whole percentage from 0 to 90.</source>
        <translation>Die Transparenz eines Layers muss ein ganzer Prozentwert von 0 bis 90 sein.</translation>
    </message>
    <message>
        <source>A viewport without height has no scale.</source>
        <translation>Ein Ansichtsfenster ohne Höhe hat keinen Maßstab.</translation>
    </message>
    <message>
        <source>The layout's own paper view cannot be changed.</source>
        <translation>Die Papieransicht des Layouts selbst kann nicht geändert werden.</translation>
    </message>
    <message>
        <source>view</source>
        <translation>Ansicht</translation>
    </message>
    <message>
        <source>group</source>
        <translation>Gruppe</translation>
    </message>
    <message>
        <source>multiline style</source>
        <translation>Multilinienstil</translation>
    </message>
    <message>
        <source>table style</source>
        <translation>Tabellenstil</translation>
    </message>
    <message>
        <source>This %1 belongs to no dictionary of the drawing and cannot be renamed.</source>
        <translation>Diese(r) %1 gehört zu keinem Verzeichnis der Zeichnung und kann nicht umbenannt werden.</translation>
    </message>
    <message>
        <source>The justification cannot be changed: the offsets of the multiline style are not known.</source>
        <translation>Die Ausrichtung kann nicht geändert werden: die Abstände des Multilinienstils sind nicht bekannt.</translation>
    </message>
    <message>
        <source>Dimension overrides need a drawing saved as %1 or later; this drawing is %2.</source>
        <translation>Bemaßungsüberschreibungen brauchen eine als %1 oder neuer gespeicherte Zeichnung; diese Zeichnung ist %2.</translation>
    </message>
    <message>
        <source>Inspection data needs a drawing saved as %1 or later; this drawing is %2.</source>
        <translation>Prüfdaten brauchen eine als %1 oder neuer gespeicherte Zeichnung; diese Zeichnung ist %2.</translation>
    </message>
    <message>
        <source>A light needs a name.</source>
        <translation>Ein Licht braucht einen Namen.</translation>
    </message>
    <message>
        <source>A light's name is one line: it cannot contain line breaks or control characters.</source>
        <translation>Der Name eines Lichts ist eine Zeile: er darf keine Zeilenumbrüche oder Steuerzeichen enthalten.</translation>
    </message>
    <message>
        <source>The hotspot of a light cannot be wider than its falloff.</source>
        <translation>Der Hotspot eines Lichts kann nicht breiter als sein Abfall sein.</translation>
    </message>
    <message>
        <source>A light's cone angle must be greater than 0 and at most 160 degrees.</source>
        <translation>Der Kegelwinkel eines Lichts muss größer als 0 und höchstens 160 Grad sein.</translation>
    </message>
    <message>
        <source>An OLE object's width and height must be greater than 0.</source>
        <translation>Breite und Höhe eines OLE-Objekts müssen größer als 0 sein.</translation>
    </message>
    <message>
        <source>%1 is a whole number.</source>
        <translation>%1 ist eine ganze Zahl.</translation>
    </message>
    <message>
        <source>The image does not lie in the XY plane of the current UCS: its rotation cannot be set there.</source>
        <translation>Das Bild liegt nicht in der XY-Ebene des aktuellen BKS: seine Drehung kann dort nicht eingestellt werden.</translation>
    </message>
    <message>
        <source>An image's size and scale must be greater than 0.</source>
        <translation>Größe und Maßstab eines Bildes müssen größer als 0 sein.</translation>
    </message>
    <message>
        <source>There is no cell %1: the table has %2 cells.</source>
        <translation>Es gibt keine Zelle %1: die Tabelle hat %2 Zellen.</translation>
    </message>
    <message>
        <source>A cell's text is one line: write a line break as \P.</source>
        <translation>Der Text einer Zelle ist eine Zeile: schreiben Sie einen Zeilenumbruch als \P.</translation>
    </message>
    <message>
        <source>A cell's text can be at most 250 characters long.</source>
        <translation>Der Text einer Zelle darf höchstens 250 Zeichen lang sein.</translation>
    </message>
    <message>
        <source>This cell holds a block, not text.</source>
        <translation>Diese Zelle enthält einen Block, keinen Text.</translation>
    </message>
    <message>
        <source>The drawing keeps no text of its own for this cell: it cannot be edited here.</source>
        <translation>Die Zeichnung speichert für diese Zelle keinen eigenen Text: er kann hier nicht bearbeitet werden.</translation>
    </message>
    <message>
        <source>An underlay's scale must be greater than 0.</source>
        <translation>Der Maßstab einer Unterlage muss größer als 0 sein.</translation>
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
    <message>
        <source>TextStyle</source>
        <translation>Textstil</translation>
    </message>
    <message>
        <source>Typeface</source>
        <translation>Schriftbild</translation>
    </message>
    <message>
        <source>Font file</source>
        <translation>Schriftdatei</translation>
    </message>
    <message>
        <source>Start point</source>
        <translation>Startpunkt</translation>
    </message>
    <message>
        <source>height</source>
        <translation>Höhe</translation>
    </message>
    <message>
        <source>text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>rotation angle</source>
        <translation>Drehwinkel</translation>
    </message>
    <message>
        <source>width scale</source>
        <translation>Breitenfaktor</translation>
    </message>
    <message>
        <source>obliquing angle</source>
        <translation>Neigungswinkel</translation>
    </message>
    <message>
        <source>Start angle</source>
        <translation>Startwinkel</translation>
    </message>
    <message>
        <source>End angle</source>
        <translation>Endwinkel</translation>
    </message>
    <message>
        <source>Total angle</source>
        <translation>Gesamtwinkel</translation>
    </message>
    <message>
        <source>Major axis</source>
        <translation>Hauptachse</translation>
    </message>
    <message>
        <source>Minor axis</source>
        <translation>Nebenachse</translation>
    </message>
    <message>
        <source>Radius ratio</source>
        <translation>Radienverhältnis</translation>
    </message>
    <message>
        <source>Edge %1</source>
        <translation>Kante %1</translation>
    </message>
    <message>
        <source>Thickness</source>
        <translation>Objekthöhe</translation>
    </message>
    <message>
        <source>Fit/Smooth</source>
        <translation>Kurvenlinie/Glätten</translation>
    </message>
    <message>
        <source>Degree</source>
        <translation>Grad</translation>
    </message>
    <message>
        <source>Closed</source>
        <translation>Geschlossen</translation>
    </message>
    <message>
        <source>Periodic</source>
        <translation>Periodisch</translation>
    </message>
    <message>
        <source>Rational</source>
        <translation>Rational</translation>
    </message>
    <message>
        <source>Number of control points</source>
        <translation>Anzahl Kontrollpunkte</translation>
    </message>
    <message>
        <source>Control Point %1</source>
        <translation>Kontrollpunkt %1</translation>
    </message>
    <message>
        <source>Number of fit points</source>
        <translation>Anzahl Anpassungspunkte</translation>
    </message>
    <message>
        <source>Fit Point %1</source>
        <translation>Anpassungspunkt %1</translation>
    </message>
    <message>
        <source>Tag</source>
        <translation>Bezeichnung</translation>
    </message>
    <message>
        <source>Invisible</source>
        <translation>Unsichtbar</translation>
    </message>
    <message>
        <source>Constant</source>
        <translation>Konstant</translation>
    </message>
    <message>
        <source>Verify</source>
        <translation>Prüfen</translation>
    </message>
    <message>
        <source>Preset</source>
        <translation>Vorgabe</translation>
    </message>
    <message>
        <source>Lock position</source>
        <translation>Position sperren</translation>
    </message>
    <message>
        <source>Prompt</source>
        <translation>Eingabeaufforderung</translation>
    </message>
    <message>
        <source>Dimension style overrides</source>
        <translation>Bemaßungsstil-Überschreibungen</translation>
    </message>
    <message>
        <source>related</source>
        <translation>assoziiert</translation>
    </message>
    <message>
        <source>associated with geometry</source>
        <translation>mit Geometrie verknüpft</translation>
    </message>
    <message>
        <source>type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>measurement</source>
        <translation>Messwert</translation>
    </message>
    <message>
        <source>default text position</source>
        <translation>Standardtextposition</translation>
    </message>
    <message>
        <source>default text</source>
        <translation>Standardtext</translation>
    </message>
    <message>
        <source>DimensionStyle</source>
        <translation>Bemaßungsstil</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Einfügepunkt</translation>
    </message>
    <message>
        <source>Attachment</source>
        <translation>Ausrichtung</translation>
    </message>
    <message>
        <source>Direction</source>
        <translation>Richtung</translation>
    </message>
    <message>
        <source>width</source>
        <translation>Breite</translation>
    </message>
    <message>
        <source>line spacing factor</source>
        <translation>Zeilenabstandsfaktor</translation>
    </message>
    <message>
        <source>Sheet text height</source>
        <translation>Papiertexthöhe</translation>
    </message>
    <message>
        <source>Model text height</source>
        <translation>Modelltexthöhe</translation>
    </message>
    <message>
        <source>Pattern type</source>
        <translation>Mustertyp</translation>
    </message>
    <message>
        <source>Pattern name</source>
        <translation>Mustername</translation>
    </message>
    <message>
        <source>Angle</source>
        <translation>Winkel</translation>
    </message>
    <message>
        <source>Spacing</source>
        <translation>Abstand</translation>
    </message>
    <message>
        <source>Double</source>
        <translation>Doppelt</translation>
    </message>
    <message>
        <source>Scale</source>
        <translation>Skalierung</translation>
    </message>
    <message>
        <source>Origin</source>
        <translation>Ursprung</translation>
    </message>
    <message>
        <source>Gradient name</source>
        <translation>Verlaufsname</translation>
    </message>
    <message>
        <source>Associative</source>
        <translation>Assoziativ</translation>
    </message>
    <message>
        <source>Island detection style</source>
        <translation>Inselerkennungsstil</translation>
    </message>
    <message>
        <source>Boundaries</source>
        <translation>Umgrenzungen</translation>
    </message>
    <message>
        <source>Elevation</source>
        <translation>Erhebung</translation>
    </message>
    <message>
        <source>Bounding box</source>
        <translation>Umgrenzungsquader</translation>
    </message>
    <message>
        <source>Block Name</source>
        <translation>Blockname</translation>
    </message>
    <message>
        <source>at point</source>
        <translation>bei Punkt</translation>
    </message>
    <message>
        <source>X scale factor</source>
        <translation>X-Skalierfaktor</translation>
    </message>
    <message>
        <source>Y scale factor</source>
        <translation>Y-Skalierfaktor</translation>
    </message>
    <message>
        <source>Z scale factor</source>
        <translation>Z-Skalierfaktor</translation>
    </message>
    <message>
        <source>Extrusion direction</source>
        <translation>Extrusionsrichtung</translation>
    </message>
    <message>
        <source>Unit factor</source>
        <translation>Einheitenfaktor</translation>
    </message>
    <message>
        <source>Columns</source>
        <translation>Spalten</translation>
    </message>
    <message>
        <source>Rows</source>
        <translation>Zeilen</translation>
    </message>
    <message>
        <source>Column spacing</source>
        <translation>Spaltenabstand</translation>
    </message>
    <message>
        <source>Row spacing</source>
        <translation>Zeilenabstand</translation>
    </message>
    <message>
        <source>Attribute</source>
        <translation>Attribut</translation>
    </message>
    <message>
        <source>Original class name</source>
        <translation>Ursprünglicher Klassenname</translation>
    </message>
    <message>
        <source>DXF name</source>
        <translation>DXF-Name</translation>
    </message>
    <message>
        <source>Application</source>
        <translation>Anwendung</translation>
    </message>
    <message>
        <source>Allowed operations</source>
        <translation>Erlaubte Operationen</translation>
    </message>
    <message>
        <source>Center point</source>
        <translation>Mittelpunkt</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Breite</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Höhe</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Scale relative to paper space</source>
        <translation>Maßstab relativ zum Papierbereich</translation>
    </message>
    <message>
        <source>Style</source>
        <translation>Stil</translation>
    </message>
    <message>
        <source>Justify</source>
        <translation>Ausrichtung</translation>
    </message>
    <message>
        <source>Vertex count</source>
        <translation>Anzahl Scheitelpunkte</translation>
    </message>
    <message>
        <source>Face count</source>
        <translation>Anzahl Flächen</translation>
    </message>
    <message>
        <source>Surface area</source>
        <translation>Oberfläche</translation>
    </message>
    <message>
        <source>M vertex count</source>
        <translation>Anzahl Scheitelpunkte M</translation>
    </message>
    <message>
        <source>N vertex count</source>
        <translation>Anzahl Scheitelpunkte N</translation>
    </message>
    <message>
        <source>M closed</source>
        <translation>In M geschlossen</translation>
    </message>
    <message>
        <source>N closed</source>
        <translation>In N geschlossen</translation>
    </message>
    <message>
        <source>M density</source>
        <translation>Dichte M</translation>
    </message>
    <message>
        <source>N density</source>
        <translation>Dichte N</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Rotation</source>
        <translation>Drehung</translation>
    </message>
    <message>
        <source>Width factor</source>
        <translation>Breitenfaktor</translation>
    </message>
    <message>
        <source>Oblique angle</source>
        <translation>Neigungswinkel</translation>
    </message>
    <message>
        <source>Smoothness</source>
        <translation>Glättung</translation>
    </message>
    <message>
        <source>Edge count</source>
        <translation>Anzahl Kanten</translation>
    </message>
    <message>
        <source>1st defining point attached to</source>
        <translation>1. Definitionspunkt gebunden an</translation>
    </message>
    <message>
        <source>2nd defining point attached to</source>
        <translation>2. Definitionspunkt gebunden an</translation>
    </message>
    <message>
        <source>3rd defining point attached to</source>
        <translation>3. Definitionspunkt gebunden an</translation>
    </message>
    <message>
        <source>4th defining point attached to</source>
        <translation>4. Definitionspunkt gebunden an</translation>
    </message>
    <message>
        <source>association</source>
        <translation>Assoziativität</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Ein</translation>
    </message>
    <message>
        <source>Intensity factor</source>
        <translation>Intensitätsfaktor</translation>
    </message>
    <message>
        <source>Target</source>
        <translation>Ziel</translation>
    </message>
    <message>
        <source>Hotspot angle</source>
        <translation>Hotspot-Winkel</translation>
    </message>
    <message>
        <source>Falloff angle</source>
        <translation>Abfallwinkel</translation>
    </message>
    <message>
        <source>Upper left corner</source>
        <translation>Obere linke Ecke</translation>
    </message>
    <message>
        <source>Lower right corner</source>
        <translation>Untere rechte Ecke</translation>
    </message>
    <message>
        <source>Image name</source>
        <translation>Bildname</translation>
    </message>
    <message>
        <source>Saved path</source>
        <translation>Gespeicherter Pfad</translation>
    </message>
    <message>
        <source>Insertion point</source>
        <translation>Einfügepunkt</translation>
    </message>
    <message>
        <source>Table style</source>
        <translation>Tabellenstil</translation>
    </message>
    <message>
        <source>Table width</source>
        <translation>Tabellenbreite</translation>
    </message>
    <message>
        <source>Table height</source>
        <translation>Tabellenhöhe</translation>
    </message>
    <message>
        <source>Underlay name</source>
        <translation>Name der Unterlage</translation>
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
    <message>
        <source>Invisible</source>
        <translation>Unsichtbar</translation>
    </message>
    <message>
        <source>cannot be measured: its defining points are degenerate</source>
        <translation>nicht messbar: die Definitionspunkte sind entartet</translation>
    </message>
    <message>
        <source>aligned</source>
        <translation>ausgerichtet</translation>
    </message>
    <message>
        <source>rotated</source>
        <translation>gedreht</translation>
    </message>
    <message>
        <source>angular</source>
        <translation>Winkel</translation>
    </message>
    <message>
        <source>diameter</source>
        <translation>Durchmesser</translation>
    </message>
    <message>
        <source>ordinate</source>
        <translation>Koordinate</translation>
    </message>
    <message>
        <source>jogged</source>
        <translation>verkürzt</translation>
    </message>
    <message>
        <source>radial</source>
        <translation>Radius</translation>
    </message>
    <message>
        <source>Top Left</source>
        <translation>Oben links</translation>
    </message>
    <message>
        <source>Top Center</source>
        <translation>Oben zentriert</translation>
    </message>
    <message>
        <source>Top Right</source>
        <translation>Oben rechts</translation>
    </message>
    <message>
        <source>Middle Left</source>
        <translation>Mitte links</translation>
    </message>
    <message>
        <source>Middle Center</source>
        <translation>Mitte zentriert</translation>
    </message>
    <message>
        <source>Middle Right</source>
        <translation>Mitte rechts</translation>
    </message>
    <message>
        <source>Bottom Left</source>
        <translation>Unten links</translation>
    </message>
    <message>
        <source>Bottom Center</source>
        <translation>Unten zentriert</translation>
    </message>
    <message>
        <source>Bottom Right</source>
        <translation>Unten rechts</translation>
    </message>
    <message>
        <source>Left to right</source>
        <translation>Links nach rechts</translation>
    </message>
    <message>
        <source>Right to left</source>
        <translation>Rechts nach links</translation>
    </message>
    <message>
        <source>Top to bottom</source>
        <translation>Oben nach unten</translation>
    </message>
    <message>
        <source>Bottom to top</source>
        <translation>Unten nach oben</translation>
    </message>
    <message>
        <source>By style</source>
        <translation>Nach Stil</translation>
    </message>
    <message>
        <source>leader</source>
        <translation>Führung</translation>
    </message>
    <message>
        <source>Straight</source>
        <translation>Gerade</translation>
    </message>
    <message>
        <source>Spline</source>
        <translation>Spline</translation>
    </message>
    <message>
        <source>None</source>
        <translation type="unfinished">Keine</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Notiz</translation>
    </message>
    <message>
        <source>Tolerance</source>
        <translation type="unfinished">Toleranzen</translation>
    </message>
    <message>
        <source>not computable (the boundary crosses itself or is open)</source>
        <translation>nicht berechenbar (die Umgrenzung schneidet sich selbst oder ist offen)</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Ein</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Aus</translation>
    </message>
    <message>
        <source>no snap</source>
        <translation>kein Objektfang</translation>
    </message>
    <message>
        <source>end point</source>
        <translation>Endpunkt</translation>
    </message>
    <message>
        <source>midpoint</source>
        <translation>Mittelpunkt</translation>
    </message>
    <message>
        <source>center</source>
        <translation>Zentrum</translation>
    </message>
    <message>
        <source>node</source>
        <translation>Knoten</translation>
    </message>
    <message>
        <source>quadrant</source>
        <translation>Quadrant</translation>
    </message>
    <message>
        <source>intersection</source>
        <translation>Schnittpunkt</translation>
    </message>
    <message>
        <source>insertion point</source>
        <translation>Einfügepunkt</translation>
    </message>
    <message>
        <source>perpendicular</source>
        <translation>Lotpunkt</translation>
    </message>
    <message>
        <source>tangent</source>
        <translation>Tangente</translation>
    </message>
    <message>
        <source>nearest point</source>
        <translation>Nächster Punkt</translation>
    </message>
    <message>
        <source>apparent intersection</source>
        <translation>Angenommener Schnittpunkt</translation>
    </message>
    <message>
        <source>parallel</source>
        <translation>Parallele</translation>
    </message>
    <message>
        <source>start point</source>
        <translation>Startpunkt</translation>
    </message>
    <message>
        <source>%1 of %2 %3</source>
        <translation>%1 von %2 %3</translation>
    </message>
    <message>
        <source>%1 of %2, which is not in the drawing</source>
        <translation>%1 von %2, das nicht in der Zeichnung ist</translation>
    </message>
    <message>
        <source>found</source>
        <translation>gefunden</translation>
    </message>
    <message>
        <source>not found</source>
        <translation>nicht gefunden</translation>
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
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Attribute</source>
        <translation>Attribut</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Position</translation>
    </message>
    <message>
        <source>Lines &amp;&amp; Arrows</source>
        <translation>Linien &amp;&amp; Pfeile</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>Einpassen</translation>
    </message>
    <message>
        <source>Primary UnitSystem</source>
        <translation>Primäreinheiten</translation>
    </message>
    <message>
        <source>Alternate UnitSystem</source>
        <translation>Alternativeinheiten</translation>
    </message>
    <message>
        <source>Tolerance</source>
        <translation>Toleranzen</translation>
    </message>
    <message>
        <source>Columns</source>
        <translation>Spalten</translation>
    </message>
    <message>
        <source>Leaders</source>
        <translation>Führungslinien</translation>
    </message>
    <message>
        <source>Block</source>
        <translation>Block</translation>
    </message>
    <message>
        <source>Pattern</source>
        <translation>Muster</translation>
    </message>
    <message>
        <source>Gradient</source>
        <translation>Verlauf</translation>
    </message>
    <message>
        <source>Attributes</source>
        <translation>Attribute</translation>
    </message>
    <message>
        <source>Table</source>
        <translation>Tabelle</translation>
    </message>
    <message>
        <source>Cell</source>
        <translation>Zelle</translation>
    </message>
    <message>
        <source>Caps</source>
        <translation>Abschlüsse</translation>
    </message>
    <message>
        <source>Fill</source>
        <translation>Füllung</translation>
    </message>
    <message>
        <source>Cell margins</source>
        <translation>Zellränder</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Ansicht</translation>
    </message>
    <message>
        <source>Drawing aids</source>
        <translation>Zeichenhilfen</translation>
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
    <message>
        <source>Contents</source>
        <translation>Inhalt</translation>
    </message>
    <message>
        <source>TextStyle</source>
        <translation>Textstil</translation>
    </message>
    <message>
        <source>Justify</source>
        <translation>Ausrichtung</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Höhe</translation>
    </message>
    <message>
        <source>Rotation</source>
        <translation>Drehung</translation>
    </message>
    <message>
        <source>Spacing</source>
        <translation>Abstand</translation>
    </message>
    <message>
        <source>Text alignment X</source>
        <translation>Textausrichtung X</translation>
    </message>
    <message>
        <source>Text alignment Y</source>
        <translation>Textausrichtung Y</translation>
    </message>
    <message>
        <source>Text alignment Z</source>
        <translation>Textausrichtung Z</translation>
    </message>
    <message>
        <source>UpsideDown</source>
        <translation>Kopfüber</translation>
    </message>
    <message>
        <source>Backward</source>
        <translation>Rückwärts</translation>
    </message>
    <message>
        <source>Start angle</source>
        <translation>Startwinkel</translation>
    </message>
    <message>
        <source>End angle</source>
        <translation>Endwinkel</translation>
    </message>
    <message>
        <source>Total angle</source>
        <translation>Gesamtwinkel</translation>
    </message>
    <message>
        <source>Arc length</source>
        <translation>Bogenlänge</translation>
    </message>
    <message>
        <source>Major radius</source>
        <translation>Hauptradius</translation>
    </message>
    <message>
        <source>Minor radius</source>
        <translation>Nebenradius</translation>
    </message>
    <message>
        <source>Radius ratio</source>
        <translation>Radienverhältnis</translation>
    </message>
    <message>
        <source>Major axis X</source>
        <translation>Hauptachse X</translation>
    </message>
    <message>
        <source>Major axis Y</source>
        <translation>Hauptachse Y</translation>
    </message>
    <message>
        <source>Major axis Z</source>
        <translation>Hauptachse Z</translation>
    </message>
    <message>
        <source>Start parameter</source>
        <translation>Startparameter</translation>
    </message>
    <message>
        <source>End parameter</source>
        <translation>Endparameter</translation>
    </message>
    <message>
        <source>Vertex Z</source>
        <translation>Scheitelpunkt Z</translation>
    </message>
    <message>
        <source>Edge visible</source>
        <translation>Kante sichtbar</translation>
    </message>
    <message>
        <source>Fit/Smooth</source>
        <translation>Kurvenlinie/Glätten</translation>
    </message>
    <message>
        <source>Degree</source>
        <translation>Grad</translation>
    </message>
    <message>
        <source>Control point</source>
        <translation>Kontrollpunkt</translation>
    </message>
    <message>
        <source>Control point X</source>
        <translation>Kontrollpunkt X</translation>
    </message>
    <message>
        <source>Control point Y</source>
        <translation>Kontrollpunkt Y</translation>
    </message>
    <message>
        <source>Control point Z</source>
        <translation>Kontrollpunkt Z</translation>
    </message>
    <message>
        <source>Weight</source>
        <translation>Gewichtung</translation>
    </message>
    <message>
        <source>Number of control points</source>
        <translation>Anzahl Kontrollpunkte</translation>
    </message>
    <message>
        <source>Number of fit points</source>
        <translation>Anzahl Anpassungspunkte</translation>
    </message>
    <message>
        <source>Fit tolerance</source>
        <translation>Anpassungstoleranz</translation>
    </message>
    <message>
        <source>Periodic</source>
        <translation>Periodisch</translation>
    </message>
    <message>
        <source>Rational</source>
        <translation>Rational</translation>
    </message>
    <message>
        <source>Bulge</source>
        <translation>Wölbung</translation>
    </message>
    <message>
        <source>Width Factor</source>
        <translation>Breitenfaktor</translation>
    </message>
    <message>
        <source>Char Spacing</source>
        <translation>Zeichenabstand</translation>
    </message>
    <message>
        <source>Start Angle</source>
        <translation>Startwinkel</translation>
    </message>
    <message>
        <source>End Angle</source>
        <translation>Endwinkel</translation>
    </message>
    <message>
        <source>Arc Offset</source>
        <translation>Bogenabstand</translation>
    </message>
    <message>
        <source>Left Offset</source>
        <translation>Abstand links</translation>
    </message>
    <message>
        <source>Right Offset</source>
        <translation>Abstand rechts</translation>
    </message>
    <message>
        <source>Tag</source>
        <translation>Bezeichnung</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>Invisible</source>
        <translation>Unsichtbar</translation>
    </message>
    <message>
        <source>Constant</source>
        <translation>Konstant</translation>
    </message>
    <message>
        <source>Verify</source>
        <translation>Prüfen</translation>
    </message>
    <message>
        <source>Preset</source>
        <translation>Vorgabe</translation>
    </message>
    <message>
        <source>Lock position</source>
        <translation>Position sperren</translation>
    </message>
    <message>
        <source>Multiline</source>
        <translation>Mehrzeilig</translation>
    </message>
    <message>
        <source>Prompt</source>
        <translation>Eingabeaufforderung</translation>
    </message>
    <message>
        <source>Plain text</source>
        <translation>Klartext</translation>
    </message>
    <message>
        <source>Direction</source>
        <translation>Richtung</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Breite</translation>
    </message>
    <message>
        <source>Line space factor</source>
        <translation>Zeilenabstandsfaktor</translation>
    </message>
    <message>
        <source>Line space style</source>
        <translation>Zeilenabstandsstil</translation>
    </message>
    <message>
        <source>Background mask</source>
        <translation>Hintergrundmaske</translation>
    </message>
    <message>
        <source>Mask color</source>
        <translation>Maskenfarbe</translation>
    </message>
    <message>
        <source>Use drawing background</source>
        <translation>Zeichnungshintergrund verwenden</translation>
    </message>
    <message>
        <source>Border offset</source>
        <translation>Randabstand</translation>
    </message>
    <message>
        <source>Columns</source>
        <translation>Spalten</translation>
    </message>
    <message>
        <source>Column count</source>
        <translation>Spaltenanzahl</translation>
    </message>
    <message>
        <source>Column width</source>
        <translation>Spaltenbreite</translation>
    </message>
    <message>
        <source>Column gutter</source>
        <translation>Spaltenabstand</translation>
    </message>
    <message>
        <source>Column height</source>
        <translation>Spaltenhöhe</translation>
    </message>
    <message>
        <source>Annotative</source>
        <translation>Beschriftend</translation>
    </message>
    <message>
        <source>Annotative Scale</source>
        <translation>Beschriftungsmaßstab</translation>
    </message>
    <message>
        <source>Sheet text height</source>
        <translation>Papiertexthöhe</translation>
    </message>
    <message>
        <source>Match orientation to sheet</source>
        <translation>Ausrichtung an Blatt anpassen</translation>
    </message>
    <message>
        <source>Edit annotation scales</source>
        <translation>Beschriftungsmaßstäbe bearbeiten</translation>
    </message>
    <message>
        <source>Model text height</source>
        <translation>Modelltexthöhe</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Pattern name</source>
        <translation>Mustername</translation>
    </message>
    <message>
        <source>Scale</source>
        <translation>Skalierung</translation>
    </message>
    <message>
        <source>Double</source>
        <translation>Doppelt</translation>
    </message>
    <message>
        <source>Origin X</source>
        <translation>Ursprung X</translation>
    </message>
    <message>
        <source>Origin Y</source>
        <translation>Ursprung Y</translation>
    </message>
    <message>
        <source>Associative</source>
        <translation>Assoziativ</translation>
    </message>
    <message>
        <source>Island detection style</source>
        <translation>Inselerkennungsstil</translation>
    </message>
    <message>
        <source>Background color</source>
        <translation>Hintergrundfarbe</translation>
    </message>
    <message>
        <source>Boundaries</source>
        <translation>Umgrenzungen</translation>
    </message>
    <message>
        <source>Gradient name</source>
        <translation>Verlaufsname</translation>
    </message>
    <message>
        <source>Color 1</source>
        <translation>Farbe 1</translation>
    </message>
    <message>
        <source>Color 2</source>
        <translation>Farbe 2</translation>
    </message>
    <message>
        <source>Gradient angle</source>
        <translation>Verlaufswinkel</translation>
    </message>
    <message>
        <source>Centered</source>
        <translation>Zentriert</translation>
    </message>
    <message>
        <source>Perimeter</source>
        <translation>Umfang</translation>
    </message>
    <message>
        <source>Scale X</source>
        <translation>Skalierung X</translation>
    </message>
    <message>
        <source>Scale Y</source>
        <translation>Skalierung Y</translation>
    </message>
    <message>
        <source>Scale Z</source>
        <translation>Skalierung Z</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Unit factor</source>
        <translation>Einheitenfaktor</translation>
    </message>
    <message>
        <source>Uniform scale</source>
        <translation>Einheitlich skalieren</translation>
    </message>
    <message>
        <source>Rows</source>
        <translation>Zeilen</translation>
    </message>
    <message>
        <source>Column spacing</source>
        <translation>Spaltenabstand</translation>
    </message>
    <message>
        <source>Row spacing</source>
        <translation>Zeilenabstand</translation>
    </message>
    <message>
        <source>Original class name</source>
        <translation>Ursprünglicher Klassenname</translation>
    </message>
    <message>
        <source>DXF name</source>
        <translation>DXF-Name</translation>
    </message>
    <message>
        <source>Application</source>
        <translation>Anwendung</translation>
    </message>
    <message>
        <source>Allowed operations</source>
        <translation>Erlaubte Operationen</translation>
    </message>
    <message>
        <source>Arrow size</source>
        <translation>Pfeilgröße</translation>
    </message>
    <message>
        <source>ExtLine ext</source>
        <translation>Hilfslinienverlängerung</translation>
    </message>
    <message>
        <source>ExtLine offset</source>
        <translation>Hilfslinienabstand</translation>
    </message>
    <message>
        <source>Text height</source>
        <translation>Texthöhe</translation>
    </message>
    <message>
        <source>Text offset</source>
        <translation>Textabstand</translation>
    </message>
    <message>
        <source>Dim scale overall</source>
        <translation>Gesamtmaßstab</translation>
    </message>
    <message>
        <source>Precision</source>
        <translation>Genauigkeit</translation>
    </message>
    <message>
        <source>Dim scale linear</source>
        <translation>Linearer Maßstab</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Ein</translation>
    </message>
    <message>
        <source>Frozen</source>
        <translation>Gefroren</translation>
    </message>
    <message>
        <source>Locked</source>
        <translation>Gesperrt</translation>
    </message>
    <message>
        <source>Plot</source>
        <translation>Plotten</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Beschreibung</translation>
    </message>
    <message>
        <source>Pattern length</source>
        <translation>Musterlänge</translation>
    </message>
    <message>
        <source>Dashes</source>
        <translation>Striche</translation>
    </message>
    <message>
        <source>Font name</source>
        <translation>Schriftname</translation>
    </message>
    <message>
        <source>Big font</source>
        <translation>Großschrift</translation>
    </message>
    <message>
        <source>Width factor</source>
        <translation>Breitenfaktor</translation>
    </message>
    <message>
        <source>Oblique angle</source>
        <translation>Neigungswinkel</translation>
    </message>
    <message>
        <source>Backwards</source>
        <translation>Rückwärts</translation>
    </message>
    <message>
        <source>Upside down</source>
        <translation>Auf dem Kopf</translation>
    </message>
    <message>
        <source>Vertical</source>
        <translation>Vertikal</translation>
    </message>
    <message>
        <source>Clipped</source>
        <translation>Zugeschnitten</translation>
    </message>
    <message>
        <source>Display locked</source>
        <translation>Anzeige gesperrt</translation>
    </message>
    <message>
        <source>Standard scale</source>
        <translation>Standardmaßstab</translation>
    </message>
    <message>
        <source>Custom scale</source>
        <translation>Benutzerdefinierter Maßstab</translation>
    </message>
    <message>
        <source>View twist</source>
        <translation>Ansichtsdrehung</translation>
    </message>
    <message>
        <source>Shade plot</source>
        <translation>Schattierungsplot</translation>
    </message>
    <message>
        <source>Frozen layers</source>
        <translation>Gefrorene Layer</translation>
    </message>
    <message>
        <source>Style</source>
        <translation>Stil</translation>
    </message>
    <message>
        <source>Vertex count</source>
        <translation>Anzahl Scheitelpunkte</translation>
    </message>
    <message>
        <source>Face count</source>
        <translation>Anzahl Flächen</translation>
    </message>
    <message>
        <source>M vertex count</source>
        <translation>Anzahl Scheitelpunkte M</translation>
    </message>
    <message>
        <source>N vertex count</source>
        <translation>Anzahl Scheitelpunkte N</translation>
    </message>
    <message>
        <source>M closed</source>
        <translation>In M geschlossen</translation>
    </message>
    <message>
        <source>N closed</source>
        <translation>In N geschlossen</translation>
    </message>
    <message>
        <source>M density</source>
        <translation>Dichte M</translation>
    </message>
    <message>
        <source>N density</source>
        <translation>Dichte N</translation>
    </message>
    <message>
        <source>Smoothness</source>
        <translation>Glättung</translation>
    </message>
    <message>
        <source>Edge count</source>
        <translation>Anzahl Kanten</translation>
    </message>
    <message>
        <source>Intensity factor</source>
        <translation>Intensitätsfaktor</translation>
    </message>
    <message>
        <source>Shadows</source>
        <translation>Schatten</translation>
    </message>
    <message>
        <source>Target X</source>
        <translation>Ziel X</translation>
    </message>
    <message>
        <source>Target Y</source>
        <translation>Ziel Y</translation>
    </message>
    <message>
        <source>Target Z</source>
        <translation>Ziel Z</translation>
    </message>
    <message>
        <source>Hotspot angle</source>
        <translation>Hotspot-Winkel</translation>
    </message>
    <message>
        <source>Falloff angle</source>
        <translation>Abfallwinkel</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>Pfad</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Helligkeit</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>Kontrast</translation>
    </message>
    <message>
        <source>Fade</source>
        <translation>Blasser</translation>
    </message>
    <message>
        <source>Show image</source>
        <translation>Bild anzeigen</translation>
    </message>
    <message>
        <source>Show clipped</source>
        <translation>Zugeschnitten anzeigen</translation>
    </message>
    <message>
        <source>Table width</source>
        <translation>Tabellenbreite</translation>
    </message>
    <message>
        <source>Table height</source>
        <translation>Tabellenhöhe</translation>
    </message>
    <message>
        <source>Table style</source>
        <translation>Tabellenstil</translation>
    </message>
    <message>
        <source>Cell</source>
        <translation>Zelle</translation>
    </message>
    <message>
        <source>Sheet</source>
        <translation>Blatt</translation>
    </message>
    <message>
        <source>Monochrome</source>
        <translation>Monochrom</translation>
    </message>
    <message>
        <source>Show underlay</source>
        <translation>Unterlage anzeigen</translation>
    </message>
    <message>
        <source>Selectable</source>
        <translation>Wählbar</translation>
    </message>
    <message>
        <source>Members</source>
        <translation>Mitglieder</translation>
    </message>
    <message>
        <source>Elements</source>
        <translation>Elemente</translation>
    </message>
    <message>
        <source>Display joints</source>
        <translation>Verbindungen anzeigen</translation>
    </message>
    <message>
        <source>Start line</source>
        <translation>Linie am Anfang</translation>
    </message>
    <message>
        <source>Start outer arc</source>
        <translation>Äußerer Bogen am Anfang</translation>
    </message>
    <message>
        <source>Start inner arcs</source>
        <translation>Innere Bögen am Anfang</translation>
    </message>
    <message>
        <source>End line</source>
        <translation>Linie am Ende</translation>
    </message>
    <message>
        <source>End outer arc</source>
        <translation>Äußerer Bogen am Ende</translation>
    </message>
    <message>
        <source>End inner arcs</source>
        <translation>Innere Bögen am Ende</translation>
    </message>
    <message>
        <source>Fill</source>
        <translation>Füllung</translation>
    </message>
    <message>
        <source>Fill color</source>
        <translation>Füllfarbe</translation>
    </message>
    <message>
        <source>Table direction</source>
        <translation>Tabellenrichtung</translation>
    </message>
    <message>
        <source>Horizontal</source>
        <translation>Horizontal</translation>
    </message>
    <message>
        <source>Direction X</source>
        <translation>Richtung X</translation>
    </message>
    <message>
        <source>Direction Y</source>
        <translation>Richtung Y</translation>
    </message>
    <message>
        <source>Direction Z</source>
        <translation>Richtung Z</translation>
    </message>
    <message>
        <source>Lens length</source>
        <translation>Objektivlänge</translation>
    </message>
    <message>
        <source>Twist angle</source>
        <translation>Verdrehwinkel</translation>
    </message>
    <message>
        <source>Aspect ratio</source>
        <translation>Seitenverhältnis</translation>
    </message>
    <message>
        <source>Grid</source>
        <translation>Raster</translation>
    </message>
    <message>
        <source>Grid X spacing</source>
        <translation>Rasterabstand X</translation>
    </message>
    <message>
        <source>Grid Y spacing</source>
        <translation>Rasterabstand Y</translation>
    </message>
    <message>
        <source>Snap</source>
        <translation>Fang</translation>
    </message>
    <message>
        <source>Snap X spacing</source>
        <translation>Fangabstand X</translation>
    </message>
    <message>
        <source>Snap Y spacing</source>
        <translation>Fangabstand Y</translation>
    </message>
    <message>
        <source>Snap angle</source>
        <translation>Fangwinkel</translation>
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
    <message>
        <source>Left</source>
        <translation>Links</translation>
    </message>
    <message>
        <source>Center</source>
        <translation>Zentriert</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Rechts</translation>
    </message>
    <message>
        <source>Aligned</source>
        <translation>Ausgerichtet</translation>
    </message>
    <message>
        <source>Middle</source>
        <translation>Mitte</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>Eingepasst</translation>
    </message>
    <message>
        <source>Top Left</source>
        <translation>Oben links</translation>
    </message>
    <message>
        <source>Top Center</source>
        <translation>Oben zentriert</translation>
    </message>
    <message>
        <source>Top Right</source>
        <translation>Oben rechts</translation>
    </message>
    <message>
        <source>Middle Left</source>
        <translation>Mitte links</translation>
    </message>
    <message>
        <source>Middle Center</source>
        <translation>Mitte zentriert</translation>
    </message>
    <message>
        <source>Middle Right</source>
        <translation>Mitte rechts</translation>
    </message>
    <message>
        <source>Bottom Left</source>
        <translation>Unten links</translation>
    </message>
    <message>
        <source>Bottom Center</source>
        <translation>Unten zentriert</translation>
    </message>
    <message>
        <source>Bottom Right</source>
        <translation>Unten rechts</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keine</translation>
    </message>
    <message>
        <source>Curve fit</source>
        <translation>Kurvenangleichung</translation>
    </message>
    <message>
        <source>Quadratic</source>
        <translation>Quadratisch</translation>
    </message>
    <message>
        <source>Cubic</source>
        <translation>Kubisch</translation>
    </message>
    <message>
        <source>Keep dimline with text</source>
        <translation>Maßlinie mit Text verschieben</translation>
    </message>
    <message>
        <source>Move text, add leader</source>
        <translation>Text verschieben, mit Führungslinie</translation>
    </message>
    <message>
        <source>Move text, no leader</source>
        <translation>Text verschieben, ohne Führungslinie</translation>
    </message>
    <message>
        <source>Symmetrical</source>
        <translation>Symmetrisch</translation>
    </message>
    <message>
        <source>Deviation</source>
        <translation>Abweichung</translation>
    </message>
    <message>
        <source>Limits</source>
        <translation>Grenzen</translation>
    </message>
    <message>
        <source>Basic</source>
        <translation>Grundmaß</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Unten</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Oben</translation>
    </message>
    <message>
        <source>Mark</source>
        <translation>Markierung</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Linie</translation>
    </message>
    <message>
        <source>Horizontal</source>
        <translation>Horizontal</translation>
    </message>
    <message>
        <source>Diagonal</source>
        <translation>Diagonal</translation>
    </message>
    <message>
        <source>Not stacked</source>
        <translation>Nicht gestapelt</translation>
    </message>
    <message>
        <source>Centered</source>
        <translation>Zentriert</translation>
    </message>
    <message>
        <source>Above</source>
        <translation>Darüber</translation>
    </message>
    <message>
        <source>Outside</source>
        <translation>Außen</translation>
    </message>
    <message>
        <source>Below</source>
        <translation>Darunter</translation>
    </message>
    <message>
        <source>Text and arrows</source>
        <translation>Text und Pfeile</translation>
    </message>
    <message>
        <source>Arrows only</source>
        <translation>Nur Pfeile</translation>
    </message>
    <message>
        <source>Text only</source>
        <translation>Nur Text</translation>
    </message>
    <message>
        <source>Best fit</source>
        <translation>Beste Einpassung</translation>
    </message>
    <message>
        <source>Scientific</source>
        <translation>Wissenschaftlich</translation>
    </message>
    <message>
        <source>Decimal</source>
        <translation>Dezimal</translation>
    </message>
    <message>
        <source>Engineering</source>
        <translation>Ingenieur</translation>
    </message>
    <message>
        <source>Architectural</source>
        <translation>Architektonisch</translation>
    </message>
    <message>
        <source>Fractional</source>
        <translation>Bruch</translation>
    </message>
    <message>
        <source>Windows Desktop</source>
        <translation>Windows-Desktop</translation>
    </message>
    <message>
        <source>First extension line</source>
        <translation>Erste Hilfslinie</translation>
    </message>
    <message>
        <source>Second extension line</source>
        <translation>Zweite Hilfslinie</translation>
    </message>
    <message>
        <source>Over first extension</source>
        <translation>Über erster Hilfslinie</translation>
    </message>
    <message>
        <source>Over second extension</source>
        <translation>Über zweiter Hilfslinie</translation>
    </message>
    <message>
        <source>Left-to-right</source>
        <translation>Von links nach rechts</translation>
    </message>
    <message>
        <source>Right-to-left</source>
        <translation>Von rechts nach links</translation>
    </message>
    <message>
        <source>Decimal degrees</source>
        <translation>Dezimalgrad</translation>
    </message>
    <message>
        <source>Deg/min/sec</source>
        <translation>Grad/Min/Sek</translation>
    </message>
    <message>
        <source>Gradians</source>
        <translation>Neugrad</translation>
    </message>
    <message>
        <source>Radians</source>
        <translation>Bogenmaß</translation>
    </message>
    <message>
        <source>Preceding Dimension Text</source>
        <translation>Vor dem Bemaßungstext</translation>
    </message>
    <message>
        <source>Above Dimension Text</source>
        <translation>Über dem Bemaßungstext</translation>
    </message>
    <message>
        <source>Closed filled</source>
        <translation>Geschlossen gefüllt</translation>
    </message>
    <message>
        <source>Closed blank</source>
        <translation>Geschlossen leer</translation>
    </message>
    <message>
        <source>Closed</source>
        <translation>Geschlossen</translation>
    </message>
    <message>
        <source>Dot</source>
        <translation>Punkt</translation>
    </message>
    <message>
        <source>Architectural tick</source>
        <translation>Architektonischer Schrägstrich</translation>
    </message>
    <message>
        <source>Oblique</source>
        <translation>Schräg</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Offen</translation>
    </message>
    <message>
        <source>Origin indicator</source>
        <translation>Ursprungsanzeiger</translation>
    </message>
    <message>
        <source>Origin indicator 2</source>
        <translation>Ursprungsanzeiger 2</translation>
    </message>
    <message>
        <source>Right angle</source>
        <translation>Rechter Winkel</translation>
    </message>
    <message>
        <source>Open 30</source>
        <translation>Offen 30</translation>
    </message>
    <message>
        <source>Dot small</source>
        <translation>Kleiner Punkt</translation>
    </message>
    <message>
        <source>Dot blank</source>
        <translation>Punkt leer</translation>
    </message>
    <message>
        <source>Dot small blank</source>
        <translation>Kleiner Punkt leer</translation>
    </message>
    <message>
        <source>Box</source>
        <translation>Quader</translation>
    </message>
    <message>
        <source>Box filled</source>
        <translation>Kasten gefüllt</translation>
    </message>
    <message>
        <source>Datum triangle</source>
        <translation>Bezugsdreieck</translation>
    </message>
    <message>
        <source>Datum triangle filled</source>
        <translation>Bezugsdreieck gefüllt</translation>
    </message>
    <message>
        <source>Integral</source>
        <translation>Integral</translation>
    </message>
    <message>
        <source>Custom arrow</source>
        <translation>Benutzerpfeil</translation>
    </message>
    <message>
        <source>Left to right</source>
        <translation>Links nach rechts</translation>
    </message>
    <message>
        <source>Right to left</source>
        <translation>Rechts nach links</translation>
    </message>
    <message>
        <source>Top to bottom</source>
        <translation>Oben nach unten</translation>
    </message>
    <message>
        <source>Bottom to top</source>
        <translation>Unten nach oben</translation>
    </message>
    <message>
        <source>By style</source>
        <translation>Nach Stil</translation>
    </message>
    <message>
        <source>At least</source>
        <translation>Mindestens</translation>
    </message>
    <message>
        <source>Exactly</source>
        <translation>Genau</translation>
    </message>
    <message>
        <source>Static</source>
        <translation>Statisch</translation>
    </message>
    <message>
        <source>Dynamic</source>
        <translation>Dynamisch</translation>
    </message>
    <message>
        <source>Line with no arrow</source>
        <translation>Linie ohne Pfeil</translation>
    </message>
    <message>
        <source>Spline with no arrow</source>
        <translation>Spline ohne Pfeil</translation>
    </message>
    <message>
        <source>Line with arrow</source>
        <translation>Linie mit Pfeil</translation>
    </message>
    <message>
        <source>Spline with arrow</source>
        <translation>Spline mit Pfeil</translation>
    </message>
    <message>
        <source>Predefined</source>
        <translation>Vordefiniert</translation>
    </message>
    <message>
        <source>User defined</source>
        <translation>Benutzerdefiniert</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Benutzerdefiniert</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>Outer</source>
        <translation>Äußere</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>Ignorieren</translation>
    </message>
    <message>
        <source>Not computable</source>
        <translation>Nicht berechenbar</translation>
    </message>
    <message>
        <source>Cylinder</source>
        <translation>Zylinder</translation>
    </message>
    <message>
        <source>Cone</source>
        <translation>Kegel</translation>
    </message>
    <message>
        <source>Pyramid</source>
        <translation>Pyramide</translation>
    </message>
    <message>
        <source>Sphere</source>
        <translation>Kugel</translation>
    </message>
    <message>
        <source>Torus</source>
        <translation>Torus</translation>
    </message>
    <message>
        <source>Wedge</source>
        <translation>Keil</translation>
    </message>
    <message>
        <source>Extrude</source>
        <translation>Extrusion</translation>
    </message>
    <message>
        <source>Revolve</source>
        <translation>Rotation</translation>
    </message>
    <message>
        <source>Sweep</source>
        <translation>Sweep</translation>
    </message>
    <message>
        <source>Loft with path</source>
        <translation>Anheben mit Pfad</translation>
    </message>
    <message>
        <source>Loft with guide curves</source>
        <translation>Erhebung mit Führungskurven</translation>
    </message>
    <message>
        <source>Loft with cross sections only</source>
        <translation>Anheben nur mit Querschnitten</translation>
    </message>
    <message>
        <source>Corner</source>
        <translation>Ecke</translation>
    </message>
    <message>
        <source>Side</source>
        <translation>Seite</translation>
    </message>
    <message>
        <source>Ruled</source>
        <translation>Regelfläche</translation>
    </message>
    <message>
        <source>Smooth fit</source>
        <translation>Glatt angepasst</translation>
    </message>
    <message>
        <source>Normal to</source>
        <translation>Lotrecht zu</translation>
    </message>
    <message>
        <source>Draft angles</source>
        <translation>Neigungswinkel</translation>
    </message>
    <message>
        <source>All Cross Sections</source>
        <translation>Alle Querschnitte</translation>
    </message>
    <message>
        <source>Beginning and Ending Cross Sections</source>
        <translation>Anfangs- und Endquerschnitt</translation>
    </message>
    <message>
        <source>Beginning Cross Section</source>
        <translation>Anfangsquerschnitt</translation>
    </message>
    <message>
        <source>Ending Cross Section</source>
        <translation>Endquerschnitt</translation>
    </message>
    <message>
        <source>Planar</source>
        <translation>Eben</translation>
    </message>
    <message>
        <source>Extruded</source>
        <translation>Extrudiert</translation>
    </message>
    <message>
        <source>Smooth</source>
        <translation>Glatt</translation>
    </message>
    <message>
        <source>First normal</source>
        <translation>Erste Normale</translation>
    </message>
    <message>
        <source>Last normal</source>
        <translation>Letzte Normale</translation>
    </message>
    <message>
        <source>Ends normal</source>
        <translation>Enden lotrecht</translation>
    </message>
    <message>
        <source>All normal</source>
        <translation>Alle lotrecht</translation>
    </message>
    <message>
        <source>Use draft angles</source>
        <translation>Neigungswinkel verwenden</translation>
    </message>
    <message>
        <source>Erase</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Transform</source>
        <translation>Transformieren</translation>
    </message>
    <message>
        <source>Color change</source>
        <translation>Farbänderung</translation>
    </message>
    <message>
        <source>Layer change</source>
        <translation>Layeränderung</translation>
    </message>
    <message>
        <source>Linetype change</source>
        <translation>Linientypänderung</translation>
    </message>
    <message>
        <source>Linetype scale change</source>
        <translation>Linientypfaktoränderung</translation>
    </message>
    <message>
        <source>Visibility change</source>
        <translation>Sichtbarkeitsänderung</translation>
    </message>
    <message>
        <source>Cloning</source>
        <translation>Klonen</translation>
    </message>
    <message>
        <source>Lineweight change</source>
        <translation>Linienstärkenänderung</translation>
    </message>
    <message>
        <source>Plot style change</source>
        <translation>Plotstiländerung</translation>
    </message>
    <message>
        <source>Material change</source>
        <translation>Materialänderung</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Unbekannt</translation>
    </message>
    <message>
        <source>As Displayed</source>
        <translation>Wie angezeigt</translation>
    </message>
    <message>
        <source>Wireframe</source>
        <translation>Drahtmodell</translation>
    </message>
    <message>
        <source>Hidden</source>
        <translation>Verdeckt</translation>
    </message>
    <message>
        <source>Rendered</source>
        <translation>Gerendert</translation>
    </message>
    <message>
        <source>Zero</source>
        <translation>Null</translation>
    </message>
    <message>
        <source>Bezier</source>
        <translation>Bezier</translation>
    </message>
    <message>
        <source>Distant</source>
        <translation>Entfernt</translation>
    </message>
    <message>
        <source>Point</source>
        <translation>Punkt</translation>
    </message>
    <message>
        <source>Spot</source>
        <translation>Spot</translation>
    </message>
    <message>
        <source>Linked</source>
        <translation>Verknüpft</translation>
    </message>
    <message>
        <source>Embedded</source>
        <translation>Eingebettet</translation>
    </message>
    <message>
        <source>found</source>
        <translation>gefunden</translation>
    </message>
    <message>
        <source>not found</source>
        <translation>nicht gefunden</translation>
    </message>
    <message>
        <source>Row %1, column %2</source>
        <translation>Zeile %1, Spalte %2</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Nach unten</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Nach oben</translation>
    </message>
</context>
<context>
    <name>zqpalette</name>
    <message>
        <source>zqpalette: there is no translation catalog for the language "%1"; the window stays in English.</source>
        <translation>zqpalette: für die Sprache "%1" gibt es keinen Übersetzungskatalog; das Fenster bleibt englisch.</translation>
    </message>
    <message>
        <source>zqpalette: cannot write %1</source>
        <translation>zqpalette: %1 kann nicht geschrieben werden</translation>
    </message>
    <message>
        <source>All (%1)</source>
        <translation>Alle (%1)</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Property</source>
        <translation>Eigenschaft</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>Select Colour...</source>
        <translation>Farbe wählen...</translation>
    </message>
    <message>
        <source>Select Colour</source>
        <translation>Farbe wählen</translation>
    </message>
    <message>
        <source>Edit annotation scales</source>
        <translation>Beschriftungsmaßstäbe bearbeiten</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>Eigenschaften</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Information</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;Open...</source>
        <translation>Ö&amp;ffnen...</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Speichern</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Save &amp;As...</source>
        <translation>Speichern &amp;unter...</translation>
    </message>
    <message>
        <source>Recent Files</source>
        <translation>Zuletzt geöffnet</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Wiederherstellen</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>&amp;Alles auswählen</translation>
    </message>
    <message>
        <source>&amp;Deselect</source>
        <translation>Auswahl &amp;aufheben</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>Zoom &amp;Extents</source>
        <translation>&amp;Zoom Grenzen</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Modell</translation>
    </message>
    <message>
        <source>Layout%1</source>
        <translation>Layout%1</translation>
    </message>
    <message>
        <source>warning: %1</source>
        <translation>Warnung: %1</translation>
    </message>
    <message>
        <source>Saved %1.</source>
        <translation>%1 gespeichert.</translation>
    </message>
    <message>
        <source>Undone.</source>
        <translation>Rückgängig gemacht.</translation>
    </message>
    <message>
        <source>Redone.</source>
        <translation>Wiederhergestellt.</translation>
    </message>
    <message>
        <source>... and %1 more objects.</source>
        <translation>... und %1 weitere Objekte.</translation>
    </message>
    <message>
        <source>(no drawing)</source>
        <translation>(keine Zeichnung)</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>Cannot open %1: %2</source>
        <translation>%1 kann nicht geöffnet werden: %2</translation>
    </message>
    <message>
        <source>Unsaved changes</source>
        <translation>Ungespeicherte Änderungen</translation>
    </message>
    <message>
        <source>The drawing %1 has unsaved changes. Save them?</source>
        <translation>Die Zeichnung %1 hat ungespeicherte Änderungen. Speichern?</translation>
    </message>
    <message>
        <source>Open Drawing</source>
        <translation>Zeichnung öffnen</translation>
    </message>
    <message>
        <source>DXF drawings (*.dxf);;All files (*)</source>
        <translation>DXF-Zeichnungen (*.dxf);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Save Drawing As</source>
        <translation>Zeichnung speichern unter</translation>
    </message>
    <message>
        <source>DXF drawings (*.dxf)</source>
        <translation>DXF-Zeichnungen (*.dxf)</translation>
    </message>
</context>
<context>
    <name>zqprops</name>
    <message>
        <source>zqprops: --set expects NAME=VALUE, got "%1"</source>
        <translation>zqprops: --set erwartet NAME=WERT, erhalten "%1"</translation>
    </message>
    <message>
        <source>zqprops: %1: %2: %3</source>
        <translation>zqprops: %1: %2: %3</translation>
    </message>
    <message>
        <source>zqprops: expected one drawing, got %1 (see --help)</source>
        <translation>zqprops: eine Zeichnung erwartet, erhalten %1 (siehe --help)</translation>
    </message>
    <message>
        <source>cannot load ZQProperties: %1</source>
        <translation>ZQProperties kann nicht geladen werden: %1</translation>
    </message>
    <message>
        <source>warning: %1</source>
        <translation>Warnung: %1</translation>
    </message>
    <message>
        <source>zqprops: cannot read script %1: %2</source>
        <translation>zqprops: Skript %1 kann nicht gelesen werden: %2</translation>
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
        <translation>zqprops: SAVE braucht einen Dateinamen (oder -o).</translation>
    </message>
    <message>
        <source>Saved %1.</source>
        <translation>%1 gespeichert.</translation>
    </message>
    <message>
        <source>%1 is the input drawing; name it with -o to overwrite it.</source>
        <translation>%1 ist die Eingabezeichnung; geben Sie sie mit -o an, um sie zu überschreiben.</translation>
    </message>
    <message>
        <source>zqprops: %1: %2 is read-only.</source>
        <translation>zqprops: %1: %2 ist schreibgeschützt.</translation>
    </message>
    <message>
        <source>zqprops: no object has a property named "%1".</source>
        <translation>zqprops: kein Objekt hat eine Eigenschaft namens "%1".</translation>
    </message>
    <message>
        <source>zqprops: --vertex: none of the objects has vertices.</source>
        <translation>zqprops: --vertex: keines der Objekte hat Scheitelpunkte.</translation>
    </message>
    <message>
        <source>Refuse a drawing that reading would warn about (a coordinate that is not a number, a repair).</source>
        <translation>Eine Zeichnung ablehnen, bei deren Lesen eine Warnung käme (eine Koordinate, die keine Zahl ist, eine Reparatur).</translation>
    </message>
    <message>
        <source>zqprops: there is no translation catalog for the language "%1"; messages stay in English.</source>
        <translation>zqprops: für die Sprache "%1" gibt es keinen Übersetzungskatalog; die Meldungen bleiben englisch.</translation>
    </message>
    <message>
        <source>zqprops: give either -o FILE or --in-place, not both.</source>
        <translation>zqprops: geben Sie entweder -o DATEI oder --in-place an, nicht beides.</translation>
    </message>
    <message>
        <source>zqprops: nothing saved: give -o FILE or --in-place</source>
        <translation>zqprops: nichts gespeichert: geben Sie -o DATEI oder --in-place an</translation>
    </message>
    <message>
        <source>zqprops: --save-as takes one of %1, not "%2".</source>
        <translation>zqprops: --save-as nimmt eines von %1, nicht "%2".</translation>
    </message>
    <message>
        <source>zqprops: --vertex takes a vertex number from 1 on, not "%1".</source>
        <translation>zqprops: --vertex nimmt eine Scheitelpunktnummer ab 1, nicht "%1".</translation>
    </message>
    <message>
        <source>zqprops: --space takes model, paper or all, not "%1".</source>
        <translation>zqprops: --space nimmt model, paper oder all, nicht "%1".</translation>
    </message>
    <message>
        <source>zqprops: nothing selected: no object of the drawing meets the selection.</source>
        <translation>zqprops: nichts gewählt: kein Objekt der Zeichnung erfüllt die Auswahl.</translation>
    </message>
    <message>
        <source>zqprops: no listed object has the row(s) %1.</source>
        <translation>zqprops: kein gelistetes Objekt hat die Zeile(n) %1.</translation>
    </message>
    <message>
        <source>zqprops: 1 unsaved edit; use -o or SAVE</source>
        <translation>zqprops: 1 ungesicherte Änderung; -o oder SAVE verwenden</translation>
    </message>
    <message>
        <source>zqprops: %1 unsaved edits; use -o or SAVE</source>
        <translation>zqprops: %1 ungesicherte Änderungen; -o oder SAVE verwenden</translation>
    </message>
    <message>
        <source>Enter the number of operations to undo &lt;1&gt;:</source>
        <translation>Anzahl der zurückzunehmenden Vorgänge eingeben &lt;1&gt;:</translation>
    </message>
    <message>
        <source>UNDO needs a whole number of operations from 1 on, not "%1".</source>
        <translation>UNDO braucht eine ganze Zahl von Vorgängen ab 1, nicht "%1".</translation>
    </message>
    <message>
        <source>Everything has been undone.</source>
        <translation>Alles wurde zurückgenommen.</translation>
    </message>
    <message>
        <source>Undone: %1</source>
        <translation>Zurückgenommen: %1</translation>
    </message>
    <message>
        <source>Nothing to redo.</source>
        <translation>Nichts wiederherzustellen.</translation>
    </message>
    <message>
        <source>Redone: %1</source>
        <translation>Wiederhergestellt: %1</translation>
    </message>
    <message>
        <source>1 unsaved edit. Save the drawing? [Yes/No] &lt;Yes&gt;:</source>
        <translation>1 ungesicherte Änderung. Zeichnung sichern? [Ja/Nein] &lt;Ja&gt;:</translation>
    </message>
    <message>
        <source>%1 unsaved edits. Save the drawing? [Yes/No] &lt;Yes&gt;:</source>
        <translation>%1 ungesicherte Änderungen. Zeichnung sichern? [Ja/Nein] &lt;Ja&gt;:</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>ja</translation>
    </message>
</context>
</TS>