#include "configuration_check.h"

#include "company_printer_driver.h"
#include "label_widths.h"
#include "print_document.h"
#include "print_output.h"
#include "starter_configuration.h"
#include "temporary_home.h"
#include "tx_configuration.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QTest>
#include <QTranslator>

#include <algorithm>
#include <memory>

using namespace Qt::StringLiterals;

namespace {

/* The printer, with a profile of one's own. */
class ProfiledPrinter : public CompanyPrinterDriver
{
public:
    explicit ProfiledPrinter(const QString &output)
        : CompanyPrinterDriver(output, false)
    {
    }

    void setProfile(const DocumentProfile &wanted) { profile = wanted; }
};

QByteArray tavolux(const QByteArray &sections)
{
    return "tavolux : {\n" + sections + "\n};\n";
}

} // namespace

class ConfigurationCheckTest : public QObject
{
    Q_OBJECT

private:
    QStringList check(const QByteArray &text, const QString &kind = u"cfg"_s)
    {
        QStringList findings;
        for (const Finding &finding : checkConfiguration(text, kind))
            findings.append(QString::number(finding.line) + ": "_L1 + finding.text);
        return findings;
    }

private Q_SLOTS:
    void initTestCase() { home.enter(); }

    void cfg_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QStringList>("findings");

        const QString nothingSet =
            u"0: there is no section \"tavolux\" with settings in it, so nothing is found"_s;

        QTest::newRow("nothing to say") << tavolux("language : { basedir = \"\"; file = \"\"; };\n"
                                                   "doc : { paperWidth = 42; paperRows = 0; topMargin = 2; "
                                                   "style = x; printNote = true; printLogo = false; };\n"
                                                   "fiscaldoc : { descriptionWidth = 20; };")
                                        << QStringList();
        QTest::newRow("empty file") << QByteArray() << QStringList{nothingSet};
        QTest::newRow("XML")
            << QByteArray("\n<?xml version=\"1.0\"?>\n<tavolux>\n <doc paperWidth=\"42\"/>\n</tavolux>\n")
            << QStringList{
                   u"2: this looks like XML, which --type xml checks; the printing program reads cfg alone"_s};
        QTest::newRow("XML without a setting")
            << QByteArray("<tavolux/>\n")
            << QStringList{
                   u"1: this looks like XML, which --type xml checks; the printing program reads cfg alone"_s};
        QTest::newRow("section without settings") << QByteArray("tavolux : { };") << QStringList{nothingSet};
        QTest::newRow("empty section before the first one counts for nothing")
            << QByteArray("x : { };\ntavolux : { doc : { paperWidth = 42; }; };") << QStringList();

        // Names.
        QTest::newRow("setting that nobody knows")
            << tavolux("doc : {\n paperWith = 42; };")
            << QStringList{
                   u"3: \"paperWith\" is no setting of \"tavolux.doc\" that is ever read; did you mean \"paperWidth\"?"_s};
        QTest::newRow("setting that is like no other")
            << tavolux("doc : { colour = red; };")
            << QStringList{u"2: \"colour\" is no setting of \"tavolux.doc\" that is ever read"_s};
        QTest::newRow("capitals count")
            << tavolux("doc : { PrintNote = true; };")
            << QStringList{
                   u"2: \"PrintNote\" is no setting of \"tavolux.doc\" that is ever read; did you mean \"printNote\"?"_s};
        QTest::newRow("setting of the fiscal profile in another")
            << tavolux("doc : { descriptionWidth = 20; };")
            << QStringList{u"2: \"descriptionWidth\" is no setting of \"tavolux.doc\" that is ever read"_s};
        QTest::newRow("setting beside the sections")
            << tavolux("paperWidth = 42;")
            << QStringList{u"2: \"paperWidth\" is no setting of \"tavolux\" that is ever read"_s};
        QTest::newRow("setting without a name")
            << tavolux("doc : { = 42; };")
            << QStringList{u"2: \"\" is no setting of \"tavolux.doc\" that is ever read"_s};
        QTest::newRow("language key that nobody knows")
            << tavolux("language : { basdir = /x; };")
            << QStringList{
                   u"2: \"basdir\" is no setting of \"tavolux.language\" that is ever read; did you mean \"basedir\"?"_s};
        QTest::newRow("section that nobody knows; what is in it is not looked at")
            << tavolux("recieptdoc : { x = y; };")
            << QStringList{
                   u"2: \"recieptdoc\" is no section of \"tavolux\" that is ever read; did you mean \"receiptdoc\"?"_s};
        QTest::newRow("section in a section")
            << tavolux("doc : {\n solddoc : { paperWidth = x; }; };")
            << QStringList{u"3: \"solddoc\" is no section of \"tavolux.doc\" that is ever read"_s};
        QTest::newRow("section without a name")
            << tavolux(": { x = y; };") << QStringList{u"2: a section without a name is never read"_s};

