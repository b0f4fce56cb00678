/*
 * save_configuration <target> <count> <source>...
 *
 * Reads the sources and saves them over the target in turn, count times or, with a count of 0, until standard
 * input ends. Prints "saved" after the first one. Ends with status 1 when a save failed.
 */
#include "config.h"

#include <QCoreApplication>
#include <QFile>

#include <iostream>
#include <vector>

#include <poll.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

bool inputEnded()
{
    pollfd input = {STDIN_FILENO, POLLIN, 0};
    return poll(&input, 1, 0) > 0;
}

} // namespace

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    const QString &target = arguments.at(1);
    const int count = arguments.at(2).toInt();
    std::vector<std::unique_ptr<libconfig::Config>> sources;
    for (const QString &source : arguments.sliced(3))
        sources.push_back(std::make_unique<libconfig::Config>(source, u"cfg"_s));

    for (std::size_t saves = 0; count > 0 ? saves < static_cast<std::size_t>(count) : !inputEnded();
         ++saves) {
        if (!sources[saves % sources.size()]->buildConfigFile(target))
            return 1;
        if (saves == 0)
            std::cout << "saved" << std::endl;
    }
    return 0;
}
