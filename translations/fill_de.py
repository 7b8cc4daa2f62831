#!/usr/bin/env python3
"""Fills the German catalog: run after update.sh; keeps what is translated."""
import sys
import xml.etree.ElementTree as ET

DE = {
    "CZqCirclePE": {"%1 sq. in. (%2 sq. ft.)": "%1 sq. in. (%2 sq. ft.)"},
    "CZqPolylinePE": {"%1 sq. in. (%2 sq. ft.)": "%1 sq. in. (%2 sq. ft.)"},
    "CZqCommandMinusProperties": {
        "-PROPERTIES": "-EIGENSCHAFTEN", "Select objects:": "Objekte wählen:",
        "%1 found, %2 total": "%1 gefunden, %2 gesamt", "Nothing selected.": "Nichts gewählt.",
        "Enter property name or [List/eXit] <eXit>:": "Eigenschaftsname eingeben oder [List/eXit] <eXit>:",
        "%1 is read-only.": "%1 ist schreibgeschützt.", "Enter new value for %1 <%2>:": "Neuen Wert für %1 eingeben <%2>:",
        "Refused for %1: %2": "Abgelehnt für %1: %2", "invalid value": "ungültiger Wert"},
    "CZqDlgCloudSettings": {"Rectangular": "Rechteckig", "Elliptical": "Elliptisch", "Freehand": "Freihand", "Custom": "Benutzerdefiniert"},
    "entity_types": {"Circle": "Kreis", "Line": "Linie", "Point": "Punkt", "PolyLine": "Polylinie", "Ray": "Strahl",
                     "ILine": "Konstruktionslinie", "Entity": "Objekt"},
    "errors": {"Error": "Fehler", "Value must be positive and non-zero.": "Der Wert muss positiv und ungleich null sein.",
               'No property named "%1".': 'Keine Eigenschaft namens "%1".',
               '"%1" is ambiguous: use Category/Name.': '"%1" ist mehrdeutig: Kategorie/Name angeben.',
               "The object has no such property.": "Das Objekt hat diese Eigenschaft nicht.",
               "The property is read-only.": "Die Eigenschaft ist schreibgeschützt.", "No drawing.": "Keine Zeichnung.",
               "Invalid input.": "Ungültige Eingabe.", "No such name:": "Name nicht vorhanden:",
               "The property cannot be set from text.": "Die Eigenschaft kann nicht aus Text gesetzt werden.",
               "Value must be positive": "Der Wert muss positiv sein", "Value must be non-negative": "Der Wert darf nicht negativ sein",
               "Value must be non-zero": "Der Wert darf nicht null sein"},
    "info_items": {"Center  point": "Mittelpunkt", "Radius": "Radius", "Circumference": "Umfang", "Area": "Fläche",
                   "Extrusion direction relative to UCS": "Extrusionsrichtung relativ zum BKS", "from point": "von Punkt",
                   "to point": "nach Punkt", "Length": "Länge", "Length in CCS": "Länge im BKS", "Angle in XY Plane": "Winkel in XY-Ebene",
                   "Delta X": "Delta X", "Delta Y": "Delta Y", "Delta Z": "Delta Z", "Position": "Position",
                   "Angle of X Axis": "Winkel der X-Achse", "PolyLine Flags": "Polylinien-Kennung", "Perimeter": "Umfang",
                   "Location %1": "Position %1", "Base point": "Basispunkt", "Unit direction": "Einheitsrichtung",
                   "base point": "basispunkt", "unit direction": "einheitsrichtung", "Class name": "Klassenname", "Handle": "Referenz",
                   "Layer": "Layer", "Space": "Bereich", "Color": "Farbe", "Linetype": "Linientyp"},
    "info_values": {"Closed": "Geschlossen", "Open": "Offen", "Yes": "Ja", "No": "Nein", "Block": "Block",
                    "Model space": "Modellbereich", "Paper space": "Papierbereich"},
    "property_groups": {"General": "Allgemein", "Geometry": "Geometrie", "Misc": "Verschiedenes", "Cloud Settings": "Wolkeneinstellungen"},
    "property_types": {
        "Total Length": "Gesamtlänge", "Total Area": "Gesamtfläche", "Base point X": "Basispunkt X", "Base point Y": "Basispunkt Y",
        "Base point Z": "Basispunkt Z", "Second point X": "Zweiter Punkt X", "Second point Y": "Zweiter Punkt Y",
        "Second point Z": "Zweiter Punkt Z", "Direction vector X": "Richtungsvektor X", "Direction vector Y": "Richtungsvektor Y",
        "Direction vector Z": "Richtungsvektor Z", "Thickness": "Objekthöhe", "Center X": "Zentrum X", "Center Y": "Zentrum Y",
        "Center Z": "Zentrum Z", "Radius": "Radius", "Diameter": "Durchmesser", "Circumference": "Umfang", "Area": "Fläche",
        "Normal X": "Normale X", "Normal Y": "Normale Y", "Normal Z": "Normale Z", "Start X": "Startpunkt X",
        "Start Y": "Startpunkt Y", "Start Z": "Startpunkt Z", "End X": "Endpunkt X", "End Y": "Endpunkt Y", "End Z": "Endpunkt Z",
        "Delta X": "Delta X", "Delta Y": "Delta Y", "Delta Z": "Delta Z", "Length": "Länge", "Angle": "Winkel",
        "Position X": "Position X", "Position Y": "Position Y", "Position Z": "Position Z", "Shape": "Form", "Vertex": "Scheitelpunkt",
        "Vertex X": "Scheitelpunkt X", "Vertex Y": "Scheitelpunkt Y", "Start segment width": "Startsegmentbreite",
        "End segment width": "Endsegmentbreite", "Global width": "Globale Breite", "Elevation": "Erhebung", "Closed": "Geschlossen",
        "LineStyleGen": "Linientypgenerierung", "Color": "Farbe", "Layer": "Layer", "Linetype": "Linientyp",
        "Linetype scale": "Linientypfaktor", "Plot style": "Plotstil", "Lineweight": "Linienstärke", "Transparency": "Transparenz",
        "Hyperlink": "Hyperlink"},
    "property_values": {"(read-only)": "(schreibgeschützt)", "Yes": "Ja", "No": "Nein", "Enabled": "Aktiviert", "Disabled": "Deaktiviert", "*VARIES*": "*VARIIERT*"},
    "zqprops": {"Command:": "Befehl:", "Select objects:": "Objekte wählen:", 'Unknown command "%1".': 'Unbekannter Befehl "%1".',
                "Save drawing as <%1>:": "Zeichnung speichern unter <%1>:", "Saved %1.": "%1 gespeichert."},
}

