<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it">
<context>
    <name>EditorWindow</name>
    <message>
        <source>Fi&amp;nd:</source>
        <translation>Ce&amp;rca:</translation>
    </message>
    <message>
        <source>key, value or words of an explanation</source>
        <translation>chiave, valore o parole di una spiegazione</translation>
    </message>
    <message>
        <source>Sections</source>
        <translation>Sezioni</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Impostazioni</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;File</translation>
    </message>
    <message>
        <source>&amp;New…</source>
        <translation>&amp;Nuovo…</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>&amp;Apri…</translation>
    </message>
    <message>
        <source>Open &amp;Recent</source>
        <translation>Apri &amp;recenti</translation>
    </message>
    <message>
        <source>R&amp;eload</source>
        <translation>Ri&amp;leggi</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Salva</translation>
    </message>
    <message>
        <source>Save &amp;As…</source>
        <translation>Salva &amp;con nome…</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Esci</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Modifica</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Annulla</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Ripeti</translation>
    </message>
    <message>
        <source>&amp;Undo: %1</source>
        <translation>&amp;Annulla: %1</translation>
    </message>
    <message>
        <source>&amp;Redo: %1</source>
        <translation>&amp;Ripeti: %1</translation>
    </message>
    <message>
        <source>&amp;Edit Value</source>
        <translation>&amp;Modifica il valore</translation>
    </message>
    <message>
        <source>Set Back to &amp;Default</source>
        <translation>Riporta al valore pre&amp;definito</translation>
    </message>
    <message>
        <source>Copy &amp;Key</source>
        <translation>Copia la c&amp;hiave</translation>
    </message>
    <message>
        <source>Add &amp;Setting…</source>
        <translation>A&amp;ggiungi un’impostazione…</translation>
    </message>
    <message>
        <source>Remove Se&amp;tting</source>
        <translation>&amp;Togli l’impostazione</translation>
    </message>
    <message>
        <source>Add &amp;Printer…</source>
        <translation>Aggiungi una stam&amp;pante…</translation>
    </message>
    <message>
        <source>&amp;Copy Settings to…</source>
        <translation>&amp;Copia le impostazioni in…</translation>
    </message>
    <message>
        <source>Re&amp;move Section</source>
        <translation>Togli la &amp;sezione</translation>
    </message>
    <message>
        <source>&amp;Find</source>
        <translation>C&amp;erca</translation>
    </message>
    <message>
        <source>Find &amp;Next</source>
        <translation>Cerca il successi&amp;vo</translation>
    </message>
    <message>
        <source>Find Pre&amp;vious</source>
        <translation>Cerca il precede&amp;nte</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Visualizza</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Aiuto</translation>
    </message>
    <message>
        <source>&amp;Contents</source>
        <translation>&amp;Contenuto</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>&amp;Informazioni</translation>
    </message>
    <message>
        <source>Cannot read %1</source>
        <translation>Impossibile leggere %1</translation>
    </message>
    <message>
        <source>There is no change to save.</source>
        <translation>Non c’è nessuna modifica da salvare.</translation>
    </message>
    <message>
        <source>%1 was changed by another program. Save over it?</source>
        <translation>%1 è stato modificato da un altro programma. Sovrascriverlo?</translation>
    </message>
    <message>
        <source>Something is wrong with the changes. Save all the same?</source>
        <translation>C’è qualcosa che non va nelle modifiche. Salvare lo stesso?</translation>
    </message>
    <message>
        <source>Cannot write %1</source>
        <translation>Impossibile scrivere %1</translation>
    </message>
    <message>
        <source>The changes are still in this window.</source>
        <translation>Le modifiche sono ancora in questa finestra.</translation>
    </message>
    <message>
        <source>Saved.</source>
        <translation>Salvato.</translation>
    </message>
    <message>
        <source>Saved, but %1.</source>
        <translation>Salvato, ma: %1.</translation>
    </message>
    <message>
        <source>The new configuration is not saved. Save it?</source>
        <translation>La nuova configurazione non è salvata. Salvarla?</translation>
    </message>
    <message>
        <source>The changes in %1 are not saved. Save them?</source>
        <translation>Le modifiche in %1 non sono salvate. Salvarle?</translation>
    </message>
    <message>
        <source>New configuration</source>
        <translation>Nuova configurazione</translation>
    </message>
    <message>
        <source>Nothing reads this setting.</source>
        <translation>Nessun programma legge questa impostazione.</translation>
    </message>
    <message>
        <source>This cannot be done</source>
        <translation>Questo non è possibile</translation>
    </message>
    <message>
        <source>Set Back %1</source>
        <translation>ripristina %1</translation>
    </message>
    <message>
        <source>Remove %1</source>
        <translation>togli %1</translation>
    </message>
    <message>
        <source>Add a Setting</source>
        <translation>Aggiungi un’impostazione</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Nome:</translation>
    </message>
    <message>
        <source>Add %1</source>
        <translation>aggiungi %1</translation>
    </message>
    <message>
        <source>Copy Settings</source>
        <translation>Copia le impostazioni</translation>
    </message>
    <message>
        <source>Copy those of “%1” to:</source>
        <translation>Copia quelle di «%1» in:</translation>
    </message>
    <message>
        <source>Copy %1 to %2</source>
        <translation>copia %1 in %2</translation>
    </message>
    <message>
        <source>Nothing found.</source>
        <translation>Non è stato trovato nulla.</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 di %2</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Informazioni</translation>
    </message>
    <message>
        <source>Tavolux Configuration %1

