<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de">
<context>
    <name>EditorWindow</name>
    <message>
        <source>Fi&amp;nd:</source>
        <translation>&amp;Suchen:</translation>
    </message>
    <message>
        <source>key, value or words of an explanation</source>
        <translation>Schlüssel, Wert oder Wörter einer Erklärung</translation>
    </message>
    <message>
        <source>Sections</source>
        <translation>Abschnitte</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;New…</source>
        <translation>&amp;Neu …</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>Ö&amp;ffnen …</translation>
    </message>
    <message>
        <source>Open &amp;Recent</source>
        <translation>&amp;Zuletzt geöffnet</translation>
    </message>
    <message>
        <source>R&amp;eload</source>
        <translation>Neu &amp;laden</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Speichern</translation>
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
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Wiederholen</translation>
    </message>
    <message>
        <source>&amp;Undo: %1</source>
        <translation>&amp;Rückgängig: %1</translation>
    </message>
    <message>
        <source>&amp;Redo: %1</source>
        <translation>&amp;Wiederholen: %1</translation>
    </message>
    <message>
        <source>&amp;Edit Value</source>
        <translation>W&amp;ert bearbeiten</translation>
    </message>
    <message>
        <source>Set Back to &amp;Default</source>
        <translation>Auf &amp;Vorgabe zurücksetzen</translation>
    </message>
    <message>
        <source>Copy &amp;Key</source>
        <translation>S&amp;chlüssel kopieren</translation>
    </message>
    <message>
        <source>Add &amp;Setting…</source>
        <translation>Ei&amp;nstellung hinzufügen …</translation>
    </message>
    <message>
        <source>Remove Se&amp;tting</source>
        <translation>Einste&amp;llung entfernen</translation>
    </message>
    <message>
        <source>Add &amp;Printer…</source>
        <translation>&amp;Drucker hinzufügen …</translation>
    </message>
    <message>
        <source>&amp;Copy Settings to…</source>
        <translation>Einstellungen &amp;kopieren nach …</translation>
    </message>
    <message>
        <source>Re&amp;move Section</source>
        <translation>&amp;Abschnitt entfernen</translation>
    </message>
    <message>
        <source>&amp;Find</source>
        <translation>&amp;Suchen</translation>
    </message>
    <message>
        <source>Find &amp;Next</source>
        <translation>Wei&amp;tersuchen</translation>
    </message>
    <message>
        <source>Find Pre&amp;vious</source>
        <translation>Rückwärts s&amp;uchen</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>&amp;Contents</source>
        <translation>&amp;Inhalt</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>Ü&amp;ber</translation>
    </message>
    <message>
        <source>Cannot read %1</source>
        <translation>%1 kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>There is no change to save.</source>
        <translation>Es gibt keine Änderung zu speichern.</translation>
    </message>
    <message>
        <source>%1 was changed by another program. Save over it?</source>
        <translation>%1 wurde von einem anderen Programm geändert. Trotzdem überschreiben?</translation>
    </message>
    <message>
        <source>Something is wrong with the changes. Save all the same?</source>
        <translation>An den Änderungen stimmt etwas nicht. Trotzdem speichern?</translation>
    </message>
    <message>
        <source>Cannot write %1</source>
        <translation>%1 kann nicht geschrieben werden</translation>
    </message>
    <message>
        <source>The changes are still in this window.</source>
        <translation>Die Änderungen sind noch in diesem Fenster.</translation>
    </message>
    <message>
        <source>Saved.</source>
        <translation>Gespeichert.</translation>
    </message>
    <message>
        <source>Saved, but %1.</source>
        <translation>Gespeichert, aber: %1.</translation>
    </message>
    <message>
        <source>The new configuration is not saved. Save it?</source>
        <translation>Die neue Konfiguration ist nicht gespeichert. Speichern?</translation>
    </message>
    <message>
        <source>The changes in %1 are not saved. Save them?</source>
        <translation>Die Änderungen in %1 sind nicht gespeichert. Speichern?</translation>
    </message>
    <message>
        <source>New configuration</source>
        <translation>Neue Konfiguration</translation>
    </message>
    <message>
        <source>Nothing reads this setting.</source>
        <translation>Kein Programm liest diese Einstellung.</translation>
    </message>
    <message>
        <source>This cannot be done</source>
        <translation>Das geht nicht</translation>
    </message>
    <message>
        <source>Set Back %1</source>
        <translation>%1 zurücksetzen</translation>
    </message>
    <message>
        <source>Remove %1</source>
        <translation>%1 entfernen</translation>
    </message>
    <message>
        <source>Add a Setting</source>
        <translation>Einstellung hinzufügen</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Name:</translation>
    </message>
    <message>
        <source>Add %1</source>
        <translation>%1 hinzufügen</translation>
    </message>
    <message>
        <source>Copy Settings</source>
        <translation>Einstellungen kopieren</translation>
    </message>
    <message>
        <source>Copy those of “%1” to:</source>
        <translation>Die von „%1“ kopieren nach:</translation>
    </message>
    <message>
        <source>Copy %1 to %2</source>
        <translation>%1 nach %2 kopieren</translation>
    </message>
    <message>
        <source>Nothing found.</source>
        <translation>Nichts gefunden.</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Über</translation>
    </message>
    <message>
        <source>Tavolux Configuration %1

