#include "configuration_check.h"

#include "configuration_scan.h"
#include "document_profile.h"
#include "nearest_name.h"
#include "quoted.h"
#include "tx_configuration.h"

#include <QHash>
#include <QLocale>
#include <QMap>
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

// Of the plain-text printer, the one there is: what a paperWidth of 0 becomes.
constexpr int devicePaperWidth = 34;

enum class ValueKind { text, number, onOff };
using KnownSettings = QMap<QString, ValueKind>;

/* A document type's key prefix as the path of its section, without the final dot. */
QString sectionPath(const DocumentType &type)
{
    return QString(type.keyPrefix.chopped(1));
}

/* Every section that is read, by its path, with its settings. */
const QMap<QString, KnownSettings> &knownSections()
{
    static const auto sections = [] {
        KnownSettings profile{{DocumentProfile::style, ValueKind::text},
                              {DocumentProfile::topMargin, ValueKind::number}};
        for (const auto &width : profileWidths)
            profile.insert(width.name, ValueKind::number);
        for (const auto &onOff : profileSwitches)
            profile.insert(onOff.name, ValueKind::onOff);

        QMap<QString, KnownSettings> known{
            {topSection, {}},
            {languageSection, {{u"basedir"_s, ValueKind::text}, {u"file"_s, ValueKind::text}}}};
        for (const DocumentType &type : documentTypes) {
            KnownSettings &settings = known[sectionPath(type)] = profile;
            if (type.name == "fiscal"_L1)
                settings.insert(DocumentProfile::descriptionWidth, ValueKind::number);
        }
        return known;
    }();
    return sections;
}

/* What the tightest rows of a kind of document leave for the description. Fiscal documents have no rows. */
struct TightestRow
{
    QLatin1StringView documentType;
    int (*descriptionWidth)(const DocumentProfile &);
};

int besideQuantity(const DocumentProfile &profile)
{
    return profile.paperWidth - profile.quantityFieldWidth - 3;
}

int besideAmounts(const DocumentProfile &profile)
{
    return profile.paperWidth - profile.quantityFieldWidth - profile.priceFieldWidth
        - profile.totalPriceFieldWidth - 1;
}

int besideMultipliedAmounts(const DocumentProfile &profile)
{
    return besideAmounts(profile) - 2;
}

int besideDateAndAmount(const DocumentProfile &profile)
{
    return profile.paperWidth - 15 - profile.priceFieldWidth - 3;
}

constexpr TightestRow tightestRows[] = {
    {"order"_L1, besideQuantity},
    {"prefiscal"_L1, besideAmounts},
    {"receipt"_L1, besideMultipliedAmounts},
    {"invoice"_L1, besideMultipliedAmounts},
    {"delivery"_L1, besideQuantity},
    {"report"_L1, besideDateAndAmount},
    {"sold"_L1, besideMultipliedAmounts},
};

bool containsAny(const QString &text, QStringView characters)
{
    return std::ranges::find_first_of(text, characters) != text.end();
}

