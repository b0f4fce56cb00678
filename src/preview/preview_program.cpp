#include "preview_program.h"

#include "document_previewer.h"
#include "file_name.h"
#include "files.h"
#include "interface_language.h"
#include "preview_window.h"
#include "printout_files.h"
#include "printout_painter.h"
#include "tx_configuration.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QFileInfo>
#include <QIcon>
#include <QImage>
#include <QTranslator>

#include <unistd.h>

#include <algorithm>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <iostream>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

enum ExitStatus {
    exitWhole = 0,
    exitIncomplete = 1, // shown or written, but not all of the document
    exitTrouble = 2, // nothing was shown or written
};

const QString programName = u"tavolux-preview"_s;

void complain(const QString &message)
{
    std::cerr << fileNameBytes(programName + u": "_s + message).constData() << '\n';
}

ExitStatus refuse(const QString &message)
{
    complain(message + u"\nTry \"tavolux-preview --help\"."_s);
    return exitTrouble;
}

// The toolkit ends a program without a display by a crash, after this message.
void endWithoutDisplay(QtMsgType type, const QMessageLogContext &, const QString &message)
{
    if (type != QtFatalMsg)
        return;
    complain(message.contains("platform plugin"_L1)
                 ? u"there is no display for a window; name a file to write instead"_s
                 : message);
    std::_Exit(exitTrouble);
}

/* What the command line asks for. */
struct Task
{
    QString document;
    QString output; // empty for the window, "-" for standard output
    std::optional<PrintoutFormat> format;
    QString configuration;
    PreviewChoice choice;
};

ExitStatus write(const Task &task, const PrintoutPainter &painter)
{
    const PrintoutFile file = printoutFile(painter, *task.format);
    const QString error = !file.error.isEmpty() ? file.error
        : task.output == "-"_L1                 ? writeFile(u"/dev/stdout"_s, file.bytes)
                                                : writeFile(task.output, file.bytes);
    if (error.isEmpty())
        return exitWhole;
    complain(u"cannot write %1: %2"_s.arg(task.output == "-"_L1 ? u"standard output"_s : task.output, error));
    return exitTrouble;
}

// Says what is wrong with the preview.
ExitStatus judge(const Task &task, const Preview &preview)
{
    for (const QString &remark : preview.remarks())
        complain(task.document + u": "_s + remark);
    return preview.isWhole() ? exitWhole : exitIncomplete;
}

/* The command line, which is understood before there is an application object: what it asks for decides
 * which. */
class CommandLine
{
public:
    explicit CommandLine(const QStringList &arguments)
    {
        m_parser.setApplicationDescription(
            u"Shows a document as it would be printed, in a window or as a file.\n\n"
            "Exit status: 0 if all of the document is shown, 1 if only a part of it, 2 if nothing."_s);
        m_parser.addOptions({m_help, m_version, m_file, m_printer, m_columns, m_language, m_format});
        m_parser.addPositionalArgument(u"DOCUMENT"_s, u"The document, as XML."_s);
        m_parser.addPositionalArgument(
            u"OUT"_s,
            u"The file to write instead of opening a window: .png, .svg, .pdf or .txt; or - for standard output."_s,
            u"[OUT]"_s);
        m_isUnderstood = m_parser.parse(arguments);
    }

    bool asksForHelp() const { return m_isUnderstood && m_parser.isSet(m_help); }
    bool asksForVersion() const { return m_isUnderstood && m_parser.isSet(m_version); }
    QString help() const { return m_parser.helpText(); }

    /* The task, or an empty one and what is wrong with the command line. */
    std::pair<Task, QString> task() const
    {
        const QStringList names = m_parser.positionalArguments();
        Task task;
        if (!m_isUnderstood)
            return {{}, m_parser.errorText()};
        if (names.isEmpty())
            return {{}, u"the name of the document is missing"_s};
        if (names.size() > 2)
            return {{}, u"there are more than two names of files"_s};
        task.document = names.at(0);
        task.output = names.value(1);
        task.configuration = m_parser.value(m_file);
        task.format =
            m_parser.isSet(m_format) ? formatNamed(m_parser.value(m_format)) : formatOfFile(task.output);
        if (m_parser.isSet(m_format) && !task.format)
            return {{}, u"unknown format '%1': it is png, svg, pdf or txt"_s.arg(m_parser.value(m_format))};
        if (names.size() == 2 && !task.format)
            return {
                {},
                u"the format is missing: '%1' does not end in .png, .svg, .pdf or .txt"_s.arg(task.output)};
        if (names.size() == 1 && m_parser.isSet(m_format))
            return {{}, u"a format is for a file, whose name is missing"_s};
        if (m_parser.isSet(m_columns)) {
            bool isNumber = false;
            task.choice.columns = m_parser.value(m_columns).toInt(&isNumber);
            if (!isNumber || task.choice.columns < 1 || task.choice.columns > Printout::maximumColumns)
                return {{},
                        u"'%1' is no number of columns: it is 1 to %2"_s.arg(m_parser.value(m_columns))
                            .arg(Printout::maximumColumns)};
        }
        if (m_parser.isSet(m_printer) && m_parser.isSet(m_columns))
            return {{}, u"a printer has its columns: either --printer or --columns"_s};
        task.choice.printer = m_parser.value(m_printer);
        if (m_parser.isSet(m_language))
            task.choice.language = m_parser.value(m_language);
        return {task, {}};
    }

private:
    const QCommandLineOption m_help{{u"h"_s, u"help"_s}, u"Displays this help."_s};
    const QCommandLineOption m_version{{u"v"_s, u"version"_s}, u"Displays the version."_s};
    const QCommandLineOption m_file{
        u"file"_s, u"The configuration to print with, the user's own unless given."_s, u"CONFIGURATION"_s};
    const QCommandLineOption m_printer{
        u"printer"_s, u"A printer of the configuration or a model, the first configured one unless given."_s,
        u"NAME"_s};
    const QCommandLineOption m_columns{u"columns"_s, u"The width of the paper, as configured unless given."_s,
                                       u"N"_s};
    const QCommandLineOption m_language{
        u"language"_s, u"The language of the labels, such as de, as configured unless given."_s,
        u"LANGUAGE"_s};
    const QCommandLineOption m_format{u"format"_s, u"The format of OUT, whatever its name."_s,
                                      u"png|svg|pdf|txt"_s};
    QCommandLineParser m_parser;
    bool m_isUnderstood = false;
};

