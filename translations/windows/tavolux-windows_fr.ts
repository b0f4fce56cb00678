<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr">
<context>
    <name>EditorWindow</name>
    <message>
        <source>Fi&amp;nd:</source>
        <translation>&amp;Chercher :</translation>
    </message>
    <message>
        <source>key, value or words of an explanation</source>
        <translation>clé, valeur ou mots d’une explication</translation>
    </message>
    <message>
        <source>Sections</source>
        <translation>Sections</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Réglages</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Fichier</translation>
    </message>
    <message>
        <source>&amp;New…</source>
        <translation>&amp;Nouveau…</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>&amp;Ouvrir…</translation>
    </message>
    <message>
        <source>Open &amp;Recent</source>
        <translation>Ouvrir un fichier &amp;récent</translation>
    </message>
    <message>
        <source>R&amp;eload</source>
        <translation>Re&amp;lire</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Enregistrer</translation>
    </message>
    <message>
        <source>Save &amp;As…</source>
        <translation>Enregistrer &amp;sous…</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Quitter</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Édition</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Annuler</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Rétablir</translation>
    </message>
    <message>
        <source>&amp;Undo: %1</source>
        <translation>&amp;Annuler : %1</translation>
    </message>
    <message>
        <source>&amp;Redo: %1</source>
        <translation>&amp;Rétablir : %1</translation>
    </message>
    <message>
        <source>&amp;Edit Value</source>
        <translation>&amp;Modifier la valeur</translation>
    </message>
    <message>
        <source>Set Back to &amp;Default</source>
        <translation>Revenir à la valeur par &amp;défaut</translation>
    </message>
    <message>
        <source>Copy &amp;Key</source>
        <translation>Copier la &amp;clé</translation>
    </message>
    <message>
        <source>Add &amp;Setting…</source>
        <translation>A&amp;jouter un réglage…</translation>
    </message>
    <message>
        <source>Remove Se&amp;tting</source>
        <translation>&amp;Supprimer le réglage</translation>
    </message>
    <message>
        <source>Add &amp;Printer…</source>
        <translation>Ajouter une &amp;imprimante…</translation>
    </message>
    <message>
        <source>&amp;Copy Settings to…</source>
        <translation>Co&amp;pier les réglages vers…</translation>
    </message>
    <message>
        <source>Re&amp;move Section</source>
        <translation>Supprimer la secti&amp;on</translation>
    </message>
    <message>
        <source>&amp;Find</source>
        <translation>C&amp;hercher</translation>
    </message>
    <message>
        <source>Find &amp;Next</source>
        <translation>Chercher le sui&amp;vant</translation>
    </message>
    <message>
        <source>Find Pre&amp;vious</source>
        <translation>Chercher le précéden&amp;t</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Affichage</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>A&amp;ide</translation>
    </message>
    <message>
        <source>&amp;Contents</source>
        <translation>&amp;Contenu</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>À &amp;propos</translation>
    </message>
    <message>
        <source>Cannot read %1</source>
        <translation>Impossible de lire %1</translation>
    </message>
    <message>
        <source>There is no change to save.</source>
        <translation>Il n’y a aucun changement à enregistrer.</translation>
    </message>
    <message>
        <source>%1 was changed by another program. Save over it?</source>
        <translation>%1 a été modifié par un autre programme. L’écraser ?</translation>
    </message>
    <message>
        <source>Something is wrong with the changes. Save all the same?</source>
        <translation>Quelque chose ne va pas dans les changements. Enregistrer quand même ?</translation>
    </message>
    <message>
        <source>Cannot write %1</source>
        <translation>Impossible d’écrire %1</translation>
    </message>
    <message>
        <source>The changes are still in this window.</source>
        <translation>Les changements sont toujours dans cette fenêtre.</translation>
    </message>
    <message>
        <source>Saved.</source>
        <translation>Enregistré.</translation>
    </message>
    <message>
        <source>Saved, but %1.</source>
        <translation>Enregistré, mais : %1.</translation>
    </message>
    <message>
        <source>The new configuration is not saved. Save it?</source>
        <translation>La nouvelle configuration n’est pas enregistrée. L’enregistrer ?</translation>
    </message>
    <message>
        <source>The changes in %1 are not saved. Save them?</source>
        <translation>Les changements de %1 ne sont pas enregistrés. Les enregistrer ?</translation>
    </message>
    <message>
        <source>New configuration</source>
        <translation>Nouvelle configuration</translation>
    </message>
    <message>
        <source>Nothing reads this setting.</source>
        <translation>Aucun programme ne lit ce réglage.</translation>
    </message>
    <message>
        <source>This cannot be done</source>
        <translation>Cela n’est pas possible</translation>
    </message>
    <message>
        <source>Set Back %1</source>
        <translation>rétablir %1</translation>
    </message>
    <message>
        <source>Remove %1</source>
        <translation>supprimer %1</translation>
    </message>
    <message>
        <source>Add a Setting</source>
        <translation>Ajouter un réglage</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Nom :</translation>
    </message>
    <message>
        <source>Add %1</source>
        <translation>ajouter %1</translation>
    </message>
    <message>
        <source>Copy Settings</source>
        <translation>Copier les réglages</translation>
    </message>
    <message>
        <source>Copy those of “%1” to:</source>
        <translation>Copier ceux de « %1 » vers :</translation>
    </message>
    <message>
        <source>Copy %1 to %2</source>
        <translation>copier %1 vers %2</translation>
    </message>
    <message>
        <source>Nothing found.</source>
        <translation>Rien n’a été trouvé.</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 sur %2</translation>
    </message>
    <message>
        <source>About</source>
        <translation>À propos</translation>
    </message>
    <message>
        <source>Tavolux Configuration %1

