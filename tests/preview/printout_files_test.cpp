/*
 * What the files of the preview show is what is printed: their text is read back and compared with printouts,
 * and the pictures are compared with those that somebody has looked at.
 */
#include "document_previewer.h"
#include "printout_files.h"
#include "printout_painter.h"
#include "program_run.h"
#include "temporary_home.h"
#include "text_difference.h"
#include "tx_configuration.h"

#include <QBuffer>
#include <QDir>
#include <QFileInfo>
#include <QImage>
#include <QTest>
#include <QXmlStreamReader>

using namespace Qt::StringLiterals;

namespace {

const QString sources = QStringLiteral(TAVOLUX_SOURCE_DIR);
const QString examples = sources + "/examples"_L1;

constexpr int columns = Printout::maximumColumns; // so that few lines are wrapped

// Of the picture, in dots: the first column, the first line, and where its base line lies.
constexpr double printLeft = 44;
constexpr double firstLine = 52;
constexpr double baseline = 19;
constexpr double dotsPerPoint = 203.0 / 72;

Preview previewOf(const QByteArray &document, const QString &configuration, int paper = 0)
{
    QByteArray bytes = document;
    QBuffer device(&bytes);
    DocumentPreviewer previewer;
    return previewer.preview(device, TXConfiguration(configuration, u"cfg"_s),
                             {.printer = {}, .columns = paper, .language = {}});
}

PrintoutPainter painterOf(const Preview &preview)
{
    return PrintoutPainter(preview.printout, preview.remarks());
}

/* The lines of a printout as they lie on a wide paper, without what a printer does not show. */
QStringList paperLines(const QByteArray &printed)
{
    QString text = QString::fromUtf8(printed);
    if (text.endsWith("\x1Bp0"_L1))
        text.chop(3);
    for (QChar &character : text)
        if (character.category() == QChar::Other_Control && character != u'\n')
            character = QChar::ReplacementCharacter;
    QStringList lines;
    for (QString line : text.split(u'\n')) {
        for (; line.size() > columns; line = line.sliced(columns))
            lines << line.first(columns);
        lines << line;
    }
    return lines;
}

/* Texts found at places of a picture, put together to lines. */
class FoundText
{
public:
    void add(double x, double y, const QString &text)
    {
        const int row = qRound((y - firstLine) / PrintoutPainter::linePitch);
        const int column = qRound((x - printLeft) / PrintoutPainter::characterWidth);
        while (m_lines.size() <= row)
            m_lines << QString();
        m_lines[row] = m_lines[row].leftJustified(column) + text;
    }

    QStringList lines() const { return m_lines; }

private:
    QStringList m_lines;
};

FoundText textOfSvg(const QByteArray &svg)
{
    FoundText found;
    QXmlStreamReader reader(svg);
    while (!reader.atEnd())
        if (reader.readNext() == QXmlStreamReader::StartElement && reader.name() == "text"_L1) {
            const double x = reader.attributes().value("x"_L1).toDouble();
            const double y = reader.attributes().value("y"_L1).toDouble();
            found.add(x, y - baseline, reader.readElementText());
        }
    return found;
}

FoundText textOfPdf(const QByteArray &pdf)
{
    const ProgramResult run = runProgram(u"pdftotext"_s, {u"-bbox"_s, u"-"_s, u"-"_s}, {}, pdf);
    FoundText found;
    QXmlStreamReader reader(run.standardOutput);
    while (!reader.atEnd())
        if (reader.readNext() == QXmlStreamReader::StartElement && reader.name() == "word"_L1) {
            const double x = reader.attributes().value("xMin"_L1).toDouble() * dotsPerPoint;
            const double y = reader.attributes().value("yMin"_L1).toDouble() * dotsPerPoint;
            found.add(x, y, reader.readElementText());
        }
    return found;
}

/* The difference of lines that were found in a file from those that were printed. Blanks at the end leave no
 * trace. A letter that is set by itself takes another number of columns than of characters, so of lines with
 * such ones only the words are compared; and in a PDF one that no font of the machine has, such as some
 * emoji, leaves no text. */
QByteArray differenceOf(QStringList printed, QStringList found)
{
    const auto isEven = [](QChar character) {
        return character.unicode() < 0x250 || character == u'\u20AC' || character == u'\uFFFD';
    };
    for (QStringList *const lines : {&printed, &found}) {
        for (QString &line : *lines)
            while (line.endsWith(u' '))
                line.chop(1);
        while (!lines->isEmpty() && lines->last().isEmpty())
            lines->removeLast();
    }
    for (qsizetype i = 0; i < printed.size() && i < found.size(); ++i)
        if (!std::ranges::all_of(printed[i], isEven))
            for (QString *const line : {&printed[i], &found[i]})
                line->removeIf([](QChar character) { return character == u' ' || character.isSurrogate(); });
    return textDifference(printed.join(u'\n').toUtf8(), found.join(u'\n').toUtf8());
}

/* How much two pictures differ: the share of pixels that are clearly of another colour. */
double difference(const QImage &one, const QImage &other)
{
    if (one.size() != other.size())
        return 1;
    constexpr int clearly = 96; // of the sum of three colours and opacity
    qint64 count = 0;
    for (int y = 0; y < one.height(); ++y)
        for (int x = 0; x < one.width(); ++x) {
            const QColor a = one.pixelColor(x, y);
            const QColor b = other.pixelColor(x, y);
            const int distance = std::abs(a.red() - b.red()) + std::abs(a.green() - b.green())
                + std::abs(a.blue() - b.blue()) + std::abs(a.alpha() - b.alpha());
            count += distance > clearly;
        }
    return static_cast<double>(count) / one.height() / one.width();
}

// Another version of the font or of the toolkit draws edges a little otherwise; one letter more is above it.
constexpr double tolerance = 0.0003;

} // namespace

class PrintoutFilesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void textIsWhatIsPrinted_data();
    void textIsWhatIsPrinted();
    void picturesAreThoseKept_data();
    void picturesAreThoseKept();
    void picturesThatDifferAreToldApart();
    void readmeShowsItsReceipts();
    void textGrowsByRuns();
    void aLongPrintoutHasSeveralPages();
    void aPictureCanBeTooTall();
    void remarksStandBeneathThePaper();
};

void PrintoutFilesTest::textIsWhatIsPrinted_data()
{
    QTest::addColumn<QByteArray>("document");
    QTest::addColumn<QString>("configuration");
    QTest::addColumn<QByteArray>("printed");

    const QDir goldens(sources + "/tests/golden"_L1);
    for (const QString &kind : goldens.entryList(QDir::Dirs | QDir::NoDotAndDotDot))
        for (const QString &name :
             QDir(goldens.filePath(kind)).entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
            const QString folder = goldens.filePath(kind + u'/' + name);
            QTest::addRow("%s/%s", qPrintable(kind), qPrintable(name))
                << fileBytes(folder + "/document.xml"_L1) << folder + "/tavolux.conf"_L1
                << fileBytes(folder + "/printed.txt"_L1);
        }

    const TemporaryHome home;
    home.writeConfiguration(fileBytes(examples + "/tavolux.conf"_L1));
    for (const QString &name : QDir(examples + "/documents"_L1).entryList({u"*.xml"_s})) {
        const QString document = examples + "/documents/"_L1 + name;
        runProgram(QStringLiteral(TAVOLUX_PRINTER), {document, home.filePath(u"printed"_s)},
                   {{u"HOME"_s, home.path()}});
        QTest::addRow("example %s", qPrintable(name))
            << fileBytes(document) << examples + "/tavolux.conf"_L1 << fileBytes(home.filePath(u"printed"_s));
    }
}

void PrintoutFilesTest::textIsWhatIsPrinted()
{
    QFETCH(const QByteArray, document);
    QFETCH(const QString, configuration);
    QFETCH(const QByteArray, printed);

    const Preview preview = previewOf(document, configuration, columns);
    const PrintoutPainter painter(preview.printout);
    const QStringList expected = paperLines(printed);

    const PrintoutFile txt = printoutFile(painter, PrintoutFormat::txt);
    QCOMPARE(differenceOf(expected, QString::fromUtf8(txt.bytes).split(u'\n')), QByteArray());
    const PrintoutFile svg = printoutFile(painter, PrintoutFormat::svg);
    QCOMPARE(differenceOf(expected, textOfSvg(svg.bytes).lines()), QByteArray());
    const PrintoutFile pdf = printoutFile(painter, PrintoutFormat::pdf);
    QCOMPARE(differenceOf(expected, textOfPdf(pdf.bytes).lines()), QByteArray());
    QCOMPARE(txt.error + svg.error + pdf.error, QString());
}

void PrintoutFilesTest::picturesAreThoseKept_data()
{
    QTest::addColumn<QString>("document");
    QTest::addColumn<int>("paper");
    QTest::newRow("full-receipt") << u"full-receipt"_s << 0;
    QTest::newRow("full-invoice") << u"full-invoice"_s << 0;
    QTest::newRow("delivery-order") << u"delivery-order"_s << 0;
    QTest::newRow("report") << u"report"_s << 0;
    QTest::newRow("statement-of-account-narrow") << u"statement-of-account"_s << 32;
}

void PrintoutFilesTest::picturesAreThoseKept()
{
    QFETCH(const QString, document);
    QFETCH(const int, paper);
    const QString name = QString::fromUtf8(QTest::currentDataTag()) + ".png"_L1;
    const Preview preview = previewOf(fileBytes(examples + "/documents/"_L1 + document + ".xml"_L1),
                                      examples + "/tavolux.conf"_L1, paper);
    const PrintoutFile file = printoutFile(painterOf(preview), PrintoutFormat::png);
    QCOMPARE(file.error, QString());

    const QString made = QStringLiteral(TAVOLUX_PICTURES "/") + name;
    QVERIFY(QDir().mkpath(QFileInfo(made).path()));
    QFile output(made);
    QVERIFY(output.open(QIODevice::WriteOnly));
    QCOMPARE(output.write(file.bytes), file.bytes.size());
    output.close();

    const double share = difference(QImage(made), QImage(sources + "/tests/preview/pictures/"_L1 + name));
    QVERIFY2(share < tolerance, qPrintable(u"%1 differs in %2 of its pixels"_s.arg(made).arg(share)));
}