Edits the configuration of tavolux-printer, which prints the documents of a restaurant.</source>
        <translation>Tavolux-Konfiguration %1

Bearbeitet die Konfiguration von tavolux-printer, das die Belege eines Restaurants druckt.</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>&amp;Hinzufügen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
</context>
<context>
    <name>Findings</name>
    <message>
        <source>; did you mean %1?</source>
        <translation>; meinten Sie %1?</translation>
    </message>
    <message>
        <source>this looks like XML, which --type xml checks; the printing program reads cfg alone</source>
        <translation>das sieht nach XML aus, das --type xml prüft; das Druckprogramm liest nur cfg</translation>
    </message>
    <message>
        <source>the first node is not the root element but a declaration or a comment, so nothing in the file is found</source>
        <translation>der erste Knoten ist nicht das Wurzelelement, sondern eine Deklaration oder ein Kommentar; daher wird nichts in der Datei gefunden</translation>
    </message>
    <message>
        <source>the section %1 is not closed</source>
        <translation>der Abschnitt %1 ist nicht geschlossen</translation>
    </message>
    <message>
        <source>there is no section &quot;tavolux&quot; with settings in it, so nothing is found</source>
        <translation>es gibt keinen Abschnitt &quot;tavolux&quot; mit Einstellungen darin; daher wird nichts gefunden</translation>
    </message>
    <message>
        <source>%1 is passed over; is a semicolon or a brace missing before it?</source>
        <translation>%1 wird übergangen; fehlt davor ein Semikolon oder eine Klammer?</translation>
    </message>
    <message>
        <source>the format has no comments: %1 belongs to no setting and is passed over</source>
        <translation>das Format kennt keine Kommentare: %1 gehört zu keiner Einstellung und wird übergangen</translation>
    </message>
    <message>
        <source>%1 belongs to no setting and is passed over</source>
        <translation>%1 gehört zu keiner Einstellung und wird übergangen</translation>
    </message>
    <message>
        <source>sections nest deeper than %1, so the reading ends here</source>
        <translation>Abschnitte sind tiefer als %1 verschachtelt; daher endet das Lesen hier</translation>
    </message>
    <message>
        <source>no opening brace follows the section %1</source>
        <translation>auf den Abschnitt %1 folgt keine öffnende Klammer</translation>
    </message>
    <message>
        <source>a section without a name is never read</source>
        <translation>ein Abschnitt ohne Namen wird nie gelesen</translation>
    </message>
    <message>
        <source>a closing brace that closes no section ends the reading here</source>
        <translation>eine schließende Klammer, die keinen Abschnitt schließt, beendet das Lesen hier</translation>
    </message>
    <message>
        <source>the section %1 is never read: only the first one, %2, is</source>
        <translation>der Abschnitt %1 wird nie gelesen: nur der erste, %2, wird es</translation>
    </message>
    <message>
        <source>the first section is %1, not &quot;tavolux&quot;, so nothing in the file is found</source>
        <translation>der erste Abschnitt ist %1, nicht &quot;tavolux&quot;; daher wird nichts in der Datei gefunden</translation>
    </message>
    <message>
        <source>%1 is no section of %2 that is ever read%3</source>
        <translation>%1 ist kein Abschnitt von %2, der je gelesen wird%3</translation>
    </message>
    <message>
        <source>the section %1 is given twice, first in line %2; of each setting the first that is not empty counts</source>
        <translation>der Abschnitt %1 steht zweimal da, zuerst in Zeile %2; von jeder Einstellung zählt die erste, die nicht leer ist</translation>
    </message>
    <message>
        <source>%1 is set outside of any section, where it is never found</source>
        <translation>%1 steht außerhalb aller Abschnitte, wo es nie gefunden wird</translation>
    </message>
    <message>
        <source>the value of %1 runs to the end of the file; is a semicolon missing?</source>
        <translation>der Wert von %1 reicht bis zum Ende der Datei; fehlt ein Semikolon?</translation>
    </message>
    <message>
        <source>the value of %1 takes in %2; is a semicolon missing?</source>
        <translation>der Wert von %1 nimmt %2 mit auf; fehlt ein Semikolon?</translation>
    </message>
    <message>
        <source>%1 is no setting of %2 that is ever read%3</source>
        <translation>%1 ist keine Einstellung von %2, die je gelesen wird%3</translation>
    </message>
    <message>
        <source>%1 is given twice, first in line %2; the last one counts</source>
        <translation>%1 steht zweimal da, zuerst in Zeile %2; die letzte Angabe zählt</translation>
    </message>
    <message>
        <source>the format has no comments: %1 is taken for one name</source>
        <translation>das Format kennt keine Kommentare: %1 gilt als ein Name</translation>
    </message>
    <message>
        <source>%1 is taken for one name; is something missing in it?</source>
        <translation>%1 gilt als ein Name; fehlt etwas darin?</translation>
    </message>
    <message>
        <source>this is UTF-8, but the file is read as Latin-1: %1</source>
        <translation>das ist UTF-8, aber die Datei wird als Latin-1 gelesen: %1</translation>
    </message>
    <message>
        <source>characters outside of Latin-1 are read as question marks: %1</source>
        <translation>Zeichen außerhalb von Latin-1 werden als Fragezeichen gelesen: %1</translation>
    </message>
    <message>
        <source>%1 names no model, so it prints plain text</source>
        <translation>%1 nennt kein Modell und druckt daher reinen Text</translation>
    </message>
    <message>
        <source>%1 names no output, so no document comes to it</source>
        <translation>%1 nennt keine Ausgabe; daher kommt kein Dokument dorthin</translation>
    </message>
    <message>
        <source>no document comes to %1: the printers before it have all of its outputs</source>
        <translation>zu %1 kommt kein Dokument: Die Drucker davor haben alle seine Ausgaben</translation>
    </message>
    <message>
        <source>&quot;paperWidth&quot; is %1, more than the %2 columns of the printer %3</source>
        <translation>&quot;paperWidth&quot; ist %1, mehr als die %2 Spalten des Druckers %3</translation>
    </message>
    <message>
        <source>the logo %1 is not printed: %2</source>
        <translation>das Logo %1 wird nicht gedruckt: %2</translation>
    </message>
    <message>
        <source>%1 (comes out as %2)</source>
        <translation>%1 (erscheint als %2)</translation>
    </message>
    <message>
        <source>the labels have characters that no code page of the printer %1 has: %2</source>
        <translation>die Texte haben Zeichen, die keine Codepage des Druckers %1 hat: %2</translation>
    </message>
    <message>
        <source>%1 leaves no room for descriptions: of %2 characters in a line the other columns take %3</source>
        <translation>%1 lässt keinen Platz für Beschreibungen: Von %2 Zeichen in einer Zeile nehmen die anderen Spalten %3</translation>
    </message>
    <message>
        <source>the translation &quot;%1&quot; is not found</source>
        <translation>die Übersetzung &quot;%1&quot; wird nicht gefunden</translation>
    </message>
    <message>
        <source>%1 is %2, not %3</source>
        <translation>%1 ist %2; erwartet wird: %3</translation>
    </message>
    <message>
        <source>%1 is %2, neither &quot;true&quot; nor &quot;false&quot;, so it is off</source>
        <translation>%1 ist %2, weder &quot;true&quot; noch &quot;false&quot;, und daher aus</translation>
    </message>
    <message>
        <source>%1 is %2, no usable whole number, so it counts as 0</source>
        <translation>%1 ist %2, keine brauchbare ganze Zahl, und zählt daher als 0</translation>
    </message>
    <message>
        <source>%1 is %2, a negative number</source>
        <translation>%1 ist %2, eine negative Zahl</translation>
    </message>
    <message>
        <source>%1 is %2, more than any paper holds</source>
        <translation>%1 ist %2, mehr als auf irgendein Papier passt</translation>
    </message>
    <message>
        <source>%1 is %2, but the title %3 has %4 characters, so it pushes its row wider</source>
        <translation>%1 ist %2, aber der Titel %3 hat %4 Zeichen und macht daher seine Zeile breiter</translation>
    </message>
    <message>
        <source>the label %1 has %2 characters, but %3 in its column, so it is cut</source>
        <translation>der Text %1 hat %2 Zeichen, aber %3 in seiner Spalte, und wird daher abgeschnitten</translation>
    </message>
    <message>
        <source>the label %1 has %2 characters, but %3 in its column, so it moves its figure</source>
        <translation>der Text %1 hat %2 Zeichen, aber %3 in seiner Spalte, und verschiebt daher seine Zahl</translation>
    </message>
    <message>
        <source>this is no well-formed XML, so nothing in it is read: %1</source>
        <translation>das ist kein wohlgeformtes XML; daher wird nichts darin gelesen: %1</translation>
    </message>
    <message>
        <source>sections nest deeper than %1, so nothing in the file is read</source>
        <translation>Abschnitte sind tiefer als %1 verschachtelt; daher wird nichts in der Datei gelesen</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>Zeile %1: %2</translation>
    </message>
    <message>
        <source>it does not begin with its root element but with a declaration or a comment, so nothing in it is found</source>
        <translation>sie beginnt nicht mit ihrem Wurzelelement, sondern mit einer Deklaration oder einem Kommentar; daher wird nichts darin gefunden</translation>
    </message>
    <message>
        <source>it is in UTF-16, and only UTF-8 can be changed in place</source>
        <translation>sie ist in UTF-16, und nur UTF-8 kann an Ort und Stelle geändert werden</translation>
    </message>
    <message>
        <source>%1 is no name that could be looked up</source>
        <translation>%1 ist kein Name, der nachgeschlagen werden könnte</translation>
    </message>
    <message>
        <source>the value %1 has characters outside of Latin-1, which would be lost</source>
        <translation>der Wert %1 hat Zeichen außerhalb von Latin-1, die verloren gingen</translation>
    </message>
    <message>
        <source>a value cannot have a semicolon: %1</source>
        <translation>ein Wert kann kein Semikolon enthalten: %1</translation>
    </message>
    <message>
        <source>a value cannot have a double quote: %1</source>
        <translation>ein Wert kann kein Anführungszeichen enthalten: %1</translation>
    </message>
    <message>
        <source>a value cannot have control characters: %1</source>
        <translation>ein Wert kann keine Steuerzeichen enthalten: %1</translation>
    </message>
    <message>
        <source>sections nest %1 deep at most</source>
        <translation>Abschnitte sind höchstens %1 tief verschachtelt</translation>
    </message>
    <message>
        <source>line %1: no opening brace follows the section %2</source>
        <translation>Zeile %1: Auf den Abschnitt %2 folgt keine öffnende Klammer</translation>
    </message>
    <message>
        <source>line %1: the section %2 is not closed</source>
        <translation>Zeile %1: Der Abschnitt %2 ist nicht geschlossen</translation>
    </message>
    <message>
        <source>a file of the kind xml has one root element, and no place beside it</source>
        <translation>eine Datei der Art xml hat ein einziges Wurzelelement und keinen Platz daneben</translation>
    </message>
    <message>
        <source>in a file of the kind xml every setting is an attribute of an element</source>
        <translation>in einer Datei der Art xml ist jede Einstellung ein Attribut eines Elements</translation>
    </message>
    <message>
        <source>the root of the file stays</source>
        <translation>die Wurzel der Datei bleibt</translation>
    </message>
    <message>
        <source>the end of the section %1, from line %2 on, is not plain, so it is not known what would go with it</source>
        <translation>das Ende des Abschnitts %1, ab Zeile %2, ist nicht eindeutig; daher ist nicht bekannt, was mit ihm verschwände</translation>
    </message>
    <message>
        <source>%1 is no key that could be looked up</source>
        <translation>%1 ist kein Schlüssel, der nachgeschlagen werden könnte</translation>
    </message>
    <message>
        <source>the first section is %1, and no other is ever read</source>
        <translation>der erste Abschnitt ist %1, und kein anderer wird je gelesen</translation>
    </message>
    <message>
        <source>the name of a model</source>
        <translation>der Name eines Modells</translation>
    </message>
    <message>
        <source>a list of names and patterns</source>
        <translation>eine Liste von Namen und Mustern</translation>
    </message>
    <message>
        <source>a number from 1 to 255</source>
        <translation>eine Zahl von 1 bis 255</translation>
    </message>
    <message>
        <source>a list of code pages with their numbers</source>
        <translation>eine Liste von Codepages mit ihren Nummern</translation>
    </message>
    <message>
        <source>full, partial or none</source>
        <translation>full, partial oder none</translation>
    </message>
    <message>
        <source>a number from 0 to 255</source>
        <translation>eine Zahl von 0 bis 255</translation>
    </message>
    <message>
        <source>2 or 5</source>
        <translation>2 oder 5</translation>
    </message>
    <message>
        <source>two times from 2 to 510 ms</source>
        <translation>zwei Zeiten von 2 bis 510 ms</translation>
    </message>
    <message>
        <source>a PNG file, or stored: with a number from 1 to 255</source>
        <translation>eine PNG-Datei, oder stored: mit einer Zahl von 1 bis 255</translation>
    </message>
    <message>
        <source>true or false</source>
        <translation>true oder false</translation>
    </message>
