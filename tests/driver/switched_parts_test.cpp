#include "company_printer_driver.h"
#include "document_profile.h"
#include "print_document.h"
#include "print_output.h"
#include "routine_run.h"
#include "temporary_home.h"
#include "tx_configuration.h"

#include <QBuffer>
#include <QTest>

#include <algorithm>
#include <memory>

using namespace Qt::StringLiterals;

namespace {

/* A paper of 40 characters with all switches on. */
DocumentProfile everythingOn()
{
    DocumentProfile profile = profileOfWidth(40);
    for (const auto &setting : profileSwitches)
        profile.*setting.field = true;
    return profile;
}

QByteArray bytesOf(QLatin1StringView text)
{
    return {text.data(), text.size()};
}

/* What the pre-fiscal document prints, up to the drawer, with two empty lines as its top margin. */
QByteArray printed(const DocumentProfile &profile, const QByteArray &elements)
{
    QByteArray text = printedText(profile, &PrinterDriver::printFullOrder, elements);
    return text.replace("\x1Bp0", "");
}

} // namespace

/* Each row of the table against what the driver prints while the switch is on and while it is off. */
class SwitchedPartsTest : public QObject
{
    Q_OBJECT

private:
    TemporaryHome home;

private Q_SLOTS:
    void initTestCase() { home.enter(); }

    void hidesItsPart_data()
    {
        QTest::addColumn<qsizetype>("row");
        for (qsizetype row = 0; const SwitchedPart &part : switchedParts) {
            if (part.element != "geometry"_L1) // prints no text of the document, but what is tested below
                QTest::addRow("%s %s", part.element.data(), part.attribute.data()) << row;
            ++row;
        }
        QCOMPARE(switchedParts.size(), 15U);
    }
    void hidesItsPart()
    {
        QFETCH(const qsizetype, row);
        const SwitchedPart &part = switchedParts[static_cast<std::size_t>(row)];
        const QByteArray attribute = part.attribute.isEmpty() ? "name"_ba : bytesOf(part.attribute);
        const QByteArray element = '<' + bytesOf(part.element) + ' ' + attribute + "='PRINTED'/>";

        DocumentProfile profile = everythingOn();
        QVERIFY(printed(profile, element).contains("PRINTED"));
        profile.*part.wanted = false;
        QVERIFY(!printed(profile, element).contains("PRINTED"));
    }

    // Switched off, the whole block prints nothing of its own, whatever else it has.
    void wholeBlocks_data()
    {
        QTest::addColumn<QByteArray>("element");
        QTest::addColumn<QByteArray>("left");

        // The printer's name, here none, stands centred on 34 characters under every "headers".
        QTest::newRow("headers") << "headers"_ba << QByteArray(17, ' ') + "\n" + QByteArray(40, '=') + "\n";
        QTest::newRow("company") << "company"_ba
                                 << ""_ba;
        QTest::newRow("customer") << "customer"_ba
                                  << ""_ba;
    }
    void wholeBlocks()
    {
        QFETCH(const QByteArray, element);
        QFETCH(const QByteArray, left);
        const auto part = std::ranges::find_if(switchedParts, [&](const SwitchedPart &candidate) {
            return candidate.attribute.isEmpty() && bytesOf(candidate.element) == element;
        });
        DocumentProfile profile = everythingOn();
        profile.*part->wanted = false;
        QCOMPARE(printed(profile, '<' + element + " name='a' billingaddress='b' telephone='c'/>"), left);
    }

    void topMargin_data()
    {
        QTest::addColumn<QByteArray>("onOff");
        QTest::addColumn<QByteArray>("text");
        QTest::newRow("on") << "true"_ba
                            << "\n\n"_ba;
        QTest::newRow("off") << "false"_ba
                             << ""_ba;
    }
    void topMargin()
    {
        QFETCH(const QByteArray, onOff);
        QFETCH(const QByteArray, text);
        const auto part = std::ranges::find(switchedParts, "geometry"_L1, &SwitchedPart::element);
        QVERIFY(part->attribute.isEmpty());
        QCOMPARE(std::ranges::find(profileSwitches, part->wanted, &ProfileSetting<bool>::field)->name,
                 "printGeometry"_L1);

        const TXConfiguration configuration(
            home.writeFile(u"margin.conf"_s,
                           "tavolux : { solddoc : { topMargin = 2; printGeometry = " + onOff + "; }; };"),
            u"cfg"_s);
        QByteArray xml = "<d><method name='printSold'/><geometry/></d>";
        QBuffer document(&xml);
        QBuffer paper;
        paper.open(QIODevice::WriteOnly);
        CompanyPrinterDriver printer(configuration, std::make_unique<PrintOutput>(paper, u"paper"_s));
        QVERIFY(printDocument(document, printer).complete());
        QCOMPARE(paper.data(), text);
    }

    // What no row names hides nothing of a document.
    void everySwitchThatHidesHasARow()
    {
        const QByteArray document =
            "<geometry/><printers name='a'/><headers b='c'/><logo/><company d='e'/>"
            "<receipt serialnumber='f'/><invoice serialnumber='g'/><delivery serialnumber='h'/>"
            "<orderinfo date='i' time='j' table='k' waiter='l' note='m' credit='n'/>"
            "<customer name='o' billingaddress='p' deliveryaddress='q' telephone='r' licensenumber='s' "
            "fiscalcode='t'/><receipe number='1' name='u' price='v' totalPrice='w'/><total price='x'/>";
        for (const ProfileSetting<bool> &setting : profileSwitches) {
            DocumentProfile profile = everythingOn();
            const QByteArray whole = printed(profile, document);
            profile.*setting.field = false;
            const bool hides = printed(profile, document) != whole;
            const bool hasRow = std::ranges::any_of(
                switchedParts, [&](const SwitchedPart &part) { return part.wanted == setting.field; });
            // Without a configuration there is no top margin to hide.
            QCOMPARE(hides || setting.name == "printGeometry"_L1, hasRow);
        }
    }
};

QTEST_GUILESS_MAIN(SwitchedPartsTest)
#include "switched_parts_test.moc"