void PrintoutFilesTest::picturesThatDifferAreToldApart()
{
    const auto picture = [](const QByteArray &number) {
        const Preview preview =
            previewOf("<document><method name=\"printFullOrderReceipt\"/><receipt serialnumber=\"" + number
                          + "\"/></document>",
                      u"/dev/null"_s);
        return QImage::fromData(printoutFile(painterOf(preview), PrintoutFormat::png).bytes);
    };
    QCOMPARE(difference(picture("10"), picture("10")), 0.0);
    QVERIFY(difference(picture("10"), picture("17")) > tolerance);
}

void PrintoutFilesTest::readmeShowsItsReceipts()
{
    const TemporaryHome home;
    const ProgramResult run =
        runProgram(sources + "/scripts/receipt-picture"_L1, {QStringLiteral(TAVOLUX_PREVIEW), home.path()});
    QCOMPARE(run.standardError, QByteArray());
    QCOMPARE(run.exitStatus, 0);
    for (const QString &name : {u"receipt.png"_s, u"receipt-printer.png"_s}) {
        QVERIFY(fileBytes(sources + "/README.md"_L1).contains("docs/images/" + name.toUtf8()));
        const double share =
            difference(QImage(home.filePath(name)), QImage(sources + "/docs/images/"_L1 + name));
        QVERIFY2(share < tolerance, qPrintable(u"%1: %2 of the pixels differ"_s.arg(name).arg(share)));
    }
}

// A row of forty characters is one text, not forty.
void PrintoutFilesTest::textGrowsByRuns()
{
    const auto texts = [](int rows) {
        Printout printout;
        printout.setColumns(40);
        printout.lines.assign(static_cast<std::size_t>(rows),
                              {.runs = {{QString(40, u'x'), 0, 40, false, {}}}});
        return printoutFile(PrintoutPainter(printout), PrintoutFormat::svg).bytes.count("<text");
    };
    QCOMPARE(texts(1), 1);
    QCOMPARE(texts(500), 500);
}

void PrintoutFilesTest::aLongPrintoutHasSeveralPages()
{
    Printout printout;
    printout.setColumns(40);
    constexpr int lines = 3000; // of 30 dots; a page has 40,000
    for (int line = 0; line < lines; ++line)
        printout.lines.push_back({.runs = {{u"line %1"_s.arg(line), 0, 40, true, {}}}});
    const PrintoutFile pdf = printoutFile(PrintoutPainter(printout), PrintoutFormat::pdf);

    const ProgramResult info = runProgram(u"pdfinfo"_s, {u"-"_s}, {}, pdf.bytes);
    QVERIFY2(info.standardOutput.contains("Pages:           3\n"), info.standardOutput.constData());
    const ProgramResult text = runProgram(u"pdftotext"_s, {u"-nopgbrk"_s, u"-"_s, u"-"_s}, {}, pdf.bytes);
    QStringList words = QString::fromUtf8(text.standardOutput).split(u'\n', Qt::SkipEmptyParts);
    QCOMPARE(words.size(), lines);
    QCOMPARE(words.first(), u"line 0"_s);
    QCOMPARE(words.last(), u"line 2999"_s);
}

void PrintoutFilesTest::aPictureCanBeTooTall()
{
    Printout printout;
    printout.setColumns(40);
    printout.lines.resize(2000);
    const PrintoutFile png = printoutFile(PrintoutPainter(printout), PrintoutFormat::png);
    QCOMPARE(png.bytes, QByteArray());
    // The margins are 40, 64 and three times 12.
    QCOMPARE(png.error,
             u"the picture would be 60140 dots high, more than 32767; "
             "a PDF, an SVG or a text can hold this printout"_s);
}

void PrintoutFilesTest::remarksStandBeneathThePaper()
{
    const Preview preview =
        previewOf("<document>\n<method name=\"printNothing\"/></document>", u"/dev/null"_s);
    QCOMPARE(preview.remarks(),
             QStringList{u"Incomplete: line 2, column 28: unknown method \"printNothing\""_s});
    const PrintoutPainter painter = painterOf(preview);
    QVERIFY(printoutFile(painter, PrintoutFormat::svg).bytes.contains(">Incomplete: line 2"));
    QCOMPARE(printoutFile(painter, PrintoutFormat::txt).bytes,
             "Incomplete: line 2, column 28: unknown method \"printNothing\"\n");
}

QTEST_MAIN(PrintoutFilesTest)
#include "printout_files_test.moc"