# Edit limits: release and plot-style checks of the general rows, the
# properties-window service's refusals, --save-as, and zqprops' options.
DE.setdefault("errors", {}).update({
    "The layer must be one of the drawing's layers.": "Der Layer muss einer der Layer der Zeichnung sein.",
    "The linetype must be one of the drawing's linetypes.": "Der Linientyp muss einer der Linientypen der Zeichnung sein.",
    "A true colour needs a drawing saved as %1 or later; this drawing is %2.": "Eine True Color braucht eine Zeichnung im Format %1 oder neuer; diese Zeichnung ist %2.",
    "Linetype scale must be a finite number greater than 0.": "Der Linientypfaktor muss eine endliche Zahl größer als 0 sein.",
    "Linetype scale needs a drawing saved as %1 or later; this drawing is %2.": "Der Linientypfaktor braucht eine Zeichnung im Format %1 oder neuer; diese Zeichnung ist %2.",
    "This drawing plots by colour: its objects take only the plot style ByColor.": "Diese Zeichnung plottet nach Farbe: ihre Objekte nehmen nur den Plotstil VonFarbe an.",
    "This drawing uses named plot styles: choose ByLayer or one of %1.": "Diese Zeichnung verwendet benannte Plotstile: wählen Sie VonLayer oder einen von %1.",
    "The plot style ByBlock cannot be saved in the drawing: choose ByLayer or one of %1.": "Der Plotstil VonBlock kann in der Zeichnung nicht gespeichert werden: wählen Sie VonLayer oder einen von %1.",
    "Plot styles need a drawing saved as %1 or later; this drawing is %2.": "Plotstile brauchen eine Zeichnung im Format %1 oder neuer; diese Zeichnung ist %2.",
    "The drawing has no plot style named \"%1\": choose ByLayer or one of %2.": "Die Zeichnung hat keinen Plotstil namens \"%1\": wählen Sie VonLayer oder einen von %2.",
    "Lineweight must be ByLayer, ByBlock, Default or a standard lineweight from 0.00 mm to 2.11 mm.": "Die Linienstärke muss VonLayer, VonBlock, Vorgabe oder eine Standardlinienstärke von 0,00 mm bis 2,11 mm sein.",
    "Lineweight needs a drawing saved as %1 or later; this drawing is %2.": "Die Linienstärke braucht eine Zeichnung im Format %1 oder neuer; diese Zeichnung ist %2.",
    "Transparency must be ByLayer, ByBlock or a whole percentage from 0 to 90.": "Die Transparenz muss VonLayer, VonBlock oder ein ganzer Prozentwert von 0 bis 90 sein.",
    "Transparency needs a drawing saved as %1 or later; this drawing is %2.": "Die Transparenz braucht eine Zeichnung im Format %1 oder neuer; diese Zeichnung ist %2.",
    "%1 needs an angle.": "%1 braucht einen Winkel.",
    "%1 needs a number.": "%1 braucht eine Zahl.",
    "%1 needs text.": "%1 braucht einen Text.",
    "%1 needs a whole number.": "%1 braucht eine ganze Zahl.",
    "%1 needs a colour.": "%1 braucht eine Farbe.",
    "%1 needs one of its choices.": "%1 braucht eine seiner Auswahlmöglichkeiten.",
    "%1 needs one of the drawing's layers.": "%1 braucht einen der Layer der Zeichnung.",
    "%1 needs one of the drawing's linetypes.": "%1 braucht einen der Linientypen der Zeichnung.",
    "%1 needs one of the drawing's text styles.": "%1 braucht einen der Textstile der Zeichnung.",
    "%1 needs one of the drawing's dimension styles.": "%1 braucht einen der Bemaßungsstile der Zeichnung.",
    "%1 needs an object of the drawing.": "%1 braucht ein Objekt der Zeichnung.",
    "The object could not be opened for editing.": "Das Objekt konnte nicht zum Bearbeiten geöffnet werden.",
    "The object has no item %1 for %2.": "Das Objekt hat kein Element %1 für %2.",
    "%1 does not take this value.": "%1 nimmt diesen Wert nicht an.",
    "The object has no such property.": "Das Objekt hat keine solche Eigenschaft.",
    "%1 is read-only.": "%1 ist schreibgeschützt.",
    "The object is on a locked layer.": "Das Objekt liegt auf einem gesperrten Layer.",
    "%1 has no such choice.": "%1 hat keine solche Auswahl.",
    "%1 needs a finite number.": "%1 braucht eine endliche Zahl.",
    "There is no drawing to edit.": "Es gibt keine Zeichnung zum Bearbeiten.",
    "\"%1\" is not an angle: %2 needs a finite angle such as 45 or 45d30'.": "\"%1\" ist kein Winkel: %2 braucht einen endlichen Winkel wie 45 oder 45d30'.",
    "\"%1\" is not a number: %2 needs a finite number such as 12.5.": "\"%1\" ist keine Zahl: %2 braucht eine endliche Zahl wie 12.5.",
    "\"%1\" is not a lineweight: %2 takes ByLayer, ByBlock, Default or a standard lineweight from 0.00 mm to 2.11 mm (0.25 or 25 for 0.25 mm).": "\"%1\" ist keine Linienstärke: %2 nimmt VonLayer, VonBlock, Vorgabe oder eine Standardlinienstärke von 0,00 mm bis 2,11 mm an (0.25 oder 25 für 0,25 mm).",
    "%1 is out of range: %2 needs a whole number from -2147483648 to 2147483647.": "%1 liegt außerhalb des Bereichs: %2 braucht eine ganze Zahl von -2147483648 bis 2147483647.",
    "\"%1\" is not a whole number: %2 needs one.": "\"%1\" ist keine ganze Zahl: %2 braucht eine.",
    "\"%1\" is not a colour: %2 takes an index from 0 to 256, a colour name (red, yellow, green, cyan, blue, magenta, white), ByLayer, ByBlock or red,green,blue from 0 to 255.": "\"%1\" ist keine Farbe: %2 nimmt eine Farbnummer von 0 bis 256, einen Farbnamen (red, yellow, green, cyan, blue, magenta, white), ByLayer, ByBlock oder Rot,Grün,Blau von 0 bis 255 an.",
    "\"%1\" is not one of the choices of %2: %3.": "\"%1\" ist keine der Auswahlmöglichkeiten von %2: %3.",
    "The drawing has no layer named \"%1\".": "Die Zeichnung hat keinen Layer namens \"%1\".",
    "The drawing has no linetype named \"%1\".": "Die Zeichnung hat keinen Linientyp namens \"%1\".",
    "The drawing has no text style named \"%1\".": "Die Zeichnung hat keinen Textstil namens \"%1\".",
    "The drawing has no dimension style named \"%1\".": "Die Zeichnung hat keinen Bemaßungsstil namens \"%1\".",
    "The drawing has nothing named \"%1\" for this property.": "Die Zeichnung hat nichts namens \"%1\" für diese Eigenschaft.",
    "%1 cannot be set from text.": "%1 kann nicht aus Text gesetzt werden.",
    "Only a drawing read from a file can be saved as another release.": "Nur eine aus einer Datei gelesene Zeichnung kann in einem anderen Format gespeichert werden.",
    "an unnamed release": "ein unbenanntes Format",
    "%1 is not a release the drawing can be saved as.": "%1 ist kein Format, in dem die Zeichnung gespeichert werden kann.",
    "The drawing is %1 and cannot be saved as the older %2: what only %1 holds would be lost.": "Die Zeichnung ist %1 und kann nicht im älteren Format %2 gespeichert werden: was nur %1 aufnimmt, ginge verloren.",
    "The drawing is %1 and cannot be saved as %2: only drawings of R2000 or later can be moved to a newer release.": "Die Zeichnung ist %1 und kann nicht als %2 gespeichert werden: nur Zeichnungen ab R2000 können in ein neueres Format gebracht werden.",
})
DE.setdefault("zqprops", {}).update({
    "zqprops: %1: %2 is read-only.": "zqprops: %1: %2 ist schreibgeschützt.",
    "zqprops: %1: %2: %3": "zqprops: %1: %2: %3",
    "zqprops: no object has a property named \"%1\".": "zqprops: kein Objekt hat eine Eigenschaft namens \"%1\".",
    "zqprops: --vertex: none of the objects has vertices.": "zqprops: --vertex: keines der Objekte hat Scheitelpunkte.",
    "zqprops: there is no translation catalog for the language \"%1\"; messages stay in English.": "zqprops: für die Sprache \"%1\" gibt es keinen Übersetzungskatalog; die Meldungen bleiben englisch.",
    "zqprops: give either -o FILE or --in-place, not both.": "zqprops: geben Sie entweder -o DATEI oder --in-place an, nicht beides.",
    "zqprops: nothing saved: give -o FILE or --in-place": "zqprops: nichts gespeichert: geben Sie -o DATEI oder --in-place an",
    "zqprops: --save-as takes one of %1, not \"%2\".": "zqprops: --save-as nimmt eines von %1, nicht \"%2\".",
    "zqprops: --vertex takes a vertex number from 1 on, not \"%1\".": "zqprops: --vertex nimmt eine Scheitelpunktnummer ab 1, nicht \"%1\".",
})
# Framework: limits of rows, choice lists and symbol-table references.
DE.setdefault("errors", {}).update({
    "%1 must be greater than 0": "%1 muss größer als 0 sein",
    "%1 must be 0 or greater": "%1 muss 0 oder größer sein",
    "%1 must not be 0": "%1 darf nicht 0 sein",
    "%1 must be between %2 and %3": "%1 muss zwischen %2 und %3 liegen",
    "%1 takes one of: %2": "%1 nimmt einen dieser Werte an: %2",
    "layer": "Layer", "text style": "Textstil", "dimension style": "Bemaßungsstil", "linetype": "Linientyp", "block": "Block",
    "The object is in no drawing, so it can name no %1.": "Das Objekt gehört zu keiner Zeichnung und kann daher keinen %1 nennen.",
    'There is no %1 named "%2".': 'Es gibt keinen %1 namens "%2".',
    "The value is not a %1 of this drawing.": "Der Wert ist kein %1 dieser Zeichnung.",
    'Area must be an area other than 0, followed by "sq. in." in engineering and architectural units':
        'Die Fläche muss eine Fläche ungleich 0 sein, in technischen und architektonischen Einheiten gefolgt von "sq. in."',
})
# DXF reading and saving: value checks, refused texts, failed saves, --strict
DE.setdefault("OdDxf", {}).update({
    "Cannot write %1: %2.": "%1 kann nicht geschrieben werden: %2.",
    "%1 was not saved: %2. An existing file of that name is unchanged.":
        "%1 wurde nicht gespeichert: %2. Eine vorhandene Datei dieses Namens ist unverändert.",
    "group code %1 value '%2' is out of the range of its type": "Gruppencode %1: Wert '%2' liegt außerhalb des Bereichs seines Typs",
    "group code %1 value '%2' is not a handle": "Gruppencode %1: Wert '%2' ist keine Referenz",
    "group code %1 value '%2' is not hexadecimal data": "Gruppencode %1: Wert '%2' sind keine hexadezimalen Daten",
    "group code %1 value '%2' is out of the range of a real": "Gruppencode %1: Wert '%2' liegt außerhalb des Bereichs einer reellen Zahl",
    "group code %1 value '%2' is not a number": "Gruppencode %1: Wert '%2' ist keine Zahl",
    "group code %1 value '%2' is not a finite number": "Gruppencode %1: Wert '%2' ist keine endliche Zahl",
    "group code %1 value '%2' is not an integer": "Gruppencode %1: Wert '%2' ist keine ganze Zahl",
    "group code %1 cannot hold \"%2\": a drawing file cannot hold line breaks, tabs or other control characters in a text":
        "Gruppencode %1 kann \"%2\" nicht aufnehmen: Eine Zeichnungsdatei kann in einem Text keine Zeilenumbrüche, "
        "Tabulatoren oder anderen Steuerzeichen enthalten"})
DE.setdefault("errors", {}).update({
    "A hyperlink cannot contain line breaks or control characters":
        "Ein Hyperlink darf keine Zeilenumbrüche oder Steuerzeichen enthalten"})
DE.setdefault("zqprops", {}).update({
    "Refuse a drawing that reading would warn about (a coordinate that is not a number, a repair).":
        "Eine Zeichnung ablehnen, bei deren Lesen eine Warnung käme (eine Koordinate, die keine Zahl ist, eine Reparatur)."})

# Single-line text: rows, justification words and information lines.
DE.setdefault("entity_types", {}).update({"Simplenote": "Text"})
DE.setdefault("property_groups", {}).update({"Text": "Text"})
DE.setdefault("property_types", {}).update({
    "Contents": "Inhalt", "TextStyle": "Textstil", "Justify": "Ausrichtung", "Height": "Höhe", "Rotation": "Drehung",
    "Spacing": "Breitenfaktor", "Text alignment X": "Textausrichtung X", "Text alignment Y": "Textausrichtung Y",
    "Text alignment Z": "Textausrichtung Z", "UpsideDown": "Kopfüber", "Backward": "Rückwärts"})
DE.setdefault("property_values", {}).update({
    "Left": "Links", "Center": "Zentriert", "Right": "Rechts", "Aligned": "Ausgerichtet", "Middle": "Mitte",
    "Fit": "Eingepasst", "Top Left": "Oben links", "Top Center": "Oben zentriert", "Top Right": "Oben rechts",
    "Middle Left": "Mitte links", "Middle Center": "Mitte zentriert", "Middle Right": "Mitte rechts",
    "Bottom Left": "Unten links", "Bottom Center": "Unten zentriert", "Bottom Right": "Unten rechts"})
DE.setdefault("info_items", {}).update({
    "TextStyle": "Textstil", "Typeface": "Schriftbild", "Font file": "Schriftdatei", "Start point": "Startpunkt",
    "height": "Höhe", "text": "Text", "rotation angle": "Drehwinkel", "width scale": "Breitenfaktor",
    "obliquing angle": "Neigungswinkel"})
