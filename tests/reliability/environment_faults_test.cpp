#include "print_run.h"

#include <QProcessEnvironment>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

const QStringList localeVariables = {u"LC_ALL"_s, u"LC_CTYPE"_s, u"LC_MESSAGES"_s, u"LANG"_s, u"LANGUAGE"_s};

} // namespace

class EnvironmentFaultsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void homeWithoutConfiguration_data()
    {
        QTest::addColumn<QString>("home"); // unset when null
        QTest::addColumn<QString>("configuration");
        QTest::newRow("unset") << QString() << u"//.tavolux/conf/tavolux.conf"_s;
        QTest::newRow("empty") << u""_s << u"//.tavolux/conf/tavolux.conf"_s;
        QTest::newRow("missing") << u"/missing/home"_s << u"/missing/home/.tavolux/conf/tavolux.conf"_s;
        QTest::newRow("missing, non-ASCII")
            << u"/missing/caff\u00E8"_s << u"/missing/caff\u00E8/.tavolux/conf/tavolux.conf"_s;
        QTest::newRow("a file") << u"/dev/null"_s << u"/dev/null/.tavolux/conf/tavolux.conf"_s;
    }

    void homeWithoutConfiguration()
    {
        QFETCH(const QString, home);
        QFETCH(const QString, configuration);
        PrintRun run;
        run.environment[u"HOME"_s] = home;
        const ProgramResult result = run.run();
        QCOMPARE(misbehaviour(result), QByteArray());
        QCOMPARE(result.standardOutput, cannotReadConfiguration(configuration));
        QCOMPARE(run.printed(), rowWithoutSettings());
    }

    void locale_data()
    {
        QTest::addColumn<QString>("locale"); // unset when null
        QTest::newRow("unset") << QString();
        QTest::newRow("empty") << u""_s;
        QTest::newRow("C") << u"C"_s;
        QTest::newRow("POSIX") << u"POSIX"_s;
        QTest::newRow("unknown language") << u"xx_YY.UTF-8"_s;
        QTest::newRow("unknown encoding") << u"de_DE.none"_s;
        QTest::newRow("no locale at all") << u"//\u00E8;"_s;
        QTest::newRow("10,000 characters") << QString(10'000, u'x');
    }

    // Neither texts nor names of files depend on it.
    void locale()
    {
        QFETCH(const QString, locale);
        const TemporaryHome home(u"caff\u00E8 \u20AC"_s);
        home.writeConfiguration("tavolux : { language : { basedir = /missing; file = /; };"
                                " doc : { quantityFieldWidth = 3; paperWidth = 20; }; };");
        PrintRun run;
        run.input = home.writeFile(u"men\u00F9.xml"_s, document(item(1, "Caff\xC3\xA8 2\xE2\x82\xAC")));
        run.output = home.filePath(u"men\u00F9.txt"_s);
        run.environment[u"HOME"_s] = home.path();
        for (const QString &variable : localeVariables)
            run.environment[variable] = locale;

        const ProgramResult result = run.run();
        QCOMPARE(misbehaviour(result), QByteArray());
        QCOMPARE(result.standardOutput, QByteArray());
        QCOMPARE(run.printed(), "  1 Caff\xC3\xA8 2\xE2\x82\xAC" + QByteArray(6, ' ') + '\n');
    }

    void localeOfMessages_data() { locale_data(); }

    void localeOfMessages()
    {
        QFETCH(const QString, locale);
        PrintRun run;
        for (const QString &variable : localeVariables)
            run.environment[variable] = locale;
        run.environment[u"HOME"_s] = u"/missing/caff\u00E8"_s;
        run.home.writeFile(u"document.xml"_s, "<document><method name=\"none\"/></document>");
        run.output = run.home.filePath(u"missing/men\u00F9.txt"_s);
        const ProgramResult result = run.run();
        QCOMPARE(misbehaviour(result), QByteArray());
        QCOMPARE(result.standardOutput,
                 cannotReadConfiguration(u"/missing/caff\u00E8/.tavolux/conf/tavolux.conf"_s)
                     + cannotOpenOutput() + "File Format Not Supported\n");
    }

    // More than the memory that a run has here. With the address sanitizer that has a limit of its own, and a
    // word to say.
    void memoryRunsOut()
    {
        PrintRun run;
        run.environment[u"ASAN_OPTIONS"_s] =
            u"max_allocation_size_mb=256:allocator_may_return_null=1:log_path=/dev/null"_s;
        run.home.writeFile(
            u"document.xml"_s,
            document(item(1, "Pasta") + item(2, QByteArray(150'000'000, 'x')) + item(3, "Vino")));
        const ProgramResult result = run.run();
        QCOMPARE(misbehaviour(result), QByteArray());
        QCOMPARE(result.standardOutput, cannotWrite(run.output, "Cannot allocate memory"));
        QCOMPARE(run.printed(), row(1, "Pasta"));
    }

    // The names of document and output reach the system as the bytes that they came as.
    void fileNamesThatAreNoText()
    {
        const PrintRun run;
        const ProgramResult result =
            runProgram(u"sh"_s,
                       {u"-c"_s,
                        u"name=$(printf 'a\\377\\n\\033b') && mv document.xml \"$name.xml\" &&"
                        " \"$1\" \"$name.xml\" \"$name.txt\" && mv \"$name.txt\" printed.txt"_s,
                        u"sh"_s, PrintRun::program()},
                       run.environment, {}, inFolder(run.home.path()));
        QCOMPARE(misbehaviour(result), QByteArray());
        QCOMPARE(result.standardOutput, QByteArray());
        QCOMPARE(run.printed(), row(1, "Pasta"));
    }

    void messagesShowFileNamesOnOneLine()
    {
        const PrintRun run;
        const ProgramResult result = runProgram(u"sh"_s,
                                                {u"-c"_s,
                                                 u"ln -s /dev/full \"$(printf 'a\\377\\n\\033b')\" &&"
                                                 " \"$1\" document.xml \"$(printf 'a\\377\\n\\033b')\""_s,
                                                 u"sh"_s, PrintRun::program()},
                                                run.environment, {}, inFolder(run.home.path()));
        QCOMPARE(misbehaviour(result), QByteArray());
        QCOMPARE(result.standardOutput,
                 "Error in the method PrinterDriver::print( a\xFF??b ): No space left on device\n"_ba);
    }

    void noEnvironment()
    {
        PrintRun run;
        for (const QString &variable : QProcessEnvironment::systemEnvironment().keys())
            run.environment[variable] = QString();
        const ProgramResult result = run.run();
        QCOMPARE(misbehaviour(result), QByteArray());
        QCOMPARE(result.standardOutput, cannotReadConfiguration(u"//.tavolux/conf/tavolux.conf"_s));
        QCOMPARE(run.printed(), rowWithoutSettings());
    }
};

QTEST_GUILESS_MAIN(EnvironmentFaultsTest)
#include "environment_faults_test.moc"
