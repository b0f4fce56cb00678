#include "captured_output.h"
#include "config.h"
#include "temporary_home.h"

#include <QTest>

using namespace Qt::StringLiterals;

/* The way from a dotted key to a value, and the kinds of file. */
class ConfigTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void lookup_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QString>("key");
        QTest::addColumn<QString>("value");

        const auto row = [](const char *name, const QByteArray &text, const QString &key,
                            const QString &value) { QTest::newRow(name) << text << key << value; };

        const QByteArray example = "tavolux : {\n"
                                   "  language : {\n"
                                   "    basedir = \"/usr/share/tavolux/lang\";\n"
                                   "    file = \"/\";\n"
                                   "  };\n"
                                   "  doc : { paperWidth = 40; };\n"
                                   "};\n";
        row("setting of a nested section", example, u"tavolux.language.basedir"_s,
            u"/usr/share/tavolux/lang"_s);
        row("second setting", example, u"tavolux.language.file"_s, u"/"_s);
        row("second nested section", example, u"tavolux.doc.paperWidth"_s, u"40"_s);
        row("setting that is not there", example, u"tavolux.doc.paperHeight"_s, {});
        row("section that is not there", example, u"tavolux.receiptdoc.paperWidth"_s, {});
        row("upper and lower case differ in settings", example, u"tavolux.doc.paperwidth"_s, {});
        row("upper and lower case differ in sections", example, u"tavolux.Doc.paperWidth"_s, {});
        row("upper and lower case differ in the first component", example, u"Tavolux.doc.paperWidth"_s, {});
        row("part of a name", example, u"tavolux.do.paperWidth"_s, {});
        row("key without its first component", example, u"doc.paperWidth"_s, {});
        row("key that ends at a section", example, u"tavolux.doc"_s, {});
        row("key that goes on after a setting", example, u"tavolux.doc.paperWidth.unit"_s, {});
        row("empty key", example, {}, {});
        row("only a dot", example, u"."_s, {});
        row("leading dot", example, u".tavolux.doc.paperWidth"_s, {});
        row("dot after a setting", example, u"tavolux.doc.paperWidth."_s, u"40"_s);
        row("two dots after a setting", example, u"tavolux.doc.paperWidth.."_s, u"40"_s);

        row("two components", "s : { k = v; };", u"s.k"_s, u"v"_s);
        row("two components and a dot", "s : { k = v; };", u"s.k."_s, u"v"_s);
        row("one component", "s : { k = v; };", u"s"_s, {});
        row("one component names a setting", "s : { s = v; };", u"s"_s, {});
        row("empty second component", "s : { k = v; };", u"s..k"_s, {});
        row("empty third component", "s : { t = v; t : { k = w; }; };", u"s.t..k"_s, u"v"_s);
        row("three components pass a setting by", "s : { t = v; t : { k = w; }; };", u"s.t.k"_s, u"w"_s);
        row("four levels", "a : { b : { c : { k = v; }; }; };", u"a.b.c.k"_s, u"v"_s);
        row("level left out", "a : { b : { c : { k = v; }; }; };", u"a.c.k"_s, {});
        row("dots in a setting's name are out of reach", "s : { a.b = v; };", u"s.a.b"_s, {});
        row("dots in a section's name are out of reach", "a.b : { k = v; };", u"a.b.k"_s, {});

        row("empty value", "s : { k = \"\"; };", u"s.k"_s, {});
        row("setting outside of sections", "a = 1; s : { k = v; };", u"a"_s, {});
        row("setting outside of sections after a dot", "a = 1; s : { k = v; };", u".a"_s, {});
        row("setting outside of sections as one of a section", "a = 1; s : { k = v; };", u"s.a"_s, {});
        row("section after a setting", "a = 1; s : { k = v; };", u"s.k"_s, u"v"_s);

        row("first of two top-level sections", "s : { k = v; }; t : { k = w; };", u"s.k"_s, u"v"_s);
        row("second of two top-level sections", "s : { k = v; }; t : { k = w; };", u"t.k"_s, {});
        row("second top-level section of one name", "s : { k = v; }; s : { l = w; };", u"s.l"_s, {});
        row("first sibling of one name wins", "s : { t : { k = v; }; t : { k = w; }; };", u"s.t.k"_s, u"v"_s);
        row("sibling of one name fills a gap", "s : { t : { k = v; }; t : { l = w; }; };", u"s.t.l"_s,
            u"w"_s);
        row("sibling of one name fills an empty value", "s : { t : { k = \"\"; }; t : { k = w; }; };",
            u"s.t.k"_s, u"w"_s);
        row("siblings of one name below siblings of one name",
            "s : { t : { u : { k = \"\"; }; }; t : { u : { l = x; }; u : { k = w; }; }; };", u"s.t.u.k"_s,
            u"w"_s);
    }

    void lookup()
    {
        QFETCH(const QByteArray, text);
        QFETCH(const QString, key);
        const TemporaryHome home;
        const libconfig::Config config(home.writeFile(u"tavolux.conf"_s, text), u"cfg"_s);
        QTEST(config.lookup(key), "value");
    }

    void kind_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QString>("kind");
        QTest::addColumn<QString>("value");

        const QByteArray cfg = "s : { k = v; };";
        const QByteArray xml = "<s k=\"v\"/>";
        QTest::newRow("cfg") << cfg << u"cfg"_s << u"v"_s;
        QTest::newRow("xml") << xml << u"xml"_s << u"v"_s;
        QTest::newRow("cfg read as xml") << cfg << u"xml"_s << QString();
        QTest::newRow("xml read as cfg") << xml << u"cfg"_s << QString();
        QTest::newRow("kind that nobody knows") << cfg << u"ini"_s << QString();
        QTest::newRow("no kind") << cfg << QString() << QString();
        QTest::newRow("cfg in capitals") << cfg << u"CFG"_s << QString();
        QTest::newRow("xml in capitals") << xml << u"Xml"_s << QString();
        QTest::newRow("blank after the kind") << cfg << u"cfg "_s << QString();
        QTest::newRow("blank after the other kind") << xml << u"xml "_s << QString();
    }

    void kind()
    {
        QFETCH(const QByteArray, text);
        QFETCH(const QString, kind);
        const TemporaryHome home;
        const QString file = home.writeFile(u"configuration"_s, text);
        const QByteArray messages =
            capturedOutput([&] { QTEST(libconfig::Config(file, kind).lookup(u"s.k"_s), "value"); });
        QCOMPARE(messages, QByteArray());
    }

    void nothingWasRead()
    {
        const libconfig::Config config;
        QCOMPARE(config.lookup(u"s.k"_s), QString());
        QCOMPARE(config.lookup(QString()), QString());
    }

    void missingFileOfUnknownKindIsNotLookedFor()
    {
        const TemporaryHome home;
        const QByteArray messages =
            capturedOutput([&] { libconfig::Config(home.filePath(u"missing"_s), u"ini"_s); });
        QCOMPARE(messages, QByteArray());
    }

    void readingAgainReplacesWhatWasRead()
    {
        const TemporaryHome home;
        const QString first = home.writeFile(u"first"_s, "s : { k = v; l = w; };");
        const QString second = home.writeFile(u"second"_s, "s : { k = x; }; } after");
        libconfig::Config config(first, u"cfg"_s);
        config.readFile(second, u"cfg"_s);
        QCOMPARE(config.lookup(u"s.k"_s), u"x"_s);
        QCOMPARE(config.lookup(u"s.l"_s), QString());

        // The brace left the second file open in the middle; the next one is read from its start all the
        // same.
        config.readFile(first, u"cfg"_s);
        QCOMPARE(config.lookup(u"s.k"_s), u"v"_s);

        config.readFile(first, u"ini"_s);
        QCOMPARE(config.lookup(u"s.k"_s), QString());
    }

    void lookupBelowANode()
    {
        QDomDocument document;
        QVERIFY(document.setContent(QByteArray("<s k=\"v\"><!-- t --><t k=\"w\"/></s>")));
        const libconfig::Config config;
        const QDomElement s = document.documentElement();
        QCOMPARE(config.lookup(s, u"s.k"_s), u"v"_s);
        QCOMPARE(config.lookup(s, u"s.t.k"_s), u"w"_s);
        QCOMPARE(config.lookup(s.lastChild(), u"t.k"_s), u"w"_s);
        QCOMPARE(config.lookup(s.lastChild(), u"s.t.k"_s), QString());
        QCOMPARE(config.lookup(s.firstChild(), u"s.k"_s), QString());
        QCOMPARE(config.lookup(document, u"s.k"_s), QString());
        QCOMPARE(config.lookup(QDomNode(), u"s.k"_s), QString());
    }

    void sectionNames_data()
    {
        QTest::addColumn<QString>("key");
        QTest::addColumn<QStringList>("names");
        QTest::newRow("in the order of the file") << u"s.t"_s << QStringList({u"z"_s, u"a"_s, u"b"_s});
        QTest::newRow("of the outermost section") << u"s"_s << QStringList({u"t"_s, u"u"_s});
        QTest::newRow("deeper") << u"s.t.a"_s << QStringList(u"deep"_s);
        QTest::newRow("a section without any") << u"s.u"_s << QStringList();
        QTest::newRow("a setting") << u"s.k"_s << QStringList();
        QTest::newRow("a section that is not there") << u"s.v"_s << QStringList();
        QTest::newRow("another outermost section") << u"other"_s << QStringList();
        QTest::newRow("empty key") << QString() << QStringList();
    }

    void sectionNames()
    {
        QFETCH(const QString, key);
        const TemporaryHome home;
        const QString file =
            home.writeFile(u"conf"_s,
                           "s : { k = v; t : { z : { k = v; }; a : { deep : { k = v; }; }; };"
                           " u : { k = v; }; t : { a : { k = v; }; b : { k = v; }; }; };"
                           "other : { c : { k = v; }; };");
        QTEST(libconfig::Config(file, u"cfg"_s).sectionNames(key), "names");
        QCOMPARE(libconfig::Config().sectionNames(key), QStringList());
    }
};

QTEST_GUILESS_MAIN(ConfigTest)
#include "config_test.moc"
