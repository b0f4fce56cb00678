#include "task.h"

#include "configuration_scan.h"
#include "file_name.h"
#include "nearest_name.h"
#include "read_file.h"

#include <iostream>

using namespace Qt::StringLiterals;

void print(QByteArrayView line)
{
    std::cout.write(line.data(), line.size()) << '\n';
}

void complain(const QString &message)
{
    std::cerr << shownFileName("tavolux-config: "_L1 + message).constData() << '\n';
}

ExitStatus refuse(const QString &message)
{
    complain(message);
    std::cerr << "Try \"tavolux-config --help\".\n";
    return exitTrouble;
}

QString suggestion(const QString &name, const QStringList &known)
{
    const QString nearest = nearestName(name, known);
    return nearest.isEmpty() ? QString() : u"; did you mean \"%1\"?"_s.arg(nearest);
}

std::optional<QByteArray> textOf(const QString &file)
{
    FileContent content = readRegularFile(file);
    if (content.fault.isEmpty())
        return std::move(content.bytes);
    complain(u"cannot read %1: %2"_s.arg(file, content.fault));
    if (content.isMissing)
        complain(u"\"tavolux-config init\" writes a configuration to start from"_s);
    return {};
}

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
