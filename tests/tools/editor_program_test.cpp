#include "program_run.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

const QMap<QString, QString> withoutDisplay = {{u"QT_QPA_PLATFORM"_s, u"xcb"_s}, {u"DISPLAY"_s, QString()}};

const QByteArray noDisplay = "tavolux-config-editor: there is no display to open a window on\n";

} // namespace

class EditorProgramTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void answersWithoutDisplay_data();
    void answersWithoutDisplay();
    void opensAFileNamedLikeAQuestion_data();
    void opensAFileNamedLikeAQuestion();
    void saysThatThereIsNoDisplay_data();
    void saysThatThereIsNoDisplay();
    void refusesWrongArguments_data();
    void refusesWrongArguments();
};

void EditorProgramTest::answersWithoutDisplay_data()
{
    QTest::addColumn<QString>("option");
    QTest::addColumn<QByteArray>("answer"); // at the beginning of one of its lines
    QTest::newRow("--version") << u"--version"_s << QByteArray("tavolux-config-editor " TAVOLUX_VERSION "\n");
    QTest::newRow("-v") << u"-v"_s << QByteArray("tavolux-config-editor " TAVOLUX_VERSION "\n");
    QTest::newRow("--help") << u"--help"_s << QByteArray("  --type <cfg|xml>");
    QTest::newRow("-h") << u"-h"_s << QByteArray("  --file <FILE>");
}

void EditorProgramTest::answersWithoutDisplay()
{
    QFETCH(const QString, option);
    QFETCH(const QByteArray, answer);
    const ProgramResult result = runProgram(QStringLiteral(TAVOLUX_CONFIG_EDITOR), {option}, withoutDisplay);
    QVERIFY(!result.crashed);
    QCOMPARE(result.exitStatus, 0);
    QCOMPARE(result.standardError, QByteArray());
    QVERIFY2(('\n' + result.standardOutput).contains('\n' + answer), result.standardOutput.constData());
}

void EditorProgramTest::opensAFileNamedLikeAQuestion_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::newRow("after the options") << QStringList{u"--"_s, u"--help"_s};
    QTest::newRow("as the value of one") << QStringList{u"--file"_s, u"-v"_s};
}

// It comes as far as the window, for which it misses the display.
void EditorProgramTest::opensAFileNamedLikeAQuestion()
{
    QFETCH(const QStringList, arguments);
    const ProgramResult result = runProgram(QStringLiteral(TAVOLUX_CONFIG_EDITOR), arguments, withoutDisplay);
    QCOMPARE(result.standardError, noDisplay);
}

void EditorProgramTest::saysThatThereIsNoDisplay_data()
{
    QTest::addColumn<QString>("platform"); // unset when null
    QTest::addColumn<QString>("display");
    QTest::newRow("none") << QString() << QString();
    QTest::newRow("an empty name") << QString() << u""_s;
    QTest::newRow("one that nobody serves") << QString() << u":4711"_s;
    QTest::newRow("a platform that is not there") << u"none"_s << QString();
}

void EditorProgramTest::saysThatThereIsNoDisplay()
{
    QFETCH(const QString, platform);
    QFETCH(const QString, display);
    const ProgramResult result = runProgram(
        QStringLiteral(TAVOLUX_CONFIG_EDITOR), {},
        {{u"QT_QPA_PLATFORM"_s, platform}, {u"DISPLAY"_s, display}, {u"WAYLAND_DISPLAY"_s, QString()}});
    QVERIFY(!result.crashed);
    QCOMPARE(result.exitStatus, 2);
    QCOMPARE(result.standardOutput, QByteArray());
    QCOMPARE(result.standardError, noDisplay);
}

void EditorProgramTest::refusesWrongArguments_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QByteArray>("message");
    QTest::newRow("unknown kind") << QStringList{u"--type"_s, u"ini"_s}
                                  << QByteArray("unknown type 'ini': it is cfg or xml\n");
    QTest::newRow("kind in capitals")
        << QStringList{u"--type=XML"_s} << QByteArray("unknown type 'XML': it is cfg or xml\n");
    QTest::newRow("two files") << QStringList{u"a"_s, u"b"_s} << QByteArray("only one file can be edited\n");
    QTest::newRow("a file in both ways")
        << QStringList{u"--file"_s, u"a"_s, u"b"_s} << QByteArray("only one file can be edited\n");
    QTest::newRow("an empty name") << QStringList{u"--file="_s}
                                   << QByteArray("the name of the configuration is empty\n");
    QTest::newRow("unknown option") << QStringList{u"--fiel"_s, u"a"_s}
                                    << QByteArray("Unknown option 'fiel'.\n");
}

void EditorProgramTest::refusesWrongArguments()
{
    QFETCH(const QStringList, arguments);
    QFETCH(const QByteArray, message);
    const ProgramResult result = runProgram(QStringLiteral(TAVOLUX_CONFIG_EDITOR), arguments);
    QVERIFY(!result.crashed);
    QCOMPARE(result.exitStatus, 1);
    QCOMPARE(result.standardOutput, QByteArray());
    QVERIFY2(result.standardError.endsWith(message), result.standardError.constData());
}

QTEST_GUILESS_MAIN(EditorProgramTest)
#include "editor_program_test.moc"