bool isOnOneLine(const QString &text)
{
    return !containsAny(text, u"\r\n");
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
    return nearest.isEmpty() ? QString() : u"; did you mean %1?"_s.arg(quoted(nearest));
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
    Check(const QString &file, const QString &kind, const QByteArray &text)
        : m_kind(kind)
        , m_scan(scanConfiguration(text, kind))
        , m_configuration(file, kind)
    {
    }

    std::vector<Finding> findings()
    {
        if (!m_scan.fault.isEmpty())
            return {{m_scan.faultLine, m_scan.fault}};
        if (m_kind == "cfg"_L1 && !m_scan.statements.empty()
            && m_scan.statements.front().name.startsWith(u'<'))
            return {
                {m_scan.statements.front().line,
                 u"this looks like XML, which --type xml checks; the printing program reads cfg alone"_s}};
        if (!m_scan.beginsWithRoot)
            add(1,
                u"the first node is not the root element but a declaration or a comment, so nothing in the "
                u"file is found"_s);
        for (const Statement &statement : m_scan.statements)
            check(statement);
        for (const OpenSection &section : m_open)
            add(section.line, u"the section %1 is not closed"_s.arg(quoted(section.name)));
        if (m_firstSection.isEmpty())
            add(0, u"there is no section \"tavolux\" with settings in it, so nothing is found"_s);
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
        bool isRead = false; // one of the known sections, where it belongs
        bool holdsStatements = false;
        QHash<QString, int> sectionLines = {};
        QHash<QString, int> settingLines = {};
    };

    void add(int line, const QString &text) { m_found.push_back({line, text}); }

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
                    u"%1 is passed over; is a semicolon or a brace missing before it?"_s.arg(
                        quoted(statement.name)));
            break;
        case Kind::remark:
            break;
        case Kind::leftoverText:
            add(statement.line, u"%1 belongs to no setting and is passed over"_s.arg(quoted(statement.name)));
            break;
        }
    }

    void beginSection(const Statement &statement)
    {
        enterTopSection();
        if (m_open.size() == libconfig::Config::maximumNesting) {
            add(statement.line,
                u"sections nest deeper than %1, so the reading ends here"_s.arg(
                    libconfig::Config::maximumNesting));
            m_open.clear();
            return;
        }

        OpenSection section{statement.name, statement.name, statement.line};
        if (!statement.complete)
            add(section.line, u"no opening brace follows the section %1"_s.arg(quoted(section.name)));
        else if (section.name.isEmpty())
            add(section.line, u"a section without a name is never read"_s);
        else if (isLegible(section.line, section.name) && !m_open.empty() && m_open.back().isRead)
            checkSection(section);
        if (statement.complete)
            m_open.push_back(section);
    }

    void endSection(int line)
    {
        if (m_open.empty())
            add(line, u"a closing brace that closes no section ends the reading here"_s);
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
                u"the section %1 is never read: only the first one, %2, is"_s.arg(quoted(section.name),
                                                                                  quoted(m_firstSection)));
            return;
        }
        m_firstSection = section.name;
        section.isRead = section.name == topSection;
        if (!section.isRead)
            add(section.line,
                u"the first section is %1, not \"tavolux\", so nothing in the file is found"_s.arg(
                    quoted(section.name)));
    }

    // A section below one that is read.
    void checkSection(OpenSection &section)
    {
        OpenSection &parent = m_open.back();
        const QMap<QString, KnownSettings> &known = knownSections();
        section.path = parent.path + u'.' + section.name;
        section.isRead = known.contains(section.path);
        if (!section.isRead) {
            QStringList names;
            for (auto path = known.keyBegin(); path != known.keyEnd(); ++path)
                if (path->startsWith(parent.path + u'.'))
                    names.append(path->sliced(parent.path.size() + 1));
            add(section.line,
                u"%1 is no section of %2 that is ever read%3"_s.arg(quoted(section.name), quoted(parent.path),
                                                                    suggestion(section.name, names)));
            return;
        }
        m_lineOf.insert(section.path, m_lineOf.value(section.path, section.line));
        if (const auto earlier = earlierLine(parent.sectionLines, section.name, section.line))
            add(section.line,
                u"the section %1 is given twice, first in line %2; of each setting the first that is not "
                u"empty counts"_s.arg(quoted(section.path), QString::number(*earlier)));
    }

    void checkSetting(const Statement &setting)
    {
        enterTopSection();
        const QString name = quoted(setting.name);
        const bool legible = isLegible(setting.line, setting.name);
        if (m_open.empty())
            add(setting.line, u"%1 is set outside of any section, where it is never found"_s.arg(name));
        if (!setting.complete)
            add(setting.line,
                u"the value of %1 runs to the end of the file; is a semicolon missing?"_s.arg(name));
        if (m_kind == "cfg"_L1 && swallowsStatements(setting.value)) {
            add(setting.line,
                u"the value of %1 takes in %2; is a semicolon missing?"_s.arg(name, quoted(setting.value)));
            return;
        }
        checkCharacters(setting.line, setting.value);
        if (!legible || m_open.empty() || !m_open.back().isRead)
            return;

        OpenSection &section = m_open.back();
        const KnownSettings &known = knownSections()[section.path];
        const auto valueKind = known.constFind(setting.name);
        if (valueKind == known.cend()) {
            add(setting.line,
                u"%1 is no setting of %2 that is ever read%3"_s.arg(name, quoted(section.path),
                                                                    suggestion(setting.name, known.keys())));
            return;
        }
        m_lineOf.insert(section.path + u'.' + setting.name, setting.line);
        if (const auto earlier = earlierLine(section.settingLines, setting.name, setting.line))
            add(setting.line,
                u"%1 is given twice, first in line %2; the last one counts"_s.arg(name,
                                                                                  QString::number(*earlier)));
        if (*valueKind == ValueKind::onOff)
            checkSwitch(setting);
        else if (*valueKind == ValueKind::number)
            checkNumber(setting);
    }

    void checkSwitch(const Statement &setting)
    {
        if (setting.value != "true"_L1 && setting.value != "false"_L1)
            add(setting.line,
                u"%1 is %2, neither \"true\" nor \"false\", so it is off"_s.arg(quoted(setting.name),
                                                                                quoted(setting.value)));
    }

    void checkNumber(const Statement &setting)
    {
        const auto complain = [&](const QString &what) {
            add(setting.line, u"%1 is %2, %3"_s.arg(quoted(setting.name), quoted(setting.value), what));
        };
        bool isNumber = false;
        const int number = setting.value.toInt(&isNumber);
        if (!isNumber)
            complain(u"no usable whole number, so it counts as 0"_s);
        else if (number < 0)
            complain(u"a negative number"_s);
        else if (number > DocumentProfile::widestLine)
            complain(u"more than any paper holds"_s);
    }

    // Whether a name is one, and nothing more.
    bool isLegible(int line, const QString &name)
    {
        checkCharacters(line, name);
        if (isOnOneLine(name) && !containsAny(name, u"{;\""))
            return true;
        add(line, u"%1 is taken for one name; is something missing in it?"_s.arg(quoted(name)));
        return false;
    }

    void checkCharacters(int line, const QString &text)
    {
        if (m_kind == "cfg"_L1 && isUtf8ReadAsLatin1(text))
            add(line, u"this is UTF-8, but the file is read as Latin-1: %1"_s.arg(quoted(text)));
        if (m_kind == "xml"_L1 && std::ranges::any_of(text, [](QChar c) { return c.unicode() > 0xFF; }))
            add(line, u"characters outside of Latin-1 are read as question marks: %1"_s.arg(quoted(text)));
    }

    QString value(const QString &section, QLatin1StringView setting) const
    {
        return m_configuration.getStrValue(section + u'.' + setting);
    }

    void checkColumns()
    {
        for (const auto &[typeName, descriptionWidth] : tightestRows) {
            const QString section =
                sectionPath(*std::ranges::find(documentTypes, typeName, &DocumentType::name));
            DocumentProfile profile =
                DocumentProfile::load([&](QLatin1StringView setting) { return value(section, setting); });
            if (profile.paperWidth == 0)
                profile.paperWidth = devicePaperWidth;
            if (const int width = descriptionWidth(profile); width <= 0)
                add(m_lineOf.value(section),
                    u"%1 leaves no room for descriptions: of %2 characters in a line the other columns take %3"_s
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

        // As the printing program loads it.
        QTranslator translator;
        const QString name = basedir + (byLocale ? "/tavolux_"_L1 + locale.name() : file);
        if (swallowsStatements(name))
            return; // named already
        if (!translator.load(name))
            add(m_lineOf.value(languageSection + ".file"_L1, m_lineOf.value(languageSection + ".basedir"_L1)),
                u"the translation \"%1\" is not found"_s.arg(name));
    }

    const QString m_kind;
    const Scan m_scan;
    const TXConfiguration m_configuration;
    std::vector<Finding> m_found;
    std::vector<OpenSection> m_open;
    QString m_firstSection;
    QHash<QString, int> m_lineOf; // of sections that are read and of their settings, by path
};

} // namespace

std::vector<Finding> checkConfiguration(const QString &file, const QString &kind, const QByteArray &text)
{
    return Check(file, kind, text).findings();
}
