/*
 * Keeps the Markdown pages honest: what they show as printed is what the program prints, and what the sources
 * know is what the pages name.
 */
#include "program_run.h"
#include "temporary_home.h"

#include <QDirIterator>
#include <QRegularExpression>
#include <QSet>
#include <QStandardPaths>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

const QDir projectFolder(QStringLiteral(TAVOLUX_SOURCE_DIR));

QString projectText(const QString &path)
{
    return QString::fromUtf8(fileBytes(projectFolder.filePath(path)));
}

QStringList markdownPages()
{
    QStringList found;
    for (const QString &folder : {u"."_s, u"docs"_s})
        for (const QString &page : QDir(projectFolder.filePath(folder)).entryList({u"*.md"_s}, QDir::Files))
            found.append(QDir::cleanPath(folder + u'/' + page));
    return found;
}

struct FencedBlock
{
    QString language;
    QString text; // with the line end of its last line
    qsizetype line = 0;
};

/* A page taken apart: its fenced blocks, and the prose between them. */
struct Page
{
    QList<FencedBlock> blocks;
    QString prose;
};

Page readPage(const QString &path)
{
    Page page;
    bool inBlock = false;
    qsizetype number = 0;
    const QString text = projectText(path);
    for (const QString &line : text.split(u'\n')) {
        ++number;
        if (line.startsWith("```"_L1)) {
            inBlock = !inBlock;
            if (inBlock)
                page.blocks.append({line.sliced(3), QString(), number});
        } else if (inBlock) {
            page.blocks.last().text += line + u'\n';
        } else {
            page.prose += line + u'\n';
        }
    }
    return page;
}

/*
 * The bytes that a printout of a page stands for: blanks at the end of a line are shown as middle dots, and
 * the escape character by its symbol; the drawer command ends a document without a line end.
 */
QByteArray printedBytes(QString shown)
{
    shown.replace(u'·', u' ').replace(u'␛', QChar(0x1B));
    if (shown.endsWith("\x1Bp0\n"_L1))
        shown.chop(1);
    return shown.toUtf8();
}

/* The distinct texts that the pattern's first group takes in the named sources. */
QStringList textsInSources(const QStringList &sources, const QString &pattern)
{
    const QRegularExpression expression(pattern);
    QStringList texts;
    for (const QString &source : sources)
        for (const QRegularExpressionMatch &match : expression.globalMatch(projectText(source)))
            texts.append(match.captured(1));
    texts.removeDuplicates();
    return texts;
}

QStringList sources(const QString &folder)
{
    QStringList found;
    QDirIterator files(projectFolder.filePath(folder), {u"*.cpp"_s}, QDir::Files,
                       QDirIterator::Subdirectories);
    while (files.hasNext())
        found.append(projectFolder.relativeFilePath(files.next()));
    return found;
}

/* The anchor that a heading gets where the pages are shown. */
QString anchor(const QString &heading)
{
    static const QRegularExpression dropped(u"[^\\w\\- ]"_s, QRegularExpression::UseUnicodePropertiesOption);
    return heading.toLower().remove(dropped).replace(u' ', u'-');
}

QStringList anchors(const QString &prose)
{
    static const QRegularExpression headings(u"^#+ (.*)$"_s, QRegularExpression::MultilineOption);
    QStringList found;
    for (const QRegularExpressionMatch &match : headings.globalMatch(prose))
        found.append(anchor(match.captured(1)));
    return found;
}

} // namespace

class PagesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void printsWhatThePageShows_data();
    void printsWhatThePageShows();
    void passesTheSchema_data();
    void passesTheSchema();
    void everyDocumentHasItsPrintout_data();
    void everyDocumentHasItsPrintout();
    void linksResolve_data();
    void linksResolve();
    void everyPageAndPictureIsReached();
    void namesWhatTheSourcesKnow_data();
    void namesWhatTheSourcesKnow();
    void mapsEveryFolder();
    void showsTheMessagesOfTheSources();
    void showsNoOtherMessages();
};

