#include "program_run.h"
#include "temporary_home.h"

#include <QDir>
#include <QMimeDatabase>
#include <QTest>

#include <sys/resource.h>

using namespace Qt::StringLiterals;

namespace {

constexpr auto receipt =
    "<document><method name=\"printFullOrderReceipt\"/><receipt serialnumber=\"17\"/></document>";

const QMap<QString, QString> withoutDisplay = {
    {u"QT_QPA_PLATFORM"_s, {}}, {u"DISPLAY"_s, {}}, {u"WAYLAND_DISPLAY"_s, {}}};

} // namespace

class PreviewProgramTest : public QObject
{
    Q_OBJECT

private:
    const TemporaryHome home;
    const QString document = home.writeFile(u"order.xml"_s, receipt);

    ProgramResult run(const QStringList &arguments, const QMap<QString, QString> &environment = {},
                      const std::function<void()> &beforeStart = {}) const
    {
        QMap<QString, QString> all = withoutDisplay;
        all.insert(u"HOME"_s, home.path());
        all.insert(environment);
        return runProgram(QStringLiteral(TAVOLUX_PREVIEW), arguments, all, {}, beforeStart);
    }

private Q_SLOTS:
    void initTestCase();
    void writesEachFormat_data();
    void writesEachFormat();
    void printsAsAsked_data();
    void printsAsAsked();
    void writesToAnyName();
    void saysWhatIsWrong_data();
    void saysWhatIsWrong();
    void knowsThePrinters();
    void refusesAFullDisk();
    void needsADisplayForAWindow_data();
    void needsADisplayForAWindow();
    void needsAFont();
    void worksWithoutAConfiguration();
    void boundsAHugeDocument();
    void knowsTheTypeOfDocuments_data();
    void knowsTheTypeOfDocuments();
    void answersQuestions_data();
    void answersQuestions();
};

void PreviewProgramTest::initTestCase()
{
    home.writeFile(u"mime/packages/tavolux-document.xml"_s,
                   fileBytes(QStringLiteral(TAVOLUX_SOURCE_DIR "/packaging/tavolux-document.mime.xml")));
    const QString others = u"/usr/share/mime/packages/freedesktop.org.xml"_s;
    QVERIFY(QFile::copy(others, home.filePath(u"mime/packages/freedesktop.org.xml"_s)));
    const ProgramResult update = runProgram(u"update-mime-database"_s, {home.filePath(u"mime"_s)});
    QVERIFY2(update.exitStatus == 0, update.standardError.constData());
    for (const char *const variable : {"XDG_DATA_HOME", "XDG_DATA_DIRS"}) // of the types of files
        qputenv(variable, home.path().toUtf8());
    home.writeConfiguration(
        "tavolux : { receiptdoc : { paperWidth = 30; }; language : { basedir = \"" TAVOLUX_BINARY_DIR
        "/translations/\"; file = \"tavolux_it\"; }; };");
}

void PreviewProgramTest::writesEachFormat_data()
{
    QTest::addColumn<QByteArray>("beginning");
    QTest::newRow("png") << "\x89PNG"_ba;
    QTest::newRow("svg") << "<?xml version"_ba;
    QTest::newRow("pdf") << "%PDF-"_ba;
    QTest::newRow("txt") << " Numero progressivo: 17\n"_ba;
}

void PreviewProgramTest::writesEachFormat()
{
    QFETCH(const QByteArray, beginning);
    const QString format = QString::fromUtf8(QTest::currentDataTag());
    const QString output = home.filePath(u"out."_s + format);
    const ProgramResult toFile = run({document, output});
    QCOMPARE(toFile.standardError, QByteArray());
    QCOMPARE(toFile.standardOutput, QByteArray());
    QCOMPARE(toFile.exitStatus, 0);
    QVERIFY(fileBytes(output).startsWith(beginning));

    const ProgramResult toStandardOutput = run({document, u"-"_s, u"--format"_s, format});
    QCOMPARE(toStandardOutput.standardError, QByteArray());
    QCOMPARE(toStandardOutput.exitStatus, 0);
    QVERIFY(toStandardOutput.standardOutput.startsWith(beginning));
}

void PreviewProgramTest::printsAsAsked_data()
{
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<QByteArray>("printed");
    const QByteArray line = QByteArray(30, '=') + '\n';
    QTest::newRow("as configured") << QStringList() << " Numero progressivo: 17\n" + line;
    QTest::newRow("in German") << QStringList{u"--language"_s, u"de"_s} << " Belegnummer: 17\n" + line;
    QTest::newRow("in English") << QStringList{u"--language=en"_s} << " Serial Number: 17\n" + line;
    QTest::newRow("on narrow paper") << QStringList{u"--columns"_s, u"12"_s}
                                     << " Numero prog\nressivo: 17\n============\n============\n======\n"_ba;
    QTest::newRow("by a model of 32 columns")
        << QStringList{u"--printer"_s, u"generic-58"_s} << " Numero progressivo: 17\n" + line;
    QTest::newRow("with another configuration")
        << QStringList{u"--file"_s,
                       home.writeFile(u"other.conf"_s, "tavolux : { receiptdoc : { paperWidth = 3; }; };")}
        << " Se\nria\nl N\numb\ner:\n 17\n===\n"_ba;
}