# zqprops' own messages about its arguments, the module and scripts.
DE.setdefault("zqprops", {}).update({
    "zqprops: --set expects NAME=VALUE, got \"%1\"": "zqprops: --set erwartet NAME=WERT, erhalten \"%1\"",
    "zqprops: expected one drawing, got %1 (see --help)": "zqprops: eine Zeichnung erwartet, erhalten %1 (siehe --help)",
    "cannot load ZQProperties: %1": "ZQProperties kann nicht geladen werden: %1",
    "warning: %1": "Warnung: %1",
    "zqprops: no object with handle %1": "zqprops: kein Objekt mit der Referenz %1",
    "zqprops: cannot read script %1: %2": "zqprops: Skript %1 kann nicht gelesen werden: %2",
    "zqprops: SAVE needs a file name (or -o).": "zqprops: SAVE braucht einen Dateinamen (oder -o).",
    "%1 is the input drawing; name it with -o to overwrite it.": "%1 ist die Eingabezeichnung; geben Sie sie mit -o an, um sie zu überschreiben.",
})

# Saving what a drawing's release cannot hold.
DE.setdefault("OdDxf", {}).update({
    "%1 needs a drawing saved as %2 or later; this one is saved as %3.": "%1 braucht eine Zeichnung im Format %2 oder neuer; diese ist im Format %3 gespeichert.",
    "A true colour": "Eine True Color", "Transparency": "Die Transparenz", "Lineweight": "Die Linienstärke",
    "Linetype scale": "Der Linientypfaktor",
})

# Curves: arcs and ellipses.
DE.setdefault("CZqArcPE", {}).update({"%1 sq. in. (%2 sq. ft.)": "%1 sq. in. (%2 sq. ft.)"})
DE.setdefault("CZqEllipsePE", {}).update({"%1 sq. in. (%2 sq. ft.)": "%1 sq. in. (%2 sq. ft.)"})
DE.setdefault("entity_types", {}).update({"Arc": "Bogen", "Ellipse": "Ellipse"})
DE.setdefault("property_types", {}).update({
    "Start angle": "Startwinkel", "End angle": "Endwinkel", "Total angle": "Gesamtwinkel", "Arc length": "Bogenlänge",
    "Major radius": "Hauptradius", "Minor radius": "Nebenradius", "Radius ratio": "Radienverhältnis",
    "Major axis X": "Hauptachse X", "Major axis Y": "Hauptachse Y", "Major axis Z": "Hauptachse Z",
    "Start parameter": "Startparameter", "End parameter": "Endparameter"})
DE.setdefault("info_items", {}).update({
    "Start angle": "Startwinkel", "End angle": "Endwinkel", "Total angle": "Gesamtwinkel", "Major axis": "Hauptachse",
    "Minor axis": "Nebenachse", "Radius ratio": "Radienverhältnis"})
DE.setdefault("errors", {}).update({
    "Minor radius must not be greater than the major radius": "Der Nebenradius darf nicht größer als der Hauptradius sein",
    "Radius ratio must be greater than 0 and at most 1": "Das Radienverhältnis muss größer als 0 und höchstens 1 sein"})

# Curves: 2D polylines and their vertices.
DE.setdefault("CZq2dPolylinePE", {}).update({"%1 sq. in. (%2 sq. ft.)": "%1 sq. in. (%2 sq. ft.)"})
DE.setdefault("entity_types", {}).update({"2D Polyline": "2D-Polylinie", "Vertex": "Scheitelpunkt"})
DE.setdefault("property_types", {}).update({"Fit/Smooth": "Kurvenlinie/Glätten", "Bulge": "Wölbung"})
DE.setdefault("property_values", {}).update({
    "None": "Keine", "Curve fit": "Kurvenangleichung", "Quadratic": "Quadratisch", "Cubic": "Kubisch"})
DE.setdefault("info_items", {}).update({"Fit/Smooth": "Kurvenlinie/Glätten"})
DE.setdefault("errors", {}).update({
    "There is no vertex %1: the object has %2 vertices.": "Es gibt keinen Scheitelpunkt %1: das Objekt hat %2 Scheitelpunkte."})

# Curves: splines.
DE.setdefault("CZqSplinePE_Prop", {}).update({"%1 sq. in. (%2 sq. ft.)": "%1 sq. in. (%2 sq. ft.)"})
DE.setdefault("entity_types", {}).update({"Spline": "Spline"})
DE.setdefault("property_types", {}).update({
    "Degree": "Grad", "Control point": "Kontrollpunkt", "Control point X": "Kontrollpunkt X",
    "Control point Y": "Kontrollpunkt Y", "Control point Z": "Kontrollpunkt Z", "Weight": "Gewichtung",
    "Number of control points": "Anzahl Kontrollpunkte", "Number of fit points": "Anzahl Anpassungspunkte",
    "Fit tolerance": "Anpassungstoleranz", "Periodic": "Periodisch", "Rational": "Rational"})
DE.setdefault("info_items", {}).update({
    "Degree": "Grad", "Closed": "Geschlossen", "Periodic": "Periodisch", "Rational": "Rational",
    "Number of control points": "Anzahl Kontrollpunkte", "Control Point %1": "Kontrollpunkt %1",
    "Number of fit points": "Anzahl Anpassungspunkte", "Fit Point %1": "Anpassungspunkt %1"})
DE.setdefault("errors", {}).update({
    "Degree must be a whole number from 1 to 10": "Der Grad muss eine ganze Zahl von 1 bis 10 sein",
    "The degree of a spline without fit points cannot be changed": "Der Grad eines Splines ohne Anpassungspunkte kann nicht geändert werden",
    "The degree must be lower than the number of fit points": "Der Grad muss kleiner als die Anzahl der Anpassungspunkte sein"})
# Multiline text: rows, choices, information lines and its refusal.
DE.setdefault("entity_types", {}).update({"MText": "MText"})
DE.setdefault("property_groups", {}).update({"Columns": "Spalten"})
DE.setdefault("property_types", {}).update({
    "Plain text": "Klartext", "Direction": "Richtung", "Width": "Breite", "Line space factor": "Zeilenabstandsfaktor",
    "Line space style": "Zeilenabstandsstil", "Background mask": "Hintergrundmaske", "Mask color": "Maskenfarbe",
    "Use drawing background": "Zeichnungshintergrund verwenden", "Border offset": "Randabstand",
    "Columns": "Spalten", "Column count": "Spaltenanzahl", "Column width": "Spaltenbreite",
    "Column gutter": "Spaltenabstand", "Column height": "Spaltenhöhe"})
DE.setdefault("property_values", {}).update({
    "Left to right": "Links nach rechts", "Right to left": "Rechts nach links", "Top to bottom": "Oben nach unten",
    "Bottom to top": "Unten nach oben", "By style": "Nach Stil", "At least": "Mindestens", "Exactly": "Genau",
    "None": "Keine", "Static": "Statisch", "Dynamic": "Dynamisch"})
DE.setdefault("info_items", {}).update({
    "Location": "Einfügepunkt", "Attachment": "Ausrichtung", "Direction": "Richtung", "width": "Breite",
    "line spacing factor": "Zeilenabstandsfaktor"})
DE.setdefault("info_values", {}).update({
    "Top Left": "Oben links", "Top Center": "Oben zentriert", "Top Right": "Oben rechts",
    "Middle Left": "Mitte links", "Middle Center": "Mitte zentriert", "Middle Right": "Mitte rechts",
    "Bottom Left": "Unten links", "Bottom Center": "Unten zentriert", "Bottom Right": "Unten rechts",
    "Left to right": "Links nach rechts", "Right to left": "Rechts nach links", "Top to bottom": "Oben nach unten",
    "Bottom to top": "Unten nach oben", "By style": "Nach Stil"})
DE.setdefault("errors", {}).update({
    "Multiline text can hold line breaks and tabs but no other control characters":
        "Mehrzeiliger Text kann Zeilenumbrüche und Tabulatoren, aber keine anderen Steuerzeichen enthalten"})
# zqprops for real work: selections, undo, unsaved edits, scripts.
DE.setdefault("zqprops", {}).update({
    'zqprops: --space takes model, paper or all, not "%1".': 'zqprops: --space nimmt model, paper oder all, nicht "%1".',
    "zqprops: nothing selected: no object of the drawing meets the selection.":
        "zqprops: nichts gewählt: kein Objekt der Zeichnung erfüllt die Auswahl.",
    "zqprops: no listed object has the row(s) %1.": "zqprops: kein gelistetes Objekt hat die Zeile(n) %1.",
    "zqprops: 1 unsaved edit; use -o or SAVE": "zqprops: 1 ungesicherte Änderung; -o oder SAVE verwenden",
    "zqprops: %1 unsaved edits; use -o or SAVE": "zqprops: %1 ungesicherte Änderungen; -o oder SAVE verwenden",
    "1 unsaved edit. Save the drawing? [Yes/No] <Yes>:": "1 ungesicherte Änderung. Zeichnung sichern? [Ja/Nein] <Ja>:",
    "%1 unsaved edits. Save the drawing? [Yes/No] <Yes>:": "%1 ungesicherte Änderungen. Zeichnung sichern? [Ja/Nein] <Ja>:",
    "yes": "ja",
    "Enter the number of operations to undo <1>:": "Anzahl der zurückzunehmenden Vorgänge eingeben <1>:",
    'UNDO needs a whole number of operations from 1 on, not "%1".': 'UNDO braucht eine ganze Zahl von Vorgängen ab 1, nicht "%1".',
    "Everything has been undone.": "Alles wurde zurückgenommen.",
    "Undone: %1": "Zurückgenommen: %1",
    "Nothing to redo.": "Nichts wiederherzustellen.",
    "Redone: %1": "Wiederhergestellt: %1",
})
DE.setdefault("CZqSelection", {}).update({
    "model": "Modell", "paper": "Papier", "all": "alle",
    "The drawing has no object with handle %1.": "Die Zeichnung hat kein Objekt mit der Referenz %1.",
    'Space takes model, paper or all, not "%1".': 'Space nimmt model, paper oder all, nicht "%1".',
})


