#include "config_tool.h"

#include <QCoreApplication>

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    return runConfigTool(QCoreApplication::arguments());
}