// Each xml block is a document, printed with the tavolux-conf block above it; the text block after it is its
// printout. Of the block "xml picture" a picture is shown instead, which the preview's tests compare.
void PagesTest::printsWhatThePageShows_data()
{
    QTest::addColumn<QString>("configuration");
    QTest::addColumn<QString>("document");
    QTest::addColumn<QString>("printout");

    for (const QString &path : markdownPages()) {
        QString configuration;
        const QList<FencedBlock> blocks = readPage(path).blocks;
        for (qsizetype i = 0; i < blocks.size(); ++i) {
            if (blocks[i].language == "tavolux-conf"_L1)
                configuration = blocks[i].text;
            else if (blocks[i].language == "xml"_L1)
                QTest::addRow("%s:%lld", qPrintable(path), static_cast<long long>(blocks[i].line))
                    << configuration << blocks[i].text << blocks.value(i + 1).text;
        }
    }
}

void PagesTest::printsWhatThePageShows()
{
    QFETCH(const QString, configuration);
    QFETCH(const QString, document);
    QFETCH(const QString, printout);

    const TemporaryHome home;
    home.writeConfiguration(configuration.toLatin1());
    const QString input = home.writeFile(u"order.xml"_s, document.toUtf8());
    const ProgramResult run = runProgram(QStringLiteral(TAVOLUX_PRINTER),
                                         {input, home.filePath(u"printed"_s)}, {{u"HOME"_s, home.path()}});

    QVERIFY(!run.crashed);
    QCOMPARE(run.standardOutput, QByteArray());
    QCOMPARE(run.standardError, QByteArray());
    QCOMPARE(fileBytes(home.filePath(u"printed"_s)), printedBytes(printout));
}

void PagesTest::passesTheSchema_data()
{
    QTest::addColumn<QString>("document");
    for (const QString &path : markdownPages())
        for (const FencedBlock &block : readPage(path).blocks)
            if (block.language.startsWith("xml"_L1))
                QTest::addRow("%s:%lld", qPrintable(path), static_cast<long long>(block.line)) << block.text;
}

void PagesTest::passesTheSchema()
{
    QFETCH(const QString, document);
    if (QStandardPaths::findExecutable(u"xmllint"_s).isEmpty())
        QSKIP("xmllint is not installed (scripts/setup installs it)");

    const TemporaryHome home;
    const ProgramResult run =
        runProgram(u"xmllint"_s,
                   {u"--noout"_s, u"--relaxng"_s, projectFolder.filePath(u"data/tavolux-document.rng"_s),
                    home.writeFile(u"order.xml"_s, document.toUtf8())});
    QVERIFY2(run.exitStatus == 0, run.standardError.constData());
}

void PagesTest::everyDocumentHasItsPrintout_data()
{
    QTest::addColumn<QString>("path");
    for (const QString &path : markdownPages())
        QTest::addRow("%s", qPrintable(path)) << path;
}

void PagesTest::everyDocumentHasItsPrintout()
{
    QFETCH(const QString, path);

    static const QStringList languages = {u""_s,     u"messages"_s, u"tavolux-conf"_s,
                                          u"text"_s, u"xml"_s,      u"xml picture"_s};
    QString before;
    for (const FencedBlock &block : readPage(path).blocks) {
        const QString where = u"%1:%2"_s.arg(path).arg(block.line);
        QVERIFY2(languages.contains(block.language), qPrintable(where));
        QVERIFY2((block.language == "text"_L1) == (before == "xml"_L1), qPrintable(where));
        before = block.language;
    }
    QVERIFY(before != "xml"_L1);
}

void PagesTest::linksResolve_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("target");

    static const QRegularExpression links(u"\\]\\(([^)]+)\\)"_s);
    for (const QString &path : markdownPages())
        for (const QRegularExpressionMatch &match : links.globalMatch(readPage(path).prose))
            QTest::addRow("%s: %s", qPrintable(path), qPrintable(match.captured(1)))
                << path << match.captured(1);
}

