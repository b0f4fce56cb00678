#include "config_tool.h"

#include "ask_printer.h"
#include "configuration_check.h"
#include "configuration_scan.h"
#include "document_check.h"
#include "file_name.h"
#include "losses.h"
#include "nearest_name.h"
#include "print_output.h"
#include "printer_settings.h"
#include "read_file.h"
#include "starter_configuration.h"
#include "test_page.h"
#include "tx_configuration.h"
#include "write_file.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QFile>
#include <QStandardPaths>

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <iostream>
#include <optional>
#include <vector>

#include <unistd.h>

using namespace Qt::StringLiterals;
using libconfig::lossesByWriting;
using libconfig::saysMore;

namespace {

constexpr QLatin1StringView programName = "tavolux-config"_L1;
constexpr QLatin1StringView editorName = "tavolux-config-editor"_L1;

void print(QByteArrayView line)
{
    std::cout.write(line.data(), line.size()) << '\n';
}

void complain(const QString &message)
{
    std::cerr << shownFileName(programName + ": "_L1 + message).constData() << '\n';
}

ExitStatus refuse(const QString &message)
{
    complain(message);
    std::cerr << "Try \"tavolux-config --help\".\n";
    return exitTrouble;
}

/* The configuration that is worked on, and what the command was given. */
struct Task
{
    QString file;
    QString kind;
    QString argument; // the command's own, if it takes one
    std::optional<int> columns = {};
    std::optional<QString> printer = {};
    std::optional<QString> output = {};
    bool force = false;
    bool quiet = false;
};

QString suggestion(const QString &name, const QStringList &known)
{
    const QString nearest = nearestName(name, known);
    return nearest.isEmpty() ? QString() : u"; did you mean \"%1\"?"_s.arg(nearest);
}

QString widthsText()
{
    QStringList widths;
    for (const int width : starterPaperWidths())
        widths.append(QString::number(width));
    return widths.join(u'|');
}

std::optional<QByteArray> textOf(const QString &name)
{
    FileContent content = readRegularFile(name);
    if (content.fault.isEmpty())
        return std::move(content.bytes);
    complain(u"cannot read %1: %2"_s.arg(name, content.fault));
    if (content.isMissing)
        complain(u"\"tavolux-config init\" writes a configuration to start from"_s);
    return {};
}

/* A file that the store can read; it would not say why it cannot. */
struct Source
{
    QByteArray text;
    bool beginsWithRoot;
};

std::optional<Source> readSource(const Task &task)
{
    const std::optional<QByteArray> text = textOf(task.file);
    if (!text)
        return {};
    const Scan scan = scanConfiguration(*text, task.kind);
    if (scan.fault.isEmpty())
        return Source{*text, scan.beginsWithRoot};
    complain(u"cannot read %1, line %2: %3"_s.arg(task.file, QString::number(scan.faultLine), scan.fault));
    return {};
}

ExitStatus printValue(const Task &task)
{
    if (!readSource(task))
        return exitTrouble;
    const QString value = TXConfiguration(task.file, task.kind).getStrValue(task.argument);
    print(fileNameBytes(value));
    return value.isEmpty() ? exitNegative : exitSuccess;
}

ExitStatus printTree(const Task &task)
{
    if (!readSource(task))
        return exitTrouble;
    TXConfiguration(task.file, task.kind).printConfigTree();
    return exitSuccess;
}

ExitStatus writeAs(QLatin1StringView kind, const Task &task)
{
    if (task.argument.isEmpty())
        return refuse(u"the name of the file to write is empty"_s);
    const std::optional<Source> source = readSource(task);
    if (!source)
        return exitTrouble;
    const TXConfiguration configuration(task.file, task.kind);
    if (!task.force) {
        QStringList losses;
        if (!source->beginsWithRoot)
            losses << u"Everything is lost: the first node of %1 is not its root element."_s.arg(task.file);
        else if (saysMore(source->text, task.kind, configuration.content()))
            losses << u"Text that is no setting, such as a comment, is lost."_s;
        losses += lossesByWriting(configuration, kind);
        for (const QString &loss : std::as_const(losses))
            complain(loss);
        if (!losses.isEmpty()) {
            complain(u"%1 is not written; --force writes it all the same"_s.arg(task.argument));
            return exitNegative;
        }
    }
    const WriteResult result = kind == "xml"_L1 ? configuration.buildConfigXmlFile(task.argument)
                                                : configuration.buildConfigFile(task.argument);
    if (!result)
        complain(u"cannot write %1: %2"_s.arg(task.argument, result.fault));
    else if (!result.remark.isEmpty())
        complain(u"%1 is written, but %2"_s.arg(task.argument, result.remark));
    return result ? exitSuccess : exitNegative;
}

ExitStatus writeCfg(const Task &task)
{
    return writeAs("cfg"_L1, task);
}

ExitStatus writeXml(const Task &task)
{
    return writeAs("xml"_L1, task);
}

void printFindings(const QString &file, const std::vector<Finding> &findings)
{
    for (const auto &[line, finding] : findings)
        print(shownFileName(line == 0 ? u"%1: %2"_s.arg(file, finding)
                                      : u"%1:%2: %3"_s.arg(file, QString::number(line), finding)));
}

ExitStatus check(const Task &task)
{
    const std::optional<QByteArray> text = textOf(task.file);
    if (!text)
        return exitTrouble;
    const std::vector<Finding> findings = checkConfiguration(*text, task.kind);
    if (!task.quiet)
        printFindings(task.file, findings);
    return findings.empty() ? exitSuccess : exitNegative;
}

ExitStatus checkDocumentFile(const Task &task)
{
    QFile document;
    if (const auto [fault, isMissing] = openRegularFile(document, task.argument); !fault.isEmpty()) {
        complain(u"cannot read %1: %2"_s.arg(task.argument, fault));
        return exitTrouble;
    }
    // Without a configuration of one's own the document is looked at alone.
    std::optional<TXConfiguration> configuration;
    if (task.file != TXConfiguration::userFile() || QFile::exists(task.file)) {
        if (!readSource(task))
            return exitTrouble;
        configuration.emplace(task.file, task.kind);
    }

    const auto [wrong, hidden] = checkDocument(document, configuration ? &*configuration : nullptr);
    if (document.error() != QFileDevice::NoError) {
        complain(u"cannot read %1: %2"_s.arg(task.argument, document.errorString()));
        return exitTrouble;
    }
    if (!task.quiet) {
        std::vector<Finding> all;
        std::ranges::merge(wrong, hidden, std::back_inserter(all), {}, &Finding::line, &Finding::line);
        printFindings(task.argument, all);
    }
    // Deliberate: what the configuration hides is as its owner wants it, and no fault of the document.
    return wrong.empty() ? exitSuccess : exitNegative;
}

/* What a configuration to start from is made for. */
struct Start
{
    int paperWidth = 42;
    std::optional<StarterPrinter> printer = {};
};

/* None, with a message, when the options do not go together. */
std::optional<Start> startFor(const Task &task)
{
    const auto refused = [](const QString &message) {
        refuse(message);
        return std::nullopt;
    };
    Start start;
    if (task.printer.has_value() != task.output.has_value())
        return refused(u"init needs --printer and --output together"_s);
    if (task.printer) {
        const PrinterModel *const model = findPrinterModel(*task.printer);
        if (!model)
            return refused(u"there is no model \"%1\""_s.arg(*task.printer)
                           + suggestion(*task.printer, printerModelNames()));
        const QByteArray output = fileNameBytes(*task.output);
        if (output.trimmed().isEmpty()
            || std::ranges::any_of(output, [](char c) { return QByteArrayView(";\"\n\r").contains(c); }))
            return refused(u"the output \"%1\" cannot be written in a configuration"_s.arg(*task.output));
        start.printer = {model->name, output};
        start.paperWidth = starterPaperWidth(model->columns);
        if (!model->isPlainText() && task.columns.value_or(0) > model->columns)
            return refused(
                u"the model %1 has %2 columns only"_s.arg(model->name, QString::number(model->columns)));
    }
    start.paperWidth = task.columns.value_or(start.paperWidth);
    return start;
}

ExitStatus init(const Task &task)
{
    if (task.kind != "cfg"_L1)
        return refuse(u"a starter configuration is of the kind cfg"_s);
    const std::optional<Start> start = startFor(task);
    if (!start)
        return exitTrouble;
    std::error_code error;
    const std::filesystem::path folder =
        std::filesystem::path(fileNameBytes(task.file).toStdString()).parent_path();
    if (!folder.empty())
        create_directories(folder, error);
    if (error) {
        complain(u"cannot make the folder %1: %2"_s.arg(fileNameFromBytes(folder.native()),
                                                        qt_error_string(error.value())));
        return exitTrouble;
    }
    const WriteResult result = createFile(task.file, starterConfiguration(start->paperWidth, start->printer));
    if (result.alreadyExists) {
        complain(u"%1 exists already and stays as it is"_s.arg(task.file));
        return exitNegative;
    }
    if (!result) {
        complain(u"cannot write %1: %2"_s.arg(task.file, result.fault));
        return exitTrouble;
    }
    print(fileNameBytes(task.file));
    return exitSuccess;
}

QString codePagesText(const PrinterModel &model)
{
    QStringList pages;
    for (const auto &[page, number] : model.codePages)
        pages.append(codePageName(page) + u'=' + QString::number(number));
    return pages.join(", "_L1);
}

ExitStatus printModels(const Task &)
{
    const auto printRow = [](const QString &name, const QString &columns, const QString &dots,
                             const QString &cut, const QString &raster, const QString &codePages) {
        const QString row = name.leftJustified(20) + columns.rightJustified(7) + dots.rightJustified(6)
            + "  "_L1 + cut.leftJustified(9) + raster.leftJustified(10) + codePages;
        print(row.trimmed().toUtf8());
    };
    printRow(u"MODEL"_s, u"COLUMNS"_s, u"DOTS"_s, u"CUT"_s, u"PICTURES"_s, u"CODE PAGES"_s);
    for (const PrinterModel &model : printerModels)
        printRow(model.name, QString::number(model.columns),
                 model.dots > 0 ? QString::number(model.dots) : u"-"_s, cutterName(model.cutter),
                 model.raster ? u"yes"_s : u"no"_s, model.isPlainText() ? u"-"_s : codePagesText(model));
    return exitSuccess;
}

/* The file that a test page of the printer goes to; empty when its settings name none, but only patterns. */
QString onlyFile(const PrinterSettings &printer)
{
    const auto file = std::ranges::find_if_not(printer.outputs, isOutputPattern);
    return file == printer.outputs.end() ? QString() : fileNameFromBytes(file->toLatin1());
}

/* Says so when the configuration has no printer of the name. */
bool hasPrinter(const Task &task, const TXConfiguration &configuration)
{
    const QStringList names = printerNames(configuration);
    if (names.contains(*task.printer))
        return true;
    complain(u"%1 has no printer \"%2\""_s.arg(task.file, *task.printer) + suggestion(*task.printer, names));
    return false;
}

ExitStatus testPage(const Task &task)
{
    if (!task.printer)
        return refuse(u"test-page needs --printer"_s);
    if (!readSource(task))
        return exitTrouble;
    const TXConfiguration configuration(task.file, task.kind);
    if (!hasPrinter(task, configuration))
        return exitTrouble;
    const PrinterSettings printer = printerOfName(
        configuration, *task.printer,
        [](const QString &key, const PrinterSetting &setting, const QString &value) {
            complain(u"%1 is \"%2\", not %3"_s.arg(key, value, QString::fromLatin1(setting.expected)));
        });
    if (printer.model->isPlainText()) {
        complain(
            u"the printer \"%1\" prints plain text, for which there is no test page"_s.arg(printer.name));
        return exitTrouble;
    }
    const QString file = task.argument.isEmpty() ? onlyFile(printer) : task.argument;
    if (file.isEmpty()) {
        complain(u"the printer \"%1\" names no output but patterns; name one as OUT"_s.arg(printer.name));
        return exitTrouble;
    }
    const auto output = file == "-"_L1 ? std::make_unique<PrintOutput>(STDOUT_FILENO, u"standard output"_s)
                                       : std::make_unique<PrintOutput>(file, PrintOutput::Opening::truncate);
    printTestPage(printer, *output);
    output->close();
    return output->failed() ? exitNegative : exitSuccess;
}

/* A printer that can be asked, by the name under which it is shown. */
struct AskedPrinter
{
    QString name;
    DeviceUri uri;
};

/* A device, the address of a queue, or a host. */
std::optional<DeviceUri> addressOf(const QString &text)
{
    const std::string bytes = fileNameBytes(text).toStdString();
    if (text.startsWith("tavolux:"_L1))
        return DeviceUri::parse(bytes);
    return text.contains(u'/') ? DeviceUri::ofDevice(bytes) : DeviceUri::parse("tavolux://" + bytes);
}

/* The outputs of printers that could be devices: no patterns and, unless the printer is asked for by its
 * name, no files that are something else. */
std::vector<AskedPrinter> configuredPrinters(const Task &task, const TXConfiguration &configuration)
{
    std::vector<AskedPrinter> asked;
    const auto tellNobody = [](const QString &, const PrinterSetting &, const QString &) {};
    for (const QString &name : task.printer ? QStringList(*task.printer) : printerNames(configuration))
        for (const QString &output : printerOfName(configuration, name, tellNobody).outputs) {
            const std::string path = output.toLatin1().toStdString();
            std::error_code error;
            const std::filesystem::file_type type = std::filesystem::status(path, error).type();
            const bool couldBeDevice = type == std::filesystem::file_type::character
                || type == std::filesystem::file_type::not_found || task.printer;
            if (!isOutputPattern(output) && couldBeDevice)
                asked.push_back({u"%1 (%2)"_s.arg(name, fileNameFromBytes(output.toLatin1())),
                                 DeviceUri::ofDevice(path)});
        }
    return asked;
}

ExitStatus printStatus(const Task &task)
{
    std::vector<AskedPrinter> asked;
    if (!task.argument.isEmpty()) {
        if (task.printer)
            return refuse(u"status takes --printer or a device, not both"_s);
        const std::optional<DeviceUri> uri = addressOf(task.argument);
        if (!uri)
            return refuse(u"\"%1\" is no device and no address of a printer"_s.arg(task.argument));
        asked = {{fileNameFromBytes(QByteArray::fromStdString(uri->name())), *uri}};
    } else {
        if (!readSource(task))
            return exitTrouble;
        const TXConfiguration configuration(task.file, task.kind);
        if (task.printer && !hasPrinter(task, configuration))
            return exitTrouble;
        asked = configuredPrinters(task, configuration);
        if (asked.empty()) {
            complain(u"%1 names no device to ask; name one as DEVICE"_s.arg(
                task.printer ? u"the printer \"%1\""_s.arg(*task.printer) : task.file));
            return exitTrouble;
        }
    }
    bool allReady = true;
    for (const auto &[name, uri] : asked) {
        const PrinterAnswer answer = askPrinter(uri);
        print(shownFileName(name + ": "_L1 + answer.text));
        std::cout.flush(); // the next may take its time
        allReady = allReady && answer.ready;
    }
    return allReady ? exitSuccess : exitNegative;
}

ExitStatus edit(const Task &task)
{
    QString editor = QStandardPaths::findExecutable(editorName, {QCoreApplication::applicationDirPath()});
    if (editor.isEmpty())
        editor = QStandardPaths::findExecutable(editorName);
    if (editor.isEmpty()) {
        complain(u"the editor, %1, is not installed"_s.arg(editorName));
        return exitTrouble;
    }

    QList<QByteArray> arguments;
    for (const QString &argument : {editor, u"--file"_s, task.file, u"--type"_s, task.kind})
        arguments.append(fileNameBytes(argument));
    std::vector<char *> argv;
    for (QByteArray &argument : arguments)
        argv.push_back(argument.data());
    argv.push_back(nullptr);
    ::execv(argv.front(), argv.data());
    const int error = errno;
    complain(u"cannot start %1: %2"_s.arg(editor, qt_error_string(error)));
    return exitTrouble;
}

struct Command
{
    QLatin1StringView name;
    QLatin1StringView argument; // what it takes, as the help calls it; empty: nothing; "[OUT]": if wanted
    QLatin1StringView help;
    ExitStatus (*run)(const Task &);

