#include "config_tool.h"

#include "configuration_check.h"
#include "configuration_scan.h"
#include "file_name.h"
#include "losses.h"
#include "nearest_name.h"
#include "read_file.h"
#include "starter_configuration.h"
#include "tx_configuration.h"
#include "write_file.h"

#include <QCommandLineParser>
#include <QCoreApplication>
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
    int columns;
    bool force;
};

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

ExitStatus check(const Task &task)
{
    const std::optional<QByteArray> text = textOf(task.file);
    if (!text)
        return exitTrouble;
    const std::vector<Finding> findings = checkConfiguration(task.file, task.kind, *text);
    for (const auto &[line, finding] : findings)
        print(shownFileName(line == 0 ? u"%1: %2"_s.arg(task.file, finding)
                                      : u"%1:%2: %3"_s.arg(task.file, QString::number(line), finding)));
    return findings.empty() ? exitSuccess : exitNegative;
}

ExitStatus init(const Task &task)
{
    if (task.kind != "cfg"_L1)
        return refuse(u"a starter configuration is of the kind cfg"_s);
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
    const WriteResult result = createFile(task.file, starterConfiguration(task.columns));
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
    QLatin1StringView argument; // what it takes, as the help calls it; empty: nothing
    QLatin1StringView help;
    ExitStatus (*run)(const Task &);
};

constexpr Command commands[] = {
    {"get"_L1, "KEY"_L1,
     "print the value that the printing program sees, such as of tavolux.doc.paperWidth"_L1, printValue},
    {"tree"_L1, ""_L1, "print all sections and settings"_L1, printTree},
    {"write"_L1, "OUT"_L1, "write the configuration to OUT, of the kind cfg"_L1, writeCfg},
    {"write-xml"_L1, "OUT"_L1, "write the configuration to OUT, of the kind xml"_L1, writeXml},
    {"check"_L1, ""_L1, "name what the printing program passes over in silence"_L1, check},
    {"init"_L1, ""_L1, "write a complete configuration to start from"_L1, init},
    {"edit"_L1, ""_L1, "edit the configuration in a window"_L1, edit},
};

QString commandHelp()
{
    QString help =
        u"Shows, checks, writes and edits a configuration of the document printer.\n\nCommands:\n"_s;
    for (const Command &command : commands)
        help += u"  %1  %2\n"_s.arg(QString(command.name + u' ' + command.argument).leftJustified(13),
                                    command.help);
    return help
        + "\nThe exit status is 0 when all is well, 1 when a value is empty, a check found something, OUT "
          "is not\n"
          "written whole or the file to begin exists, and 2 after wrong usage, when FILE cannot be read or\n"
          "begun, or when there is no editor or no display for it."_L1;
}

QString widthsText()
{
    QStringList widths;
    for (const int width : starterPaperWidths())
        widths.append(QString::number(width));
    return widths.join(u'|');
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
    const QString nearest = nearestName(name, known);
    return refuse(u"there is no command \"%1\""_s.arg(name)
                  + (nearest.isEmpty() ? QString() : u"; did you mean \"%1\"?"_s.arg(nearest)));
}

ExitStatus runCommand(const QStringList &arguments)
{
    const QCommandLineOption fileOption(u"file"_s,
                                        u"The configuration, without this option the user's own."_s,
                                        u"FILE"_s, TXConfiguration::userFile());
    const QCommandLineOption kindOption(u"type"_s, u"What kind of file it is: cfg (the default) or xml."_s,
                                        u"cfg|xml"_s, u"cfg"_s);
    const QCommandLineOption columnsOption(
        u"columns"_s, u"For init: how many characters the paper is wide, 42 without this option."_s,
        widthsText(), u"42"_s);
    const QCommandLineOption forceOption(
        u"force"_s, u"For write and write-xml: write OUT though settings or other text are lost."_s);
    const QCommandLineOption helpOption({u"h"_s, u"help"_s}, u"Shows this help."_s);
    const QCommandLineOption versionOption({u"v"_s, u"version"_s}, u"Shows the version."_s);

    QCommandLineParser parser;
    parser.setApplicationDescription(commandHelp());
    parser.addOptions({fileOption, kindOption, columnsOption, forceOption, helpOption, versionOption});
    parser.addPositionalArgument(u"COMMAND"_s, u"One of the commands above."_s, u"COMMAND [KEY|OUT]"_s);
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
    if (words.size() < expected)
        return refuse(u"%1 needs %2"_s.arg(command->name, command->argument));
    if (words.size() > expected)
        return refuse(u"%1 does not take \"%2\""_s.arg(command->name, words.at(expected)));

    if (parser.value(fileOption).isEmpty())
        return refuse(u"the name of the configuration is empty"_s);
    const Task task{parser.value(fileOption), parser.value(kindOption), words.value(1),
                    parser.value(columnsOption).toInt(), parser.isSet(forceOption)};
    if (task.kind != "cfg"_L1 && task.kind != "xml"_L1)
        return refuse(u"the type \"%1\" is neither cfg nor xml"_s.arg(task.kind));
    if (parser.isSet(columnsOption) && command->run != init)
        return refuse(u"--columns is for init"_s);
    if (task.force && command->run != writeCfg && command->run != writeXml)
        return refuse(u"--force is for write and write-xml"_s);
    if (!starterPaperWidths().contains(task.columns))
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
