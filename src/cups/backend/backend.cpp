#include "backend.h"

#include "cancellation.h"
#include "confirmed_print.h"
#include "device.h"
#include "queue_record.h"
#include "report.h"
#include "state_report.h"

#include <array>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <iostream>
#include <sstream>

#include <fcntl.h>
#include <poll.h>
#include <unistd.h>

using namespace std::chrono_literals;

namespace {

constexpr auto timeToNextTry = 1s;
// A class of printers tries its next member at once, so it must not go round and round.
constexpr auto timeToNextMember = 2s;

std::string variable(const char *name)
{
    const char *value = std::getenv(name);
    return value == nullptr ? std::string() : value;
}

void listDevices()
{
    std::cout << "network tavolux \"Unknown\" \"Receipt printer that tells its status\"\n";
    std::error_code error;
    for (const auto &entry : std::filesystem::directory_iterator("/dev/usb", error)) {
        const std::string name = entry.path().filename();
        if (name.starts_with("lp"))
            std::cout << "direct tavolux:/dev/usb/" << name
                      << " \"Unknown\" \"Receipt printer that tells its status, USB " << name << "\"\n";
    }
}

/* What the options of the job say under the name; they are words such as name=value. */
std::string option(const std::string &options, const std::string &name)
{
    std::istringstream words(options);
    for (std::string word; words >> word;)
        if (word.starts_with(name + '='))
            return word.substr(name.size() + 1);
    return {};
}

std::string recordPath(const std::string &queue)
{
    const std::string folder = variable("CUPS_CACHEDIR");
    if (folder.empty() || queue.empty() || queue.find('/') != std::string::npos)
        return {};
    return folder + '/' + queue + ".tavolux";
}

/* The job is read as a whole before the first byte is sent: what makes it may still fail. */
bool readAll(int input, const Cancellation &cancellation, std::string &bytes)
{
    std::array<char, 65'536> block = {};
    for (;;) {
        std::array<pollfd, 2> polled = {{{input, POLLIN, 0}, {cancellation.descriptor(), POLLIN, 0}}};
        if (poll(polled.data(), polled.size(), -1) < 0 || polled[1].revents != 0)
            return false;
        const ssize_t count = read(input, block.data(), block.size());
        if (count <= 0)
            return count == 0;
        bytes.append(block.data(), static_cast<std::size_t>(count));
    }
}

/* One run of the backend: one job. */
class Run
{
public:
    Run(std::span<char *const> arguments, const DeviceUri &uri, const std::string &uriText);

    BackendStatus print();

private:
    bool readJob();
    BackendStatus printOn(const Device &device);
    bool noteStatus(const PrinterStatus &status);
    BackendStatus hold(const std::string &reason);

    const std::span<char *const> m_arguments;
    const DeviceUri m_uri;
    const std::string m_uriText;
    const std::string m_queue = variable("PRINTER");
    const bool m_inClass = !variable("CLASS").empty();
    std::string m_job; // what tells it from all others
    std::string m_bytes;
    bool m_sending = false;

