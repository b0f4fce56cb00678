#include "config_tool.h"

#include "configuration_check.h"
#include "configuration_scan.h"
#include "document_check.h"
#include "file_name.h"
#include "losses.h"
#include "printer_commands.h"
#include "printer_models.h"
#include "read_file.h"
#include "setting_commands.h"
#include "starter_configuration.h"
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

constexpr QLatin1StringView editorName = "tavolux-config-editor"_L1;

QString widthsText()
{
    QStringList widths;
    for (const int width : starterPaperWidths())
        widths.append(QString::number(width));
    return widths.join(u'|');
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
    for (const Finding &finding : findings)
        print(shownFileName(finding.line == 0
                                ? u"%1: %2"_s.arg(file, finding.text)
                                : u"%1:%2: %3"_s.arg(file, QString::number(finding.line), finding.text)));
}

ExitStatus check(const Task &task)
{
    const std::optional<QByteArray> text = textOf(task.file);
    if (!text)
        return exitTrouble;
    std::vector<Finding> findings = checkConfiguration(*text, task.kind);
    if (!task.kindIsGiven && task.kind == "xml"_L1)
        findings.insert(findings.begin(), {0, u"this is XML; the printing program reads cfg alone"_s});
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
    if (task.kindIsGiven && task.kind != "cfg"_L1)
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
    QLatin1StringView arguments; // that it takes, as the help calls them; "[OUT]": if wanted; "...": as often
    QLatin1StringView options; // that it takes besides those that all take
    QLatin1StringView help;
    ExitStatus (*run)(const Task &);

    QStringList argumentNames() const { return QString(arguments).split(u' ', Qt::SkipEmptyParts); }
    bool takesOption(const QString &option) const { return QString(options).split(u' ').contains(option); }
};

constexpr Command commands[] = {
    {"list"_L1, "[SECTION]"_L1, "json names"_L1,
     "print all settings: their values, what holds without them, and what they do"_L1, listSettings},
    {"get"_L1, "KEY"_L1, ""_L1,
     "print the value that the printing program sees, such as of tavolux.doc.paperWidth"_L1, printValue},
    {"set"_L1, "KEY VALUE..."_L1, "force"_L1, "give settings values, and leave all else as it is"_L1,
     setValues},
    {"unset"_L1, "KEY"_L1, ""_L1, "take a setting out, and leave all else as it is"_L1, unsetValue},
    {"tree"_L1, ""_L1, ""_L1, "print all sections and settings as they are stored"_L1, printTree},
    {"write"_L1, "OUT"_L1, "force"_L1, "write the configuration to OUT, of the kind cfg"_L1, writeCfg},
    {"write-xml"_L1, "OUT"_L1, "force"_L1, "write the configuration to OUT, of the kind xml"_L1, writeXml},
    {"check"_L1, ""_L1, "quiet"_L1, "name what the printing program passes over in silence"_L1, check},
    {"check-document"_L1, "DOC"_L1, "quiet"_L1,
     "name what printing the document DOC passes over in silence"_L1, checkDocumentFile},
    {"init"_L1, ""_L1, "columns printer output"_L1, "write a complete configuration to start from"_L1, init},
    {"models"_L1, ""_L1, ""_L1, "list the models of receipt printers"_L1, printModels},
    {"test-page"_L1, "[OUT]"_L1, "printer"_L1,
     "print what shows whether a printer's settings fit, to OUT or the printer"_L1, testPage},
    {"status"_L1, "[DEVICE]"_L1, "printer"_L1, "ask a printer, or all, whether it is ready"_L1, printStatus},
    {"edit"_L1, ""_L1, ""_L1, "edit the configuration in a window"_L1, edit},
};

QString commandHelp()
{
    QString help =
        u"Shows, checks, writes and edits a configuration of the document printer.\n\nCommands:\n"_s;
    for (const Command &command : commands)
        help += u"  %1  %2\n"_s.arg(QString(command.name + u' ' + command.arguments).leftJustified(18),
                                    command.help);
    return help
        + "\nThe exit status is 0 when all is well, 1 when a value is empty or refused, a check found "
          "something,\n"
          "a file is not written whole, a printer is not ready or the file to begin exists, and 2 after "
          "wrong "
          "usage,\n"
          "when FILE or DOC cannot be read, FILE cannot be begun or has no such printer, or when there is no "
          "editor\n"
          "or no display for it."_L1;
}