// What is wrong with the task as the machine stands, if anything is.
QString obstacle(const Task &task)
{
    if (const QString error = openForReading(task.configuration).error;
        !error.isEmpty() && task.configuration != TXConfiguration::userFile())
        return u"cannot read %1: %2"_s.arg(task.configuration, error);
    const TXConfiguration configuration(task.configuration, u"cfg"_s);
    if (const QStringList printers = DocumentPreviewer::printers(configuration);
        !task.choice.printer.isEmpty() && !printers.contains(task.choice.printer))
        return u"there is no printer '%1', only: %2"_s.arg(task.choice.printer, printers.join(u", "_s));
    const QStringList languages = DocumentPreviewer::languages(configuration);
    if (task.choice.language && !languages.contains(*task.choice.language))
        return u"there are no labels in the language '%1', only in: %2"_s.arg(*task.choice.language,
                                                                              languages.join(u", "_s));
    // A text needs no font; for all else an application object with fonts is there.
    if (task.format != PrintoutFormat::txt && !PrintoutPainter::gridFont(QImage(1, 1, QImage::Format_RGB32)))
        return u"no font of fixed width is installed: the package fonts-dejavu-core has one"_s;
    return {};
}

ExitStatus writeOutput(const Task &task, QIODevice &document)
{
    DocumentPreviewer previewer;
    const Preview preview =
        previewer.preview(document, TXConfiguration(task.configuration, u"cfg"_s), task.choice);
    const ExitStatus status = judge(task, preview);
    return std::max(status, write(task, PrintoutPainter(preview.printout, preview.remarks())));
}

ExitStatus showWindow(const Task &task)
{
    QGuiApplication::setApplicationDisplayName(u"Tavolux Preview"_s);
    QGuiApplication::setDesktopFileName(programName);
    QGuiApplication::setWindowIcon(QIcon::fromTheme(programName));
    QTranslator translator;
    (void)loadInterface(translator);
    QCoreApplication::installTranslator(&translator);

    PreviewWindow window(task.document, task.configuration, task.choice);
    (void)judge(task, window.preview());
    window.show();
    QApplication::exec();
    return window.preview().isWhole() ? exitWhole : exitIncomplete;
}

std::unique_ptr<QCoreApplication> makeApplication(const Task &task, int &argc, char **argv)
{
    if (task.output.isEmpty())
        return std::make_unique<QApplication>(argc, argv);
    if (task.format == PrintoutFormat::txt)
        return std::make_unique<QCoreApplication>(argc, argv);
    qputenv("QT_QPA_PLATFORM", "offscreen"); // a file needs no display
    return std::make_unique<QGuiApplication>(argc, argv);
}

} // namespace

int runPreview(int argc, char *argv[])
{
    std::signal(SIGPIPE, SIG_IGN);
    std::signal(SIGXFSZ, SIG_IGN);
    std::cout.rdbuf(nullptr); // what the drivers say there is said better here
    qInstallMessageHandler(endWithoutDisplay);
    QCoreApplication::setApplicationName(programName);
    QCoreApplication::setApplicationVersion(QStringLiteral(TAVOLUX_VERSION));

    QStringList arguments;
    for (int i = 0; i < argc; ++i)
        arguments << fileNameFromBytes(argv[i]);
    const CommandLine commandLine(arguments);
    if (commandLine.asksForHelp() || commandLine.asksForVersion()) {
        const QCoreApplication application(argc, argv);
        const QString answer = commandLine.asksForHelp()
            ? commandLine.help()
            : programName + u' ' + QCoreApplication::applicationVersion() + u'\n';
        std::fputs(qPrintable(answer), stdout);
        return exitWhole;
    }

    auto [task, mistake] = commandLine.task();
    if (!mistake.isEmpty())
        return refuse(mistake);
    if (task.configuration.isEmpty())
        task.configuration = TXConfiguration::userFile();

    const OpenedFile document = openForReading(task.document);
    if (!document.error.isEmpty()) {
        complain(u"cannot read %1: %2"_s.arg(task.document, document.error));
        return exitTrouble;
    }
    const std::unique_ptr<QCoreApplication> application = makeApplication(task, argc, argv);
    if (const QString error = obstacle(task); !error.isEmpty()) {
        complain(error);
        return exitTrouble;
    }
    if (!QFileInfo::exists(task.configuration))
        complain(
            u"there is no configuration %1; \"tavolux-config init\" writes one"_s.arg(task.configuration));
    return task.output.isEmpty() ? showWindow(task) : writeOutput(task, *document.file);
}