    const Cancellation m_cancellation;
    QueueRecord m_record{recordPath(m_queue)};
    StateReport m_state{variable("PRINTER_STATE_REASONS")};
};

Run::Run(std::span<char *const> arguments, const DeviceUri &uri, const std::string &uriText)
    : m_arguments(arguments)
    , m_uri(uri)
    , m_uriText(uriText)
    , m_job(option(arguments[5], "job-uuid"))
{
    if (m_job.empty())
        m_job = arguments[1];
}

bool Run::readJob()
{
    if (m_arguments.size() == 6)
        return readAll(STDIN_FILENO, m_cancellation, m_bytes);

    const int file = open(m_arguments[6], O_RDONLY | O_CLOEXEC);
    const bool complete = file >= 0 && readAll(file, m_cancellation, m_bytes);
    if (file >= 0)
        close(file);
    // Whoever makes the bytes for standard input makes the copies as well.
    const std::string once = m_bytes;
    for (int copies = std::atoi(m_arguments[4]); complete && copies > 1; --copies)
        m_bytes += once;
    return complete;
}

BackendStatus Run::print()
{
    if (m_record.wasCutOff(m_job)) {
        m_record.noteEnd(); // released by a person, it is printed
        return hold("printing it was cut off earlier");
    }
    if (!readJob()) {
        if (m_cancellation.requested())
            return BackendStatus::RetryCurrent;
        report("ERROR", "The job cannot be read.");
        return BackendStatus::Failed;
    }
    if (m_bytes.empty()) // as from a filter that has failed
        return BackendStatus::Ok;

    for (;;) {
        const Device device(m_uri, m_cancellation.descriptor());
        if (device.isOpen()) {
            const BackendStatus status = printOn(device);
            if (status != BackendStatus::Failed)
                return status;
        } else {
            m_state.showOffLine("The printer " + m_uri.name() + " cannot be reached: " + device.fault()
                                + '.');
            if (device.isNoPrinter())
                return BackendStatus::Stop;
        }
        if (m_inClass) {
            m_cancellation.waitFor(timeToNextMember);
            return BackendStatus::Failed;
        }
        if (m_cancellation.waitFor(timeToNextTry))
            return BackendStatus::RetryCurrent;
    }
}

/* Failed when nothing was sent. */
BackendStatus Run::printOn(const Device &device)
{
    const AnswersStatus habit = !m_uri.asksStatus ? AnswersStatus::Never
        : m_record.hasAnswered(m_uriText)         ? AnswersStatus::Known
                                                  : AnswersStatus::Unknown;
    PrintEvents events;
    events.status = [this](const PrinterStatus &status) { return noteStatus(status); };
    events.sending = [this] {
        m_sending = true;
        if (!m_record.noteSending(m_job))
            report("WARNING",
                   "What is being printed cannot be noted: after a crash it may be printed twice.");
    };
    events.stalled = [this] { m_state.showOffLine("The printer takes nothing, in the middle of the job."); };

    PrinterPort port(device.descriptor(), m_cancellation.descriptor());
    const Outcome outcome = printConfirmed(port, m_bytes, habit, events);
    m_sending = false;
    // When it was interrupted the print system may not learn the outcome, and begin the job anew.
    const bool interrupted = m_cancellation.requested();
    if (outcome != Outcome::Uncertain || !interrupted)
        m_record.noteEnd();

    switch (outcome) {
    case Outcome::Printed:
        m_state.clear();
        report("INFO", "The printer has confirmed the job.");
        return BackendStatus::Ok;
    case Outcome::Mute:
        m_state.clear();
        if (m_uri.asksStatus)
            report("WARNING",
                   "The printer does not tell its status: nobody knows whether the job was printed. "
                   "With ?status=no in the address of the queue it is not asked.");
        return BackendStatus::Ok;
    case Outcome::Uncertain:
        return hold(interrupted ? "it was interrupted" : port.fault());
    case Outcome::Failed:
        break;
    }
    if (!interrupted && !m_inClass)
        m_state.showOffLine("The printer " + m_uri.name() + " does not answer: " + port.fault() + '.');
    return BackendStatus::Failed;
}

bool Run::noteStatus(const PrinterStatus &status)
{
    m_record.noteAnswered(m_uriText);
    m_state.show(status);
    return m_sending || !m_inClass; // another member of the class may be ready
}

BackendStatus Run::hold(const std::string &reason)
{
    m_state.clear();
    const std::string job = m_queue + '-' + m_arguments[1];
    report("ERROR",
           "The job may have been printed, in full or in part (" + reason
               + "). Look at the paper, then \"cancel " + job + "\", or print it again with \"lp -i " + job
               + " -H resume\".");
    return BackendStatus::Hold;
}

} // namespace

BackendStatus runBackend(std::span<char *const> arguments)
{
    std::signal(SIGPIPE, SIG_IGN);
    if (arguments.size() == 1) {
        listDevices();
        return BackendStatus::Ok;
    }
    if (arguments.size() != 6 && arguments.size() != 7) {
        report("ERROR", "Usage: tavolux job-id user title copies options [file]");
        return BackendStatus::Failed;
    }
    std::string text = variable("DEVICE_URI");
    if (text.empty())
        text = arguments[0];
    const auto uri = DeviceUri::parse(text);
    if (!uri) {
        report("ERROR",
               "Not the address of a printer, as tavolux://host:9100 or tavolux:/dev/usb/lp0: " + text);
        return BackendStatus::Stop;
    }
    return Run(arguments, *uri, text).print();
}
