#include "escpos_decoder.h"
#include "printer_settings.h"
#include "program_run.h"
#include "temporary_home.h"
#include "text_difference.h"
#include "tx_configuration.h"

#include <QDir>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

const QString goldens = QStringLiteral(TAVOLUX_SOURCE_DIR "/tests/golden-escpos");

QStringList folders(const QString &folder)
{
    return QDir(folder).entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name);
}

/* The printer that the bytes are read for: numbers of code pages as the model has them. */
DecodedPrinter decodedPrinter(const PrinterSettings &settings)
{
    DecodedPrinter printer;
    for (const auto &[page, number] : settings.codePages)
        printer.pages.insert(number, codePageName(page));
    printer.firstPage = settings.codePages.front().number;
    printer.columns = settings.columns;
    return printer;
}

} // namespace

/*
 * What receipt printers get, byte for byte, and what they make of it: each folder below a document's folder
 * is a case, made of a document, a configuration, the bytes and a dump of them that can be read.
 */
class EscposGoldenTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyDocumentHasCases()
    {
        // One for each method of a document.
        QCOMPARE(folders(goldens).size(), 13);
        for (const QString &document : folders(goldens))
            QVERIFY2(folders(goldens + u'/' + document).size() >= 3, qPrintable(document));
    }

    void printout_data()
    {
        QTest::addColumn<QString>("path");
        for (const QString &document : folders(goldens))
            for (const QString &name : folders(goldens + u'/' + document))
                QTest::addRow("%s/%s", qPrintable(document), qPrintable(name)) << document + u'/' + name;
    }

    void printout()
    {
        QFETCH(const QString, path);
        const QString folder = goldens + u'/' + path + u'/';
        QCOMPARE(QDir(folder).entryList(QDir::Files, QDir::Name),
                 QStringList({u"document.xml"_s, u"printed.bin"_s, u"printed.dump"_s, u"tavolux.conf"_s}));

        const TemporaryHome home;
        const QByteArray configuration = fileBytes(folder + "tavolux.conf"_L1)
                                             .replace("@TRANSLATIONS@", TAVOLUX_BINARY_DIR "/translations");
        home.writeConfiguration(configuration);
        const QString output = home.filePath(u"printed.bin"_s);
        const ProgramResult run =
            runProgram(QStringLiteral(TAVOLUX_PRINTER), {folder + "document.xml"_L1, output},
                       {{u"HOME"_s, home.path()}, {u"LC_ALL"_s, u"C.UTF-8"_s}, {u"LANGUAGE"_s, {}}});
        QVERIFY(!run.crashed);
        QCOMPARE(run.standardOutput, QByteArray());
        QCOMPARE(run.standardError, QByteArray());

        const TXConfiguration settings(home.writeFile(u"same.conf"_s, configuration), u"cfg"_s);
        const std::optional<PrinterSettings> printer = printerForOutput(settings, output);
        QVERIFY(printer);
        const QByteArray printed = fileBytes(output);
        const DecodedPrintout decoded = decodeEscpos(printed, decodedPrinter(*printer));
        QCOMPARE(decoded.fault, QString());
        // These have rows of a fixed width, or labels behind which an amount stands, that 58 mm are too
        // narrow for.
        static const QStringList tooWide = {u"abstract-receipt/zj-5870-es"_s, u"report/zj-5870-de"_s};
        QCOMPARE(decoded.widestLine > printer->columns, tooWide.contains(path));

        const QByteArray dump = decoded.dump.isEmpty() ? QByteArray() : decoded.dumpText();
        const QByteArray expected = fileBytes(folder + "printed.dump"_L1);
        if (dump != expected)
            QFAIL(
                qPrintable(u"the printout differs:\n"_s + QString::fromUtf8(textDifference(expected, dump))));
        QCOMPARE(printed.toHex(' '), fileBytes(folder + "printed.bin"_L1).toHex(' '));
    }
};

QTEST_GUILESS_MAIN(EscposGoldenTest)
#include "escpos_golden_test.moc"
