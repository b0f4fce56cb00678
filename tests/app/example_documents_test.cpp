#include "program_run.h"
#include "temporary_home.h"

#include <QDir>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

const QString examples = QStringLiteral(TAVOLUX_EXAMPLES);
const QByteArray drawerCommand = "\x1Bp0";

QStringList documents()
{
    return QDir(examples + "/documents"_L1).entryList(QDir::Files, QDir::Name);
}

QByteArray methodElement(const char *name)
{
    return QByteArray("<method name=\"") + name + "\"/>";
}

} // namespace

/* The documents that people are shown first, printed with the configuration that they are told to copy. */
class ExampleDocumentsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyMethodHasAnExample_data()
    {
        QTest::addColumn<QByteArray>("element");
        for (const char *method :
             {"printPartialOrder", "printFullOrder", "printFullOrderReceipt", "printFullOrderInvoice",
              "printFullOrderDelivery", "printFullOrderFiscal", "printAbstractOrder",
              "printAbstractOrderReceipt", "printAbstractOrderInvoice", "printAbstractOrderFiscal",
              "printReport", "printSold", "printStatementOfAccount"})
            QTest::newRow(method) << methodElement(method);
    }

    void everyMethodHasAnExample()
    {
        QFETCH(const QByteArray, element);
        int found = 0;
        for (const QString &document : documents())
            found += static_cast<int>(fileBytes(examples + "/documents/"_L1 + document).count(element));
        QCOMPARE(found, 1);
    }

    void printout_data()
    {
        QTest::addColumn<QString>("document");
        for (const QString &document : documents())
            QTest::addRow("%s", qPrintable(document)) << examples + "/documents/"_L1 + document;
    }

    void printout()
    {
        QFETCH(const QString, document);
        const TemporaryHome home;
        home.writeConfiguration(fileBytes(examples + "/tavolux.conf"_L1));
        const QString output = home.filePath(u"printed.txt"_s);
        const ProgramResult run = runProgram(QStringLiteral(TAVOLUX_PRINTER), {document, output},
                                             {{u"HOME"_s, home.path()}, {u"LC_ALL"_s, u"C.UTF-8"_s}});
        QVERIFY(!run.crashed);
        QCOMPARE(run.exitStatus, 0);
        QCOMPARE(run.standardOutput, QByteArray());
        QCOMPARE(run.standardError, QByteArray());

        QByteArray text = fileBytes(output);
        if (text.endsWith(drawerCommand))
            text.chop(drawerCommand.size());
        const QByteArray xml = fileBytes(document);
        // The plain-text printer has no fiscal unit, and nothing to say of an abstract order.
        const bool silent = xml.contains(methodElement("printAbstractOrder"))
            || xml.contains(methodElement("printFullOrderFiscal"))
            || xml.contains(methodElement("printAbstractOrderFiscal"));
        QCOMPARE(text.trimmed().isEmpty(), silent);
        QVERIFY(silent || text.endsWith('\n'));
    }
};

QTEST_GUILESS_MAIN(ExampleDocumentsTest)
#include "example_documents_test.moc"
