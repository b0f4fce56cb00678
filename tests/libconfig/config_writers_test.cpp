#include "captured_output.h"
#include "config.h"
#include "file_size_limit.h"
#include "temporary_home.h"

#include <QDir>
#include <QFile>
#include <QMap>
#include <QRandomGenerator>
#include <QTest>
#include <QTextStream>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

const QByteArray example = "tavolux : {\n"
                           "  language : {\n"
                           "    basedir = \"/usr/share/tavolux/lang\";\n"
                           "    file = \"/\";\n"
                           "  };\n"
                           "  doc : { paperWidth = 40; };\n"
                           "};\n";

const QByteArray exampleAsCfg = "tavolux: \n"
                                "{\n"
                                "    language: \n"
                                "    {\n"
                                "        basedir = \"/usr/share/tavolux/lang\";\n"
                                "        file = \"/\";\n"
                                "    };\n"
                                "\n"
                                "    doc: \n"
                                "    {\n"
                                "        paperWidth = \"40\";\n"
                                "    };\n"
                                "\n"
                                "};\n"
                                "\n";

const QByteArray exampleAsXml = "\n"
                                "<tavolux>\n"
                                "\n"
                                "    <language\n"
                                "        basedir = \"/usr/share/tavolux/lang\"\n"
                                "        file = \"/\">\n"
                                "    </language>\n"
                                "\n"
                                "    <doc\n"
                                "        paperWidth = \"40\">\n"
                                "    </doc>\n"
                                "</tavolux>\n";

using Writer = WriteResult (libconfig::Config::*)(const QString &) const;

struct WrittenFile
{
    bool whole = false;
    QByteArray bytes;
};

WrittenFile written(const libconfig::Config &config, Writer writer, const TemporaryHome &home)
{
    const QString file = home.filePath(u"written"_s);
    WrittenFile result;
    result.whole = (config.*writer)(file);
    result.bytes = fileBytes(file);
    return result;
}

QByteArray tree(const libconfig::Config &config)
{
    return capturedOutput([&] { config.printConfigTree(); });
}

/* A section made up by chance, and what the file should say of it. */
struct Section
{
    QString name;
    QMap<QString, QString> settings;
    QList<Section> sections;

    QString asCfg(const QString &indentation) const
    {
        QString text = indentation + name + ": \n"_L1 + indentation + "{\n"_L1;
        for (auto setting = settings.begin(); setting != settings.end(); ++setting)
            text += indentation + "    "_L1 + setting.key() + " = \""_L1 + setting.value() + "\";\n"_L1;
        for (const Section &section : sections)
            text += section.asCfg(indentation + "    "_L1);
        return text + indentation + "};\n\n"_L1;
    }

    QString asXml(const QString &indentation) const
    {
        QString text = u'\n' + indentation + u'<' + name;
        for (auto setting = settings.begin(); setting != settings.end(); ++setting)
            text += u'\n' + indentation + "    "_L1 + setting.key() + " = \""_L1 + setting.value() + u'"';
        text += ">\n"_L1;
        for (const Section &section : sections)
            text += section.asXml(indentation + "    "_L1);
        return text + indentation + "</"_L1 + name + ">\n"_L1;
    }
};

class RandomSections
{
public:
    /* Names and values are made of the letters; a name neither begins nor ends with a blank. */
    RandomSections(quint32 seed, const QString &lettersOfNames, const QString &lettersOfValues)
        : random(seed)
        , nameLetters(lettersOfNames)
        , valueLetters(lettersOfValues)
    {
    }

    // A section in which there is nothing would not be read back.
    Section section(int depth)
    {
        Section made;
        made.name = name();
        for (int i = random.bounded(1, 6); i > 0; --i)
            made.settings.insert(name(), text(valueLetters, random.bounded(12)));
        for (int i = depth > 0 ? random.bounded(4) : 0; i > 0; --i)
            made.sections.append(section(depth - 1));
        return made;
    }

    /* The section as somebody might have written it: with blanks, line ends and quotes anywhere. */
    QString scribbled(const Section &section)
    {
        QString text = blanks() + section.name + blanks() + u':' + blanks() + u'{';
        for (auto setting = section.settings.begin(); setting != section.settings.end(); ++setting)
            text += blanks() + setting.key() + blanks() + u'=' + blanks() + u'"' + setting.value() + u'"'
                + blanks() + u';';
        for (const Section &inner : section.sections)
            text += scribbled(inner);
        return text + blanks() + u'}' + blanks() + u';' + blanks();
    }

private:
    QString text(const QString &letters, int length)
    {
        QString made;
        for (; length > 0; --length)
            made += letters.at(random.bounded(letters.size()));
        return made;
    }