Edits the configuration of tavolux-printer, which prints the documents of a restaurant.</source>
        <translation>Configurazione di Tavolux %1

Modifica la configurazione di tavolux-printer, che stampa i documenti di un ristorante.</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>&amp;Aggiungi</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copia</translation>
    </message>
</context>
<context>
    <name>Findings</name>
    <message>
        <source>; did you mean %1?</source>
        <translation>; si intendeva %1?</translation>
    </message>
    <message>
        <source>this looks like XML, which --type xml checks; the printing program reads cfg alone</source>
        <translation>questo sembra XML, che si controlla con --type xml; il programma di stampa legge solo cfg</translation>
    </message>
    <message>
        <source>the first node is not the root element but a declaration or a comment, so nothing in the file is found</source>
        <translation>il primo nodo non è l’elemento radice ma una dichiarazione o un commento, quindi nel file non si trova niente</translation>
    </message>
    <message>
        <source>the section %1 is not closed</source>
        <translation>la sezione %1 non è chiusa</translation>
    </message>
    <message>
        <source>there is no section &quot;tavolux&quot; with settings in it, so nothing is found</source>
        <translation>non c’è una sezione &quot;tavolux&quot; con impostazioni, quindi non si trova niente</translation>
    </message>
    <message>
        <source>%1 is passed over; is a semicolon or a brace missing before it?</source>
        <translation>%1 viene ignorato; manca prima un punto e virgola o una parentesi graffa?</translation>
    </message>
    <message>
        <source>the format has no comments: %1 belongs to no setting and is passed over</source>
        <translation>il formato non ha commenti: %1 non appartiene a nessuna impostazione e viene ignorato</translation>
    </message>
    <message>
        <source>%1 belongs to no setting and is passed over</source>
        <translation>%1 non appartiene a nessuna impostazione e viene ignorato</translation>
    </message>
    <message>
        <source>sections nest deeper than %1, so the reading ends here</source>
        <translation>ci sono sezioni annidate oltre %1 livelli, quindi la lettura finisce qui</translation>
    </message>
    <message>
        <source>no opening brace follows the section %1</source>
        <translation>la sezione %1 non è seguita da una parentesi graffa aperta</translation>
    </message>
    <message>
        <source>a section without a name is never read</source>
        <translation>una sezione senza nome non viene mai letta</translation>
    </message>
    <message>
        <source>a closing brace that closes no section ends the reading here</source>
        <translation>una parentesi graffa chiusa che non chiude nessuna sezione fa finire qui la lettura</translation>
    </message>
    <message>
        <source>the section %1 is never read: only the first one, %2, is</source>
        <translation>la sezione %1 non viene mai letta: lo è solo la prima, %2</translation>
    </message>
    <message>
        <source>the first section is %1, not &quot;tavolux&quot;, so nothing in the file is found</source>
        <translation>la prima sezione è %1, non &quot;tavolux&quot;, quindi nel file non si trova niente</translation>
    </message>
    <message>
        <source>%1 is no section of %2 that is ever read%3</source>
        <translation>%1 non è una sezione di %2 che venga letta%3</translation>
    </message>
    <message>
        <source>the section %1 is given twice, first in line %2; of each setting the first that is not empty counts</source>
        <translation>la sezione %1 compare due volte, prima alla riga %2; di ogni impostazione vale la prima che non è vuota</translation>
    </message>
    <message>
        <source>%1 is set outside of any section, where it is never found</source>
        <translation>%1 è fuori da ogni sezione, dove non si trova mai</translation>
    </message>
    <message>
        <source>the value of %1 runs to the end of the file; is a semicolon missing?</source>
        <translation>il valore di %1 arriva fino alla fine del file; manca un punto e virgola?</translation>
    </message>
    <message>
        <source>the value of %1 takes in %2; is a semicolon missing?</source>
        <translation>il valore di %1 comprende %2; manca un punto e virgola?</translation>
    </message>
    <message>
        <source>%1 is no setting of %2 that is ever read%3</source>
        <translation>%1 non è un’impostazione di %2 che venga letta%3</translation>
    </message>
    <message>
        <source>%1 is given twice, first in line %2; the last one counts</source>
        <translation>%1 compare due volte, prima alla riga %2; vale l’ultima</translation>
    </message>
    <message>
        <source>the format has no comments: %1 is taken for one name</source>
        <translation>il formato non ha commenti: %1 viene preso per un solo nome</translation>
    </message>
    <message>
        <source>%1 is taken for one name; is something missing in it?</source>
        <translation>%1 viene preso per un solo nome; manca qualcosa?</translation>
    </message>
    <message>
        <source>this is UTF-8, but the file is read as Latin-1: %1</source>
        <translation>questo è UTF-8, ma il file viene letto come Latin-1: %1</translation>
    </message>
    <message>
        <source>characters outside of Latin-1 are read as question marks: %1</source>
        <translation>i caratteri fuori da Latin-1 vengono letti come punti interrogativi: %1</translation>
    </message>
    <message>
        <source>%1 names no model, so it prints plain text</source>
        <translation>%1 non indica un modello, quindi stampa testo puro</translation>
    </message>
    <message>
        <source>%1 names no output, so no document comes to it</source>
        <translation>%1 non indica un’uscita, quindi non vi arriva nessun documento</translation>
    </message>
    <message>
        <source>no document comes to %1: the printers before it have all of its outputs</source>
        <translation>a %1 non arriva nessun documento: le stampanti precedenti hanno tutte le sue uscite</translation>
    </message>
    <message>
        <source>&quot;paperWidth&quot; is %1, more than the %2 columns of the printer %3</source>
        <translation>&quot;paperWidth&quot; è %1, più delle %2 colonne della stampante %3</translation>
    </message>
    <message>
        <source>the logo %1 is not printed: %2</source>
        <translation>il logo %1 non si stampa: %2</translation>
    </message>
    <message>
        <source>%1 (comes out as %2)</source>
        <translation>%1 (esce come %2)</translation>
    </message>
    <message>
        <source>the labels have characters that no code page of the printer %1 has: %2</source>
        <translation>le etichette hanno caratteri che nessuna code page della stampante %1 ha: %2</translation>
    </message>
    <message>
        <source>%1 leaves no room for descriptions: of %2 characters in a line the other columns take %3</source>
        <translation>%1 non lascia spazio alle descrizioni: di %2 caratteri per riga le altre colonne ne prendono %3</translation>
    </message>
    <message>
        <source>the translation &quot;%1&quot; is not found</source>
        <translation>la traduzione &quot;%1&quot; non si trova</translation>
    </message>
    <message>
        <source>%1 is %2, not %3</source>
        <translation>%1 è %2; valore atteso: %3</translation>
    </message>
    <message>
        <source>%1 is %2, neither &quot;true&quot; nor &quot;false&quot;, so it is off</source>
        <translation>%1 è %2, né &quot;true&quot; né &quot;false&quot;, quindi è disattivato</translation>
    </message>
    <message>
        <source>%1 is %2, no usable whole number, so it counts as 0</source>
        <translation>%1 è %2, che non è un numero intero utilizzabile, quindi conta come 0</translation>
    </message>
    <message>
        <source>%1 is %2, a negative number</source>
        <translation>%1 è %2, un numero negativo</translation>
    </message>
    <message>
        <source>%1 is %2, more than any paper holds</source>
        <translation>%1 è %2, più di quanto stia su qualsiasi carta</translation>
    </message>
    <message>
        <source>%1 is %2, but the title %3 has %4 characters, so it pushes its row wider</source>
        <translation>%1 è %2, ma il titolo %3 ha %4 caratteri, quindi allarga la sua riga</translation>
    </message>
    <message>
        <source>the label %1 has %2 characters, but %3 in its column, so it is cut</source>
        <translation>l’etichetta %1 ha %2 caratteri, ma %3 nella sua colonna, quindi viene tagliata</translation>
    </message>
    <message>
        <source>the label %1 has %2 characters, but %3 in its column, so it moves its figure</source>
        <translation>l’etichetta %1 ha %2 caratteri, ma %3 nella sua colonna, quindi sposta la sua cifra</translation>
    </message>
    <message>
        <source>this is no well-formed XML, so nothing in it is read: %1</source>
        <translation>questo non è XML ben formato, quindi non se ne legge niente: %1</translation>
    </message>
    <message>
        <source>sections nest deeper than %1, so nothing in the file is read</source>
        <translation>ci sono sezioni annidate oltre %1 livelli, quindi del file non si legge niente</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>riga %1: %2</translation>
    </message>
    <message>
        <source>it does not begin with its root element but with a declaration or a comment, so nothing in it is found</source>
        <translation>non comincia con il suo elemento radice ma con una dichiarazione o un commento, quindi non vi si trova niente</translation>
    </message>
    <message>
        <source>it is in UTF-16, and only UTF-8 can be changed in place</source>
        <translation>è in UTF-16, e solo UTF-8 si può cambiare sul posto</translation>
    </message>
    <message>
        <source>%1 is no name that could be looked up</source>
        <translation>%1 non è un nome che si possa trovare</translation>
    </message>
    <message>
        <source>the value %1 has characters outside of Latin-1, which would be lost</source>
        <translation>il valore %1 ha caratteri fuori da Latin-1, che andrebbero persi</translation>
    </message>
    <message>
        <source>a value cannot have a semicolon: %1</source>
        <translation>un valore non può avere un punto e virgola: %1</translation>
    </message>
    <message>
        <source>a value cannot have a double quote: %1</source>
        <translation>un valore non può avere virgolette doppie: %1</translation>
    </message>
    <message>
        <source>a value cannot have control characters: %1</source>
        <translation>un valore non può avere caratteri di controllo: %1</translation>
    </message>
    <message>
        <source>sections nest %1 deep at most</source>
        <translation>le sezioni si annidano fino a %1 livelli al massimo</translation>
    </message>
    <message>
        <source>line %1: no opening brace follows the section %2</source>
        <translation>riga %1: la sezione %2 non è seguita da una parentesi graffa aperta</translation>
    </message>
    <message>
        <source>line %1: the section %2 is not closed</source>
        <translation>riga %1: la sezione %2 non è chiusa</translation>
    </message>
    <message>
        <source>a file of the kind xml has one root element, and no place beside it</source>
        <translation>un file di tipo xml ha un solo elemento radice, e nessun posto accanto</translation>
    </message>
    <message>
        <source>in a file of the kind xml every setting is an attribute of an element</source>
        <translation>in un file di tipo xml ogni impostazione è un attributo di un elemento</translation>
    </message>
    <message>
        <source>the root of the file stays</source>
        <translation>la radice del file resta</translation>
    </message>
    <message>
        <source>the end of the section %1, from line %2 on, is not plain, so it is not known what would go with it</source>
        <translation>la fine della sezione %1, dalla riga %2 in poi, non è chiara, quindi non si sa che cosa andrebbe via con essa</translation>
    </message>
    <message>
        <source>%1 is no key that could be looked up</source>
        <translation>%1 non è una chiave che si possa trovare</translation>
    </message>
    <message>
        <source>the first section is %1, and no other is ever read</source>
        <translation>la prima sezione è %1, e nessun’altra viene mai letta</translation>
    </message>
    <message>
        <source>the name of a model</source>
        <translation>il nome di un modello</translation>
    </message>
    <message>
        <source>a list of names and patterns</source>
        <translation>un elenco di nomi e modelli di nome</translation>
    </message>
    <message>
        <source>a number from 1 to 255</source>
        <translation>un numero da 1 a 255</translation>
    </message>
    <message>
        <source>a list of code pages with their numbers</source>
        <translation>un elenco di code page con i loro numeri</translation>
    </message>
    <message>
        <source>full, partial or none</source>
        <translation>full, partial o none</translation>
    </message>
    <message>
        <source>a number from 0 to 255</source>
        <translation>un numero da 0 a 255</translation>
    </message>
    <message>
        <source>2 or 5</source>
        <translation>2 o 5</translation>
    </message>
    <message>
        <source>two times from 2 to 510 ms</source>
        <translation>due tempi da 2 a 510 ms</translation>
    </message>
    <message>
        <source>a PNG file, or stored: with a number from 1 to 255</source>
        <translation>un file PNG, o stored: con un numero da 1 a 255</translation>
    </message>
    <message>
        <source>true or false</source>
        <translation>true o false</translation>
    </message>
