#include "program_run.h"
#include "temporary_home.h"

#include <QFileInfo>
#include <QRegularExpression>
#include <QTest>

using namespace Qt::StringLiterals;

/* The program as it stands on a machine that has no display. */
class InstalledProgramTest : public QObject
{
    Q_OBJECT

private:
    TemporaryHome prefix;
    QString program = prefix.filePath(QStringLiteral(TAVOLUX_BINDIR "/tavolux-printer"));

private Q_SLOTS:
    void initTestCase()
    {
        const ProgramResult install =
            runProgram(QStringLiteral(TAVOLUX_CMAKE),
                       {u"--install"_s, QStringLiteral(TAVOLUX_BINARY_DIR), u"--prefix"_s, prefix.path()});
        QVERIFY2(!install.crashed && install.exitStatus == 0, install.standardError.constData());
    }

    void programIsInPlace()
    {
        QVERIFY(QFileInfo(program).isFile());
        QVERIFY(QFileInfo(program).isExecutable());
    }

    void programPrints()
    {
        const TemporaryHome home;
        home.writeConfiguration("tavolux : { receiptdoc : { paperWidth = 3; }; };");
        const QString input = home.writeFile(
            u"document.xml"_s,
            "<document><method name=\"printFullOrderReceipt\"/><receipt serialnumber=\"17\"/></document>");
        const QString output = home.filePath(u"printed.txt"_s);
        const ProgramResult run =
            runProgram(program, {input, output},
                       {{u"HOME"_s, home.path()}, {u"DISPLAY"_s, {}}, {u"WAYLAND_DISPLAY"_s, {}}});
        QCOMPARE(run.exitStatus, 0);
        QCOMPARE(run.standardOutput, QByteArray());
        QCOMPARE(run.standardError, QByteArray());
        QCOMPARE(fileBytes(output), " Serial Number: 17\n===\n");
    }

    void programLoadsNoDisplayLibrary_data()
    {
        QTest::addColumn<QString>("tool");
        QTest::addColumn<QString>("option");
        QTest::newRow("what it names itself") << u"readelf"_s << u"--dynamic"_s;
        QTest::newRow("what comes with that") << u"ldd"_s << u"--verbose"_s;
    }

    void programLoadsNoDisplayLibrary()
    {
        QFETCH(const QString, tool);
        QFETCH(const QString, option);
        const ProgramResult run = runProgram(tool, {option, program}, {{u"LC_ALL"_s, u"C"_s}});
        QVERIFY(!run.crashed);
        QCOMPARE(run.exitStatus, 0);
        const QString libraries = QString::fromUtf8(run.standardOutput);
        QVERIFY2(libraries.contains("libQt6Core"_L1), "the list itself is in order");

        static const QRegularExpression display(
            u"lib(Qt6(Gui|Widgets|OpenGL|DBus|XcbQpa|Wayland)|X11|xcb|GL|EGL|GLX|wayland|xkbcommon)"_s);
        const QString found = display.match(libraries).captured();
        QVERIFY2(found.isEmpty(), qPrintable(found));
    }
};

QTEST_GUILESS_MAIN(InstalledProgramTest)
#include "installed_program_test.moc"
