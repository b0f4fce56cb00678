#include "document_schema.h"

#include "printer_driver.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

/* The attributes of an element, a star after each that is required, and "..." where others are taken. */
QString attributesOf(const ElementRule &rule)
{
    QStringList names;
    for (auto attribute = rule.attributes.begin(); attribute != rule.attributes.end(); ++attribute)
        names.append(attribute.key() + (attribute.value() ? u"*"_s : QString()));
    if (rule.anyAttribute)
        names.append(u"..."_s);
    return names.join(u' ');
}

} // namespace

/* The names that are found in the schema, against the pages and the printing program. */
class DocumentSchemaTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void methods()
    {
        const QStringList names = documentSchema().methods.keys();
        QCOMPARE(names,
                 (QStringList{u"printAbstractOrder"_s, u"printAbstractOrderFiscal"_s,
                              u"printAbstractOrderInvoice"_s, u"printAbstractOrderReceipt"_s,
                              u"printFullOrder"_s, u"printFullOrderDelivery"_s, u"printFullOrderFiscal"_s,
                              u"printFullOrderInvoice"_s, u"printFullOrderReceipt"_s, u"printPartialOrder"_s,
                              u"printReport"_s, u"printSold"_s, u"printStatementOfAccount"_s}));
        for (const QString &name : names)
            QVERIFY2(!PrinterDriver::documentTypeOf(name).isEmpty(), qPrintable(name));
        QVERIFY(PrinterDriver::documentTypeOf(u"printEverything"_s).isEmpty());
    }

    void elements_data()
    {
        QTest::addColumn<QString>("method");
        QTest::addColumn<QStringList>("elements");

        const QStringList blocks{u"company"_s, u"delivery"_s, u"geometry"_s,  u"headers"_s,  u"invoice"_s,
                                 u"logo"_s,    u"method"_s,   u"orderinfo"_s, u"printers"_s, u"receipt"_s};
        const auto row = [&](const QString &method, const QStringList &others) {
            QTest::newRow(qPrintable(method)) << method << blocks + others;
        };
        row(u"printFullOrder"_s, {u"customer"_s, u"order"_s, u"receipe"_s, u"total"_s, u"variant"_s});
        row(u"printPartialOrder"_s,
            {u"customer"_s, u"order"_s, u"otherreceipe"_s, u"receipe"_s, u"variant"_s});
        row(u"printFullOrderDelivery"_s,
            {u"customer"_s, u"order"_s, u"otherreceipe"_s, u"receipe"_s, u"variant"_s});
        row(u"printFullOrderReceipt"_s, {u"customer"_s, u"notPaid"_s, u"order"_s, u"receipe"_s, u"total"_s});
        row(u"printAbstractOrderReceipt"_s, {u"notPaid"_s, u"order"_s, u"receipe_type"_s, u"total"_s});
        row(u"printFullOrderInvoice"_s, {u"customer"_s, u"order"_s, u"receipe"_s, u"totals"_s});
        row(u"printAbstractOrderInvoice"_s, {u"customer"_s, u"order"_s, u"receipe_type"_s, u"totals"_s});
        row(u"printReport"_s,
            {u"cancelledsummary"_s, u"date"_s, u"invoicessummary"_s, u"prefiscalssummary"_s,
             u"receiptssummary"_s, u"report"_s, u"taxrate_item"_s});
        row(u"printSold"_s, {u"receipe"_s, u"sold"_s});
        row(u"printStatementOfAccount"_s, {u"statement"_s, u"statement_list"_s});
        QTest::newRow("printFullOrderFiscal")
            << u"printFullOrderFiscal"_s << QStringList{u"method"_s, u"order"_s, u"receipe"_s, u"total"_s};
        QTest::newRow("printAbstractOrderFiscal")
            << u"printAbstractOrderFiscal"_s
            << QStringList{u"method"_s, u"order"_s, u"receipe_type"_s, u"total"_s};
        QTest::newRow("printAbstractOrder") << u"printAbstractOrder"_s << QStringList{u"method"_s};
    }
    void elements()
    {
        QFETCH(const QString, method);
        QFETCH(QStringList, elements);
        const MethodRule rule = documentSchema().methods.value(method);
        elements.sort();
        QCOMPARE(rule.elements.keys(), elements);
        QCOMPARE(rule.anyElement, method == "printAbstractOrder"_L1);
    }

    void attributes_data()
    {
        QTest::addColumn<QString>("method");
        QTest::addColumn<QString>("element");
        QTest::addColumn<QString>("attributes");

        const auto row = [](const QString &method, const QString &element, const QString &attributes) {
            QTest::addRow("%s of %s", qPrintable(element), qPrintable(method))
                << method << element << attributes;
        };
        row(u"printSold"_s, u"method"_s, u"name*"_s);
        row(u"printSold"_s, u"printers"_s, u"charsize ipaddress name* port"_s);
        row(u"printSold"_s, u"orderinfo"_s, u"credit date note table time waiter"_s);
        row(u"printSold"_s, u"headers"_s, u"..."_s);
        row(u"printSold"_s, u"logo"_s, QString());
        row(u"printSold"_s, u"receipe"_s, u"amount* description* quantity*"_s);
        row(u"printFullOrder"_s, u"customer"_s,
            u"billingaddress deliveryaddress fiscalcode licensenumber name* telephone"_s);
        row(u"printFullOrder"_s, u"receipe"_s, u"name* number* price totalPrice"_s);
        row(u"printFullOrder"_s, u"variant"_s, u"name* number price quantity* totalPrice"_s);
        row(u"printPartialOrder"_s, u"receipe"_s, u"name* number*"_s);
        row(u"printPartialOrder"_s, u"variant"_s, u"name* number quantity*"_s);
        row(u"printFullOrderReceipt"_s, u"receipe"_s, u"name* number* price* totalPrice*"_s);
        row(u"printFullOrderFiscal"_s, u"receipe"_s, u"department* name* number* price*"_s);
        row(u"printFullOrderFiscal"_s, u"total"_s, u"..."_s);
        row(u"printReport"_s, u"cancelledsummary"_s, u"number* totals* ..."_s);
        row(u"printReport"_s, u"taxrate_item"_s, u"amount* tax* taxable* taxrate*"_s);
    }
    void attributes()
    {
        QFETCH(const QString, method);
        QFETCH(const QString, element);
        QFETCH(const QString, attributes);
        const MethodRule rule = documentSchema().methods.value(method);
        QVERIFY(rule.elements.contains(element));
        QCOMPARE(attributesOf(rule.elements.value(element)), attributes);
    }

    void rootHasNoAttributes()
    {
        QVERIFY(documentSchema().root.attributes.isEmpty());
        QVERIFY(!documentSchema().root.anyAttribute);
    }
};

QTEST_GUILESS_MAIN(DocumentSchemaTest)
#include "document_schema_test.moc"