Edits the configuration of tavolux-printer, which prints the documents of a restaurant.</source>
        <translation>Configuration de Tavolux %1

Modifie la configuration de tavolux-printer, qui imprime les documents d’un restaurant.</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>&amp;Ajouter</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copier</translation>
    </message>
</context>
<context>
    <name>Findings</name>
    <message>
        <source>; did you mean %1?</source>
        <translation> ; vouliez-vous dire %1 ?</translation>
    </message>
    <message>
        <source>this looks like XML, which --type xml checks; the printing program reads cfg alone</source>
        <translation>cela ressemble à du XML, que --type xml vérifie ; le programme d’impression ne lit que le cfg</translation>
    </message>
    <message>
        <source>the first node is not the root element but a declaration or a comment, so nothing in the file is found</source>
        <translation>le premier nœud n’est pas l’élément racine mais une déclaration ou un commentaire : rien n’est trouvé dans le fichier</translation>
    </message>
    <message>
        <source>the section %1 is not closed</source>
        <translation>la section %1 n’est pas fermée</translation>
    </message>
    <message>
        <source>there is no section &quot;tavolux&quot; with settings in it, so nothing is found</source>
        <translation>il n’y a pas de section &quot;tavolux&quot; contenant des réglages : rien n’est trouvé</translation>
    </message>
    <message>
        <source>%1 is passed over; is a semicolon or a brace missing before it?</source>
        <translation>%1 est ignoré ; manque-t-il un point-virgule ou une accolade avant ?</translation>
    </message>
    <message>
        <source>the format has no comments: %1 belongs to no setting and is passed over</source>
        <translation>le format n’a pas de commentaires : %1 n’appartient à aucun réglage et est ignoré</translation>
    </message>
    <message>
        <source>%1 belongs to no setting and is passed over</source>
        <translation>%1 n’appartient à aucun réglage et est ignoré</translation>
    </message>
    <message>
        <source>sections nest deeper than %1, so the reading ends here</source>
        <translation>des sections sont imbriquées sur plus de %1 niveaux : la lecture s’arrête ici</translation>
    </message>
    <message>
        <source>no opening brace follows the section %1</source>
        <translation>aucune accolade ouvrante ne suit la section %1</translation>
    </message>
    <message>
        <source>a section without a name is never read</source>
        <translation>une section sans nom n’est jamais lue</translation>
    </message>
    <message>
        <source>a closing brace that closes no section ends the reading here</source>
        <translation>une accolade fermante qui ne ferme aucune section arrête la lecture ici</translation>
    </message>
    <message>
        <source>the section %1 is never read: only the first one, %2, is</source>
        <translation>la section %1 n’est jamais lue : seule la première, %2, l’est</translation>
    </message>
    <message>
        <source>the first section is %1, not &quot;tavolux&quot;, so nothing in the file is found</source>
        <translation>la première section est %1, et non &quot;tavolux&quot; : rien n’est trouvé dans le fichier</translation>
    </message>
    <message>
        <source>%1 is no section of %2 that is ever read%3</source>
        <translation>%1 n’est pas une section de %2 qui soit lue%3</translation>
    </message>
    <message>
        <source>the section %1 is given twice, first in line %2; of each setting the first that is not empty counts</source>
        <translation>la section %1 figure deux fois, d’abord à la ligne %2 ; de chaque réglage, le premier qui n’est pas vide compte</translation>
    </message>
    <message>
        <source>%1 is set outside of any section, where it is never found</source>
        <translation>%1 est en dehors de toute section, où il n’est jamais trouvé</translation>
    </message>
    <message>
        <source>the value of %1 runs to the end of the file; is a semicolon missing?</source>
        <translation>la valeur de %1 va jusqu’à la fin du fichier ; manque-t-il un point-virgule ?</translation>
    </message>
    <message>
        <source>the value of %1 takes in %2; is a semicolon missing?</source>
        <translation>la valeur de %1 englobe %2 ; manque-t-il un point-virgule ?</translation>
    </message>
    <message>
        <source>%1 is no setting of %2 that is ever read%3</source>
        <translation>%1 n’est pas un réglage de %2 qui soit lu%3</translation>
    </message>
    <message>
        <source>%1 is given twice, first in line %2; the last one counts</source>
        <translation>%1 figure deux fois, d’abord à la ligne %2 ; la dernière compte</translation>
    </message>
    <message>
        <source>the format has no comments: %1 is taken for one name</source>
        <translation>le format n’a pas de commentaires : %1 est pris pour un seul nom</translation>
    </message>
    <message>
        <source>%1 is taken for one name; is something missing in it?</source>
        <translation>%1 est pris pour un seul nom ; y manque-t-il quelque chose ?</translation>
    </message>
    <message>
        <source>this is UTF-8, but the file is read as Latin-1: %1</source>
        <translation>c’est de l’UTF-8, mais le fichier est lu comme du Latin-1 : %1</translation>
    </message>
    <message>
        <source>characters outside of Latin-1 are read as question marks: %1</source>
        <translation>les caractères hors de Latin-1 sont lus comme des points d’interrogation : %1</translation>
    </message>
    <message>
        <source>%1 names no model, so it prints plain text</source>
        <translation>%1 ne nomme aucun modèle et imprime donc du texte pur</translation>
    </message>
    <message>
        <source>%1 names no output, so no document comes to it</source>
        <translation>%1 ne nomme aucune sortie : aucun document n’y arrive</translation>
    </message>
    <message>
        <source>no document comes to %1: the printers before it have all of its outputs</source>
        <translation>aucun document n’arrive à %1 : les imprimantes précédentes ont toutes ses sorties</translation>
    </message>
    <message>
        <source>&quot;paperWidth&quot; is %1, more than the %2 columns of the printer %3</source>
        <translation>&quot;paperWidth&quot; vaut %1, plus que les %2 colonnes de l’imprimante %3</translation>
    </message>
    <message>
        <source>the logo %1 is not printed: %2</source>
        <translation>le logo %1 n’est pas imprimé : %2</translation>
    </message>
    <message>
        <source>%1 (comes out as %2)</source>
        <translation>%1 (donne %2)</translation>
    </message>
    <message>
        <source>the labels have characters that no code page of the printer %1 has: %2</source>
        <translation>les textes ont des caractères qu’aucune page de code de l’imprimante %1 ne contient : %2</translation>
    </message>
    <message>
        <source>%1 leaves no room for descriptions: of %2 characters in a line the other columns take %3</source>
        <translation>%1 ne laisse pas de place aux descriptions : sur %2 caractères par ligne, les autres colonnes en prennent %3</translation>
    </message>
    <message>
        <source>the translation &quot;%1&quot; is not found</source>
        <translation>la traduction &quot;%1&quot; est introuvable</translation>
    </message>
    <message>
        <source>%1 is %2, not %3</source>
        <translation>%1 vaut %2 ; valeur attendue : %3</translation>
    </message>
    <message>
        <source>%1 is %2, neither &quot;true&quot; nor &quot;false&quot;, so it is off</source>
        <translation>%1 vaut %2, ni &quot;true&quot; ni &quot;false&quot;, et est donc désactivé</translation>
    </message>
    <message>
        <source>%1 is %2, no usable whole number, so it counts as 0</source>
        <translation>%1 vaut %2, qui n’est pas un nombre entier utilisable, et compte donc pour 0</translation>
    </message>
    <message>
        <source>%1 is %2, a negative number</source>
        <translation>%1 vaut %2, un nombre négatif</translation>
    </message>
    <message>
        <source>%1 is %2, more than any paper holds</source>
        <translation>%1 vaut %2, plus que n’en contient aucun papier</translation>
    </message>
    <message>
        <source>%1 is %2, but the title %3 has %4 characters, so it pushes its row wider</source>
        <translation>%1 vaut %2, mais le titre %3 a %4 caractères et élargit donc sa ligne</translation>
    </message>
    <message>
        <source>the label %1 has %2 characters, but %3 in its column, so it is cut</source>
        <translation>le texte %1 a %2 caractères, mais %3 dans sa colonne : il est coupé</translation>
    </message>
    <message>
        <source>the label %1 has %2 characters, but %3 in its column, so it moves its figure</source>
        <translation>le texte %1 a %2 caractères, mais %3 dans sa colonne : il déplace son chiffre</translation>
    </message>
    <message>
        <source>this is no well-formed XML, so nothing in it is read: %1</source>
        <translation>ce n’est pas du XML bien formé, rien n’en est lu : %1</translation>
    </message>
    <message>
        <source>sections nest deeper than %1, so nothing in the file is read</source>
        <translation>des sections sont imbriquées sur plus de %1 niveaux : rien n’est lu dans le fichier</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>ligne %1 : %2</translation>
    </message>
    <message>
        <source>it does not begin with its root element but with a declaration or a comment, so nothing in it is found</source>
        <translation>il ne commence pas par son élément racine mais par une déclaration ou un commentaire : rien n’y est trouvé</translation>
    </message>
    <message>
        <source>it is in UTF-16, and only UTF-8 can be changed in place</source>
        <translation>il est en UTF-16, et seul l’UTF-8 peut être modifié sur place</translation>
    </message>
    <message>
        <source>%1 is no name that could be looked up</source>
        <translation>%1 n’est pas un nom qui puisse être trouvé</translation>
    </message>
    <message>
        <source>the value %1 has characters outside of Latin-1, which would be lost</source>
        <translation>la valeur %1 a des caractères hors de Latin-1, qui seraient perdus</translation>
    </message>
    <message>
        <source>a value cannot have a semicolon: %1</source>
        <translation>une valeur ne peut pas contenir de point-virgule : %1</translation>
    </message>
    <message>
        <source>a value cannot have a double quote: %1</source>
        <translation>une valeur ne peut pas contenir de guillemet droit : %1</translation>
    </message>
    <message>
        <source>a value cannot have control characters: %1</source>
        <translation>une valeur ne peut pas contenir de caractères de contrôle : %1</translation>
    </message>
    <message>
        <source>sections nest %1 deep at most</source>
        <translation>les sections sont imbriquées sur %1 niveaux au plus</translation>
    </message>
    <message>
        <source>line %1: no opening brace follows the section %2</source>
        <translation>ligne %1 : aucune accolade ouvrante ne suit la section %2</translation>
    </message>
    <message>
        <source>line %1: the section %2 is not closed</source>
        <translation>ligne %1 : la section %2 n’est pas fermée</translation>
    </message>
    <message>
        <source>a file of the kind xml has one root element, and no place beside it</source>
        <translation>un fichier du type xml a un seul élément racine, et pas de place à côté</translation>
    </message>
    <message>
        <source>in a file of the kind xml every setting is an attribute of an element</source>
        <translation>dans un fichier du type xml, chaque réglage est un attribut d’un élément</translation>
    </message>
    <message>
        <source>the root of the file stays</source>
        <translation>la racine du fichier reste</translation>
    </message>
    <message>
        <source>the end of the section %1, from line %2 on, is not plain, so it is not known what would go with it</source>
        <translation>la fin de la section %1, à partir de la ligne %2, n’est pas claire : on ne sait pas ce qui partirait avec elle</translation>
    </message>
    <message>
        <source>%1 is no key that could be looked up</source>
        <translation>%1 n’est pas une clé qui puisse être trouvée</translation>
    </message>
    <message>
        <source>the first section is %1, and no other is ever read</source>
        <translation>la première section est %1, et aucune autre n’est jamais lue</translation>
    </message>
    <message>
        <source>the name of a model</source>
        <translation>le nom d’un modèle</translation>
    </message>
    <message>
        <source>a list of names and patterns</source>
        <translation>une liste de noms et de motifs</translation>
    </message>
    <message>
        <source>a number from 1 to 255</source>
        <translation>un nombre de 1 à 255</translation>
    </message>
    <message>
        <source>a list of code pages with their numbers</source>
        <translation>une liste de pages de code avec leurs numéros</translation>
    </message>
    <message>
        <source>full, partial or none</source>
        <translation>full, partial ou none</translation>
    </message>
    <message>
        <source>a number from 0 to 255</source>
        <translation>un nombre de 0 à 255</translation>
    </message>
    <message>
        <source>2 or 5</source>
        <translation>2 ou 5</translation>
    </message>
    <message>
        <source>two times from 2 to 510 ms</source>
        <translation>deux durées de 2 à 510 ms</translation>
    </message>
    <message>
        <source>a PNG file, or stored: with a number from 1 to 255</source>
        <translation>un fichier PNG, ou stored: avec un nombre de 1 à 255</translation>
    </message>
    <message>
        <source>true or false</source>
        <translation>true ou false</translation>
    </message>