void PreviewProgramTest::printsAsAsked()
{
    QFETCH(const QStringList, options);
    QFETCH(const QByteArray, printed);
    const ProgramResult result = run(options + QStringList{u"--format=txt"_s, document, u"-"_s});
    QCOMPARE(result.standardError, QByteArray());
    QCOMPARE(result.standardOutput, printed);
    QCOMPARE(result.exitStatus, 0);
}

void PreviewProgramTest::writesToAnyName()
{
    // Bytes that are no UTF-8, as the shell hands them over.
    const ProgramResult result = runProgram(
        u"sh"_s,
        {u"-c"_s,
         u"f=$(printf 'caf\\351.txt'); cp order.xml \"$f.xml\"; \"$1\" \"$f.xml\" \"$f\" && cat \"$f\"; rm \"$f\"*"_s,
         u"sh"_s, QStringLiteral(TAVOLUX_PREVIEW)},
        {{u"HOME"_s, home.path()}}, {}, inFolder(home.path()));
    QCOMPARE(result.standardError, QByteArray());
    QVERIFY(result.standardOutput.startsWith(" Numero progressivo: 17\n"));
}

void PreviewProgramTest::saysWhatIsWrong_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QByteArray>("message"); // the first line
    QTest::addColumn<int>("status");
    const QString output = home.filePath(u"wrong.txt"_s);
    const QString name = u"order.xml"_s;

    QTest::newRow("no document") << QStringList() << "the name of the document is missing"_ba << 2;
    QTest::newRow("three names") << QStringList{name, output, output}
                                 << "there are more than two names of files"_ba << 2;
    QTest::newRow("unknown option") << QStringList{u"--colums=3"_s, name} << "Unknown option 'colums'."_ba
                                    << 2;
    QTest::newRow("unknown ending")
        << QStringList{name, u"out.jpg"_s}
        << "the format is missing: 'out.jpg' does not end in .png, .svg, .pdf or .txt"_ba << 2;
    QTest::newRow("standard output without a format")
        << QStringList{name, u"-"_s}
        << "the format is missing: '-' does not end in .png, .svg, .pdf or .txt"_ba << 2;
    QTest::newRow("unknown format") << QStringList{name, u"-"_s, u"--format=jpg"_s}
                                    << "unknown format 'jpg': it is png, svg, pdf or txt"_ba << 2;
    QTest::newRow("format of a window")
        << QStringList{name, u"--format=png"_s} << "a format is for a file, whose name is missing"_ba << 2;
    for (const char *const columns : {"0", "256", "-1", "x", ""})
        QTest::addRow("columns: %s", columns)
            << QStringList{name, output, u"--columns"_s, QString::fromLatin1(columns)}
            << "'" + QByteArray(columns) + "' is no number of columns: it is 1 to 255" << 2;
    QTest::newRow("printer and columns")
        << QStringList{name, output, u"--printer=generic-58"_s, u"--columns=32"_s}
        << "a printer has its columns: either --printer or --columns"_ba << 2;
    QTest::newRow("unknown language")
        << QStringList{name, output, u"--language=tlh"_s}
        << "there are no labels in the language 'tlh', only in: en, de, es, fr, it, nl, pl, pt"_ba << 2;
    QTest::newRow("no such document") << QStringList{u"missing.xml"_s, output}
                                      << "cannot read missing.xml: No such file or directory"_ba << 2;
    QTest::newRow("document is a folder")
        << QStringList{u"."_s, output} << "cannot read .: Is a directory"_ba << 2;
    QTest::newRow("no such configuration") << QStringList{name, output, u"--file=missing.conf"_s}
                                           << "cannot read missing.conf: No such file or directory"_ba << 2;
    QTest::newRow("output is a folder")
        << QStringList{name, u"."_s, u"--format=pdf"_s} << "cannot write .: Is a directory"_ba << 2;
    QTest::newRow("output in no folder") << QStringList{name, u"missing/out.png"_s}
                                         << "cannot write missing/out.png: No such file or directory"_ba << 2;
    QTest::newRow("not well-formed")
        << QStringList{home.writeFile(u"open.xml"_s, "<document>\n<method name=\"printSold\"/>\n</documnt>"),
                       output}
        << (home.filePath(u"open.xml"_s) + ": Incomplete: line 3, column 10: tag mismatch"_L1).toUtf8() << 1;
    QTest::newRow("unknown method")
        << QStringList{home.writeFile(u"unknown.xml"_s, "<document><method name=\"x\"/></document>"), output}
        << (home.filePath(u"unknown.xml"_s) + ": Incomplete: line 1, column 27: unknown method \"x\""_L1)
               .toUtf8()
        << 1;
    QTest::newRow("empty document") << QStringList{home.writeFile(u"empty.xml"_s, ""), output}
                                    << (home.filePath(u"empty.xml"_s)
                                        + ": Incomplete: line 1, column 1: unexpected end of file"_L1)
                                           .toUtf8()
                                    << 1;
}

