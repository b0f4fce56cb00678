#include "outline.h"

#include "setting_search.h"

#include <QTest>

using namespace Qt::StringLiterals;
using libconfig::ConfigurationText;
using Group = ShownSection::Group;

namespace {

constexpr qsizetype knownCount = 9; // documents and the language

/* The sections after those that are always there. */
std::vector<ShownSection> furtherSections(const ConfigurationText &text)
{
    std::vector<ShownSection> sections = shownSections(text);
    sections.erase(sections.begin(), sections.begin() + knownCount);
    return sections;
}

QStringList titles(const std::vector<ShownSection> &sections, const ConfigurationText &text)
{
    QStringList titles;
    for (const ShownSection &section : sections)
        titles << titleOf(section, text);
    return titles;
}

QStringList namesAndValues(const ConfigurationText &text, const ShownSection &section)
{
    QStringList lines;
    for (const ShownSetting &setting : shownSettings(text, section))
        if (setting.entry != absent)
            lines << setting.name + u'=' + text.entry(setting.entry).value
                    + (setting.known ? u""_s : u" ?"_s);
    return lines;
}

} // namespace

class EditorOutlineTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void listsWhatProgramsReadOfAnEmptyFile();
    void listsPrintersAndOthers_data();
    void listsPrintersAndOthers();
    void listsTheSettingsOfASection();
    void repeatedSectionsAreEachListed();
    void knowsNothingOfASectionThatIsNeverRead();
    void explains_data();
    void explains();
    void finds_data();
    void finds();
};

void EditorOutlineTest::listsWhatProgramsReadOfAnEmptyFile()
{
    const ConfigurationText text;
    const std::vector<ShownSection> sections = shownSections(text);
    QCOMPARE(titles(sections, text),
             QStringList({u"Kitchen tickets"_s, u"Orders with prices"_s, u"Receipts"_s, u"Invoices"_s,
                          u"Fiscal documents"_s, u"Delivery orders"_s, u"Reports and statements of account"_s,
                          u"Sold items"_s, u"Language"_s}));
    for (const ShownSection &section : sections)
        QCOMPARE(section.entry, absent);
    QCOMPARE(sections.back().group, Group::language);
    QCOMPARE(shownSettings(text, sections.back()).size(), std::size_t(2));
    for (const ShownSetting &setting : shownSettings(text, sections.front()))
        QVERIFY(setting.known && setting.entry == absent);
}

void EditorOutlineTest::listsPrintersAndOthers_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QStringList>("printers");
    QTest::addColumn<QStringList>("others");
    const QStringList none;
    QTest::newRow("printers in their order")
        << "tavolux : { printers : { till : { model = text; }; bar : { a = 1; }; }; };"_ba
        << QStringList{u"till"_s, u"bar"_s} << none;
    QTest::newRow("of one name the first is read")
        << "tavolux : { printers : { till : { a = 1; };\ntill : { a = 2; }; }; };"_ba
        << QStringList{u"till"_s} << QStringList{u"tavolux.printers.till, line 2"_s};
    QTest::newRow("sections that nobody knows")
        << "tavolux : { till : { a = 1; b : { c = 1; }; }; };"_ba << none
        << QStringList{u"tavolux.till"_s, u"tavolux.till.b"_s};
    QTest::newRow("empty ones, but not those around others")
        << "tavolux : { a : { }; b : { c : { d = 1; }; }; };"_ba << none
        << QStringList{u"tavolux.a"_s, u"tavolux.b.c"_s};
    QTest::newRow("settings of the section around all")
        << "tavolux : { a = 1; };"_ba << none << QStringList{u"tavolux"_s};
    QTest::newRow("settings outside of any section")
        << "a = 1; tavolux : { doc : { b = 1; }; };"_ba << none << QStringList{u"Outside of any section"_s};
    QTest::newRow("sections after the first are never read")
        << "a : { b = 1; }; tavolux : { doc : { c = 1; }; printers : { till : { d = 1; }; }; };"_ba << none
        << QStringList{u"a"_s, u"tavolux.doc"_s, u"tavolux.printers.till"_s};
}

void EditorOutlineTest::listsPrintersAndOthers()
{
    QFETCH(const QByteArray, bytes);
    const ConfigurationText text(bytes);
    std::vector<ShownSection> printers;
    std::vector<ShownSection> others;
    for (const ShownSection &section : furtherSections(text))
        (section.group == Group::printers ? printers : others).push_back(section);
    QTEST(titles(printers, text), "printers");
    QTEST(titles(others, text), "others");
}

