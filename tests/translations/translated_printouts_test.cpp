#include "languages.h"
#include "program_run.h"

#include <QFile>
#include <QLocale>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

const QString examples = QStringLiteral(TAVOLUX_SOURCE_DIR "/examples/");
const QString catalogues = QStringLiteral(TAVOLUX_BINARY_DIR "/translations");
const QString goldens = QStringLiteral(TAVOLUX_SOURCE_DIR "/tests/translations/golden/");

/* The example configuration with the given language settings. */
QByteArray exampleConfiguration(const QString &basedir, const QByteArray &file)
{
    QByteArray configuration = fileBytes(examples + "tavolux.conf"_L1);
    const auto set = [&](const QByteArray &setting, const QByteArray &value) {
        const QByteArray empty = setting + " = \"\";";
        if (configuration.count(empty) != 1)
            qFatal("the example configuration has another %s than expected", setting.constData());
        configuration.replace(empty, setting + " = \"" + value + "\";");
    };
    set("basedir"_ba, basedir.toUtf8());
    set("file"_ba, file);
    return configuration;
}

} // namespace

/* What comes out on paper in each language, with the example profiles. */
class TranslatedPrintoutsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void printsExamples_data();
    void printsExamples();
    void followsLocale_data();
    void followsLocale();
    void prefersCatalogueOfRegion();
    void takesNamedCatalogue();
    void leavesOneLabelItalian();
    void unknownKindStaysAsItIs();

private:
    /* Prints the document as in the example configuration, with the variables set or (null) removed. */
    QByteArray print(const QByteArray &document, const QByteArray &configuration,
                     const QMap<QString, QString> &variables);

    /* The label of a bare total below the catalogues of a folder. */
    QByteArray totalLabel(const QString &basedir, const QMap<QString, QString> &variables);

    TemporaryHome home;
};

QByteArray TranslatedPrintoutsTest::print(const QByteArray &document, const QByteArray &configuration,
                                          const QMap<QString, QString> &variables)
{
    home.writeConfiguration(configuration);
    const QString input = home.writeFile(u"document.xml"_s, document);
    const QString output = home.filePath(u"printed.txt"_s);
    QMap<QString, QString> environment = variables;
    environment.insert(u"HOME"_s, home.path());
    const ProgramResult result = runProgram(QStringLiteral(TAVOLUX_PRINTER), {input, output}, environment);
    if (result.crashed || !result.standardOutput.isEmpty() || !result.standardError.isEmpty())
        qFatal("the program failed: %s%s", result.standardOutput.constData(),
               result.standardError.constData());
    return fileBytes(output);
}

void TranslatedPrintoutsTest::printsExamples_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("document");
    for (const QString &language : translatedLanguages())
        for (const QString &document :
             {u"full-receipt"_s, u"full-invoice"_s, u"report"_s, u"statement-of-account"_s})
            QTest::addRow("%s, %s", qPrintable(language), qPrintable(document)) << language << document;
}

void TranslatedPrintoutsTest::printsExamples()
{
    QFETCH(const QString, language);
    QFETCH(const QString, document);
    const QByteArray printed = print(fileBytes(examples + "documents/"_L1 + document + ".xml"_L1),
                                     exampleConfiguration(catalogues, "/"_ba),
                                     {{u"LC_ALL"_s, QLocale(language).name() + ".UTF-8"_L1}});
    const QByteArray golden = fileBytes(goldens + language + u'/' + document + ".txt"_L1);
    // Line by line, for a message that can be read.
    QCOMPARE(QString::fromUtf8(printed).split(u'\n'), QString::fromUtf8(golden).split(u'\n'));
    QCOMPARE(printed, golden);
}

QByteArray TranslatedPrintoutsTest::totalLabel(const QString &basedir,
                                               const QMap<QString, QString> &variables)
{
    const QByteArray printed = print(R"(<d><method name="printFullOrder"/><total/></d>)"_ba,
                                     exampleConfiguration(basedir, "/"_ba), variables);
    return printed.trimmed().split('.').first();
}

