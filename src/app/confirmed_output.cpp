#include "confirmed_output.h"

#include "confirmed_print.h"
#include "file_name.h"
#include "print_output.h"
#include "printer_settings.h"

#include <sys/stat.h>

using namespace std::chrono_literals;

namespace {

constexpr PortLimits tillLimits = {.silence = 10s, .confirmation = 15s, .stall = 10s};

bool isCharacterDevice(const QString &path)
{
    struct stat status = {};
    return stat(fileNameBytes(path).constData(), &status) == 0 && S_ISCHR(status.st_mode);
}

} // namespace

bool isAskedForStatus(const TXConfiguration &configuration, const QString &output)
{
    if (!isCharacterDevice(output))
        return false;
    // What is wrong with its settings is told when the driver is made.
    const auto printer = printerForOutput(configuration, output,
                                          [](const QString &, const PrinterSetting &, const QString &) {});
    return printer && printer->status;
}

void ConfirmedOutput::open(const QString &path)
{
    m_path = path;
    m_device.emplace(DeviceUri::ofDevice(fileNameBytes(path).toStdString()));
}

std::unique_ptr<PrintOutput> ConfirmedOutput::printout()
{
    m_printout.open(QIODevice::WriteOnly);
    return std::make_unique<PrintOutput>(m_printout, m_path);
}

void ConfirmedOutput::send()
{
    const QByteArray &bytes = m_printout.data();
    if (bytes.isEmpty())
        return;

    PrinterPort port(m_device->descriptor(), -1, tillLimits);
    std::string obstacle;
    PrintEvents events;
    events.status = [&obstacle](const PrinterStatus &status) {
        obstacle = status.ready() ? std::string() : status.description();
        return status.ready();
    };
    const std::string_view job(bytes.constData(), static_cast<std::size_t>(bytes.size()));
    const Outcome outcome = printConfirmed(port, job, AnswersStatus::Unknown, events);
    if (outcome != Outcome::Failed && outcome != Outcome::Uncertain)
        return;
    const std::string reason =
        (outcome == Outcome::Failed ? "nothing was sent: " : "uncertain whether it was printed: ")
        + (obstacle.empty() ? port.fault() : obstacle);
    PrintOutput::reportFailure(m_path, reason.c_str());
}
