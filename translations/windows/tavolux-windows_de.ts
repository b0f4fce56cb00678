<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de">
<context>
    <name>PreviewRemarks</name>
    <message>
        <source>Incomplete: line %1, column %2: %3</source>
        <translation>Unvollständig: Zeile %1, Spalte %2: %3</translation>
    </message>
    <message>
        <source>Only the first %1 of %2 lines are shown.</source>
        <translation>Nur die ersten %1 von %2 Zeilen werden gezeigt.</translation>
    </message>
    <message>
        <source>The logo is not printed: %1</source>
        <translation>Das Logo wird nicht gedruckt: %1</translation>
    </message>
</context>
<context>
    <name>PreviewWindow</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>Ö&amp;ffnen …</translation>
    </message>
    <message>
        <source>Save &amp;As…</source>
        <translation>Speichern &amp;unter …</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>Zoom &amp;In</source>
        <translation>Ver&amp;größern</translation>
    </message>
    <message>
        <source>Zoom &amp;Out</source>
        <translation>Ver&amp;kleinern</translation>
    </message>
    <message>
        <source>&amp;Dot by Dot</source>
        <translation>&amp;Punkt für Punkt</translation>
    </message>
    <message>
        <source>Fit &amp;Width</source>
        <translation>An &amp;Breite anpassen</translation>
    </message>
    <message>
        <source>Choices</source>
        <translation>Auswahl</translation>
    </message>
    <message>
        <source>&amp;Language:</source>
        <translation>&amp;Sprache:</translation>
    </message>
    <message>
        <source>as configured</source>
        <translation>wie eingestellt</translation>
    </message>
    <message>
        <source>&amp;Paper:</source>
        <translation>&amp;Papier:</translation>
    </message>
    <message>
        <source>%1 columns</source>
        <translation>%1 Spalten</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>%1 kann nicht gelesen werden: %2</translation>
    </message>
    <message>
        <source>There is no configuration %1.</source>
        <translation>Es gibt keine Konfiguration %1.</translation>
    </message>
    <message>
        <source>Columns: %1</source>
        <translation>Spalten: %1</translation>
    </message>
    <message>
        <source>Lines: %1</source>
        <translation>Zeilen: %1</translation>
    </message>
    <message>
        <source>Zoom: %1 %</source>
        <translation>Größe: %1 %</translation>
    </message>
    <message>
        <source>to be printed twice</source>
        <translation>wird zweimal gedruckt</translation>
    </message>
    <message>
        <source>Open a Document</source>
        <translation>Dokument öffnen</translation>
    </message>
    <message>
        <source>Documents (*.xml *.tvx);;All files (*)</source>
        <translation>Dokumente (*.xml *.tvx);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Save the Printout</source>
        <translation>Ausdruck speichern</translation>
    </message>
    <message>
        <source>PDF (*.pdf);;Picture (*.png);;Drawing (*.svg);;Text (*.txt)</source>
        <translation>PDF (*.pdf);;Bild (*.png);;Zeichnung (*.svg);;Text (*.txt)</translation>
    </message>
    <message>
        <source>the name has to end in .png, .svg, .pdf or .txt</source>
        <translation>der Name muss auf .png, .svg, .pdf oder .txt enden</translation>
    </message>
    <message>
        <source>Saved.</source>
        <translation>Gespeichert.</translation>
    </message>
    <message>
        <source>Cannot write %1: %2</source>
        <translation>%1 kann nicht geschrieben werden: %2</translation>
    </message>
    <message>
        <source>P&amp;rinter:</source>
        <translation>D&amp;rucker:</translation>
    </message>
</context>
<context>
    <name>PrintoutFiles</name>
    <message>
        <source>the picture would be %1 dots high, more than %2; a PDF, an SVG or a text can hold this printout</source>
        <translation>das Bild wäre %1 Punkte hoch, mehr als %2; ein PDF, ein SVG oder ein Text kann diesen Ausdruck fassen</translation>
    </message>
    <message>
        <source>there is not enough memory for the picture</source>
        <translation>der Speicher reicht für das Bild nicht aus</translation>
    </message>
    <message>
        <source>the picture cannot be made</source>
        <translation>das Bild lässt sich nicht erstellen</translation>
    </message>
    <message>
        <source>Printout</source>
        <translation>Ausdruck</translation>
    </message>
</context>
<context>
    <name>PrintoutView</name>
    <message>
        <source>Printout</source>
        <translation>Ausdruck</translation>
    </message>
</context>
</TS>
