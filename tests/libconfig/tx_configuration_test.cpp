#include "captured_output.h"
#include "file_name.h"
#include "temporary_home.h"
#include "tx_configuration.h"

#include <QFile>
#include <QTest>

#include <cstdio>

using namespace Qt::StringLiterals;

/* The user's own configuration, and what reaches the rest of the system through getStrValue. */
class TXConfigurationTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void valuePassesThroughLatin1_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QString>("key");
        QTest::addColumn<QString>("value");

        const auto row = [](const char *name, const QByteArray &text, const QString &key,
                            const QString &value) { QTest::newRow(name) << text << key << value; };
        row("ASCII", "<s k=\"v\"/>", u"s.k"_s, u"v"_s);
        row("Latin-1 in the value", "<s k=\"Caff\xC3\xA8\"/>", u"s.k"_s, u"Caff\u00E8"_s);
        row("Latin-1 in the key", "<s citt\xC3\xA0=\"v\"/>", u"s.citt\u00E0"_s, u"v"_s);
        row("other letters in the value", "<s k=\"5 \xE2\x82\xAC\"/>", u"s.k"_s, u"5 ?"_s);
        row("other letters in the key", "<s \xCE\xB1=\"v\"/>", u"s.\u03B1"_s, {});
        row("missing", "<s k=\"v\"/>", u"s.l"_s, {});
        row("empty", "<s k=\"\"/>", u"s.k"_s, {});
    }

    void valuePassesThroughLatin1()
    {
        QFETCH(const QByteArray, text);
        QFETCH(const QString, key);
        const TemporaryHome home;
        home.writeConfiguration({});
        home.enter();
        TXConfiguration configuration;
        configuration.readFile(home.writeFile(u"tavolux.xml"_s, text), u"xml"_s);
        QTEST(configuration.getStrValue(key), "value");
    }

    void keyOutsideLatin1LooksForQuestionMarks()
    {
        const TemporaryHome home;
        home.writeConfiguration("s : { ? = v; };");
        home.enter();
        const TXConfiguration configuration;
        QCOMPARE(configuration.getStrValue(u"s.\u20AC"_s), u"v"_s);
        QCOMPARE(configuration.lookup(u"s.\u20AC"_s), QString());
    }

    void lookupKeepsEveryLetter()
    {
        const TemporaryHome home;
        home.writeConfiguration({});
        home.enter();
        TXConfiguration configuration;
        configuration.readFile(home.writeFile(u"tavolux.xml"_s, "<s k=\"\xE2\x82\xAC\"/>"), u"xml"_s);
        QCOMPARE(configuration.lookup(u"s.k"_s), u"\u20AC"_s);
    }

    void userFileIsReadFromTheHomeDirectory_data()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("ASCII") << u"home"_s;
        QTest::newRow("blanks") << u"home of Anna"_s;
        QTest::newRow("Latin-1") << u"caff\u00E8"_s;
        QTest::newRow("other letters") << u"\u03BA\u03B1\u03C6\u03AD\u03C2-\U0001F355"_s;
    }

    void userFileIsReadFromTheHomeDirectory()
    {
        QFETCH(const QString, name);
        const TemporaryHome home(name);
        home.writeConfiguration("tavolux : { language : { basedir = \" /lang \"; file = \"/\"; }; };");
        home.enter();
        QCOMPARE(TXConfiguration::userFile(), home.path() + "/.tavolux/conf/tavolux.conf"_L1);

        QString basedir;
        QString file;
        const QByteArray messages = capturedOutput([&] {
            const TXConfiguration configuration;
            basedir = configuration.getStrValue(u"tavolux.language.basedir"_s);
            file = configuration.getStrValue(u"tavolux.language.file"_s);
        });
        QCOMPARE(messages, QByteArray());
        QCOMPARE(basedir, u" /lang "_s);
        QCOMPARE(file, u"/"_s);
    }

    void homeDirectoryIsTheBytesOfItsName()
    {
        const TemporaryHome home;
        home.writeConfiguration("s : { k = v; };");
        const QByteArray renamed = QFile::encodeName(home.path()) + "-b\xE4r";
        QCOMPARE(std::rename(QFile::encodeName(home.path()).constData(), renamed.constData()), 0);
        qputenv("HOME", renamed + "//x/..");
        QCOMPARE(fileNameBytes(TXConfiguration::userFile()), renamed + "/.tavolux/conf/tavolux.conf");
        QCOMPARE(TXConfiguration().getStrValue(u"s.k"_s), u"v"_s);
    }

    void missingFileIsReportedOnce_data() { userFileIsReadFromTheHomeDirectory_data(); }

    void missingFileIsReportedOnce()
    {
        QFETCH(const QString, name);
        const TemporaryHome home(name);
        home.enter();
        QString basedir = u"unset"_s;
        const QByteArray messages = capturedOutput([&] {
            const TXConfiguration configuration;
            basedir = configuration.getStrValue(u"tavolux.language.basedir"_s);
            (void)configuration.getStrValue(u"tavolux.language.file"_s);
        });
        QCOMPARE(messages,
                 "Error in the method FileReader::open( " + home.path().toUtf8()
                     + "/.tavolux/conf/tavolux.conf ): File Not Found\n");
        QCOMPARE(basedir, QString());
    }
};

QTEST_GUILESS_MAIN(TXConfigurationTest)
#include "tx_configuration_test.moc"