</context>
<context>
    <name>FindingsPane</name>
    <message>
        <source>&amp;Findings</source>
        <translation>&amp;Défauts</translation>
    </message>
    <message>
        <source>Findings</source>
        <translation>Défauts</translation>
    </message>
    <message>
        <source>Line %1: %2</source>
        <translation>Ligne %1 : %2</translation>
    </message>
    <message>
        <source>Nothing found wrong</source>
        <translation>Aucun défaut trouvé</translation>
    </message>
    <message>
        <source>Found wrong: %1</source>
        <translation>Défauts : %1</translation>
    </message>
</context>
<context>
    <name>HelpWindow</name>
    <message>
        <source>The Configuration</source>
        <translation>La configuration</translation>
    </message>
</context>
<context>
    <name>MessageBoxes</name>
    <message>
        <source>… and %1 more.</source>
        <translation>… et %1 autres.</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Enregistrer</translation>
    </message>
    <message>
        <source>&amp;Do Not Save</source>
        <translation>&amp;Ne pas enregistrer</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Choose a File</source>
        <translation>Choisir un fichier</translation>
    </message>
    <message>
        <source>Choose a Folder</source>
        <translation>Choisir un dossier</translation>
    </message>
    <message>
        <source>Open a Configuration</source>
        <translation>Ouvrir une configuration</translation>
    </message>
    <message>
        <source>Configurations (*.conf *.xml);;All files (*)</source>
        <translation>Configurations (*.conf *.xml);;Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>Save the Configuration</source>
        <translation>Enregistrer la configuration</translation>
    </message>
