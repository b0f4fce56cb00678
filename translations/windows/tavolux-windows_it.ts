<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it">
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
</TS>
