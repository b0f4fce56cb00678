#include "configuration_document.h"
#include "sections_model.h"
#include "settings_model.h"

#include "temporary_home.h"

#include <QAbstractItemModelTester>
#include <QBrush>
#include <QFont>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

class EditorModelsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void areModels();
    void groupsSections();
    void keepsSectionsWhileTheyAreTheSame();
    void marksSectionsWithFindings();
    void marksSettingsWithFindings();
    void showsWhatHoldsWithoutASetting_data();
    void showsWhatHoldsWithoutASetting();
    void showsWhatAnotherSectionOfTheNameSays();
    void setsValues_data();
    void setsValues();
    void refusesWhatWouldBeLost_data();
    void refusesWhatWouldBeLost();
    void switchesAreCheckable_data();
    void switchesAreCheckable();

private:
    void open(const QByteArray &bytes)
    {
        QCOMPARE(document.open(home.writeFile(u"my.conf"_s, bytes)), QString());
    }
    ShownSection section(const QString &key) const
    {
        for (const ShownSection &shown : sections.sections())
            if (shown.key == key)
                return shown;
        qFatal("there is no section %s", qPrintable(key));
    }
    QModelIndex cell(const QString &name, SettingsModel::Column column = SettingsModel::valueColumn) const
    {
        for (int row = 0; row < settings.rowCount(); ++row)
            if (settings.settings()[static_cast<std::size_t>(row)].name == name)
                return settings.index(row, column);
        qFatal("there is no setting %s", qPrintable(name));
    }
    /* Shows the section of a key and returns the cell of its value. */
    QModelIndex show(const QString &key)
    {
        settings.show(section(key.section(u'.', 0, -2)));
        return cell(key.section(u'.', -1));
    }

    const TemporaryHome home;
    ConfigurationDocument document;
    SectionsModel sections{document};
    SettingsModel settings{document};
};

void EditorModelsTest::areModels()
{
    const QAbstractItemModelTester testsSections(&sections,
                                                 QAbstractItemModelTester::FailureReportingMode::QtTest);
    const QAbstractItemModelTester testsSettings(&settings,
                                                 QAbstractItemModelTester::FailureReportingMode::QtTest);
    open("tavolux : { printers : { till : { model = text; }; }; other : { a = 1; }; };");
    settings.show(section(u"tavolux.other"_s));
    settings.show(section(u"tavolux.doc"_s));
    document.apply(document.text().remove(*document.text().sectionOf(u"tavolux.printers"_s)), u"Remove"_s);
    document.undoStack().undo();
    settings.show({});
    QCOMPARE(settings.rowCount(), 0);
}

void EditorModelsTest::groupsSections()
{
    open("tavolux : { printers : { till : { model = text; }; }; other : { a = 1; }; };");
    QStringList rows;
    for (int row = 0; row < sections.rowCount(); ++row) {
        const QModelIndex top = sections.index(row, 0);
        rows << top.data().toString() + u' ' + QString::number(sections.rowCount(top));
    }
    QCOMPARE(rows, QStringList({u"Documents 8"_s, u"Language 0"_s, u"Printers 1"_s, u"Other sections 1"_s}));
    const QModelIndex printers = sections.index(2, 0);
    QVERIFY(!sections.sectionAt(printers));
    QVERIFY(!printers.flags().testFlag(Qt::ItemIsSelectable));
    const QModelIndex till = sections.index(0, 0, printers);
    QCOMPARE(till.data().toString(), u"till"_s);
    QCOMPARE(sections.sectionAt(till)->key, u"tavolux.printers.till"_s);
    for (int i = 0; i < static_cast<int>(sections.sections().size()); ++i)
        QCOMPARE(sections.sectionAt(sections.indexOf(i)), &sections.sections()[static_cast<std::size_t>(i)]);
    QVERIFY(sections.sectionAt(sections.indexOf(0))->entry == absent);
    QVERIFY(sections.indexOf(0).data(Qt::FontRole).value<QFont>().italic()); // not in the file
}

void EditorModelsTest::keepsSectionsWhileTheyAreTheSame()
{
    open("tavolux : { doc : { paperWidth = 42; }; };");
    QSignalSpy resets(&sections, &QAbstractItemModel::modelReset);
    document.apply(document.text().set(u"tavolux.doc.paperWidth"_s, u"48"_s), u"Change"_s);
    QCOMPARE(resets.count(), 0);
    document.apply(document.text().set(u"tavolux.other.paperWidth"_s, u"48"_s), u"Add"_s);
    QCOMPARE(resets.count(), 1);
}