</context>
<context>
    <name>FindingsPane</name>
    <message>
        <source>&amp;Findings</source>
        <translation>&amp;Difetti</translation>
    </message>
    <message>
        <source>Findings</source>
        <translation>Difetti</translation>
    </message>
    <message>
        <source>Line %1: %2</source>
        <translation>Riga %1: %2</translation>
    </message>
    <message>
        <source>Nothing found wrong</source>
        <translation>Nessun difetto trovato</translation>
    </message>
    <message>
        <source>Found wrong: %1</source>
        <translation>Difetti: %1</translation>
    </message>
</context>
<context>
    <name>HelpWindow</name>
    <message>
        <source>The Configuration</source>
        <translation>La configurazione</translation>
    </message>
</context>
<context>
    <name>MessageBoxes</name>
    <message>
        <source>… and %1 more.</source>
        <translation>… e altri %1.</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Salva</translation>
    </message>
    <message>
        <source>&amp;Do Not Save</source>
        <translation>&amp;Non salvare</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Choose a File</source>
        <translation>Scegli un file</translation>
    </message>
    <message>
        <source>Choose a Folder</source>
        <translation>Scegli una cartella</translation>
    </message>
    <message>
        <source>Open a Configuration</source>
        <translation>Apri una configurazione</translation>
    </message>
    <message>
        <source>Configurations (*.conf *.xml);;All files (*)</source>
        <translation>Configurazioni (*.conf *.xml);;Tutti i file (*)</translation>
    </message>
    <message>
        <source>Save the Configuration</source>
        <translation>Salva la configurazione</translation>
    </message>
