#include "config_tool.h"

#include "file_name.h"

#include <QCoreApplication>

#include <csignal>

int main(int argc, char *argv[])
{
    std::signal(SIGXFSZ, SIG_IGN); // a limit on the size of files is reported like a full disk
    const QCoreApplication application(argc, argv);
    return runConfigTool(commandLineArguments(argc, argv));
}
