#include "print_server.h"

#include "program_run.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryFile>

#include <csignal>

#include <grp.h>
#include <sys/prctl.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

const QString daemonProgram = u"/usr/sbin/cupsd"_s;
const QString systemServerBin = u"/usr/lib/cups"_s;

const QByteArray settings = R"(
LogLevel info
Listen FOLDER/cups.sock
Browsing No
WebInterface No
DirtyCleanInterval SECONDS
MaxJobs 0
MaxJobTime 0
PreserveJobHistory 86400
<Location />
  Order allow,deny
  Allow all
</Location>
<Policy default>
  <Limit All>
    Order deny,allow
  </Limit>
</Policy>
)";

const QByteArray files = R"(
ServerRoot FOLDER/root
ServerBin FOLDER/bin
RequestRoot FOLDER/spool
TempDir FOLDER/spool/tmp
CacheDir FOLDER/cache
StateDir FOLDER/state
AccessLog FOLDER/access_log
ErrorLog FOLDER/error_log
PageLog FOLDER/page_log
Printcap FOLDER/printcap
FileDevice Yes
User lp
Group lp
SystemGroup root
SyncOnClose Yes
)";

/* A copy that everybody may read, since the build folder may be closed to others. */
void install(const QString &source, const QString &copy, mode_t mode)
{
    if (!QFile::copy(source, copy) || chmod(QFile::encodeName(copy).constData(), mode) != 0)
        qFatal("cannot install %s", qPrintable(source));
}

/* A folder that root owns and the print system's group may use. */
void makeFolder(const QString &path, mode_t mode)
{
    const group *lp = getgrnam("lp");
    const QByteArray name = QFile::encodeName(path);
    if (!QDir().mkpath(path) || lp == nullptr || chown(name.constData(), 0, lp->gr_gid) != 0
        || chmod(name.constData(), mode) != 0)
        qFatal("cannot make the folder %s", name.constData());
}

} // namespace

QByteArray PrintServer::obstacle()
{
    if (!QFile::exists(daemonProgram))
        return "there is no print server: the package cups-daemon is not installed";
    if (geteuid() != 0)
        return "a print server runs as root, and this test does not";
    if (getgrnam("lp") == nullptr)
        return "the group lp, as which backends run, does not exist";
    return {};
}

PrintServer::PrintServer(int dirtyCleanInterval)
{
    // The backends have to reach it.
    makeFolder(QDir::cleanPath(m_folder.path() + u"/.."_s), 0711);
    makeFolder(m_folder.path(), 0711);
    makeFolder(file(u"root"_s), 0755);
    makeFolder(file(u"spool"_s), 0710);
    makeFolder(file(u"spool/tmp"_s), 01770);
    makeFolder(file(u"cache"_s), 0770);
    makeFolder(file(u"state"_s), 0755);
    makeFolder(file(u"bin/backend"_s), 0755);
    makeFolder(file(u"bin/filter"_s), 0755);
    QFile::link(systemServerBin + u"/backend/socket"_s, file(u"bin/backend/socket"_s)); // to compare with
    for (const QString &folder : {u"daemon"_s, u"notifier"_s, u"cgi-bin"_s})
        QFile::link(systemServerBin + u'/' + folder, file(u"bin/"_s + folder));
    install(QStringLiteral(TAVOLUX_BACKEND), file(u"bin/backend/tavolux"_s), 0755);
    install(QStringLiteral(TAVOLUX_FILTER), file(u"bin/filter/tavolux-filter"_s), 0755);
    install(QStringLiteral(TAVOLUX_PPD), file(u"tavolux.ppd"_s), 0644);
    for (const QString &rules : {u"tavolux.types"_s, u"tavolux.convs"_s})
        install(QStringLiteral(TAVOLUX_SOURCE_DIR "/src/cups/filter/") + rules, file(u"root/"_s + rules),
                0644);

    const QByteArray folder = m_folder.path().toLocal8Bit();
    m_folder.writeFile(u"cupsd.conf"_s,
                       QByteArray(settings)
                           .replace("FOLDER", folder)
                           .replace("SECONDS", QByteArray::number(dirtyCleanInterval)));
    m_folder.writeFile(u"cups-files.conf"_s, QByteArray(files).replace("FOLDER", folder));
}

