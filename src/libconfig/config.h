#pragma once

#include "section.h"
#include "write_file.h"

#include <QByteArray>
#include <QDomDocument>
#include <QList>
#include <QString>
#include <QStringConverter>
#include <QStringList>

#include <fstream>
#include <istream>
#include <memory>
#include <sstream>

class QTextStream;
class QTreeWidget;
class QTreeWidgetItem;

namespace libconfig {

/*
 * The configuration store: reads one configuration file into a tree and answers lookups by dotted key.
 *
 * The root element of the tree is tagged with the file name; a section is an element tagged with its name, a
 * setting is an attribute of its section. All values are text. After loading, the tree changes only through
 * loadListView; lookups from several threads are safe as long as nobody calls that.
 */
class Config
{
public:
    /* How deep sections may nest. In the "cfg" kind reading ends at one deeper; of an "xml" file with a
     * deeper element nothing is read. */
    static constexpr int maximumNesting = 256;

    /* An empty store: every lookup yields the empty text. */
    Config();

    /* Reads the file, as readFile does. */
    Config(const QString &file, const QString &type);

    Config(const Config &) = delete;
    Config &operator=(const Config &) = delete;
    ~Config();

    /*
     * Reads the file of the kind "cfg" or "xml" in place of what was held before; any other kind gives an
     * empty store. A "cfg" file that cannot be opened prints one line on standard output and gives an empty
     * store; an "xml" file that cannot be read or parsed gives an empty store in silence.
     */
    void readFile(const QString &file, const QString &type);

    /* The same for the text of a file without a name. */
    void readText(const QByteArray &text, const QString &type);

    /* The whole tree as plain values: the root, which has the file's name, with all below it. An empty store
     * gives a section without a name. */
    Section content() const;

    /* The value of a dotted key such as "tavolux.language.file"; empty when there is none. The key's first
     * component names the first top-level section: no other is ever searched. */
    QString lookup(const QString &key) const;

    /* The same below a node, which the key's first component names. Among sections of one name the first that
     * yields a value that is not empty wins. */
    QString lookup(const QDomNode &node, const QString &key) const;

    /* The names of the sections below the one that the dotted key names, each once, in the order of the file.
     * Of several sections of that name all count. */
    QStringList sectionNames(const QString &key) const;

    /* Writes the root's settings and the first top-level section to the named file, or over the file that was
     * read when the name is empty, as "cfg" text (in Latin-1, as it is read) or as XML (in UTF-8). Values are
     * written as they are, settings in the order of their names. A regular file is replaced whole or keeps
     * what it held; a named device or FIFO is written as it stands. Nothing is printed. */
    WriteResult buildConfigFile(const QString &name) const;
    WriteResult buildConfigXmlFile(const QString &name) const;

    /* What they write. */
    QByteArray cfgText() const;
    QByteArray xmlText() const;

    /* Writes one section with all below it, each line after the indentation. */
    void buildConfigFile(const QDomNode &node, QTextStream &stream, const QString &indentation = {}) const;
    void buildConfigXmlFile(const QDomNode &node, QTextStream &stream, const QString &indentation = {}) const;

    /* Prints the whole tree, or one subtree, on standard output, in Latin-1. */
    void printConfigTree() const;
    void printConfigTree(const QDomNode &node) const;

    /* A new one-column view of the whole tree, owned by the caller: a branch for each section, an item for
     * each setting and, below it, the one item that can be edited: the value. */
    QTreeWidget *buildConfigListView() const;
    QTreeWidget *newConfigListView() const;

    /* Adds the items of one subtree to the view or below the item. */
    void buildConfigListView(const QDomNode &node, QTreeWidget *view) const;
    void buildConfigListView(const QDomNode &node, QTreeWidgetItem *parent) const;

    /* Takes an edited view back as the new tree and writes it over the file that was read, in the kind it was
     * read as. Does nothing without a view. */
    WriteResult loadListView(const QTreeWidget *view);

    /* Rebuilds one item, with all below it, as a new last child of the parent: a document or a node of one.
     */
    void loadListView(const QTreeWidgetItem *item, QDomNode parent);

protected:
    void constructor(const QString &file, const QString &type);

    /* Opens the byte stream of the "cfg" reader on a regular file; otherwise prints one line on standard
     * output and returns false. */
    bool openFile(const QString &name);
    bool openFile();
    void closeFile();

    /* Skips forward to just after the next c; false at the end of the file. */
    bool jump(char c);

    /* The "cfg" reader for the whole file and for the body of one section. */
    void loadFile();
    void loadFile(const QString &name, const QDomNode &parent);

    /* The "xml" reader. */
    void loadXmlFile();

private:
    using NodeWriter = void (Config::*)(const QDomNode &, QTextStream &, const QString &) const;

    void begin(const QString &file, const QString &type);
    void loadStatements();
    void loadXmlText(const QByteArray &text);

    QDomElement newRootElement() const;
    QDomElement rootElement() const;
    static Section contentOf(const QDomElement &element);
    static QList<QDomAttr> settings(const QDomNode &node);
    QByteArray written(QStringConverter::Encoding encoding, NodeWriter writeNode) const;
    WriteResult save(const QString &name, const QByteArray &bytes) const;

    bool readStatements(QDomElement section, QDomNode parent);
    QString readValue();
    int nextByte();

    QString m_fileName;
    QString m_fileType;
    std::filebuf m_file;
    std::stringbuf m_text;
    std::istream m_inputStream{&m_file}; // on either of them
    std::unique_ptr<QDomDocument> m_document;
    int m_nesting = 0;
};

} // namespace libconfig
