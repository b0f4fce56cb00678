#include "configuration_text.h"

#include "config.h"
#include "findings.h"
#include "quoted.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace libconfig {

namespace {

using Entry = ConfigurationText::Entry;
using Kind = Statement::Kind;

TextChange refusal(const QString &fault)
{
    return {.fault = fault};
}

QString firstOf(const QString &fault, const QString &another)
{
    return fault.isEmpty() ? another : fault;
}

bool isBlank(char c)
{
    return QByteArrayView(" \t\r\n").contains(c);
}

bool hasLineEnd(QByteArrayView text)
{
    return text.contains('\n');
}

/* From the last line end on; the text itself without one. */
QByteArray fromLastLine(const QByteArray &blanks, const QByteArray &lineEnd)
{
    const qsizetype last = blanks.lastIndexOf('\n');
    return last < 0 ? blanks : lineEnd + blanks.sliced(last + 1);
}

bool isBeyondLatin1(const QString &text)
{
    return std::ranges::any_of(text, [](QChar c) { return c.unicode() > 0xFF; });
}

bool isAsciiName(const QString &name)
{
    const auto isLetter = [](QChar c) { return c.unicode() < 0x80 && (c.isLetter() || c == u'_'); };
    return !name.isEmpty() && isLetter(name.front()) && std::ranges::all_of(name, [&](QChar c) {
        return isLetter(c) || (c.unicode() < 0x80 && c.isDigit()) || c == u'-' || c == u'.';
    });
}

/* Whether a value is read back without quotes, and looks like one word. */
bool isWord(const QString &value)
{
    return !value.isEmpty()
        && std::ranges::all_of(value, [](QChar c) { return c.isLetterOrNumber() || u"._-"_s.contains(c); });
}

bool isQuoted(QByteArrayView value)
{
    return value.size() >= 2 && value.startsWith('"') && value.endsWith('"');
}

QByteArray escaped(const QString &value)
{
    QByteArray bytes;
    for (const char c : value.toUtf8()) {
        switch (c) {
        case '&':
            bytes += "&amp;";
            break;
        case '<':
            bytes += "&lt;";
            break;
        case '"':
            bytes += "&quot;";
            break;
        case '\'':
            bytes += "&apos;";
            break;
        case '\t':
        case '\n':
        case '\r': // which would be read as blanks
            bytes += "&#" + QByteArray::number(c) + ';';
            break;
        default:
            bytes += c;
        }
    }
    return bytes;
}

} // namespace

QByteArray TextChange::appliedTo(const QByteArray &text) const
{
    return QByteArray(text).replace(position, removed.size(), inserted);
}

ConfigurationText::ConfigurationText(const QByteArray &text, const QString &kind)
    : m_text(text)
    , m_kind(kind)
    , m_entries(1)
{
    const Scan scan = scanConfiguration(text, kind);
    if (!scan.fault.isEmpty())
        m_fault = Findings::tr("line %1: %2").arg(QString::number(scan.faultLine), scan.fault);
    else if (!scan.beginsWithRoot)
        m_fault = Findings::tr(
            "it does not begin with its root element but with a declaration or a comment, so nothing in "
            "it is found");
    else if (isXml() && text.contains('\0'))
        m_fault = Findings::tr("it is in UTF-16, and only UTF-8 can be changed in place");
    else
        build(scan);
}

bool ConfigurationText::isXml() const
{
    return m_kind == "xml"_L1;
}

