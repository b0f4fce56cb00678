#include "print_run.h"

#include <QDir>
#include <QFile>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

const QString configurationName = u".tavolux/conf/tavolux.conf"_s;

} // namespace

class ConfigurationFaultsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cannotBeRead_data()
    {
        QTest::addColumn<std::function<void(const TemporaryHome &)>>("spoil");
        using Spoil = std::function<void(const TemporaryHome &)>;
        const auto remove = [](const TemporaryHome &home) {
            QFile::remove(home.filePath(configurationName));
        };

        QTest::newRow("missing") << Spoil(remove);
        QTest::newRow("missing folders") << Spoil(
            [](const TemporaryHome &home) { QDir(home.filePath(u".tavolux"_s)).removeRecursively(); });
        QTest::newRow("directory") << Spoil([remove](const TemporaryHome &home) {
            remove(home);
            QDir().mkdir(home.filePath(configurationName));
        });
        QTest::newRow("unreadable") << Spoil(
            [](const TemporaryHome &home) { QFile::setPermissions(home.filePath(configurationName), {}); });
        QTest::newRow("in an unreadable folder") << Spoil([](const TemporaryHome &home) {
            QFile::setPermissions(home.filePath(u".tavolux"_s), QFile::ReadOwner | QFile::WriteOwner);
        });
        QTest::newRow("FIFO that nobody writes") << Spoil([remove](const TemporaryHome &home) {
            remove(home);
            home.makeFifo(configurationName);
        });
        QTest::newRow("link to nowhere") << Spoil([remove](const TemporaryHome &home) {
            remove(home);
            QFile::link(u"nowhere"_s, home.filePath(configurationName));
        });
        QTest::newRow("link to itself") << Spoil([remove](const TemporaryHome &home) {
            remove(home);
            QFile::link(u"tavolux.conf"_s, home.filePath(configurationName));
        });
        QTest::newRow("link to a device without an end") << Spoil([remove](const TemporaryHome &home) {
            remove(home);
            QFile::link(u"/dev/zero"_s, home.filePath(configurationName));
        });
        QTest::newRow("folder that is a file") << Spoil([](const TemporaryHome &home) {
            QDir(home.filePath(u".tavolux"_s)).removeRecursively();
            home.writeFile(u".tavolux"_s, "s : { k = v; };");
        });
    }

    // The document is printed all the same.
    void cannotBeRead()
    {
        QFETCH(const std::function<void(const TemporaryHome &)>, spoil);
        PrintRun run;
        spoil(run.home);
        run.beforeStart = becomeOrdinaryUser;
        const ProgramResult result = run.run();
        QFile::setPermissions(run.home.filePath(u".tavolux"_s),
                              QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        QCOMPARE(misbehaviour(result), QByteArray());
        QCOMPARE(result.standardOutput, cannotReadConfiguration(run.home.filePath(configurationName)));
        QCOMPARE(run.printed(), rowWithoutSettings());
    }

    void oddContents_data()
    {
        QTest::addColumn<QByteArray>("configuration");
        QTest::addColumn<QByteArray>("printed");
        const QByteArray megabyte(1'000'000, 'x');
        const QByteArray settings = "quantityFieldWidth = 3; paperWidth = 20;";
        const QByteArray before = "tavolux : { doc : { " + settings;
        const QByteArray printed = row(1, "Pasta");
        const auto nested = [](int levels) {
            return QByteArray("a : { ").repeated(levels) + "k = v; " + QByteArray("}; ").repeated(levels);
        };

        QTest::newRow("as it should be") << before + " }; };" << printed;
        QTest::newRow("empty") << QByteArray() << rowWithoutSettings();
        QTest::newRow("NUL bytes between statements")
            << "tavolux : { doc : { " + settings + QByteArray(1000, '\0') + " }; };" << printed;
        // For the toolkit a number ends at a NUL.
        QTest::newRow("NUL byte after a number")
            << "tavolux : { doc : { quantityFieldWidth = 3" + QByteArray(1, '\0') + "; paperWidth = 20; }; };"
            << printed;
        QTest::newRow("NUL bytes only") << QByteArray(1'000'000, '\0') << rowWithoutSettings();
        QTest::newRow("key of 1 MB") << before + megabyte + " = v; }; };" << printed;
        QTest::newRow("value of 1 MB") << before + " k = " + megabyte + "; }; };" << printed;
        QTest::newRow("section name of 1 MB") << before + megabyte + " : { k = v; }; }; };" << printed;
        QTest::newRow("text of 1 MB that ends no statement") << before + " }; }; " + megabyte << printed;
        QTest::newRow("text of 1 MB before a brace")
            << "tavolux : " + megabyte + "{ doc : { " + settings + " }; };" << printed;
        QTest::newRow("value without an end") << before + " k = " + megabyte << printed;
        QTest::newRow("sections without an end") << before << printed;
        QTest::newRow("half of it, up to a name") << "tavolux : { doc : { quantityFieldWidth = 3; paperWi"_ba
                                                  << "  1 Pasta" + QByteArray(34 - 3 - 3 - 5, ' ') + '\n';
        QTest::newRow("half of it, up to the first digit of a number")
            << "tavolux : { doc : { quantityFieldWidth = 3; paperWidth = 2"_ba
            << "  1 \n"_ba;

        // Below 256 levels reading ends.
        QTest::newRow("253 levels below two, then the settings")
            << "tavolux : { " + nested(253) + "doc : { " + settings + " }; };" << printed;
        QTest::newRow("100,000 levels after the settings")
            << before + " }; " + nested(100'000) + "};" << printed;
        QTest::newRow("100,000 levels before the settings")
            << "tavolux : { " + nested(100'000) + "doc : { " + settings + " }; };" << rowWithoutSettings();
        QTest::newRow("100,000 levels without an end")
            << before + " }; " + QByteArray("a : { ").repeated(100'000) << printed;

        // Widths beyond 100,000 count as 100,000; those beyond every integer as none.
        QTest::newRow("paper wider than any") << "tavolux : { doc : { paperWidth = 2147483647; }; };"_ba
                                              << "1 Pasta" + QByteArray(100'000 - 3 - 5, ' ') + '\n';
        QTest::newRow("quantity column wider than any")
            << "tavolux : { doc : { quantityFieldWidth = 100001; }; };"_ba
            << QByteArray(99'999, ' ') + "1 \n";
        QTest::newRow("paper narrower than nothing")
            << "tavolux : { doc : { paperWidth = -2147483648; }; };"_ba
            << "1 \n"_ba;
        QTest::newRow("paper width that no integer holds")
            << "tavolux : { doc : { paperWidth = 99999999999999999999; }; };"_ba << rowWithoutSettings();
    }

    void oddContents()
    {
        QFETCH(const QByteArray, configuration);
        const PrintRun run;
        run.home.writeConfiguration(configuration);
        const ProgramResult result = run.run();
        QCOMPARE(misbehaviour(result), QByteArray());
        QCOMPARE(result.standardOutput, QByteArray());
        QTEST(run.printed(), "printed");
    }

    // As on a failing disk: the file opens, and every read of it is an error.
    void readingFails()
    {
        const PrintRun run;
        QFile::remove(run.home.filePath(configurationName));
        QVERIFY(QFile::link(u"/proc/self/mem"_s, run.home.filePath(configurationName)));
        const ProgramResult result = run.run();
        QCOMPARE(misbehaviour(result), QByteArray());
        QCOMPARE(result.standardOutput, QByteArray());
        QCOMPARE(run.printed(), rowWithoutSettings());
    }

    void noiseSaysNothing()
    {
        const PrintRun run;
        for (quint32 seed = 1; seed <= 100; ++seed) {
            run.home.writeConfiguration(noise(seed));
            const ProgramResult result = run.run();
            QCOMPARE(misbehaviour(result), QByteArray());
            QCOMPARE(result.standardOutput, QByteArray());
            QCOMPARE(run.printed(), rowWithoutSettings());
        }
    }
};

QTEST_GUILESS_MAIN(ConfigurationFaultsTest)
#include "configuration_faults_test.moc"