PrintServer::~PrintServer()
{
    if (m_process.state() != QProcess::NotRunning)
        stop();
}

void PrintServer::start()
{
    // It ends with the test, however that ends.
    m_process.setChildProcessModifier([] { prctl(PR_SET_PDEATHSIG, SIGTERM); });
    m_process.start(daemonProgram,
                    {u"-f"_s, u"-c"_s, file(u"cupsd.conf"_s), u"-s"_s, file(u"cups-files.conf"_s)});
    if (!m_process.waitForStarted())
        qFatal("the print server does not start");
    while (runProgram(u"lpstat"_s, {u"-r"_s}, environment()).standardOutput != "scheduler is running\n")
        if (m_process.waitForFinished(1))
            qFatal("the print server has ended: %s%s", m_process.readAllStandardError().constData(),
                   log().constData());
}

void PrintServer::stop()
{
    m_process.terminate();
    if (!m_process.waitForFinished(60'000))
        qFatal("the print server does not end");
}

void PrintServer::kill()
{
    m_process.kill();
    m_process.waitForFinished();
}

void PrintServer::addQueue(const QString &name, const QString &uri) const
{
    client(u"lpadmin"_s,
           {u"-p"_s, name, u"-E"_s, u"-v"_s, uri, u"-o"_s, u"printer-error-policy=retry-job"_s});
}

void PrintServer::addDocumentQueue(const QString &name, const QString &uri, const QByteArray &configuration,
                                   const QStringList &options) const
{
    m_folder.writeFile(QFileInfo(configurationFile(name)).fileName(), configuration);
    QStringList arguments = {u"-p"_s,
                             name,
                             u"-E"_s,
                             u"-v"_s,
                             uri,
                             u"-P"_s,
                             file(u"tavolux.ppd"_s),
                             u"-o"_s,
                             u"printer-error-policy=retry-job"_s,
                             u"-o"_s,
                             u"configuration-default="_s + configurationFile(name)};
    for (const QString &option : options)
        arguments << u"-o"_s << option;
    client(u"lpadmin"_s, arguments);
}

ProgramResult PrintServer::lp(const QString &queue, const QByteArray &bytes, const QStringList &options) const
{
    // An ending that several types of files have.
    QTemporaryFile job(file(u"XXXXXX.xml"_s));
    if (!job.open() || job.write(bytes) != bytes.size() || !job.flush())
        qFatal("cannot write the job");
    return runProgram(u"lp"_s, QStringList{u"-d"_s, queue} + options + QStringList{job.fileName()},
                      environment());
}

QString PrintServer::submit(const QString &queue, const QByteArray &bytes, const QStringList &options) const
{
    const ProgramResult result = lp(queue, bytes, options);
    const QString name = QString::fromLatin1(result.standardOutput)
                             .section(u' ', 3, 3); // request id is kitchen-12 (1 file(s))
    if (!name.startsWith(queue + u'-'))
        qFatal("no job: %s", result.standardError.constData());
    return name;
}

QByteArray PrintServer::client(const QString &program, const QStringList &arguments) const
{
    const ProgramResult result = runProgram(program, arguments, environment());
    if (result.crashed || result.exitStatus != 0)
        qFatal("%s: %s", qPrintable(program), result.standardError.constData());
    return result.standardOutput;
}

QByteArray PrintServer::reasons(const QString &queue) const
{
    for (const QByteArray &line : client(u"lpstat"_s, {u"-l"_s, u"-p"_s, queue}).split('\n'))
        if (line.trimmed().startsWith("Alerts: "))
            return line.trimmed().sliced(8);
    return {};
}

QByteArray PrintServer::openJobs(const QString &queue) const
{
    return client(u"lpstat"_s, {u"-l"_s, u"-W"_s, u"not-completed"_s, u"-o"_s, queue});
}

QByteArray PrintServer::log() const
{
    const QString path = file(u"error_log"_s);
    return QFile::exists(path) ? fileBytes(path) : QByteArray();
}

QMap<QString, QString> PrintServer::environment() const
{
    return {{u"CUPS_SERVER"_s, file(u"cups.sock"_s)}, {u"CUPS_SERVERROOT"_s, file(u"root"_s)}};
}
