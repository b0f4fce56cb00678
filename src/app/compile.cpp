#include "compile.h"

#include "bounded_document.h"
#include "company_printer_driver.h"
#include "diagnostic.h"
#include "sync_singleton.h"
#include "tx_configuration.h"

#include <QCoreApplication>
#include <QLocale>
#include <QTranslator>
#include <QXmlSimpleReader>

#include <fcntl.h>
#include <unistd.h>

#include <csignal>

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
    const TXConfiguration &configuration = SyncSingleton<TXConfiguration>::instance();

    QTranslator translator;
    const QString basedir = configuration.getStrValue(u"tavolux.language.basedir"_s);
    const QString file = configuration.getStrValue(u"tavolux.language.file"_s);
    // A translation that is not found leaves the labels as they are.
    if (file == "/"_L1)
        (void)translator.load(basedir + "/tavolux_"_L1 + QLocale::system().name(), u"."_s);
    else
        (void)translator.load(basedir + file);
    QCoreApplication::installTranslator(&translator);

    CompanyPrinterDriver driver(QFile::decodeName(argv[2]), false);
    QXmlSimpleReader reader;
    reader.setContentHandler(&driver);
    QFile inputFile(QFile::decodeName(argv[1]));
    BoundedDocument document(&inputFile);
    reader.setDeclHandler(&document);
    reader.parse(document);
}
