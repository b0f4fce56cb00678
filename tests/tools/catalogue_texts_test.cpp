#include "catalogue_texts.h"

#include "temporary_home.h"

#include <QSet>
#include <QTest>
#include <QXmlStreamReader>

using namespace Qt::StringLiterals;

namespace {

QSet<QString> translationsOfSource(const QString &file)
{
    QXmlStreamReader source(fileBytes(file));
    QSet<QString> all;
    while (!source.atEnd())
        if (source.readNext() == QXmlStreamReader::StartElement && source.name() == "translation"_L1)
            all.insert(source.readElementText());
    return all;
}

// The signature and the section of messages, whose length follows.
const QByteArray beforeMessages = QByteArray::fromHex("3cb86418caef9c95cd211cbf60a1bddd69");

} // namespace

class CatalogueTextsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void compiledCatalogues_data()
    {
        QTest::addColumn<QString>("language");
        for (const char *language : {"de", "it", "pl"})
            QTest::newRow(language) << QString::fromLatin1(language);
    }
    void compiledCatalogues()
    {
        QFETCH(const QString, language);
        const QString name = "/translations/tavolux_"_L1 + language;
        const QStringList texts = catalogueTexts(QStringLiteral(TAVOLUX_BINARY_DIR) + name + ".qm"_L1);
        QVERIFY(texts.size() > 40);
        QCOMPARE(QSet<QString>(texts.begin(), texts.end()),
                 translationsOfSource(QStringLiteral(TAVOLUX_SOURCE_DIR) + name + ".ts"_L1));
    }

    void bytes_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QStringList>("texts");

        const auto messages = [](const QByteArray &hex) { return beforeMessages + QByteArray::fromHex(hex); };
        QTest::newRow("empty") << QByteArray() << QStringList();
        QTest::newRow("signature alone") << beforeMessages.first(16) << QStringList();
        QTest::newRow("no messages") << messages("00000000") << QStringList();
        QTest::newRow("two texts, source and context between") << messages("0000001c" // 28 bytes
                                                                           "03"
                                                                           "00000004"
                                                                           "00410142" // A and U+0142
                                                                           "06"
                                                                           "00000001"
                                                                           "78"
                                                                           "07"
                                                                           "00000000"
                                                                           "01"
                                                                           "03"
                                                                           "00000002"
                                                                           "0042")
                                                               << QStringList{u"A\u0142"_s, u"B"_s};
        QTest::newRow("other sections before") << beforeMessages.first(16)
                + QByteArray::fromHex("42"
                                      "00000002"
                                      "6900"
                                      "69"
                                      "00000007"
                                      "03"
                                      "00000002"
                                      "0043") << QStringList{u"C"_s};
        QTest::newRow("a text that is obsolete by its number") << messages("0000000c"
                                                                           "05"
                                                                           "12345678"
                                                                           "03"
                                                                           "00000002"
                                                                           "0044")
                                                               << QStringList{u"D"_s};
        QTest::newRow("a text of no length") << messages("0000000c"
                                                         "03"
                                                         "ffffffff"
                                                         "03"
                                                         "00000002"
                                                         "0045")
                                             << QStringList{QString(), u"E"_s};
        QTest::newRow("messages cut off") << messages("00000100"
                                                      "03")
                                          << QStringList();
        QTest::newRow("a text cut off") << messages("00000007"
                                                    "03"
                                                    "00000100"
                                                    "0041")
                                        << QStringList{QString()};
    }
    void bytes()
    {
        QFETCH(const QByteArray, bytes);
        const TemporaryHome home;
        QTEST(catalogueTexts(home.writeFile(u"some.qm"_s, bytes)), "texts");
    }

    void missingFile() { QCOMPARE(catalogueTexts(u"/no/such.qm"_s), QStringList()); }
};

QTEST_GUILESS_MAIN(CatalogueTextsTest)
#include "catalogue_texts_test.moc"
