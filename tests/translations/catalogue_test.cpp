#include "languages.h"
#include "program_run.h"

#include <QDir>
#include <QMap>
#include <QStringEncoder>
#include <QTest>
#include <QXmlStreamReader>

using namespace Qt::StringLiterals;

namespace {

const QString sourceFolder = QStringLiteral(TAVOLUX_SOURCE_DIR);

struct Entry
{
    QString translation;
    QString state; // "unfinished", "vanished", "obsolete"; empty when all is well
};

/* The entries of a catalogue by context and label. */
QMap<QString, Entry> entries(const QString &catalogue)
{
    QMap<QString, Entry> found;
    QXmlStreamReader xml(fileBytes(catalogue));
    QString context;
    QString label;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (xml.name() == "name"_L1)
            context = xml.readElementText();
        else if (xml.name() == "source"_L1)
            label = xml.readElementText();
        else if (xml.name() == "translation"_L1) {
            const QString state = xml.attributes().value("type"_L1).toString();
            found.insert(context + "::"_L1 + label, {xml.readElementText(), state});
        }
    }
    if (xml.hasError())
        qFatal("%s: %s", qPrintable(catalogue), qPrintable(xml.errorString()));
    return found;
}

QString labelsOnlyIn(const QMap<QString, Entry> &catalogue, const QMap<QString, Entry> &other)
{
    QStringList labels = catalogue.keys();
    labels.removeIf([&](const QString &label) { return other.contains(label); });
    return labels.join(u"; ");
}

QString catalogueOf(const QString &language, const QString &folder = sourceFolder)
{
    return folder + "/translations/tavolux_"_L1 + language + ".ts"_L1;
}

QString leadingBlanks(const QString &text)
{
    return text.first(text.size() - QString(text + u'|').trimmed().size() + 1);
}

QString trailingBlanks(const QString &text)
{
    return text.last(text.size() - QString(u'|' + text).trimmed().size() + 1);
}

} // namespace

/* The catalogues hold the labels of the sources, all of them and no others, and every one is translated. */
class CatalogueTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void oneForEachLanguage();
    void holdsLabelsOfSources_data() { eachLanguage(); }
    void holdsLabelsOfSources();
    void isFinished_data() { eachLanguage(); }
    void isFinished();
    void keepsBlanksAndColons_data() { eachLanguage(); }
    void keepsBlanksAndColons();
    void hasOneTermForWhatIsNotPaid_data() { eachLanguage(); }
    void hasOneTermForWhatIsNotPaid();
    void isPrintableInItsCodePage_data() { eachLanguage(); }
    void isPrintableInItsCodePage();
    void newLanguageStartsUntranslated();
    void windowsAreTranslated_data();
    void windowsAreTranslated();

private:
    static void eachLanguage();

    TemporaryHome refreshed; // a copy of the catalogues, in line with the sources
};

// The script that refreshes the catalogues does it here in a copy of the folders it works in.
void CatalogueTest::initTestCase()
{
    for (const QString &folder : {u"scripts"_s, u"translations"_s, u"translations/windows"_s}) {
        QVERIFY(QDir(refreshed.path()).mkdir(folder));
        const auto files = QDir(sourceFolder + u'/' + folder).entryInfoList(QDir::Files);
        for (const QFileInfo &file : files)
            QVERIFY(QFile::copy(file.filePath(), refreshed.filePath(folder + u'/' + file.fileName())));
    }
    QVERIFY(QFile::link(sourceFolder + "/src"_L1, refreshed.filePath(u"src"_s)));
    const ProgramResult result = runProgram(refreshed.filePath(u"scripts/update-translations"_s), {});
    QVERIFY2(result.exitStatus == 0, result.standardError.constData());
}

void CatalogueTest::eachLanguage()
{
    QTest::addColumn<QString>("language");
    for (const QString &language : translatedLanguages())
        QTest::newRow(qPrintable(language)) << language;
}

void CatalogueTest::oneForEachLanguage()
{
    QStringList catalogues;
    for (const QString &language : translatedLanguages())
        catalogues << "tavolux_"_L1 + language + ".ts"_L1;
    QVERIFY(catalogues.size() >= 7);
    QCOMPARE(QDir(sourceFolder + "/translations"_L1).entryList({u"*.ts"_s}, QDir::Files, QDir::Name),
             catalogues);
}

void CatalogueTest::holdsLabelsOfSources()
{
    QFETCH(const QString, language);
    const QMap<QString, Entry> catalogue = entries(catalogueOf(language));
    const QMap<QString, Entry> wanted = entries(catalogueOf(language, refreshed.path()));
    QVERIFY(wanted.contains("QObject::    Amount not paid: "_L1));
    QVERIFY(wanted.contains("QObject::withdrawal"_L1));
    QCOMPARE(labelsOnlyIn(wanted, catalogue), QString());
    QCOMPARE(labelsOnlyIn(catalogue, wanted), QString());
}

