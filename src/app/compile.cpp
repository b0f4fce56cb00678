#include "compile.h"

#include "confirmed_output.h"
#include "diagnostic.h"
#include "file_name.h"
#include "labels.h"
#include "make_driver.h"
#include "print_document.h"
#include "print_output.h"
#include "printer_driver.h"
#include "sync_singleton.h"
#include "tx_configuration.h"

#include <QCoreApplication>
#include <QFile>
#include <QTranslator>

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <exception>

using namespace Qt::StringLiterals;

namespace {

// What cannot be written is reported like any failed write, and nothing is said on standard error.
void keepFailuresQuiet()
{
    std::signal(SIGPIPE, SIG_IGN);
    std::signal(SIGXFSZ, SIG_IGN);
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
}

// The next file opened takes the place of a standard stream that is closed: were it the output, messages
// would go to the paper.
void keepStandardStreamsOpen()
{
    for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO})
        if (fcntl(stream, F_GETFD) < 0)
            (void)open("/dev/null", O_RDWR);
}

const char *outputName = "";
PrinterDriver *printing = nullptr;

// What ends a program without a handler: memory that ran out, where the toolkit lets nothing be unwound. What
// was printed needs no more memory to be sent.
[[noreturn]] void endWithoutMemory()
{
    try {
        if (printing)
            printing->finish(Ending::incomplete);
        PrintOutput::reportFailure(fileNameFromBytes(outputName), std::strerror(ENOMEM));
    } catch (...) {
        if (printing)
            printing->output().flush();
    }
    std::_Exit(EXIT_SUCCESS);
}

} // namespace

void compile(int argc, char *argv[])
{
    keepFailuresQuiet();
    keepStandardStreamsOpen();
    if (argc != 3 && argc != 4) {
        printDiagnostic("Usage: " + QByteArray(argv[0]) + " input_file output_file");
        return;
    }

    QCoreApplication application(argc, argv); // takes the toolkit's own options out of argv
    outputName = argv[2];
    std::set_terminate(endWithoutMemory);
    const TXConfiguration &configuration = SyncSingleton<TXConfiguration>::instance();

    QTranslator translator;
    (void)loadLabels(translator, configuration);
    QCoreApplication::installTranslator(&translator);

    // The names are the bytes of the command line, of whatever encoding.
    const QString outputPath = fileNameFromBytes(argv[2]);
    ConfirmedOutput confirmed;
    if (isAskedForStatus(configuration, outputPath))
        confirmed.open(outputPath);
    const std::unique_ptr<PrinterDriver> driver = makeDriver(
        configuration,
        confirmed.isOpen() ? confirmed.printout()
                           : std::make_unique<PrintOutput>(outputPath, PrintOutput::Opening::truncate));
    // Of what is sent as a whole nothing is sent when memory runs out.
    printing = confirmed.isOpen() ? nullptr : driver.get();
    const int input = open(argv[1], O_RDONLY | O_CLOEXEC);
    QFile document;
    if (input >= 0 && document.open(input, QIODevice::ReadOnly, QFile::AutoCloseHandle))
        printDocument(document, *driver);
    printing = nullptr;
    if (confirmed.isOpen())
        confirmed.send();
}