</context>
<context>
    <name>FindingsPane</name>
    <message>
        <source>&amp;Findings</source>
        <translation>&amp;Mängel</translation>
    </message>
    <message>
        <source>Findings</source>
        <translation>Mängel</translation>
    </message>
    <message>
        <source>Line %1: %2</source>
        <translation>Zeile %1: %2</translation>
    </message>
    <message>
        <source>Nothing found wrong</source>
        <translation>Keine Mängel gefunden</translation>
    </message>
    <message>
        <source>Found wrong: %1</source>
        <translation>Mängel: %1</translation>
    </message>
</context>
<context>
    <name>HelpWindow</name>
    <message>
        <source>The Configuration</source>
        <translation>Die Konfiguration</translation>
    </message>
</context>
<context>
    <name>MessageBoxes</name>
    <message>
        <source>… and %1 more.</source>
        <translation>… und %1 weitere.</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Speichern</translation>
    </message>
    <message>
        <source>&amp;Do Not Save</source>
        <translation>&amp;Nicht speichern</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Choose a File</source>
        <translation>Datei wählen</translation>
    </message>
    <message>
        <source>Choose a Folder</source>
        <translation>Ordner wählen</translation>
    </message>
    <message>
        <source>Open a Configuration</source>
        <translation>Konfiguration öffnen</translation>
    </message>
    <message>
        <source>Configurations (*.conf *.xml);;All files (*)</source>
        <translation>Konfigurationen (*.conf *.xml);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Save the Configuration</source>
        <translation>Konfiguration speichern</translation>
    </message>
