#include "captured_output.h"
#include "config.h"
#include "file_name.h"
#include "temporary_home.h"

#include <QFile>
#include <QRegularExpression>
#include <QTest>

#include <sys/fsuid.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>

using namespace Qt::StringLiterals;

namespace {

constexpr uid_t nobody = 65534;

/* The tree as it is printed, without its first two lines: the heading and the file's name. */
QByteArray printedSections(const libconfig::Config &config)
{
    const QByteArray tree = capturedOutput([&] { config.printConfigTree(); });
    const qsizetype heading = tree.indexOf('\n');
    const qsizetype fileName = tree.indexOf('\n', heading + 1);
    return fileName < 0 ? QByteArray() : tree.sliced(fileName + 1);
}

QByteArray nestedSections(int count)
{
    return QByteArray("s:{k=v;").repeated(count) + "deepest=x;" + QByteArray("};").repeated(count);
}

QString keyAtDepth(int depth, const QString &name)
{
    return u"s."_s.repeated(depth) + name;
}

/* The steps of the reader, one at a time. */
class SteppedConfig : public libconfig::Config
{
public:
    using Config::closeFile;
    using Config::jump;
    using Config::loadFile;
    using Config::openFile;
};

} // namespace

/* The "cfg" format with all that it lets through. */
class CfgReaderTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void tree_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QByteArray>("tree");

        const auto row = [](const char *name, const QByteArray &text, const QByteArray &tree) {
            QTest::newRow(name) << text << tree;
        };
        row("top-level setting", "a = 1;", "a = 1\n");
        row("top-level setting and a section", "a = 1;\ns : { k = v; };", "a = 1\ns\nk = v\n");
        row("top-level setting after a section", "s : { k = v; };\na = 1;", "a = 1\ns\nk = v\n");
        row("everything on one line", "s:{k=v;t:{l=w;};};", "s\nk = v\nt\nl = w\n");
        row("a line for each part", "s\n:\n{\nk\n=\nv\n;\n}\n;\n", "s\nk = v\n");
        row("tabs and line ends of another system", "\ts :\r\n{\r\n\tk = v ;\r\n} ;\r\n", "s\nk = v\n");
        row("sections in the order of the file", "s:{b:{k=1;};a:{k=2;};};", "s\nb\nk = 1\na\nk = 2\n");
        row("two sections of one name", "s:{t:{k=1;};t:{k=2;};};", "s\nt\nk = 1\nt\nk = 2\n");
        row("two top-level sections", "s:{k=1;};t:{k=2;};", "s\nk = 1\nt\nk = 2\n");
        row("setting given twice", "s : { k = 1; k = 2; };", "s\nk = 2\n");
        row("setting given twice around a section", "s:{k=1;t:{l=3;};k=2;};", "s\nk = 2\nt\nl = 3\n");

        row("section without a body", "s : { };", "");
        row("section with text only", "s : { text };", "");
        row("empty section inside a section", "s : { t : { }; };", "s\n");
        row("empty section between two others", "s:{a:{k=1;};b:{};c:{k=2;};};", "s\na\nk = 1\nc\nk = 2\n");
        row("setting with an empty value keeps its section", "s : { k = ; };", "s\nk = \n");

        row("white space inside a name", "s t : { k  l = v; };", "s t\nk  l = v\n");
        row("line end inside a name", "s : { k\nl = v; };", "s\nk\nl = v\n");
        row("brace inside a name", "s : { k{ = v; };", "s\nk{ = v\n");
        row("quotes inside a name", "\"s\" : { \"k\" = v; };", "\"s\"\n\"k\" = v\n");
        row("semicolon inside a name", "s : { ;k = v; };", "s\n;k = v\n");
        row("comment is none", "# about s\ns : { k = v; };", "# about s\ns\nk = v\n");
        row("text between statements", "s : { k = v; more l = w; };", "s\nk = v\nmore l = w\n");
        row("text after a section joins the next name", "s:{k=v;};x\nt:{l=w;};", "s\nk = v\nx\nt\nl = w\n");
        row("text at the end of a section is dropped", "s : { k = v; text }; t : { l = w; };",
            "s\nk = v\nt\nl = w\n");
        row("text at the end of the file is dropped", "s : { k = v; }; text", "s\nk = v\n");
        row("text between colon and brace", "s : x y z { k = 1; };", "s\nk = 1\n");
        row("signs between colon and brace", "s : =;:} { k = 1; };", "s\nk = 1\n");
        row("text between brace and semicolon", "s : { k = v; } x = 1: {; l = w;", "l = w\ns\nk = v\n");

        row("missing semicolon of a value", "s : { k = v\n l = w; };", "s\nk = v\n l = w\n");
        row("missing semicolon of the last value", "s : { k = v };", "s\nk = v }\n");
        row("value up to the end of the file", "s : { k = v", "s\nk = v\n");
        row("value without anything after the sign", "s : { k =", "s\nk = \n");
        row("missing brace after a colon", "s : k = v; };", "");
        row("missing brace takes the next one", "s : k = v; t : { l = w; };", "s\nl = w\n");
        row("missing brace in a section", "s : { k = v; t : l = w; }; u = 1;", "s\nk = v\n");
        row("missing closing braces", "s : { t : { k = v;", "s\nt\nk = v\n");
        row("missing semicolon of a section", "s : { t : { k = v; } l = w; m = x; };",
            "s\nm = x\nt\nk = v\n");
        row("missing semicolon of the last section", "s : { k = v; }", "s\nk = v\n");
        row("top-level brace ends the file", "s : { k = v; }; } ; t : { l = w; };", "s\nk = v\n");
        row("one brace too many", "s : { k = v; }; }; a = 1;", "s\nk = v\n");
    }

    void tree()
    {
        QFETCH(const QByteArray, text);
        const TemporaryHome home;
        const libconfig::Config config(home.writeFile(u"tavolux.conf"_s, text), u"cfg"_s);
        QTEST(printedSections(config), "tree");
    }

    void fileWithoutStatementsLeavesNoTree_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::newRow("empty file") << QByteArray();
        QTest::newRow("white space only") << QByteArray(" \t\r\n\n");
        QTest::newRow("text only") << QByteArray("nothing that ends a statement");
        QTest::newRow("brace first") << QByteArray("}; s : { k = v; };");
    }

    void fileWithoutStatementsLeavesNoTree()
    {
        QFETCH(const QByteArray, text);
        const TemporaryHome home;
        const libconfig::Config config(home.writeFile(u"tavolux.conf"_s, text), u"cfg"_s);
        QCOMPARE(capturedOutput([&] { config.printConfigTree(); }), "Tree \n");
        QCOMPARE(config.lookup(u"s.k"_s), QString());
        QCOMPARE(config.lookup(QString()), QString());
    }

    void value_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QString>("value");

        const auto row = [](const char *name, const QByteArray &text, const QString &value) {
            QTest::newRow(name) << text << value;
        };
        row("plain", "v", u"v"_s);
        row("white space around it", " \t\n v \r\n", u"v"_s);
        row("white space inside it", "a  b\n c", u"a  b\n c"_s);
        row("quoted", "\"v\"", u"v"_s);
        row("quotes around nothing", "\"\"", {});
        row("only white space", "  ", {});
        row("nothing", "", {});
        row("quotes keep blanks", " \" x \" ", u" x "_s);
        row("quotes keep two blanks on each side", "\"  x  \"", u"  x  "_s);
        row("quotes around blanks only", "\"  \"", u"  "_s);
        row("quote inside", "a\"b", u"ab"_s);
        row("quotes everywhere", "\"a\"\"b\" \"c\"", u"ab c"_s);
        row("single quote", "\"", {});
        row("apostrophes stay", "'v'", u"'v'"_s);
        row("backslashes stay", "a\\\"b\\n", u"a\\b\\n"_s);
        row("meaningful signs", "a:b=c{d}e", u"a:b=c{d}e"_s);
        row("section inside a value", "t : { l = w", u"t : { l = w"_s);
        row("comment signs", "# v // w", u"# v // w"_s);
        row("Latin-1", "Caff\xE8", u"Caff\u00E8"_s);
        row("UTF-8 is two characters", "Caff\xC3\xA8", u"Caff\u00C3\u00A8"_s);
        row("last byte of all is no end of file", "\xFF", u"\u00FF"_s);
        row("no-break space is white space", "\xA0v\xA0", u"v"_s);
        row("control bytes", QByteArray("\x1B\x7F\x80"), u"\u001B\u007F\u0080"_s);
        row("NUL", QByteArray("a\0b", 3), QString::fromLatin1("a\0b", 3));
        row("a byte that some systems end files with", QByteArray("a\x1A") + "b", u"a\u001Ab"_s);
        row("2,048 characters", QByteArray(2048, 'v'), u"v"_s.repeated(2048));
        row("2,049 characters", QByteArray(2049, 'v'), u"v"_s.repeated(2049));
        row("1 MB", QByteArray(1 << 20, 'v'), u"v"_s.repeated(1 << 20));
    }

    void value()
    {
        QFETCH(const QByteArray, text);
        const TemporaryHome home;
        const QString file = home.writeFile(u"tavolux.conf"_s, "s : { k =" + text + "; end = here; };");
        const libconfig::Config config(file, u"cfg"_s);
        QTEST(config.lookup(u"s.k"_s), "value");
        QCOMPARE(config.lookup(u"s.end"_s), u"here"_s);
    }

    void semicolonAlwaysEndsAValue_data()
    {
        QTest::addColumn<QByteArray>("statement");
        QTest::addColumn<QString>("value");
        QTest::addColumn<QString>("nextKey");
        QTest::newRow("plain") << QByteArray("k = a;b;") << u"a"_s << u"s.b;\nc"_s;
        QTest::newRow("quoted") << QByteArray("k = \"a;b\";") << u"a"_s << u"s.b\";\nc"_s;
    }

    void semicolonAlwaysEndsAValue()
    {
        QFETCH(const QByteArray, statement);
        QFETCH(const QString, nextKey);
        const TemporaryHome home;
        const QString file = home.writeFile(u"tavolux.conf"_s, "s : { " + statement + "\nc = 1; };");
        const libconfig::Config config(file, u"cfg"_s);
        QTEST(config.lookup(u"s.k"_s), "value");
        QCOMPARE(config.lookup(nextKey), u"1"_s);
        QCOMPARE(config.lookup(u"s.c"_s), QString());
    }

    void name_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("name");
        QTest::newRow("Latin-1") << QByteArray("citt\xE0") << u"citt\u00E0"_s;
        QTest::newRow("no XML name") << QByteArray("1 <&/> 2") << u"1 <&/> 2"_s;
        QTest::newRow("NUL") << QByteArray("a\0b", 3) << QString::fromLatin1("a\0b", 3);
        QTest::newRow("no-break space around") << QByteArray("\xA0n\xA0") << u"n"_s;
        QTest::newRow("2,049 characters") << QByteArray(2049, 'n') << u"n"_s.repeated(2049);
        QTest::newRow("1 MB") << QByteArray(1 << 20, 'n') << u"n"_s.repeated(1 << 20);
    }

    void name()
    {
        QFETCH(const QByteArray, bytes);
        QFETCH(const QString, name);
        const TemporaryHome home;
        const QString file = home.writeFile(u"tavolux.conf"_s,
                                            bytes + " : { " + bytes + " = v; " + bytes + " : { k = w; }; };");
        const libconfig::Config config(file, u"cfg"_s);
        QCOMPARE(config.lookup(name + u'.' + name), u"v"_s);
        QCOMPARE(config.lookup(name + u'.' + name + ".k"_L1), u"w"_s);
    }

    /* What a nameless setting or section becomes is nobody's business, as long as what follows is read. */
    void namelessStatementsDoNoHarm_data()
    {
        QTest::addColumn<QByteArray>("statement");
        QTest::newRow("setting") << QByteArray("= v;");
        QTest::newRow("settings") << QByteArray("= v; = w;");
        QTest::newRow("section") << QByteArray(": { k = v; };");
        QTest::newRow("empty section") << QByteArray(": { };");
        QTest::newRow("section in a section") << QByteArray(": { : { = v; }; k = v; };");
    }

    void namelessStatementsDoNoHarm()
    {
        QFETCH(const QByteArray, statement);
        QTest::failOnWarning(QRegularExpression(u".*"_s));
        const TemporaryHome home;
        const QString file =
            home.writeFile(u"tavolux.conf"_s, "s : { a = 1; " + statement + " b = 2; }; " + statement);
        const libconfig::Config config(file, u"cfg"_s);
        QCOMPARE(config.lookup(u"s.a"_s), u"1"_s);
        QCOMPARE(config.lookup(u"s.b"_s), u"2"_s);
        capturedOutput([&] { config.printConfigTree(); });
        (void)config.buildConfigFile(home.filePath(u"written"_s));
        (void)config.buildConfigXmlFile(home.filePath(u"written"_s));

        const QString atTheTop = home.writeFile(u"tavolux.conf"_s, statement + "s : { k = v; };");
        capturedOutput([&] { libconfig::Config(atTheTop, u"cfg"_s).printConfigTree(); });
    }

    void sectionsAreReadDownToTheBound()
    {
        const int deepest = libconfig::Config::maximumNesting;
        const TemporaryHome home;
        const QString file = home.writeFile(u"tavolux.conf"_s, nestedSections(deepest) + "behind = 1;");
        const libconfig::Config config(file, u"cfg"_s);
        QCOMPARE(config.lookup(keyAtDepth(1, u"k"_s)), u"v"_s);
        QCOMPARE(config.lookup(keyAtDepth(deepest, u"deepest"_s)), u"x"_s);
        QVERIFY(printedSections(config).startsWith("behind = 1\n"));
    }

    void readingEndsBelowTheBound_data()
    {
        QTest::addColumn<int>("depth");
        QTest::newRow("one too deep") << libconfig::Config::maximumNesting + 1;
        QTest::newRow("100,000 deep") << 100'000;
    }

    void readingEndsBelowTheBound()
    {
        QFETCH(const int, depth);
        const int deepest = libconfig::Config::maximumNesting;
        const TemporaryHome home;
        const QString file = home.writeFile(u"tavolux.conf"_s, nestedSections(depth) + "behind = 1;");
        libconfig::Config config(file, u"cfg"_s);
        QCOMPARE(config.lookup(keyAtDepth(deepest, u"k"_s)), u"v"_s);
        QCOMPARE(config.lookup(keyAtDepth(deepest + 1, u"k"_s)), QString());
        for (const int level : {deepest, deepest + 1, depth})
            QCOMPARE(config.lookup(keyAtDepth(level, u"deepest"_s)), QString());
        QVERIFY(!printedSections(config).contains("behind"));

        // The next file starts at the top again.
        config.readFile(home.writeFile(u"flat"_s, "s : { k = w; };"), u"cfg"_s);
        QCOMPARE(config.lookup(u"s.k"_s), u"w"_s);
    }

    void manySectionsSideBySide()
    {
        const TemporaryHome home;
        QByteArray text = "s : { ";
        for (int i = 0; i < 10'000; ++i)
            text += 't' + QByteArray::number(i) + " : { k = " + QByteArray::number(i) + "; };\n";
        const libconfig::Config config(home.writeFile(u"tavolux.conf"_s, text + "};"), u"cfg"_s);
        QCOMPARE(config.lookup(u"s.t9999.k"_s), u"9999"_s);
    }

    void whatIsNoReadableFileIsNotFound_data()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("missing") << u"missing"_s;
        QTest::newRow("in a missing folder") << u"missing/tavolux.conf"_s;
        QTest::newRow("folder") << u"folder"_s;
        QTest::newRow("FIFO that nobody writes") << u"fifo"_s;
        QTest::newRow("link to nothing") << u"link"_s;
        QTest::newRow("below a file") << u"tavolux.conf/tavolux.conf"_s;
        QTest::newRow("file that must not be read") << u"secret"_s;
        QTest::newRow("non-ASCII name") << u"caff\u00E8-\u20AC"_s;
    }

    void whatIsNoReadableFileIsNotFound()
    {
        QFETCH(const QString, name);
        const TemporaryHome home;
        home.writeFile(u"tavolux.conf"_s, "s : { k = v; };");
        home.writeFile(u"folder/file"_s, "s : { k = v; };");
        home.makeFifo(u"fifo"_s);
        QVERIFY(QFile::link(home.filePath(u"missing"_s), home.filePath(u"link"_s)));
        QVERIFY(QFile::setPermissions(home.writeFile(u"secret"_s, "s : { k = v; };"), {}));
        for (const QString &folder : {home.path(), home.path() + "/.."_L1})
            QCOMPARE(chmod(QFile::encodeName(folder).constData(), 0755), 0);

        const QString file = home.filePath(name);
        libconfig::Config config;
        const QByteArray messages = capturedOutput([&] {
            // Nobody is kept from a file while he is root.
            setfsuid(nobody);
            config.readFile(file, u"cfg"_s);
            setfsuid(geteuid());
        });
        QCOMPARE(messages, "Error in the method FileReader::open( " + file.toUtf8() + " ): File Not Found\n");
        QCOMPARE(config.lookup(u"s.k"_s), QString());
        QCOMPARE(capturedOutput([&] { config.printConfigTree(); }), "Tree \n");
    }

    void linkToAFileIsRead()
    {
        const TemporaryHome home;
        const QString link = home.filePath(u"link"_s);
        QVERIFY(QFile::link(home.writeFile(u"tavolux.conf"_s, "s : { k = v; };"), link));
        QCOMPARE(libconfig::Config(link, u"cfg"_s).lookup(u"s.k"_s), u"v"_s);
    }

    void fileNameIsUsedUnchanged()
    {
        const TemporaryHome home;
        const QString file = home.writeFile(u" $HOME ~ caff\u00E8 \u20AC.conf"_s, "s : { k = v; };");
        const libconfig::Config config(file, u"cfg"_s);
        QCOMPARE(config.lookup(u"s.k"_s), u"v"_s);
        const QByteArray tree = capturedOutput([&] { config.printConfigTree(); });
        QVERIFY(tree.startsWith("Tree \n" + file.toLatin1() + "\ns\n"));
    }

    void fileNamesAreTheBytesThatTheSystemGave()
    {
        const TemporaryHome home;
        const QByteArray path = QFile::encodeName(home.filePath(u"b"_s)) + "\xE4r.conf";
        std::ofstream(path.constData()) << "s : { k = v; };";
        QVERIFY(std::filesystem::exists(path.toStdString()));
        QCOMPARE(libconfig::Config(fileNameFromBytes(path), u"cfg"_s).lookup(u"s.k"_s), u"v"_s);
        QCOMPARE(capturedOutput([&] { libconfig::Config(fileNameFromBytes(path + '\xE4'), u"cfg"_s); }),
                 "Error in the method FileReader::open( " + path + "\xE4 ): File Not Found\n");
    }

    void messageStaysOnOneLine()
    {
        const QByteArray messages =
            capturedOutput([] { libconfig::Config(u"no\nsuch\u001B[2Jfile"_s, u"cfg"_s); });
        QCOMPARE(messages, "Error in the method FileReader::open( no?such?[2Jfile ): File Not Found\n");
    }

    void jumpEndsBehindTheFirstOccurrence()
    {
        const TemporaryHome home;
        SteppedConfig config;
        config.readFile(home.writeFile(u"empty"_s, {}), u"cfg"_s);
        QVERIFY(config.openFile(home.writeFile(u"text"_s, "a{b{k = v; c\xFF;")));
        QVERIFY(config.jump('{'));
        QVERIFY(config.jump('{'));
        QVERIFY(config.jump('\xFF'));
        QVERIFY(!config.jump('{'));
        QVERIFY(!config.jump(';'));
    }

    void onlyABraceAtTheTopLeavesTheFileOpen()
    {
        const TemporaryHome home;
        SteppedConfig config;
        config.readFile(home.writeFile(u"brace"_s, "s : { k = v; }; } ; text {"), u"cfg"_s);
        QVERIFY(config.jump('{'));

        const QString whole = home.writeFile(u"whole"_s, "s : { k = v; };");
        config.readFile(whole, u"cfg"_s);
        home.writeFile(u"whole"_s, "s : { k = v; }; text {");
        QVERIFY(!config.jump('{'));
    }

    void nothingIsReadWithoutAnOpenFile()
    {
        const TemporaryHome home;
        SteppedConfig config;
        QVERIFY(!config.jump('{'));
        capturedOutput([&] { QVERIFY(!config.openFile()); });
        capturedOutput([&] { QVERIFY(!config.openFile(home.filePath(u"missing"_s))); });
        QVERIFY(!config.jump('{'));

        QVERIFY(config.openFile(home.writeFile(u"text"_s, "a{")));
        config.closeFile();
        QVERIFY(!config.jump('{'));
    }
};

QTEST_GUILESS_MAIN(CfgReaderTest)
#include "cfg_reader_test.moc"
