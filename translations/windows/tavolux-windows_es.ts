<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es">
<context>
    <name>EditorWindow</name>
    <message>
        <source>Fi&amp;nd:</source>
        <translation>&amp;Buscar:</translation>
    </message>
    <message>
        <source>key, value or words of an explanation</source>
        <translation>clave, valor o palabras de una explicación</translation>
    </message>
    <message>
        <source>Sections</source>
        <translation>Secciones</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Ajustes</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Archivo</translation>
    </message>
    <message>
        <source>&amp;New…</source>
        <translation>&amp;Nuevo…</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>&amp;Abrir…</translation>
    </message>
    <message>
        <source>Open &amp;Recent</source>
        <translation>Abrir &amp;reciente</translation>
    </message>
    <message>
        <source>R&amp;eload</source>
        <translation>&amp;Volver a leer</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Guardar</translation>
    </message>
    <message>
        <source>Save &amp;As…</source>
        <translation>Guardar &amp;como…</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Salir</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Editar</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Deshacer</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Rehacer</translation>
    </message>
    <message>
        <source>&amp;Undo: %1</source>
        <translation>&amp;Deshacer: %1</translation>
    </message>
    <message>
        <source>&amp;Redo: %1</source>
        <translation>&amp;Rehacer: %1</translation>
    </message>
    <message>
        <source>&amp;Edit Value</source>
        <translation>&amp;Editar el valor</translation>
    </message>
    <message>
        <source>Set Back to &amp;Default</source>
        <translation>&amp;Volver al valor por omisión</translation>
    </message>
    <message>
        <source>Copy &amp;Key</source>
        <translation>Copiar la &amp;clave</translation>
    </message>
    <message>
        <source>Add &amp;Setting…</source>
        <translation>&amp;Añadir un ajuste…</translation>
    </message>
    <message>
        <source>Remove Se&amp;tting</source>
        <translation>&amp;Quitar el ajuste</translation>
    </message>
    <message>
        <source>Add &amp;Printer…</source>
        <translation>Añadir una &amp;impresora…</translation>
    </message>
    <message>
        <source>&amp;Copy Settings to…</source>
        <translation>Co&amp;piar los ajustes a…</translation>
    </message>
    <message>
        <source>Re&amp;move Section</source>
        <translation>Q&amp;uitar la sección</translation>
    </message>
    <message>
        <source>&amp;Find</source>
        <translation>&amp;Buscar</translation>
    </message>
    <message>
        <source>Find &amp;Next</source>
        <translation>Buscar el &amp;siguiente</translation>
    </message>
    <message>
        <source>Find Pre&amp;vious</source>
        <translation>Buscar el an&amp;terior</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ver</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>A&amp;yuda</translation>
    </message>
    <message>
        <source>&amp;Contents</source>
        <translation>&amp;Contenido</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>&amp;Acerca de</translation>
    </message>
    <message>
        <source>Cannot read %1</source>
        <translation>No se puede leer %1</translation>
    </message>
    <message>
        <source>There is no change to save.</source>
        <translation>No hay ningún cambio que guardar.</translation>
    </message>
    <message>
        <source>%1 was changed by another program. Save over it?</source>
        <translation>Otro programa ha cambiado %1. ¿Guardar encima?</translation>
    </message>
    <message>
        <source>Something is wrong with the changes. Save all the same?</source>
        <translation>Hay algo mal en los cambios. ¿Guardar de todos modos?</translation>
    </message>
    <message>
        <source>Cannot write %1</source>
        <translation>No se puede escribir %1</translation>
    </message>
    <message>
        <source>The changes are still in this window.</source>
        <translation>Los cambios siguen en esta ventana.</translation>
    </message>
    <message>
        <source>Saved.</source>
        <translation>Guardado.</translation>
    </message>
    <message>
        <source>Saved, but %1.</source>
        <translation>Guardado, pero: %1.</translation>
    </message>
    <message>
        <source>The new configuration is not saved. Save it?</source>
        <translation>La configuración nueva no está guardada. ¿Guardarla?</translation>
    </message>
    <message>
        <source>The changes in %1 are not saved. Save them?</source>
        <translation>Los cambios en %1 no están guardados. ¿Guardarlos?</translation>
    </message>
    <message>
        <source>New configuration</source>
        <translation>Configuración nueva</translation>
    </message>
    <message>
        <source>Nothing reads this setting.</source>
        <translation>Ningún programa lee este ajuste.</translation>
    </message>
    <message>
        <source>This cannot be done</source>
        <translation>Esto no es posible</translation>
    </message>
    <message>
        <source>Set Back %1</source>
        <translation>restablecer %1</translation>
    </message>
    <message>
        <source>Remove %1</source>
        <translation>quitar %1</translation>
    </message>
    <message>
        <source>Add a Setting</source>
        <translation>Añadir un ajuste</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Nombre:</translation>
    </message>
    <message>
        <source>Add %1</source>
        <translation>añadir %1</translation>
    </message>
    <message>
        <source>Copy Settings</source>
        <translation>Copiar los ajustes</translation>
    </message>
    <message>
        <source>Copy those of “%1” to:</source>
        <translation>Copiar los de «%1» a:</translation>
    </message>
    <message>
        <source>Copy %1 to %2</source>
        <translation>copiar %1 a %2</translation>
    </message>
    <message>
        <source>Nothing found.</source>
        <translation>No se ha encontrado nada.</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 de %2</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Acerca de</translation>
    </message>
    <message>
        <source>Tavolux Configuration %1