void EditorModelsTest::marksSectionsWithFindings()
{
    open("tavolux : { doc : { paperWidth = wide; }; printers : { till : { model = text; }; }; };");
    document.findings();
    const auto isMarked = [&](int row, int group) {
        return !sections.index(row, 0, sections.index(group, 0)).data(Qt::DecorationRole).isNull();
    };
    QVERIFY(isMarked(0, 0)); // a setting of it
    QVERIFY(!isMarked(1, 0));
    QVERIFY(isMarked(0, 2)); // itself: it names no output
    document.apply(document.text().set(u"tavolux.doc.paperWidth"_s, u"42"_s), u"Change"_s);
    document.findings();
    QVERIFY(!isMarked(0, 0));
}

void EditorModelsTest::marksSettingsWithFindings()
{
    open("tavolux : { doc : {\n printDate = yes;\n printDate = no; };\n };");
    const QString finding = u"\"printDate\" is \"yes\", neither \"true\" nor \"false\", so it is off"_s;
    const QModelIndex first = show(u"tavolux.doc.printDate"_s);
    QCOMPARE(settings.findings(settings.setting(first)), QStringList{finding}); // and not the second's
    const QModelIndex name = first.siblingAtColumn(SettingsModel::nameColumn);
    QVERIFY(!name.data(Qt::DecorationRole).isNull());
    QVERIFY(name.data(Qt::ToolTipRole)
                .toString()
                .startsWith("Whether the order's date is printed.\n&quot;printDate&quot; is"_L1));
    const QModelIndex other = cell(u"printTime"_s, SettingsModel::nameColumn);
    QVERIFY(other.data(Qt::DecorationRole).isNull());
    QCOMPARE(other.data(Qt::ToolTipRole).toString(), u"Whether the order's time is printed."_s);
}

void EditorModelsTest::showsWhatHoldsWithoutASetting_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("value");
    QTest::newRow("a number") << u"tavolux.doc.paperWidth"_s << u"0"_s;
    QTest::newRow("a switch") << u"tavolux.doc.printDate"_s << u"false"_s;
    QTest::newRow("of a printer the model's") << u"tavolux.printers.till.columns"_s << u"48"_s;
    QTest::newRow("of a printer none") << u"tavolux.printers.till.logo"_s << u""_s;
}

void EditorModelsTest::showsWhatHoldsWithoutASetting()
{
    QFETCH(const QString, key);
    open("tavolux : { printers : { till : { model = generic-80; }; }; };");
    const QModelIndex index = show(key);
    QTEST(index.data().toString(), "value");
    QVERIFY(index.data(Qt::FontRole).value<QFont>().italic());
    QVERIFY(index.data(Qt::ForegroundRole).isValid());

    QVERIFY(settings.setData(index, u"1"_s));
    QCOMPARE(document.configuration().getStrValue(key), u"1"_s);
    settings.show(section(key.section(u'.', 0, -2)));
    QVERIFY(!index.data(Qt::ForegroundRole).isValid());
}

void EditorModelsTest::showsWhatAnotherSectionOfTheNameSays()
{
    open("tavolux : { doc : { printDate = true; }; doc : { paperWidth = 40; }; };");
    const QModelIndex index = show(u"tavolux.doc.paperWidth"_s);
    QCOMPARE(index.data().toString(), u"40"_s); // which a print finds
    QVERIFY(settings.setData(index, u"42"_s)); // in this section, which comes first
    QCOMPARE(document.text().text(),
             "tavolux : { doc : { printDate = true; paperWidth = 42; }; doc : { paperWidth = 40; }; };"_ba);
}

void EditorModelsTest::setsValues_data()
{
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("value");
    QTest::addColumn<QByteArray>("after");
    QTest::newRow("a value") << "tavolux : { doc : { paperWidth = 40; }; };"_ba << u"tavolux.doc.paperWidth"_s
                             << u"42"_s << "tavolux : { doc : { paperWidth = 42; }; };"_ba;
    QTest::newRow("a new setting at the end of its section")
        << "tavolux : {\n doc : {\n  printDate = true;\n };\n};\n"_ba << u"tavolux.doc.paperWidth"_s
        << u"42"_s << "tavolux : {\n doc : {\n  printDate = true;\n  paperWidth = 42;\n };\n};\n"_ba;
    QTest::newRow("a new section")
        << "tavolux : { doc : { printDate = true; }; };"_ba << u"tavolux.solddoc.paperWidth"_s << u"42"_s
        << "tavolux : { doc : { printDate = true; }; solddoc : { paperWidth = 42; }; };"_ba;
    QTest::newRow("one that nobody reads") << "tavolux : { a : { b = \"c\"; }; };"_ba << u"tavolux.a.b"_s
                                           << u"d"_s << "tavolux : { a : { b = \"d\"; }; };"_ba;
    QTest::newRow("xml") << "<tavolux><doc paperWidth='40'/></tavolux>"_ba << u"tavolux.doc.paperWidth"_s
                         << u"<42>"_s << "<tavolux><doc paperWidth='&lt;42>'/></tavolux>"_ba;
    QTest::newRow("nothing changed") << "tavolux : { doc : { paperWidth = \"40\"; }; };"_ba
                                     << u"tavolux.doc.paperWidth"_s << u"40"_s
                                     << "tavolux : { doc : { paperWidth = \"40\"; }; };"_ba;
}