# Reliability: refusals found by fuzzing, and saves refused before writing.
DE.setdefault("errors", {}).update({
    "A hyperlink needs a drawing saved as %1 or later; this drawing is %2.": "Ein Hyperlink braucht eine Zeichnung im Format %1 oder neuer; diese Zeichnung ist %2.",
})
DE.setdefault("OdDxf", {}).update({
    "Cannot write %1: it is a folder, not a file.": "%1 kann nicht geschrieben werden: es ist ein Ordner, keine Datei.",
    "Cannot write %1: it is a device or another special file, not a regular file.": "%1 kann nicht geschrieben werden: es ist ein Gerät oder eine andere Spezialdatei, keine gewöhnliche Datei.",
})

# Curves: 3D faces, solids and traces.
DE.setdefault("entity_types", {}).update({"3D Face": "3D-Fläche", "Solid": "Solid", "Trace": "Band"})
DE.setdefault("property_types", {}).update({"Vertex Z": "Scheitelpunkt Z", "Edge visible": "Kante sichtbar"})
DE.setdefault("info_items", {}).update({"Thickness": "Objekthöhe", "Edge %1": "Kante %1"})
DE.setdefault("info_values", {}).update({"Invisible": "Unsichtbar"})

# Dimensions: kinds, categories, rows, choices, refusals and information lines.
DE.setdefault("entity_types", {}).update({
    "Dimension": "Bemaßung", "AlignedDimension": "Ausgerichtete Bemaßung", "RotatedDimension": "Gedrehte Bemaßung",
    "2LineAngularDimension": "Winkelbemaßung (2 Linien)", "3PointAngularDimension": "Winkelbemaßung (3 Punkte)",
    "ArcLengthDimension": "Bogenlängenbemaßung", "RadialDimension": "Radiusbemaßung",
    "RadialDimensionLarge": "Verkürzte Radiusbemaßung", "DiametricDimension": "Durchmesserbemaßung",
    "OrdinateDimension": "Koordinatenbemaßung",
})
DE.setdefault("property_groups", {}).update({
    "Lines && Arrows": "Linien && Pfeile", "Fit": "Einpassen", "Primary UnitSystem": "Primäreinheiten",
    "Alternate UnitSystem": "Alternativeinheiten", "Tolerance": "Toleranzen",
})
DE.setdefault("property_types", {}).update({
    "Associative": "Assoziativ", "Dim style": "Bemaßungsstil", "Arrow size": "Pfeilgröße", "Fill color": "Füllfarbe",
    "Text color": "Textfarbe", "Text height": "Texthöhe", "Text offset": "Textabstand", "Position x": "Position X",
    "Position y": "Position Y", "Text override": "Textüberschreibung", "Dim scale overall": "Gesamtmaßstab",
    "Text movement": "Textverschiebung", "Decimal separator": "Dezimaltrennzeichen", "Dim Roundoff": "Rundung",
    "Dim prefix": "Präfix", "Dim suffix": "Suffix", "Suppress leading zeros": "Führende Nullen unterdrücken",
    "Suppress trailing zeros": "Nachkommanullen unterdrücken", "Tolerance display": "Toleranzanzeige",
    "Tolerance limit lower": "Untere Toleranzgrenze", "Tolerance limit upper": "Obere Toleranzgrenze",
    "Tolerance pos vert": "Vertikale Toleranzposition", "Tolerance precision": "Toleranzgenauigkeit",
    "Tolerance suppress leading zeros": "Toleranz: führende Nullen unterdrücken",
    "Tolerance suppress trailing zeros": "Toleranz: Nachkommanullen unterdrücken",
    "Tolerance text height": "Toleranztexthöhe", "Inspection frame": "Prüfrahmen",
    "Inspection frame shape": "Form des Prüfrahmens", "Inspection label": "Prüfbeschriftung",
    "Inspection rate": "Prüfrate", "Annotative": "Beschriftend", "Annotative Scale": "Beschriftungsmaßstab",
    "Arrow": "Pfeil", "CenterMark": "Mittelpunktmarkierung", "DimLine forced": "Maßlinie erzwingen",
    "CenterMark size": "Größe der Mittelpunktmarkierung", "DimLine LWeight": "Maßlinie Linienstärke",
    "DimLine LColor": "Maßlinie Farbe", "Ext line": "Hilfslinie", "DimLine LStyle": "Maßlinie Linientyp",
    "Fractional type": "Bruchformat", "Measurement": "Messwert", "Text outside align": "Text außen ausrichten",
    "Text pos vert": "Vertikale Textposition", "Text inside align": "Text innen ausrichten", "Fit": "Einpassen",
    "Dim scale linear": "Linearer Maßstab", "Dim UnitSystem": "Einheitenformat", "Precision": "Genauigkeit",
    "Suppress zero feet": "Null Fuß unterdrücken", "Suppress zero inches": "Null Zoll unterdrücken",
    "Tolerance suppress zero feet": "Toleranz: null Fuß unterdrücken",
    "Tolerance suppress zero inches": "Toleranz: null Zoll unterdrücken",
    "Alt tolerance precision": "Alternative Toleranzgenauigkeit",
    "Alt tolerance suppress leading zeros": "Alternative Toleranz: führende Nullen unterdrücken",
    "Alt tolerance suppress trailing zeros": "Alternative Toleranz: Nachkommanullen unterdrücken",
    "Alt tolerance suppress zero feet": "Alternative Toleranz: null Fuß unterdrücken",
    "Alt tolerance suppress zero inches": "Alternative Toleranz: null Zoll unterdrücken",
    "Alt enabled": "Alternativeinheiten aktiviert", "Alt format": "Alternatives Format",
    "Alt precision": "Alternative Genauigkeit", "Alt round": "Alternative Rundung", "Alt scale": "Alternativer Faktor",
    "Alt prefix": "Alternatives Präfix", "Alt suffix": "Alternatives Suffix",
    "Alt suppress leading zeros": "Alternativ: führende Nullen unterdrücken",
    "Alt suppress trailing zeros": "Alternativ: Nachkommanullen unterdrücken",
    "Alt suppress zeros feet": "Alternativ: null Fuß unterdrücken",
    "Alt suppress zeros inches": "Alternativ: null Zoll unterdrücken", "Text view direction": "Textleserichtung",
    "Arrow 1": "Pfeil 1", "Arrow 2": "Pfeil 2", "ExtLine LWeight": "Hilfslinie Linienstärke",
    "DimLine 1": "Maßlinie 1", "DimLine 2": "Maßlinie 2", "ExtLine 1 LStyle": "Hilfslinie 1 Linientyp",
    "ExtLine 2 LStyle": "Hilfslinie 2 Linientyp", "DimLine ext": "Maßlinienverlängerung", "ExtLine 1": "Hilfslinie 1",
    "ExtLine 2": "Hilfslinie 2", "ExtLine fixed": "Hilfslinie fester Länge",
    "ExtLine fixed length": "Feste Hilfslinienlänge", "ExtLine LColor": "Hilfslinie Farbe",
    "ExtLine ext": "Hilfslinienverlängerung", "ExtLine offset": "Hilfslinienabstand", "Text pos hor": "Horizontale Textposition",
    "DimLine inside": "Maßlinie innen", "Text inside": "Text innen", "Arc length symbol": "Bogenlängensymbol",
    "Angle precision": "Winkelgenauigkeit", "Angle format": "Winkelformat", "Dim line 1": "Maßlinie 1",
    "Dim line 2": "Maßlinie 2", "DimLine": "Maßlinie", "Center location override X": "Mittelpunkt-Ersatz X",
    "Center location override Y": "Mittelpunkt-Ersatz Y", "Jog location X": "Knickposition X",
    "Jog location Y": "Knickposition Y", "Jog angle": "Knickwinkel", "ExtLine LStyle": "Hilfslinie Linientyp",
})
DE.setdefault("property_values", {}).update({
    "Keep dimline with text": "Maßlinie mit Text verschieben", "Move text, add leader": "Text verschieben, mit Führungslinie",
    "Move text, no leader": "Text verschieben, ohne Führungslinie", "None": "Keine", "Symmetrical": "Symmetrisch",
    "Deviation": "Abweichung", "Limits": "Grenzen", "Basic": "Grundmaß", "Bottom": "Unten", "Middle": "Mitte",
    "Top": "Oben", "Mark": "Markierung", "Line": "Linie", "Horizontal": "Horizontal", "Diagonal": "Diagonal",
    "Not stacked": "Nicht gestapelt", "Centered": "Zentriert", "Above": "Darüber", "Outside": "Außen",
    "Below": "Darunter", "Text and arrows": "Text und Pfeile", "Arrows only": "Nur Pfeile", "Text only": "Nur Text",
    "Best fit": "Beste Einpassung", "Scientific": "Wissenschaftlich", "Decimal": "Dezimal",
    "Engineering": "Ingenieur", "Architectural": "Architektonisch", "Fractional": "Bruch",
    "Windows Desktop": "Windows-Desktop", "First extension line": "Erste Hilfslinie",
    "Second extension line": "Zweite Hilfslinie", "Over first extension": "Über erster Hilfslinie",
    "Over second extension": "Über zweiter Hilfslinie", "Left-to-right": "Von links nach rechts",
    "Right-to-left": "Von rechts nach links", "Decimal degrees": "Dezimalgrad", "Deg/min/sec": "Grad/Min/Sek",
    "Gradians": "Neugrad", "Radians": "Bogenmaß", "Preceding Dimension Text": "Vor dem Bemaßungstext",
    "Above Dimension Text": "Über dem Bemaßungstext", "Closed filled": "Geschlossen gefüllt",
    "Closed blank": "Geschlossen leer", "Closed": "Geschlossen", "Dot": "Punkt",
    "Architectural tick": "Architektonischer Schrägstrich", "Oblique": "Schräg", "Open": "Offen",
    "Origin indicator": "Ursprungsanzeiger", "Origin indicator 2": "Ursprungsanzeiger 2", "Right angle": "Rechter Winkel",
    "Open 30": "Offen 30", "Dot small": "Kleiner Punkt", "Dot blank": "Punkt leer", "Dot small blank": "Kleiner Punkt leer",
    "Box": "Kasten", "Box filled": "Kasten gefüllt", "Datum triangle": "Bezugsdreieck",
    "Datum triangle filled": "Bezugsdreieck gefüllt", "Integral": "Integral", "Custom arrow": "Benutzerpfeil",
})
DE.setdefault("CZqDimensionPE", {}).update({
    "None": "Keine", "Round": "Rund", "Angular": "Eckig", "Yes": "Ja", "No": "Nein",
})
DE.setdefault("errors", {}).update({
    "Decimal separator must be one character": "Das Dezimaltrennzeichen muss genau ein Zeichen sein",
    "%1 cannot take this value": "%1 kann diesen Wert nicht annehmen",
    "A dimension text cannot hold control characters": "Ein Bemaßungstext kann keine Steuerzeichen enthalten",
    "Choose one of the drawing's blocks as the custom arrow": "Wählen Sie einen Block der Zeichnung als Benutzerpfeil",
    "The drawing has no block for the arrowhead \"%1\"": "Die Zeichnung hat keinen Block für die Pfeilspitze \"%1\"",
    "There is no such arrowhead": "Diese Pfeilspitze gibt es nicht",
})
DE.setdefault("info_items", {}).update({
    "related": "assoziiert", "associated with geometry": "mit Geometrie verknüpft", "type": "Typ",
    "default text position": "Standardtextposition", "default text": "Standardtext", "DimensionStyle": "Bemaßungsstil",
    "Dimension style overrides": "Bemaßungsstil-Überschreibungen", "measurement": "Messwert",
    "1st extension  defining point": "Definitionspunkt 1. Hilfslinie",
    "2nd extension  defining point": "Definitionspunkt 2. Hilfslinie",
    "dimension line defining point": "Definitionspunkt Maßlinie",
    "1st extension defining point": "Definitionspunkt 1. Hilfslinie",
    "2nd extension defining point": "Definitionspunkt 2. Hilfslinie", "defining point": "Definitionspunkt",
    "1st extension defined line start point": "Startpunkt der 1. Hilfslinie",
    "1st extension defined line end point": "Endpunkt der 1. Hilfslinie",
    "2nd extension defined line start point": "Startpunkt der 2. Hilfslinie",
    "2nd extension defined line end point": "Endpunkt der 2. Hilfslinie",
    "dimension arc defined point": "Definitionspunkt Maßbogen", "arc center defining point": "Definitionspunkt Bogenmitte",
    "dimension arc defining point": "Definitionspunkt Maßbogen", "far defining point": "Gegenüberliegender Definitionspunkt",
    "feature defining point": "Definitionspunkt Element", "leader defining point": "Definitionspunkt Führungslinie",
    "center defining point": "Definitionspunkt Mitte", "override center defining point": "Definitionspunkt Ersatzmitte",
    "chord defining point": "Definitionspunkt Sehne", "jog defining point": "Definitionspunkt Knick", "jog angle": "Knickwinkel",
})
DE.setdefault("info_values", {}).update({
    "angular": "Winkel", "aligned": "ausgerichtet", "diameter": "Durchmesser", "ordinate": "Koordinate",
    "jogged": "verkürzt", "radial": "Radius", "rotated": "gedreht",
    "cannot be measured: its defining points are degenerate": "nicht messbar: die Definitionspunkte sind entartet",
})

