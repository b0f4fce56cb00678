#include "bounded_document.h"
#include "captured_output.h"
#include "company_printer_driver.h"
#include "print_document.h"
#include "print_output.h"
#include "recording_driver.h"
#include "temporary_home.h"
#include "tx_configuration.h"

#include <QBuffer>
#include <QFile>
#include <QTest>

#include <pthread.h>

#include <functional>

using namespace Qt::StringLiterals;

namespace {

const QByteArray begin = "<d><method name='printPartialOrder'/>";
const QByteArray pasta = "<receipe number='1' name='Pasta'/>";
const QByteArray vino = "<receipe number='2' name='Vino'/>";

/* Says how it was finished. */
class FinishedDriver : public RecordingDriver
{
public:
    void finish(Ending ending) override
    {
        note(ending == Ending::complete ? u"complete"_s : u"incomplete"_s);
        RecordingDriver::finish(ending);
    }
};

Reading readWith(PrinterDriver &driver, QByteArray document)
{
    QBuffer source(&document);
    return printDocument(source, driver);
}

Reading readSilently(const QByteArray &document)
{
    const CapturedOutput diagnostics;
    RecordingDriver driver;
    return readWith(driver, document);
}

QByteArray entities(int count, const QByteArray &value)
{
    QByteArray declarations;
    for (int number = 0; number < count; ++number)
        declarations += "<!ENTITY e" + QByteArray::number(number) + " \"" + value + "\">";
    return declarations;
}

QByteArray withDeclarations(const QByteArray &declarations, const QByteArray &document)
{
    return "<!DOCTYPE d [" + declarations + "]>" + document;
}

/* Runs the function on a thread with a stack of so many bytes. */
void runOnThread(std::size_t stackSize, std::function<void()> function)
{
    pthread_attr_t attributes;
    pthread_attr_init(&attributes);
    QCOMPARE(pthread_attr_setstacksize(&attributes, stackSize), 0);
    pthread_t thread = {};
    const auto run = [](void *argument) -> void * {
        (*static_cast<std::function<void()> *>(argument))();
        return nullptr;
    };
    QCOMPARE(pthread_create(&thread, &attributes, run, &function), 0);
    pthread_join(thread, nullptr);
    pthread_attr_destroy(&attributes);
}

} // namespace

Q_DECLARE_METATYPE(Reading::End)

class PrintDocumentTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        m_home.writeConfiguration("");
        m_home.enter();
    }

    void howReadingEnds_data()
    {
        QTest::addColumn<QByteArray>("document");
        QTest::addColumn<Reading::End>("end");
        QTest::addColumn<int>("line");
        QTest::addColumn<int>("column");
        QTest::addColumn<QString>("reason");

        using End = Reading::End;
        QTest::newRow("at its end") << begin + pasta + "</d>" << End::document << 0 << 0 << QString();
        QTest::newRow("without a method") << "<d/>"_ba << End::document << 0 << 0 << QString();
        QTest::newRow("empty") << ""_ba << End::fault << 1 << 1 << u"unexpected end of file"_s;
        QTest::newRow("cut off") << begin + "\n" + pasta << End::fault << 2 << 35
                                 << u"unexpected end of file"_s;
        QTest::newRow("wrong end tag") << begin + "\n\n</e>" << End::fault << 3 << 4 << u"tag mismatch"_s;
        QTest::newRow("text after the end")
            << begin + "</d>more" << End::fault << 1 << 42 << u"unexpected character"_s;
        QTest::newRow("unknown method") << "<d>\n<method name='printMenu'/>\n</d>"_ba << End::unknownMethod
                                        << 2 << 25 << u"unknown method \"printMenu\""_s;
        QTest::newRow("method without a name")
            << "<d><method/></d>"_ba << End::unknownMethod << 1 << 11 << u"unknown method \"\""_s;
        QTest::newRow("nested too deep")
            << begin + QByteArray("<a>").repeated(100'000) << End::fault << 1 << -1 << u"nested too deep"_s;
        QTest::newRow("parentheses nested too deep")
            << withDeclarations("<!ELEMENT a " + QByteArray(1'000'000, '('), begin + "</d>") << End::fault
            << 1 << -1 << u"nested too deep"_s;
        QTest::newRow("entities that expand to too much")
            << withDeclarations(entities(1, QByteArray(1'000'000, 'x')),
                                begin + QByteArray("&e0;").repeated(51) + "</d>")
            << End::fault << 1 << -1 << u"its entities expand to too much"_s;
        QTest::newRow("too many entities") << withDeclarations(entities(10'000, "x"), begin + "</d>")
                                           << End::fault << 1 << -1 << u"too many entities are declared"_s;
    }

    void howReadingEnds()
    {
        QFETCH(const QByteArray, document);
        QFETCH(const Reading::End, end);
        QFETCH(const int, column);

        const Reading reading = readSilently(document);
        QCOMPARE(reading.end, end);
        QTEST(reading.line, "line");
        if (column >= 0) // where bounds end the reading depends on the machine
            QCOMPARE(reading.column, column);
        QTEST(reading.reason, "reason");
        QCOMPARE(reading.complete(), end == Reading::End::document);
    }

    void unreadableDocument()
    {
        FinishedDriver driver;
        QFile missing(m_home.filePath(u"missing.xml"_s));
        const Reading reading = printDocument(missing, driver);
        QCOMPARE(reading.end, Reading::End::unreadable);
        QCOMPARE(reading.reason, u"No such file or directory"_s);
        QCOMPARE(driver.calls, QStringList()); // neither begun nor finished
    }

    void openDocumentIsReadFromWhereItStands()
    {
        QByteArray document = "ignored" + begin + "</d>";
        QBuffer source(&document);
        source.open(QIODevice::ReadOnly);
        source.seek(7);
        RecordingDriver driver;
        QVERIFY(printDocument(source, driver).complete());
    }

    void driverIsFinishedOnce_data()
    {
        QTest::addColumn<QByteArray>("document");
        QTest::addColumn<QStringList>("expected");
        QTest::newRow("complete") << begin
                + "</d>" << QStringList{u"reset"_s, u"startSection"_s, u"endSection"_s, u"complete"_s};
        QTest::newRow("fault") << begin + "</e>"
                               << QStringList{u"reset"_s, u"startSection"_s, u"incomplete"_s};
        QTest::newRow("fault after the document")
            << begin + "</d>more" << QStringList{u"reset"_s, u"startSection"_s, u"incomplete"_s};
        QTest::newRow("unknown method") << "<d><method/></d>"_ba << QStringList{u"reset"_s, u"incomplete"_s};
    }

    void driverIsFinishedOnce()
    {
        QFETCH(const QByteArray, document);
        const CapturedOutput diagnostics;
        FinishedDriver driver;
        readWith(driver, document);
        QTEST(driver.calls, "expected");
    }

    void namespaceDeclarationsAreNoAttributes()
    {
        RecordingDriver driver;
        QVERIFY(readWith(driver, begin + "</d>").complete());
        driver.profile.printHeader = true;
        driver.calls.clear();
        readWith(driver,
                 "<d><headers xmlns='1' a='2' xmlns:b='3' b:c='4' xmlnsd='5' :xmlns='6' Xmlns='7'/></d>");
        QCOMPARE(driver.calls,
                 calls({"reset", "println|2|", "println|4|", "println|5|", "println|6|", "println|7|",
                        "printSeparatorLine", "setCenterJustify", "println||", "printSeparatorLine",
                        "endSection"}));
    }

    void threadsMayBeOfAnySize_data()
    {
        QTest::addColumn<std::size_t>("stackSize");
        for (const std::size_t kilobytes : {512UL, 1024UL, 16'384UL})
            QTest::addRow("%zu KB", kilobytes) << kilobytes * 1024;
    }

    // Where the reader's stack is has nothing to do with where the driver was made.
    void threadsMayBeOfAnySize()
    {
        QFETCH(const std::size_t, stackSize);
        RecordingDriver driver;
        Reading flat;
        Reading deep;
        runOnThread(stackSize, [&] {
            flat = readWith(driver,
                            begin + QByteArray("<a>").repeated(100) + pasta + QByteArray("</a>").repeated(100)
                                + "</d>");
            deep = readWith(driver, begin + QByteArray("<a>").repeated(1'000'000));
        });
        QVERIFY(flat.complete());
        QCOMPARE(deep.reason, u"nested too deep"_s);
    }

    // An entity of 1,000 characters, one of none, and one of four references to the first, which counts
    // 4,012: what it holds and what that expands to. The four count where they stand as well.
    void entitiesWithinTheirBound_data()
    {
        QTest::addColumn<QByteArray>("declarations");
        QTest::addColumn<QByteArray>("references");
        QTest::addColumn<bool>("complete");
        const QByteArray thousand = "<!ENTITY e '" + QByteArray(1000, 'x') + "'>";
        const QByteArray none = "<!ENTITY n ''>";
        const QByteArray four = "<!ENTITY f '&e;&e;&e;&e;'>";
        const QByteArray half = "<!ENTITY h '&#38;e'>";
        const auto times = [](int count, const QByteArray &reference) { return reference.repeated(count); };

        QTest::newRow("as much as there may be") << thousand << times(50'000, "&e;") << true;
        QTest::newRow("one more") << thousand << times(50'001, "&e;") << false;
        QTest::newRow("nothing more") << thousand + none << times(50'000, "&e;") + times(1000, "&n;") << true;
        QTest::newRow("of others, as much as there may be")
            << thousand + four << times(12'461, "&f;") << true;
        QTest::newRow("of others, one more") << thousand + four << times(12'462, "&f;") << false;
        // The reference in g asks for the length of f when it still is 12, and so counts that; later ones
        // count 4,012.
        const QByteArray late = four + "<!ENTITY g '&f;'>" + thousand;
        QTest::newRow("of others that are declared later") << late << times(12'462, "&f;") << true;
        QTest::newRow("of others that are declared later, one more") << late << times(12'463, "&f;") << false;
        QTest::newRow("what was not declared") << thousand << times(100'000, "&amp;&#38;&#x26;") << true;
        QTest::newRow("no references") << thousand << times(100'000, "10% e; %e;") << true;
        QTest::newRow("half a reference, made whole by what follows")
            << thousand + half << "&h;;"_ba << false;
    }

    void entitiesWithinTheirBound()
    {
        QFETCH(const QByteArray, declarations);
        QFETCH(const QByteArray, references);
        QTEST(readSilently(withDeclarations(declarations, begin + references + "</d>")).complete(),
              "complete");
    }

private:
    TemporaryHome m_home;
};

QTEST_GUILESS_MAIN(PrintDocumentTest)
#include "print_document_test.moc"