Edits the configuration of tavolux-printer, which prints the documents of a restaurant.</source>
        <translation>Configuración de Tavolux %1

Edita la configuración de tavolux-printer, que imprime los documentos de un restaurante.</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>&amp;Añadir</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copiar</translation>
    </message>
</context>
<context>
    <name>Findings</name>
    <message>
        <source>; did you mean %1?</source>
        <translation>; ¿quería decir %1?</translation>
    </message>
    <message>
        <source>this looks like XML, which --type xml checks; the printing program reads cfg alone</source>
        <translation>esto parece XML, que se comprueba con --type xml; el programa de impresión solo lee cfg</translation>
    </message>
    <message>
        <source>the first node is not the root element but a declaration or a comment, so nothing in the file is found</source>
        <translation>el primer nodo no es el elemento raíz, sino una declaración o un comentario, así que no se encuentra nada del archivo</translation>
    </message>
    <message>
        <source>the section %1 is not closed</source>
        <translation>la sección %1 no está cerrada</translation>
    </message>
    <message>
        <source>there is no section &quot;tavolux&quot; with settings in it, so nothing is found</source>
        <translation>no hay ninguna sección &quot;tavolux&quot; con ajustes, así que no se encuentra nada</translation>
    </message>
    <message>
        <source>%1 is passed over; is a semicolon or a brace missing before it?</source>
        <translation>%1 se pasa por alto; ¿falta antes un punto y coma o una llave?</translation>
    </message>
    <message>
        <source>the format has no comments: %1 belongs to no setting and is passed over</source>
        <translation>el formato no tiene comentarios: %1 no pertenece a ningún ajuste y se pasa por alto</translation>
    </message>
    <message>
        <source>%1 belongs to no setting and is passed over</source>
        <translation>%1 no pertenece a ningún ajuste y se pasa por alto</translation>
    </message>
    <message>
        <source>sections nest deeper than %1, so the reading ends here</source>
        <translation>hay secciones anidadas a más de %1 niveles, así que la lectura termina aquí</translation>
    </message>
    <message>
        <source>no opening brace follows the section %1</source>
        <translation>a la sección %1 no le sigue ninguna llave de apertura</translation>
    </message>
    <message>
        <source>a section without a name is never read</source>
        <translation>una sección sin nombre no se lee nunca</translation>
    </message>
    <message>
        <source>a closing brace that closes no section ends the reading here</source>
        <translation>una llave de cierre que no cierra ninguna sección termina aquí la lectura</translation>
    </message>
    <message>
        <source>the section %1 is never read: only the first one, %2, is</source>
        <translation>la sección %1 no se lee nunca: solo se lee la primera, %2</translation>
    </message>
    <message>
        <source>the first section is %1, not &quot;tavolux&quot;, so nothing in the file is found</source>
        <translation>la primera sección es %1, no &quot;tavolux&quot;, así que no se encuentra nada del archivo</translation>
    </message>
    <message>
        <source>%1 is no section of %2 that is ever read%3</source>
        <translation>%1 no es ninguna sección de %2 que se lea%3</translation>
    </message>
    <message>
        <source>the section %1 is given twice, first in line %2; of each setting the first that is not empty counts</source>
        <translation>la sección %1 aparece dos veces, primero en la línea %2; de cada ajuste vale el primero que no está vacío</translation>
    </message>
    <message>
        <source>%1 is set outside of any section, where it is never found</source>
        <translation>%1 está fuera de toda sección, donde no se encuentra nunca</translation>
    </message>
    <message>
        <source>the value of %1 runs to the end of the file; is a semicolon missing?</source>
        <translation>el valor de %1 llega hasta el final del archivo; ¿falta un punto y coma?</translation>
    </message>
    <message>
        <source>the value of %1 takes in %2; is a semicolon missing?</source>
        <translation>el valor de %1 abarca %2; ¿falta un punto y coma?</translation>
    </message>
    <message>
        <source>%1 is no setting of %2 that is ever read%3</source>
        <translation>%1 no es ningún ajuste de %2 que se lea%3</translation>
    </message>
    <message>
        <source>%1 is given twice, first in line %2; the last one counts</source>
        <translation>%1 aparece dos veces, primero en la línea %2; vale la última</translation>
    </message>
    <message>
        <source>the format has no comments: %1 is taken for one name</source>
        <translation>el formato no tiene comentarios: %1 se toma por un solo nombre</translation>
    </message>
    <message>
        <source>%1 is taken for one name; is something missing in it?</source>
        <translation>%1 se toma por un solo nombre; ¿falta algo en él?</translation>
    </message>
    <message>
        <source>this is UTF-8, but the file is read as Latin-1: %1</source>
        <translation>esto es UTF-8, pero el archivo se lee como Latin-1: %1</translation>
    </message>
    <message>
        <source>characters outside of Latin-1 are read as question marks: %1</source>
        <translation>los caracteres fuera de Latin-1 se leen como signos de interrogación: %1</translation>
    </message>
    <message>
        <source>%1 names no model, so it prints plain text</source>
        <translation>%1 no nombra ningún modelo, así que imprime texto puro</translation>
    </message>
    <message>
        <source>%1 names no output, so no document comes to it</source>
        <translation>%1 no nombra ninguna salida, así que no le llega ningún documento</translation>
    </message>
    <message>
        <source>no document comes to %1: the printers before it have all of its outputs</source>
        <translation>a %1 no le llega ningún documento: las impresoras anteriores tienen todas sus salidas</translation>
    </message>
    <message>
        <source>&quot;paperWidth&quot; is %1, more than the %2 columns of the printer %3</source>
        <translation>&quot;paperWidth&quot; es %1, más que las %2 columnas de la impresora %3</translation>
    </message>
    <message>
        <source>the logo %1 is not printed: %2</source>
        <translation>el logotipo %1 no se imprime: %2</translation>
    </message>
    <message>
        <source>%1 (comes out as %2)</source>
        <translation>%1 (sale como %2)</translation>
    </message>
    <message>
        <source>the labels have characters that no code page of the printer %1 has: %2</source>
        <translation>los textos tienen caracteres que ninguna página de códigos de la impresora %1 tiene: %2</translation>
    </message>
    <message>
        <source>%1 leaves no room for descriptions: of %2 characters in a line the other columns take %3</source>
        <translation>%1 no deja sitio para las descripciones: de %2 caracteres por línea las otras columnas ocupan %3</translation>
    </message>
    <message>
        <source>the translation &quot;%1&quot; is not found</source>
        <translation>no se encuentra la traducción &quot;%1&quot;</translation>
    </message>
    <message>
        <source>%1 is %2, not %3</source>
        <translation>%1 es %2; se espera: %3</translation>
    </message>
    <message>
        <source>%1 is %2, neither &quot;true&quot; nor &quot;false&quot;, so it is off</source>
        <translation>%1 es %2, ni &quot;true&quot; ni &quot;false&quot;, así que está desactivado</translation>
    </message>
    <message>
        <source>%1 is %2, no usable whole number, so it counts as 0</source>
        <translation>%1 es %2, que no es un número entero utilizable, así que cuenta como 0</translation>
    </message>
    <message>
        <source>%1 is %2, a negative number</source>
        <translation>%1 es %2, un número negativo</translation>
    </message>
    <message>
        <source>%1 is %2, more than any paper holds</source>
        <translation>%1 es %2, más de lo que cabe en ningún papel</translation>
    </message>
    <message>
        <source>%1 is %2, but the title %3 has %4 characters, so it pushes its row wider</source>
        <translation>%1 es %2, pero el título %3 tiene %4 caracteres, así que ensancha su línea</translation>
    </message>
    <message>
        <source>the label %1 has %2 characters, but %3 in its column, so it is cut</source>
        <translation>el texto %1 tiene %2 caracteres, pero %3 en su columna, así que se corta</translation>
    </message>
    <message>
        <source>the label %1 has %2 characters, but %3 in its column, so it moves its figure</source>
        <translation>el texto %1 tiene %2 caracteres, pero %3 en su columna, así que desplaza su cifra</translation>
    </message>
    <message>
        <source>this is no well-formed XML, so nothing in it is read: %1</source>
        <translation>esto no es XML bien formado, así que no se lee nada de él: %1</translation>
    </message>
    <message>
        <source>sections nest deeper than %1, so nothing in the file is read</source>
        <translation>hay secciones anidadas a más de %1 niveles, así que no se lee nada del archivo</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>línea %1: %2</translation>
    </message>
    <message>
        <source>it does not begin with its root element but with a declaration or a comment, so nothing in it is found</source>
        <translation>no empieza por su elemento raíz, sino por una declaración o un comentario, así que no se encuentra nada en él</translation>
    </message>
    <message>
        <source>it is in UTF-16, and only UTF-8 can be changed in place</source>
        <translation>está en UTF-16, y solo UTF-8 se puede cambiar en el sitio</translation>
    </message>
    <message>
        <source>%1 is no name that could be looked up</source>
        <translation>%1 no es un nombre que se pueda buscar</translation>
    </message>
    <message>
        <source>the value %1 has characters outside of Latin-1, which would be lost</source>
        <translation>el valor %1 tiene caracteres fuera de Latin-1, que se perderían</translation>
    </message>
    <message>
        <source>a value cannot have a semicolon: %1</source>
        <translation>un valor no puede llevar un punto y coma: %1</translation>
    </message>
    <message>
        <source>a value cannot have a double quote: %1</source>
        <translation>un valor no puede llevar comillas dobles: %1</translation>
    </message>
    <message>
        <source>a value cannot have control characters: %1</source>
        <translation>un valor no puede llevar caracteres de control: %1</translation>
    </message>
    <message>
        <source>sections nest %1 deep at most</source>
        <translation>las secciones se anidan hasta %1 niveles como máximo</translation>
    </message>
    <message>
        <source>line %1: no opening brace follows the section %2</source>
        <translation>línea %1: a la sección %2 no le sigue ninguna llave de apertura</translation>
    </message>
    <message>
        <source>line %1: the section %2 is not closed</source>
        <translation>línea %1: la sección %2 no está cerrada</translation>
    </message>
    <message>
        <source>a file of the kind xml has one root element, and no place beside it</source>
        <translation>un archivo de tipo xml tiene un solo elemento raíz, y ningún sitio a su lado</translation>
    </message>
    <message>
        <source>in a file of the kind xml every setting is an attribute of an element</source>
        <translation>en un archivo de tipo xml cada ajuste es un atributo de un elemento</translation>
    </message>
    <message>
        <source>the root of the file stays</source>
        <translation>la raíz del archivo se queda</translation>
    </message>
    <message>
        <source>the end of the section %1, from line %2 on, is not plain, so it is not known what would go with it</source>
        <translation>el final de la sección %1, desde la línea %2, no está claro, así que no se sabe qué se iría con ella</translation>
    </message>
    <message>
        <source>%1 is no key that could be looked up</source>
        <translation>%1 no es una clave que se pueda buscar</translation>
    </message>
    <message>
        <source>the first section is %1, and no other is ever read</source>
        <translation>la primera sección es %1, y no se lee ninguna otra</translation>
    </message>
    <message>
        <source>the name of a model</source>
        <translation>el nombre de un modelo</translation>
    </message>
    <message>
        <source>a list of names and patterns</source>
        <translation>una lista de nombres y patrones</translation>
    </message>
    <message>
        <source>a number from 1 to 255</source>
        <translation>un número de 1 a 255</translation>
    </message>
    <message>
        <source>a list of code pages with their numbers</source>
        <translation>una lista de páginas de códigos con sus números</translation>
    </message>
    <message>
        <source>full, partial or none</source>
        <translation>full, partial o none</translation>
    </message>
    <message>
        <source>a number from 0 to 255</source>
        <translation>un número de 0 a 255</translation>
    </message>
    <message>
        <source>2 or 5</source>
        <translation>2 o 5</translation>
    </message>
    <message>
        <source>two times from 2 to 510 ms</source>
        <translation>dos tiempos de 2 a 510 ms</translation>
    </message>
    <message>
        <source>a PNG file, or stored: with a number from 1 to 255</source>
        <translation>un archivo PNG, o stored: con un número de 1 a 255</translation>
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
        <translation>&amp;Defectos</translation>
    </message>
    <message>
        <source>Findings</source>
        <translation>Defectos</translation>
    </message>
    <message>
        <source>Line %1: %2</source>
        <translation>Línea %1: %2</translation>
    </message>
    <message>
        <source>Nothing found wrong</source>
        <translation>No se ha encontrado ningún defecto</translation>
    </message>
    <message>
        <source>Found wrong: %1</source>
        <translation>Defectos: %1</translation>
    </message>