</context>
<context>
    <name>Outline</name>
    <message>
        <source>Outside of any section</source>
        <translation>Fuori da ogni sezione</translation>
    </message>
    <message>
        <source>%1, line %2</source>
        <translation>%1, riga %2</translation>
    </message>
    <message>
        <source>%1 (%2 to %3 %4)</source>
        <translation>%1 (da %2 a %3 %4)</translation>
    </message>
</context>
<context>
    <name>PreviewPane</name>
    <message>
        <source>Preview</source>
        <translation>Anteprima</translation>
    </message>
    <message>
        <source>&amp;Preview</source>
        <translation>&amp;Anteprima</translation>
    </message>
    <message>
        <source>Document</source>
        <translation>Documento</translation>
    </message>
    <message>
        <source>O&amp;pen…</source>
        <translation>A&amp;pri…</translation>
    </message>
    <message>
        <source>Open a Document</source>
        <translation>Apri un documento</translation>
    </message>
    <message>
        <source>Documents (*.xml *.tvx);;All files (*)</source>
        <translation>Documenti (*.xml *.tvx);;Tutti i file (*)</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>Impossibile leggere %1: %2</translation>
    </message>
    <message>
        <source>No font of fixed width is installed: the package fonts-dejavu-core has one.</source>
        <translation>Non è installato nessun carattere a larghezza fissa: il pacchetto fonts-dejavu-core ne ha uno.</translation>
    </message>