</context>
<context>
    <name>Outline</name>
    <message>
        <source>Outside of any section</source>
        <translation>Außerhalb aller Abschnitte</translation>
    </message>
    <message>
        <source>%1, line %2</source>
        <translation>%1, Zeile %2</translation>
    </message>
    <message>
        <source>%1 (%2 to %3 %4)</source>
        <translation>%1 (%2 bis %3 %4)</translation>
    </message>
</context>
<context>
    <name>PreviewPane</name>
    <message>
        <source>Preview</source>
        <translation>Vorschau</translation>
    </message>
    <message>
        <source>&amp;Preview</source>
        <translation>&amp;Vorschau</translation>
    </message>
    <message>
        <source>Document</source>
        <translation>Dokument</translation>
    </message>
    <message>
        <source>O&amp;pen…</source>
        <translation>Ö&amp;ffnen …</translation>
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
        <source>%1 cannot be read: %2</source>
        <translation>%1 kann nicht gelesen werden: %2</translation>
    </message>
    <message>
        <source>No font of fixed width is installed: the package fonts-dejavu-core has one.</source>
        <translation>Es ist keine Schrift mit fester Breite installiert: Das Paket fonts-dejavu-core hat eine.</translation>
    </message>
</context>
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
    <name>PrinterDialog</name>
    <message>
        <source>Add a Printer</source>
        <translation>Drucker hinzufügen</translation>
    </message>
    <message>
        <source>such as till or kitchen</source>
        <translation>etwa kasse oder kueche</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>&amp;Hinzufügen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Name:</translation>
    </message>
    <message>
        <source>&amp;Model:</source>
        <translation>&amp;Modell:</translation>
    </message>
    <message>
        <source>&amp;Output:</source>
        <translation>A&amp;usgabe:</translation>
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
<context>
    <name>SectionsModel</name>
    <message>
        <source>Documents</source>
        <translation>Dokumente</translation>
    </message>
    <message>
        <source>Printers</source>
        <translation>Drucker</translation>
    </message>
    <message>
        <source>Other sections</source>
        <translation>Andere Abschnitte</translation>
    </message>
