#include "config.h"
#include "file_size_limit.h"
#include "print_run.h"

#include <QDir>
#include <QProcess>
#include <QSet>
#include <QTest>

#include <future>

using namespace Qt::StringLiterals;

namespace {

const QString saveConfiguration = QStringLiteral(TAVOLUX_SAVE_CONFIGURATION);

/* Settings that fill several buffers; of the profile, the first setting is at the front and the last one at
 * the end, as the writer puts them. */
QByteArray largeConfiguration(int quantityFieldWidth, int paperWidth)
{
    QByteArray text = "tavolux : { a : { width = 1; };";
    text += "doc : { paperWidth = " + QByteArray::number(paperWidth) + "; };";
    for (int number = 0; number < 2000; ++number)
        text += "section" + QByteArray::number(number) + " : { key = value; };";
    text += "doc : { quantityFieldWidth = " + QByteArray::number(quantityFieldWidth) + "; }; };";
    return text;
}

QByteArray printedOf(char letter)
{
    QByteArray printed;
    for (int number = 1; number <= 10'000; ++number)
        printed += row(number % 1000, QByteArray(10, letter));
    return printed;
}

QByteArray documentOf(char letter)
{
    QByteArray items;
    for (int number = 1; number <= 10'000; ++number)
        items += item(number % 1000, QByteArray(10, letter));
    return document(items);
}

} // namespace

class ConcurrentRunsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void sameDocumentOnOneSpoolFile()
    {
        const PrintRun run;
        run.home.writeFile(u"document.xml"_s, longDocument());
        for (int round = 0; round < 25; ++round) {
            auto other = std::async(std::launch::async, [&run] { return run.run(); });
            QCOMPARE(misbehaviour(run.run()), QByteArray());
            QCOMPARE(misbehaviour(other.get()), QByteArray());
            QCOMPARE(run.printed(), longPrintout());
        }
    }

    // Each truncates the file and writes from its start: where the other wrote last, its text stands.
    void twoDocumentsOnOneSpoolFile()
    {
        const PrintRun first;
        first.home.writeFile(u"document.xml"_s, documentOf('a'));
        PrintRun second;
        second.home.writeFile(u"document.xml"_s, documentOf('b'));
        second.output = first.output;
        const QByteArray firstPrinted = printedOf('a');
        const QByteArray secondPrinted = printedOf('b');

        for (int round = 0; round < 25; ++round) {
            auto other = std::async(std::launch::async, [&second] { return second.run(); });
            QCOMPARE(misbehaviour(first.run()), QByteArray());
            QCOMPARE(misbehaviour(other.get()), QByteArray());
            const QByteArray printed = first.printed();
            QCOMPARE(printed.size(), firstPrinted.size());
            for (qsizetype at = 0; at < printed.size(); ++at)
                if (printed[at] != firstPrinted[at])
                    QCOMPARE(printed[at], secondPrinted[at]);
        }
    }

    void oneAfterTheOtherOnOneSpoolFile()
    {
        PrintRun run;
        run.home.writeFile(u"document.xml"_s, longDocument());
        QCOMPARE(misbehaviour(run.run()), QByteArray());
        run.home.writeFile(u"document.xml"_s, document(item(1, "Pasta")));
        QCOMPARE(misbehaviour(run.run()), QByteArray());
        QCOMPARE(run.printed(), row(1, "Pasta"));
    }

    void configurationBeingSaved()
    {
        const PrintRun run;
        const QString narrow = run.home.writeFile(u"narrow.conf"_s, largeConfiguration(3, 20));
        const QString wide = run.home.writeFile(u"wide.conf"_s, largeConfiguration(5, 30));
        const QString target = run.home.filePath(u".tavolux/conf/tavolux.conf"_s);

        QProcess editor;
        editor.start(saveConfiguration, {target, u"0"_s, narrow, wide});
        QVERIFY(editor.waitForReadyRead());
        QCOMPARE(editor.readAll(), "saved\n"_ba);

        const QSet<QByteArray> whole = {row(1, "Pasta"), "    1 Pasta" + QByteArray(17, ' ') + '\n'};
        for (int round = 0; round < 100; ++round) {
            const ProgramResult result = run.run();
            QCOMPARE(misbehaviour(result), QByteArray());
            QCOMPARE(result.standardOutput, QByteArray());
            QVERIFY2(whole.contains(run.printed()), run.printed().constData());
        }

        QCOMPARE(editor.state(), QProcess::Running); // it saved all the while
        editor.closeWriteChannel();
        QVERIFY(editor.waitForFinished());
        QCOMPARE(editor.exitCode(), 0);
    }

    void saveThatDoesNotFit_data()
    {
        QTest::addColumn<rlim_t>("bytes");
        for (const rlim_t bytes : {0UL, 1UL, 20'000UL, 100'000UL})
            QTest::addRow("%lu bytes", bytes) << bytes;
    }

    void saveThatDoesNotFit()
    {
        QFETCH(const rlim_t, bytes);
        const TemporaryHome home;
        const QString file = home.writeFile(u"tavolux.conf"_s, largeConfiguration(3, 20));
        const libconfig::Config config(file, u"cfg"_s);
        {
            const FileSizeLimit limit(bytes);
            QVERIFY(!config.buildConfigFile({}));
            QVERIFY(!config.buildConfigXmlFile({}));
        }
        QCOMPARE(fileBytes(file), largeConfiguration(3, 20));
        QCOMPARE(QDir(home.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
                 QStringList(u"tavolux.conf"_s));
        QVERIFY(config.buildConfigFile({}));
    }

    // Written where it stands, the file would be lost when the disk is full.
    void saveInAFolderThatTakesNoNewFile()
    {
        const TemporaryHome home;
        const QString source = home.writeFile(u"source.conf"_s, "s : { k = new; };");
        const QString target = home.writeFile(u"closed/tavolux.conf"_s, "s : { k = old; };");
        const QString folder = QFileInfo(target).path();
        QVERIFY(QFile::setPermissions(folder, QFile::ReadOwner | QFile::ExeOwner));
        const ProgramResult result =
            runProgram(saveConfiguration, {target, u"1"_s, source}, {}, {}, becomeOrdinaryUser);
        QVERIFY(QFile::setPermissions(folder, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
        QVERIFY(!result.crashed);
        QCOMPARE(result.exitStatus, 1);
        QCOMPARE(fileBytes(target), "s : { k = old; };"_ba);
    }

    void saveOnFullFileSystem()
    {
        if (!canMount())
            QSKIP("no file system can be mounted here; saveThatDoesNotFit stands for this case");
        const TemporaryHome home;
        const QString original = home.writeFile(u"small/tavolux.conf"_s, "s : { k = v; };");
        const QString large = home.writeFile(u"large.conf"_s, largeConfiguration(3, 20));
        const QString script =
            u"cp small/tavolux.conf . && mount -t tmpfs -o size=64k tmpfs small || exit 127\n"
            "cp tavolux.conf small || exit 126\n"
            "\"$1\" small/tavolux.conf 1 \"$2\"\n"
            "echo $?; ls -A small; cat small/tavolux.conf"_s;
        const ProgramResult result =
            runProgram(u"unshare"_s, {u"-m"_s, u"sh"_s, u"-c"_s, script, u"sh"_s, saveConfiguration, large},
                       {}, {}, inFolder(home.path()));
        QCOMPARE(misbehaviour(result), QByteArray());
        QCOMPARE(result.standardOutput, "1\ntavolux.conf\ns : { k = v; };"_ba);
    }
};

QTEST_GUILESS_MAIN(ConcurrentRunsTest)
#include "concurrent_runs_test.moc"
