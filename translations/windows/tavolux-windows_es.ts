<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es">
<context>
    <name>PreviewRemarks</name>
    <message>
        <source>Incomplete: line %1, column %2: %3</source>
        <translation>Incompleto: línea %1, columna %2: %3</translation>
    </message>
    <message>
        <source>Only the first %1 of %2 lines are shown.</source>
        <translation>Solo se muestran las primeras %1 de %2 líneas.</translation>
    </message>
    <message>
        <source>The logo is not printed: %1</source>
        <translation>El logotipo no se imprime: %1</translation>
    </message>
</context>
<context>
    <name>PreviewWindow</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Archivo</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>&amp;Abrir…</translation>
    </message>
    <message>
        <source>Save &amp;As…</source>
        <translation>&amp;Guardar como…</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Salir</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ver</translation>
    </message>
    <message>
        <source>Zoom &amp;In</source>
        <translation>&amp;Ampliar</translation>
    </message>
    <message>
        <source>Zoom &amp;Out</source>
        <translation>&amp;Reducir</translation>
    </message>
    <message>
        <source>&amp;Dot by Dot</source>
        <translation>&amp;Punto por punto</translation>
    </message>
    <message>
        <source>Fit &amp;Width</source>
        <translation>Ajustar al an&amp;cho</translation>
    </message>
    <message>
        <source>Choices</source>
        <translation>Opciones</translation>
    </message>
    <message>
        <source>&amp;Language:</source>
        <translation>&amp;Idioma:</translation>
    </message>
    <message>
        <source>as configured</source>
        <translation>según la configuración</translation>
    </message>
    <message>
        <source>&amp;Paper:</source>
        <translation>Pape&amp;l:</translation>
    </message>
    <message>
        <source>%1 columns</source>
        <translation>%1 columnas</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>No se puede leer %1: %2</translation>
    </message>
    <message>
        <source>There is no configuration %1.</source>
        <translation>No existe la configuración %1.</translation>
    </message>
    <message>
        <source>Columns: %1</source>
        <translation>Columnas: %1</translation>
    </message>
    <message>
        <source>Lines: %1</source>
        <translation>Líneas: %1</translation>
    </message>
    <message>
        <source>Zoom: %1 %</source>
        <translation>Tamaño: %1 %</translation>
    </message>
    <message>
        <source>to be printed twice</source>
        <translation>se imprime dos veces</translation>
    </message>
    <message>
        <source>Open a Document</source>
        <translation>Abrir un documento</translation>
    </message>
    <message>
        <source>Documents (*.xml *.tvx);;All files (*)</source>
        <translation>Documentos (*.xml *.tvx);;Todos los archivos (*)</translation>
    </message>
    <message>
        <source>Save the Printout</source>
        <translation>Guardar la impresión</translation>
    </message>
    <message>
        <source>PDF (*.pdf);;Picture (*.png);;Drawing (*.svg);;Text (*.txt)</source>
        <translation>PDF (*.pdf);;Imagen (*.png);;Dibujo (*.svg);;Texto (*.txt)</translation>
    </message>
    <message>
        <source>the name has to end in .png, .svg, .pdf or .txt</source>
        <translation>el nombre debe terminar en .png, .svg, .pdf o .txt</translation>
    </message>
    <message>
        <source>Saved.</source>
        <translation>Guardado.</translation>
    </message>
    <message>
        <source>Cannot write %1: %2</source>
        <translation>No se puede escribir %1: %2</translation>
    </message>
    <message>
        <source>P&amp;rinter:</source>
        <translation>Im&amp;presora:</translation>
    </message>
</context>
<context>
    <name>PrintoutFiles</name>
    <message>
        <source>the picture would be %1 dots high, more than %2; a PDF, an SVG or a text can hold this printout</source>
        <translation>la imagen tendría %1 puntos de alto, más de %2; un PDF, un SVG o un texto pueden contener esta impresión</translation>
    </message>
    <message>
        <source>there is not enough memory for the picture</source>
        <translation>no hay memoria suficiente para la imagen</translation>
    </message>
    <message>
        <source>the picture cannot be made</source>
        <translation>no se puede crear la imagen</translation>
    </message>
    <message>
        <source>Printout</source>
        <translation>Impresión</translation>
    </message>
</context>
<context>
    <name>PrintoutView</name>
    <message>
        <source>Printout</source>
        <translation>Impresión</translation>
    </message>
</context>
</TS>