</context>
<context>
    <name>Outline</name>
    <message>
        <source>Outside of any section</source>
        <translation>En dehors de toute section</translation>
    </message>
    <message>
        <source>%1, line %2</source>
        <translation>%1, ligne %2</translation>
    </message>
    <message>
        <source>%1 (%2 to %3 %4)</source>
        <translation>%1 (de %2 à %3 %4)</translation>
    </message>
</context>
<context>
    <name>PreviewPane</name>
    <message>
        <source>Preview</source>
        <translation>Aperçu</translation>
    </message>
    <message>
        <source>&amp;Preview</source>
        <translation>&amp;Aperçu</translation>
    </message>
    <message>
        <source>Document</source>
        <translation>Document</translation>
    </message>
    <message>
        <source>O&amp;pen…</source>
        <translation>O&amp;uvrir…</translation>
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
        <source>%1 cannot be read: %2</source>
        <translation>Impossible de lire %1 : %2</translation>
    </message>
    <message>
        <source>No font of fixed width is installed: the package fonts-dejavu-core has one.</source>
        <translation>Aucune police à chasse fixe n’est installée : le paquet fonts-dejavu-core en a une.</translation>
    </message>
</context>
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
    <name>PrinterDialog</name>
    <message>
        <source>Add a Printer</source>
        <translation>Ajouter une imprimante</translation>
    </message>
    <message>
        <source>such as till or kitchen</source>
        <translation>par exemple caisse ou cuisine</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>&amp;Ajouter</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Nom :</translation>
    </message>
    <message>
        <source>&amp;Model:</source>
        <translation>&amp;Modèle :</translation>
    </message>
    <message>
        <source>&amp;Output:</source>
        <translation>&amp;Sortie :</translation>
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
<context>
    <name>SectionsModel</name>
    <message>
        <source>Documents</source>
        <translation>Documents</translation>
    </message>
    <message>
        <source>Printers</source>
        <translation>Imprimantes</translation>
    </message>
    <message>
        <source>Other sections</source>
        <translation>Autres sections</translation>
    </message>