    constexpr bool needsArgument() const { return !argument.isEmpty() && !argument.startsWith(u'['); }
};

constexpr Command commands[] = {
    {"get"_L1, "KEY"_L1,
     "print the value that the printing program sees, such as of tavolux.doc.paperWidth"_L1, printValue},
    {"tree"_L1, ""_L1, "print all sections and settings"_L1, printTree},
    {"write"_L1, "OUT"_L1, "write the configuration to OUT, of the kind cfg"_L1, writeCfg},
    {"write-xml"_L1, "OUT"_L1, "write the configuration to OUT, of the kind xml"_L1, writeXml},
    {"check"_L1, ""_L1, "name what the printing program passes over in silence"_L1, check},
    {"check-document"_L1, "DOC"_L1, "name what printing the document DOC passes over in silence"_L1,
     checkDocumentFile},
    {"init"_L1, ""_L1, "write a complete configuration to start from"_L1, init},
    {"models"_L1, ""_L1, "list the models of receipt printers"_L1, printModels},
    {"test-page"_L1, "[OUT]"_L1,
     "print what shows whether a printer's settings fit, to OUT or the printer"_L1, testPage},
    {"status"_L1, "[DEVICE]"_L1, "ask a printer, or all, whether it is ready"_L1, printStatus},
    {"edit"_L1, ""_L1, "edit the configuration in a window"_L1, edit},
};

QString commandHelp()
{
    QString help =
        u"Shows, checks, writes and edits a configuration of the document printer.\n\nCommands:\n"_s;
    for (const Command &command : commands)
        help += u"  %1  %2\n"_s.arg(QString(command.name + u' ' + command.argument).leftJustified(18),
                                    command.help);
    return help
        + "\nThe exit status is 0 when all is well, 1 when a value is empty, a check found something, OUT is "
          "not\n"
          "written whole, a printer is not ready or the file to begin exists, and 2 after wrong usage, when "
          "FILE\n"
          "or DOC cannot be read, FILE cannot be begun or has no such printer, or when there is no editor or "
          "no\n"
          "display for it."_L1;
}

const Command *findCommand(const QString &name)
{
    const auto *command = std::ranges::find(commands, name, &Command::name);
    return command == std::end(commands) ? nullptr : command;
}

ExitStatus refuseCommand(const QString &name)
{
    QStringList known;
    for (const Command &command : commands)
        known.append(command.name);
    return refuse(u"there is no command \"%1\""_s.arg(name) + suggestion(name, known));
}

ExitStatus runCommand(const QStringList &arguments)
{
    const QCommandLineOption fileOption(u"file"_s,
                                        u"The configuration, without this option the user's own."_s,
                                        u"FILE"_s, TXConfiguration::userFile());
    const QCommandLineOption kindOption(u"type"_s, u"What kind of file it is: cfg (the default) or xml."_s,
                                        u"cfg|xml"_s, u"cfg"_s);
    const QCommandLineOption columnsOption(
        u"columns"_s,
        u"For init: how many characters the paper is wide, without this option as many as the printer has room for, or 42."_s,
        widthsText());
    const QCommandLineOption printerOption(
        u"printer"_s,
        u"For init: the model of a receipt printer, one of those that models lists. For status and test-page: the name of the printer, a section of tavolux.printers."_s,
        u"MODEL|NAME"_s);
    const QCommandLineOption outputOption(
        u"output"_s, u"For init: the file or device that the printer prints."_s, u"FILE"_s);
    const QCommandLineOption forceOption(
        u"force"_s, u"For write and write-xml: write OUT though settings or other text are lost."_s);
    const QCommandLineOption quietOption({u"q"_s, u"quiet"_s},
                                         u"For check and check-document: print no findings."_s);
    const QCommandLineOption helpOption({u"h"_s, u"help"_s}, u"Shows this help."_s);
    const QCommandLineOption versionOption({u"v"_s, u"version"_s}, u"Shows the version."_s);

    QCommandLineParser parser;
    parser.setApplicationDescription(commandHelp());
    parser.addOptions({fileOption, kindOption, columnsOption, printerOption, outputOption, forceOption,
                       quietOption, helpOption, versionOption});
    parser.addPositionalArgument(u"COMMAND"_s, u"One of the commands above."_s,
                                 u"COMMAND [KEY|OUT|DEVICE|DOC]"_s);
    if (!parser.parse(arguments))
        return refuse(parser.errorText());
    if (parser.isSet(helpOption)) {
        print(parser.helpText().trimmed().toUtf8());
        return exitSuccess;
    }
    if (parser.isSet(versionOption)) {
        print("tavolux-config " TAVOLUX_VERSION);
        return exitSuccess;
    }

    const QStringList words = parser.positionalArguments();
    if (words.isEmpty())
        return refuse(u"a command is missing"_s);
    const Command *command = findCommand(words.first());
    if (!command)
        return refuseCommand(words.first());
    const qsizetype expected = command->argument.isEmpty() ? 1 : 2;
    if (words.size() < expected && command->needsArgument())
        return refuse(u"%1 needs %2"_s.arg(command->name, command->argument));
    if (words.size() > expected)
        return refuse(u"%1 does not take \"%2\""_s.arg(command->name, words.at(expected)));

    if (parser.value(fileOption).isEmpty())
        return refuse(u"the name of the configuration is empty"_s);
    Task task{.file = parser.value(fileOption), .kind = parser.value(kindOption), .argument = words.value(1)};
    task.force = parser.isSet(forceOption);
    task.quiet = parser.isSet(quietOption);
    if (parser.isSet(columnsOption))
        task.columns = parser.value(columnsOption).toInt();
    if (parser.isSet(printerOption))
        task.printer = parser.value(printerOption);
    if (parser.isSet(outputOption))
        task.output = parser.value(outputOption);
    if (task.kind != "cfg"_L1 && task.kind != "xml"_L1)
        return refuse(u"the type \"%1\" is neither cfg nor xml"_s.arg(task.kind));
    if (task.columns && command->run != init)
        return refuse(u"--columns is for init"_s);
    if (task.output && command->run != init)
        return refuse(u"--output is for init"_s);
    if (task.printer && command->run != init && command->run != testPage && command->run != printStatus)
        return refuse(u"--printer is for init, status and test-page"_s);
    if (task.force && command->run != writeCfg && command->run != writeXml)
        return refuse(u"--force is for write and write-xml"_s);
    if (task.quiet && command->run != check && command->run != checkDocumentFile)
        return refuse(u"--quiet is for check and check-document"_s);
    if (task.columns && !starterPaperWidths().contains(*task.columns))
        return refuse(u"\"%1\" columns are none of %2"_s.arg(parser.value(columnsOption), widthsText()));
    return command->run(task);
}

} // namespace

ExitStatus runConfigTool(const QStringList &arguments)
{
    const ExitStatus status = runCommand(arguments);
    if (std::cout.flush())
        return status;
    complain(u"cannot write the output"_s);
    return exitTrouble;
}