void PagesTest::linksResolve()
{
    QFETCH(const QString, path);
    QFETCH(const QString, target);

    const QString file = target.section(u'#', 0, 0);
    const QString fragment = target.section(u'#', 1);
    const QString linked = file.isEmpty() ? path : QDir::cleanPath(QFileInfo(path).path() + u'/' + file);
    QVERIFY(QFileInfo::exists(projectFolder.filePath(linked)));
    if (!fragment.isEmpty())
        QVERIFY(anchors(readPage(linked).prose).contains(fragment));
}

// From another page.
void PagesTest::everyPageAndPictureIsReached()
{
    QSet<QString> linked;
    static const QRegularExpression links(u"\\]\\(([^)#]+)"_s);
    for (const QString &path : markdownPages())
        for (const QRegularExpressionMatch &match : links.globalMatch(readPage(path).prose))
            linked.insert(QDir::cleanPath(QFileInfo(path).path() + u'/' + match.captured(1)));

    QDirIterator files(projectFolder.filePath(u"docs"_s), {u"*.md"_s, u"*.png"_s}, QDir::Files,
                       QDirIterator::Subdirectories);
    QVERIFY(files.hasNext());
    while (files.hasNext()) {
        const QString file = projectFolder.relativeFilePath(files.next());
        QVERIFY2(linked.contains(file), qPrintable(file));
    }
}

void PagesTest::namesWhatTheSourcesKnow_data()
{
    QTest::addColumn<QStringList>("names");
    QTest::addColumn<QStringList>("pages");
    QTest::addColumn<qsizetype>("least"); // so that a pattern that misses its table is noticed

    const QStringList profile = {u"src/driver/document_profile.cpp"_s};
    const QStringList documents =
        sources(u"src/documents"_s) + QStringList{u"src/driver/document_headers.cpp"_s};
    const QStringList configuration = {u"docs/configuration.md"_s, u"docs/man/tavolux.conf.5.in"_s};
    const QStringList format = {u"docs/document-format.md"_s};

    QTest::newRow("settings of every profile")
        << textsInSources(profile, u"\\{\"(\\w+)\"_L1,\\s*&DocumentProfile::"_s) << configuration
        << qsizetype(22);
    QTest::newRow("settings that no field of a profile holds")
        << textsInSources({u"src/driver/document_profile.h"_s}, u"QLatin1StringView \\w+\\{\"(\\w+)\""_s)
        << configuration << qsizetype(3);
    QTest::newRow("settings of the program")
        << textsInSources({u"src/driver/labels.cpp"_s}, u"getStrValue\\(u\"([\\w.]+)\"_s\\)"_s)
        << QStringList{configuration.first()} << qsizetype(2);
    QTest::newRow("profiles") << textsInSources(profile, u"\"tavolux\\.(\\w+)\\.\"_L1"_s) << configuration
                              << qsizetype(8);

    QTest::newRow("settings of a printer")
        << textsInSources({u"src/devices/printer_settings.cpp"_s}, u"\\{\"(\\w+)\"_L1, QT_TRANSLATE_NOOP"_s)
        << configuration << qsizetype(10);
    QTest::newRow("code pages") << textsInSources({u"src/devices/code_pages.cpp"_s},
                                                  u"CodePage::\\w+, \"([\\d-]+)\"_L1"_s)
                                << QStringList{configuration.first()} << qsizetype(12);
    QTest::newRow("models of printers") << textsInSources({u"src/devices/printer_models.cpp"_s},
                                                          u"\\{\"([\\w-]+)\"_L1,\\s*\"[^\"]+\"_L1,\\s*\\d"_s)
                                        << QStringList{u"docs/real-printer.md"_s} << qsizetype(32);

    QTest::newRow("methods") << textsInSources({u"src/driver/event_dispatch.cpp"_s},
                                               u"\\{\"(print\\w+)\"_L1,"_s)
                             << format + QStringList{u"docs/man/tavolux-printer.1.in"_s} << qsizetype(13);
    QTest::newRow("header elements") << textsInSources({u"src/driver/document_headers.cpp"_s},
                                                       u"\\{\"(\\w+)\"_L1, &PrinterDriver::"_s)
                                     << format << qsizetype(9);
    QTest::newRow("elements of the documents")
        << textsInSources(documents, u"qName == \"(\\w+)\"_L1"_s) << format << qsizetype(10);
    QTest::newRow("blocks of the report")
        << textsInSources(documents, u"\\{\"(\\w+)\"_L1,\\s*&SummaryReport::"_s) << format << qsizetype(6);
    QTest::newRow("attributes") << textsInSources(documents,
                                                  u"(?:value\\(|printFigure\\(.*, )u\"(\\w+)\"_s\\)"_s)
                                << format << qsizetype(31);
    QTest::newRow("attributes of labelled lines")
        << textsInSources(documents, u"\\),\\s*\"(\\w+)\"_L1\\}"_s) << format << qsizetype(9);
}