</context>
<context>
    <name>Settings</name>
    <message>
        <source>characters</source>
        <translation>caractères</translation>
    </message>
    <message>
        <source>lines</source>
        <translation>lignes</translation>
    </message>
    <message>
        <source>The width of the column for quantities.</source>
        <translation>La largeur de la colonne des quantités.</translation>
    </message>
    <message>
        <source>The width of the column for prices, and for the amounts of a statement of account.</source>
        <translation>La largeur de la colonne des prix et des montants d’un relevé de compte.</translation>
    </message>
    <message>
        <source>The width of the column for totals.</source>
        <translation>La largeur de la colonne des totaux.</translation>
    </message>
    <message>
        <source>The length of a line; 0 stands for the printer&apos;s own, which is 34 for plain text.</source>
        <translation>La longueur d’une ligne ; 0 signifie celle de l’imprimante, 34 pour du texte pur.</translation>
    </message>
    <message>
        <source>The lines of a page, which no document uses.</source>
        <translation>Les lignes d’une page, qu’aucun document n’utilise.</translation>
    </message>
    <message>
        <source>A style, which no document uses.</source>
        <translation>Un style, qu’aucun document n’utilise.</translation>
    </message>
    <message>
        <source>Empty lines at the top, which the element geometry prints.</source>
        <translation>Des lignes vides en haut, que l’élément geometry imprime.</translation>
    </message>
    <message>
        <source>How much of an item&apos;s name a fiscal printer gets; 0 stands for the printer&apos;s own width.</source>
        <translation>Combien du nom d’un article une imprimante fiscale reçoit ; 0 signifie la largeur de l’imprimante.</translation>
    </message>
    <message>
        <source>Whether the empty lines at the top are printed.</source>
        <translation>Si les lignes vides du haut sont imprimées.</translation>
    </message>
    <message>
        <source>Whether the lines of headers are printed; the printer&apos;s name always is.</source>
        <translation>Si les lignes d’en-tête sont imprimées ; le nom de l’imprimante l’est toujours.</translation>
    </message>
    <message>
        <source>Nothing: a logo is printed when the printer&apos;s section names one.</source>
        <translation>Rien : un logo est imprimé quand la section de l’imprimante en nomme un.</translation>
    </message>
    <message>
        <source>Whether the company&apos;s block is printed.</source>
        <translation>Si le bloc de la société est imprimé.</translation>
    </message>
    <message>
        <source>Whether the customer&apos;s block has the delivery address.</source>
        <translation>Si le bloc du client contient l’adresse de livraison.</translation>
    </message>
    <message>
        <source>Whether the customer&apos;s block has the billing address.</source>
        <translation>Si le bloc du client contient l’adresse de facturation.</translation>
    </message>
    <message>
        <source>Whether the customer&apos;s block has the telephone number.</source>
        <translation>Si le bloc du client contient le numéro de téléphone.</translation>
    </message>
    <message>
        <source>Whether the order&apos;s date is printed.</source>
        <translation>Si la date de la commande est imprimée.</translation>
    </message>
    <message>
        <source>Whether the order&apos;s time is printed.</source>
        <translation>Si l’heure de la commande est imprimée.</translation>
    </message>
    <message>
        <source>Whether the order&apos;s table is printed.</source>
        <translation>Si la table de la commande est imprimée.</translation>
    </message>
    <message>
        <source>Whether the customer&apos;s block is printed.</source>
        <translation>Si le bloc du client est imprimé.</translation>
    </message>
    <message>
        <source>Whether the customer&apos;s block has the licence number.</source>
        <translation>Si le bloc du client contient le numéro de licence.</translation>
    </message>
    <message>
        <source>Whether the customer&apos;s block has the fiscal code.</source>
        <translation>Si le bloc du client contient le code fiscal.</translation>
    </message>
    <message>
        <source>Whether the order&apos;s credit is printed.</source>
        <translation>Si le crédit de la commande est imprimé.</translation>
    </message>
    <message>
        <source>Whether the order&apos;s waiter is printed.</source>
        <translation>Si le serveur de la commande est imprimé.</translation>
    </message>
    <message>
        <source>Whether the order&apos;s note is printed.</source>
        <translation>Si la note de la commande est imprimée.</translation>
    </message>
    <message>
        <source>Whether the end of a document opens the drawer.</source>
        <translation>Si la fin d’un document ouvre le tiroir-caisse.</translation>
    </message>
    <message>
        <source>The folder of the translations.</source>
        <translation>Le dossier des traductions.</translation>
    </message>
    <message>
        <source>The translation to use, put right after the folder; / alone is the one of the user&apos;s locale.</source>
        <translation>La traduction, mise juste après le dossier ; / seul est celle de la langue de l’utilisateur.</translation>
    </message>
    <message>
        <source>The model of the printer, which says all that follows.</source>
        <translation>Le modèle de l’imprimante, qui détermine tout ce qui suit.</translation>
    </message>
    <message>
        <source>The outputs that this printer prints, separated by commas; * and ? stand for any characters and any one.</source>
        <translation>Les sorties que cette imprimante imprime, séparées par des virgules ; * et ? remplacent des caractères quelconques et un seul.</translation>
    </message>
    <message>
        <source>The length of a line of normal type.</source>
        <translation>La longueur d’une ligne en écriture normale.</translation>
    </message>
    <message>
        <source>The code pages to use, with the printer&apos;s numbers for them, the best first.</source>
        <translation>Les pages de code à utiliser, avec leurs numéros dans l’imprimante, la meilleure d’abord.</translation>
    </message>
    <message>
        <source>How the paper is cut at the end of a document.</source>
        <translation>Comment le papier est coupé à la fin d’un document.</translation>
    </message>
    <message>
        <source>Empty lines before the cut or the tear bar.</source>
        <translation>Des lignes vides avant la coupe ou la barre de déchirement.</translation>
    </message>
    <message>
        <source>The pin of the drawer&apos;s connector that gets the pulse.</source>
        <translation>La broche du connecteur du tiroir-caisse qui reçoit l’impulsion.</translation>
    </message>
    <message>
        <source>How long the drawer&apos;s pulse is on, and off at least, in milliseconds from 2 to 510.</source>
        <translation>Combien de temps l’impulsion du tiroir-caisse dure, et au moins sa pause, en millisecondes de 2 à 510.</translation>
    </message>
    <message>
        <source>The picture that the element logo prints: a PNG file, or stored:1 for one kept in the printer.</source>
        <translation>L’image que l’élément logo imprime : un fichier PNG, ou stored:1 pour une image gardée dans l’imprimante.</translation>
    </message>
    <message>
        <source>Whether invoices are printed twice, for the guest and for the books.</source>
        <translation>Si les factures sont imprimées deux fois, pour le client et pour les livres.</translation>
    </message>
    <message>
        <source>Kitchen tickets</source>
        <translation>Bons de cuisine</translation>
    </message>
    <message>
        <source>Orders with prices</source>
        <translation>Commandes avec prix</translation>
    </message>
    <message>
        <source>Receipts</source>
        <translation>Reçus</translation>
    </message>
    <message>
        <source>Invoices</source>
        <translation>Factures</translation>
    </message>
    <message>
        <source>Fiscal documents</source>
        <translation>Documents fiscaux</translation>
    </message>
    <message>
        <source>Delivery orders</source>
        <translation>Commandes à livrer</translation>
    </message>
    <message>
        <source>Reports and statements of account</source>
        <translation>Rapports et relevés de compte</translation>
    </message>
    <message>
        <source>Sold items</source>
        <translation>Articles vendus</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Langue</translation>
    </message>
    <message>
        <source>Whether a printer at a device is asked whether it is ready, and whether it has printed.</source>
        <translation>Si l’on demande à une imprimante reliée à un périphérique si elle est prête et si elle a imprimé.</translation>
    </message>
