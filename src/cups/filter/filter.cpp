#include "filter.h"

#include "file_name.h"
#include "labels.h"
#include "make_driver.h"
#include "option_texts.h"
#include "print_document.h"
#include "print_output.h"
#include "printer_driver.h"
#include "printer_settings.h"
#include "queue_options.h"
#include "quoted.h"
#include "read_file.h"
#include "report.h"
#include "tx_configuration.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QFile>
#include <QTranslator>

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <iostream>
#include <memory>
#include <streambuf>
#include <utility>

#include <fcntl.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

enum Status { Ok = 0, Failed = 1 };

const QString usualConfiguration = QStringLiteral(TAVOLUX_QUEUES_CONFIGURATION);

Status fail(const QString &message)
{
    report("ERROR", message.toStdString());
    return Failed;
}

void warn(const QString &message)
{
    report("WARNING", message.toStdString());
}

/* Shows in the queue whether its configuration can be read: all of its jobs fail while it cannot. */
void showConfigurationFault(bool faulty)
{
    constexpr auto reason = "tavolux-configuration-error";
    const bool shown = qgetenv("PRINTER_STATE_REASONS").split(',').contains(reason);
    if (faulty != shown)
        report("STATE", (faulty ? "+" : "-") + std::string(reason));
}

/* While it lives each line that the printing path prints for people is a warning in the print system's log.
 */
class DiagnosticsAsWarnings : public std::streambuf
{
public:
    DiagnosticsAsWarnings()
        : m_standardOutput(std::cout.rdbuf(this))
    {
    }

    ~DiagnosticsAsWarnings() override { std::cout.rdbuf(m_standardOutput); }

    DiagnosticsAsWarnings(const DiagnosticsAsWarnings &) = delete;
    DiagnosticsAsWarnings &operator=(const DiagnosticsAsWarnings &) = delete;

protected:
    int_type overflow(int_type byte) override
    {
        if (byte == '\n')
            report("WARNING", std::exchange(m_line, {}));
        else
            m_line += traits_type::to_char_type(byte);
        return byte;
    }

private:
    std::streambuf *const m_standardOutput;
    std::string m_line;
};

/* What a job says, and what its queue says where it does not. */
class ChosenOptions
{
public:
    explicit ChosenOptions(const char *options)
        : m_job(jobOptions(options))
        , m_queue(ppdDefaults(readRegularFile(fileNameFromBytes(qgetenv("PPD"))).bytes))
    {
    }

    /* The job's text of an option that queues know by this name; empty when there is none. */
    QString ofJob(const QString &name) const { return m_job.value(name.toLower()); }

    SettingTexts printerSettingsOfJob() const { return chosenSettings(m_job); }
    SettingTexts printerSettingsOfQueue() const { return chosenSettings(m_queue); }

    QString language() const
    {
        const QString ofJob = chosen(m_job, languageOption());
        return ofJob.isEmpty() ? chosen(m_queue, languageOption()) : ofJob;
    }

private:
    static QString chosen(const OptionTexts &texts, const QueueOption &option)
    {
        const QString text = texts.value(QString(option.name).toLower());
        return text == asConfigured ? QString() : text;
    }

    static SettingTexts chosenSettings(const OptionTexts &texts)
    {
        SettingTexts settings;
        PrinterSettings scratch;
        for (const QueueOption &option : queueOptions) {
            const PrinterSetting *const setting = findPrinterSetting(option.setting);
            const QString text = chosen(texts, option);
            if (!setting || text.isEmpty())
                continue;
            if (setting->set(scratch, text))
                settings.insert(setting->name, text);
            else
                warn(u"The option %1 is not taken: %2 is not %3."_s.arg(
                    option.name, quoted(text), QString::fromLatin1(setting->expected)));
        }
        return settings;
    }

    const OptionTexts m_job;
    const OptionTexts m_queue;
};

void installLabels(QTranslator &translator, const TXConfiguration &configuration, const QString &language)
{
    if (language.isEmpty())
        (void)loadLabels(translator, configuration);
    else if (language != untranslated && !loadLabelsOf(translator, configuration, language))
        warn(u"There is no translation for the language %1: the labels are English."_s.arg(quoted(language)));
    QCoreApplication::installTranslator(&translator);
}

bool openDocument(QFile &document, std::span<char *const> arguments)
{
    if (arguments.size() == 6)
        return document.open(STDIN_FILENO, QIODevice::ReadOnly);
    document.setFileName(fileNameFromBytes(arguments[6]));
    const int descriptor = open(arguments[6], O_RDONLY | O_CLOEXEC);
    return descriptor >= 0 && document.open(descriptor, QIODevice::ReadOnly, QFile::AutoCloseHandle);
}

/* The bytes for the printer, once. */
Reading printInto(QBuffer &printout, QIODevice &document, const TXConfiguration &configuration,
                  const PrinterSettings &printer)
{
    const std::unique_ptr<PrinterDriver> driver =
        makeDriver(configuration, printer, std::make_unique<PrintOutput>(printout, u"memory"_s));
    return printDocument(document, *driver);
}

Status send(const QByteArray &bytes, int copies, int descriptor)
{
    PrintOutput output(descriptor, u"the print system"_s);
    for (int copy = 0; copy < copies; ++copy)
        output.write(bytes);
    output.close();
    if (output.failed())
        return Failed; // which it has said
    report("PAGE", "1 " + std::to_string(copies));
    return Ok;
}

} // namespace

int runFilter(std::span<char *const> arguments, int printout)
{
    if (arguments.size() != 6 && arguments.size() != 7)
        return fail(u"Usage: tavolux-filter job-id user title copies options [file]"_s);
    const DiagnosticsAsWarnings diagnostics;
    const ChosenOptions options(arguments[5]);

    const QString configurationOfJob = options.ofJob(u"configuration"_s);
    const QString configurationFile = configurationOfJob.isEmpty() ? usualConfiguration : configurationOfJob;
    const FileContent settings = readRegularFile(configurationFile);
    showConfigurationFault(!settings.fault.isEmpty());
    if (!settings.fault.isEmpty())
        return fail(u"Nothing was printed, because the configuration %1 cannot be read: %2."_s.arg(
            configurationFile, settings.fault));
    TXConfiguration configuration({}, {});
    configuration.readText(settings.bytes, u"cfg"_s);

    QTranslator translator;
    installLabels(translator, configuration, options.language());
    const PrinterSettings printer =
        printerOfName(configuration, fileNameFromBytes(qgetenv("PRINTER")), printSettingFault,
                      options.printerSettingsOfJob(), options.printerSettingsOfQueue());

    QFile document;
    if (!openDocument(document, arguments))
        return fail(u"Nothing was printed, because the document cannot be read: %1."_s.arg(
            QString::fromLocal8Bit(std::strerror(errno))));
    QBuffer bytes;
    bytes.open(QIODevice::WriteOnly);
    const Reading reading = printInto(bytes, document, configuration, printer);
    if (!reading.complete()) {
        const QString fault =
            u"line %1, column %2: %3"_s.arg(reading.line).arg(reading.column).arg(reading.reason);
        if (options.ofJob(u"incomplete"_s) != "print"_L1)
            return fail(u"Nothing was printed, because of a fault in the document, "_s + fault + u'.');
        warn(u"The document was printed as far as it goes, "_s + fault + u'.');
    }
    return send(bytes.data(), std::max(1, std::atoi(arguments[4])), printout);
}