void PreviewProgramTest::saysWhatIsWrong()
{
    QFETCH(const QStringList, arguments);
    QFETCH(const QByteArray, message);
    QFETCH(const int, status);
    const ProgramResult result = run(arguments, {}, inFolder(home.path()));
    QVERIFY(!result.crashed);
    QCOMPARE(result.standardOutput, QByteArray());
    QCOMPARE(result.standardError.split('\n').constFirst(), "tavolux-preview: " + message);
    QCOMPARE(result.exitStatus, status);
}

void PreviewProgramTest::knowsThePrinters()
{
    const QString configured = home.writeFile(u"printers.conf"_s,
                                              "tavolux : { receiptdoc : { printCompany = true; };"
                                              " printers : { till : { model = epson-tm-u220b; }; }; };");
    const QString company =
        home.writeFile(u"company.xml"_s,
                       QByteArray(receipt).replace("<receipt", "<company name=\"5 \xE2\x82\xAC\"/><receipt"));
    const auto firstLine = [&](const QStringList &options) {
        const ProgramResult result =
            run(options + QStringList{u"--format=txt"_s, u"--file"_s, configured, company, u"-"_s});
        return result.standardOutput.split('\n').constFirst().trimmed();
    };
    QCOMPARE(firstLine({}), "5 EUR"); // the configured printer has no euro sign
    QCOMPARE(firstLine({u"--printer=till"_s}), "5 EUR");
    QCOMPARE(firstLine({u"--printer=epson-tm-t88v"_s}), "5 \xE2\x82\xAC");
    QCOMPARE(firstLine({u"--printer=plain-text"_s}), "5 \xE2\x82\xAC");

    const ProgramResult unknown = run({u"--printer=tilt"_s, document, u"-"_s, u"--format=txt"_s});
    QVERIFY(unknown.standardError.startsWith("tavolux-preview: there is no printer 'tilt', only: "));
    QCOMPARE(unknown.exitStatus, 2);
}

void PreviewProgramTest::refusesAFullDisk()
{
    for (const QString &format : {u"png"_s, u"svg"_s, u"pdf"_s, u"txt"_s}) {
        const ProgramResult device = run({document, u"/dev/full"_s, u"--format"_s, format});
        QCOMPARE(device.standardError, "tavolux-preview: cannot write /dev/full: No space left on device\n");
        QCOMPARE(device.exitStatus, 2);
        const ProgramResult limited =
            run({document, home.filePath(u"limited"_s), u"--format"_s, format}, {}, [] {
                const rlimit limit = {20, 20};
                setrlimit(RLIMIT_FSIZE, &limit);
            });
        QVERIFY(!limited.crashed);
        QVERIFY2(limited.standardError.contains("File too large"), limited.standardError.constData());
        QCOMPARE(limited.exitStatus, 2);
    }
}

void PreviewProgramTest::needsADisplayForAWindow_data()
{
    QTest::addColumn<QString>("display");
    QTest::newRow("none") << QString();
    QTest::newRow("one that does not answer") << u":4711"_s;
}

void PreviewProgramTest::needsADisplayForAWindow()
{
    QFETCH(const QString, display);
    const ProgramResult result = run({document}, {{u"DISPLAY"_s, display}});
    QVERIFY(!result.crashed);
    QCOMPARE(result.standardError,
             "tavolux-preview: there is no display for a window; name a file to write instead\n");
    QCOMPARE(result.exitStatus, 2);
}

void PreviewProgramTest::needsAFont()
{
    const QString none = home.writeFile(u"fonts.conf"_s,
                                        "<?xml version=\"1.0\"?><!DOCTYPE fontconfig SYSTEM \"fonts.dtd\">"
                                        "<fontconfig></fontconfig>");
    const QString output = home.filePath(u"nothing.png"_s);
    const ProgramResult result = run({document, output}, {{u"FONTCONFIG_FILE"_s, none}});
    QCOMPARE(result.standardError,
             "tavolux-preview: no font of fixed width is installed: the package fonts-dejavu-core has one\n");
    QCOMPARE(result.exitStatus, 2);
    QVERIFY(!QFileInfo::exists(output));
}