</context>
<context>
    <name>HelpWindow</name>
    <message>
        <source>The Configuration</source>
        <translation>La configuración</translation>
    </message>
</context>
<context>
    <name>MessageBoxes</name>
    <message>
        <source>… and %1 more.</source>
        <translation>… y %1 más.</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Guardar</translation>
    </message>
    <message>
        <source>&amp;Do Not Save</source>
        <translation>&amp;No guardar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Choose a File</source>
        <translation>Elegir un archivo</translation>
    </message>
    <message>
        <source>Choose a Folder</source>
        <translation>Elegir una carpeta</translation>
    </message>
    <message>
        <source>Open a Configuration</source>
        <translation>Abrir una configuración</translation>
    </message>
    <message>
        <source>Configurations (*.conf *.xml);;All files (*)</source>
        <translation>Configuraciones (*.conf *.xml);;Todos los archivos (*)</translation>
    </message>
    <message>
        <source>Save the Configuration</source>
        <translation>Guardar la configuración</translation>
    </message>
</context>
<context>
    <name>Outline</name>
    <message>
        <source>Outside of any section</source>
        <translation>Fuera de toda sección</translation>
    </message>
    <message>
        <source>%1, line %2</source>
        <translation>%1, línea %2</translation>
    </message>
    <message>
        <source>%1 (%2 to %3 %4)</source>
        <translation>%1 (de %2 a %3 %4)</translation>
    </message>