void EditorOutlineTest::listsTheSettingsOfASection()
{
    const ConfigurationText text(
        "tavolux : { language : { mystery = 1; file = a; file = b; riddle = 2; }; };"_ba);
    const ShownSection language = shownSections(text).back();
    QCOMPARE(namesAndValues(text, language),
             QStringList({u"file=a"_s, u"file=b"_s, u"mystery=1 ?"_s, u"riddle=2 ?"_s}));
    const std::vector<ShownSetting> settings = shownSettings(text, language);
    QCOMPARE(settings.front().name, u"basedir"_s); // which the file lacks
    QCOMPARE(settings.front().entry, absent);
    QCOMPARE(keyOf(language, settings.front()), u"tavolux.language.basedir"_s);
}

void EditorOutlineTest::repeatedSectionsAreEachListed()
{
    const ConfigurationText text(
        "tavolux : { doc : { paperWidth = 1; };\n doc : { paperWidth = 2; x = 3; }; };"_ba);
    QCOMPARE(namesAndValues(text, shownSections(text).front()), QStringList{u"paperWidth=1"_s});
    const std::vector<ShownSection> further = furtherSections(text);
    QCOMPARE(titles(further, text), QStringList{u"tavolux.doc, line 2"_s});
    QCOMPARE(namesAndValues(text, further.front()), QStringList({u"paperWidth=2"_s, u"x=3 ?"_s}));
    QCOMPARE(shownSettings(text, further.front()).size(), std::size_t(2)); // and none that is missing
}

void EditorOutlineTest::knowsNothingOfASectionThatIsNeverRead()
{
    const ConfigurationText text("a : { b = 1; }; tavolux : { doc : { paperWidth = 1; }; };"_ba);
    QCOMPARE(namesAndValues(text, furtherSections(text).back()), QStringList{u"paperWidth=1 ?"_s});
}

void EditorOutlineTest::explains_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("explanation");
    QTest::newRow("a switch") << u"tavolux.doc.printTable"_s << u"Whether the order's table is printed."_s;
    QTest::newRow("a number has bounds") << u"tavolux.printers.till.columns"_s
                                         << u"The length of a line of normal type. (1 to 255 characters)"_s;
    QTest::newRow("large bounds") << u"tavolux.doc.quantityFieldWidth"_s
                                  << u"The width of the column for quantities. (0 to 100,000 characters)"_s;
    QTest::newRow("nothing reads it") << u"tavolux.doc.mystery"_s << QString();
}

void EditorOutlineTest::explains()
{
    QFETCH(const QString, key);
    const ShownSetting setting{key.section(u'.', -1), absent, findSetting(key)};
    QTEST(explanationOf(setting), "explanation");
}

void EditorOutlineTest::finds_data()
{
    QTest::addColumn<QString>("words");
    QTest::addColumn<QStringList>("keys");
    QTest::newRow("nothing without words") << u"  "_s << QStringList();
    QTest::newRow("a part of a key") << u"receiptdoc.paperWidth"_s
                                     << QStringList{u"tavolux.receiptdoc.paperWidth"_s};
    QTest::newRow("whatever the case")
        << u"RECEIPTDOC.PAPERwidth"_s << QStringList{u"tavolux.receiptdoc.paperWidth"_s};
    QTest::newRow("several words, in any order")
        << u"prices statement receipts"_s << QStringList{u"tavolux.receiptdoc.priceFieldWidth"_s};
    QTest::newRow("words of an explanation and a title")
        << u"drawer sold"_s << QStringList{u"tavolux.solddoc.openCashDrawer"_s};
    QTest::newRow("a value") << u"riddle"_s << QStringList{u"tavolux.solddoc.mystery"_s};
    QTest::newRow("a section without settings") << u"hollow"_s << QStringList{u"tavolux.hollow"_s};
    QTest::newRow("nothing") << u"submarine"_s << QStringList();
}

void EditorOutlineTest::finds()
{
    QFETCH(const QString, words);
    const ConfigurationText text("tavolux : { solddoc : { mystery = riddle; }; hollow : { }; };"_ba);
    const std::vector<ShownSection> sections = shownSections(text);
    QStringList found;
    for (const auto &[section, setting] : findSettings(text, sections, words)) {
        const ShownSection &place = sections[static_cast<std::size_t>(section)];
        found << (setting < 0 ? place.key
                              : keyOf(place, shownSettings(text, place)[static_cast<std::size_t>(setting)]));
    }
    QTEST(found, "keys");
}

QTEST_GUILESS_MAIN(EditorOutlineTest)
#include "editor_outline_test.moc"