</context>
<context>
    <name>Settings</name>
    <message>
        <source>characters</source>
        <translation>Zeichen</translation>
    </message>
    <message>
        <source>lines</source>
        <translation>Zeilen</translation>
    </message>
    <message>
        <source>The width of the column for quantities.</source>
        <translation>Die Breite der Spalte für Mengen.</translation>
    </message>
    <message>
        <source>The width of the column for prices, and for the amounts of a statement of account.</source>
        <translation>Die Breite der Spalte für Preise und für die Beträge eines Kontoauszugs.</translation>
    </message>
    <message>
        <source>The width of the column for totals.</source>
        <translation>Die Breite der Spalte für Summen.</translation>
    </message>
    <message>
        <source>The length of a line; 0 stands for the printer&apos;s own, which is 34 for plain text.</source>
        <translation>Die Länge einer Zeile; 0 steht für die des Druckers, bei reinem Text 34.</translation>
    </message>
    <message>
        <source>The lines of a page, which no document uses.</source>
        <translation>Die Zeilen einer Seite, die kein Dokument verwendet.</translation>
    </message>
    <message>
        <source>A style, which no document uses.</source>
        <translation>Ein Stil, den kein Dokument verwendet.</translation>
    </message>
    <message>
        <source>Empty lines at the top, which the element geometry prints.</source>
        <translation>Leere Zeilen am Anfang, die das Element geometry druckt.</translation>
    </message>
    <message>
        <source>How much of an item&apos;s name a fiscal printer gets; 0 stands for the printer&apos;s own width.</source>
        <translation>Wie viel vom Namen eines Artikels ein Fiskaldrucker bekommt; 0 steht für die Breite des Druckers.</translation>
    </message>
    <message>
        <source>Whether the empty lines at the top are printed.</source>
        <translation>Ob die leeren Zeilen am Anfang gedruckt werden.</translation>
    </message>
    <message>
        <source>Whether the lines of headers are printed; the printer&apos;s name always is.</source>
        <translation>Ob die Kopfzeilen gedruckt werden; der Name des Druckers wird es immer.</translation>
    </message>
    <message>
        <source>Nothing: a logo is printed when the printer&apos;s section names one.</source>
        <translation>Nichts: Ein Logo wird gedruckt, wenn der Abschnitt des Druckers eines nennt.</translation>
    </message>
    <message>
        <source>Whether the company&apos;s block is printed.</source>
        <translation>Ob der Block der Firma gedruckt wird.</translation>
    </message>
    <message>
        <source>Whether the customer&apos;s block has the delivery address.</source>
        <translation>Ob der Block des Kunden die Lieferadresse enthält.</translation>
    </message>
    <message>
        <source>Whether the customer&apos;s block has the billing address.</source>
        <translation>Ob der Block des Kunden die Rechnungsadresse enthält.</translation>
    </message>
    <message>
        <source>Whether the customer&apos;s block has the telephone number.</source>
        <translation>Ob der Block des Kunden die Telefonnummer enthält.</translation>
    </message>
    <message>
        <source>Whether the order&apos;s date is printed.</source>
        <translation>Ob das Datum der Bestellung gedruckt wird.</translation>
    </message>
    <message>
        <source>Whether the order&apos;s time is printed.</source>
        <translation>Ob die Uhrzeit der Bestellung gedruckt wird.</translation>
    </message>
    <message>
        <source>Whether the order&apos;s table is printed.</source>
        <translation>Ob der Tisch der Bestellung gedruckt wird.</translation>
    </message>
    <message>
        <source>Whether the customer&apos;s block is printed.</source>
        <translation>Ob der Block des Kunden gedruckt wird.</translation>
    </message>
    <message>
        <source>Whether the customer&apos;s block has the licence number.</source>
        <translation>Ob der Block des Kunden die Umsatzsteuernummer enthält.</translation>
    </message>
    <message>
        <source>Whether the customer&apos;s block has the fiscal code.</source>
        <translation>Ob der Block des Kunden die Steuernummer enthält.</translation>
    </message>
    <message>
        <source>Whether the order&apos;s credit is printed.</source>
        <translation>Ob das Guthaben der Bestellung gedruckt wird.</translation>
    </message>
    <message>
        <source>Whether the order&apos;s waiter is printed.</source>
        <translation>Ob die Bedienung der Bestellung gedruckt wird.</translation>
    </message>
    <message>
        <source>Whether the order&apos;s note is printed.</source>
        <translation>Ob die Bemerkung der Bestellung gedruckt wird.</translation>
    </message>
    <message>
        <source>Whether the end of a document opens the drawer.</source>
        <translation>Ob das Ende eines Dokuments die Kassenlade öffnet.</translation>
    </message>
    <message>
        <source>The folder of the translations.</source>
        <translation>Der Ordner der Übersetzungen.</translation>
    </message>
    <message>
        <source>The translation to use, put right after the folder; / alone is the one of the user&apos;s locale.</source>
        <translation>Die Übersetzung, gleich hinter den Ordner gesetzt; / allein ist die der Sprache des Benutzers.</translation>
    </message>
    <message>
        <source>The model of the printer, which says all that follows.</source>
        <translation>Das Modell des Druckers, das alles Folgende bestimmt.</translation>
    </message>
    <message>
        <source>The outputs that this printer prints, separated by commas; * and ? stand for any characters and any one.</source>
        <translation>Die Ausgaben, die dieser Drucker druckt, durch Kommas getrennt; * und ? stehen für beliebige Zeichen und für ein beliebiges.</translation>
    </message>
    <message>
        <source>The length of a line of normal type.</source>
        <translation>Die Länge einer Zeile in normaler Schrift.</translation>
    </message>
    <message>
        <source>The code pages to use, with the printer&apos;s numbers for them, the best first.</source>
        <translation>Die zu verwendenden Codepages mit ihren Nummern beim Drucker, die beste zuerst.</translation>
    </message>
    <message>
        <source>How the paper is cut at the end of a document.</source>
        <translation>Wie das Papier am Ende eines Dokuments geschnitten wird.</translation>
    </message>
    <message>
        <source>Empty lines before the cut or the tear bar.</source>
        <translation>Leere Zeilen vor dem Schnitt oder der Abreißkante.</translation>
    </message>
    <message>
        <source>The pin of the drawer&apos;s connector that gets the pulse.</source>
        <translation>Der Stift am Anschluss der Kassenlade, der den Impuls bekommt.</translation>
    </message>
    <message>
        <source>How long the drawer&apos;s pulse is on, and off at least, in milliseconds from 2 to 510.</source>
        <translation>Wie lange der Impuls der Kassenlade an und mindestens aus ist, in Millisekunden von 2 bis 510.</translation>
    </message>
    <message>
        <source>The picture that the element logo prints: a PNG file, or stored:1 for one kept in the printer.</source>
        <translation>Das Bild, das das Element logo druckt: eine PNG-Datei, oder stored:1 für eines im Drucker.</translation>
    </message>
    <message>
        <source>Whether invoices are printed twice, for the guest and for the books.</source>
        <translation>Ob Rechnungen zweimal gedruckt werden, für den Gast und für die Bücher.</translation>
    </message>
    <message>
        <source>Kitchen tickets</source>
        <translation>Küchenbons</translation>
    </message>
    <message>
        <source>Orders with prices</source>
        <translation>Bestellungen mit Preisen</translation>
    </message>
    <message>
        <source>Receipts</source>
        <translation>Quittungen</translation>
    </message>
    <message>
        <source>Invoices</source>
        <translation>Rechnungen</translation>
    </message>
    <message>
        <source>Fiscal documents</source>
        <translation>Fiskalbelege</translation>
    </message>
    <message>
        <source>Delivery orders</source>
        <translation>Lieferungen</translation>
    </message>
    <message>
        <source>Reports and statements of account</source>
        <translation>Berichte und Kontoauszüge</translation>
    </message>
    <message>
        <source>Sold items</source>
        <translation>Verkaufte Artikel</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Sprache</translation>
    </message>
    <message>
        <source>Whether a printer at a device is asked whether it is ready, and whether it has printed.</source>
        <translation>Ob ein Drucker an einem Gerät gefragt wird, ob er bereit ist und ob er gedruckt hat.</translation>
    </message>
