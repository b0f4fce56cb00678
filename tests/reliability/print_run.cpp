#include "print_run.h"

#include <QRandomGenerator>

#include <linux/capability.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

#ifdef __SANITIZE_ADDRESS__
constexpr bool addressSanitizer = true;
#else
constexpr bool addressSanitizer = false;
#endif

// An attribute of 50 MB takes 100 MB as text, beside the libraries.
void limitMemory()
{
    constexpr rlim_t bytes = 256UL * 1024 * 1024;
    const rlimit limit = {bytes, bytes};
    if (setrlimit(RLIMIT_AS, &limit) != 0)
        _exit(127);
}

constexpr int longDocumentItems = 10'000;

QByteArray repeated(QByteArray (*part)(int, const QByteArray &))
{
    QByteArray text;
    for (int number = 1; number <= longDocumentItems; ++number)
        text += part(number % 1000, "Item " + QByteArray::number(number));
    return text;
}

} // namespace

PrintRun::PrintRun()
    : input(home.writeFile(u"document.xml"_s, document(item(1, "Pasta"))))
    , output(home.filePath(u"printed.txt"_s))
{
    home.writeConfiguration("tavolux : { doc : { quantityFieldWidth = 3; paperWidth = 20; }; };");
    environment[u"HOME"_s] = home.path();
}

QString PrintRun::program()
{
    return QStringLiteral(TAVOLUX_PRINTER);
}

ProgramResult PrintRun::run() const
{
    QMap<QString, QString> variables = environment;
    // The sanitizer reserves terabytes of addresses; its own limit is on what is resident, with what it keeps
    // for itself.
    if (addressSanitizer)
        variables[u"ASAN_OPTIONS"_s] =
            variables.value(u"ASAN_OPTIONS"_s, qEnvironmentVariable("ASAN_OPTIONS"))
            + ":hard_rss_limit_mb=768"_L1;
    return runProgram(program(), {input, output}, variables, {}, [this] {
        if (!addressSanitizer)
            limitMemory();
        if (beforeStart)
            beforeStart();
    });
}

QByteArray PrintRun::printed() const
{
    return fileBytes(output);
}

QByteArray misbehaviour(const ProgramResult &result)
{
    if (result.crashed)
        return "crashed, or did not end in time; standard error: " + result.standardError;
    if (result.exitStatus != 0)
        return "exit status " + QByteArray::number(result.exitStatus)
            + "; standard error: " + result.standardError;
    return result.standardError;
}

QByteArray document(const QByteArray &markup)
{
    return "<document><method name=\"printPartialOrder\"/>" + markup + "</document>\n";
}

QByteArray item(int quantity, const QByteArray &name)
{
    return "<receipe number=\"" + QByteArray::number(quantity) + "\" name=\"" + name + "\"/>";
}

// With a quantity column of 3 and paper of 20 characters.
QByteArray row(int quantity, const QByteArray &name)
{
    return QByteArray::number(quantity).rightJustified(3) + ' ' + name.leftJustified(14) + '\n';
}

QByteArray rowWithoutSettings()
{
    return "1 Pasta" + QByteArray(26, ' ') + '\n';
}

QByteArray noise(quint32 seed)
{
    QRandomGenerator generator(seed);
    QByteArray bytes(4096, '\0');
    for (char &byte : bytes)
        byte = static_cast<char>(generator.bounded(256));
    return bytes;
}

QByteArray longDocument()
{
    return document(repeated(item));
}

QByteArray longPrintout()
{
    return repeated(row);
}

QByteArray cannotOpenOutput()
{
    return "PrintManager::printAbstractOrder(...): Unable To Open File\n";
}

QByteArray cannotWrite(const QString &output, const QByteArray &reason)
{
    return "Error in the method PrinterDriver::print( " + output.toUtf8() + " ): " + reason + '\n';
}

QByteArray cannotReadConfiguration(const QString &file)
{
    return "Error in the method FileReader::open( " + file.toUtf8() + " ): File Not Found\n";
}

void becomeOrdinaryUser()
{
    if (geteuid() != 0)
        return;
    for (const auto power : {CAP_DAC_OVERRIDE, CAP_DAC_READ_SEARCH, CAP_FOWNER})
        if (prctl(PR_CAPBSET_DROP, power) != 0)
            _exit(127);
}

void limitFileSize(unsigned long bytes)
{
    const rlimit limit = {bytes, bytes};
    if (setrlimit(RLIMIT_FSIZE, &limit) != 0)
        _exit(127);
}

void limitStack(unsigned long bytes)
{
    const rlimit limit = {bytes, bytes};
    if (setrlimit(RLIMIT_STACK, &limit) != 0)
        _exit(127);
}

bool canMount()
{
    const QString mount = u"mkdir mounted && mount -t tmpfs tmpfs mounted"_s;
    const TemporaryHome home;
    const ProgramResult result =
        runProgram(u"unshare"_s, {u"-m"_s, u"sh"_s, u"-c"_s, mount}, {}, {}, inFolder(home.path()));
    return !result.crashed && result.exitStatus == 0;
}
