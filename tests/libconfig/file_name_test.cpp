#include "file_name.h"

#include <QFile>
#include <QTest>

using namespace Qt::StringLiterals;

class FileNameTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void ordinaryNames_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("name");

        const auto row = [](const char *what, const QByteArray &bytes, const QString &name) {
            QTest::newRow(what) << bytes << name;
        };
        row("none", "", u""_s);
        row("ASCII", "/home/anna/tavolux.conf", u"/home/anna/tavolux.conf"_s);
        row("two bytes", "Caff\xC3\xA8", u"Caff\u00E8"_s);
        row("three bytes", "\xE2\x82\xAC", u"\u20AC"_s);
        row("a pair whose second half looks like a carried byte", "\xF0\x9F\x92\x80", u"\U0001F480"_s);
        row("a line end", "a\nb", u"a\nb"_s);
        row("characters of no assigned meaning", "\xEF\xBF\xBF", u"\uFFFF"_s);
    }
    void ordinaryNames()
    {
        QFETCH(const QByteArray, bytes);
        QFETCH(const QString, name);
        QCOMPARE(fileNameFromBytes(bytes), name);
        QCOMPARE(fileNameBytes(name), bytes);
        QCOMPARE(QFile::decodeName(bytes), name);
        QCOMPARE(QFile::encodeName(name), bytes);
    }

    void everyByteComesBack_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("name");

        const auto row = [](const char *what, const QByteArray &bytes, std::initializer_list<char16_t> name) {
            QTest::newRow(what) << bytes << QStringView(name.begin(), name.end()).toString();
        };
        row("Latin-1", "b\xE4r", {u'b', 0xDCE4, u'r'});
        row("Latin-1 at the end", "caff\xE8", {u'c', u'a', u'f', u'f', 0xDCE8});
        row("Latin-1 after UTF-8", "\xC3\xA8\xE8", {0x00E8, 0xDCE8});
        row("lowest and highest byte", "\x80\xFF", {0xDC80, 0xDCFF});
        row("after a pair", "\xF0\x9F\x92\x80\x80", {0xD83D, 0xDC80, 0xDC80});
        row("a character that breaks off", "\xE2\x82", {0xDCE2, 0xDC82});
        row("a character that breaks off before a letter", "\xE2\x82z", {0xDCE2, 0xDC82, u'z'});
        row("a carried byte, encoded", "\xED\xB2\x80", {0xDCED, 0xDCB2, 0xDC80});
        row("an overlong slash", "\xC0\xAF", {0xDCC0, 0xDCAF});
        row("beyond the last character", "\xF4\x90\x80\x80", {0xDCF4, 0xDC90, 0xDC80, 0xDC80});
        row("a byte order mark", "\xEF\xBB\xBFx", {0xFEFF, u'x'});
        row("a byte order mark after Latin-1", "\xE4\xEF\xBB\xBF", {0xDCE4, 0xFEFF});
        row("a byte order mark before Latin-1", "\xEF\xBB\xBF\xE4", {0xFEFF, 0xDCE4});
    }
    void everyByteComesBack()
    {
        QFETCH(const QByteArray, bytes);
        QFETCH(const QString, name);
        QCOMPARE(fileNameFromBytes(bytes), name);
        QCOMPARE(fileNameBytes(name), bytes);
    }

    void shown_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QByteArray>("shown");

        const auto row = [](const char *what, const QByteArray &bytes, const QByteArray &shown) {
            QTest::newRow(what) << bytes << shown;
        };
        row("ordinary", "/tmp/Caff\xC3\xA8 \xF0\x9F\x92\x80", "/tmp/Caff\xC3\xA8 \xF0\x9F\x92\x80");
        row("a line end", "a\nb\r", "a?b?");
        row("an escape sequence", "\x1B[31mred", "?[31mred");
        row("delete",
            "a\x7F"
            "b",
            "a?b");
        row("a control character of two bytes",
            "a\xC2\x9B"
            "1m",
            "a?1m");
        row("the same as a byte",
            "a\x9B"
            "1m",
            "a?1m");
        row("the last of these", "\xC2\x9F\x9F", "??");
        row("what follows them", "\xC2\xA0\xA0", "\xC2\xA0\xA0");
        row("Latin-1", "b\xE4r", "b\xE4r");
    }
    void shown()
    {
        QFETCH(const QByteArray, bytes);
        QTEST(shownFileName(fileNameFromBytes(bytes)), "shown");
    }
};

QTEST_GUILESS_MAIN(FileNameTest)
#include "file_name_test.moc"