void ConfigurationText::build(const Scan &scan)
{
    const Span end{m_text.size(), m_text.size()};
    m_entries[wholeFile].tail = end;
    m_entries.reserve(scan.statements.size() + 1);
    std::vector<int> open{wholeFile};
    const auto add = [&](Entry entry) {
        const int index = static_cast<int>(m_entries.size());
        entry.parent = open.back();
        m_entries[static_cast<std::size_t>(open.back())].children.push_back(index);
        m_entries.push_back(std::move(entry));
        return index;
    };
    for (const Statement &statement : scan.statements) {
        if (statement.kind == Kind::setting) {
            add({.kind = Entry::Kind::setting,
                 .name = statement.name,
                 .value = statement.value,
                 .line = statement.line,
                 .complete = statement.complete,
                 .span = statement.span,
                 .valueSpan = statement.valueSpan});
        } else if (statement.kind == Kind::sectionBegins) {
            open.push_back(add({.name = statement.name,
                                .line = statement.line,
                                .complete = false,
                                .span = {statement.span.begin, end.end},
                                .head = statement.span,
                                .tail = end}));
        } else if (statement.kind == Kind::sectionEnds) {
            Entry &section = m_entries[static_cast<std::size_t>(open.back())];
            section.complete = statement.complete;
            section.span.end = statement.span.end;
            section.tail = statement.span;
            if (open.size() == 1)
                return; // what follows is never read
            open.pop_back();
        }
    }
    m_entries[wholeFile].span = {0, end.end};
}

QString ConfigurationText::keyOf(int index) const
{
    QStringList names;
    for (; index > wholeFile; index = entry(index).parent)
        names.prepend(entry(index).name);
    return names.join(u'.');
}

// A section enters the store with its first statement; an element at once.
bool ConfigurationText::isInTree(int section) const
{
    return !entry(section).isSetting() && !entry(section).name.isEmpty()
        && (isXml() || !entry(section).children.empty());
}

std::optional<int> ConfigurationText::firstSection() const
{
    const std::vector<int> &top = entry(wholeFile).children;
    const auto first = std::ranges::find_if(top, [this](int index) { return isInTree(index); });
    return first == top.end() ? std::nullopt : std::optional(*first);
}

std::optional<int> ConfigurationText::settingBelow(int section, const QStringList &components) const
{
    if (!isInTree(section) || entry(section).name != components.front())
        return {};
    std::optional<int> found;
    if (components.value(2).isEmpty()) {
        for (const int child : entry(section).children)
            if (entry(child).isSetting() && entry(child).name == components.value(1))
                found = child; // the last one counts
        return found;
    }
    for (const int child : entry(section).children) {
        const std::optional<int> below = settingBelow(child, components.sliced(1));
        if (below && !entry(*below).value.isEmpty())
            return below;
        found = found ? found : below;
    }
    return found;
}

std::optional<int> ConfigurationText::settingOf(const QString &key) const
{
    const std::optional<int> first = firstSection();
    return first ? settingBelow(*first, key.split(u'.')) : std::nullopt;
}

std::optional<int> ConfigurationText::sectionOf(const QString &key) const
{
    std::optional<int> section = firstSection();
    int parent = wholeFile;
    for (const QString &name : key.split(u'.')) {
        // At the top only the first section is entered, unless there is none yet.
        if (parent != wholeFile || !section) {
            const std::vector<int> &children = entry(parent).children;
            const auto found = std::ranges::find_if(
                children, [&](int index) { return !entry(index).isSetting() && entry(index).name == name; });
            section = found == children.end() ? std::nullopt : std::optional(*found);
        }
        if (!section || entry(*section).name != name)
            return {};
        parent = *section;
    }
    return section;
}

bool ConfigurationText::isName(const QString &name) const
{
    if (isXml())
        return isAsciiName(name);
    return !name.isEmpty() && name == name.trimmed() && !isBeyondLatin1(name)
        && std::ranges::none_of(name, [](QChar c) { return c < u' ' || u":={};\""_s.contains(c); });
}

// Which of the names could not be looked up; empty when all could.
QString ConfigurationText::nameFault(const QStringList &names) const
{
    const auto wrong = std::ranges::find_if(
        names, [this](const QString &name) { return !isName(name) || name.contains(u'.'); });
    return wrong == names.end() ? QString()
                                : Findings::tr("%1 is no name that could be looked up").arg(quoted(*wrong));
}

// Why a setting would be read back differently; empty when it would not.
QString ConfigurationText::fitness(const std::vector<NamedValue> &settings) const
{
    for (const auto &[name, value] : settings) {
        if (isBeyondLatin1(value))
            return Findings::tr("the value %1 has characters outside of Latin-1, which would be lost")
                .arg(quoted(value));
        for (const QChar c : value) {
            if (!isXml() && (c == u';' || c == u'"'))
                return (c == u';' ? Findings::tr("a value cannot have a semicolon: %1")
                                  : Findings::tr("a value cannot have a double quote: %1"))
                    .arg(quoted(value));
            if (c < u' ' && !u"\t\n\r"_s.contains(c))
                return Findings::tr("a value cannot have control characters: %1").arg(quoted(value));
        }
    }
    return {};
}

