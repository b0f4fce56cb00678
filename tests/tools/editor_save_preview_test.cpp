#include "save_preview.h"

#include "config.h"
#include "shown_tree.h"
#include "temporary_home.h"

#include <QTest>
#include <QTreeWidget>
#include <QTreeWidgetItemIterator>

#include <memory>

using namespace Qt::StringLiterals;
using libconfig::Config;

class EditorSavePreviewTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void tellsWhatSavingChanges_data();
    void tellsWhatSavingChanges();
    void touchesNeitherViewNorFile();
    void foreseesWhatTheStoreMakes();

private:
    const TemporaryHome home;
};

void EditorSavePreviewTest::tellsWhatSavingChanges_data()
{
    QTest::addColumn<QString>("readAs");
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("key"); // of the value that is edited, if any
    QTest::addColumn<QString>("value");
    QTest::addColumn<QString>("savedAs");
    QTest::addColumn<QStringList>("changes");

    const QString cfg = u"cfg"_s;
    const QString xml = u"xml"_s;
    const QString unedited;
    const QByteArray plain = "r : { k = 1; l = 2; };";
    const QByteArray plainXml = "<r k='1' l='2'/>";

    QTest::newRow("nothing in an unedited file")
        << cfg << plain << unedited << QString() << cfg << QStringList();
    QTest::newRow("nothing in a plain edit") << cfg << plain << u"r.k"_s << u"3"_s << cfg << QStringList();
    QTest::newRow("nothing with blanks at both ends")
        << cfg << plain << u"r.k"_s << u"  x  "_s << cfg << QStringList();
    QTest::newRow("nothing with the format's other signs")
        << cfg << plain << u"r.k"_s << u"a:b={c}"_s << cfg << QStringList();
    QTest::newRow("nothing with Latin-1") << cfg << plain << u"r.k"_s << u"Menü"_s << cfg << QStringList();
    QTest::newRow("nothing with an emptied value")
        << cfg << plain << u"r.k"_s << u""_s << cfg << QStringList();
    QTest::newRow("nothing in an empty file")
        << cfg << QByteArray() << unedited << QString() << cfg << QStringList();
    QTest::newRow("nothing below the first section")
        << cfg << QByteArray("r : { s : { t : { k = 1; }; }; u : { k = 1; }; };") << unedited << QString()
        << cfg << QStringList();

    QTest::newRow("the section of a later section moves")
        << cfg << QByteArray("r : { s1 : { a = 1; }; s2 : { b = 2; t : { c = 3; }; }; };") << unedited
        << QString() << cfg << QStringList{u"The section r.s2.t moves into r.s1."_s};
    QTest::newRow("each section of later sections moves")
        << cfg
        << QByteArray("r : { s1 : { a = 1; }; s2 : { b = 2; t : { c = 3; }; u : { d = 4; }; }; s3 : { f = 6; "
                      "v : { e = 5; "
                      "}; }; };")
        << unedited << QString() << cfg
        << QStringList{u"The section r.s2.t moves into r.s1."_s, u"The section r.s2.u moves into r.s1."_s,
                       u"The section r.s3.v moves into r.s1."_s};
    // t is received by s1, whose first section is then t itself: u stays below it.
    QTest::newRow("what is below a moved section moves with it")
        << cfg << QByteArray("r : { s1 : { a = 1; }; s2 : { b = 2; t : { u : { c = 3; }; }; }; };")
        << unedited << QString() << cfg << QStringList{u"The section r.s2.t moves into r.s1."_s};
    // The second s is empty once its section is gone, and an empty section is not read back.
    QTest::newRow("out of a section of the same name")
        << cfg << QByteArray("r : { s : { a = 1; }; s : { t : { c = 3; }; }; };") << unedited << QString()
        << cfg << QStringList{u"The section r.s.t moves into r.s."_s, u"The section r.s is lost."_s};

    const QByteArray printers = "printers : { till : { output = \"/dev/usb/lp0\"; model = generic-80; };"
                                "kitchen : { output = \"/dev/lp*\"; model = generic-58; }; };";
    const QByteArray language = "language : { file = \"/\"; };";
    QTest::newRow("printers before all else stay")
        << cfg << "tavolux : {" + printers + language + "};" << unedited << QString() << cfg << QStringList();
    QTest::newRow("code pages of a printer")
        << cfg << "tavolux : {" + printers + language + "};" << u"tavolux.printers.till.model"_s
        << u"858=19, 1252=16"_s << cfg << QStringList();
    QTest::newRow("printers after another section move")
        << cfg << "tavolux : {" + language + printers + "};" << unedited << QString() << cfg
        << QStringList{u"The section tavolux.printers.till moves into tavolux.language."_s,
                       u"The section tavolux.printers.kitchen moves into tavolux.language."_s,
                       u"The section tavolux.printers is lost."_s};
    QTest::newRow("printers after an empty section, which is not read, stay")
        << cfg << "tavolux : { doc : { };" + printers + "};" << unedited << QString() << cfg << QStringList();

    QTest::newRow("a later section at the top")
        << cfg << QByteArray("s1 : { a = 1; }; s2 : { b = 2; };") << unedited << QString() << cfg
        << QStringList{u"The section s2 is lost: only the first section at the top is saved."_s};
    QTest::newRow("a later section at the top, with a section")
        << cfg << QByteArray("s1 : { a = 1; }; s2 : { b = 2; t : { c = 3; }; };") << unedited << QString()
        << cfg
        << QStringList{u"The section s2.t moves into s1."_s,
                       u"The section s2 is lost: only the first section at the top is saved."_s};

    QTest::newRow("semicolon in the last value")
        << cfg << plain << u"r.l"_s << u"a;b"_s << cfg
        << QStringList{u"The value of r.l, \"a;b\", becomes \"a\"."_s};
    // What follows the semicolon joins the name of the next setting.
    QTest::newRow("semicolon in another value")
        << cfg << plain << u"r.k"_s << u"a;b"_s << cfg
        << QStringList{u"The value of r.k, \"a;b\", becomes \"a\"."_s, u"The setting r.l is lost."_s,
                       u"A setting r.b\"; l appears, with the value \"2\"."_s};
    QTest::newRow("a section made of a value")
        << cfg << plain << u"r.l"_s << u"a; s : { m = n; }; x"_s << cfg
        << QStringList{u"The value of r.l, \"a; s : { m = n; }; x\", becomes \"a\"."_s,
                       u"A section r.s appears."_s};
    QTest::newRow("double quotes") << cfg << plain << u"r.k"_s << u"\"5\" roll"_s << cfg
                                   << QStringList{u"The value of r.k, \"\"5\" roll\", becomes \"5 roll\"."_s};
    QTest::newRow("outside Latin-1") << cfg << plain << u"r.k"_s << u"5 €"_s << cfg
                                     << QStringList{u"The value of r.k, \"5 €\", becomes \"5 ?\"."_s};

    QTest::newRow("nothing outside Latin-1 in xml")
        << xml << plainXml << u"r.k"_s << u"5 € > 3;"_s << xml << QStringList();
    QTest::newRow("the start of a tag in xml")
        << xml << plainXml << u"r.k"_s << u"a<b"_s << xml
        << QStringList{u"The saved file is no XML any more, and everything in it is lost."_s,
                       u"The value of r.k, \"a<b\", has a character that XML gives a meaning: <, & or \"."_s};
    QTest::newRow("what was escaped in xml")
        << xml << QByteArray("<r><s k='&lt;' l='2'/></r>") << u"r.s.l"_s << u"3"_s << xml
        << QStringList{u"The saved file is no XML any more, and everything in it is lost."_s,
                       u"The value of r.s.k, \"<\", has a character that XML gives a meaning: <, & or \"."_s};
    QTest::newRow("a reference in xml")
        << xml << plainXml << u"r.k"_s << u"a &amp; b"_s << xml
        << QStringList{u"The value of r.k, \"a &amp; b\", becomes \"a & b\"."_s};
    QTest::newRow("an attribute in an xml value")
        << xml << plainXml << u"r.k"_s << u"1\" m=\"2"_s << xml
        << QStringList{u"The value of r.k, \"1\" m=\"2\", becomes \"1\"."_s,
                       u"A setting r.m appears, with the value \"2\"."_s};
    QTest::newRow("an empty section in xml")
        << xml << QByteArray("<r k='1'><s/></r>") << unedited << QString() << xml
        << QStringList{u"The section r.s is lost: it is empty, or begins with an empty one."_s};
    // The store takes s for a setting with the value t.
    QTest::newRow("a section that begins with an empty one in xml")
        << xml << QByteArray("<r k='1'><s><t/><u l='2'/></s></r>") << unedited << QString() << xml
        << QStringList{u"The section r.s is lost: it is empty, or begins with an empty one."_s};
    QTest::newRow("settings outside sections saved as xml")
        << cfg << QByteArray("a = 1; b = 2; r : { k = 1; };") << unedited << QString() << xml
        << QStringList{u"The saved file is no XML any more, and everything in it is lost."_s,
                       u"Settings outside sections make it so: a, b."_s};
}