void PagesTest::namesWhatTheSourcesKnow()
{
    QFETCH(const QStringList, names);
    QFETCH(const QStringList, pages);
    QFETCH(const qsizetype, least);

    QCOMPARE_GE(names.size(), least);
    for (const QString &page : pages) {
        const bool isManual = page.endsWith(".in"_L1);
        const QString prose = readPage(page).prose;
        for (const QString &name : names) {
            const QRegularExpression named((isManual ? u"\\b%1\\b"_s : u"`%1`"_s).arg(name));
            QVERIFY2(named.match(prose).hasMatch(), qPrintable(page + u": "_s + name));
        }
    }
}

void PagesTest::mapsEveryFolder()
{
    static const QStringList generated = {u"build"_s, u"printouts"_s};
    QStringList folders = projectFolder.entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    QVERIFY(folders.removeOne(u"src"_s));
    for (const QString &room :
         QDir(projectFolder.filePath(u"src"_s)).entryList(QDir::Dirs | QDir::NoDotAndDotDot))
        folders.append("src/"_L1 + room);

    const QString map =
        projectText(u"README.md"_s).section(u"## Map of the tree"_s, 1).section(u"\n## "_s, 0, 0);
    for (const QString &folder : folders) {
        const bool named = map.contains(u'[' + folder + u']') || map.contains(u'`' + folder + u'`');
        QVERIFY2(named || generated.contains(folder), qPrintable(folder));
    }
}

void PagesTest::showsTheMessagesOfTheSources()
{
    // What the configuration tree prints on request is no message.
    QStringList printing = sources(u"src/app"_s) + sources(u"src/driver"_s) + sources(u"src/devices"_s)
        + sources(u"src/documents"_s) + sources(u"src/libconfig"_s);
    QVERIFY(printing.removeOne(u"src/libconfig/config_writers.cpp"_s));
    const QStringList messages = textsInSources(printing, u"printDiagnostic\\(\\s*\"([^\"]*)\""_s);

    QCOMPARE(messages.size(), 8);
    const QString readme = projectText(u"README.md"_s);
    for (const QString &message : messages)
        QVERIFY2(readme.contains(u'\n' + message), qPrintable(message));
}

void PagesTest::showsNoOtherMessages()
{
    QString allSources;
    for (const QString &source : sources(u"src"_s))
        allSources += projectText(source);

    static const QRegularExpression placeholder(u"<\\w+>"_s);
    int shown = 0;
    for (const FencedBlock &block : readPage(u"README.md"_s).blocks) {
        if (block.language != "messages"_L1)
            continue;
        for (const QString &message : block.text.split(u'\n', Qt::SkipEmptyParts)) {
            ++shown;
            for (const QString &part : message.split(placeholder))
                QVERIFY2(allSources.contains(part), qPrintable(message));
        }
    }
    QCOMPARE(shown, 8);
}

QTEST_GUILESS_MAIN(PagesTest)

#include "pages_test.moc"
