#include "captured_output.h"
#include "make_driver.h"
#include "print_document.h"
#include "print_output.h"
#include "printer_driver.h"
#include "temporary_home.h"
#include "tx_configuration.h"

#include <QBuffer>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

const QByteArray begin("\x1B@\x1C.\x1BR\0\x1Bt\x13", 10);
const QByteArray cut("\x1DV\x41\0", 4);
const QByteArray pulse("\x1Bp\0\x19\xFA", 5);
const QByteArray incomplete = "\x1B"
                              "E\1\x1D!\1*** INCOMPLETE ***\n"
    + QByteArray("\x1B"
                 "E\0\x1D!\0",
                 6)
    + cut;

/* What the document becomes on the output "till" with these sections in the configuration. */
QByteArray printed(const QByteArray &document, const QByteArray &sections)
{
    const TemporaryHome home;
    const TXConfiguration configuration(home.writeFile(u"tavolux.conf"_s, "tavolux : {" + sections + "};"),
                                        u"cfg"_s);
    QByteArray bytes;
    QBuffer printer(&bytes);
    printer.open(QIODevice::WriteOnly);
    QByteArray source = document;
    QBuffer reader(&source);
    const std::unique_ptr<PrinterDriver> driver =
        makeDriver(configuration, std::make_unique<PrintOutput>(printer, u"till"_s));
    printDocument(reader, *driver);
    return bytes;
}

const QByteArray total = "<d><method name=\"printFullOrder\"/><total price=\"2 \xE2\x82\xAC\"/></d>";
const QByteArray profile =
    "prefiscaldoc : { totalPriceFieldWidth = 6; paperWidth = 20; openCashDrawer = true; };";

QByteArray printers(const QByteArray &settings)
{
    return "printers : { a : { output = till; " + settings + " }; };";
}

} // namespace

/* Which driver there is for an output, and what it makes of whole documents. */
class MakeDriverTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void prints_data()
    {
        QTest::addColumn<QByteArray>("document");
        QTest::addColumn<QByteArray>("sections");
        QTest::addColumn<QByteArray>("expected");
        QTest::addColumn<QByteArray>("messages");

        const auto row = [](const char *name, const QByteArray &document, const QByteArray &sections,
                            const QByteArray &expected, const QByteArray &messages = {}) {
            QTest::newRow(name) << document << sections << expected << messages;
        };
        const QByteArray plain = "\n TOTAL........   2 \xE2\x82\xAC\n\x1Bp0";
        const QByteArray rows = "\n\x1B"
                                "E\1 TOTAL........   2 \xD5\n"
            + QByteArray("\x1B"
                         "E\0",
                         3);
        row("no printers", total, profile, plain);
        row("another output", total, profile + "printers : { a : { output = bar; model = generic-80; }; };",
            plain);
        row("plain text", total, profile + printers("model = plain-text;"), plain);
        row("unknown model", total, profile + printers("model = unknown;"), plain,
            "Error in the setting tavolux.printers.a.model( unknown ): not the name of a model\n");
        row("ESC/POS", total, profile + printers("model = generic-80;"), begin + rows + cut + pulse);
        row("the first that fits", total,
            profile
                + "printers : { a : { output = t*; model = generic-80; cut = none; feed = 0; };"
                  "b : { output = till; model = generic-80; }; };",
            begin + rows + pulse);

        row("prints nothing, opens the drawer", "<d><method name=\"printFullOrder\"/></d>",
            profile + printers("model = generic-80;"), begin + pulse);
        row("prints nothing", "<d><method name=\"printFullOrder\"/></d>", printers("model = generic-80;"),
            {});
        row("no method", "<d><total price=\"1\"/></d>", profile + printers("model = generic-80;"), {});
        row("not well-formed", total.chopped(4), profile + printers("model = generic-80;"),
            begin + rows.chopped(3) + QByteArray("\x1D!\1", 3) + "*** INCOMPLETE ***\n"
                + QByteArray("\x1B"
                             "E\0\x1D!\0",
                             6)
                + cut);
        row("a fault after the root element", total + "<", profile + printers("model = generic-80;"),
            begin + rows.chopped(3) + QByteArray("\x1D!\1", 3) + "*** INCOMPLETE ***\n"
                + QByteArray("\x1B"
                             "E\0\x1D!\0",
                             6)
                + cut);
        row("empty document", "", profile + printers("model = generic-80;"), begin + incomplete);
        row("unknown method", "<d><method name=\"printNothing\"/></d>",
            profile + printers("model = generic-80;"), begin + incomplete, "File Format Not Supported\n");

        const QByteArray invoice =
            "<d><method name=\"printFullOrderInvoice\"/><invoice serialnumber=\"7\"/></d>";
        const QByteArray invoiceProfile = "invoicedoc : { paperWidth = 20; openCashDrawer = true; };";
        const QByteArray once = begin + " Invoice Number: 7\n====================\n" + cut;
        row("an invoice", invoice, invoiceProfile + printers("model = generic-80;"), once + pulse);
        row("an invoice and its duplicate", invoice,
            invoiceProfile + printers("model = generic-80; duplicate = true;"), once + once + pulse);
        row("an order has no duplicate", total, profile + printers("model = generic-80; duplicate = true;"),
            begin + rows + cut + pulse);

        row("centred in the profile's paper",
            "<d><method name=\"printFullOrder\"/><company name=\"ab\xE2\x82\xAC\"/></d>",
            "prefiscaldoc : { paperWidth = 9; printCompany = true; };" + printers("model = generic-80;"),
            begin + "   ab\xD5\n=========\n" + cut);
        row("centred, never beyond the printer's columns",
            "<d><method name=\"printFullOrder\"/><company name=\"ab\"/></d>",
            "prefiscaldoc : { paperWidth = 60; printCompany = true; };"
                + printers("model = generic-80; columns = 10;"),
            begin + "    ab\n" + QByteArray(60, '=') + "\n" + cut);
        row("centred by what is printed of it",
            "<d><method name=\"printFullOrder\"/><company name=\"\xE2\x82\xAC\"/></d>",
            "prefiscaldoc : { paperWidth = 9; printCompany = true; };"
                + printers("model = generic-80; codePages = 437=0;"),
            QByteArray("\x1B@\x1C.\x1BR\0\x1Bt\0", 10) + "   EUR\n=========\n" + cut);
        row("control characters, as references and as bytes",
            "<d><method name=\"printFullOrder\"/><company name=\"a&#10;&#27;p0&#127;&#155;\xC2\x85z\"/></d>",
            "prefiscaldoc : { paperWidth = 9; printCompany = true; };" + printers("model = generic-80;"),
            begin + "a??p0???z\n=========\n" + cut);
    }

    void prints()
    {
        QFETCH(const QByteArray, document);
        QFETCH(const QByteArray, sections);
        QFETCH(const QByteArray, expected);
        QFETCH(const QByteArray, messages);
        QByteArray bytes;
        QCOMPARE(capturedOutput([&] { bytes = printed(document, sections); }), messages);
        QCOMPARE(bytes, expected);
    }
};

QTEST_GUILESS_MAIN(MakeDriverTest)
#include "make_driver_test.moc"
