#include "configuration_check.h"

#include "catalogue_texts.h"
#include "configuration_scan.h"
#include "document_profile.h"
#include "escpos_paper.h"
#include "findings.h"
#include "known_settings.h"
#include "label_widths.h"
#include "labels.h"
#include "logo.h"
#include "nearest_name.h"
#include "printer_settings.h"
#include "quoted.h"
#include "row_encoder.h"
#include "tx_configuration.h"

#include <QHash>
#include <QLocale>
#include <QMap>
#include <QSet>
#include <QStringDecoder>
#include <QTranslator>

#include <algorithm>
#include <optional>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

using Kind = Statement::Kind;

constexpr QLatin1StringView topSection = "tavolux"_L1;
constexpr QLatin1StringView languageSection = "tavolux.language"_L1;

/* A document type's key prefix as the path of its section, without the final dot. */
QString sectionPath(const DocumentType &type)
{
    return QString(type.keyPrefix.chopped(1));
}

/* What the paths of the sections in a section are, as far as their names are given. */
QStringList namesOfSections(const QString &parent)
{
    QStringList names;
    if (parent == topSection)
        names << printersKey.sliced(topSection.size() + 1);
    for (const KnownSection &section : knownSections())
        if (section.key.startsWith(parent + u'.'))
            names << section.key.sliced(parent.size() + 1);
    return names;
}

/* Whether anything in a section is ever read. */
bool isRead(const QString &path)
{
    return path == topSection || path == printersKey || !settingsOf(path).empty();
}

/* What the tightest rows of a kind of document leave for the description. Fiscal documents have no rows. */
struct TightestRow
{
    QLatin1StringView documentType;
    int (DocumentProfile::*descriptionWidth)() const;
};

constexpr TightestRow tightestRows[] = {
    {"order"_L1, &DocumentProfile::besideQuantity},
    {"prefiscal"_L1, &DocumentProfile::besideAmounts},
    {"receipt"_L1, &DocumentProfile::besideMultipliedAmounts},
    {"invoice"_L1, &DocumentProfile::besideMultipliedAmounts},
    {"delivery"_L1, &DocumentProfile::besideQuantity},
    {"report"_L1, &DocumentProfile::besideDateAndAmount},
    {"sold"_L1, &DocumentProfile::besideMultipliedAmounts},
};

bool containsAny(const QString &text, QStringView characters)
{
    return std::ranges::find_first_of(text, characters) != text.end();
}

bool isOnOneLine(const QString &text)
{
    return !containsAny(text, u"\r\n");
}

/* Which line of the text, from 0, looks like a comment; none does in most. */
std::optional<int> commentLine(const QString &text)
{
    static constexpr QLatin1StringView marks[] = {"#"_L1, "//"_L1, "/*"_L1, "<!--"_L1, ";"_L1};
    int number = 0;
    for (const QStringView line : QStringView(text).split(u'\n')) {
        if (std::ranges::any_of(marks,
                                [&](QLatin1StringView mark) { return line.trimmed().startsWith(mark); }))
            return number;
        ++number;
    }
    return {};
}

// What is meant as a value holds nothing that looks like a statement.
bool swallowsStatements(const QString &value)
{
    return containsAny(value, u"{}") || (!isOnOneLine(value) && containsAny(value, u"=:"));
}

bool isUtf8ReadAsLatin1(const QString &text)
{
    if (std::ranges::all_of(text, [](QChar c) { return c.unicode() < 0x80; }))
        return false;
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    const QString decoded = decoder(text.toLatin1());
    return !decoder.hasError();
}

QString suggestion(const QString &name, const QStringList &known)
{
    const QString nearest = nearestName(name, known);
    return nearest.isEmpty() ? QString() : Findings::tr("; did you mean %1?").arg(quoted(nearest));
}

/* Whether every file that an output stands for is one of the earlier outputs, as far as that is plain. */
bool isAmong(const QStringList &earlier, const QString &output)
{
    return earlier.contains(output) || (!isOutputPattern(output) && fitsOutput(earlier, output.toLatin1()));
}