# Attributes and attribute definitions: rows, information lines and refusals.
DE.setdefault("entity_types", {}).update({"Attribute Definition": "Attributdefinition", "Attribute": "Attribut"})
DE.setdefault("property_groups", {}).update({"Attribute": "Attribut"})
DE.setdefault("property_types", {}).update({
    "Tag": "Bezeichnung", "Prompt": "Eingabeaufforderung", "Value": "Wert", "Invisible": "Unsichtbar",
    "Constant": "Konstant", "Verify": "Prüfen", "Preset": "Vorgabe", "Lock position": "Position sperren",
    "Multiline": "Mehrzeilig"})
DE.setdefault("info_items", {}).update({
    "Tag": "Bezeichnung", "Prompt": "Eingabeaufforderung", "Invisible": "Unsichtbar", "Constant": "Konstant",
    "Verify": "Prüfen", "Preset": "Vorgabe", "Lock position": "Position sperren"})
DE.setdefault("errors", {}).update({
    "An attribute tag must be one word without blanks": "Eine Attributbezeichnung muss ein Wort ohne Leerzeichen sein",
    "An attribute value is one line: it cannot contain line breaks or control characters":
        "Ein Attributwert ist einzeilig: er darf keine Zeilenumbrüche oder Steuerzeichen enthalten",
    "A prompt is one line: it cannot contain line breaks or control characters":
        "Eine Eingabeaufforderung ist einzeilig: sie darf keine Zeilenumbrüche oder Steuerzeichen enthalten",
    "Locking the position of an attribute needs a drawing saved as %1 or later; this drawing is %2.":
        "Das Sperren der Position eines Attributs braucht eine Zeichnung im Format %1 oder neuer; diese Zeichnung ist %2."})

# Arc-aligned text: rows.
DE.setdefault("entity_types", {}).update({"ArcAlignedText": "Bogentext"})
DE.setdefault("property_groups", {}).update({"Position": "Position"})
DE.setdefault("property_types", {}).update({
    "Width Factor": "Breitenfaktor", "Char Spacing": "Zeichenabstand", "Center X": "Zentrum X", "Center Y": "Zentrum Y",
    "Center Z": "Zentrum Z", "Normal X": "Normale X", "Normal Y": "Normale Y", "Normal Z": "Normale Z",
    "Radius": "Radius", "Start Angle": "Startwinkel", "End Angle": "Endwinkel", "Arc Offset": "Bogenabstand",
    "Left Offset": "Abstand links", "Right Offset": "Abstand rechts"})

path = sys.argv[1] if len(sys.argv) > 1 else "translations/zqprops_de.ts"
tree = ET.parse(path)
missing = []
# 3D solids, regions and surfaces.
DE.setdefault("entity_types", {}).update({"3D Solid": "3D-Volumenkörper", "Body": "Körper", "Region": "Region",
    "Surface (Planar)": "Fläche (eben)", "Surface (Extrusion)": "Fläche (Extrusion)",
    "Surface (Revolve)": "Fläche (Rotation)", "Surface (Sweep)": "Fläche (Sweep)", "Surface (Loft)": "Fläche (Erhebung)"})
DE.setdefault("property_types", {}).update({"Solid type": "Volumenkörpertyp", "Position X": "Position X",
    "Position Y": "Position Y", "Position Z": "Position Z", "Length": "Länge", "Width": "Breite", "Height": "Höhe",
    "Rotation": "Drehung", "Elliptical": "Elliptisch", "Major radius": "Hauptradius", "Minor radius": "Nebenradius",
    "Radius": "Radius", "Base radius": "Basisradius", "Top radius": "Oberer Radius", "Perimeter": "Umfang",
    "Area": "Fläche", "U isolines": "U-Isolinien", "V isolines": "V-Isolinien", "Surface type": "Flächentyp",
    "Surface Type": "Flächentyp", "Diameter": "Durchmesser", "Closed": "Geschlossen"})
DE.setdefault("property_values", {}).update({"Box": "Quader", "Cylinder": "Zylinder", "Cone": "Kegel",
    "Pyramid": "Pyramide", "Sphere": "Kugel", "Torus": "Torus", "Wedge": "Keil", "Extrude": "Extrusion",
    "Revolve": "Rotation", "Sweep": "Sweep", "Planar": "Eben", "Extruded": "Extrudiert",
    "Loft with guide curves": "Erhebung mit Führungskurven"})
DE.setdefault("errors", {}).update({
    "The solid's position is not known, so it cannot be moved.":
        "Die Position des Volumenkörpers ist unbekannt, daher kann er nicht verschoben werden."})

# Solid primitives: a changed parameter builds the body anew.
DE.setdefault("OdDbAcis", {}).update({
    "The body is stored in an old modeller format that cannot be written here.":
        "Der Körper ist in einem alten Modelliererformat gespeichert, das hier nicht geschrieben werden kann.",
    "The tube radius must be smaller than the torus radius.":
        "Der Rohrradius muss kleiner als der Torusradius sein.",
    "A cone's top radius must differ from its base radius.":
        "Der obere Radius eines Kegels muss sich von seinem Basisradius unterscheiden.",
    "The solid has no history to build its body from.":
        "Der Volumenkörper hat keinen Verlauf, aus dem sein Körper aufgebaut werden könnte.",
    "The solid was made from curves its history does not keep, so its body cannot be built again. Nothing was changed.":
        "Der Volumenkörper wurde aus Kurven erzeugt, die sein Verlauf nicht aufbewahrt; sein Körper kann daher nicht "
        "neu aufgebaut werden. Es wurde nichts geändert.",
    "The modeller data is binary and cannot be moved here.":
        "Die Modelliererdaten sind binär und können hier nicht verschoben werden."})
DE.setdefault("errors", {}).update({"A pyramid has from 3 to 32 sides.": "Eine Pyramide hat 3 bis 32 Seiten."})
# Solids: modeller data messages
DE.setdefault("OdDb3dSolid", {}).update({
    "The solid's position is not known, so it cannot be moved.": "Die Lage des Volumenkörpers ist nicht bekannt, daher kann er nicht verschoben werden.",
})
DE.setdefault("OdDbAcis", {}).update({
    "The modeller data holds no geometry whose position is known.": "Die Modelliererdaten enthalten keine Geometrie mit bekannter Lage.",
    "The modeller data is damaged or cut off.": "Die Modelliererdaten sind beschädigt oder abgeschnitten.",
    "The region is not flat.": "Die Region ist nicht eben.",
    "The region has an edge of a kind that cannot be measured here (%1).": "Die Region hat eine Kante einer Art, die hier nicht gemessen werden kann (%1).",
    "The modeller data holds no face.": "Die Modelliererdaten enthalten keine Fläche.",
    "The body has free-form geometry, which cannot be moved here.": "Der Körper hat Freiformgeometrie, die hier nicht verschoben werden kann.",
})
# Hatches.
DE.setdefault("entity_types", {}).update({"Hatch": "Schraffur"})
DE.setdefault("property_groups", {}).update({"Pattern": "Muster", "Gradient": "Verlauf"})
DE.setdefault("property_types", {}).update({
    "Type": "Typ", "Pattern name": "Mustername", "Scale": "Skalierung", "Spacing": "Abstand", "Double": "Doppelt",
    "Origin X": "Ursprung X", "Origin Y": "Ursprung Y", "Associative": "Assoziativ",
    "Island detection style": "Inselerkennungsstil", "Background color": "Hintergrundfarbe", "Boundaries": "Umgrenzungen",
    "Gradient name": "Verlaufsname", "Color 1": "Farbe 1", "Color 2": "Farbe 2", "Gradient angle": "Verlaufswinkel",
    "Centered": "Zentriert",
})
DE.setdefault("property_values", {}).update({
    "Predefined": "Vordefiniert", "User defined": "Benutzerdefiniert", "Custom": "Angepasst", "Normal": "Normal",
    "Outer": "Äußere", "Ignore": "Ignorieren", "Not computable": "Nicht berechenbar",
})
DE.setdefault("info_items", {}).update({
    "Pattern type": "Mustertyp", "Pattern name": "Mustername", "Angle": "Winkel", "Spacing": "Abstand", "Double": "Doppelt",
    "Scale": "Skalierung", "Origin": "Ursprung", "Gradient name": "Verlaufsname", "Associative": "Assoziativ",
    "Island detection style": "Inselerkennungsstil", "Boundaries": "Umgrenzungen", "Area": "Fläche", "Elevation": "Erhebung",
})
DE.setdefault("info_values", {}).update({
    "not computable (the boundary crosses itself or is open)": "nicht berechenbar (die Umgrenzung schneidet sich selbst oder ist offen)",
})
DE.setdefault("CZqHatchPE", {}).update({"%1 sq. in. (%2 sq. ft.)": "%1 sq. in. (%2 sq. ft.)"})
DE.setdefault("errors", {}).update({
    "There is no hatch pattern named \"%1\".": "Es gibt kein Schraffurmuster namens \"%1\".",
    "Only a hatch made from boundary objects can be associative": "Nur eine aus Umgrenzungsobjekten erzeugte Schraffur kann assoziativ sein",
    "A gradient colour must be a colour of its own, not ByLayer or ByBlock": "Eine Verlaufsfarbe muss eine eigene Farbe sein, nicht VonLayer oder VonBlock",
})