</context>
<context>
    <name>SettingsModel</name>
    <message>
        <source>%1 would be lost: the programs read the characters of Western Europe only.</source>
        <translation>%1 serait perdu : les programmes ne lisent que les caractères d’Europe occidentale.</translation>
    </message>
    <message>
        <source>A value cannot have the character %1, which would end it.</source>
        <translation>Une valeur ne peut pas contenir le caractère %1, qui la terminerait.</translation>
    </message>
    <message>
        <source>Setting</source>
        <translation>Réglage</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valeur</translation>
    </message>
    <message>
        <source>Change %1</source>
        <translation>changer %1</translation>
    </message>
</context>
<context>
    <name>StarterDialog</name>
    <message>
        <source>New Configuration</source>
        <translation>Nouvelle configuration</translation>
    </message>
    <message>
        <source>There is no configuration %1 yet.</source>
        <translation>Il n’y a pas encore de configuration %1.</translation>
    </message>
    <message>
        <source>This makes one to start from: every setting of every document, with values for your paper.</source>
        <translation>Ceci en crée une pour commencer : chaque réglage de chaque document, avec des valeurs pour votre papier.</translation>
    </message>
    <message>
        <source>none, or one of plain text</source>
        <translation>aucune, ou une de texte pur</translation>
    </message>
    <message>
        <source>that of the person at the machine</source>
        <translation>celle de la personne devant la machine</translation>
    </message>
    <message>
        <source>&amp;Create</source>
        <translation>&amp;Créer</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Receipt &amp;printer:</source>
        <translation>&amp;Imprimante de reçus :</translation>
    </message>
    <message>
        <source>&amp;Output:</source>
        <translation>&amp;Sortie :</translation>
    </message>
    <message>
        <source>Characters in a &amp;line:</source>
        <translation>Caractères par &amp;ligne :</translation>
    </message>
    <message>
        <source>Language of the &amp;labels:</source>
        <translation>Langue des &amp;textes :</translation>
    </message>
</context>
</TS>
