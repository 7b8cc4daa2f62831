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

path = sys.argv[1] if len(sys.argv) > 1 else "translations/zqprops_de.ts"
tree = ET.parse(path)
missing = []
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