const Command *findCommand(const QString &name)
{
    const auto *command = std::ranges::find(commands, name, &Command::name);
    return command == std::end(commands) ? nullptr : command;
}

/* The commands that take an option, in the order of the alphabet; none for one that all take. */
QStringList commandsWithOption(const QString &option)
{
    QStringList names;
    for (const Command &command : commands)
        if (command.takesOption(option))
            names << command.name;
    names.sort();
    return names;
}

QString listed(QStringList names)
{
    const QString last = names.takeLast();
    return names.isEmpty() ? last : names.join(", "_L1) + " and "_L1 + last;
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
    const QCommandLineOption kindOption(
        u"type"_s, u"What kind of file it is: cfg or xml, without this option what its content looks like."_s,
        u"cfg|xml"_s);
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
        u"force"_s,
        u"For write and write-xml: write OUT though settings or other text are lost. For set: set a value that check complains of."_s);
    const QCommandLineOption jsonOption(u"json"_s, u"For list: print JSON, for other programs."_s);
    const QCommandLineOption namesOption(u"names"_s, u"For list: print keys alone, one in a line."_s);
    const QCommandLineOption quietOption({u"q"_s, u"quiet"_s},
                                         u"For check and check-document: print no findings."_s);
    const QCommandLineOption helpOption({u"h"_s, u"help"_s}, u"Shows this help."_s);
    const QCommandLineOption versionOption({u"v"_s, u"version"_s}, u"Shows the version."_s);

    QCommandLineParser parser;
    parser.setApplicationDescription(commandHelp());
    parser.addOptions({fileOption, kindOption, columnsOption, printerOption, outputOption, forceOption,
                       quietOption, jsonOption, namesOption, helpOption, versionOption});
    parser.addPositionalArgument(u"COMMAND"_s, u"One of the commands above."_s, u"COMMAND [ARGUMENT]..."_s);
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
    const QStringList expected = command->argumentNames();
    const auto isNeeded = [](const QString &argument) { return !argument.startsWith(u'['); };
    if (words.size() - 1 < std::ranges::count_if(expected, isNeeded))
        return refuse(u"%1 needs %2"_s.arg(command->name, QString(command->arguments)));
    if (words.size() - 1 > expected.size() && !command->arguments.endsWith("..."_L1))
        return refuse(u"%1 does not take \"%2\""_s.arg(command->name, words.at(expected.size() + 1)));
    for (const QString &option : parser.optionNames())
        if (const QStringList takers = commandsWithOption(option);
            !takers.isEmpty() && !takers.contains(command->name))
            return refuse(u"--%1 is for %2"_s.arg(option, listed(takers)));

    if (parser.value(fileOption).isEmpty())
        return refuse(u"the name of the configuration is empty"_s);
    Task task{.file = parser.value(fileOption),
              .kind = parser.value(kindOption),
              .kindIsGiven = parser.isSet(kindOption),
              .argument = words.value(1),
              .arguments = words.sliced(1),
              .force = parser.isSet(forceOption),
              .quiet = parser.isSet(quietOption),
              .json = parser.isSet(jsonOption),
              .names = parser.isSet(namesOption)};
    if (parser.isSet(columnsOption))
        task.columns = parser.value(columnsOption).toInt();
    if (parser.isSet(printerOption))
        task.printer = parser.value(printerOption);
    if (parser.isSet(outputOption))
        task.output = parser.value(outputOption);
    if (!task.kindIsGiven)
        task.kind = recognizedKind(readRegularFile(task.file).bytes);
    if (task.kind != "cfg"_L1 && task.kind != "xml"_L1)
        return refuse(u"the type \"%1\" is neither cfg nor xml"_s.arg(task.kind));
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