void EditorModelsTest::setsValues()
{
    QFETCH(const QByteArray, before);
    QFETCH(const QString, key);
    QFETCH(const QString, value);
    open(before);
    QVERIFY(settings.setData(show(key), value));
    QTEST(document.text().text(), "after");
    QCOMPARE(document.configuration().getStrValue(key), value);
    document.undoStack().undo();
    QCOMPARE(document.text().text(), before);
}

void EditorModelsTest::refusesWhatWouldBeLost_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("value");
    QTest::addColumn<QString>("reason");
    const QByteArray cfg = "tavolux : { language : { file = a; }; };";
    const QByteArray xml = "<tavolux><language file='a'/></tavolux>";
    const QString beyond =
        u"\"\u20ac\" would be lost: the programs read the characters of Western Europe only."_s;
    QTest::newRow("beyond Latin-1") << cfg << u"5 \u20ac"_s << beyond;
    QTest::newRow("beyond Latin-1, xml") << xml << u"5 \u20ac"_s << beyond;
    QTest::newRow("a semicolon") << cfg << u"a;b"_s
                                 << u"A value cannot have the character ;, which would end it."_s;
    QTest::newRow("quotes") << cfg << u"a\"b"_s
                            << u"A value cannot have the character \", which would end it."_s;
    QTest::newRow("fine in xml") << xml << u"a;\"b"_s << QString();
    QTest::newRow("Latin-1") << cfg << u"Men\u00fc"_s << QString();
}

void EditorModelsTest::refusesWhatWouldBeLost()
{
    QFETCH(const QByteArray, bytes);
    QFETCH(const QString, value);
    QFETCH(const QString, reason);
    open(bytes);
    const QModelIndex index = show(u"tavolux.language.file"_s);
    QCOMPARE(settings.refusal(settings.setting(index), value), reason);
    QSignalSpy refused(&settings, &SettingsModel::refused);
    QCOMPARE(settings.setData(index, value), reason.isEmpty());
    QCOMPARE(refused.count(), reason.isEmpty() ? 0 : 1);
    QCOMPARE(document.text().text() == bytes, !reason.isEmpty());
}

void EditorModelsTest::switchesAreCheckable_data()
{
    QTest::addColumn<QByteArray>("value");
    QTest::addColumn<bool>("checkable");
    QTest::addColumn<bool>("checked");
    QTest::newRow("true") << "true"_ba << true << true;
    QTest::newRow("false") << "false"_ba << true << false;
    QTest::newRow("a text") << "yes"_ba << false << false;
    QTest::newRow("in capitals") << "True"_ba << false << false;
    QTest::newRow("empty") << ""_ba << false << false;
}

void EditorModelsTest::switchesAreCheckable()
{
    QFETCH(const QByteArray, value);
    QFETCH(const bool, checkable);
    QFETCH(const bool, checked);
    open("tavolux : { doc : { printDate = " + value + "; }; };");
    const QModelIndex index = show(u"tavolux.doc.printDate"_s);
    QCOMPARE(index.data(Qt::CheckStateRole).isValid(), checkable);
    QCOMPARE(index.flags().testFlag(Qt::ItemIsUserCheckable), checkable);
    QCOMPARE(index.flags().testFlag(Qt::ItemIsEditable), !checkable);
    QCOMPARE(index.data(Qt::CheckStateRole).toInt() == Qt::Checked, checked);
    if (checkable) {
        QVERIFY(settings.setData(index, checked ? Qt::Unchecked : Qt::Checked, Qt::CheckStateRole));
        QCOMPARE(document.text().text(),
                 "tavolux : { doc : { printDate = "_ba + (checked ? "false" : "true") + "; }; };");
    }
}

QTEST_MAIN(EditorModelsTest)
#include "editor_models_test.moc"
