#include "document_check.h"

#include "document_schema.h"
#include "program_run.h"
#include "temporary_home.h"
#include "tx_configuration.h"

#include <QBuffer>
#include <QDir>
#include <QDirIterator>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QTest>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

const QString sourceFolder = QStringLiteral(TAVOLUX_SOURCE_DIR);

QStringList lines(const std::vector<Finding> &findings)
{
    QStringList texts;
    for (const auto &[line, text, key] : findings)
        texts.append(QString::number(line) + ": "_L1 + text);
    return texts;
}

DocumentFindings check(QByteArray document, const TXConfiguration *configuration = nullptr)
{
    QBuffer buffer(&document);
    buffer.open(QIODevice::ReadOnly);
    return checkDocument(buffer, configuration);
}

QStringList wrong(const QByteArray &document)
{
    return lines(check(document).wrong);
}

/* A document of the method, of one line but for the elements. */
QByteArray documentOf(const QByteArray &method, const QByteArray &elements)
{
    return "<d><method name=\"" + method + "\"/>" + elements + "</d>";
}

QStringList examples()
{
    QStringList paths;
    for (const QFileInfo &example :
         QDir(sourceFolder + "/examples/documents"_L1).entryInfoList({u"*.xml"_s}, QDir::Files))
        paths.append(example.filePath());
    return paths;
}

/* A name in a document: where it stands, and the element it belongs to. */
struct NameInDocument
{
    qsizetype position;
    QString name;
    QString element; // empty for an element's own name
};

QList<NameInDocument> namesIn(const QString &text)
{
    static const QRegularExpression tags(u"<(\\w+)((?:\\s+\\w+=\"[^\"]*\")*)\\s*/?>"_s);
    static const QRegularExpression attributes(u"(\\w+)=\"[^\"]*\""_s);
    QList<NameInDocument> names;
    for (const auto &tag : tags.globalMatch(text)) {
        names.append({tag.capturedStart(1), tag.captured(1), QString()});
        for (const auto &attribute : attributes.globalMatch(tag.captured(2)))
            names.append(
                {tag.capturedStart(2) + attribute.capturedStart(1), attribute.captured(1), tag.captured(1)});
    }
    return names;
}

/* The text with another name there, in the end tag of an element as well. */
QString renamed(QString text, const NameInDocument &place, const QString &name)
{
    const qsizetype tagEnd = text.indexOf(u'>', place.position);
    if (place.element.isEmpty() && text[tagEnd - 1] != u'/') {
        const qsizetype end = text.indexOf("</"_L1 + place.name + u'>', tagEnd);
        text.replace(end + 2, place.name.size(), name);
    }
    return text.replace(place.position, place.name.size(), name);
}

} // namespace

class DocumentCheckTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void findings_data();
    void findings();
    void linesOfNames_data();
    void linesOfNames();
    void bounds_data();
    void bounds();
    void noMoreThanTheMaximum();
    void hidden_data();
    void hidden();
    void hiddenIsBounded();
    void examplesAreRight_data();
    void examplesAreRight();
    void renamedNamesAreFound_data() { examplesAreRight_data(); }
    void renamedNamesAreFound();
    void whatIsFoundTheSchemaRefuses();

private:
    TemporaryHome folder;
};

