#include "dialogs.h"
#include "editor_window.h"
#include "file_name.h"
#include "interface_language.h"
#include "tx_configuration.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QIcon>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

#include <csignal>
#include <cstdlib>
#include <iostream>
#include <memory>
#include <string_view>

using namespace Qt::StringLiterals;

namespace {

constexpr QLatin1StringView programName = "tavolux-config-editor"_L1;

enum ExitStatus { exitWrongUsage = 1, exitNoDisplay = 2 };

void complain(const QString &message)
{
    std::cerr << shownFileName(programName + ": "_L1 + message).constData() << std::endl;
}

// The toolkit explains at length why there is no display, and ends the program by signal.
void endWithoutDisplay(QtMsgType type, const QMessageLogContext &, const QString &)
{
    if (type != QtFatalMsg)
        return;
    complain(u"there is no display to open a window on"_s);
    std::_Exit(exitNoDisplay);
}

// Help and version, asked for alone, can be had without a display.
std::unique_ptr<QCoreApplication> makeApplication(int &argc, char **argv)
{
    const std::string_view question = argc == 2 ? argv[1] : "";
    if (question.starts_with("--help") || question == "-h" || question == "--version" || question == "-v")
        return std::make_unique<QCoreApplication>(argc, argv);
    const QtMessageHandler handler = qInstallMessageHandler(endWithoutDisplay);
    auto application = std::make_unique<QApplication>(argc, argv);
    qInstallMessageHandler(handler);
    return application;
}

int fail(const QString &message)
{
    complain(message);
    return exitWrongUsage;
}

} // namespace

int main(int argc, char *argv[])
{
    std::signal(SIGXFSZ, SIG_IGN); // a limit on the size of files is reported like a full disk
    const std::unique_ptr<QCoreApplication> application = makeApplication(argc, argv);
    QCoreApplication::setApplicationName(programName);
    QCoreApplication::setOrganizationName(u"tavolux"_s); // of the folder with the state of the window
    QCoreApplication::setApplicationVersion(QStringLiteral(TAVOLUX_VERSION));

    QCommandLineParser parser;
    parser.setApplicationDescription(
        u"Shows a configuration in a window, explains its settings and changes them."_s);
    parser.addHelpOption();
    parser.addVersionOption();
    const QCommandLineOption fileOption(
        u"file"_s, u"The configuration to edit, the user's own unless given."_s, u"FILE"_s);
    const QCommandLineOption typeOption(
        u"type"_s, u"The kind of the file, cfg or xml, which its content tells unless given."_s,
        u"cfg|xml"_s);
    parser.addOptions({fileOption, typeOption});
    parser.addPositionalArgument(u"FILE"_s, u"The same as --file FILE."_s, u"[FILE]"_s);
    parser.process(commandLineArguments(argc, argv));

    const QStringList files = parser.values(fileOption) + parser.positionalArguments();
    if (files.size() > 1)
        return fail(u"only one file can be edited"_s);
    const QString file = files.value(0, TXConfiguration::userFile());
    if (file.isEmpty())
        return fail(u"the name of the configuration is empty"_s);
    const QString type = parser.value(typeOption);
    if (parser.isSet(typeOption) && type != "cfg"_L1 && type != "xml"_L1)
        return fail(u"unknown type '%1': it is cfg or xml"_s.arg(type));

    QTranslator toolkitTranslation; // of its own dialogs, where it is installed
    if (toolkitTranslation.load(QLocale(), u"qtbase"_s, u"_"_s,
                                QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(&toolkitTranslation);
    QTranslator translation;
    if (loadInterface(translation))
        QCoreApplication::installTranslator(&translation);

    QGuiApplication::setApplicationDisplayName(u"Tavolux Configuration"_s);
    QGuiApplication::setDesktopFileName(QCoreApplication::applicationName());
    QGuiApplication::setWindowIcon(QIcon::fromTheme(QCoreApplication::applicationName()));

    MessageBoxes dialogs;
    EditorWindow window(dialogs);
    window.show();
    window.open(file, type);
    return QApplication::exec();
}