QByteArray ConfigurationText::written(const QString &name, const QString &value) const
{
    if (isXml())
        return name.toUtf8() + "=\"" + escaped(value) + '"';
    const QByteArray bytes = value.toLatin1();
    return name.toLatin1() + " = " + (isWord(value) ? bytes : '"' + bytes + '"') + ';';
}

// After so many blanks: on lines of its own if they have a line end.
QByteArray ConfigurationText::written(const QStringList &path, const std::vector<NamedValue> &settings,
                                      const QByteArray &gap) const
{
    const bool isLast = path.size() == 1;
    const QByteArray inner = hasLineEnd(gap) ? gap + indentationStep() : " "_ba;
    QByteArray bytes = isXml() ? '<' + path.front().toUtf8() : path.front().toLatin1() + " : {";
    if (isLast)
        for (const auto &[name, value] : settings)
            bytes += (isXml() ? " "_ba : inner) + written(name, value);
    if (isXml() && isLast)
        return bytes + "/>";
    if (isXml())
        bytes += '>';
    if (!isLast)
        bytes += inner + written(path.sliced(1), settings, inner);
    const QByteArray outer = hasLineEnd(gap) ? gap : " "_ba;
    return bytes + outer + (isXml() ? "</" + path.front().toUtf8() + '>' : "};"_ba);
}

QByteArray ConfigurationText::lineEnd() const
{
    const qsizetype first = m_text.indexOf('\n');
    return first > 0 && m_text[first - 1] == '\r' ? "\r\n"_ba : "\n"_ba;
}

QByteArray ConfigurationText::gapBefore(qsizetype position) const
{
    qsizetype begin = position;
    while (begin > 0 && isBlank(m_text[begin - 1]))
        --begin;
    return m_text.sliced(begin, position - begin);
}

// The blanks that the line of an entry begins with.
QByteArray ConfigurationText::indentationOf(int index) const
{
    const qsizetype at = entry(index).span.begin;
    const qsizetype begin = at == 0 ? 0 : m_text.lastIndexOf('\n', at - 1) + 1;
    qsizetype end = begin;
    while (end < at && (m_text[end] == ' ' || m_text[end] == '\t'))
        ++end;
    return m_text.sliced(begin, end - begin);
}

// How much further the file indents what stands in a section.
QByteArray ConfigurationText::indentationStep() const
{
    for (int index = 1; index < static_cast<int>(m_entries.size()); ++index) {
        const int parent = entry(index).parent;
        if (parent == wholeFile || (isXml() && entry(index).isSetting()))
            continue;
        const QByteArray outer = indentationOf(parent);
        const QByteArray inner = indentationOf(index);
        if (inner.size() > outer.size() && inner.startsWith(outer))
            return inner.sliced(outer.size());
    }
    return "    "_ba;
}

TextChange ConfigurationText::insertion(qsizetype position, const QByteArray &bytes) const
{
    return {.position = position, .inserted = bytes};
}

// Why nothing, or no new sections in each other, can be added to a section; empty when they can.
QString ConfigurationText::roomFault(int index, qsizetype newSections) const
{
    const Entry &section = entry(index);
    if (!m_fault.isEmpty())
        return m_fault;
    qsizetype depth = newSections;
    for (int above = index; above != wholeFile; above = entry(above).parent)
        ++depth;
    if (depth > Config::maximumNesting)
        return Findings::tr("sections nest %1 deep at most").arg(Config::maximumNesting);
    const QByteArrayView head = QByteArrayView(m_text).sliced(section.head.begin, section.head.size());
    if (index != wholeFile && !isXml() && !head.endsWith('{'))
        return Findings::tr("line %1: no opening brace follows the section %2")
            .arg(QString::number(section.line), quoted(section.name));
    if (section.children.empty())
        return {};
    const Entry &last = entry(section.children.back());
    if (!last.complete && !last.isSetting())
        return Findings::tr("line %1: the section %2 is not closed")
            .arg(QString::number(last.line), quoted(last.name));
    return {};
}