void DocumentCheckTest::findings_data()
{
    QTest::addColumn<QByteArray>("document");
    QTest::addColumn<QStringList>("expected");

    const auto row = [](const char *name, const QByteArray &document, const QStringList &expected = {}) {
        QTest::newRow(name) << document << expected;
    };

    // Attributes
    row("attribute in lower case",
        documentOf("printFullOrderReceipt",
                   "<order>\n<receipe number='1' name='a' price='1' totalprice='1'/></order>"),
        {u"2: \"totalprice\" is no attribute of \"receipe\" that printFullOrderReceipt reads; did you mean "
         "\"totalPrice\"?"_s});
    row("attribute that is like no other", documentOf("printSold", "<orderinfo colour='red'/>"),
        {u"1: \"colour\" is no attribute of \"orderinfo\" that printSold reads"_s});
    row("attribute that another method reads",
        documentOf("printPartialOrder", "<order><receipe number='1' name='a' price='2'/></order>"),
        {u"1: \"price\" is no attribute of \"receipe\" that printPartialOrder reads"_s});
    row("attributes that stand there are not meant",
        documentOf("printFullOrder", "<receipe number='1' name='a' price='2' prise='3'/>"),
        {u"1: \"prise\" is no attribute of \"receipe\" that printFullOrder reads"_s});
    row("attribute of an element that takes none", documentOf("printSold", "<logo file='x'/>"),
        {u"1: \"file\" is no attribute of \"logo\" that printSold reads"_s});
    row("attribute with a namespace", documentOf("printSold", "<receipt x:serialnumber='1'/>"),
        {u"1: \"x:serialnumber\" is no attribute of \"receipt\" that printSold reads; did you mean "
         "\"serialnumber\"?"_s});
    row("any attributes of headers and company", documentOf("printSold", "<headers a='1'/><company b='2'/>"));
    row("any attributes of a fiscal total",
        documentOf("printFullOrderFiscal", "<total price='1' card='2'/>"));
    row("row that misses an attribute",
        documentOf("printStatementOfAccount", "\n<statement date='1' amount='2'/>"),
        {u"2: \"statement\" has no attribute \"type\", which printStatementOfAccount reads"_s});
    row("row that misses all", documentOf("printSold", "<receipe/>"),
        {u"1: \"receipe\" has no attribute \"amount\", which printSold reads"_s,
         u"1: \"receipe\" has no attribute \"description\", which printSold reads"_s,
         u"1: \"receipe\" has no attribute \"quantity\", which printSold reads"_s});
    row("optional attributes left out", documentOf("printFullOrder", "<variant name='a' quantity='1'/>"));
    row("empty attributes", documentOf("printSold", "<receipe amount='' description='' quantity=''/>"));

    // Elements
    row("element spelt as in a dictionary", documentOf("printSold", "\n\n<recipe/>"),
        {u"3: \"recipe\" is no element that printSold reads; did you mean \"receipe\"?"_s});
    row("element like no other", documentOf("printSold", "<discount/>"),
        {u"1: \"discount\" is no element that printSold reads"_s});
    row("what stands in an unknown element is read", documentOf("printSold", "<page><receipt/></page>"),
        {u"1: \"page\" is no element that printSold reads"_s,
         u"1: \"receipt\" has no attribute \"serialnumber\", which printSold reads"_s});
    row("element of another method", documentOf("printAbstractOrderReceipt", "<customer name='a'/>"),
        {u"1: \"customer\" is no element that printAbstractOrderReceipt reads"_s});
    row("header block of a fiscal document", documentOf("printFullOrderFiscal", "<logo/>"),
        {u"1: \"logo\" is no element that printFullOrderFiscal reads"_s});
    row("rows without a group, a block after them",
        documentOf("printSold", "<receipe quantity='1' description='a' amount='1'/><logo/>"));
    row("anything where nothing is printed",
        documentOf("printAbstractOrder", "<dish sauce='1'><side/></dish>"));
    row("text among the rows", documentOf("printSold", "<sold>\n\n tip\n</sold>"),
        {u"3: the text \"tip\" is not printed: only attributes are"_s});
    row("text in a section of its own, once", documentOf("printSold", "<sold>a<![CDATA[b <x> \"]]>c</sold>"),
        {u"1: the text \"a\" is not printed: only attributes are"_s});

    // Method
    row("no method", "<document>\n<logo/>\n</document>",
        {u"1: there is no method, without which nothing is printed"_s});
    row("misspelt method", "<document>\n<metod name='printSold'/><logo/></document>",
        {u"2: \"metod\" is no method, without which nothing is printed; did you mean \"method\"?"_s});
    row("unknown method, after which nothing is read", "<d>\n<method name='printWholeOrder'/><discount/></d>",
        {u"2: there is no method \"printWholeOrder\", so nothing is read from here on; did you mean "
         "\"printFullOrder\"?"_s});
    row("method like no other", documentOf("x", ""),
        {u"1: there is no method \"x\", so nothing is read from here on"_s});
    row("method without a name", "<d><method/><discount/></d>",
        {u"1: \"method\" has no attribute \"name\", which the printing program reads"_s});
    row("method with a misspelt name", "<d><method nam='printSold'/></d>",
        {u"1: \"nam\" is no attribute of \"method\" that the printing program reads; did you mean "
         "\"name\"?"_s});
    row("elements before the method", "<d>\n<logo/>\n<method name='printSold'/></d>",
        {u"2: \"logo\" stands before the method, where nothing is read"_s});
    row("method as the root", "<method name='printSold'><discount/></method>",
        {u"1: \"discount\" is no element that printSold reads"_s});
    row("second method", documentOf("printSold", "<method name='printFullOrder'/><variant/>"),
        {u"1: \"variant\" has no attribute \"name\", which printFullOrder reads"_s,
         u"1: \"variant\" has no attribute \"quantity\", which printFullOrder reads"_s});
    row("attribute of the root", "<d version='2'><method name='printSold'/></d>",
        {u"1: \"version\" is no attribute of \"d\" that the printing program reads"_s});
    row("namespace declarations", "<d xmlns='a' xmlns:b='c'><method name='printSold'/></d>");

    // XML
    row("empty file", "", {u"1: unexpected end of file; nothing is read from here on"_s});
    row("tags that do not match", documentOf("printSold", "\n<sold></solid>"),
        {u"2: tag mismatch; nothing is read from here on"_s});
    row("cut off", "<d>\n<method name='printSold'/>\n<sold>\n",
        {u"4: unexpected end of file; nothing is read from here on"_s});
}

