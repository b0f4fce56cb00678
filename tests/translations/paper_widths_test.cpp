#include "languages.h"
#include "make_driver.h"
#include "print_document.h"
#include "print_output.h"
#include "printer_driver.h"
#include "starter_configuration.h"
#include "tx_configuration.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QTest>
#include <QTranslator>

using namespace Qt::StringLiterals;

namespace {

const QString sourceFolder = QStringLiteral(TAVOLUX_SOURCE_DIR);
const QString documents = sourceFolder + "/examples/documents/"_L1;
const QString english = u"en"_s;

/* The lines that the document prints with the starter configuration for such a paper, in the language of the
 * installed translator. */
QStringList printedLines(QIODevice &document, int paper)
{
    const TemporaryHome home;
    const TXConfiguration configuration(home.writeFile(u"tavolux.conf"_s, starterConfiguration(paper)),
                                        u"cfg"_s);
    QBuffer printed;
    printed.open(QIODevice::WriteOnly);
    const auto driver = makeDriver(configuration, std::make_unique<PrintOutput>(printed, u"printed"_s));
    if (!printDocument(document, *driver).complete())
        qFatal("the document is not well-formed");
    return QString::fromUtf8(printed.data()).remove("\x1Bp0"_L1).split(u'\n');
}

QStringList printedLines(const QString &example, int paper)
{
    QFile document(documents + example + ".xml"_L1);
    return printedLines(document, paper);
}

/* The catalogue of a language, in force as long as the object lives; the texts themselves for English. */
class Language
{
public:
    explicit Language(const QString &name)
    {
        if (name == english)
            return;
        if (!m_translator.load(QStringLiteral(TAVOLUX_BINARY_DIR "/translations/tavolux_") + name + ".qm"_L1))
            qFatal("there is no translation for %s", qPrintable(name));
        QCoreApplication::installTranslator(&m_translator);
    }

private:
    QTranslator m_translator; // takes itself away
};

QStringList labels(std::initializer_list<const char *> keys)
{
    QStringList texts;
    for (const char *key : keys)
        texts.append(QObject::tr(key));
    return texts;
}

/* A line that has these texts whole, in this order, with blanks between them. */
qsizetype lineOf(QStringList titles, const QStringList &lines)
{
    for (QString &title : titles)
        title = QRegularExpression::escape(title);
    return lines.indexOf(QRegularExpression(u"^ *"_s + titles.join(" +"_L1) + " *$"_L1));
}

} // namespace

/*
 * What the examples look like in every language on every paper that a starter configuration can be made for:
 * nothing is wider than the paper, and no label runs into its neighbour or is cut, but for what is told here.
 */
class PaperWidthsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void noLineIsWiderThanThePaper_data();
    void noLineIsWiderThanThePaper();
    void columnTitles_data() { eachLanguageAndPaper(); }
    void columnTitles();
    void tableOfTaxRates_data() { eachLanguageAndPaper(); }
    void tableOfTaxRates();
    void statementOfAccount_data() { eachLanguageAndPaper(); }
    void statementOfAccount();
    void labelsOfFigures_data() { eachLanguageAndPaper(); }
    void labelsOfFigures();
    void soldItemsHaveNoPriceColumn();
    void firstReceiptHasNoEmptyLines_data() { eachLanguageAndPaper(); }
    void firstReceiptHasNoEmptyLines();

private:
    static QStringList languages() { return QStringList(english) + translatedLanguages(); }
    static void eachLanguageAndPaper();
};

void PaperWidthsTest::eachLanguageAndPaper()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<int>("paper");
    for (const QString &language : languages())
        for (const int paper : starterPaperWidths())
            QTest::addRow("%s, %d columns", qPrintable(language), paper) << language << paper;
}

void PaperWidthsTest::noLineIsWiderThanThePaper_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<int>("paper");
    QTest::addColumn<QString>("example");
    const auto examples = QDir(documents).entryInfoList({u"*.xml"_s}, QDir::Files);
    QCOMPARE(examples.size(), 13);
    for (const QString &language : languages())
        for (const int paper : starterPaperWidths())
            for (const QFileInfo &example : examples)
                QTest::addRow("%s, %d columns, %s", qPrintable(language), paper,
                              qPrintable(example.baseName()))
                    << language << paper << example.baseName();
}

void PaperWidthsTest::noLineIsWiderThanThePaper()
{
    QFETCH(const QString, language);
    QFETCH(const int, paper);
    QFETCH(const QString, example);
    const Language inForce(language);

    QStringList tooWide = printedLines(example, paper);
    tooWide.removeIf([paper](const QString &line) { return line.size() <= paper; });

    // The report's table of tax rates has its width from no setting: 40 characters, and a blank behind
    // figures.
    QStringList explained;
    if (example == "report"_L1 && paper < 41)
        explained = {u"     4%     480.00      19.20     499.20 "_s,
                     u"    10%    5400.00     540.00    5940.00 "_s,
                     u"    22%     738.36     162.44     900.80 "_s};
    if (example == "report"_L1 && paper < 40)
        explained.prepend(QObject::tr("TAXRATE") + u' ' + QObject::tr("TAXABLE").rightJustified(10) + u' '
                          + QObject::tr("TAX").rightJustified(10) + u' '
                          + QObject::tr("AMOUNT").rightJustified(10));
    QCOMPARE(tooWide, explained);
}