</context>
<context>
    <name>PreviewPane</name>
    <message>
        <source>Preview</source>
        <translation>Vista previa</translation>
    </message>
    <message>
        <source>&amp;Preview</source>
        <translation>&amp;Vista previa</translation>
    </message>
    <message>
        <source>Document</source>
        <translation>Documento</translation>
    </message>
    <message>
        <source>O&amp;pen…</source>
        <translation>Ab&amp;rir…</translation>
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
        <source>%1 cannot be read: %2</source>
        <translation>No se puede leer %1: %2</translation>
    </message>
    <message>
        <source>No font of fixed width is installed: the package fonts-dejavu-core has one.</source>
        <translation>No hay instalado ningún tipo de letra de ancho fijo: el paquete fonts-dejavu-core tiene uno.</translation>
    </message>
</context>
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
    <name>PrinterDialog</name>
    <message>
        <source>Add a Printer</source>
        <translation>Añadir una impresora</translation>
    </message>
    <message>
        <source>such as till or kitchen</source>
        <translation>como caja o cocina</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>&amp;Añadir</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Nombre:</translation>
    </message>
    <message>
        <source>&amp;Model:</source>
        <translation>&amp;Modelo:</translation>
    </message>
    <message>
        <source>&amp;Output:</source>
        <translation>&amp;Salida:</translation>
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
<context>
    <name>SectionsModel</name>
    <message>
        <source>Documents</source>
        <translation>Documentos</translation>
    </message>
    <message>
        <source>Printers</source>
        <translation>Impresoras</translation>
    </message>
    <message>
        <source>Other sections</source>
        <translation>Otras secciones</translation>
    </message>