void DocumentCheckTest::findings()
{
    QFETCH(const QByteArray, document);
    QFETCH(const QStringList, expected);
    QCOMPARE(wrong(document), expected);
}

// Each has "X" where the finding's name stands.
void DocumentCheckTest::linesOfNames_data()
{
    QTest::addColumn<QByteArray>("elements");

    QTest::newRow("element of several lines") << "\n<X\na='1'\n>\n</X>"_ba;
    QTest::newRow("empty element") << "\n<X/>"_ba;
    QTest::newRow("blank before the slash") << "<sold>\n<X\n/></sold>"_ba;
    QTest::newRow("attribute in a line of its own") << "<orderinfo date='1'\n\n X='1'\n/>"_ba;
    QTest::newRow("attribute without blanks before the next tag")
        << "<orderinfo\nX='1'></orderinfo><logo/>"_ba;
    QTest::newRow("blanks around the sign") << "<orderinfo\nX\n=\n'1'/>"_ba;
    QTest::newRow("line break in a value") << "<orderinfo date='1\n2' X='1'/>"_ba;
    QTest::newRow("sign and quotes in a value") << "<orderinfo date='\n=\" >' X='1'/>"_ba;
    QTest::newRow("comment with quotes and brackets") << "<!-- a\n\" > ' < - --><X/>"_ba;
    QTest::newRow("comment of one character") << "<!-- \" --><!---->\n<X/>"_ba;
    QTest::newRow("section of text") << "<sold><![CDATA[ \n]]>\n</sold><X/>"_ba;
    QTest::newRow("instruction") << "<?a \" > '\n?><X/>"_ba;
    QTest::newRow("line ends of another system") << "\r\n\r\n<X/>"_ba;
    QTest::newRow("attribute of the element before")
        << "<orderinfo date='1'/>\n<orderinfo\n time='2' X='3'/>"_ba;
}

void DocumentCheckTest::linesOfNames()
{
    QFETCH(QByteArray, elements);
    const QByteArray prologue = "<?xml version='1.0' encoding='UTF-8'?>\n<!DOCTYPE d [\n<!ENTITY a \">'\">\n"
                                "<!-- \" -->\n]>\n";
    const QByteArray document = prologue + documentOf("printSold", elements);
    const qsizetype line = document.first(document.indexOf('X')).count('\n') + 1;
    const QStringList found = wrong(document);
    QCOMPARE(found.size(), 1);
    QVERIFY2(found.first().startsWith(QString::number(line) + ": \"X\" is no "_L1),
             qPrintable(found.first()));
}