        // Sections that are not reached.
        QTest::newRow("first section is another")
            << QByteArray("taverna : { doc : { x = y; }; };")
            << QStringList{
                   u"1: the first section is \"taverna\", not \"tavolux\", so nothing in the file is found"_s};
        QTest::newRow("sections after the first")
            << QByteArray(
                   "tavolux : { doc : { paperWidth = 42; }; };\ntavolux : { x = y; };\nother : { x = y; };")
            << QStringList{u"2: the section \"tavolux\" is never read: only the first one, \"tavolux\", is"_s,
                           u"3: the section \"other\" is never read: only the first one, \"tavolux\", is"_s};
        QTest::newRow("the right section comes second")
            << QByteArray("x : { y = z; };\ntavolux : { x = y; };")
            << QStringList{
                   u"1: the first section is \"x\", not \"tavolux\", so nothing in the file is found"_s,
                   u"2: the section \"tavolux\" is never read: only the first one, \"x\", is"_s};
        QTest::newRow("settings outside of any section")
            << QByteArray("a = 1;\ntavolux : { doc : { paperWidth = 42; }; };\nb = 2;")
            << QStringList{u"1: \"a\" is set outside of any section, where it is never found"_s,
                           u"3: \"b\" is set outside of any section, where it is never found"_s};

        // Values.
        QTest::newRow("switches are exact")
            << tavolux(
                   "doc : {\nprintLogo = True;\nprintNote = 1;\nprintDate = \" true \";\nprintTime = ;\n};")
            << QStringList{u"3: \"printLogo\" is \"True\", neither \"true\" nor \"false\", so it is off"_s,
                           u"4: \"printNote\" is \"1\", neither \"true\" nor \"false\", so it is off"_s,
                           u"5: \"printDate\" is \" true \", neither \"true\" nor \"false\", so it is off"_s,
                           u"6: \"printTime\" is \"\", neither \"true\" nor \"false\", so it is off"_s};
        QTest::newRow("numbers")
            << tavolux("doc : {\npaperWidth = wide;\nquantityFieldWidth = 3.5;\npriceFieldWidth = "
                       "99999999999;\npaperRows = ;\ntopMargin = -1;\n};")
            << QStringList{
                   u"3: \"paperWidth\" is \"wide\", no usable whole number, so it counts as 0"_s,
                   u"4: \"quantityFieldWidth\" is \"3.5\", no usable whole number, so it counts as 0"_s,
                   u"5: \"priceFieldWidth\" is \"99999999999\", no usable whole number, so it counts as 0"_s,
                   u"6: \"paperRows\" is \"\", no usable whole number, so it counts as 0"_s,
                   u"7: \"topMargin\" is \"-1\", a negative number"_s};
        QTest::newRow("widest paper") << tavolux("doc : { paperWidth = 100000; };") << QStringList();
        QTest::newRow("wider") << tavolux("doc : { paperWidth = 100001; };")
                               << QStringList{
                                      u"2: \"paperWidth\" is \"100001\", more than any paper holds"_s};
        QTest::newRow("signs and blanks that numbers may have")
            << tavolux("doc : { paperWidth = \" +42 \"; };") << QStringList();
        QTest::newRow("descriptionWidth is a number")
            << tavolux("fiscaldoc : { descriptionWidth = x; };")
            << QStringList{u"2: \"descriptionWidth\" is \"x\", no usable whole number, so it counts as 0"_s};
        QTest::newRow("umlaut in Latin-1") << tavolux("doc : { style = sch\xF6n; };") << QStringList();
        QTest::newRow("umlaut in UTF-8")
            << tavolux("doc : { style = sch\xC3\xB6n; };")
            << QStringList{u"2: this is UTF-8, but the file is read as Latin-1: \"schÃ¶n\""_s};
        QTest::newRow("file with a byte order mark")
            << "\xEF\xBB\xBF" + tavolux("doc : { paperWidth = 42; };")
            << QStringList{
                   u"1: this is UTF-8, but the file is read as Latin-1: \"ï»¿tavolux\""_s,
                   u"1: the first section is \"ï»¿tavolux\", not \"tavolux\", so nothing in the file is found"_s};

        // Given twice.
        QTest::newRow("setting given twice")
            << tavolux("doc : {\nprintNote = true;\nprintNote = false;\n};")
            << QStringList{u"4: \"printNote\" is given twice, first in line 3; the last one counts"_s};
        QTest::newRow("section given twice")
            << tavolux("doc : { printNote = true; };\ndoc : { printNote = false; };")
            << QStringList{
                   u"3: the section \"tavolux.doc\" is given twice, first in line 2; of each setting the first that is not empty counts"_s};