</context>
<context>
    <name>Settings</name>
    <message>
        <source>characters</source>
        <translation>caracteres</translation>
    </message>
    <message>
        <source>lines</source>
        <translation>líneas</translation>
    </message>
    <message>
        <source>The width of the column for quantities.</source>
        <translation>El ancho de la columna de cantidades.</translation>
    </message>
    <message>
        <source>The width of the column for prices, and for the amounts of a statement of account.</source>
        <translation>El ancho de la columna de precios y de los importes de un extracto de cuenta.</translation>
    </message>
    <message>
        <source>The width of the column for totals.</source>
        <translation>El ancho de la columna de totales.</translation>
    </message>
    <message>
        <source>The length of a line; 0 stands for the printer&apos;s own, which is 34 for plain text.</source>
        <translation>El largo de una línea; 0 es el de la impresora, que en texto puro es 34.</translation>
    </message>
    <message>
        <source>The lines of a page, which no document uses.</source>
        <translation>Las líneas de una página, que ningún documento usa.</translation>
    </message>
    <message>
        <source>A style, which no document uses.</source>
        <translation>Un estilo, que ningún documento usa.</translation>
    </message>
    <message>
        <source>Empty lines at the top, which the element geometry prints.</source>
        <translation>Líneas vacías al principio, que imprime el elemento geometry.</translation>
    </message>
    <message>
        <source>How much of an item&apos;s name a fiscal printer gets; 0 stands for the printer&apos;s own width.</source>
        <translation>Cuánto del nombre de un artículo recibe una impresora fiscal; 0 es el ancho de la impresora.</translation>
    </message>
    <message>
        <source>Whether the empty lines at the top are printed.</source>
        <translation>Si se imprimen las líneas vacías del principio.</translation>
    </message>
    <message>
        <source>Whether the lines of headers are printed; the printer&apos;s name always is.</source>
        <translation>Si se imprimen las líneas de encabezado; el nombre de la impresora, siempre.</translation>
    </message>
    <message>
        <source>Nothing: a logo is printed when the printer&apos;s section names one.</source>
        <translation>Nada: se imprime un logotipo cuando la sección de la impresora nombra uno.</translation>
    </message>
    <message>
        <source>Whether the company&apos;s block is printed.</source>
        <translation>Si se imprime el bloque de la empresa.</translation>
    </message>
    <message>
        <source>Whether the customer&apos;s block has the delivery address.</source>
        <translation>Si el bloque del cliente lleva la dirección de entrega.</translation>
    </message>
    <message>
        <source>Whether the customer&apos;s block has the billing address.</source>
        <translation>Si el bloque del cliente lleva la dirección de facturación.</translation>
    </message>
    <message>
        <source>Whether the customer&apos;s block has the telephone number.</source>
        <translation>Si el bloque del cliente lleva el número de teléfono.</translation>
    </message>
    <message>
        <source>Whether the order&apos;s date is printed.</source>
        <translation>Si se imprime la fecha del pedido.</translation>
    </message>
    <message>
        <source>Whether the order&apos;s time is printed.</source>
        <translation>Si se imprime la hora del pedido.</translation>
    </message>
    <message>
        <source>Whether the order&apos;s table is printed.</source>
        <translation>Si se imprime la mesa del pedido.</translation>
    </message>
    <message>
        <source>Whether the customer&apos;s block is printed.</source>
        <translation>Si se imprime el bloque del cliente.</translation>
    </message>
    <message>
        <source>Whether the customer&apos;s block has the licence number.</source>
        <translation>Si el bloque del cliente lleva el número de licencia.</translation>
    </message>
    <message>
        <source>Whether the customer&apos;s block has the fiscal code.</source>
        <translation>Si el bloque del cliente lleva el código fiscal.</translation>
    </message>
    <message>
        <source>Whether the order&apos;s credit is printed.</source>
        <translation>Si se imprime el crédito del pedido.</translation>
    </message>
    <message>
        <source>Whether the order&apos;s waiter is printed.</source>
        <translation>Si se imprime el camarero del pedido.</translation>
    </message>
    <message>
        <source>Whether the order&apos;s note is printed.</source>
        <translation>Si se imprime la nota del pedido.</translation>
    </message>
    <message>
        <source>Whether the end of a document opens the drawer.</source>
        <translation>Si el final de un documento abre el cajón.</translation>
    </message>
    <message>
        <source>The folder of the translations.</source>
        <translation>La carpeta de las traducciones.</translation>
    </message>
    <message>
        <source>The translation to use, put right after the folder; / alone is the one of the user&apos;s locale.</source>
        <translation>La traducción, puesta justo tras la carpeta; / sola es la del idioma del usuario.</translation>
    </message>
    <message>
        <source>The model of the printer, which says all that follows.</source>
        <translation>El modelo de la impresora, que dice todo lo que sigue.</translation>
    </message>
    <message>
        <source>The outputs that this printer prints, separated by commas; * and ? stand for any characters and any one.</source>
        <translation>Las salidas que imprime esta impresora, separadas por comas; * y ? son unos caracteres cualesquiera y uno cualquiera.</translation>
    </message>
    <message>
        <source>The length of a line of normal type.</source>
        <translation>El largo de una línea de letra normal.</translation>
    </message>
    <message>
        <source>The code pages to use, with the printer&apos;s numbers for them, the best first.</source>
        <translation>Las páginas de códigos que usar, con sus números en la impresora, la mejor primero.</translation>
    </message>
    <message>
        <source>How the paper is cut at the end of a document.</source>
        <translation>Cómo se corta el papel al final de un documento.</translation>
    </message>
    <message>
        <source>Empty lines before the cut or the tear bar.</source>
        <translation>Líneas vacías antes del corte o de la barra de corte.</translation>
    </message>
    <message>
        <source>The pin of the drawer&apos;s connector that gets the pulse.</source>
        <translation>La patilla del conector del cajón que recibe el impulso.</translation>
    </message>
    <message>
        <source>How long the drawer&apos;s pulse is on, and off at least, in milliseconds from 2 to 510.</source>
        <translation>Cuánto dura el impulso del cajón y al menos su pausa, en milisegundos de 2 a 510.</translation>
    </message>
    <message>
        <source>The picture that the element logo prints: a PNG file, or stored:1 for one kept in the printer.</source>
        <translation>La imagen que imprime el elemento logo: un archivo PNG, o stored:1 para una guardada en la impresora.</translation>
    </message>
    <message>
        <source>Whether invoices are printed twice, for the guest and for the books.</source>
        <translation>Si las facturas se imprimen dos veces, para el cliente y para los libros.</translation>
    </message>
    <message>
        <source>Kitchen tickets</source>
        <translation>Comandas de cocina</translation>
    </message>
    <message>
        <source>Orders with prices</source>
        <translation>Pedidos con precios</translation>
    </message>
    <message>
        <source>Receipts</source>
        <translation>Recibos</translation>
    </message>
    <message>
        <source>Invoices</source>
        <translation>Facturas</translation>
    </message>
    <message>
        <source>Fiscal documents</source>
        <translation>Documentos fiscales</translation>
    </message>
    <message>
        <source>Delivery orders</source>
        <translation>Pedidos a domicilio</translation>
    </message>
    <message>
        <source>Reports and statements of account</source>
        <translation>Informes y extractos de cuenta</translation>
    </message>
    <message>
        <source>Sold items</source>
        <translation>Artículos vendidos</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Idioma</translation>
    </message>
    <message>
        <source>Whether a printer at a device is asked whether it is ready, and whether it has printed.</source>
        <translation>Si se pregunta a una impresora en un dispositivo si está lista y si ha imprimido.</translation>
    </message>