void TranslatedPrintoutsTest::followsLocale_data()
{
    QTest::addColumn<QString>("all");
    QTest::addColumn<QString>("lang");
    QTest::addColumn<QByteArray>("label");

    const QString unset;
    QTest::newRow("LC_ALL of the catalogue's country") << u"it_IT.UTF-8"_s << unset << "TOTALE"_ba;
    QTest::newRow("LC_ALL of another country") << u"it_CH.UTF-8"_s << unset << "TOTALE"_ba;
    QTest::newRow("LC_ALL before LANG") << u"it_IT.UTF-8"_s << u"de_DE.UTF-8"_s << "TOTALE"_ba;
    QTest::newRow("LANG alone") << unset << u"de_DE.UTF-8"_s << "GESAMT"_ba;
    QTest::newRow("a language beyond Latin-1") << u"pl_PL.UTF-8"_s << unset << "RAZEM"_ba;
    QTest::newRow("language without a catalogue") << u"fi_FI.UTF-8"_s << unset << "TOTAL"_ba;
    QTest::newRow("no language") << u"C"_s << unset << "TOTAL"_ba;
}

void TranslatedPrintoutsTest::followsLocale()
{
    QFETCH(const QString, all);
    QFETCH(const QString, lang);
    QFETCH(const QByteArray, label);
    QCOMPARE(totalLabel(catalogues, {{u"LC_ALL"_s, all}, {u"LANG"_s, lang}}), label);
}

void TranslatedPrintoutsTest::prefersCatalogueOfRegion()
{
    const TemporaryHome folder;
    QVERIFY(QFile::copy(catalogues + "/tavolux_it.qm"_L1, folder.filePath(u"tavolux_it.qm"_s)));
    QCOMPARE(totalLabel(folder.path(), {{u"LC_ALL"_s, u"it_IT.UTF-8"_s}}), "TOTALE"_ba);
    QVERIFY(QFile::copy(catalogues + "/tavolux_de.qm"_L1, folder.filePath(u"tavolux_it_IT.qm"_s)));
    QCOMPARE(totalLabel(folder.path(), {{u"LC_ALL"_s, u"it_IT.UTF-8"_s}}), "GESAMT"_ba);
}

void TranslatedPrintoutsTest::takesNamedCatalogue()
{
    const QByteArray printed =
        print(R"(<d><method name="printFullOrder"/><total price="1"/></d>)"_ba,
              exampleConfiguration(catalogues, "/tavolux_de.qm"_ba), {{u"LC_ALL"_s, u"it_IT.UTF-8"_s}});
    QCOMPARE(printed, "\n      GESAMT......................       1\n"_ba);
}

void TranslatedPrintoutsTest::leavesOneLabelItalian()
{
    const QByteArray printed = print(
        R"(<d><method name="printAbstractOrderReceipt"/><total price="1"/><notPaid price="20.50"/></d>)"_ba,
        exampleConfiguration(catalogues, "/"_ba), {{u"LC_ALL"_s, u"de_DE.UTF-8"_s}});
    QCOMPARE(printed,
             "\n      GESAMT......................       1\n\n   Corrispettivo non pagato: 20.50\n\x1Bp0"_ba);
}

void TranslatedPrintoutsTest::unknownKindStaysAsItIs()
{
    const QByteArray printed = print(
        R"(<d><method name="printStatementOfAccount"/><statement date="1" type="tip" amount="2"/></d>)"_ba,
        exampleConfiguration(catalogues, "/"_ba), {{u"LC_ALL"_s, u"de_DE.UTF-8"_s}});
    QCOMPARE(printed, "1:             tip....................2\n"_ba);
}

QTEST_GUILESS_MAIN(TranslatedPrintoutsTest)
#include "translated_printouts_test.moc"