</context>
<context>
    <name>SettingsModel</name>
    <message>
        <source>%1 would be lost: the programs read the characters of Western Europe only.</source>
        <translation>%1 ginge verloren: Die Programme lesen nur die Zeichen Westeuropas.</translation>
    </message>
    <message>
        <source>A value cannot have the character %1, which would end it.</source>
        <translation>Ein Wert kann das Zeichen %1 nicht enthalten, das ihn beenden würde.</translation>
    </message>
    <message>
        <source>Setting</source>
        <translation>Einstellung</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>Change %1</source>
        <translation>%1 ändern</translation>
    </message>
</context>
<context>
    <name>StarterDialog</name>
    <message>
        <source>New Configuration</source>
        <translation>Neue Konfiguration</translation>
    </message>
    <message>
        <source>There is no configuration %1 yet.</source>
        <translation>Es gibt noch keine Konfiguration %1.</translation>
    </message>
    <message>
        <source>This makes one to start from: every setting of every document, with values for your paper.</source>
        <translation>Hier entsteht eine für den Anfang: jede Einstellung jedes Dokuments, mit Werten für Ihr Papier.</translation>
    </message>
    <message>
        <source>none, or one of plain text</source>
        <translation>keiner oder einer für reinen Text</translation>
    </message>
    <message>
        <source>that of the person at the machine</source>
        <translation>die der Person am Rechner</translation>
    </message>
    <message>
        <source>&amp;Create</source>
        <translation>&amp;Anlegen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Receipt &amp;printer:</source>
        <translation>&amp;Bondrucker:</translation>
    </message>
    <message>
        <source>&amp;Output:</source>
        <translation>A&amp;usgabe:</translation>
    </message>
    <message>
        <source>Characters in a &amp;line:</source>
        <translation>&amp;Zeichen in einer Zeile:</translation>
    </message>
    <message>
        <source>Language of the &amp;labels:</source>
        <translation>S&amp;prache der Texte:</translation>
    </message>
</context>
</TS>