/* The characters above ASCII that texts have, each once. */
QString specialCharacters(const QStringList &texts)
{
    QSet<QChar> found;
    for (const QString &text : texts)
        for (const QChar character : text.normalized(QString::NormalizationForm_C))
            if (character >= QChar(0x80))
                found.insert(character);
    QString sorted;
    for (const QChar character : std::as_const(found))
        sorted += character;
    std::ranges::sort(sorted);
    return sorted;
}

/* Notes the line of a name, or returns the one that was noted before. */
std::optional<int> earlierLine(QHash<QString, int> &lines, const QString &name, int line)
{
    const auto noted = lines.constFind(name);
    if (noted != lines.cend())
        return *noted;
    lines.insert(name, line);
    return {};
}

class Check
{
public:
    Check(const QByteArray &text, const QString &kind)
        : m_kind(kind)
        , m_scan(scanConfiguration(text, kind))
        , m_looksLikeXml(kind == "cfg"_L1 && recognizedKind(text) == "xml"_L1)
    {
        m_configuration.readText(text, kind);
    }

    std::vector<Finding> findings()
    {
        if (!m_scan.fault.isEmpty())
            return {{m_scan.faultLine, m_scan.fault}};
        if (m_looksLikeXml)
            return {
                {m_scan.statements.front().line,
                 Findings::tr(
                     "this looks like XML, which --type xml checks; the printing program reads cfg alone")}};
        if (!m_scan.beginsWithRoot)
            add(1,
                Findings::tr("the first node is not the root element but a declaration or a comment, so "
                             "nothing in the file is found"));
        for (const Statement &statement : m_scan.statements)
            check(statement);
        for (const OpenSection &section : m_open)
            add(section.line, Findings::tr("the section %1 is not closed").arg(quoted(section.name)));
        if (m_firstSection.isEmpty())
            add(0, Findings::tr("there is no section \"tavolux\" with settings in it, so nothing is found"));
        checkPrinters();
        checkColumns();
        checkTranslation();
        std::ranges::stable_sort(m_found, {}, &Finding::line);
        return m_found;
    }

private:
    struct OpenSection
    {
        QString name;
        QString path;
        int line;
        bool isRead = false;
        bool holdsStatements = false;
        QHash<QString, int> sectionLines = {};
        QHash<QString, int> settingLines = {};
    };

    void add(int line, const QString &text, const QString &key = {}) { m_found.push_back({line, text, key}); }

    // Of a setting or section that is read, by its key or else another one's.
    void addAt(const QString &key, const QString &text, const QString &otherKey = {})
    {
        const QString &noted = m_lineOf.contains(key) ? key : otherKey;
        add(m_lineOf.value(noted), text, noted);
    }

    void check(const Statement &statement)
    {
        switch (statement.kind) {
        case Kind::sectionBegins:
            beginSection(statement);
            break;
        case Kind::sectionEnds:
            endSection(statement.line);
            break;
        case Kind::setting:
            checkSetting(statement);
            break;
        case Kind::skippedText:
            // A plain remark may well be meant to be passed over.
            if (containsAny(statement.name, u"=:;{}"))
                add(statement.line,
                    Findings::tr("%1 is passed over; is a semicolon or a brace missing before it?")
                        .arg(quoted(statement.name)));
            break;
        case Kind::remark:
            break;
        case Kind::leftoverText:
            add(statement.line,
                m_kind == "cfg"_L1 && commentLine(statement.name)
                    ? Findings::tr("the format has no comments: %1 belongs to no setting and is passed over")
                          .arg(quoted(statement.name))
                    : Findings::tr("%1 belongs to no setting and is passed over")
                          .arg(quoted(statement.name)));
            break;
        }
    }