void PaperWidthsTest::columnTitles()
{
    QFETCH(const QString, language);
    QFETCH(const int, paper);
    const Language inForce(language);

    for (const QString &example : {u"full-order"_s, u"full-receipt"_s, u"full-invoice"_s,
                                   u"abstract-receipt"_s, u"abstract-invoice"_s}) {
        const QStringList lines = printedLines(example, paper);
        const QStringList titles = example.startsWith("full"_L1)
            ? labels({"Num", "Description", "Price", "Amount"})
            : labels({"Num", "Description", "Price"});
        const qsizetype at = lineOf(titles, lines);
        QVERIFY2(at >= 0, qPrintable(lines.join(u'\n')));
        // Right above the figures: a title that is too long for its column would push all behind it.
        QCOMPARE(lines[at].size(), lines[at + 1].size());
    }
}

void PaperWidthsTest::tableOfTaxRates()
{
    QFETCH(const QString, language);
    QFETCH(const int, paper);
    const Language inForce(language);

    const QStringList lines = printedLines(u"report"_s, paper);
    const qsizetype rates = lineOf(labels({"TAXRATE", "TAXABLE", "TAX", "AMOUNT"}), lines);
    QVERIFY2(rates >= 0, qPrintable(lines.join(u'\n')));
    // A row has its percent sign where its title ends, with the seventh letter.
    QCOMPARE(QObject::tr("TAXRATE").size(), 7);
    QCOMPARE(lines[rates].size(), lines[rates + 1].trimmed().size() + 5);
    QVERIFY(lines[rates + 1].startsWith("     4% "_L1));

    const qsizetype cancelled = lineOf(labels({"SERIAL", "TOTAL", "TAXRATE"}), lines);
    QVERIFY2(cancelled >= 0, qPrintable(lines.join(u'\n')));
    QCOMPARE(lines[cancelled].indexOf(QObject::tr("TOTAL")), lines[cancelled + 1].indexOf("13.00"_L1));
}

void PaperWidthsTest::statementOfAccount()
{
    QFETCH(const QString, language);
    QFETCH(const int, paper);
    const Language inForce(language);

    const QStringList lines = printedLines(u"statement-of-account"_s, paper);
    QStringList titles = labels({"Date", "Description", "Amount"});
    // Dates take 15 of 32 columns, amounts seven. English has no shorter word.
    const bool narrow = paper < 40;
    if (narrow && language == english)
        titles[1] = u"Descrip"_s;
    const qsizetype at = lineOf(titles, lines);
    QVERIFY2(at >= 0, qPrintable(lines.join(u'\n')));

    const QStringList kinds = labels({"deposit", "payment", "invoice", "credit", "refund", "withdrawal"});
    for (qsizetype i = 0; i < kinds.size(); ++i) {
        const QString row = lines[at + 1 + i];
        const QString kind =
            narrow ? kinds[i].first(std::min<qsizetype>(kinds[i].size(), 7)) : kinds[i] + u'.';
        QVERIFY2(row.sliced(15).startsWith(kind), qPrintable(row));
        QCOMPARE(row.size(), lines[at].size());
    }
}

void PaperWidthsTest::labelsOfFigures()
{
    QFETCH(const QString, language);
    QFETCH(const int, paper);
    const Language inForce(language);

    const QMap<QString, QStringList> dotted = {
        {u"full-order"_s, labels({"TOTAL"})},
        {u"full-receipt"_s, labels({"TOTAL"})},
        {u"full-invoice"_s, labels({"Taxable", "TaxRate", "Tax", "TOTAL"})},
        {u"report"_s,
         labels({"Number", "TOTAL", "Number", "Serials", "TOTAL", "Number", "Serials", "Taxable", "Tax",
                 "TOTAL", "Number", "TOTAL"})},
    };
    for (auto example = dotted.begin(); example != dotted.end(); ++example) {
        // Dots lead from a label that is whole to its figure; items have a number before them.
        static const QRegularExpression labelled(u"^ *([^ \\d.][^\\d]*?)\\.\\.+ *\\d"_s);
        QStringList found;
        for (const QString &line : printedLines(example.key(), paper))
            if (const auto match = labelled.match(line); match.hasMatch())
                found.append(match.captured(1));
        QStringList wanted = example.value();
        for (QString &label : wanted)
            if (label.endsWith(u'.'))
                label.chop(1); // its own dot leads on
        QCOMPARE(found, wanted);
    }
}

void PaperWidthsTest::soldItemsHaveNoPriceColumn()
{
    const QStringList lines = printedLines(u"sold-items"_s, 32);
    QVERIFY2(lines.contains("   31 x Pizza Margherita  201.50"_L1), qPrintable(lines.join(u'\n')));
}

// The document that the README begins with has no time and no waiter.
void PaperWidthsTest::firstReceiptHasNoEmptyLines()
{
    QFETCH(const QString, language);
    QFETCH(const int, paper);
    const Language inForce(language);

    const QByteArray readme = fileBytes(sourceFolder + "/README.md"_L1);
    const qsizetype begin = readme.indexOf('\n', readme.indexOf("```xml")) + 1;
    QByteArray xml = readme.sliced(begin, readme.indexOf("```", begin) - begin);
    QVERIFY(xml.contains("<orderinfo"));
    QBuffer document(&xml);
    const QStringList lines = printedLines(document, paper);
    QVERIFY2(lines.contains(u' ' + QObject::tr("Date:") + " 14/05/2024"_L1), qPrintable(lines.join(u'\n')));
    for (const QString &line : lines) {
        QVERIFY2(!line.trimmed().endsWith(u':'), qPrintable(line));
        QVERIFY2(line.size() <= paper, qPrintable(line));
    }
}

QTEST_GUILESS_MAIN(PaperWidthsTest)
#include "paper_widths_test.moc"