// Adds what is written after a gap: the blanks that the neighbours of its kind have before them.
template <typename Write>
TextChange ConfigurationText::addStatement(int index, Entry::Kind kind, Write write) const
{
    const Entry &section = entry(index);
    if (section.children.empty()) {
        if (index == wholeFile)
            return insertion(0, write(lineEnd()) + lineEnd());
        const qsizetype at = section.head.end;
        const QByteArrayView body = QByteArrayView(m_text).sliced(at, section.tail.begin - at);
        if (!hasLineEnd(body))
            return insertion(at, ' ' + write(" "_ba) + (body.isEmpty() ? " " : ""));
        const QByteArray gap = lineEnd() + indentationOf(index) + indentationStep();
        return insertion(at, gap + write(gap));
    }

    const Entry &last = entry(section.children.back());
    const auto neighbour = std::find_if(section.children.rbegin(), section.children.rend(),
                                        [&](int child) { return entry(child).kind == kind; });
    QByteArray gap = neighbour != section.children.rend()
        ? gapBefore(entry(*neighbour).span.begin)
        : fromLastLine(gapBefore(last.span.begin), lineEnd());
    if (index == wholeFile && !hasLineEnd(gap))
        gap = lineEnd();
    const QByteArray missingEnd = last.complete ? ""_ba : ";"_ba;
    return insertion(last.span.end, missingEnd + gap + write(gap));
}

TextChange ConfigurationText::addElement(int index, const QStringList &path,
                                         const std::vector<NamedValue> &settings) const
{
    if (index == wholeFile)
        return refusal(Findings::tr("a file of the kind xml has one root element, and no place beside it"));
    const Entry &section = entry(index);
    const auto last = std::find_if(section.children.rbegin(), section.children.rend(),
                                   [this](int child) { return !entry(child).isSetting(); });
    if (last != section.children.rend()) {
        const QByteArray gap = gapBefore(entry(*last).span.begin);
        return insertion(entry(*last).span.end, gap + written(path, settings, gap));
    }
    const QByteArray outer = lineEnd() + indentationOf(index);
    const QByteArray gap = outer + indentationStep();
    const QByteArray element = gap + written(path, settings, gap);
    if (section.tail.size() == 0) // ends with its only tag
        return {.position = section.head.end - 2,
                .removed = "/>"_ba,
                .inserted = '>' + element + outer + "</" + section.name.toUtf8() + '>'};
    const QByteArrayView body =
        QByteArrayView(m_text).sliced(section.head.end, section.tail.begin - section.head.end);
    return insertion(section.head.end, element + (hasLineEnd(body) ? QByteArray() : outer));
}

TextChange ConfigurationText::setValue(int setting, const QString &value) const
{
    const Entry &entry = this->entry(setting);
    if (const QString fault = fitness({{entry.name, value}}); !fault.isEmpty())
        return refusal(fault);
    const auto [begin, end] = entry.valueSpan;
    const QByteArray old = m_text.sliced(begin, end - begin);
    if (entry.value == value)
        return {.position = begin};
    if (isXml())
        return {.position = begin, .removed = old, .inserted = escaped(value)};
    const QByteArray bytes = value.toLatin1();
    const bool needsQuotes = isQuoted(old) || value.isEmpty() || value != value.trimmed();
    return {.position = begin, .removed = old, .inserted = needsQuotes ? '"' + bytes + '"' : bytes};
}

TextChange ConfigurationText::addSetting(int section, const QString &name, const QString &value) const
{
    const QString unfit = firstOf(nameFault({name}), fitness({{name, value}}));
    if (const QString fault = firstOf(roomFault(section, 0), unfit); !fault.isEmpty())
        return refusal(fault);
    if (!isXml())
        return addStatement(section, Entry::Kind::setting, [&](auto &&) { return written(name, value); });
    if (section == wholeFile)
        return refusal(Findings::tr("in a file of the kind xml every setting is an attribute of an element"));
    qsizetype at = entry(section).head.begin + 1 + entry(section).name.toUtf8().size();
    QByteArray gap = " "_ba;
    for (const int child : entry(section).children)
        if (entry(child).isSetting()) {
            at = entry(child).span.end;
            gap = gapBefore(entry(child).span.begin);
        }
    return insertion(at, gap + written(name, value));
}

