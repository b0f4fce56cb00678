#include "captured_output.h"
#include "config.h"
#include "temporary_home.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

QByteArray nestedElements(int count)
{
    return QByteArray("<s k=\"v\">").repeated(count) + QByteArray("</s>").repeated(count);
}

} // namespace

/* The "xml" kind: the file's root element takes the place of the first top-level section. */
class XmlReaderTest : public QObject
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
        row("attribute of the root element", "<s k=\"v\"/>", u"s.k"_s, u"v"_s);
        row("attribute of a nested element", "<a><b c=\"v\"/></a>", u"a.b.c"_s, u"v"_s);
        row("blanks are kept", "<s k=\"  v \"/>", u"s.k"_s, u"  v "_s);
        row("semicolons and quotes are kept", "<s k='a;\"b\"'/>", u"s.k"_s, u"a;\"b\""_s);
        row("character references", "<s k=\"&lt;&#233;&amp;\"/>", u"s.k"_s, u"<\u00E9&"_s);
        row("UTF-8", "<s k=\"\xE2\x82\xAC\"/>", u"s.k"_s, u"\u20AC"_s);
        row("prefixed name", "<p:s p:k=\"v\" xmlns:p=\"urn:x\"/>", u"p:s.p:k"_s, u"v"_s);
        row("second of two siblings of one name", "<s><t l=\"v\"/><t k=\"w\"/></s>", u"s.t.k"_s, u"w"_s);
        row("comments between elements", "<s><!-- t --><t k=\"v\"/></s>", u"s.t.k"_s, u"v"_s);
        row("text is no setting", "<s><k>v</k></s>", u"s.k"_s, {});
        row("text is no value", "<s k=\"\">v</s>", u"s.k"_s, {});
        row("line end before the root element", "\n<s k=\"v\"/>", u"s.k"_s, u"v"_s);
        row("comment after the root element", "<s k=\"v\"/><!-- s -->", u"s.k"_s, u"v"_s);

        row("declaration first", "<?xml version=\"1.0\"?><s k=\"v\"/>", u"s.k"_s, {});
        row("comment first", "<!-- s --><s k=\"v\"/>", u"s.k"_s, {});
        row("processing instruction first", "<?s k?><s k=\"v\"/>", u"s.k"_s, {});
        row("document type first, which is no node", "<!DOCTYPE s><s k=\"v\"/>", u"s.k"_s, u"v"_s);
        row("declared entity", "<!DOCTYPE s [<!ENTITY e \"v\">]><s k=\"&e;\"/>", u"s.k"_s, u"v"_s);
        row("declaration first, child of the root element", "<?xml version=\"1.0\"?><r><s k=\"v\"/></r>",
            u"s.k"_s, {});
        row("comment first, child of the root element", "<!-- r --><r><s k=\"v\"/></r>", u"s.k"_s, {});

        row("cut off", "<s k=\"v\">", u"s.k"_s, {});
        row("cut off after an element", "<r><s k=\"v\"/>", u"s.k"_s, {});
        row("second root element", "<s k=\"v\"/><t/>", u"s.k"_s, {});
        row("text after the root element", "<s k=\"v\"/>text", u"s.k"_s, {});
        row("attribute given twice", "<s k=\"v\" k=\"w\"/>", u"s.k"_s, {});
        row("undeclared entity", "<s k=\"&v;\"/>", u"s.k"_s, {});
        row("empty file", "", u"s.k"_s, {});
        row("NUL bytes", QByteArray("<s k=\"v\"/>\0", 11), u"s.k"_s, {});
    }

    void lookup()
    {
        QFETCH(const QByteArray, text);
        QFETCH(const QString, key);
        const TemporaryHome home;
        const QString file = home.writeFile(u"tavolux.xml"_s, text);
        QString value;
        const QByteArray messages =
            capturedOutput([&] { value = libconfig::Config(file, u"xml"_s).lookup(key); });
        QTEST(value, "value");
        QCOMPARE(messages, QByteArray());
    }

    void rootElementMovesBelowOneNamedAfterTheFile()
    {
        const TemporaryHome home;
        const QString file = home.writeFile(u"tavolux.xml"_s, "<s k=\"v\"><t l=\"w\"/></s>");
        const libconfig::Config config(file, u"xml"_s);
        QCOMPARE(capturedOutput([&] { config.printConfigTree(); }),
                 "Tree \n" + file.toLatin1() + "\ns\nk = v\nt\nl = w\n");
    }

    void whatCannotBeReadIsSilent_data()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("missing") << u"missing"_s;
        QTest::newRow("folder") << u"folder"_s;
        QTest::newRow("FIFO that nobody writes") << u"fifo"_s;
    }

    void whatCannotBeReadIsSilent()
    {
        QFETCH(const QString, name);
        const TemporaryHome home;
        home.writeFile(u"folder/file"_s, "<s k=\"v\"/>");
        home.makeFifo(u"fifo"_s);
        QByteArray tree;
        const QByteArray messages = capturedOutput([&] {
            const libconfig::Config config(home.filePath(name), u"xml"_s);
            tree = capturedOutput([&] { config.printConfigTree(); });
        });
        QCOMPARE(messages, QByteArray());
        QCOMPARE(tree, "Tree \n");
    }

    void elementsAreReadDownToTheBound_data()
    {
        const int deepest = libconfig::Config::maximumNesting;
        QTest::addColumn<int>("depth");
        QTest::addColumn<QString>("value");
        QTest::newRow("as deep as the bound") << deepest << u"v"_s;
        QTest::newRow("one too deep") << deepest + 1 << QString();
        QTest::newRow("100,000 deep") << 100'000 << QString();
    }

    void elementsAreReadDownToTheBound()
    {
        QFETCH(const int, depth);
        const TemporaryHome home;
        const QString file = home.writeFile(u"tavolux.xml"_s, nestedElements(depth));
        const libconfig::Config config(file, u"xml"_s);
        QTEST(config.lookup(u"s.k"_s), "value");
        QTEST(config.lookup(u"s."_s.repeated(qMin(depth, libconfig::Config::maximumNesting)) + u'k'),
              "value");
    }

    void prefixesDoNotHideTheDepth()
    {
        const TemporaryHome home;
        const QString file =
            home.writeFile(u"tavolux.xml"_s, "<p:s k=\"v\">" + nestedElements(256) + "</p:s>");
        QCOMPARE(libconfig::Config(file, u"xml"_s).lookup(u"p:s.k"_s), QString());
    }

    void elementsSideBySideAreNotDeep()
    {
        const TemporaryHome home;
        const QString file =
            home.writeFile(u"tavolux.xml"_s, "<s>" + QByteArray("<t/>").repeated(1000) + "<u k=\"v\"/></s>");
        QCOMPARE(libconfig::Config(file, u"xml"_s).lookup(u"s.u.k"_s), u"v"_s);
    }

    void entityBombGoesOff()
    {
        QByteArray text = "<!DOCTYPE s [<!ENTITY e0 \"bomb\">";
        for (int i = 1; i < 40; ++i) {
            const QByteArray inner = "&e" + QByteArray::number(i - 1) + ';';
            text += "<!ENTITY e" + QByteArray::number(i) + " \"" + inner + inner + "\">";
        }
        text += "]><s k=\"&e39;\"><t>&e39;</t></s>";
        const TemporaryHome home;
        const QString file = home.writeFile(u"tavolux.xml"_s, text);
        const libconfig::Config config(file, u"xml"_s);
        QCOMPARE(config.lookup(u"s.k"_s), QString());
        QCOMPARE(capturedOutput([&] { config.printConfigTree(); }), "Tree \n");
    }
};

QTEST_GUILESS_MAIN(XmlReaderTest)
#include "xml_reader_test.moc"
