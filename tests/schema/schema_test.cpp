#include "program_run.h"
#include "temporary_home.h"

#include <QDir>
#include <QStandardPaths>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

const QString examples = QStringLiteral(TAVOLUX_SOURCE_DIR "/examples/documents/");

ProgramResult checkDocument(const QString &path)
{
    return runProgram(u"xmllint"_s,
                      {u"--noout"_s, u"--relaxng"_s,
                       QStringLiteral(TAVOLUX_SOURCE_DIR "/data/tavolux-document.rng"), path});
}

} // namespace

/* What the schema accepts and what it refuses, where, as xmllint says it. */
class SchemaTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void acceptsExamples_data();
    void acceptsExamples();
    void accepts_data();
    void accepts();
    void refuses_data();
    void refuses();

private:
    TemporaryHome folder;
};

void SchemaTest::initTestCase()
{
    if (QStandardPaths::findExecutable(u"xmllint"_s).isEmpty())
        QSKIP("xmllint is not installed (scripts/setup installs it)");
}

void SchemaTest::acceptsExamples_data()
{
    QTest::addColumn<QString>("path");
    const auto documents = QDir(examples).entryInfoList({u"*.xml"_s}, QDir::Files);
    QVERIFY(!documents.isEmpty());
    for (const QFileInfo &document : documents)
        QTest::newRow(qPrintable(document.baseName())) << document.filePath();
}

void SchemaTest::acceptsExamples()
{
    QFETCH(const QString, path);
    const ProgramResult result = checkDocument(path);
    QVERIFY2(result.exitStatus == 0, result.standardError.constData());
}

void SchemaTest::accepts_data()
{
    QTest::addColumn<QByteArray>("document");

    QTest::newRow("no header block") << R"(<d><method name="printFullOrder"/><order/></d>)"_ba;
    QTest::newRow("root of a known name") << R"(<order><method name="printFullOrder"/><order/></order>)"_ba;
    QTest::newRow("header block among the rows")
        << R"(<d><method name="printSold"/><sold><receipe quantity="1" description="a" amount="1"/><logo/></sold></d>)"_ba;
    QTest::newRow("customer among the rows")
        << R"(<d><method name="printFullOrder"/><order><receipe number="1" name="a"/><customer name="b"/></order></d>)"_ba;
    QTest::newRow("total before the items")
        << R"(<d><method name="printFullOrder"/><order><total price="1"/><receipe number="1" name="a"/></order></d>)"_ba;
    QTest::newRow("several orders") << R"(<d><method name="printFullOrder"/><order/><order/></d>)"_ba;
    QTest::newRow("several statements")
        << R"(<d><method name="printStatementOfAccount"/><statement_list/><statement_list/></d>)"_ba;
    QTest::newRow("any header line, none of the company")
        << R"(<d><method name="printSold"/><headers a="1" b="2"/><company/><sold/></d>)"_ba;
    QTest::newRow("any attributes of a fiscal total")
        << R"(<d><method name="printFullOrderFiscal"/><order><total price="1" card="2"/></order></d>)"_ba;
    QTest::newRow("anything where nothing is printed")
        << R"(<d><method name="printAbstractOrder"/><order by="web"><dish><sauce/></dish></order></d>)"_ba;
}

void SchemaTest::accepts()
{
    QFETCH(const QByteArray, document);
    const ProgramResult result = checkDocument(folder.writeFile(u"document.xml"_s, document));
    QVERIFY2(result.exitStatus == 0, result.standardError.constData());
}

