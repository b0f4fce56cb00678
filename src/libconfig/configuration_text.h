#pragma once

#include "configuration_scan.h"

#include <QByteArray>
#include <QMap>
#include <QString>
#include <QStringList>

#include <optional>
#include <vector>

namespace libconfig {

/* A change of a text: the bytes at a place give way to others. */
struct TextChange
{
    qsizetype position = 0;
    QByteArray removed = {};
    QByteArray inserted = {};
    QString fault = {}; // why what was wanted cannot be done; the other fields are empty then

    explicit operator bool() const { return fault.isEmpty(); }

    /* The text after the change. */
    QByteArray appliedTo(const QByteArray &text) const;

    /* What undoes it. */
    TextChange reversed() const { return {position, inserted, removed}; }
};

/* A setting to be written: its name and its value. */
using NamedValue = std::pair<QString, QString>;

/*
 * The text of a configuration file as a tree of what stands where, for programs that change single settings.
 * A change names the bytes that it takes and leaves all others as they are: order, layout and whatever the
 * store passes over. It is made from the text that the tree was made from; of the changed text make a new
 * tree.
 */
class ConfigurationText
{
public:
    /* A section, or a setting with its value. The first is the file itself, a section without a name that
     * holds what stands at the top. */
    struct Entry
    {
        enum class Kind { section, setting };

        Kind kind = Kind::section;
        QString name = {};
        QString value = {};
        int line = 0;
        int parent = -1;
        std::vector<int> children = {}; // in the order of the file
        bool complete = true; // false: the file ends before the brace or the semicolon that is due
        Span span = {}; // of the whole
        Span head = {}; // of a section: to its opening brace; its opening tag
        Span tail = {}; // of a section: from its closing brace; its closing tag, empty without one
        Span valueSpan = {}; // of a setting, as Statement has it

        bool isSetting() const { return kind == Kind::setting; }
    };

    static constexpr int wholeFile = 0;

    /* The text is of the kind "cfg" or "xml". */
    explicit ConfigurationText(const QByteArray &text = {}, const QString &kind = QStringLiteral("cfg"));

    /* Why nothing in the text can be read, or nothing changed; empty when all is well. Then there are no
     * entries but the file. */
    const QString &fault() const { return m_fault; }

    const QByteArray &text() const { return m_text; }
    const QString &kind() const { return m_kind; }
    const std::vector<Entry> &entries() const { return m_entries; }
    const Entry &entry(int index) const { return m_entries[static_cast<std::size_t>(index)]; }

    /* The dotted key of an entry; empty for the file. */
    QString keyOf(int index) const;

    /* The setting whose value a lookup of the key finds, or else the first one that a lookup passes, with an
     * empty value. */
    std::optional<int> settingOf(const QString &key) const;

    /* The first section that a lookup of a key below it enters. */
    std::optional<int> sectionOf(const QString &key) const;

    /* Gives a setting another value. Refused is what would be read back differently. */
    TextChange setValue(int setting, const QString &value) const;

    /* Adds a setting at the end of a section, or a section with settings, laid out as their neighbours are. A
     * path of several names is a section in a new section. Refused is a name that could not be looked up. */
    TextChange addSetting(int section, const QString &name, const QString &value) const;
    TextChange addSection(int section, const QStringList &path,
                          const std::vector<NamedValue> &settings) const;

    /* Takes away a setting, or a section with all that stands in it, and the lines that it has to itself. */
    TextChange remove(int index) const;

    /* Gives a key a value: that of the setting that a lookup finds, else a new one's, for which the sections
     * that are missing are added. */
    TextChange set(const QString &key, const QString &value) const;

private:
    bool isXml() const;
    void build(const Scan &scan);
    bool isInTree(int section) const;
    std::optional<int> firstSection() const;
    std::optional<int> settingBelow(int section, const QStringList &components) const;

    bool isName(const QString &name) const;
    QString nameFault(const QStringList &names) const;
    QString fitness(const std::vector<NamedValue> &settings) const;
    QByteArray written(const QString &name, const QString &value) const;
    QByteArray written(const QStringList &path, const std::vector<NamedValue> &settings,
                       const QByteArray &gap) const;

    QString roomFault(int index, qsizetype newSections) const;
    TextChange insertion(qsizetype position, const QByteArray &bytes) const;
    template <typename Write>
    TextChange addStatement(int index, Entry::Kind kind, Write write) const;
    TextChange addElement(int index, const QStringList &path, const std::vector<NamedValue> &settings) const;

    QByteArray gapBefore(qsizetype position) const;
    QByteArray indentationOf(int index) const;
    QByteArray indentationStep() const;
    QByteArray lineEnd() const;

    QByteArray m_text;
    QString m_kind;
    QString m_fault;
    std::vector<Entry> m_entries;
};

} // namespace libconfig