</context>
<context>
    <name>PreviewRemarks</name>
    <message>
        <source>Incomplete: line %1, column %2: %3</source>
        <translation>Incompleto: riga %1, colonna %2: %3</translation>
    </message>
    <message>
        <source>Only the first %1 of %2 lines are shown.</source>
        <translation>Sono mostrate solo le prime %1 righe su %2.</translation>
    </message>
    <message>
        <source>The logo is not printed: %1</source>
        <translation>Il logo non viene stampato: %1</translation>
    </message>
</context>
<context>
    <name>PreviewWindow</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;File</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>&amp;Apri…</translation>
    </message>
    <message>
        <source>Save &amp;As…</source>
        <translation>&amp;Salva con nome…</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Esci</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Visualizza</translation>
    </message>
    <message>
        <source>Zoom &amp;In</source>
        <translation>&amp;Ingrandisci</translation>
    </message>
    <message>
        <source>Zoom &amp;Out</source>
        <translation>&amp;Riduci</translation>
    </message>
    <message>
        <source>&amp;Dot by Dot</source>
        <translation>&amp;Punto per punto</translation>
    </message>
    <message>
        <source>Fit &amp;Width</source>
        <translation>Adatta alla &amp;larghezza</translation>
    </message>
    <message>
        <source>Choices</source>
        <translation>Scelte</translation>
    </message>
    <message>
        <source>&amp;Language:</source>
        <translation>&amp;Lingua:</translation>
    </message>
    <message>
        <source>as configured</source>
        <translation>come configurato</translation>
    </message>
    <message>
        <source>&amp;Paper:</source>
        <translation>Car&amp;ta:</translation>
    </message>
    <message>
        <source>%1 columns</source>
        <translation>%1 colonne</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>Impossibile leggere %1: %2</translation>
    </message>
    <message>
        <source>There is no configuration %1.</source>
        <translation>La configurazione %1 non esiste.</translation>
    </message>
    <message>
        <source>Columns: %1</source>
        <translation>Colonne: %1</translation>
    </message>
    <message>
        <source>Lines: %1</source>
        <translation>Righe: %1</translation>
    </message>
    <message>
        <source>Zoom: %1 %</source>
        <translation>Zoom: %1 %</translation>
    </message>
    <message>
        <source>to be printed twice</source>
        <translation>da stampare due volte</translation>
    </message>
    <message>
        <source>Open a Document</source>
        <translation>Apri un documento</translation>
    </message>
    <message>
        <source>Documents (*.xml *.tvx);;All files (*)</source>
        <translation>Documenti (*.xml *.tvx);;Tutti i file (*)</translation>
    </message>
    <message>
        <source>Save the Printout</source>
        <translation>Salva la stampa</translation>
    </message>
    <message>
        <source>PDF (*.pdf);;Picture (*.png);;Drawing (*.svg);;Text (*.txt)</source>
        <translation>PDF (*.pdf);;Immagine (*.png);;Disegno (*.svg);;Testo (*.txt)</translation>
    </message>
    <message>
        <source>the name has to end in .png, .svg, .pdf or .txt</source>
        <translation>il nome deve terminare con .png, .svg, .pdf o .txt</translation>
    </message>
    <message>
        <source>Saved.</source>
        <translation>Salvato.</translation>
    </message>
    <message>
        <source>Cannot write %1: %2</source>
        <translation>Impossibile scrivere %1: %2</translation>
    </message>
    <message>
        <source>P&amp;rinter:</source>
        <translation>Stampa&amp;nte:</translation>
    </message>