// Each row spoils one place of an example.
void SchemaTest::refuses_data()
{
    QTest::addColumn<QString>("example");
    QTest::addColumn<QByteArray>("right");
    QTest::addColumn<QByteArray>("wrong");
    QTest::addColumn<QByteArray>("element");

    const auto row = [](const char *name, const char *example, const char *right, const char *wrong,
                        const char *element) {
        QTest::newRow(name) << QString::fromLatin1(example) << QByteArray(right) << QByteArray(wrong)
                            << QByteArray(element);
    };
    // The method
    row("unknown method", "full-order", "printFullOrder", "printWholeOrder", "method");
    row("method in lower case", "full-receipt", "printFullOrderReceipt", "printfullorderreceipt", "method");
    row("blank after the method", "sold-items", "printSold", "printSold ", "method");
    row("method without a name", "report", R"(<method name="printReport"/>)", "<method/>", "method");
    row("method with a second attribute", "report", R"(name="printReport")",
        R"(name="printReport" copies="2")", "method");
    row("second method among the rows", "full-receipt", R"(<total price="70.50"/>)",
        R"(<method name="printFullOrderReceipt"/>)", "method");
    row("block before the method", "full-invoice", "<document>", "<document><logo/>", "logo");

    // Blocks
    row("misspelt block", "full-receipt", "<geometry/>", "<geometri/>", "geometri");
    row("block in the wrong case", "full-receipt", "<orderinfo", "<orderInfo", "orderInfo");
    row("block after the rows", "sold-items", "</document>", "<logo/></document>", "logo");
    row("block between two groups", "full-order", "</document>", "<logo/><order/></document>", "logo");
    row("attribute of an empty block", "full-order", "<logo/>", R"(<logo file="logo.png"/>)", "logo");
    row("printer without a name", "full-order", R"(<printers name="Cassa"/>)", "<printers/>", "printers");
    row("misspelt order information", "statement-of-account", "waiter=", "waitress=", "orderinfo");
    row("receipt without its number", "full-receipt", R"(<receipt serialnumber="000187"/>)", "<receipt/>",
        "receipt");
    row("invoice number in the wrong case", "abstract-invoice", "serialnumber=", "serialNumber=", "invoice");
    row("misspelt delivery number", "delivery-order",
        "<delivery serialnumber=", "<delivery serial=", "delivery");
    row("customer of a document that has none", "abstract-receipt", "<logo/>", R"(<customer name="Rossi"/>)",
        "customer");

    // Rows
    row("item spelt as in a dictionary", "full-receipt", R"(<receipe number="2" name="Tir)",
        R"(<recipe number="2" name="Tir)", "recipe");
    row("item without a name", "full-receipt", R"( name="Vino della casa")", "", "receipe");
    row("item without an amount", "full-invoice", R"( totalPrice="45.00")", "", "receipe");
    row("amount in lower case", "full-receipt", R"(totalPrice="18.50")", R"(totalprice="18.50")", "receipe");
    row("not paid in lower case", "full-receipt", "<notPaid", "<notpaid", "notpaid");
    row("item in an abstract receipt", "abstract-receipt", R"(<receipe_type number="3")",
        R"(<receipe number="3")", "receipe");
    row("item type without a price", "abstract-invoice", R"( price="96.00")", "", "receipe_type");
    row("taxes misspelt", "full-invoice", "taxrate=", "taxRate=", "totals");
    row("total of an order without its price", "full-order", R"(<total price="45.00"/>)", "<total/>",
        "total");
    row("variant without a name", "full-order", R"( name="Bufala")", "", "variant");
    row("variant without a quantity", "partial-order", R"(<variant quantity="2" )", "<variant ", "variant");
    row("misspelt variant", "delivery-order", "<variant", "<varient", "varient");
    row("price on a kitchen ticket", "partial-order", R"(name="Insalata mista")",
        R"(name="Insalata mista" price="5.00")", "otherreceipe");
    row("fiscal item without a department", "full-fiscal", R"( department="2")", "", "receipe");
    row("header block of a fiscal document", "abstract-fiscal",
        R"(<total price="44.50" payment="bancomat"/>)", "<logo/>", "logo");
    row("misspelt summary", "report", "<prefiscalssummary", "<prefiscalsummary", "prefiscalsummary");
    row("tax rate without the taxable amount", "report", R"( taxable="5400.00")", "", "taxrate_item");
    row("sold item with the attributes of an ordered one", "sold-items", R"(quantity="9")", R"(number="9")",
        "receipe");
    row("movement without its kind", "statement-of-account", R"( type="refund")", "", "statement");
    row("text among the rows", "sold-items", "<sold>", "<sold>tip", "sold");
}

void SchemaTest::refuses()
{
    QFETCH(const QString, example);
    QFETCH(const QByteArray, right);
    QFETCH(const QByteArray, wrong);
    QFETCH(const QByteArray, element);
    QByteArray document = fileBytes(examples + example + ".xml"_L1);
    const qsizetype place = document.lastIndexOf(right);
    QVERIFY(place > 0);
    document.replace(place, right.size(), wrong);

    const QString path = folder.writeFile(u"document.xml"_s, document);
    const ProgramResult result = checkDocument(path);
    QCOMPARE(result.exitStatus, 3); // a document that is well formed, but not valid
    const qsizetype line = document.first(place).count('\n') + 1;
    const QByteArray complaint =
        path.toUtf8() + ':' + QByteArray::number(line) + ": element " + element + ": Relax-NG validity error";
    QVERIFY2(result.standardError.contains(complaint),
             (result.standardError + "lacks " + complaint).constData());
}

QTEST_GUILESS_MAIN(SchemaTest)
#include "schema_test.moc"