# Annotative texts and dimensions
DE.setdefault("property_types", {}).update({
    "Sheet text height": "Papiertexthöhe",
    "Model text height": "Modelltexthöhe",
    "Match orientation to sheet": "Ausrichtung an Blatt anpassen",
    "Edit annotation scales": "Beschriftungsmaßstäbe bearbeiten",
})
DE.setdefault("info_items", {}).update({"Sheet text height": "Papiertexthöhe", "Model text height": "Modelltexthöhe"})
for owner in ("CZqTextPE", "CZqMTextPE", "CZqDimensionPE", "CZqLeaderPE", "CZqMLeaderPE"):
    DE.setdefault(owner, {}).update({"Edit annotation scales": "Beschriftungsmaßstäbe bearbeiten"})
DE.setdefault("errors", {}).update({
    "A text justified Aligned or Fit cannot be annotative.":
        "Ein Text mit der Ausrichtung Ausgerichtet oder Eingepasst kann nicht beschriftend sein.",
    "Annotative objects need a drawing saved as %1 or later; this drawing is %2.":
        "Beschriftende Objekte brauchen eine Zeichnung im Format %1 oder neuer; diese Zeichnung ist %2.",
    "The object is not open for changes.": "Das Objekt ist nicht zum Ändern geöffnet.",
    "Only an annotative object can follow the orientation of the sheet.":
        "Nur ein beschriftendes Objekt kann der Ausrichtung des Blatts folgen.",
})
# Block references, multiple inserts and their attributes.
DE.setdefault("entity_types", {}).update({"Block Reference": "Blockreferenz", "Multiple Block Reference": "Mehrfach-Blockreferenz"})
DE.setdefault("property_groups", {}).update({"Attributes": "Attribute"})
DE.setdefault("property_types", {}).update({
    "Scale X": "Skalierung X", "Scale Y": "Skalierung Y", "Scale Z": "Skalierung Z", "Unit factor": "Einheitenfaktor",
    "Uniform scale": "Einheitlich skalieren", "Columns": "Spalten", "Rows": "Zeilen",
    "Column spacing": "Spaltenabstand", "Row spacing": "Zeilenabstand",
})
DE.setdefault("info_items", {}).update({
    "Block Name": "Blockname", "at point": "bei Punkt", "X scale factor": "X-Skalierfaktor",
    "Y scale factor": "Y-Skalierfaktor", "Z scale factor": "Z-Skalierfaktor", "rotation angle": "Drehwinkel",
    "Extrusion direction": "Extrusionsrichtung", "Unit factor": "Einheitenfaktor", "Columns": "Spalten", "Rows": "Zeilen",
    "Column spacing": "Spaltenabstand", "Row spacing": "Zeilenabstand", "Attribute": "Attribut",
})
DE.setdefault("errors", {}).update({
    "A layout cannot be placed as a block.": "Ein Layout kann nicht als Block eingefügt werden.",
    "A block cannot contain a reference to itself.": "Ein Block kann keine Referenz auf sich selbst enthalten.",
    "A scale factor cannot be 0.": "Ein Skalierfaktor kann nicht 0 sein.",
    "Rows and columns are counted in whole numbers.": "Zeilen und Spalten werden in ganzen Zahlen gezählt.",
})

# zqpalette: the window, its menus, the palette and the drawing view.
DE.setdefault("zqpalette", {}).update({
    "%1 (%2)": "%1 (%2)",
    "&Deselect": "Auswahl &aufheben",
    "&Edit": "&Bearbeiten",
    "&File": "&Datei",
    "&Open...": "Ö&ffnen...",
    "&Quit": "&Beenden",
    "&Redo": "&Wiederherstellen",
    "&Save": "&Speichern",
    "&Undo": "&Rückgängig",
    "&View": "&Ansicht",
    "(no drawing)": "(keine Zeichnung)",
    "... and %1 more objects.": "... und %1 weitere Objekte.",
    "All (%1)": "Alle (%1)",
    "Cannot open %1: %2": "%1 kann nicht geöffnet werden: %2",
    "DXF drawings (*.dxf)": "DXF-Zeichnungen (*.dxf)",
    "DXF drawings (*.dxf);;All files (*)": "DXF-Zeichnungen (*.dxf);;Alle Dateien (*)",
    "Edit annotation scales": "Beschriftungsmaßstäbe bearbeiten",
    "Information": "Information",
    "Layout%1": "Layout%1",
    "Model": "Modell",
    "Open Drawing": "Zeichnung öffnen",
    "Open": "Öffnen",
    "Properties": "Eigenschaften",
    "Property": "Eigenschaft",
    "Recent Files": "Zuletzt geöffnet",
    "Redone.": "Wiederhergestellt.",
    "Save &As...": "Speichern &unter...",
    "Save Drawing As": "Zeichnung speichern unter",
    "Save": "Speichern",
    "Saved %1.": "%1 gespeichert.",
    "Select &All": "&Alles auswählen",
    "Select Colour": "Farbe wählen",
    "Select Colour...": "Farbe wählen...",
    "The drawing %1 has unsaved changes. Save them?": "Die Zeichnung %1 hat ungespeicherte Änderungen. Speichern?",
    "Undone.": "Rückgängig gemacht.",
    "Unsaved changes": "Ungespeicherte Änderungen",
    "Value": "Wert",
    "Zoom &Extents": "&Zoom Grenzen",
    "warning: %1": "Warnung: %1",
    "zqpalette: cannot write %1": "zqpalette: %1 kann nicht geschrieben werden",
    "zqpalette: there is no translation catalog for the language \"%1\"; the window stays in English.":
        "zqpalette: für die Sprache \"%1\" gibt es keinen Übersetzungskatalog; das Fenster bleibt englisch.",
})

# Leaders, multileaders and tolerance frames
DE.setdefault("entity_types", {}).update({"Leader": "Führung", "Tolerance": "Toleranz"})
DE.setdefault("CZqLeaderPE", {}).update({"Edit annotation scales": "Beschriftungsmaßstäbe bearbeiten"})
DE.setdefault("CZqFcfPE", {}).update({"Edit annotation scales": "Beschriftungsmaßstäbe bearbeiten"})
DE.setdefault("property_types", {}).update({
    "DimStyle": "Bemaßungsstil", "DimScale overall": "Bemaßungsgesamtmaßstab", "Type": "Typ",
    "Vertex x": "Scheitelpunkt X", "Vertex y": "Scheitelpunkt Y", "Vertex z": "Scheitelpunkt Z",
})
DE.setdefault("property_values", {}).update({
    "Line with no arrow": "Linie ohne Pfeil", "Spline with no arrow": "Spline ohne Pfeil",
    "Line with arrow": "Linie mit Pfeil", "Spline with arrow": "Spline mit Pfeil",
})
DE.setdefault("info_items", {}).update({
    "Normal": "Normale", "Horizontal direction": "Horizontale Richtung", "Hook Line": "Hakenlinie",
    "Vertex": "Scheitelpunkt", "Arrow": "Pfeil",
})
DE.setdefault("info_values", {}).update({"leader": "Führung"})

DE.setdefault("entity_types", {}).update({"MultiLeader": "Multi-Führungslinie"})
DE.setdefault("CZqMLeaderPE", {}).update({"Edit annotation scales": "Beschriftungsmaßstäbe bearbeiten"})
DE.setdefault("property_groups", {}).update({"Leaders": "Führungslinien", "Block": "Block"})
DE.setdefault("property_types", {}).update({
    "Multi leader Style": "Multi-Führungslinienstil", "Leader line color": "Führungslinienfarbe",
    "Leader line style": "Führungslinientyp", "Leader line weight": "Führungslinienstärke",
    "Leader Extension": "Führungslinienverlängerung", "Overall scale": "Gesamtmaßstab",
    "Horizontal landing": "Horizontale Verbindung", "Landing distance": "Verbindungsabstand",
    "Block name": "Blockname", "Attachment type": "Anhangstyp", "Content": "Inhalt",
    "Landing gap": "Verbindungsabstand zum Text", "Left attachment": "Anhang links",
    "Right attachment": "Anhang rechts", "Top attachment": "Anhang oben", "Bottom attachment": "Anhang unten",
    "Line space distance": "Zeilenabstand", "Text frame": "Textrahmen", "Attachment": "Anhang",
})
DE.setdefault("property_values", {}).update({
    "Straight": "Gerade", "Spline": "Spline", "Left to right": "Links nach rechts", "Top to bottom": "Oben nach unten",
    "By style": "Nach Stil", "Top of top line": "Oberkante der obersten Zeile", "Middle of top line": "Mitte der obersten Zeile",
    "Middle of text": "Textmitte", "Middle of bottom line": "Mitte der untersten Zeile",
    "Bottom of bottom line": "Unterkante der untersten Zeile", "Bottom line": "Unterste Zeile",
    "Bottom of top line underlined": "Unterkante der obersten Zeile, unterstrichen",
    "Bottom of top line": "Unterkante der obersten Zeile", "Bottom of all text": "Unterkante des gesamten Texts",
    "Underline and center": "Unterstrichen und zentriert", "At least": "Mindestens", "Exactly": "Genau",
    "Insertion point": "Einfügepunkt", "Middle": "Mitte",
})
DE.setdefault("info_items", {}).update({
    "Leader Type": "Führungstyp", "Content Type": "Inhaltstyp", "Landing Line": "Verbindungslinie",
    "MultiLeader style": "Multi-Führungslinienstil", "Leader number": "Anzahl Führungslinien",
})
DE.setdefault("info_values", {}).update({"Invisible": "Unsichtbar", "Straight": "Gerade", "Spline": "Spline", "Note": "Notiz"})
DE.setdefault("errors", {}).update({
    "The drawing has no multileader style \"%1\".": "Die Zeichnung hat keinen Multi-Führungslinienstil \"%1\".",
    "The multileader's block is missing from the drawing.": "Der Block der Multi-Führungslinie fehlt in der Zeichnung.",
    "A multileader text cannot hold control characters; use \\P for a new line.": "Ein Multi-Führungslinientext kann keine Steuerzeichen enthalten; für eine neue Zeile \\P verwenden.",
})
# Proxy entities.
DE.setdefault("entity_types", {}).update({"Proxy Entity": "Proxy-Objekt"})
DE.setdefault("property_types", {}).update({"Original class name": "Ursprünglicher Klassenname", "DXF name": "DXF-Name",
                                            "Application": "Anwendung", "Allowed operations": "Erlaubte Operationen"})