    QString name() { return u'n' + text(nameLetters, random.bounded(8)) + u'n'; }

    QString blanks() { return text(u" \t\r\n"_s, random.bounded(3)); }

    QRandomGenerator random;
    QString nameLetters;
    QString valueLetters;
};

} // namespace

Q_DECLARE_METATYPE(Writer)

/* The tree back to text in both kinds, and printed. */
class ConfigWritersTest : public QObject
{
    Q_OBJECT

    static void addWriters()
    {
        QTest::addColumn<Writer>("writer");
        QTest::addColumn<QByteArray>("text");
        QTest::newRow("cfg") << static_cast<Writer>(&libconfig::Config::buildConfigFile) << exampleAsCfg;
        QTest::newRow("xml") << static_cast<Writer>(&libconfig::Config::buildConfigXmlFile) << exampleAsXml;
    }

private Q_SLOTS:
    void texts_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QString>("kind");
        QTest::addColumn<QByteArray>("cfg");
        QTest::addColumn<QByteArray>("xml");

        const auto row = [](const char *name, const QByteArray &text, const QString &kind,
                            const QByteArray &cfg,
                            const QByteArray &xml) { QTest::newRow(name) << text << kind << cfg << xml; };
        row("sections in a section", example, u"cfg"_s, exampleAsCfg, exampleAsXml);
        row("nothing", "", u"cfg"_s, "", "");
        row("file that could not be parsed", "<s", u"xml"_s, "", "");
        row("section in a section without settings", "s:{t:{u:{k=v;};};};", u"cfg"_s,
            "s: \n{\n    t: \n    {\n        u: \n        {\n            k = \"v\";\n        };\n\n    };\n\n"
            "};\n\n",
            "\n<s>\n\n    <t>\n\n        <u\n            k = \"v\">\n        </u>\n    </t>\n</s>\n");
        row("empty element", "<s/>", u"xml"_s, "s: \n{\n};\n\n", "\n<s>\n</s>\n");
        row("settings before sections", "s:{t:{k=v;};l=w;};", u"cfg"_s,
            "s: \n{\n    l = \"w\";\n    t: \n    {\n        k = \"v\";\n    };\n\n};\n\n",
            "\n<s\n    l = \"w\">\n\n    <t\n        k = \"v\">\n    </t>\n</s>\n");
        row("settings in the order of their names", "s:{b=1;B=2;a=3;ab=4;\xE0=5;_=6;z=7;};", u"cfg"_s,
            "s: \n{\n    B = \"2\";\n    _ = \"6\";\n    a = \"3\";\n    ab = \"4\";\n    b = \"1\";\n"
            "    z = \"7\";\n    \xE0 = \"5\";\n};\n\n",
            "\n<s\n    B = \"2\"\n    _ = \"6\"\n    a = \"3\"\n    ab = \"4\"\n    b = \"1\"\n"
            "    z = \"7\"\n    \xC3\xA0 = \"5\">\n</s>\n");
        row("siblings of one name", "s:{t:{k=v;};t:{k=w;};};", u"cfg"_s,
            "s: \n{\n    t: \n    {\n        k = \"v\";\n    };\n\n    t: \n    {\n        k = \"w\";\n    "
            "};\n"
            "\n};\n\n",
            "\n<s>\n\n    <t\n        k = \"v\">\n    </t>\n\n    <t\n        k = \"w\">\n    </t>\n</s>\n");
        row("only the first top-level section", "s:{k=v;};t:{k=w;};", u"cfg"_s,
            "s: \n{\n    k = \"v\";\n};\n\n", "\n<s\n    k = \"v\">\n</s>\n");
        row("settings outside of sections are \"cfg\" lines in both", "b = 2; a = 1; s : { k = v; };",
            u"cfg"_s, "a = \"1\";\nb = \"2\";\ns: \n{\n    k = \"v\";\n};\n\n",
            "a = \"1\";\nb = \"2\";\n\n<s\n    k = \"v\">\n</s>\n");
        row("settings outside of sections only", "a = 1;", u"cfg"_s, "a = \"1\";\n", "a = \"1\";\n");
        row("empty value", "s : { k = ; };", u"cfg"_s, "s: \n{\n    k = \"\";\n};\n\n",
            "\n<s\n    k = \"\">\n</s>\n");
        row("blanks around a value", "s : { k = \"  v \"; };", u"cfg"_s, "s: \n{\n    k = \"  v \";\n};\n\n",
            "\n<s\n    k = \"  v \">\n</s>\n");
        row("nothing is escaped", "<s k='a;b\"c&lt;&amp;&gt;'/>", u"xml"_s,
            "s: \n{\n    k = \"a;b\"c<&>\";\n};\n\n", "\n<s\n    k = \"a;b\"c<&>\">\n</s>\n");
        row("letters beyond ASCII", "<s k=\"\xC3\xA8\"/>", u"xml"_s, "s: \n{\n    k = \"\xE8\";\n};\n\n",
            "\n<s\n    k = \"\xC3\xA8\">\n</s>\n");
        row("letters beyond Latin-1", "<s k=\"\xE2\x82\xAC\"/>", u"xml"_s, "s: \n{\n    k = \"?\";\n};\n\n",
            "\n<s\n    k = \"\xE2\x82\xAC\">\n</s>\n");
        row("nodes that are no elements have no name", "<s><!-- x --><t k=\"v\"/>text</s>", u"xml"_s,
            "s: \n{\n    : \n    {\n    };\n\n    t: \n    {\n        k = \"v\";\n    };\n\n    : \n    {\n"
            "    };\n\n};\n\n",
            "\n<s>\n\n    <>\n    </>\n\n    <t\n        k = \"v\">\n    </t>\n\n    <>\n    </>\n</s>\n");
        row("first node that is no element", "<!-- x --><s k=\"v\"/>", u"xml"_s, ": \n{\n};\n\n",
            "\n<>\n</>\n");
    }

    void texts()
    {
        QFETCH(const QByteArray, text);
        QFETCH(const QString, kind);
        const TemporaryHome home;
        const libconfig::Config config(home.writeFile(u"tavolux.conf"_s, text), kind);

        // Twice in a row: nothing of the first writing is left in the second.
        for (int i = 0; i < 2; ++i) {
            const WrittenFile cfg = written(config, &libconfig::Config::buildConfigFile, home);
            QVERIFY(cfg.whole);
            QTEST(cfg.bytes, "cfg");
            const WrittenFile xml = written(config, &libconfig::Config::buildConfigXmlFile, home);
            QVERIFY(xml.whole);
            QTEST(xml.bytes, "xml");
        }
    }

    void sectionIsWrittenBehindItsIndentation()
    {
        QDomDocument document;
        QVERIFY(document.setContent(QByteArray("<s k=\"v\"/>")));
        const libconfig::Config config;
        QString text;
        QTextStream stream(&text);
        config.buildConfigFile(document.documentElement(), stream, u"    "_s);
        config.buildConfigXmlFile(document.documentElement(), stream, u"    "_s);
        QCOMPARE(text,
                 u"    s: \n    {\n        k = \"v\";\n    };\n\n"
                 "\n    <s\n        k = \"v\">\n    </s>\n"_s);
    }

    void namesThatLookLikeTheEndOfAName()
    {
        QDomDocument document(u"d"_s);
        QDomElement section = document.createElement(u"s"_s);
        section.setAttribute(u"a"_s, u"1 \"<&> l = \"m\""_s);
        section.setAttribute(u"a=\"b"_s, u"2"_s);
        section.setAttribute(u"c="_s, u"="_s);
        section.setAttribute(u" \"d\" "_s, u"3"_s);
        const libconfig::Config config;
        QString text;
        QTextStream stream(&text);
        config.buildConfigFile(section, stream);
        QCOMPARE(text,
                 u"s: \n{\n     \"d\"  = \"3\";\n    a = \"1 \"<&> l = \"m\"\";\n    a=\"b = \"2\";\n"
                 "    c= = \"=\";\n};\n\n"_s);
    }

    void withoutANameTheFileThatWasReadIsWritten_data() { addWriters(); }

    void withoutANameTheFileThatWasReadIsWritten()
    {
        QFETCH(const Writer, writer);
        const TemporaryHome home;
        const QString file = home.writeFile(u"caff\u00E8 \u20AC.conf"_s, example);
        for (const QString &name : {QString(), u""_s}) {
            home.writeFile(u"caff\u00E8 \u20AC.conf"_s, example);
            QVERIFY((libconfig::Config(file, u"cfg"_s).*writer)(name));
            QTEST(fileBytes(file), "text");
        }
    }

    void writtenFileReadsBackTheSame_data()
    {
        QTest::addColumn<QByteArray>("text");
        const auto row = [](const char *name, const QByteArray &text) { QTest::newRow(name) << text; };
        row("sections in a section", example);
        row("settings outside of sections", "b = 2; a = 1; s : { k = v; };");
        row("settings outside of sections only", "a = 1;");
        row("empty value", "s : { k = ; };");
        row("blanks around a value", "s : { k = \"  v \"; };");
        row("only blanks", "s : { k = \"   \"; };");
        row("line ends in a value", "s : { k = \"\n v \n\n w\n\"; };");
        row("meaningful signs in a value", "s : { k = a:b=c{d}e; };");
        row("white space in names", "s  t : { k \n l = v; };");
        row("semicolon and brace in names", "s{t : { k;l{ = v; };");
        row("siblings of one name", "s:{t:{k=v;};t:{l=w;};};");
        row("deep", QByteArray("s:{").repeated(libconfig::Config::maximumNesting) + "k=v;");
        row("Latin-1", "\xE8 : { \xE9 = \xEA; };");
        row("control bytes", QByteArray("s : { k = \"a\0\x1B\x7F\xFF\"; };", 21));
    }

    void writtenFileReadsBackTheSame()
    {
        QFETCH(const QByteArray, text);
        const TemporaryHome home;
        const QString file = home.writeFile(u"tavolux.conf"_s, text);
        libconfig::Config config(file, u"cfg"_s);
        const QByteArray treeBefore = tree(config);
        QVERIFY(config.buildConfigFile(QString()));
        const QByteArray bytes = fileBytes(file);

        config.readFile(file, u"cfg"_s);
        QCOMPARE(tree(config), treeBefore);
        QVERIFY(config.buildConfigFile(QString()));
        QCOMPARE(fileBytes(file), bytes);
    }

    void whatTheFormatCannotSayIsLost_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QString>("key");
        QTest::addColumn<QString>("before");
        QTest::addColumn<QString>("after");
        const auto row = [](const char *name, const QByteArray &text, const QString &key,
                            const QString &before,
                            const QString &after) { QTest::newRow(name) << text << key << before << after; };
        row("semicolon", "<s k=\"a;b\"/>", u"s.k"_s, u"a;b"_s, u"a"_s);
        row("quote", "<s k='a\"b'/>", u"s.k"_s, u"a\"b"_s, u"ab"_s);
        row("letter beyond Latin-1", "<s k=\"\xE2\x82\xAC\"/>", u"s.k"_s, u"\u20AC"_s, u"?"_s);
    }

    void whatTheFormatCannotSayIsLost()
    {
        QFETCH(const QByteArray, text);
        QFETCH(const QString, key);
        const TemporaryHome home;
        libconfig::Config config(home.writeFile(u"tavolux.xml"_s, text), u"xml"_s);
        QTEST(config.lookup(key), "before");
        QVERIFY(config.buildConfigFile(home.filePath(u"written"_s)));
        config.readFile(home.filePath(u"written"_s), u"cfg"_s);
        QTEST(config.lookup(key), "after");
    }

    void secondTopLevelSectionIsLost()
    {
        const TemporaryHome home;
        const QString file = home.writeFile(u"tavolux.conf"_s, "s : { k = v; }; t : { k = w; };");
        libconfig::Config config(file, u"cfg"_s);
        QCOMPARE(tree(config), "Tree \n" + file.toLatin1() + "\ns\nk = v\nt\nk = w\n");
        QVERIFY(config.buildConfigFile(QString()));
        config.readFile(file, u"cfg"_s);
        QCOMPARE(tree(config), "Tree \n" + file.toLatin1() + "\ns\nk = v\n");
    }

    void xmlReadsBackWhileItIsWellFormed_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QString>("value");
        QTest::newRow("sections only") << QByteArray("s : { t : { k = v; }; };") << u"v"_s;
        QTest::newRow("setting outside") << QByteArray("a = 1; s : { t : { k = v; }; };") << QString();
        QTest::newRow("ampersand") << QByteArray("s : { t : { k = &; }; };") << QString();
    }

    void xmlReadsBackWhileItIsWellFormed()
    {
        QFETCH(const QByteArray, text);
        const TemporaryHome home;
        libconfig::Config config(home.writeFile(u"tavolux.conf"_s, text), u"cfg"_s);
        QVERIFY(config.buildConfigXmlFile(home.filePath(u"written"_s)));
        config.readFile(home.filePath(u"written"_s), u"xml"_s);
        QTEST(config.lookup(u"s.t.k"_s), "value");
    }

    void randomTreesReadBackTheSame()
    {
        QString latin1;
        for (char16_t letter = 0; letter < 0x100; ++letter)
            if (!u":={};\""_s.contains(letter))
                latin1 += letter;

        for (quint32 seed = 1; seed <= 100; ++seed) {
            RandomSections random(seed, latin1, latin1 + ":={}"_L1);
            const Section section = random.section(4);
            const TemporaryHome home;
            const QString file = home.writeFile(u"tavolux.conf"_s, random.scribbled(section).toLatin1());
            libconfig::Config config(file, u"cfg"_s);
            const QByteArray treeBefore = tree(config);
            for (int i = 0; i < 2; ++i) {
                QVERIFY(config.buildConfigFile(QString()));
                QVERIFY2(fileBytes(file) == section.asCfg({}).toLatin1(),
                         QByteArray::number(seed).constData());
                config.readFile(file, u"cfg"_s);
                QVERIFY2(tree(config) == treeBefore, QByteArray::number(seed).constData());
            }
        }
    }

    void randomTreesReadBackTheSameAsXml()
    {
        const QString letters = u"abcxyzABCXYZ019_\u00E8\u03B1"_s;
        for (quint32 seed = 1; seed <= 100; ++seed) {
            RandomSections random(seed, letters, letters + " :={};"_L1);
            const Section section = random.section(4);
            const TemporaryHome home;
            const QString file = home.writeFile(u"tavolux.xml"_s, section.asXml({}).toUtf8());
            libconfig::Config config(file, u"xml"_s);
            const QByteArray treeBefore = tree(config);
            QVERIFY(config.buildConfigXmlFile(QString()));
            QVERIFY2(fileBytes(file) == section.asXml({}).toUtf8(), QByteArray::number(seed).constData());
            config.readFile(file, u"xml"_s);
            QVERIFY2(tree(config) == treeBefore, QByteArray::number(seed).constData());
        }
    }

    void fileThatCannotBeOpenedIsSilent_data() { addWriters(); }

    void fileThatCannotBeOpenedIsSilent()
    {
        QFETCH(const Writer, writer);
        const TemporaryHome home;
        const libconfig::Config config(home.writeFile(u"tavolux.conf"_s, example), u"cfg"_s);
        home.writeFile(u"folder/file"_s, "kept");
        const QByteArray messages = capturedOutput([&] {
            QVERIFY(!(config.*writer)(home.filePath(u"missing/written"_s)));
            QVERIFY(!(config.*writer)(home.filePath(u"folder"_s)));
            QVERIFY(!(config.*writer)(home.filePath(u"tavolux.conf/written"_s)));
        });
        QCOMPARE(messages, QByteArray());
        QVERIFY(!QFile::exists(home.filePath(u"missing"_s)));
        QCOMPARE(fileBytes(home.filePath(u"folder/file"_s)), "kept");
        QCOMPARE(fileBytes(home.filePath(u"tavolux.conf"_s)), example);
    }

    void fullDiskKeepsWhatWasThere_data() { addWriters(); }

    void fullDiskKeepsWhatWasThere()
    {
        QFETCH(const Writer, writer);
        const TemporaryHome home;
        const QString file = home.writeFile(u"tavolux.conf"_s, example);
        const libconfig::Config config(file, u"cfg"_s);
        bool whole = true;
        {
            const FileSizeLimit limit(100);
            whole = (config.*writer)(QString());
        }
        QVERIFY(!whole);
        QCOMPARE(fileBytes(file), example);
        // Nor is anything left beside it.
        QCOMPARE(QDir(home.path()).entryList(QDir::NoDotAndDotDot | QDir::AllEntries | QDir::Hidden),
                 QStringList(u"tavolux.conf"_s));
    }

    void fullDiskLeavesNoPartOfANewFile_data() { addWriters(); }

    void fullDiskLeavesNoPartOfANewFile()
    {
        QFETCH(const Writer, writer);
        const TemporaryHome home;
        const libconfig::Config config(home.writeFile(u"tavolux.conf"_s, example), u"cfg"_s);
        bool whole = true;
        {
            const FileSizeLimit limit(100);
            whole = (config.*writer)(home.filePath(u"written"_s));
        }
        QVERIFY(!whole);
        QCOMPARE(QDir(home.path()).entryList(QDir::NoDotAndDotDot | QDir::AllEntries | QDir::Hidden),
                 QStringList(u"tavolux.conf"_s));
    }

    void fifoIsWrittenAndStays_data() { addWriters(); }

    void fifoIsWrittenAndStays()
    {
        QFETCH(const Writer, writer);
        const TemporaryHome home;
        const libconfig::Config config(home.writeFile(u"tavolux.conf"_s, example), u"cfg"_s);
        const QString fifo = home.makeFifo(u"fifo"_s);
        // Opened for both, it waits for nobody.
        const int reader = open(QFile::encodeName(fifo).constData(), O_RDWR | O_NONBLOCK | O_CLOEXEC);
        QVERIFY(reader >= 0);
        QVERIFY((config.*writer)(fifo));
        QByteArray bytes(4096, '\0');
        const ssize_t length = read(reader, bytes.data(), 4096);
        close(reader);
        QVERIFY(length > 0);
        bytes.truncate(length);
        QTEST(bytes, "text");

        struct stat state = {};
        QCOMPARE(lstat(QFile::encodeName(fifo).constData(), &state), 0);
        QVERIFY(S_ISFIFO(state.st_mode));
    }

    void linkStaysALink_data() { addWriters(); }

    void linkStaysALink()
    {
        QFETCH(const Writer, writer);
        const TemporaryHome home;
        const QString file = home.writeFile(u"folder/tavolux.conf"_s, example);
        const QString link = home.filePath(u"link"_s);
        QVERIFY(QFile::link(file, link));
        QVERIFY((libconfig::Config(link, u"cfg"_s).*writer)(QString()));
        QTEST(fileBytes(file), "text");
        QCOMPARE(QFile::symLinkTarget(link), file);
    }

    void permissionsStay()
    {
        const TemporaryHome home;
        const QString file = home.writeFile(u"tavolux.conf"_s, example);
        const QFile::Permissions permissions = QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup;
        QVERIFY(QFile::setPermissions(file, permissions));
        QVERIFY(libconfig::Config(file, u"cfg"_s).buildConfigFile(QString()));
        const QFile::Permissions ofTheUser = QFile::ReadUser | QFile::WriteUser | QFile::ExeUser;
        QCOMPARE(QFile::permissions(file) & ~ofTheUser, permissions);
    }

    void printedTree_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QString>("kind");
        QTest::addColumn<QByteArray>("tree");
        QTest::newRow("everything, settings by name")
            << QByteArray("b = 2; a = 1; s : { l = w; k = \" v \"; t : { k = x; }; }; u : { k = y; };")
            << u"cfg"_s << QByteArray("a = 1\nb = 2\ns\nk =  v \nl = w\nt\nk = x\nu\nk = y\n");
        QTest::newRow("Latin-1") << QByteArray("caff\xE8 : { k = \xE0; };") << u"cfg"_s
                                 << QByteArray("caff\xE8\nk = \xE0\n");
        QTest::newRow("letters beyond Latin-1")
            << QByteArray("<s k=\"\xE2\x82\xAC\"/>") << u"xml"_s << QByteArray("s\nk = ?\n");
        QTest::newRow("nodes that are no elements") << QByteArray("<s><!-- x --><t/>text<u k=\"v\"/></s>")
                                                    << u"xml"_s << QByteArray("s\nt\nu\nk = v\n");
    }

    void printedTree()
    {
        QFETCH(const QByteArray, text);
        QFETCH(const QString, kind);
        QFETCH(const QByteArray, tree);
        const TemporaryHome home;
        const QString file = home.writeFile(u"tavolux.conf"_s, text);
        const libconfig::Config config(file, kind);
        QCOMPARE(capturedOutput([&] { config.printConfigTree(); }),
                 "Tree \n" + file.toLatin1() + '\n' + tree);
    }

    void printedSubtree()
    {
        QDomDocument document;
        QVERIFY(document.setContent(QByteArray("<s k=\"v\"><!-- x --><t l=\"w\"/></s>")));
        const libconfig::Config config;
        QCOMPARE(capturedOutput([&] { config.printConfigTree(document.documentElement().lastChild()); }),
                 "t\nl = w\n");
        QCOMPARE(capturedOutput([&] { config.printConfigTree(document); }), "s\nk = v\nt\nl = w\n");
        QCOMPARE(capturedOutput([&] { config.printConfigTree(QDomNode()); }), QByteArray());
    }

    void printedTreeOfNothing()
    {
        const libconfig::Config config;
        QCOMPARE(tree(config), "Tree \n");
    }
};

QTEST_GUILESS_MAIN(ConfigWritersTest)
#include "config_writers_test.moc"