        // What is missing.
        QTest::newRow("semicolon missing after a value")
            << tavolux("doc : {\npaperWidth = 42\nprintNote = true;\n};")
            << QStringList{
                   u"3: the value of \"paperWidth\" takes in \"42 printNote = true\"; is a semicolon missing?"_s};
        QTest::newRow("semicolon missing before a section")
            << QByteArray("tavolux : {\nlanguage : { file = x\n};\ndoc : { paperWidth = 42; }; };")
            << QStringList{u"1: the section \"tavolux\" is not closed"_s,
                           u"2: the value of \"file\" takes in \"x }\"; is a semicolon missing?"_s,
                           u"4: \"doc\" is no section of \"tavolux.language\" that is ever read"_s};
        QTest::newRow("value over two lines that holds no statement")
            << tavolux("doc : { style = a\nb; };") << QStringList();
        QTest::newRow("semicolon missing after a brace")
            << tavolux("doc : { printNote = true; }\nsolddoc : { paperWidth = 42; };")
            << QStringList{
                   u"3: \"solddoc : { paperWidth = 42\" is passed over; is a semicolon or a brace missing before it?"_s,
                   u"4: a closing brace that closes no section ends the reading here"_s};
        QTest::newRow("remark before a brace")
            << QByteArray("tavolux : all of it { doc : the orders { paperWidth = 42; }; };") << QStringList();
        QTest::newRow("opening brace missing")
            << tavolux("doc :\npaperWidth = 42;\nsolddoc : { };")
            << QStringList{
                   u"3: \"paperWidth = 42; solddoc :\" is passed over; is a semicolon or a brace missing before it?"_s};
        QTest::newRow("opening brace missing at the end")
            << QByteArray("tavolux : { doc : { paperWidth = 42; }; };\nx : y")
            << QStringList{u"2: no opening brace follows the section \"x\""_s};
        QTest::newRow("closing brace missing") << QByteArray("tavolux : {\ndoc : { paperWidth = 42;\n};\n")
                                               << QStringList{u"1: the section \"tavolux\" is not closed"_s};
        QTest::newRow("closing brace too many")
            << QByteArray("tavolux : { doc : { paperWidth = 42; }; };\n};\nx = y;")
            << QStringList{u"2: a closing brace that closes no section ends the reading here"_s};
        QTest::newRow("file ends in a value")
            << QByteArray("tavolux : { doc : {\npaperWidth = 42")
            << QStringList{
                   u"1: the section \"tavolux\" is not closed"_s, u"1: the section \"doc\" is not closed"_s,
                   u"2: the value of \"paperWidth\" runs to the end of the file; is a semicolon missing?"_s};
        QTest::newRow("last semicolon missing does no harm")
            << QByteArray("tavolux : { doc : { paperWidth = 42; }; }\n") << QStringList();
        QTest::newRow("text after a setting")
            << tavolux("doc : {\nprintNote = true; yes;\nprintLogo = true;\n};")
            << QStringList{u"3: \"yes; printLogo\" is taken for one name; is something missing in it?"_s};
        const QString noComment = u"%1: the format has no comments: %2 is taken for one name"_s;
        QTest::newRow("what looks like a comment")
            << QByteArray("# orders\ntavolux : { doc : { paperWidth = 42; }; };")
            << QStringList{
                   noComment.arg(u"1"_s, u"\"# orders tavolux\""_s),
                   u"1: the first section is \"# orders tavolux\", not \"tavolux\", so nothing in the file is found"_s};
        QTest::newRow("a setting taken out") << tavolux("doc : {\n// paperWidth = 42;\nprintNote = true;\n};")
                                             << QStringList{noComment.arg(u"3"_s, u"\"// paperWidth\""_s)};
        QTest::newRow("a section taken out")
            << tavolux("doc : { printNote = true; };\n# solddoc : { paperWidth = x; };")
            << QStringList{noComment.arg(u"3"_s, u"\"# solddoc\""_s)};
        QTest::newRow("after a value, with the line of the comment")
            << tavolux("doc : { printNote = true; # on\nprintLogo = true;\n};")
            << QStringList{noComment.arg(u"2"_s, u"\"# on printLogo\""_s)};
        QTest::newRow("in the second line of a name")
            << tavolux("doc : {\na\n  ; b\nprintLogo = true;\n};")
            << QStringList{noComment.arg(u"4"_s, u"\"a ; b printLogo\""_s)};
        QTest::newRow("as in XML") << tavolux("doc : {\n<!-- note -->\nprintLogo = true;\n};")
                                   << QStringList{noComment.arg(u"3"_s, u"\"<!-- note --> printLogo\""_s)};
        QTest::newRow("as in XML, before all else")
            << QByteArray("<!-- mine -->\ntavolux : {\nx = y; };")
            << QStringList{
                   noComment.arg(u"1"_s, u"\"<!-- mine --> tavolux\""_s),
                   u"1: the first section is \"<!-- mine --> tavolux\", not \"tavolux\", so nothing in the file is found"_s};
        QTest::newRow("over several lines")
            << tavolux("doc : {\n/* note\n*/ printLogo = true;\n};")
            << QStringList{noComment.arg(u"3"_s, u"\"/* note */ printLogo\""_s)};
        QTest::newRow("at the end")
            << tavolux("doc : { printNote = true; };") + "# end\n"
            << QStringList{
                   u"4: the format has no comments: \"# end\" belongs to no setting and is passed over"_s};
        QTest::newRow("a sign in a name is no comment")
            << tavolux("doc : { print#Note = true; };")
            << QStringList{
                   u"2: \"print#Note\" is no setting of \"tavolux.doc\" that is ever read; did you mean \"printNote\"?"_s};
        QTest::newRow("nor is one in a value") << tavolux("doc : {\nstyle = #a;\n};") << QStringList();
        QTest::newRow("XML that begins with a comment")
            << QByteArray("<!-- mine -->\n<tavolux><doc printNote=\"true\"/></tavolux>")
            << QStringList{
                   u"1: this looks like XML, which --type xml checks; the printing program reads cfg alone"_s};
        QTest::newRow("colon missing")
            << tavolux("doc {\npaperWidth = 42;\n};")
            << QStringList{u"2: \"doc { paperWidth\" is taken for one name; is something missing in it?"_s,
                           u"5: a closing brace that closes no section ends the reading here"_s};
        QTest::newRow("text before a closing brace")
            << tavolux("doc : { printNote = true; x };")
            << QStringList{u"2: \"x\" belongs to no setting and is passed over"_s};
        QTest::newRow("text at the end") << tavolux("doc : { printNote = true; };")
                + "x" << QStringList{u"4: \"x\" belongs to no setting and is passed over"_s};
        QTest::newRow("control characters are not shown")
            << tavolux(QByteArray("doc : { printNote = \x1B[2J\0; };", 29))
            << QStringList{
                   u"2: \"printNote\" is \"\uFFFD[2J\uFFFD\", neither \"true\" nor \"false\", so it is off"_s};
        QTest::newRow("long text is cut") << tavolux("doc : { printNote = true; };") + QByteArray(51, 'x')
                                          << QStringList{"4: \""_L1 + QString(50, u'x')
                                                         + u"…\" belongs to no setting and is passed over"_s};
    }
    void cfg()
    {
        QFETCH(const QByteArray, text);
        QTEST(check(text), "findings");
    }

    void cfgNesting()
    {
        const auto nested = [](int depth) {
            return "tavolux : {" + QByteArray("s : {").repeated(depth - 1) + "\nk = v;"
                + QByteArray("};").repeated(depth);
        };
        const QString unknown = u"1: \"s\" is no section of \"tavolux\" that is ever read"_s;
        QCOMPARE(check(nested(256)), QStringList{unknown});
        QCOMPARE(check(nested(257)),
                 (QStringList{unknown, u"1: sections nest deeper than 256, so the reading ends here"_s}));
    }

    void printers_data()
    {
        QTest::addColumn<QByteArray>("sections"); // the first in line 2
        QTest::addColumn<QStringList>("findings");

        const QByteArray logos = TAVOLUX_SOURCE_DIR "/tests/devices/logos/";
        QTest::newRow("nothing to say") << QByteArray(
            "printers : {\n"
            "till : { output = \"/dev/usb/lp0, /dev/till*\"; model = epson-tm-t20iii; columns = 42;"
            "codePages = \"858=19, 1252=16\"; cut = partial; feed = 2; drawerPin = 5; drawerPulse = "
            "\"100, 200\"; duplicate = true; status = true; logo = \""
            + logos
            + "black-and-white.png\"; };\n"
              "kitchen : { output = /dev/usb/lp1; model = generic-58; logo = stored:1; };\n"
              "proof : { output = \"/tmp/*.txt\"; model = plain-text; };\n};\n"
              "doc : { paperWidth = 32; };")
                                        << QStringList();
        QTest::newRow("empty values count as missing") << QByteArray(
            "printers : { till : { output = x; model = generic-80; columns = ; logo = \"\"; }; };")
                                                       << QStringList();

        // Names.
        QTest::newRow("misspelt section")
            << QByteArray("printer : { till : { x = y; }; };")
            << QStringList{
                   u"2: \"printer\" is no section of \"tavolux\" that is ever read; did you mean \"printers\"?"_s};
        QTest::newRow("setting beside the printers")
            << QByteArray("printers : { model = generic-80; };")
            << QStringList{u"2: \"model\" is no setting of \"tavolux.printers\" that is ever read"_s};
        QTest::newRow("setting that nobody knows")
            << QByteArray("printers : { till : { output = x; model = generic-80;\ncolums = 42;\npaperWidth = "
                          "42; }; };")
            << QStringList{
                   u"3: \"colums\" is no setting of \"tavolux.printers.till\" that is ever read; did you mean \"columns\"?"_s,
                   u"4: \"paperWidth\" is no setting of \"tavolux.printers.till\" that is ever read"_s};
        QTest::newRow("setting of a printer in a profile")
            << QByteArray("doc : { model = generic-80; };")
            << QStringList{u"2: \"model\" is no setting of \"tavolux.doc\" that is ever read"_s};
        QTest::newRow("section in a printer")
            << QByteArray("printers : { till : { output = x; model = generic-80;\nlogo : { a = b; }; }; };")
            << QStringList{u"3: \"logo\" is no section of \"tavolux.printers.till\" that is ever read"_s};
        QTest::newRow("dot in a name")
            << QByteArray("printers : { till.1 : { output = x; model = generic-80; }; };")
            << QStringList{u"2: \"till.1\" is no section of \"tavolux.printers\" that is ever read"_s};
        QTest::newRow("two names with a dot")
            << QByteArray("printers.till : { output = x; model = generic-80; };")
            << QStringList{
                   u"2: \"printers.till\" is no section of \"tavolux\" that is ever read; did you mean \"printers\"?"_s};
        QTest::newRow("given twice")
            << QByteArray("printers : { till : { output = x; };\ntill : { model = generic-80; }; };")
            << QStringList{
                   u"3: the section \"tavolux.printers.till\" is given twice, first in line 2; of each setting the first that is not empty counts"_s};

        // Values.
        QTest::newRow("misspelt model")
            << QByteArray("printers : { till : { output = x;\nmodel = epson-tm-t20-iii; }; };")
            << QStringList{
                   u"3: \"model\" is \"epson-tm-t20-iii\", not the name of a model; did you mean \"epson-tm-t20iii\"?"_s};
        QTest::newRow("model that is like no other")
            << QByteArray("printers : { till : { output = x;\nmodel = laser; }; };")
            << QStringList{u"3: \"model\" is \"laser\", not the name of a model"_s};
        QTest::newRow("values")
            << QByteArray("printers : { till : { output = x; model = generic-80;\ncolumns = wide;\ncodePages "
                          "= 858;\ncut "
                          "= yes;\nfeed = -1;\ndrawerPin = 3;\ndrawerPulse = 50;\nlogo = "
                          "stored:0;\nduplicate = 1;\nstatus = yes; }; };")
            << QStringList{
                   u"3: \"columns\" is \"wide\", not a number from 1 to 255"_s,
                   u"4: \"codePages\" is \"858\", not a list of code pages with their numbers"_s,
                   u"5: \"cut\" is \"yes\", not full, partial or none"_s,
                   u"6: \"feed\" is \"-1\", not a number from 0 to 255"_s,
                   u"7: \"drawerPin\" is \"3\", not 2 or 5"_s,
                   u"8: \"drawerPulse\" is \"50\", not two times from 2 to 510 ms"_s,
                   u"9: \"logo\" is \"stored:0\", not a PNG file, or stored: with a number from 1 to 255"_s,
                   u"10: \"duplicate\" is \"1\", not true or false"_s,
                   u"11: \"status\" is \"yes\", not true or false"_s};
        QTest::newRow("no model")
            << QByteArray("printers : {\ntill : { output = x; }; };")
            << QStringList{u"3: \"tavolux.printers.till\" names no model, so it prints plain text"_s};
        QTest::newRow("no output")
            << QByteArray("printers : {\ntill : { model = generic-80; }; };")
            << QStringList{u"3: \"tavolux.printers.till\" names no output, so no document comes to it"_s};

        // Outputs of earlier printers.
        const auto two = [](const QByteArray &first, const QByteArray &second) {
            return "printers : {\na : { model = generic-80; output = \"" + first
                + "\"; };\nb : { model = generic-80; output = \"" + second + "\"; };\n};";
        };
        const QStringList neverReached{
            u"4: no document comes to \"tavolux.printers.b\": the printers before it have all of its outputs"_s};
        QTest::newRow("the same output") << two("/dev/lp0", "/dev/lp0") << neverReached;
        QTest::newRow("outputs that fit a pattern")
            << two("/dev/*", "/dev/lp0, /dev/usb/lp1") << neverReached;
        QTest::newRow("the same pattern") << two("/dev/lp?", "/dev/lp?") << neverReached;
        QTest::newRow("one of two outputs") << two("/dev/lp0", "/dev/lp0, /dev/lp1") << QStringList();
        QTest::newRow("a pattern for what is left") << two("/dev/lp0", "*") << QStringList();
        QTest::newRow("a pattern with more characters") << two("/dev/lp?", "/dev/lp*") << QStringList();

        // Paper.
        QTest::newRow("profiles as wide as the printer, and wider")
            << QByteArray("printers : { till : { model = generic-80; output = x; };\n"
                          "kitchen : { model = generic-80; output = y; columns = 42; }; };\n"
                          "doc : {\npaperWidth = 48; };\nreceiptdoc : {\npaperWidth = 49; };")
            << QStringList{
                   u"5: \"paperWidth\" is \"48\", more than the 42 columns of the printer \"kitchen\""_s,
                   u"7: \"paperWidth\" is \"49\", more than the 48 columns of the printer \"till\""_s,
                   u"7: \"paperWidth\" is \"49\", more than the 42 columns of the printer \"kitchen\""_s};
        QTest::newRow("plain text has paper of any width") << QByteArray(
            "printers : { p : { model = plain-text; output = x; }; }; doc : { paperWidth = 80; };")
                                                           << QStringList();
        QTest::newRow("room on a printer's own paper, the narrowest")
            << QByteArray("printers : { a : { model = generic-80; output = x; }; b : { model = generic-58; "
                          "output = y; };"
                          "};\ndoc : { quantityFieldWidth = 29; };")
            << QStringList{
                   u"3: \"tavolux.doc\" leaves no room for descriptions: of 32 characters in a line the other columns take 32"_s};

        // Logos.
        const auto logo = [](const QByteArray &model, const QByteArray &file) {
            return "printers : { till : { output = x; model = " + model + ";\nlogo = \"" + file + "\"; }; };";
        };
        QTest::newRow("logo that is missing")
            << logo("generic-80", "/no/logo.png")
            << QStringList{u"3: the logo \"/no/logo.png\" is not printed: No such file or directory"_s};
        QTest::newRow("logo that is no picture")
            << logo("generic-80", "/dev/null")
            << QStringList{u"3: the logo \"/dev/null\" is not printed: it is no regular file"_s};
        QTest::newRow("logo on a printer without pictures")
            << logo("wincor-th230", "/no/logo.png")
            << QStringList{u"3: the logo \"/no/logo.png\" is not printed: the printer prints no pictures"_s};
        QTest::newRow("logo of a plain-text printer, which has none")
            << logo("plain-text", "/no/logo.png") << QStringList();
    }
    void printers()
    {
        QFETCH(const QByteArray, sections);
        QTEST(check(tavolux(sections)), "findings");
    }

    void labelsOnPrinters_data()
    {
        QTest::addColumn<QByteArray>("printer");
        QTest::addColumn<QByteArray>("catalogue");
        QTest::addColumn<QStringList>("findings");

        QTest::newRow("a printer with all characters")
            << QByteArray("model = epson-tm-t20iii;") << QByteArray("pt") << QStringList();
        QTest::newRow("a printer without tildes")
            << QByteArray("model = epson-tm-u220b;") << QByteArray("pt")
            << QStringList{
                   u"3: the labels have characters that no code page of the printer \"till\" has: \"Ê\" (comes out as \"E\"), \"Õ\" (comes out as \"O\"), \"Ú\" (comes out as \"U\"), \"ã\" (comes out as \"a\")"_s};
        QTest::newRow("a page that has them")
            << QByteArray("model = epson-tm-u220b; codePages = \"437=0, 850=2\";") << QByteArray("pt")
            << QStringList();
        QTest::newRow("German on the same printer")
            << QByteArray("model = epson-tm-u220b;") << QByteArray("de") << QStringList();
        QTest::newRow("plain text") << QByteArray("model = plain-text;") << QByteArray("pl") << QStringList();
    }
    void labelsOnPrinters()
    {
        QFETCH(const QByteArray, printer);
        QFETCH(const QByteArray, catalogue);
        QTEST(check(tavolux("printers : {\ntill : { output = x; " + printer
                            + " }; };\nlanguage : { basedir = \"" TAVOLUX_BINARY_DIR
                              "/translations\"; file = \"/tavolux_"
                            + catalogue + ".qm\"; };")),
              "findings");
    }

    // The labels are Qtà, Descr., Prezzo, Importo, Imponibile, Aliquota IVA, IVA, TOTALE, Numero,
    // Progressivi.
    void labelWidths_data()
    {
        QTest::addColumn<QByteArray>("section"); // from line 3 on
        QTest::addColumn<QByteArray>("document");
        QTest::addColumn<QStringList>("findings");
        QTest::addColumn<QByteArray>("line"); // that the printer prints

        const auto widths = [](int quantity, int price, int total, int paper) {
            return " : {\nquantityFieldWidth = " + QByteArray::number(quantity) + ";\npriceFieldWidth = "
                + QByteArray::number(price) + ";\ntotalPriceFieldWidth = " + QByteArray::number(total)
                + ";\npaperWidth = " + QByteArray::number(paper) + ";\n};";
        };
        const auto documentOf = [](const QByteArray &method, const QByteArray &element) {
            return "<d><method name='" + method + "'/>" + element + "</d>";
        };
        const QByteArray item = "<receipe/>";
        const QByteArray itemType = "<receipe_type/>";
        const QString title =
            u"%1: \"%2\" is %3, but the title \"%4\" has %5 characters, so it pushes its row wider"_s;
        const QString label = u"7: the label \"%1\" has %2 characters, but %3 in its column, so it %4"_s;

        QTest::newRow("titles that just fit")
            << "receiptdoc" + widths(3, 6, 7, 28) << documentOf("printFullOrderReceipt", item)
            << QStringList() << "Qtà Descr.     PrezzoImporto"_ba;
        const QStringList wideTitles{
            title.arg(u"4"_s, u"quantityFieldWidth"_s, u"2"_s, u"Qtà"_s, u"3"_s),
            title.arg(u"5"_s, u"priceFieldWidth"_s, u"5"_s, u"Prezzo"_s, u"6"_s),
            title.arg(u"6"_s, u"totalPriceFieldWidth"_s, u"6"_s, u"Importo"_s, u"7"_s)};
        const QByteArray wideLine = "Qtà Descr.        PrezzoImporto";
        QTest::newRow("receipt, all titles too wide")
            << "receiptdoc" + widths(2, 5, 6, 28) << documentOf("printFullOrderReceipt", item) << wideTitles
            << wideLine;
        QTest::newRow("invoice, all titles too wide")
            << "invoicedoc" + widths(2, 5, 6, 28) << documentOf("printFullOrderInvoice", item) << wideTitles
            << wideLine;
        QTest::newRow("order, all titles too wide")
            << "prefiscaldoc" + widths(2, 5, 6, 28) << documentOf("printFullOrder", item) << wideTitles
            << wideLine;
        QTest::newRow("price above the amounts of kinds of items")
            << "receiptdoc" + widths(3, 6, 5, 28) << documentOf("printAbstractOrderReceipt", itemType)
            << QStringList{title.arg(u"6"_s, u"totalPriceFieldWidth"_s, u"5"_s, u"Importo"_s, u"7"_s),
                           title.arg(u"6"_s, u"totalPriceFieldWidth"_s, u"5"_s, u"Prezzo"_s, u"6"_s)}
            << "Qtà Descr.             Prezzo"_ba;
        QTest::newRow("labels of totals")
            << "invoicedoc" + widths(3, 6, 7, 28) << documentOf("printFullOrderInvoice", "<totals/>")
            << QStringList{label.arg(u"Aliquota IVA"_s, u"12"_s, u"11"_s, u"is cut"_s)}
            << "    Aliquota IV......       "_ba;
        QTest::newRow("description and total")
            << "receiptdoc" + widths(3, 6, 7, 22) << documentOf("printFullOrderReceipt", item)
            << QStringList{label.arg(u"Descr."_s, u"6"_s, u"5"_s, u"is cut"_s),
                           label.arg(u"TOTALE"_s, u"6"_s, u"5"_s, u"is cut"_s)}
            << "Qtà Descr"
               "PrezzoImporto"_ba;
        QTest::newRow("titles of a statement")
            << "reportdoc" + widths(3, 6, 7, 30) << documentOf("printStatementOfAccount", "<statement_list/>")
            << QStringList{title.arg(u"5"_s, u"priceFieldWidth"_s, u"6"_s, u"Importo"_s, u"7"_s)}
            << "Data           Descr.Importo"_ba;
        QTest::newRow("figures of a report")
            << "reportdoc" + widths(3, 1, 7, 25)
            << documentOf("printReport", "<invoicessummary firstserial='1'/>")
            << QStringList{title.arg(u"5"_s, u"priceFieldWidth"_s, u"1"_s, u"Importo"_s, u"7"_s),
                           label.arg(u"Progressivi"_s, u"11"_s, u"10"_s, u"moves its figure"_s)}
            << "Progressivi1 - "_ba;
    }
    void labelWidths()
    {
        QFETCH(const QByteArray, section);
        QFETCH(QByteArray, document);
        QFETCH(const QStringList, findings);
        QFETCH(const QByteArray, line);
        const QByteArray text = tavolux("language : { basedir = \"" TAVOLUX_BINARY_DIR
                                        "/translations\"; file = \"/tavolux_it.qm\"; };\n"
                                        + section);
        QCOMPARE(check(text), findings);

        QTranslator italian;
        QVERIFY(italian.load(TAVOLUX_BINARY_DIR "/translations/tavolux_it.qm"_L1));
        QCoreApplication::installTranslator(&italian); // which takes itself away
        const TXConfiguration configuration(home.writeFile(u"tavolux.conf"_s, text), u"cfg"_s);
        QBuffer xml(&document);
        QBuffer paper;
        paper.open(QIODevice::WriteOnly);
        CompanyPrinterDriver printer(configuration, std::make_unique<PrintOutput>(paper, u"paper"_s));
        QVERIFY(printDocument(xml, printer).complete());
        QVERIFY2(paper.data().split('\n').contains(line), paper.data().constData());
    }

    void startersFitEveryLanguage_data()
    {
        QTest::addColumn<QString>("language");
        QTest::addColumn<int>("paperWidth");
        const QStringList languages =
            QString::fromLatin1(fileBytes(u"" TAVOLUX_SOURCE_DIR "/translations/languages"_s))
                .split(u'\n', Qt::SkipEmptyParts);
        QVERIFY(!languages.isEmpty());
        for (const QString &language : languages)
            for (const int width : starterPaperWidths())
                QTest::addRow("%s, %d columns", qPrintable(language), width) << language << width;
    }
    void startersFitEveryLanguage()
    {
        QFETCH(const QString, language);
        QFETCH(const int, paperWidth);
        QByteArray text = starterConfiguration(paperWidth);
        text.replace("file = \"/\";", "file = \"/tavolux_" + language.toLatin1() + ".qm\";");
        const qsizetype basedir = text.indexOf("basedir = \"");
        text.replace(basedir, text.indexOf(';', basedir) - basedir,
                     "basedir = \"" TAVOLUX_BINARY_DIR "/translations\"");
        QCOMPARE(check(text), QStringList());
    }

    // A label that the sources spell otherwise would never be found too wide.
    void everyLabelIsTranslated()
    {
        QTranslator italian;
        QVERIFY(italian.load(TAVOLUX_BINARY_DIR "/translations/tavolux_it.qm"_L1));
        DocumentProfile profile;
        profile.quantityFieldWidth = profile.priceFieldWidth = profile.totalPriceFieldWidth = 1;
        const auto wide = [&](QLatin1StringView type, int paperWidth) {
            profile.paperWidth = paperWidth;
            return wideLabels(*std::ranges::find(documentTypes, type, &DocumentType::name), profile, italian)
                .size();
        };
        // Titles, and labels that one character is left for.
        QCOMPARE(wide("prefiscal"_L1, 5), 3U + 2U);
        QCOMPARE(wide("receipt"_L1, 5), 4U + 2U);
        QCOMPARE(wide("invoice"_L1, 5), 4U + 5U);
        QCOMPARE(wide("report"_L1, 16), 1U + 5U);
        // Of a statement; IVA is the only label of a report that five characters are enough for.
        QCOMPARE(wide("report"_L1, 20), 1U + 1U + 4U);
        for (const QLatin1StringView type : {"order"_L1, "delivery"_L1, "sold"_L1, "fiscal"_L1})
            QCOMPARE(wide(type, 5), 0U);
    }

    void xml_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QStringList>("findings");

        QTest::newRow("nothing to say")
            << QByteArray("<tavolux><doc printNote='true' style='{a=b}'/></tavolux>") << QStringList();
        QTest::newRow("names and values, with the line of their tag")
            << QByteArray("<tavolux>\n<doc\npaperWith='42'\nprintNote='yes'/></tavolux>")
            << QStringList{
                   u"2: \"paperWith\" is no setting of \"tavolux.doc\" that is ever read; did you mean \"paperWidth\"?"_s,
                   u"2: \"printNote\" is \"yes\", neither \"true\" nor \"false\", so it is off"_s};
        QTest::newRow("setting written as an element")
            << QByteArray("<tavolux>\n<doc>\n<paperWidth>42</paperWidth></doc></tavolux>")
            << QStringList{u"3: \"paperWidth\" is no section of \"tavolux.doc\" that is ever read"_s,
                           u"3: \"42\" belongs to no setting and is passed over"_s};
        QTest::newRow("another root")
            << QByteArray("<conf><doc printNote='true'/></conf>")
            << QStringList{
                   u"1: the first section is \"conf\", not \"tavolux\", so nothing in the file is found"_s};
        QTest::newRow("declaration")
            << QByteArray("<?xml version='1.0'?>\n<tavolux><doc printNote='true'/></tavolux>")
            << QStringList{
                   u"1: the first node is not the root element but a declaration or a comment, so nothing in the file is found"_s};
        QTest::newRow("comment")
            << QByteArray("<!-- mine -->\n<tavolux><doc printNote='true'/></tavolux>")
            << QStringList{
                   u"1: the first node is not the root element but a declaration or a comment, so nothing in the file is found"_s};
        QTest::newRow("beyond Latin-1")
            << QByteArray("<tavolux>\n<doc style='\xE2\x82\xAC'/></tavolux>")
            << QStringList{u"2: characters outside of Latin-1 are read as question marks: \"€\""_s};
        QTest::newRow("Latin-1 in UTF-8 is well")
            << QByteArray("<tavolux><doc style='\xC3\xB6'/></tavolux>") << QStringList();
        QTest::newRow("printers")
            << QByteArray("<tavolux><printers>\n<till output='x' model='generic-81'/></printers></tavolux>")
            << QStringList{
                   u"2: \"model\" is \"generic-81\", not the name of a model; did you mean \"generic-80\"?"_s};
        QTest::newRow("no room")
            << QByteArray("<tavolux>\n<doc paperWidth='3'/></tavolux>")
            << QStringList{
                   u"2: \"tavolux.doc\" leaves no room for descriptions: of 3 characters in a line the other columns take 3"_s};
        QTest::newRow("too deep")
            << QByteArray("<s>").repeated(257) + QByteArray("</s>").repeated(257)
            << QStringList{u"1: sections nest deeper than 256, so nothing in the file is read"_s};
    }
    void xml()
    {
        QFETCH(const QByteArray, text);
        QTEST(check(text, u"xml"_s), "findings");
    }

    void xmlThatIsNotWellFormed()
    {
        const QStringList findings = check("<tavolux>\n<doc>\n</tavolux>", u"xml"_s);
        QCOMPARE(findings.size(), 1);
        QVERIFY2(findings.first().startsWith("3: this is no well-formed XML, so nothing in it is read: "_L1),
                 qPrintable(findings.first()));
    }

    // The check knows what the tightest row of each profile leaves; the printer must agree, at every width.
    void roomForDescriptions_data()
    {
        QTest::addColumn<QByteArray>("section");
        QTest::addColumn<QStringList>("formats");

        QTest::newRow("order") << QByteArray("doc") << QStringList{u"qd"_s};
        QTest::newRow("prefiscal") << QByteArray("prefiscaldoc") << QStringList{u"qdpt"_s};
        QTest::newRow("fiscal") << QByteArray("fiscaldoc") << QStringList();
        QTest::newRow("receipt") << QByteArray("receiptdoc") << QStringList{u"qxdpt"_s, u"qdpt"_s};
        QTest::newRow("invoice") << QByteArray("invoicedoc") << QStringList{u"qdpt"_s, u"qxdpt"_s};
        QTest::newRow("delivery") << QByteArray("deliverydoc") << QStringList{u"qd"_s};
        QTest::newRow("report") << QByteArray("reportdoc") << QStringList{u"date-amount-type"_s};
        QTest::newRow("sold") << QByteArray("solddoc") << QStringList{u"qxdpt"_s};
    }
    void roomForDescriptions()
    {
        QFETCH(const QByteArray, section);
        QFETCH(const QStringList, formats);
        ProfiledPrinter printer(home.filePath(u"printed"_s));
        DocumentProfile profile;
        profile.quantityFieldWidth = 3;
        profile.priceFieldWidth = 7;
        profile.totalPriceFieldWidth = 8;
        for (profile.paperWidth = 1; profile.paperWidth < 50; ++profile.paperWidth) {
            printer.setProfile(profile);
            bool room = true;
            for (const QString &format : formats)
                room = room && printer.descriptionRow({}, u"D"_s, {}, {}, u' ', format).contains(u'D');
            const QStringList findings = check(tavolux(
                section
                + " : { quantityFieldWidth = 3; priceFieldWidth = 7; totalPriceFieldWidth = 8; paperWidth = "
                + QByteArray::number(profile.paperWidth) + "; };"));
            QCOMPARE(findings.size(), room ? 0 : 1);
            if (!room)
                QVERIFY2(findings.first().startsWith("2: \"tavolux."_L1 + QString::fromLatin1(section)
                                                     + "\" leaves no room for descriptions: of "_L1),
                         qPrintable(findings.first()));
        }
    }

    void roomOnThePrintersOwnPaper()
    {
        const ProfiledPrinter printer(home.filePath(u"printed"_s));
        QCOMPARE(printer.getPaperWidth(), 34U);
        QCOMPARE(check(tavolux("doc : { quantityFieldWidth = 30; };")), QStringList());
        QCOMPARE(
            check(tavolux("doc : { quantityFieldWidth = 31; };")),
            QStringList{
                u"2: \"tavolux.doc\" leaves no room for descriptions: of 34 characters in a line the other columns take 34"_s});
    }

    // What the printing program sees of a section that is given twice.
    void roomWithASectionGivenTwice()
    {
        const QStringList findings =
            check(tavolux("doc : { quantityFieldWidth = 40; };\ndoc : { paperWidth = 50; };"));
        QCOMPARE(findings.size(), 1);
        QVERIFY(findings.first().contains("is given twice"_L1));
    }

private:
    const TemporaryHome home;
};

QTEST_GUILESS_MAIN(ConfigurationCheckTest)
#include "configuration_check_test.moc"