    void beginSection(const Statement &statement)
    {
        enterTopSection();
        if (m_open.size() == libconfig::Config::maximumNesting) {
            add(statement.line,
                Findings::tr("sections nest deeper than %1, so the reading ends here")
                    .arg(libconfig::Config::maximumNesting));
            m_open.clear();
            return;
        }

        OpenSection section{statement.name, statement.name, statement.line};
        if (!statement.complete)
            add(section.line,
                Findings::tr("no opening brace follows the section %1").arg(quoted(section.name)));
        else if (section.name.isEmpty())
            add(section.line, Findings::tr("a section without a name is never read"));
        else if (isLegible(section.line, section.name) && !m_open.empty() && m_open.back().isRead)
            checkSection(section);
        if (statement.complete)
            m_open.push_back(section);
    }

    void endSection(int line)
    {
        if (m_open.empty())
            add(line, Findings::tr("a closing brace that closes no section ends the reading here"));
        else
            m_open.pop_back();
    }

    // A top-level section is there only once something stands in it.
    void enterTopSection()
    {
        if (m_open.size() != 1 || std::exchange(m_open.front().holdsStatements, true)
            || m_open.front().name.isEmpty())
            return;
        OpenSection &section = m_open.front();
        if (!m_firstSection.isEmpty()) {
            add(section.line,
                Findings::tr("the section %1 is never read: only the first one, %2, is")
                    .arg(quoted(section.name), quoted(m_firstSection)),
                section.name);
            return;
        }
        m_firstSection = section.name;
        if (section.name == topSection)
            section.isRead = true;
        else
            add(section.line,
                Findings::tr("the first section is %1, not \"tavolux\", so nothing in the file is found")
                    .arg(quoted(section.name)),
                section.name);
    }

    // A section below one that is read.
    void checkSection(OpenSection &section)
    {
        OpenSection &parent = m_open.back();
        section.path = parent.path + u'.' + section.name;
        section.isRead = !section.name.contains(u'.') && isRead(section.path); // a dot would part its keys
        if (!section.isRead) {
            add(section.line,
                Findings::tr("%1 is no section of %2 that is ever read%3")
                    .arg(quoted(section.name), quoted(parent.path),
                         suggestion(section.name, namesOfSections(parent.path))),
                section.path);
            return;
        }
        m_lineOf.insert(section.path, m_lineOf.value(section.path, section.line));
        if (const auto earlier = earlierLine(parent.sectionLines, section.name, section.line))
            add(section.line,
                Findings::tr(
                    "the section %1 is given twice, first in line %2; of each setting the first that is not "
                    "empty counts")
                    .arg(quoted(section.path), QString::number(*earlier)),
                section.path);
    }

    void checkSetting(const Statement &setting)
    {
        enterTopSection();
        const QString name = quoted(setting.name);
        const QString key = (m_open.empty() ? QString() : m_open.back().path + u'.') + setting.name;
        const bool legible = isLegible(setting.line, setting.name);
        if (m_open.empty())
            add(setting.line,
                Findings::tr("%1 is set outside of any section, where it is never found").arg(name), key);
        if (!setting.complete)
            add(setting.line,
                Findings::tr("the value of %1 runs to the end of the file; is a semicolon missing?")
                    .arg(name),
                key);
        if (m_kind == "cfg"_L1 && swallowsStatements(setting.value)) {
            add(setting.line,
                Findings::tr("the value of %1 takes in %2; is a semicolon missing?")
                    .arg(name, quoted(setting.value)),
                key);
            return;
        }
        const KnownSetting *const known = findSetting(key);
        if (!known || known->kind != SettingKind::file) // whose name is bytes
            checkCharacters(setting.line, setting.value, key);
        if (!legible || m_open.empty() || !m_open.back().isRead)
            return;

        OpenSection &section = m_open.back();
        if (!known) {
            QStringList names;
            for (const KnownSetting *other : settingsOf(section.path))
                names << other->name;
            add(setting.line,
                Findings::tr("%1 is no setting of %2 that is ever read%3")
                    .arg(name, quoted(section.path), suggestion(setting.name, names)),
                key);
            return;
        }
        m_lineOf.insert(key, setting.line);
        if (const auto earlier = earlierLine(section.settingLines, setting.name, setting.line))
            add(setting.line,
                Findings::tr("%1 is given twice, first in line %2; the last one counts")
                    .arg(name, QString::number(*earlier)),
                key);
        if (const QString fault = valueFault(*known, setting.value); !fault.isEmpty())
            add(setting.line, fault, key);
    }