</context>
<context>
    <name>PrinterDialog</name>
    <message>
        <source>Add a Printer</source>
        <translation>Aggiungi una stampante</translation>
    </message>
    <message>
        <source>such as till or kitchen</source>
        <translation>per esempio cassa o cucina</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>&amp;Aggiungi</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Nome:</translation>
    </message>
    <message>
        <source>&amp;Model:</source>
        <translation>&amp;Modello:</translation>
    </message>
    <message>
        <source>&amp;Output:</source>
        <translation>&amp;Uscita:</translation>
    </message>
</context>
<context>
    <name>PrintoutFiles</name>
    <message>
        <source>the picture would be %1 dots high, more than %2; a PDF, an SVG or a text can hold this printout</source>
        <translation>l’immagine sarebbe alta %1 punti, più di %2; un PDF, un SVG o un testo può contenere questa stampa</translation>
    </message>
    <message>
        <source>there is not enough memory for the picture</source>
        <translation>la memoria non basta per l’immagine</translation>
    </message>
    <message>
        <source>the picture cannot be made</source>
        <translation>impossibile creare l’immagine</translation>
    </message>
    <message>
        <source>Printout</source>
        <translation>Stampa</translation>
    </message>
</context>
<context>
    <name>PrintoutView</name>
    <message>
        <source>Printout</source>
        <translation>Stampa</translation>
    </message>
</context>
<context>
    <name>SectionsModel</name>
    <message>
        <source>Documents</source>
        <translation>Documenti</translation>
    </message>
    <message>
        <source>Printers</source>
        <translation>Stampanti</translation>
    </message>
    <message>
        <source>Other sections</source>
        <translation>Altre sezioni</translation>
    </message>
