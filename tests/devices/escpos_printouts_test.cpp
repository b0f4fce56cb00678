/*
 * What holds for every printout on every receipt printer.
 */
#include "captured_output.h"
#include "escpos_decoder.h"
#include "escpos_paper.h"
#include "paper_driver.h"
#include "print_document.h"
#include "print_output.h"
#include "reference_pages.h"
#include "row_encoder.h"
#include "temporary_home.h"
#include "text_paper.h"
#include "tx_configuration.h"

#include <QBuffer>
#include <QDir>
#include <QRegularExpression>
#include <QTest>
#include <QXmlStreamReader>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

const QString goldens = QStringLiteral(TAVOLUX_SOURCE_DIR "/tests/golden");
const QString catalogues = QStringLiteral(TAVOLUX_SOURCE_DIR "/translations/");

QStringList folders(const QString &folder)
{
    return QDir(folder).entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name);
}

/* Plain text on which control characters are question marks, as on a receipt printer. */
class HarmlessTextPaper : public TextPaper
{
public:
    using TextPaper::TextPaper;
    bool takesControlCharacters() const override { return false; }
};

struct Printout
{
    QByteArray bytes;
    bool complete = false;
};

Printout print(const QString &golden, std::unique_ptr<Paper> paper)
{
    Printout printout;
    QBuffer printer(&printout.bytes);
    printer.open(QIODevice::WriteOnly);
    const TXConfiguration configuration(golden + "/tavolux.conf"_L1, u"cfg"_s);
    PaperDriver driver(configuration, std::make_unique<PrintOutput>(printer, u"printer"_s), std::move(paper));
    QFile document(golden + "/document.xml"_L1);
    const CapturedOutput messages;
    printout.complete = printDocument(document, driver).complete();
    return printout;
}

DecodedPrinter decodedPrinter(const PrinterModel &model)
{
    DecodedPrinter printer;
    for (const auto &[page, number] : model.codePages)
        printer.pages.insert(number, codePageName(page));
    printer.firstPage = model.codePages.front().number;
    printer.columns = model.columns;
    return printer;
}

/* Whether the reference tables have all of the text, each character by itself. */
bool canPrint(const PrinterModel &model, const QString &text)
{
    return std::ranges::all_of(text, [&](QChar character) {
        return character < QChar(0x7F)
            || std::ranges::any_of(model.codePages, [&](const NumberedPage &numbered) {
                   const QByteArray name =
                       QByteArray(codePageName(numbered.page).data(), codePageName(numbered.page).size());
                   const auto *page = std::ranges::find(referencePages, std::string_view(name.constData()),
                                                        &ReferencePage::name);
                   return std::ranges::find(page->characters, character.unicode()) != page->characters.end();
               });
    });
}

/* The text with one blank for each run of dots or blanks, and a star for each character that is replaced. */
QString outline(const PrinterModel &model, const QString &text)
{
    QString shown;
    for (const QChar character : text.normalized(QString::NormalizationForm_C))
        shown += canPrint(model, character) ? character : QChar(u'*');
    static const QRegularExpression fill(u"[ .]+"_s);
    return shown.replace(fill, u" "_s).trimmed();
}

/* What comes after the last character that is replaced. */
QString afterReplaced(const PrinterModel &model, const QString &text)
{
    qsizetype begin = text.size();
    while (begin > 0 && canPrint(model, text[begin - 1]))
        --begin;
    return text.sliced(begin);
}

QStringList labels(const QString &language)
{
    QXmlStreamReader catalogue(fileBytes(catalogues + "tavolux_"_L1 + language + ".ts"_L1));
    QStringList all;
    while (!catalogue.atEnd())
        if (catalogue.readNext() == QXmlStreamReader::StartElement && catalogue.name() == "translation"_L1)
            all.append(catalogue.readElementText());
    return all;
}

} // namespace

class EscposPrintoutsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyRowIsThatOfPlainText_data();
    void everyRowIsThatOfPlainText();
    void everyLabelIsPrinted_data();
    void everyLabelIsPrinted();
};

