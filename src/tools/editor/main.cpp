#include "dialogs.h"
#include "editor_window.h"
#include "tx_configuration.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QIcon>

#include <cstdio>
#include <memory>
#include <string_view>

using namespace Qt::StringLiterals;

namespace {

// Help and version, asked for alone, can be had without a display.
std::unique_ptr<QCoreApplication> makeApplication(int &argc, char **argv)
{
    const std::string_view question = argc == 2 ? argv[1] : "";
    if (question.starts_with("--help") || question == "-h" || question == "--version" || question == "-v")
        return std::make_unique<QCoreApplication>(argc, argv);
    return std::make_unique<QApplication>(argc, argv);
}

int fail(const QString &message)
{
    std::fputs(qPrintable(QCoreApplication::applicationName() + u": "_s + message + u'\n'), stderr);
    return 1;
}

} // namespace

int main(int argc, char *argv[])
{
    const std::unique_ptr<QCoreApplication> application = makeApplication(argc, argv);
    QCoreApplication::setApplicationName(u"tavolux-config-editor"_s);
    QCoreApplication::setApplicationVersion(QStringLiteral(TAVOLUX_VERSION));

    QCommandLineParser parser;
    parser.setApplicationDescription(
        u"Shows a configuration as a tree, whose values can be edited and saved."_s);
    parser.addHelpOption();
    parser.addVersionOption();
    const QCommandLineOption fileOption(
        u"file"_s, u"The configuration to edit, the user's own unless given."_s, u"FILE"_s);
    const QCommandLineOption typeOption(u"type"_s, u"The kind of the file: cfg (unless given) or xml."_s,
                                        u"cfg|xml"_s, u"cfg"_s);
    parser.addOptions({fileOption, typeOption});
    parser.addPositionalArgument(u"FILE"_s, u"The same as --file FILE."_s, u"[FILE]"_s);
    parser.process(*application);

    const QStringList files = parser.values(fileOption) + parser.positionalArguments();
    if (files.size() > 1)
        return fail(u"only one file can be edited"_s);
    const QString type = parser.value(typeOption);
    if (type != "cfg"_L1 && type != "xml"_L1)
        return fail(u"unknown type '%1': it is cfg or xml"_s.arg(type));

    QGuiApplication::setApplicationDisplayName(u"Tavolux Configuration"_s);
    QGuiApplication::setDesktopFileName(QCoreApplication::applicationName());
    QGuiApplication::setWindowIcon(QIcon::fromTheme(QCoreApplication::applicationName()));

    MessageBoxes dialogs;
    EditorWindow window(files.value(0, TXConfiguration::userFile()), type, dialogs);
    window.show();
    window.open();
    return QApplication::exec();
}
