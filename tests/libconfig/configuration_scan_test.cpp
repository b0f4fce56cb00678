#include "configuration_scan.h"

#include "config.h"
#include "temporary_home.h"

#include <QMap>
#include <QRandomGenerator>
#include <QTest>

#include <iostream>
#include <memory>
#include <sstream>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

using Kind = Statement::Kind;

/* The tree that a reader of the statements would build, shown as the store shows its own. */
class Tree
{
public:
    enum class EmptySections { left, taken };

    Tree(const QString &file, const std::vector<Statement> &statements,
         EmptySections empty = EmptySections::left)
        : root(std::make_unique<Section>())
    {
        root->name = file;
        std::vector<Section *> open{root.get()};
        for (const Statement &statement : statements) {
            switch (statement.kind) {
            case Kind::sectionBegins:
                open.back()->isThere = true;
                open.push_back(open.back()->sections.emplace_back(std::make_unique<Section>()).get());
                open.back()->name = statement.name;
                open.back()->isThere = empty == EmptySections::taken;
                break;
            case Kind::sectionEnds:
                open.pop_back();
                break;
            case Kind::setting:
                open.back()->isThere = true;
                open.back()->settings[statement.name] = statement.value;
                break;
            default:
                break;
            }
        }
    }

    QByteArray printed() const { return "Tree \n" + (root->isThere ? printed(*root) : QByteArray()); }

    QByteArray written() const
    {
        QByteArray text = settings(*root, " = \"", "\";\n", {});
        for (const auto &section : root->sections)
            if (section->isInTree())
                return text + written(*section, {});
        return text;
    }

private:
    struct Section
    {
        QString name;
        bool isThere = false;
        QMap<QString, QString> settings;
        std::vector<std::unique_ptr<Section>> sections;

        bool isInTree() const { return isThere && !name.isEmpty(); }
    };

    static QByteArray settings(const Section &section, const char *between, const char *end,
                               const QByteArray &indentation)
    {
        QByteArray text;
        for (auto setting = section.settings.begin(); setting != section.settings.end(); ++setting)
            text += indentation + setting.key().toLatin1() + between + setting.value().toLatin1() + end;
        return text;
    }

    static QByteArray printed(const Section &section)
    {
        QByteArray text = section.name.toLatin1() + '\n' + settings(section, " = ", "\n", {});
        for (const auto &inner : section.sections)
            if (inner->isInTree())
                text += printed(*inner);
        return text;
    }

    static QByteArray written(const Section &section, const QByteArray &indentation)
    {
        const QByteArray inner = indentation + "    ";
        QByteArray text = indentation + section.name.toLatin1() + ": \n" + indentation + "{\n"
            + settings(section, " = \"", "\";\n", inner);
        for (const auto &below : section.sections)
            if (below->isInTree())
                text += written(*below, inner);
        return text + indentation + "};\n\n";
    }

    std::unique_ptr<Section> root;
};

QByteArray printedByStore(const libconfig::Config &store)
{
    const std::ostringstream text;
    std::streambuf *const terminal = std::cout.rdbuf(text.rdbuf());
    store.printConfigTree();
    std::cout.rdbuf(terminal);
    return QByteArray::fromStdString(text.str());
}

QByteArray writtenByStore(const libconfig::Config &store, const QString &file)
{
    if (!store.buildConfigFile(file))
        qFatal("cannot write the file %s", qPrintable(file));
    return fileBytes(file);
}

QByteArray nested(int depth)
{
    return QByteArray("s : {").repeated(depth) + "k = v; " + QByteArray("};").repeated(depth);
}

QString shown(const Statement &statement)
{
    static const QMap<Kind, QString> kinds{
        {Kind::sectionBegins, u"begin"_s}, {Kind::sectionEnds, u"end"_s},       {Kind::setting, u"set"_s},
        {Kind::skippedText, u"skipped"_s}, {Kind::leftoverText, u"leftover"_s}, {Kind::remark, u"remark"_s}};
    QString text = QString::number(statement.line) + u' ' + kinds[statement.kind];
    if (!statement.name.isEmpty())
        text += " <"_L1 + statement.name + u'>';
    if (statement.kind == Kind::setting)
        text += " <"_L1 + statement.value + u'>';
    if (!statement.complete)
        text += u" incomplete"_s;
    return text;
}

QStringList shown(const Scan &scan)
{
    QStringList lines;
    for (const Statement &statement : scan.statements)
        lines.append(shown(statement));
    return lines;
}

} // namespace

class ConfigurationScanTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cfgStatements_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QStringList>("statements");

        QTest::newRow("empty") << QByteArray() << QStringList();
        QTest::newRow("blanks") << QByteArray(" \n\t") << QStringList();
        QTest::newRow("setting in a section")
            << QByteArray("s : { k = v; };") << QStringList{u"1 begin <s>"_s, u"1 set <k> <v>"_s, u"1 end"_s};
        QTest::newRow("lines count from where a name begins")
            << QByteArray("\ns\n:\n{\n\n  k\n =\n v\n;\n}\n;\n")
            << QStringList{u"2 begin <s>"_s, u"6 set <k> <v>"_s, u"10 end"_s};
        QTest::newRow("without a name, the line of the sign")
            << QByteArray("\n\n= v;\n : { };") << QStringList{u"3 set <v>"_s, u"4 begin"_s, u"4 end"_s};
        QTest::newRow("quotes go, blanks inside them stay")
            << QByteArray("k = \"  v  \";") << QStringList{u"1 set <k> <  v  >"_s};
        QTest::newRow("value over two lines")
            << QByteArray("k = v\nl = w;") << QStringList{u"1 set <k> <v\nl = w>"_s};
        QTest::newRow("value without an end")
            << QByteArray("k = v ") << QStringList{u"1 set <k> <v> incomplete"_s};
        QTest::newRow("section without a brace")
            << QByteArray("s : k = v;") << QStringList{u"1 begin <s> incomplete"_s, u"1 skipped <k = v;>"_s};
        QTest::newRow("text before the brace")
            << QByteArray("s :\nx y { };") << QStringList{u"1 begin <s>"_s, u"2 skipped <x y>"_s, u"2 end"_s};
        QTest::newRow("text after the brace")
            << QByteArray("s : { }\nt : { k = v; };")
            << QStringList{u"1 begin <s>"_s, u"1 end"_s, u"2 skipped <t : { k = v>"_s, u"2 end"_s};
        QTest::newRow("text before a closing brace")
            << QByteArray("s : { k = v; x };")
            << QStringList{u"1 begin <s>"_s, u"1 set <k> <v>"_s, u"1 leftover <x>"_s, u"1 end"_s};
        QTest::newRow("text at the end") << QByteArray("\nx\n") << QStringList{u"2 leftover <x>"_s};
        QTest::newRow("nothing is read after a brace too many")
            << QByteArray("} x; k = v;") << QStringList{u"1 end"_s, u"1 skipped <x>"_s};
        QTest::newRow("a byte is a character")
            << QByteArray("k = \xE4\xC3\xB6;") << QStringList{u"1 set <k> <äÃ¶>"_s};
        QTest::newRow("a no-break space is a blank")
            << QByteArray("\xA0k\xA0=\xA0v\xA0;") << QStringList{u"1 set <k> <v>"_s};
        QTest::newRow("a null byte is a character like any other")
            << QByteArray("a\0b = v;", 8) << QStringList{QString::fromLatin1("1 set <a\0b> <v>", 15)};
    }
    void cfgStatements()
    {
        QFETCH(const QByteArray, text);
        QTEST(shown(scanCfg(text)), "statements");
    }

    void cfgTreeIsTheStores_data()
    {
        QTest::addColumn<QByteArray>("text");

        QTest::newRow("empty") << QByteArray();
        QTest::newRow("one section") << QByteArray("s : { k = v; };");
        QTest::newRow("empty sections") << QByteArray("e : { }; s : { e : { }; };");
        QTest::newRow("two top-level sections") << QByteArray("s : { k = v; }; t : { k = w; };");
        QTest::newRow("setting outside of any section") << QByteArray("a = 1; s : { k = v; };");
        QTest::newRow("nothing but a setting outside") << QByteArray("a = 1;");
        QTest::newRow("given twice") << QByteArray("s : { k = v; k = w; t : { a = b; }; t : { a = c; }; };");
        QTest::newRow("section without a name") << QByteArray("s : { : { t : { k = v; }; }; };");
        QTest::newRow("missing semicolon") << QByteArray("s : { k = v }; l = w; };");
        QTest::newRow("missing brace") << QByteArray("s : { t : { k = v; u : { k = v; }; };");
        QTest::newRow("a brace too many") << QByteArray("s : { k = v; }; }; t : { k = v; };");
        QTest::newRow("as deep as it goes") << nested(libconfig::Config::maximumNesting);
        QTest::newRow("one deeper") << nested(libconfig::Config::maximumNesting + 1);
        QTest::newRow("without an end") << QByteArray("s : {").repeated(100'000);

        QRandomGenerator random(20'240'229);
        const QByteArrayList pieces{":", "{", "}",  "=",        ";",     ";\n",    "\"",   " ",
                                    "a", "b", "\n", "\xC3\xA4", "s : {", "k = v;", "};\n", "\xA0"};
        for (int i = 0; i < 500; ++i) {
            QByteArray text;
            for (auto count = random.bounded(40); count > 0; --count)
                text += pieces.at(random.bounded(pieces.size()));
            QTest::addRow("random %d", i) << text;
        }
    }
    void cfgTreeIsTheStores()
    {
        QFETCH(const QByteArray, text);
        QString file = home.writeFile(u"tavolux.conf"_s, text);
        QCOMPARE(Tree(file, scanCfg(text).statements).printed(),
                 printedByStore(libconfig::Config(file, u"cfg"_s)));

        // Inside a section as well, all of which is written, in its structure.
        const QByteArray section = "w : {" + text;
        file = home.writeFile(u"tavolux.conf"_s, section);
        QCOMPARE(Tree(file, scanCfg(section).statements).written(),
                 writtenByStore(libconfig::Config(file, u"cfg"_s), home.filePath(u"written"_s)));
    }

    void xmlStatements_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QStringList>("statements");

        QTest::newRow("settings are attributes")
            << QByteArray("<s>\n  <t k='v'/>\n</s>")
            << QStringList{u"1 begin <s>"_s, u"2 begin <t>"_s, u"2 set <k> <v>"_s, u"2 end"_s, u"3 end"_s};
        QTest::newRow("the line where the tag begins")
            << QByteArray("\n<s\n  k='v'\n  l='w'>\n\n  <t\n/>\n</s>\n")
            << QStringList{u"2 begin <s>"_s, u"2 set <k> <v>"_s, u"2 set <l> <w>"_s,
                           u"6 begin <t>"_s, u"7 end"_s,         u"8 end"_s};
        QTest::newRow("text and comments")
            << QByteArray("<s>\n<!-- c -->x\n</s>")
            << QStringList{u"1 begin <s>"_s, u"2 remark <c>"_s, u"2 leftover <x>"_s, u"3 end"_s};
        QTest::newRow("names with a colon")
            << QByteArray("<a:s b:k='v'/>")
            << QStringList{u"1 begin <a:s>"_s, u"1 set <b:k> <v>"_s, u"1 end"_s};
    }
    void xmlStatements()
    {
        QFETCH(const QByteArray, text);
        const Scan scan = scanXml(text);
        QCOMPARE(scan.fault, QString());
        QVERIFY(scan.beginsWithRoot);
        QTEST(shown(scan), "statements");

        const QString file = home.writeFile(u"tavolux.xml"_s, text);
        const Tree tree(file, scan.statements, Tree::EmptySections::taken);
        QCOMPARE(tree.printed(), printedByStore(libconfig::Config(file, u"xml"_s)));
    }

    void xmlBeginsWithRoot_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<bool>("beginsWithRoot");

        QTest::newRow("root element") << QByteArray("<s/>") << true;
        QTest::newRow("blanks before it") << QByteArray("\n <s/>") << true;
        QTest::newRow("comment after it") << QByteArray("<s/><!-- c -->") << true;
        QTest::newRow("declaration") << QByteArray("<?xml version='1.0'?><s/>") << false;
        QTest::newRow("comment") << QByteArray("<!-- c --><s/>") << false;
        QTest::newRow("processing instruction") << QByteArray("<?pi?><s/>") << false;
    }
    void xmlBeginsWithRoot()
    {
        QFETCH(const QByteArray, text);
        const Scan scan = scanXml(text);
        QCOMPARE(scan.fault, QString());
        QTEST(scan.beginsWithRoot, "beginsWithRoot");
    }

    void xmlFaults_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<int>("line");

        QTest::newRow("no end tag") << QByteArray("<s>\n<t></s>") << 2;
        QTest::newRow("attribute given twice") << QByteArray("<s>\n\n<t k='' k=''/></s>") << 3;
        QTest::newRow("text before the root") << QByteArray("k = v;\n<s/>") << 1;
        QTest::newRow("too deep") << "\n" + QByteArray("<s>").repeated(257) + QByteArray("</s>").repeated(257)
                                  << 2;
    }
    void xmlFaults()
    {
        QFETCH(const QByteArray, text);
        const Scan scan = scanXml(text);
        QVERIFY(!scan.fault.isEmpty());
        QTEST(scan.faultLine, "line");
        // The store has nothing either.
        const QString file = home.writeFile(u"tavolux.xml"_s, text);
        QCOMPARE(printedByStore(libconfig::Config(file, u"xml"_s)), "Tree \n");
    }

    void xmlAsDeepAsItGoes()
    {
        const QByteArray text = QByteArray("<s>").repeated(256) + QByteArray("</s>").repeated(256);
        QCOMPARE(scanXml(text).fault, QString());
        const QString file = home.writeFile(u"tavolux.xml"_s, text);
        QVERIFY(printedByStore(libconfig::Config(file, u"xml"_s)) != "Tree \n");
    }

    void manyElementsSideBySide()
    {
        const QByteArray text = "<s>" + QByteArray("<t/>").repeated(1000) + "<u k='v'/></s>";
        QCOMPARE(scanXml(text).fault, QString());
        QCOMPARE(scanXml(text).statements.size(), std::size_t{2 + 2 * 1000 + 3});
        const QString file = home.writeFile(u"tavolux.xml"_s, text);
        QCOMPARE(libconfig::Config(file, u"xml"_s).lookup(u"s.u.k"_s), u"v"_s);
    }

    void kindsOfFile()
    {
        QCOMPARE(shown(scanConfiguration("k = v;", u"cfg"_s)), QStringList{u"1 set <k> <v>"_s});
        QVERIFY(!scanConfiguration("k = v;", u"xml"_s).fault.isEmpty());
    }

private:
    const TemporaryHome home;
};

QTEST_GUILESS_MAIN(ConfigurationScanTest)
#include "configuration_scan_test.moc"
