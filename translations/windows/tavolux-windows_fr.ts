<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr">
<context>
    <name>PreviewRemarks</name>
    <message>
        <source>Incomplete: line %1, column %2: %3</source>
        <translation>Incomplet : ligne %1, colonne %2 : %3</translation>
    </message>
    <message>
        <source>Only the first %1 of %2 lines are shown.</source>
        <translation>Seules les %1 premières lignes sur %2 sont affichées.</translation>
    </message>
    <message>
        <source>The logo is not printed: %1</source>
        <translation>Le logo n’est pas imprimé : %1</translation>
    </message>
</context>
<context>
    <name>PreviewWindow</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Fichier</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>&amp;Ouvrir…</translation>
    </message>
    <message>
        <source>Save &amp;As…</source>
        <translation>&amp;Enregistrer sous…</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Quitter</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Affichage</translation>
    </message>
    <message>
        <source>Zoom &amp;In</source>
        <translation>&amp;Agrandir</translation>
    </message>
    <message>
        <source>Zoom &amp;Out</source>
        <translation>&amp;Réduire</translation>
    </message>
    <message>
        <source>&amp;Dot by Dot</source>
        <translation>&amp;Point par point</translation>
    </message>
    <message>
        <source>Fit &amp;Width</source>
        <translation>Ajuster à la &amp;largeur</translation>
    </message>
    <message>
        <source>Choices</source>
        <translation>Choix</translation>
    </message>
    <message>
        <source>&amp;Language:</source>
        <translation>&amp;Langue :</translation>
    </message>
    <message>
        <source>as configured</source>
        <translation>selon la configuration</translation>
    </message>
    <message>
        <source>&amp;Paper:</source>
        <translation>&amp;Papier :</translation>
    </message>
    <message>
        <source>%1 columns</source>
        <translation>%1 colonnes</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>%1 ne peut pas être lu : %2</translation>
    </message>
    <message>
        <source>There is no configuration %1.</source>
        <translation>La configuration %1 n’existe pas.</translation>
    </message>
    <message>
        <source>Columns: %1</source>
        <translation>Colonnes : %1</translation>
    </message>
    <message>
        <source>Lines: %1</source>
        <translation>Lignes : %1</translation>
    </message>
    <message>
        <source>Zoom: %1 %</source>
        <translation>Taille : %1 %</translation>
    </message>
    <message>
        <source>to be printed twice</source>
        <translation>à imprimer deux fois</translation>
    </message>
    <message>
        <source>Open a Document</source>
        <translation>Ouvrir un document</translation>
    </message>
    <message>
        <source>Documents (*.xml *.tvx);;All files (*)</source>
        <translation>Documents (*.xml *.tvx);;Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>Save the Printout</source>
        <translation>Enregistrer l’impression</translation>
    </message>
    <message>
        <source>PDF (*.pdf);;Picture (*.png);;Drawing (*.svg);;Text (*.txt)</source>
        <translation>PDF (*.pdf);;Image (*.png);;Dessin (*.svg);;Texte (*.txt)</translation>
    </message>
    <message>
        <source>the name has to end in .png, .svg, .pdf or .txt</source>
        <translation>le nom doit finir par .png, .svg, .pdf ou .txt</translation>
    </message>
    <message>
        <source>Saved.</source>
        <translation>Enregistré.</translation>
    </message>
    <message>
        <source>Cannot write %1: %2</source>
        <translation>Impossible d’écrire %1 : %2</translation>
    </message>
    <message>
        <source>P&amp;rinter:</source>
        <translation>Imp&amp;rimante :</translation>
    </message>
</context>
<context>
    <name>PrintoutFiles</name>
    <message>
        <source>the picture would be %1 dots high, more than %2; a PDF, an SVG or a text can hold this printout</source>
        <translation>l’image aurait %1 points de haut, plus que %2 ; un PDF, un SVG ou un texte peut contenir cette impression</translation>
    </message>
    <message>
        <source>there is not enough memory for the picture</source>
        <translation>la mémoire ne suffit pas pour l’image</translation>
    </message>
    <message>
        <source>the picture cannot be made</source>
        <translation>l’image ne peut pas être créée</translation>
    </message>
    <message>
        <source>Printout</source>
        <translation>Impression</translation>
    </message>
</context>
<context>
    <name>PrintoutView</name>
    <message>
        <source>Printout</source>
        <translation>Impression</translation>
    </message>
</context>
</TS>