    // Whether a name is one, and nothing more.
    bool isLegible(int line, const QString &name)
    {
        checkCharacters(line, name);
        if (const auto comment = m_kind == "cfg"_L1 ? commentLine(name) : std::nullopt) {
            add(line + *comment,
                Findings::tr("the format has no comments: %1 is taken for one name").arg(quoted(name)));
            return false;
        }
        if (isOnOneLine(name) && !containsAny(name, u"{;\""))
            return true;
        add(line, Findings::tr("%1 is taken for one name; is something missing in it?").arg(quoted(name)));
        return false;
    }

    void checkCharacters(int line, const QString &text, const QString &key = {})
    {
        if (m_kind == "cfg"_L1 && isUtf8ReadAsLatin1(text))
            add(line, Findings::tr("this is UTF-8, but the file is read as Latin-1: %1").arg(quoted(text)),
                key);
        if (m_kind == "xml"_L1 && std::ranges::any_of(text, [](QChar c) { return c.unicode() > 0xFF; }))
            add(line,
                Findings::tr("characters outside of Latin-1 are read as question marks: %1")
                    .arg(quoted(text)),
                key);
    }

    QString value(const QString &section, QLatin1StringView setting) const
    {
        return m_configuration.getStrValue(section + u'.' + setting);
    }

    void checkPrinters()
    {
        QStringList names = printerNames(m_configuration);
        names.removeDuplicates();
        QStringList earlierOutputs;
        for (const QString &name : std::as_const(names)) {
            const QString section = printersKey + u'.' + name;
            if (!m_lineOf.contains(section))
                continue; // named already
            const PrinterSettings printer =
                printerOfName(m_configuration, name, [](auto &&...) { /* told with their lines */ });
            if (value(section, "model"_L1).isEmpty())
                addAt(section,
                      Findings::tr("%1 names no model, so it prints plain text").arg(quoted(section)));
            if (value(section, "output"_L1).isEmpty())
                addAt(section,
                      Findings::tr("%1 names no output, so no document comes to it").arg(quoted(section)));
            else if (std::ranges::all_of(printer.outputs, [&](const QString &output) {
                         return isAmong(earlierOutputs, output);
                     }))
                addAt(section,
                      Findings::tr("no document comes to %1: the printers before it have all of its outputs")
                          .arg(quoted(section)));
            earlierOutputs += printer.outputs;
            if (printer.model->isPlainText())
                continue;
            m_receiptPrinters.push_back(printer);
            checkProfileWidths(printer);
            checkLogo(printer, section);
        }
    }

    void checkProfileWidths(const PrinterSettings &printer)
    {
        for (const DocumentType &type : documentTypes) {
            const QString section = sectionPath(type);
            const QString width = value(section, "paperWidth"_L1);
            if (width.toInt() > printer.columns)
                addAt(section + ".paperWidth"_L1,
                      Findings::tr("\"paperWidth\" is %1, more than the %2 columns of the printer %3")
                          .arg(quoted(width), QString::number(printer.columns), quoted(printer.name)));
        }
    }

    void checkLogo(const PrinterSettings &printer, const QString &section)
    {
        if (printer.storedLogo > 0 || printer.logoFile.isEmpty())
            return;
        if (const QString fault = EscposPaper::logoOf(printer).fault; !fault.isEmpty())
            addAt(
                section + ".logo"_L1,
                Findings::tr("the logo %1 is not printed: %2").arg(quoted(value(section, "logo"_L1)), fault));
    }