void EditorSavePreviewTest::tellsWhatSavingChanges()
{
    QFETCH(const QString, readAs);
    QFETCH(const QByteArray, text);
    QFETCH(const QString, key);
    QFETCH(const QString, value);
    QFETCH(const QString, savedAs);
    QFETCH(const QStringList, changes);

    const Config config(home.writeFile(u"configuration"_s, text), readAs);
    const std::unique_ptr<QTreeWidget> view(config.buildConfigListView());
    bool edited = key.isEmpty();
    for (QTreeWidgetItemIterator item(view.get()); *item; ++item)
        if (!key.isEmpty() && valueItem(*item) == *item && keyOf(*item) == key) {
            (*item)->setText(0, value);
            edited = true;
        }
    QVERIFY(edited);
    QCOMPARE(changesBySaving(*view, savedAs), changes);
}

void EditorSavePreviewTest::touchesNeitherViewNorFile()
{
    const QByteArray text = "r : { s1 : { a = 1; }; s2 : { b = 2; t : { c = 3; }; }; };";
    const QString file = home.writeFile(u"a.conf"_s, text);
    const Config config(file, u"cfg"_s);
    const std::unique_ptr<QTreeWidget> view(config.buildConfigListView());
    const libconfig::Section before = shownSections(*view);
    QVERIFY(!changesBySaving(*view, u"cfg"_s).isEmpty());
    QVERIFY(shownSections(*view) == before);
    QCOMPARE(fileBytes(file), text);
    QCOMPARE(config.lookup(u"r.s2.t.c"_s), u"3"_s);
}

void EditorSavePreviewTest::foreseesWhatTheStoreMakes()
{
    const QString file =
        home.writeFile(u"a.conf"_s, "r : { s1 : { a = 1; }; s2 : { b = 2; t : { c = 3; }; }; };");
    Config config(file, u"cfg"_s);
    const std::unique_ptr<QTreeWidget> view(config.buildConfigListView());
    QCOMPARE(changesBySaving(*view, u"cfg"_s), QStringList{u"The section r.s2.t moves into r.s1."_s});
    QVERIFY(config.loadListView(view.get()));
    const Config again(file, u"cfg"_s);
    QCOMPARE(again.lookup(u"r.s1.t.c"_s), u"3"_s);
    QCOMPARE(again.lookup(u"r.s2.t.c"_s), QString());
    // What was moved once stays where it is.
    QCOMPARE(changesBySaving(*std::unique_ptr<QTreeWidget>(again.buildConfigListView()), u"cfg"_s),
             QStringList());
}

QTEST_MAIN(EditorSavePreviewTest)
#include "editor_save_preview_test.moc"
