#include "option_texts.h"

#include <QTest>

using namespace Qt::StringLiterals;

class OptionTextsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void options_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<OptionTexts>("expected");

        QTest::newRow("none") << ""_ba << OptionTexts();
        QTest::newRow("blanks") << " \t "_ba << OptionTexts();
        QTest::newRow("several") << "Columns=42  cut=none"_ba
                                 << OptionTexts({{u"columns"_s, u"42"_s}, {u"cut"_s, u"none"_s}});
        QTest::newRow("the last one of a name")
            << "cut=none Cut=full"_ba << OptionTexts({{u"cut"_s, u"full"_s}});
        QTest::newRow("switches") << "landscape nocollate"_ba
                                  << OptionTexts({{u"landscape"_s, u"true"_s}, {u"collate"_s, u"false"_s}});
        QTest::newRow("in quotes") << "a='x y' b=\"it's\""_ba
                                   << OptionTexts({{u"a"_s, u"x y"_s}, {u"b"_s, u"it's"_s}});
        QTest::newRow("after backslashes")
            << "a=x\\ y b=\\'\\\\"_ba << OptionTexts({{u"a"_s, u"x y"_s}, {u"b"_s, u"'\\"_s}});
        QTest::newRow("a quote that does not end") << "a='x y"_ba << OptionTexts({{u"a"_s, u"x y"_s}});
        QTest::newRow("a backslash at the end") << "a=x\\"_ba << OptionTexts({{u"a"_s, u"x\\"_s}});
        QTest::newRow("an equals sign in the value") << "a=b=c"_ba << OptionTexts({{u"a"_s, u"b=c"_s}});
    }

    void options()
    {
        QFETCH(const QByteArray, text);
        QFETCH(const OptionTexts, expected);
        QCOMPARE(jobOptions(text), expected);
    }

    void defaults()
    {
        QCOMPARE(ppdDefaults("*PPD-Adobe: \"4.3\"\n"
                             "*OpenUI *Columns/Width: PickOne\n"
                             "*DefaultColumns: 42\r\n"
                             "*Columns 42/42 characters: \"\"\n"
                             "*Default: nothing\n"
                             "*DefaultWithoutColon\n"
                             "*DefaultCut:none"),
                 OptionTexts({{u"columns"_s, u"42"_s}, {u"cut"_s, u"none"_s}}));
        QCOMPARE(ppdDefaults({}), OptionTexts());
    }
};

QTEST_APPLESS_MAIN(OptionTextsTest)
#include "option_texts_test.moc"