void EscposPrintoutsTest::everyRowIsThatOfPlainText_data()
{
    QTest::addColumn<QString>("golden");
    QTest::addColumn<QString>("model");
    for (const QString &document : folders(goldens))
        for (const QString &name : folders(goldens + u'/' + document))
            for (const QString &model :
                 {u"epson-tm-t20iii"_s, u"citizen-ct-s310ii"_s, u"epson-tm-u220b"_s, u"generic-58"_s})
                QTest::addRow("%s/%s on %s", qPrintable(document), qPrintable(name), qPrintable(model))
                    << goldens + u'/' + document + u'/' + name << model;
}

void EscposPrintoutsTest::everyRowIsThatOfPlainText()
{
    QFETCH(const QString, golden);
    QFETCH(const QString, model);
    const PrinterModel &printer = *findPrinterModel(model);

    const Printout plain = print(golden, std::make_unique<HarmlessTextPaper>(printer.columns));
    QStringList rows = QString::fromUtf8(plain.bytes).split(u'\n');
    if (rows.last().isEmpty())
        rows.removeLast();

    const Printout printed = print(golden, std::make_unique<EscposPaper>(PrinterSettings(printer)));
    QCOMPARE(printed.complete, plain.complete);
    const DecodedPrintout decoded = decodeEscpos(printed.bytes, decodedPrinter(printer));
    QCOMPARE(decoded.fault, QString());
    QStringList lines = decoded.lines();
    if (!printed.complete) {
        QVERIFY(!lines.isEmpty());
        QCOMPARE(lines.takeLast(), u"*** INCOMPLETE ***"_s);
    }

    QCOMPARE(lines.size(), rows.size());
    for (qsizetype i = 0; i < rows.size(); ++i) {
        if (canPrint(printer, rows[i])) {
            QCOMPARE(lines[i], rows[i]);
            continue;
        }
        // What was replaced may take any number of columns, and the runs after it make up for that.
        QStringList pieces = outline(printer, rows[i]).split(u'*');
        for (QString &piece : pieces)
            piece = QRegularExpression::escape(piece);
        const QString pattern = pieces.join(u".{0,4}"_s);
        static const QRegularExpression fill(u"[ .]+"_s);
        const QString line = QString(lines[i]).replace(fill, u" "_s).trimmed();
        QVERIFY2(QRegularExpression(QRegularExpression::anchoredPattern(pattern)).match(line).hasMatch(),
                 qPrintable(rows[i] + u" | "_s + lines[i]));
        // With a run long enough for that, the row ends where it did.
        static const QRegularExpression longFill(u" {5}|\\.{5}"_s);
        if (afterReplaced(printer, rows[i]).contains(longFill))
            QCOMPARE(lines[i].size(), rows[i].size());
    }

    // What is printed is cut, once.
    const bool isCut = !decoded.printed.isEmpty() && printer.cutter != Cutter::none;
    QCOMPARE(decoded.cuts, isCut ? 1 : 0);
    QVERIFY(decoded.pulses <= (printed.complete ? 1 : 0));
}

void EscposPrintoutsTest::everyLabelIsPrinted_data()
{
    QTest::addColumn<QString>("language");
    for (const QString &language :
         QString::fromLatin1(fileBytes(catalogues + "languages"_L1)).split(u'\n', Qt::SkipEmptyParts))
        QTest::newRow(qPrintable(language)) << language;
}

// No label has a question mark of its own, and none gets one, on any model.
void EscposPrintoutsTest::everyLabelIsPrinted()
{
    QFETCH(const QString, language);
    const QStringList all = labels(language);
    QVERIFY(all.size() > 40);
    for (const PrinterModel &model : printerModels) {
        if (model.isPlainText())
            continue;
        RowEncoder encoder(PrinterSettings(model).pages());
        for (const QString &label : all) {
            StyledLine line;
            line.append(label, {});
            QString shown;
            for (const Cell &cell : encoder.encode(line))
                shown += QChar(cell.shown);
            QVERIFY2(!shown.contains(u'?'), qPrintable(QString(model.name) + u": "_s + label));
        }
    }
}

QTEST_GUILESS_MAIN(EscposPrintoutsTest)
#include "escpos_printouts_test.moc"