</context>
<context>
    <name>SettingsModel</name>
    <message>
        <source>%1 would be lost: the programs read the characters of Western Europe only.</source>
        <translation>%1 se perdería: los programas solo leen los caracteres de Europa occidental.</translation>
    </message>
    <message>
        <source>A value cannot have the character %1, which would end it.</source>
        <translation>Un valor no puede llevar el carácter %1, que lo terminaría.</translation>
    </message>
    <message>
        <source>Setting</source>
        <translation>Ajuste</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valor</translation>
    </message>
    <message>
        <source>Change %1</source>
        <translation>cambiar %1</translation>
    </message>
</context>
<context>
    <name>StarterDialog</name>
    <message>
        <source>New Configuration</source>
        <translation>Configuración nueva</translation>
    </message>
    <message>
        <source>There is no configuration %1 yet.</source>
        <translation>Todavía no hay ninguna configuración %1.</translation>
    </message>
    <message>
        <source>This makes one to start from: every setting of every document, with values for your paper.</source>
        <translation>Esto crea una para empezar: todos los ajustes de todos los documentos, con valores para su papel.</translation>
    </message>
    <message>
        <source>none, or one of plain text</source>
        <translation>ninguna, o una de texto puro</translation>
    </message>
    <message>
        <source>that of the person at the machine</source>
        <translation>el de la persona que usa el equipo</translation>
    </message>
    <message>
        <source>&amp;Create</source>
        <translation>&amp;Crear</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Receipt &amp;printer:</source>
        <translation>&amp;Impresora de recibos:</translation>
    </message>
    <message>
        <source>&amp;Output:</source>
        <translation>&amp;Salida:</translation>
    </message>
    <message>
        <source>Characters in a &amp;line:</source>
        <translation>Caracteres por &amp;línea:</translation>
    </message>
    <message>
        <source>Language of the &amp;labels:</source>
        <translation>I&amp;dioma de los textos:</translation>
    </message>
</context>
</TS>
