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

    void nothingKnown() { QCOMPARE(nearestName(u"x"_s, {}), QString()); }
};

QTEST_GUILESS_MAIN(NearestNameTest)
#include "nearest_name_test.moc"