</context>
<context>
    <name>Settings</name>
    <message>
        <source>characters</source>
        <translation>caratteri</translation>
    </message>
    <message>
        <source>lines</source>
        <translation>righe</translation>
    </message>
    <message>
        <source>The width of the column for quantities.</source>
        <translation>La larghezza della colonna delle quantità.</translation>
    </message>
    <message>
        <source>The width of the column for prices, and for the amounts of a statement of account.</source>
        <translation>La larghezza della colonna dei prezzi e degli importi di un estratto conto.</translation>
    </message>
    <message>
        <source>The width of the column for totals.</source>
        <translation>La larghezza della colonna dei totali.</translation>
    </message>
    <message>
        <source>The length of a line; 0 stands for the printer&apos;s own, which is 34 for plain text.</source>
        <translation>La lunghezza di una riga; 0 sta per quella della stampante, che per il testo puro è 34.</translation>
    </message>
    <message>
        <source>The lines of a page, which no document uses.</source>
        <translation>Le righe di una pagina, che nessun documento usa.</translation>
    </message>
    <message>
        <source>A style, which no document uses.</source>
        <translation>Uno stile, che nessun documento usa.</translation>
    </message>
    <message>
        <source>Empty lines at the top, which the element geometry prints.</source>
        <translation>Righe vuote in alto, che l’elemento geometry stampa.</translation>
    </message>
    <message>
        <source>How much of an item&apos;s name a fiscal printer gets; 0 stands for the printer&apos;s own width.</source>
        <translation>Quanto del nome di un articolo riceve una stampante fiscale; 0 sta per la larghezza della stampante.</translation>
    </message>
    <message>
        <source>Whether the empty lines at the top are printed.</source>
        <translation>Se si stampano le righe vuote in alto.</translation>
    </message>
    <message>
        <source>Whether the lines of headers are printed; the printer&apos;s name always is.</source>
        <translation>Se si stampano le righe di intestazione; il nome della stampante sempre.</translation>
    </message>
    <message>
        <source>Nothing: a logo is printed when the printer&apos;s section names one.</source>
        <translation>Niente: un logo si stampa quando la sezione della stampante ne indica uno.</translation>
    </message>
    <message>
        <source>Whether the company&apos;s block is printed.</source>
        <translation>Se si stampa il blocco della ditta.</translation>
    </message>
    <message>
        <source>Whether the customer&apos;s block has the delivery address.</source>
        <translation>Se il blocco del cliente ha l’indirizzo di consegna.</translation>
    </message>
    <message>
        <source>Whether the customer&apos;s block has the billing address.</source>
        <translation>Se il blocco del cliente ha l’indirizzo di fatturazione.</translation>
    </message>
    <message>
        <source>Whether the customer&apos;s block has the telephone number.</source>
        <translation>Se il blocco del cliente ha il numero di telefono.</translation>
    </message>
    <message>
        <source>Whether the order&apos;s date is printed.</source>
        <translation>Se si stampa la data dell’ordine.</translation>
    </message>
    <message>
        <source>Whether the order&apos;s time is printed.</source>
        <translation>Se si stampa l’ora dell’ordine.</translation>
    </message>
    <message>
        <source>Whether the order&apos;s table is printed.</source>
        <translation>Se si stampa il tavolo dell’ordine.</translation>
    </message>
    <message>
        <source>Whether the customer&apos;s block is printed.</source>
        <translation>Se si stampa il blocco del cliente.</translation>
    </message>
    <message>
        <source>Whether the customer&apos;s block has the licence number.</source>
        <translation>Se il blocco del cliente ha la partita IVA.</translation>
    </message>
    <message>
        <source>Whether the customer&apos;s block has the fiscal code.</source>
        <translation>Se il blocco del cliente ha il codice fiscale.</translation>
    </message>
    <message>
        <source>Whether the order&apos;s credit is printed.</source>
        <translation>Se si stampa il credito dell’ordine.</translation>
    </message>
    <message>
        <source>Whether the order&apos;s waiter is printed.</source>
        <translation>Se si stampa il cameriere dell’ordine.</translation>
    </message>
    <message>
        <source>Whether the order&apos;s note is printed.</source>
        <translation>Se si stampa la nota dell’ordine.</translation>
    </message>
    <message>
        <source>Whether the end of a document opens the drawer.</source>
        <translation>Se la fine di un documento apre il cassetto.</translation>
    </message>
    <message>
        <source>The folder of the translations.</source>
        <translation>La cartella delle traduzioni.</translation>
    </message>
    <message>
        <source>The translation to use, put right after the folder; / alone is the one of the user&apos;s locale.</source>
        <translation>La traduzione, messa subito dopo la cartella; / da sola è quella della lingua dell’utente.</translation>
    </message>
    <message>
        <source>The model of the printer, which says all that follows.</source>
        <translation>Il modello della stampante, che dice tutto ciò che segue.</translation>
    </message>
    <message>
        <source>The outputs that this printer prints, separated by commas; * and ? stand for any characters and any one.</source>
        <translation>Le uscite che questa stampante stampa, separate da virgole; * e ? stanno per caratteri qualsiasi e per uno qualsiasi.</translation>
    </message>
    <message>
        <source>The length of a line of normal type.</source>
        <translation>La lunghezza di una riga di carattere normale.</translation>
    </message>
    <message>
        <source>The code pages to use, with the printer&apos;s numbers for them, the best first.</source>
        <translation>Le code page da usare, con i loro numeri nella stampante, la migliore per prima.</translation>
    </message>
    <message>
        <source>How the paper is cut at the end of a document.</source>
        <translation>Come si taglia la carta alla fine di un documento.</translation>
    </message>
    <message>
        <source>Empty lines before the cut or the tear bar.</source>
        <translation>Righe vuote prima del taglio o della barra di strappo.</translation>
    </message>
    <message>
        <source>The pin of the drawer&apos;s connector that gets the pulse.</source>
        <translation>Il pin del connettore del cassetto che riceve l’impulso.</translation>
    </message>
    <message>
        <source>How long the drawer&apos;s pulse is on, and off at least, in milliseconds from 2 to 510.</source>
        <translation>Quanto dura l’impulso del cassetto e almeno la sua pausa, in millisecondi da 2 a 510.</translation>
    </message>
    <message>
        <source>The picture that the element logo prints: a PNG file, or stored:1 for one kept in the printer.</source>
        <translation>L’immagine che l’elemento logo stampa: un file PNG, o stored:1 per una tenuta nella stampante.</translation>
    </message>
    <message>
        <source>Whether invoices are printed twice, for the guest and for the books.</source>
        <translation>Se le fatture si stampano due volte, per il cliente e per i libri contabili.</translation>
    </message>
    <message>
        <source>Kitchen tickets</source>
        <translation>Comande per la cucina</translation>
    </message>
    <message>
        <source>Orders with prices</source>
        <translation>Ordini con prezzi</translation>
    </message>
    <message>
        <source>Receipts</source>
        <translation>Ricevute</translation>
    </message>
    <message>
        <source>Invoices</source>
        <translation>Fatture</translation>
    </message>
    <message>
        <source>Fiscal documents</source>
        <translation>Documenti fiscali</translation>
    </message>
    <message>
        <source>Delivery orders</source>
        <translation>Ordini a domicilio</translation>
    </message>
    <message>
        <source>Reports and statements of account</source>
        <translation>Resoconti ed estratti conto</translation>
    </message>
    <message>
        <source>Sold items</source>
        <translation>Articoli venduti</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Lingua</translation>
    </message>
    <message>
        <source>Whether a printer at a device is asked whether it is ready, and whether it has printed.</source>
        <translation>Se a una stampante collegata a un dispositivo si chiede se è pronta e se ha stampato.</translation>
    </message>