DE.setdefault("info_items", {}).update({"Original class name": "Ursprünglicher Klassenname", "DXF name": "DXF-Name",
                                        "Application": "Anwendung", "Allowed operations": "Erlaubte Operationen"})
DE.setdefault("property_values", {}).update({
    "Erase": "Löschen", "Transform": "Transformieren", "Color change": "Farbänderung", "Layer change": "Layeränderung",
    "Linetype change": "Linientypänderung", "Linetype scale change": "Linientypfaktoränderung",
    "Visibility change": "Sichtbarkeitsänderung", "Cloning": "Klonen", "Lineweight change": "Linienstärkenänderung",
    "Plot style change": "Plotstiländerung", "Material change": "Materialänderung", "None": "Keine", "Unknown": "Unbekannt",
})

# Named records: layers, linetypes, text and dimension styles, and their renames.
DE.setdefault("entity_types", {}).update({"Layer": "Layer", "Linetype": "Linientyp", "Text Style": "Textstil",
                                          "Dimension Style": "Bemaßungsstil"})
DE.setdefault("property_types", {}).update({
    "Name": "Name", "On": "Ein", "Frozen": "Gefroren", "Locked": "Gesperrt", "Plot": "Plotten",
    "Description": "Beschreibung", "Font name": "Schriftname", "Big font": "Großschrift", "Width factor": "Breitenfaktor", "Oblique angle": "Neigungswinkel", "Backwards": "Rückwärts",
    "Upside down": "Auf dem Kopf", "Vertical": "Vertikal", "Pattern length": "Musterlänge", "Dashes": "Striche",
})
DE.setdefault("errors", {}).update({
    "record": "Eintrag",
    "The %1 \"%2\" is part of every drawing and cannot be renamed.": "%1 \"%2\" gehört zu jeder Zeichnung und kann nicht umbenannt werden.",
    "A name cannot be empty.": "Ein Name darf nicht leer sein.",
    "A name cannot contain any of the characters %1; \"%2\" contains %3.": "Ein Name darf keines der Zeichen %1 enthalten; \"%2\" enthält %3.",
    "A name cannot begin or end with a blank.": "Ein Name darf nicht mit einem Leerzeichen beginnen oder enden.",
    "A %1 named \"%2\" already exists.": "%1 \"%2\" gibt es bereits.",
    "The current layer cannot be frozen.": "Der aktuelle Layer kann nicht gefroren werden.",
    "A layer's color must be a color of its own, not ByLayer or ByBlock.": "Die Farbe eines Layers muss eine eigene Farbe sein, nicht VonLayer oder VonBlock.",
    "A layer's linetype must be a linetype of its own, not ByLayer or ByBlock.": "Der Linientyp eines Layers muss ein eigener Linientyp sein, nicht VonLayer oder VonBlock.",
    "A layer's lineweight must be Default or a standard lineweight from 0.00 mm to 2.11 mm.": "Die Linienstärke eines Layers muss Vorgabe oder eine Standardlinienstärke von 0,00 mm bis 2,11 mm sein.",
    "A layer's transparency must be a whole percentage from 0 to 90.": "Die Transparenz eines Layers muss ein ganzer Prozentwert von 0 bis 90 sein.",
    "Precision must be a whole number from 0 to 8.": "Die Genauigkeit muss eine ganze Zahl von 0 bis 8 sein.",
})
DE.setdefault("CZqSelection", {}).update({
    "\"%1\" names no kind of record: use layers, linetypes, textstyles or dimstyles.": "\"%1\" ist keine Art von Einträgen: layers, linetypes, textstyles oder dimstyles verwenden.",
})

# Viewports.
DE.setdefault("entity_types", {}).update({"Viewport": "Ansichtsfenster"})
DE.setdefault("property_types", {}).update({
    "Clipped": "Zugeschnitten", "Display locked": "Anzeige gesperrt", "Standard scale": "Standardmaßstab",
    "Custom scale": "Benutzerdefinierter Maßstab", "View twist": "Ansichtsdrehung", "Shade plot": "Schattierungsplot",
    "Frozen layers": "Gefrorene Layer",
})
DE.setdefault("property_values", {}).update({"Custom": "Benutzerdefiniert", "As Displayed": "Wie angezeigt",
                                             "Wireframe": "Drahtmodell", "Hidden": "Verdeckt", "Rendered": "Gerendert"})
DE.setdefault("errors", {}).update({
    "A viewport without height has no scale.": "Ein Ansichtsfenster ohne Höhe hat keinen Maßstab.",
    "The layout's own paper view cannot be changed.": "Die Papieransicht des Layouts selbst kann nicht geändert werden.",
})
for k, v in {"Scale relative to paper space": "Maßstab relativ zum Papierbereich", "Center point": "Mittelpunkt",
             "Width": "Breite", "Height": "Höhe", "Status": "Status"}.items():
    DE.setdefault("info_items", {}).setdefault(k, v)
for k, v in {"On": "Ein", "Off": "Aus"}.items():
    DE.setdefault("info_values", {}).setdefault(k, v)

# Solids: history kinds and refusals
DE.setdefault("errors", {}).update({
    "%1 cannot be changed here: the solid's body would have to be built again from its history. Nothing was changed.":
        "%1 kann hier nicht geändert werden: der Körper des Volumenkörpers müsste aus seinem Verlauf neu aufgebaut werden. Es wurde nichts geändert.",
    "%1 cannot be changed here: the surface would have to be built again from the curves that made it. Nothing was changed.":
        "%1 kann hier nicht geändert werden: die Fläche müsste aus den Kurven, die sie erzeugt haben, neu aufgebaut werden. Es wurde nichts geändert.",
})
DE.setdefault("info_items", {}).update({"Bounding box": "Umgrenzungsquader"})
DE.setdefault("property_values", {}).update({
    "Loft with path": "Anheben mit Pfad", "Loft with cross sections only": "Anheben nur mit Querschnitten",
    "Corner": "Ecke", "Side": "Seite", "Ruled": "Regelfläche", "Smooth fit": "Glatt angepasst", "Normal to": "Lotrecht zu",
    "Draft angles": "Neigungswinkel", "All Cross Sections": "Alle Querschnitte",
    "Beginning and Ending Cross Sections": "Anfangs- und Endquerschnitt", "Beginning Cross Section": "Anfangsquerschnitt",
    "Ending Cross Section": "Endquerschnitt", "Smooth": "Glatt", "First normal": "Erste Normale",
    "Last normal": "Letzte Normale", "Ends normal": "Enden lotrecht", "All normal": "Alle lotrecht",
    "Use draft angles": "Neigungswinkel verwenden",
})

# Records: groups, multiline and table styles, views and viewport configurations
DE.setdefault("entity_types", {}).update({
    "Group": "Gruppe", "Multiline Style": "Multilinienstil", "Table Style": "Tabellenstil", "View": "Ansicht",
    "Viewport Configuration": "Ansichtsfensterkonfiguration",
})
DE.setdefault("property_groups", {}).update({
    "Caps": "Abschlüsse", "Fill": "Füllung", "Cell margins": "Zellränder", "View": "Ansicht", "Drawing aids": "Zeichenhilfen",
})
DE.setdefault("property_types", {}).update({
    "Selectable": "Wählbar", "Members": "Mitglieder", "Elements": "Elemente", "Display joints": "Verbindungen anzeigen",
    "Start line": "Linie am Anfang", "Start outer arc": "Äußerer Bogen am Anfang", "Start inner arcs": "Innere Bögen am Anfang",
    "Start angle": "Startwinkel", "End line": "Linie am Ende", "End outer arc": "Äußerer Bogen am Ende",
    "End inner arcs": "Innere Bögen am Ende", "End angle": "Endwinkel", "Fill": "Füllung", "Fill color": "Füllfarbe",
    "Table direction": "Tabellenrichtung", "Horizontal": "Horizontal", "Vertical": "Vertikal",
    "Center X": "Zentrum X", "Center Y": "Zentrum Y", "Height": "Höhe", "Width": "Breite", "Aspect ratio": "Seitenverhältnis",
    "Target X": "Ziel X", "Target Y": "Ziel Y", "Target Z": "Ziel Z", "Direction X": "Richtung X", "Direction Y": "Richtung Y",
    "Direction Z": "Richtung Z", "Lens length": "Objektivlänge", "Twist angle": "Verdrehwinkel", "Grid": "Raster",
    "Grid X spacing": "Rasterabstand X", "Grid Y spacing": "Rasterabstand Y", "Snap": "Fang", "Snap X spacing": "Fangabstand X",
    "Snap Y spacing": "Fangabstand Y", "Snap angle": "Fangwinkel",
})
DE.setdefault("property_values", {}).update({"Down": "Nach unten", "Up": "Nach oben"})
DE.setdefault("errors", {}).update({
    "view": "Ansicht", "group": "Gruppe", "multiline style": "Multilinienstil", "table style": "Tabellenstil",
    "This %1 belongs to no dictionary of the drawing and cannot be renamed.":
        "Diese(r) %1 gehört zu keinem Verzeichnis der Zeichnung und kann nicht umbenannt werden.",
})
DE.setdefault("CZqSelection", {}).update({
    "\"%1\" names no kind of record: use layers, linetypes, textstyles, dimstyles, views, vports, groups, mlinestyles or tablestyles.":
        "\"%1\" ist keine Art von Einträgen: layers, linetypes, textstyles, dimstyles, views, vports, groups, mlinestyles oder tablestyles verwenden.",
})

