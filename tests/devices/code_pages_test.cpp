#include "code_pages.h"
#include "reference_pages.h"

#include <QTest>

#include <algorithm>

using namespace Qt::StringLiterals;

/* The code pages, beside tables that come from elsewhere. */
class CodePagesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void toolkitHasIcu();
    void agreesWithReference_data();
    void agreesWithReference();
    void names_data();
    void names();
};

// The toolkit takes the pages from ICU: without it printers would print no letter but those of ASCII.
void CodePagesTest::toolkitHasIcu()
{
    QCOMPARE(CodePageEncoder(CodePage::cp858).byte(u'€'), quint8(0xD5));
}

void CodePagesTest::agreesWithReference_data()
{
    QTest::addColumn<QByteArray>("name");
    for (const ReferencePage &page : referencePages)
        QTest::newRow(page.name.data()) << QByteArray(page.name.data());
    QCOMPARE(std::size(referencePages), std::size_t(12));
}

// Every character of the basic plane: what the reference does not have must not come out as a byte either.
void CodePagesTest::agreesWithReference()
{
    QFETCH(const QByteArray, name);
    const auto *reference =
        std::ranges::find(referencePages, std::string_view(name.constData()), &ReferencePage::name);
    const std::optional<CodePage> page = codePageOfName(QString::fromLatin1(name));
    QVERIFY(page);
    CodePageEncoder encoder(*page);
    QStringList differing;
    for (int code = 0xA0; code < 0x10000; ++code) { // below are control characters, which nobody looks up
        const auto character = static_cast<char16_t>(code);
        const auto place = std::ranges::find(reference->characters, character);
        const auto expected = place == reference->characters.end()
            ? quint8(0)
            : static_cast<quint8>(0x80 + (place - reference->characters.begin()));
        if (encoder.byte(character) != expected)
            differing.append(u"U+%1"_s.arg(code, 4, 16, QChar(u'0')));
    }
    // The Greek letter prints as the sign that looks like it.
    QCOMPARE(differing, name == "437" ? QStringList(u"U+03bc"_s) : QStringList());
}

void CodePagesTest::names_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("known");
    QTest::newRow("437") << u"437"_s << true;
    QTest::newRow("8859-15") << u"8859-15"_s << true;
    QTest::newRow("1254") << u"1254"_s << true;
    QTest::newRow("empty") << QString() << false;
    QTest::newRow("as the toolkit calls it") << u"CP437"_s << false;
    QTest::newRow("a page that nothing can encode") << u"865"_s << false;
}

void CodePagesTest::names()
{
    QFETCH(const QString, name);
    QFETCH(const bool, known);
    const std::optional<CodePage> page = codePageOfName(name);
    QCOMPARE(page.has_value(), known);
    if (page)
        QCOMPARE(codePageName(*page), name);
}

QTEST_GUILESS_MAIN(CodePagesTest)
#include "code_pages_test.moc"
