#include "nearest_name.h"

#include <QTest>

using namespace Qt::StringLiterals;

class NearestNameTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void nearest_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("nearest");

        QTest::newRow("the name itself") << u"check"_s << u"check"_s;
        QTest::newRow("letter left out") << u"chck"_s << u"check"_s;
        QTest::newRow("letter added") << u"treee"_s << u"tree"_s;
        QTest::newRow("letter replaced") << u"gat"_s << u"get"_s;
        QTest::newRow("neighbours swapped") << u"tere"_s << u"tree"_s;
        QTest::newRow("capitals") << u"CHECK"_s << u"check"_s;
        QTest::newRow("of two, the nearer") << u"writ-xml"_s << u"write-xml"_s;
        QTest::newRow("of two, the other one") << u"writex"_s << u"write"_s;
        QTest::newRow("another word") << u"frobnicate"_s << QString();
        QTest::newRow("nothing like it") << u"zzz"_s << QString();
        QTest::newRow("empty") << QString() << QString();
        QTest::newRow("endless") << QString(1'000'000, u'x') << QString();
    }
    void nearest()
    {
        QFETCH(const QString, name);
        const QStringList known{u"get"_s, u"tree"_s, u"write"_s, u"write-xml"_s, u"check"_s, u"edit"_s};
        QTEST(nearestName(name, known), "nearest");
    }

    void oneSwapIsNearerThanTwoReplacements()
    {
        QCOMPARE(nearestName(u"abcd"_s, {u"abxy"_s, u"abdc"_s}), u"abdc"_s);
    }

    void costs_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QStringList>("known");
        QTest::addColumn<QString>("nearest");

        // Each way to err costs one, whichever it is: of two that cost the same the first wins.
        QTest::newRow("left out before replaced")
            << u"abcd"_s << QStringList{u"abcde"_s, u"abcx"_s} << u"abcde"_s;
        QTest::newRow("replaced before left out")
            << u"abcd"_s << QStringList{u"abcx"_s, u"abcde"_s} << u"abcx"_s;
        QTest::newRow("added before replaced") << u"abcd"_s << QStringList{u"abc"_s, u"abcx"_s} << u"abc"_s;
        QTest::newRow("replaced before added") << u"abcd"_s << QStringList{u"abcx"_s, u"abc"_s} << u"abcx"_s;
        QTest::newRow("swapped before replaced")
            << u"abcd"_s << QStringList{u"abdc"_s, u"abcx"_s} << u"abdc"_s;
        QTest::newRow("replaced before swapped")
            << u"abcd"_s << QStringList{u"abcx"_s, u"abdc"_s} << u"abcx"_s;
        QTest::newRow("one left out, not two")
            << u"abcd"_s << QStringList{u"abcdef"_s, u"abcde"_s} << u"abcde"_s;
        QTest::newRow("one added, not two")
            << u"abcdef"_s << QStringList{u"abcd"_s, u"abcde"_s} << u"abcde"_s;
        QTest::newRow("one replaced, not two") << u"abcd"_s << QStringList{u"xbcx"_s, u"abcx"_s} << u"abcx"_s;
        QTest::newRow("swapped across one is no swap")
            << u"abcd"_s << QStringList{u"cbad"_s, u"xbcd"_s} << u"xbcd"_s;
        QTest::newRow("half a swap is none") << u"abcd"_s << QStringList{u"abdx"_s, u"xbcd"_s} << u"xbcd"_s;
        // Less than a third and two letters may differ: of three letters two, of six three.
        QTest::newRow("as far as it goes, of three") << u"abc"_s << QStringList{u"axy"_s} << u"axy"_s;
        QTest::newRow("too far, of three") << u"abc"_s << QStringList{u"xyz"_s} << QString();
        QTest::newRow("as far as it goes, of six") << u"abcdef"_s << QStringList{u"abcxyz"_s} << u"abcxyz"_s;
        QTest::newRow("too far, of six") << u"abcdef"_s << QStringList{u"abwxyz"_s} << QString();
    }
    void costs()
    {
        QFETCH(const QString, name);
        QFETCH(const QStringList, known);
        QTEST(nearestName(name, known), "nearest");
    }

    void nothingKnown() { QCOMPARE(nearestName(u"x"_s, {}), QString()); }
};

QTEST_GUILESS_MAIN(NearestNameTest)
#include "nearest_name_test.moc"