TextChange ConfigurationText::addSection(int section, const QStringList &path,
                                         const std::vector<NamedValue> &settings) const
{
    QStringList names = path;
    for (const NamedValue &setting : settings)
        names << setting.first;
    const QString unfit = firstOf(nameFault(names), fitness(settings));
    if (const QString fault = firstOf(roomFault(section, path.size()), unfit); !fault.isEmpty())
        return refusal(fault);
    if (isXml())
        return addElement(section, path, settings);
    const std::vector<int> &children = entry(section).children;
    const auto last = std::find_if(children.rbegin(), children.rend(),
                                   [this](int child) { return !entry(child).isSetting(); });
    const bool onOneLine = last != children.rend()
        && !hasLineEnd(QByteArrayView(m_text).sliced(entry(*last).span.begin, entry(*last).span.size()));
    return addStatement(section, Entry::Kind::section, [&](const QByteArray &gap) {
        return written(path, settings, onOneLine ? " "_ba : fromLastLine(gap, lineEnd()));
    });
}

TextChange ConfigurationText::remove(int index) const
{
    const Entry &entry = this->entry(index);
    auto [begin, end] = entry.span;
    if (!entry.isSetting()) {
        if (index == wholeFile || (isXml() && entry.parent == wholeFile))
            return refusal(Findings::tr("the root of the file stays"));
        const QByteArray tail = m_text.sliced(entry.tail.begin, entry.tail.size()).simplified();
        if (!entry.complete || (!isXml() && tail != "};" && tail != "} ;"))
            return refusal(
                Findings::tr(
                    "the end of the section %1, from line %2 on, is not plain, so it is not known what "
                    "would go with it")
                    .arg(quoted(entry.name), QString::number(entry.line)));
    }

    const auto isIndentation = [this](qsizetype at) { return m_text[at] == ' ' || m_text[at] == '\t'; };
    qsizetype lineBegin = begin;
    while (lineBegin > 0 && isIndentation(lineBegin - 1))
        --lineBegin;
    qsizetype lineEnds = end;
    while (lineEnds < m_text.size() && (isIndentation(lineEnds) || m_text[lineEnds] == '\r'))
        ++lineEnds;
    const bool beginsLine = lineBegin == 0 || m_text[lineBegin - 1] == '\n';
    const bool endsLine = lineEnds == m_text.size() || m_text[lineEnds] == '\n';
    if (isXml() && entry.isSetting()) {
        begin -= gapBefore(begin).size();
    } else if (beginsLine && endsLine) {
        begin = lineBegin;
        end = std::min(lineEnds + 1, m_text.size());
    } else if (beginsLine) {
        end = lineEnds;
    } else {
        begin = lineBegin;
    }
    return {.position = begin, .removed = m_text.sliced(begin, end - begin)};
}

TextChange ConfigurationText::set(const QString &key, const QString &value) const
{
    if (!m_fault.isEmpty())
        return refusal(m_fault);
    if (const std::optional<int> setting = settingOf(key))
        return setValue(*setting, value);

    QStringList names = key.split(u'.');
    if (names.size() < 2 || !nameFault(names).isEmpty())
        return refusal(Findings::tr("%1 is no key that could be looked up").arg(quoted(key)));
    if (const std::optional<int> first = firstSection(); first && entry(*first).name != names.front())
        return refusal(Findings::tr("the first section is %1, and no other is ever read")
                           .arg(quoted(entry(*first).name)));

    const QString name = names.takeLast();
    QStringList missing;
    for (; !names.isEmpty(); missing.prepend(names.takeLast()))
        if (const std::optional<int> section = sectionOf(names.join(u'.')))
            return missing.isEmpty() ? addSetting(*section, name, value)
                                     : addSection(*section, missing, {{name, value}});
    return addSection(wholeFile, missing, {{name, value}});
}

} // namespace libconfig
