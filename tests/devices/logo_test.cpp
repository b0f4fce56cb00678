#include "logo.h"
#include "temporary_home.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

QString logoFile(const char *name)
{
    return QStringLiteral(TAVOLUX_SOURCE_DIR "/tests/devices/logos/") + QString::fromLatin1(name);
}

/* The raster as text, a line for each row, black dots as "#". */
QString shown(const Raster &raster)
{
    QString text;
    for (qsizetype i = 0; i < raster.bits.size(); ++i) {
        for (int bit = 7; bit >= 0; --bit)
            text += (raster.bits[i] >> bit) & 1 ? u'#' : u'.';
        if ((i + 1) % raster.bytesPerRow == 0)
            text += u'\n';
    }
    return text;
}

qsizetype blackDots(const Raster &raster)
{
    return shown(raster).count(u'#');
}

} // namespace

/* Logos from PNG files, which tests/devices/logos/make writes. */
class LogoTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void dotForDot()
    {
        const Logo logo = readLogo(logoFile("black-and-white.png"), 24);
        QCOMPARE(logo.fault, QString());
        QCOMPARE(shown(logo.raster),
                 u"....########............\n"
                 u"....#..............#....\n"_s);
    }

    void oddWidthOfThePaper()
    {
        const Logo logo = readLogo(logoFile("black-and-white.png"), 20);
        QCOMPARE(shown(logo.raster),
                 u"..########..............\n"
                 u"..#..............#......\n"_s);
    }

    // The mean of two dots by two: rows of black, of a grey and of white.
    void scaledDown()
    {
        const Logo logo = readLogo(logoFile("32x4-halves.png"), 16);
        QCOMPARE(shown(logo.raster),
                 u"########........\n"
                 u"########........\n"_s);
    }

    void transparentIsWhite()
    {
        const Logo logo = readLogo(logoFile("transparent.png"), 16);
        QCOMPARE(shown(logo.raster), u"########........\n"_s);
    }

    // Half of the dots of a middle grey are black, a quarter of those of a light one, in no solid areas.
    void greysAreDithered_data()
    {
        QTest::addColumn<QByteArray>("file");
        QTest::addColumn<int>("percentBlack");
        QTest::newRow("middle") << "grey-128.png"_ba << 50;
        QTest::newRow("light") << "grey-192.png"_ba << 25;
        QTest::newRow("dark") << "grey-064.png"_ba << 75;
    }

    void greysAreDithered()
    {
        QFETCH(const QByteArray, file);
        QFETCH(const int, percentBlack);
        const Logo logo = readLogo(logoFile(file.constData()), 64);
        QCOMPARE(logo.fault, QString());
        QCOMPARE(logo.raster.bytesPerRow, 8);
        QCOMPARE(logo.raster.rows, 64);
        const qsizetype percent = blackDots(logo.raster) * 100 / (64 * 64);
        QVERIFY2(qAbs(percent - percentBlack) <= 2, qPrintable(QString::number(percent)));
    }

    void keepsItsShape()
    {
        const Logo logo = readLogo(logoFile("1200x300.png"), 576);
        QCOMPARE(logo.raster.bytesPerRow, 72);
        QCOMPARE(logo.raster.rows, 144);
    }

    void highLogo()
    {
        const Logo logo = readLogo(logoFile("8x4096.png"), 576);
        QCOMPARE(logo.raster.rows, 1024);
        QCOMPARE(blackDots(logo.raster), 2 * 1024);
        QCOMPARE(readLogo(logoFile("1x4096.png"), 576).raster.rows, 1024);
    }

    void faults_data()
    {
        QTest::addColumn<QString>("file");
        QTest::addColumn<QString>("fault");
        QTest::newRow("not there") << u"/no/such/file"_s << u"No such file or directory"_s;
        QTest::newRow("no name") << QString() << u"No such file or directory"_s;
        QTest::newRow("folder") << u"/etc"_s << u"it is no regular file"_s;
        QTest::newRow("device that never ends") << u"/dev/zero"_s << u"it is no regular file"_s;
        QTest::newRow("no PNG file") << logoFile("make") << u"it is no PNG file"_s;
        QTest::newRow("wider than a logo may be") << logoFile("4097x1.png") << u"the picture is too large"_s;
        QTest::newRow("bomb: 30,000 dots square") << logoFile("bomb.png") << u"the picture is too large"_s;
    }

    void faults()
    {
        QFETCH(const QString, file);
        const Logo logo = readLogo(file, 576);
        QCOMPARE(logo.raster.rows, 0);
        QTEST(logo.fault, "fault");
    }

    void faultsOfFiles()
    {
        const TemporaryHome home;
        const QByteArray png = fileBytes(logoFile("grey-128.png"));
        QCOMPARE(readLogo(home.makeFifo(u"fifo"_s), 576).fault, u"it is no regular file"_s);
        QCOMPARE(readLogo(home.writeFile(u"empty"_s, {}), 576).fault, u"it is no PNG file"_s);
        QCOMPARE(readLogo(home.writeFile(u"large"_s, png + QByteArray(4'000'000, '\0')), 576).fault,
                 u"the file is too large"_s);
        // Cut off anywhere, it is an error in one line, and nothing crashes.
        for (qsizetype size = 1; size < png.size() - 12; ++size) {
            const Logo logo = readLogo(home.writeFile(u"half"_s, png.first(size)), 576);
            QVERIFY2(!logo.fault.isEmpty() && !logo.fault.contains(u'\n'), qPrintable(QString::number(size)));
        }
    }
};

QTEST_GUILESS_MAIN(LogoTest)
#include "logo_test.moc"