    void checkLabels(const PrinterSettings &printer, const QString &characters)
    {
        std::vector<CodePageEncoder> pages;
        for (const CodePage page : printer.pages())
            pages.emplace_back(page);
        RowEncoder encoder(printer.pages());
        QStringList replaced;
        for (const QChar character : characters) {
            const auto has = [&](CodePageEncoder &page) { return page.byte(character.unicode()) != 0; };
            if (std::ranges::any_of(pages, has))
                continue;
            StyledLine line;
            line.append(QStringView(&character, 1), {});
            QString shown;
            for (const Cell &cell : encoder.encode(line))
                shown += QChar(cell.shown);
            replaced.append(Findings::tr("%1 (comes out as %2)").arg(quoted(character), quoted(shown)));
        }
        if (!replaced.isEmpty())
            addAt(printersKey + u'.' + printer.name,
                  Findings::tr("the labels have characters that no code page of the printer %1 has: %2")
                      .arg(quoted(printer.name), replaced.join(", "_L1)));
    }

    void checkLabelWidths(const QTranslator &labels)
    {
        for (const DocumentType &type : documentTypes) {
            const QString section = sectionPath(type);
            if (!m_lineOf.contains(section))
                continue; // without a section there are no columns
            for (const auto &[setting, text] : wideLabels(type, profileOf(section), labels))
                addAt(section + u'.' + setting, text, section);
        }
    }

    // As the narrowest printer prints with it.
    DocumentProfile profileOf(const QString &section) const
    {
        DocumentProfile profile =
            DocumentProfile::load([&](QLatin1StringView setting) { return value(section, setting); });
        if (profile.paperWidth == 0)
            profile.paperWidth = narrowestPaper();
        return profile;
    }

    // What a paperWidth of 0 becomes on the narrowest printer.
    int narrowestPaper() const
    {
        const auto narrowest = std::ranges::min_element(m_receiptPrinters, {}, &PrinterSettings::columns);
        return narrowest == m_receiptPrinters.end() ? plainTextModel().columns : narrowest->columns;
    }

    void checkColumns()
    {
        for (const auto &[typeName, descriptionWidth] : tightestRows) {
            const QString section =
                sectionPath(*std::ranges::find(documentTypes, typeName, &DocumentType::name));
            const DocumentProfile profile = profileOf(section);
            if (const int width = (profile.*descriptionWidth)(); width <= 0)
                addAt(section,
                      Findings::tr("%1 leaves no room for descriptions: of %2 characters in a line the other "
                                   "columns take %3")
                          .arg(quoted(section), QString::number(profile.paperWidth),
                               QString::number(profile.paperWidth - width)));
        }
    }

    void checkTranslation()
    {
        const QString basedir = value(languageSection, "basedir"_L1);
        const QString file = value(languageSection, "file"_L1);
        const bool byLocale = file == "/"_L1;
        const QLocale locale = QLocale::system();
        // Without either no translation is wanted, and English is what the labels are anyway.
        if ((basedir + file).isEmpty()
            || (byLocale && (locale.language() == QLocale::English || locale.language() == QLocale::C)))
            return;

        QTranslator translator;
        const QString name = basedir + (byLocale ? "/tavolux_"_L1 + locale.name() : file);
        if (swallowsStatements(name))
            return; // named already
        if (loadLabels(translator, m_configuration)) {
            const QString characters = specialCharacters(catalogueTexts(translator.filePath()));
            for (const PrinterSettings &printer : m_receiptPrinters)
                checkLabels(printer, characters);
            checkLabelWidths(translator);
            return;
        }
        addAt(languageSection + ".file"_L1, Findings::tr("the translation \"%1\" is not found").arg(name),
              languageSection + ".basedir"_L1);
    }

    const QString m_kind;
    const Scan m_scan;
    const bool m_looksLikeXml;
    TXConfiguration m_configuration{{}, {}};
    std::vector<Finding> m_found;
    std::vector<OpenSection> m_open;
    QString m_firstSection;
    std::vector<PrinterSettings> m_receiptPrinters;
    QHash<QString, int> m_lineOf; // of sections that are read and of their settings, by path
};

} // namespace

std::vector<Finding> checkConfiguration(const QByteArray &text, const QString &kind)
{
    return Check(text, kind).findings();
}