void CatalogueTest::isFinished()
{
    QFETCH(const QString, language);
    const QMap<QString, Entry> catalogue = entries(catalogueOf(language));
    QVERIFY(!catalogue.isEmpty());
    QStringList unfinished;
    for (auto entry = catalogue.begin(); entry != catalogue.end(); ++entry)
        if (!entry->state.isEmpty() || entry->translation.isEmpty())
            unfinished << entry.key();
    QCOMPARE(unfinished.join(u"; "), QString());
}

// Blanks indent a label or part it from its value; the colon says that a value follows.
void CatalogueTest::keepsBlanksAndColons()
{
    QFETCH(const QString, language);
    const QMap<QString, Entry> catalogue = entries(catalogueOf(language));
    QVERIFY(!catalogue.isEmpty());
    for (auto entry = catalogue.begin(); entry != catalogue.end(); ++entry) {
        const QString label = entry.key().section("::"_L1, 1);
        const QString translation = entry->translation;
        const bool kept = leadingBlanks(translation) == leadingBlanks(label)
            && trailingBlanks(translation) == trailingBlanks(label)
            && translation.trimmed().endsWith(u':') == label.trimmed().endsWith(u':');
        QVERIFY2(kept, qPrintable(u"\"%1\" is translated as \"%2\""_s.arg(label, translation)));
    }
}

// On the receipt and in the report that sums it up.
void CatalogueTest::hasOneTermForWhatIsNotPaid()
{
    QFETCH(const QString, language);
    const QMap<QString, Entry> catalogue = entries(catalogueOf(language));
    QCOMPARE("    "_L1 + catalogue[u"QObject::Amount not paid: "_s].translation,
             catalogue[u"QObject::    Amount not paid: "_s].translation);
}

// Many printers have one byte for each character.
void CatalogueTest::isPrintableInItsCodePage()
{
    QFETCH(const QString, language);
    const QMap<QString, const char *> codePages = {{u"pl"_s, "CP852"}};
    const QMap<QString, Entry> catalogue = entries(catalogueOf(language));
    for (const Entry &entry : catalogue) {
        QStringEncoder encode(codePages.value(language, "CP858"), QStringEncoder::Flag::Stateless);
        QVERIFY(encode.isValid());
        const QByteArray bytes = encode(entry.translation);
        QVERIFY2(!encode.hasError(), qPrintable(entry.translation));
        QCOMPARE(bytes.size(), entry.translation.size());
    }
}

void CatalogueTest::newLanguageStartsUntranslated()
{
    const QString script = refreshed.filePath(u"scripts/update-translations"_s);
    QCOMPARE(runProgram(script, {u"pt_BR"_s}).exitStatus, 0);
    const QMap<QString, Entry> catalogue = entries(catalogueOf(u"pt_BR"_s, refreshed.path()));
    QCOMPARE(catalogue.keys(), entries(catalogueOf(u"it"_s, refreshed.path())).keys());
    for (const Entry &entry : catalogue)
        QCOMPARE(entry.state, u"unfinished"_s);

    const QByteArray languages = fileBytes(refreshed.filePath(u"translations/languages"_s));
    QVERIFY(languages.split('\n').contains("pt_BR"));
    QCOMPARE(runProgram(script, {u"Portuguese"_s}).exitStatus, 1);
    QCOMPARE(fileBytes(refreshed.filePath(u"translations/languages"_s)), languages);
}

// What windows say has catalogues of its own, which the printing program does not read.
void CatalogueTest::windowsAreTranslated_data()
{
    QTest::addColumn<QString>("language");
    const QByteArray languages = fileBytes(sourceFolder + "/translations/windows/languages"_L1);
    for (const QByteArray &language : languages.trimmed().split('\n'))
        QTest::newRow(language.constData()) << QString::fromUtf8(language);
    QCOMPARE(QDir(sourceFolder + "/translations/windows"_L1).entryList({u"*.ts"_s}).size(),
             languages.trimmed().split('\n').size());
}

void CatalogueTest::windowsAreTranslated()
{
    QFETCH(const QString, language);
    const QString catalogue = "/translations/windows/tavolux-windows_"_L1 + language + ".ts"_L1;
    const QMap<QString, Entry> found = entries(sourceFolder + catalogue);
    const QMap<QString, Entry> wanted = entries(refreshed.path() + catalogue);
    QVERIFY(wanted.contains("PreviewWindow::Saved."_L1));
    QVERIFY(!wanted.contains("QObject::withdrawal"_L1));
    QCOMPARE(labelsOnlyIn(wanted, found), QString());
    QCOMPARE(labelsOnlyIn(found, wanted), QString());
    for (auto entry = found.begin(); entry != found.end(); ++entry)
        QVERIFY2(entry->state.isEmpty() && !entry->translation.isEmpty(), qPrintable(entry.key()));
}

QTEST_GUILESS_MAIN(CatalogueTest)
#include "catalogue_test.moc"