# Raster images, tables, underlays and OLE frames.
DE.setdefault("entity_types", {}).update({"Raster Image": "Rasterbild", "Table": "Tabelle", "PDF Underlay": "PDF-Unterlage",
                                          "DGN Underlay": "DGN-Unterlage", "OLE Object": "OLE-Objekt"})
DE.setdefault("property_groups", {}).update({"Table": "Tabelle", "Cell": "Zelle"})
DE.setdefault("property_types", {}).update({
    "Path": "Pfad", "Status": "Status", "Brightness": "Helligkeit", "Contrast": "Kontrast", "Fade": "Blasser",
    "Show image": "Bild anzeigen", "Show clipped": "Zugeschnitten anzeigen", "Show underlay": "Unterlage anzeigen",
    "Monochrome": "Monochrom", "Sheet": "Blatt", "Table width": "Tabellenbreite",
    "Table height": "Tabellenhöhe", "Table style": "Tabellenstil", "Direction": "Richtung", "Cell": "Zelle",
    "Contents": "Inhalt", "Type": "Typ",
})
DE.setdefault("property_values", {}).update({
    "found": "gefunden", "not found": "nicht gefunden", "Row %1, column %2": "Zeile %1, Spalte %2", "Down": "Nach unten",
    "Up": "Nach oben", "Linked": "Verknüpft", "Embedded": "Eingebettet", "Static": "Statisch",
})
DE.setdefault("errors", {}).update({
    "An image's size and scale must be greater than 0.": "Größe und Maßstab eines Bildes müssen größer als 0 sein.",
    "The image does not lie in the XY plane of the current UCS: its rotation cannot be set there.":
        "Das Bild liegt nicht in der XY-Ebene des aktuellen BKS: seine Drehung kann dort nicht eingestellt werden.",
    "%1 is a whole number.": "%1 ist eine ganze Zahl.",
    "An underlay's scale must be greater than 0.": "Der Maßstab einer Unterlage muss größer als 0 sein.",
    "An OLE object's width and height must be greater than 0.": "Breite und Höhe eines OLE-Objekts müssen größer als 0 sein.",
    "There is no cell %1: the table has %2 cells.": "Es gibt keine Zelle %1: die Tabelle hat %2 Zellen.",
    "A cell's text is one line: write a line break as \\P.": "Der Text einer Zelle ist eine Zeile: schreiben Sie einen Zeilenumbruch als \\P.",
    "A cell's text can be at most 250 characters long.": "Der Text einer Zelle darf höchstens 250 Zeichen lang sein.",
    "This cell holds a block, not text.": "Diese Zelle enthält einen Block, keinen Text.",
    "The drawing keeps no text of its own for this cell: it cannot be edited here.":
        "Die Zeichnung speichert für diese Zelle keinen eigenen Text: er kann hier nicht bearbeitet werden.",
})
DE.setdefault("info_items", {}).update({
    "Image name": "Bildname", "Saved path": "Gespeicherter Pfad", "Status": "Status", "Insertion point": "Einfügepunkt",
    "Rotation": "Drehung", "Underlay name": "Name der Unterlage", "Table style": "Tabellenstil",
    "Table width": "Tabellenbreite", "Table height": "Tabellenhöhe", "Type": "Typ",
    "Upper left corner": "Obere linke Ecke", "Lower right corner": "Untere rechte Ecke",
})
DE.setdefault("info_values", {}).update({"found": "gefunden", "not found": "nicht gefunden"})

DE.setdefault("entity_types", {}).update({"Light": "Licht"})
DE.setdefault("property_types", {}).update({"Intensity factor": "Intensitätsfaktor", "Shadows": "Schatten",
                                            "Target X": "Ziel X", "Target Y": "Ziel Y", "Target Z": "Ziel Z",
                                            "Hotspot angle": "Hotspot-Winkel", "Falloff angle": "Abfallwinkel"})
DE.setdefault("property_values", {}).update({"Distant": "Entfernt", "Point": "Punkt", "Spot": "Spot"})
DE.setdefault("errors", {}).update({
    "A light needs a name.": "Ein Licht braucht einen Namen.",
    "A light's name is one line: it cannot contain line breaks or control characters.":
        "Der Name eines Lichts ist eine Zeile: er darf keine Zeilenumbrüche oder Steuerzeichen enthalten.",
    "The hotspot of a light cannot be wider than its falloff.": "Der Hotspot eines Lichts kann nicht breiter als sein Abfall sein.",
    "A light's cone angle must be greater than 0 and at most 160 degrees.":
        "Der Kegelwinkel eines Lichts muss größer als 0 und höchstens 160 Grad sein.",
})
DE.setdefault("info_items", {}).update({"Intensity factor": "Intensitätsfaktor", "Position": "Position",
                                        "Target": "Ziel", "Hotspot angle": "Hotspot-Winkel",
                                        "Falloff angle": "Abfallwinkel", "Name": "Name", "On": "Ein"})
# Curves and meshes: 3D polylines, polyface, polygon and subdivision meshes, multilines, shapes.
DE.setdefault("CZq3dPolylinePE", {}).update({"%1 sq. in. (%2 sq. ft.)": "%1 sq. in. (%2 sq. ft.)"})
DE.setdefault("entity_types", {}).update({
    "3D Polyline": "3D-Polylinie", "Polyface Mesh": "Vielflächennetz", "Polygon Mesh": "Polygonnetz", "Mesh": "Netz",
    "Multiline": "Multilinie", "Shape": "Form"})
DE.setdefault("property_types", {}).update({
    "Vertex count": "Anzahl Scheitelpunkte", "Face count": "Anzahl Flächen", "Edge count": "Anzahl Kanten",
    "M vertex count": "Anzahl Scheitelpunkte M", "N vertex count": "Anzahl Scheitelpunkte N",
    "M closed": "In M geschlossen", "N closed": "In N geschlossen", "M density": "Dichte M", "N density": "Dichte N",
    "Smoothness": "Glättung", "Style": "Stil", "Justify": "Ausrichtung", "Scale": "Skalierung",
    "Name": "Name", "Height": "Höhe", "Rotation": "Drehung", "Width factor": "Breitenfaktor",
    "Oblique angle": "Neigungswinkel"})
DE.setdefault("property_values", {}).update({"Bezier": "Bezier", "Top": "Oben", "Zero": "Null", "Bottom": "Unten"})
DE.setdefault("info_items", {}).update({
    "Vertex count": "Anzahl Scheitelpunkte", "Face count": "Anzahl Flächen", "Edge count": "Anzahl Kanten",
    "M vertex count": "Anzahl Scheitelpunkte M", "N vertex count": "Anzahl Scheitelpunkte N",
    "M closed": "In M geschlossen", "N closed": "In N geschlossen", "M density": "Dichte M", "N density": "Dichte N",
    "Surface area": "Oberfläche", "Smoothness": "Glättung", "Style": "Stil", "Justify": "Ausrichtung",
    "Scale": "Skalierung", "Name": "Name", "at point": "bei Punkt", "Height": "Höhe", "Rotation": "Drehung",
    "Width factor": "Breitenfaktor", "Oblique angle": "Neigungswinkel"})
DE.setdefault("errors", {}).update({
    "%1 must be a whole number": "%1 muss eine ganze Zahl sein",
    "The justification cannot be changed: the offsets of the multiline style are not known.":
        "Die Ausrichtung kann nicht geändert werden: die Abstände des Multilinienstils sind nicht bekannt."})
# Dimensions: association with geometry
DE.setdefault("info_items", {}).update({
    "association": "Assoziativität",
    "1st defining point attached to": "1. Definitionspunkt gebunden an",
    "2nd defining point attached to": "2. Definitionspunkt gebunden an",
    "3rd defining point attached to": "3. Definitionspunkt gebunden an",
    "4th defining point attached to": "4. Definitionspunkt gebunden an",
})
DE.setdefault("info_values", {}).update({
    "associative": "assoziativ", "not associative": "nicht assoziativ",
    "no snap": "kein Objektfang", "end point": "Endpunkt", "midpoint": "Mittelpunkt", "center": "Zentrum",
    "node": "Knoten", "quadrant": "Quadrant", "intersection": "Schnittpunkt", "insertion point": "Einfügepunkt",
    "perpendicular": "Lotpunkt", "tangent": "Tangente", "nearest point": "Nächster Punkt",
    "apparent intersection": "Angenommener Schnittpunkt", "parallel": "Parallele", "start point": "Startpunkt",
    "%1 of %2 %3": "%1 von %2 %3",
    "%1 of %2, which is not in the drawing": "%1 von %2, das nicht in der Zeichnung ist",
})

# Values older releases cannot hold
DE.setdefault("errors", {}).update({
    "Dimension overrides need a drawing saved as %1 or later; this drawing is %2.":
        "Bemaßungsüberschreibungen brauchen eine als %1 oder neuer gespeicherte Zeichnung; diese Zeichnung ist %2.",
    "Inspection data needs a drawing saved as %1 or later; this drawing is %2.":
        "Prüfdaten brauchen eine als %1 oder neuer gespeicherte Zeichnung; diese Zeichnung ist %2.",
})

for context in tree.getroot().iter("context"):
    name = context.find("name").text
    for message in context.iter("message"):
        source = message.find("source").text
        translation = message.find("translation")
        text = DE.get(name, {}).get(source)
        if text is None:
            if translation.text:
                continue
            missing.append(f"{name}: {source}")
            continue
        translation.text = text
        translation.attrib.pop("type", None)
tree.write(path, encoding="utf-8", xml_declaration=True)
for m in missing:
    print("untranslated:", m)