</context>
<context>
    <name>SettingsModel</name>
    <message>
        <source>%1 would be lost: the programs read the characters of Western Europe only.</source>
        <translation>%1 andrebbe perso: i programmi leggono solo i caratteri dell’Europa occidentale.</translation>
    </message>
    <message>
        <source>A value cannot have the character %1, which would end it.</source>
        <translation>Un valore non può avere il carattere %1, che lo terminerebbe.</translation>
    </message>
    <message>
        <source>Setting</source>
        <translation>Impostazione</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valore</translation>
    </message>
    <message>
        <source>Change %1</source>
        <translation>cambia %1</translation>
    </message>
</context>
<context>
    <name>StarterDialog</name>
    <message>
        <source>New Configuration</source>
        <translation>Nuova configurazione</translation>
    </message>
    <message>
        <source>There is no configuration %1 yet.</source>
        <translation>Non c’è ancora nessuna configurazione %1.</translation>
    </message>
    <message>
        <source>This makes one to start from: every setting of every document, with values for your paper.</source>
        <translation>Questo ne crea una per cominciare: ogni impostazione di ogni documento, con valori per la vostra carta.</translation>
    </message>
    <message>
        <source>none, or one of plain text</source>
        <translation>nessuna, o una di testo puro</translation>
    </message>
    <message>
        <source>that of the person at the machine</source>
        <translation>quella della persona al computer</translation>
    </message>
    <message>
        <source>&amp;Create</source>
        <translation>&amp;Crea</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Receipt &amp;printer:</source>
        <translation>Stampante di &amp;ricevute:</translation>
    </message>
    <message>
        <source>&amp;Output:</source>
        <translation>&amp;Uscita:</translation>
    </message>
    <message>
        <source>Characters in a &amp;line:</source>
        <translation>Caratteri per &amp;riga:</translation>
    </message>
    <message>
        <source>Language of the &amp;labels:</source>
        <translation>Lingua delle &amp;etichette:</translation>
    </message>
</context>
</TS>