void PreviewProgramTest::worksWithoutAConfiguration()
{
    const TemporaryHome empty;
    const ProgramResult result = run({document, u"-"_s, u"--format=txt"_s}, {{u"HOME"_s, empty.path()}});
    QCOMPARE(result.standardOutput, " Serial Number: 17\n" + QByteArray(34, '=') + '\n');
    QCOMPARE(result.standardError,
             "tavolux-preview: there is no configuration "
                 + (empty.path() + "/.tavolux/conf/tavolux.conf"_L1).toUtf8()
                 + "; \"tavolux-config init\" writes one\n");
    QCOMPARE(result.exitStatus, 0);
}

// A million rows in little memory; the picture of what is kept would be too tall.
void PreviewProgramTest::boundsAHugeDocument()
{
    QByteArray huge = "<document><method name=\"printFullOrderReceipt\"/><order>";
    const QByteArray row = "<receipe number=\"1\" name=\"Pizza\" price=\"7.50\" totalPrice=\"7.50\"/>\n";
#ifdef __SANITIZE_ADDRESS__ // which takes five times as long, and all the memory that it wants
    huge += row.repeated(200'000);
    const QByteArray lines = "200,001"; // with one of titles above
#else
    huge += row.repeated(1'000'000);
    const QByteArray lines = "1,000,001";
#endif
    huge += "</order></document>";
    const QString rows = home.writeFile(u"huge.xml"_s, huge);
    const auto inLittleMemory = [] {
#ifndef __SANITIZE_ADDRESS__
        constexpr rlim_t bytes = 700'000'000; // of address space, most of it the libraries'
        const rlimit limit = {bytes, bytes};
        setrlimit(RLIMIT_AS, &limit);
#endif
    };

    const ProgramResult text =
        run({rows, home.filePath(u"huge.txt"_s), u"--columns=60"_s}, {}, inLittleMemory);
    const QByteArray remark =
        "tavolux-preview: " + rows.toUtf8() + ": Only the first 100,000 of " + lines + " lines are shown.\n";
    QCOMPARE(text.standardError, remark);
    QCOMPARE(text.exitStatus, 1);
    QCOMPARE(fileBytes(home.filePath(u"huge.txt"_s)).count('\n'), 100'001);

    const ProgramResult picture = run({rows, home.filePath(u"huge.png"_s)}, {}, inLittleMemory);
    QVERIFY2(picture.standardError.contains("dots high, more than 32767; a PDF, an SVG or a text"),
             picture.standardError.constData());
    QCOMPARE(picture.exitStatus, 2);
    QFile::remove(rows);
}

void PreviewProgramTest::knowsTheTypeOfDocuments_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("type");
    const QString ours = u"application/vnd.tavolux.document+xml"_s;
    QTest::newRow("by its name") << u"order.tvx"_s << "anything"_ba << ours;
    QTest::newRow("by its method") << u"order"_s << "<?xml version=\"1.0\"?>\n" + QByteArray(receipt) << ours;
    QTest::newRow("without a declaration") << u"order"_s << QByteArray(receipt) << ours;
    QTest::newRow("other XML") << u"order"_s << "<?xml version=\"1.0\"?><order/>"_ba << u"application/xml"_s;
}

void PreviewProgramTest::knowsTheTypeOfDocuments()
{
    QFETCH(const QString, name);
    QFETCH(const QByteArray, content);
    QFETCH(const QString, type);
    QCOMPARE(QMimeDatabase().mimeTypeForFile(home.writeFile(name, content)).name(), type);
}

void PreviewProgramTest::answersQuestions_data()
{
    QTest::addColumn<QByteArray>("answer"); // in one of its lines
    QTest::newRow("--version") << "tavolux-preview " TAVOLUX_VERSION "\n"_ba;
    QTest::newRow("-v") << "tavolux-preview " TAVOLUX_VERSION "\n"_ba;
    QTest::newRow("--help") << "  --language <LANGUAGE> "_ba;
    QTest::newRow("-h") << "  --format <png|svg|pdf|txt> "_ba;
}

void PreviewProgramTest::answersQuestions()
{
    QFETCH(const QByteArray, answer);
    const ProgramResult result = run({QString::fromUtf8(QTest::currentDataTag())});
    QCOMPARE(result.standardError, QByteArray());
    QCOMPARE(result.exitStatus, 0);
    QVERIFY2(result.standardOutput.contains(answer), result.standardOutput.constData());
}

QTEST_GUILESS_MAIN(PreviewProgramTest)
#include "preview_program_test.moc"
