#include "printer_commands.h"

#include "ask_printer.h"
#include "file_name.h"
#include "print_output.h"
#include "printer_settings.h"
#include "test_page.h"
#include "tx_configuration.h"

#include <algorithm>
#include <filesystem>
#include <iostream>
#include <memory>
#include <vector>

#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

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

} // namespace

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
                 model.raster ? u"yes"_s : u"no"_s,
                 model.isPlainText() ? u"-"_s : codePagesText(model.codePages));
    return exitSuccess;
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