void DocumentCheckTest::bounds_data()
{
    QTest::addColumn<QByteArray>("document");
    QTest::addColumn<QString>("expected");

    QTest::newRow("nested too deep") << "<d><method name='printSold'/>" + "<sold>"_ba.repeated(200'000)
                                     << u"nested too deep; nothing is read from here on"_s;
    QByteArray entities = "<!ENTITY a0 'aaaaaaaaaa'>";
    for (int i = 1; i < 10; ++i) {
        const QByteArray before = "&a" + QByteArray::number(i - 1) + ';';
        entities += "<!ENTITY a" + QByteArray::number(i) + " '" + before.repeated(100) + "'>";
    }
    QTest::newRow("entities that expand without end")
        << "<!DOCTYPE d [" + entities + "]><d><method name='printSold'/><sold>&a9;</sold></d>" << QString();
    QByteArray many;
    for (int i = 0; i < 20'000; ++i)
        many += "<!ENTITY a" + QByteArray::number(i) + " 'x'>";
    QTest::newRow("many entities") << "<!DOCTYPE d [" + many + "]><d/>"
                                   << u"too many entities are declared; nothing is read from here on"_s;
}

void DocumentCheckTest::bounds()
{
    QFETCH(const QByteArray, document);
    QFETCH(const QString, expected);
    const std::vector<Finding> found = check(document).wrong;
    QCOMPARE(found.size(), 1U);
    QVERIFY2(found.front().text.endsWith(expected), qPrintable(found.front().text));
    QVERIFY(found.front().text.endsWith("; nothing is read from here on"_L1));
}

void DocumentCheckTest::noMoreThanTheMaximum()
{
    const QString last = u"1: after 1000 findings the rest is not looked at"_s;
    const QStringList rows = wrong(documentOf("printSold", "<a/>"_ba.repeated(1'001)));
    QCOMPARE(rows.size(), 1'001);
    QCOMPARE(rows.last(), last);
    QCOMPARE(wrong(documentOf("printSold", "<a/>"_ba.repeated(999))).size(), 999);

    QByteArray attributes;
    for (int i = 0; i < 2'000; ++i)
        attributes += " a" + QByteArray::number(i) + "=''";
    const QStringList ofOne = wrong(documentOf("printSold", "<logo" + attributes + "/>"));
    QCOMPARE(ofOne.size(), 1'001);
    QCOMPARE(ofOne.last(), last);
}

void DocumentCheckTest::hidden_data()
{
    QTest::addColumn<QByteArray>("settings");
    QTest::addColumn<QByteArray>("document");
    QTest::addColumn<QStringList>("expected");

    const QByteArray receipt =
        documentOf("printFullOrderReceipt",
                   "<geometry/>\n<headers a='b'/>\n<orderinfo date='1'\ntable='2' note=''/>\n"
                   "<customer name='a' telephone='b' fiscalcode='c'/>");
    QTest::newRow("everything off")
        << "receiptdoc : { paperWidth = 42; };"_ba << receipt
        << QStringList{u"1: no line of \"geometry\" is printed: tavolux.receiptdoc.printGeometry is off"_s,
                       u"2: no line of \"headers\" is printed: tavolux.receiptdoc.printHeader is off"_s,
                       u"3: \"date\" is not printed: tavolux.receiptdoc.printDate is off"_s,
                       u"4: \"table\" is not printed: tavolux.receiptdoc.printTable is off"_s,
                       u"5: no line of \"customer\" is printed: tavolux.receiptdoc.printCustomer is off"_s};
    QTest::newRow("everything on")
        << "receiptdoc : { printGeometry = true; printHeader = true; printDate = true; printTable = true; "
           "printCustomer = true; printTelephone = true; printFiscalCode = true; };"_ba
        << receipt << QStringList();
    QTest::newRow("parts of a block that is on")
        << "receiptdoc : { printGeometry = true; printHeader = true; printDate = true; printTable = true; "
           "printCustomer = true; printTelephone = false; };"_ba
        << receipt
        << QStringList{u"5: \"telephone\" is not printed: tavolux.receiptdoc.printTelephone is off"_s,
                       u"5: \"fiscalcode\" is not printed: tavolux.receiptdoc.printFiscalCode is off"_s};
    // The full order prints with the profile of pre-fiscal documents, statements with that of reports.
    QTest::newRow("profile of another name")
        << "doc : { printTable = true; };"_ba << documentOf("printFullOrder", "<orderinfo table='1'/>")
        << QStringList{u"1: \"table\" is not printed: tavolux.prefiscaldoc.printTable is off"_s};
    QTest::newRow("second method, second profile")
        << "reportdoc : { printDate = true; };"_ba
        << documentOf("printStatementOfAccount",
                      "<orderinfo date='1'/><method name='printSold'/>"
                      "<orderinfo date='1'/>")
        << QStringList{u"1: \"date\" is not printed: tavolux.solddoc.printDate is off"_s};
    QTest::newRow("what the method does not read is not hidden")
        << "x : { };"_ba << documentOf("printFullOrderFiscal", "<company a='1'/>") << QStringList();
}

void DocumentCheckTest::hidden()
{
    QFETCH(const QByteArray, settings);
    QFETCH(const QByteArray, document);
    QFETCH(const QStringList, expected);
    const TXConfiguration configuration(
        folder.writeFile(u"tavolux.conf"_s, "tavolux : { " + settings + " };"), u"cfg"_s);
    QCOMPARE(lines(check(document, &configuration).hidden), expected);
    QVERIFY(check(document).hidden.empty());
}

void DocumentCheckTest::hiddenIsBounded()
{
    const TXConfiguration configuration(folder.writeFile(u"tavolux.conf"_s, "tavolux : { x = y; };"),
                                        u"cfg"_s);
    const QByteArray document = documentOf("printSold", "<geometry/>"_ba.repeated(1'001));
    QCOMPARE(check(document, &configuration).hidden.size(), DocumentFindings::maximum);
}

void DocumentCheckTest::examplesAreRight_data()
{
    QTest::addColumn<QString>("path");
    const QStringList paths = examples();
    QCOMPARE(paths.size(), 13);
    for (const QString &path : paths)
        QTest::newRow(qPrintable(QFileInfo(path).baseName())) << path;
}

void DocumentCheckTest::examplesAreRight()
{
    QFETCH(const QString, path);
    QCOMPARE(wrong(fileBytes(path)), QStringList());
}

// Each name of the example in turn, with its last letter doubled, and with its first in the other case.
void DocumentCheckTest::renamedNamesAreFound()
{
    QFETCH(const QString, path);
    const QString text = QString::fromUtf8(fileBytes(path));
    const QList<NameInDocument> names = namesIn(text);
    QVERIFY(names.size() > 3);
    QCOMPARE(names[1].name, u"method"_s); // after the root
    const qsizetype methodName = names[2].position + "name=\""_L1.size();
    const MethodRule rule =
        documentSchema().methods.value(text.sliced(methodName, text.indexOf(u'"', methodName) - methodName));
    QVERIFY(!rule.elements.isEmpty());

    int found = 0;
    for (const NameInDocument &place : names.sliced(1)) {
        const QString first = place.name.first(1);
        for (const QString &wrongName :
             {place.name + place.name.back(),
              (first.isUpper() ? first.toLower() : first.toUpper()) + place.name.sliced(1)}) {
            const QStringList findings = wrong(renamed(text, place, wrongName).toUtf8());
            const qsizetype line = text.first(place.position).count(u'\n') + 1;
            const QString element = place.element.isEmpty() ? place.name : place.element;
            const ElementRule elementRule = rule.elements.value(element);
            QString expected;
            if (!rule.elements.contains(element)) { // where nothing is printed
                QVERIFY(rule.anyElement);
            } else if (!place.element.isEmpty() && elementRule.anyAttribute) { // the name goes for nothing
                if (elementRule.attributes.contains(place.name))
                    expected = u"\"%1\" has no attribute \"%2\","_s.arg(element, place.name);
            } else {
                expected = u"; did you mean \"%1\"?"_s.arg(place.name);
            }
            QCOMPARE(findings.size(), expected.isEmpty() ? 0 : 1);
            if (expected.isEmpty())
                continue;
            ++found;
            QVERIFY2(findings.first().contains(expected), qPrintable(findings.first()));
            // A name that is missing is missed at the element.
            const qsizetype elementLine = text.first(text.lastIndexOf(u'<', place.position)).count(u'\n') + 1;
            const qsizetype expectedLine = expected.contains("has no"_L1) ? elementLine : line;
            QVERIFY2(findings.first().startsWith(QString::number(expectedLine) + ": "_L1),
                     qPrintable(findings.first()));
        }
    }
    QVERIFY(found >= 4); // the method and its name at the least
}

// The other way round does not hold: the schema asks for one shape of a document, the program does not.
void DocumentCheckTest::whatIsFoundTheSchemaRefuses()
{
    if (QStandardPaths::findExecutable(u"xmllint"_s).isEmpty())
        QSKIP("xmllint is not installed (scripts/setup installs it)");
    QStringList paths = examples();
    for (const QString &goldens : {u"/tests/golden"_s, u"/tests/golden-escpos"_s}) {
        QDirIterator documents(sourceFolder + goldens, {u"document.xml"_s}, QDir::Files,
                               QDirIterator::Subdirectories);
        while (documents.hasNext())
            paths.append(documents.next());
    }
    QVERIFY(paths.size() > 200);

    const ProgramResult result = runProgram(
        u"xmllint"_s,
        QStringList{u"--noout"_s, u"--relaxng"_s, sourceFolder + "/data/tavolux-document.rng"_L1} + paths);
    int accepted = 0;
    for (const QString &path : std::as_const(paths)) {
        if (!result.standardError.contains(path.toUtf8() + " validates\n"))
            continue;
        ++accepted;
        QVERIFY2(wrong(fileBytes(path)).isEmpty(), qPrintable(path));
    }
    QVERIFY(accepted > 13);
}

QTEST_GUILESS_MAIN(DocumentCheckTest)
#include "document_check_test.moc"
