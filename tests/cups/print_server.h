#pragma once

#include "program_run.h"
#include "temporary_home.h"

#include <QProcess>

/*
 * A print server of its own: it keeps everything in a temporary folder, is reached through a socket there and
 * by nobody else, and has the settings that the page about queues recommends. It runs as root, as every print
 * server does, and its backends and filters as
 * "lp".
 */
class PrintServer
{
public:
    /* Why this machine cannot run one; empty when it can. */
    static QByteArray obstacle();

    /* Jobs reach the disk so many seconds after they are taken, without any waiting at 0. */
    explicit PrintServer(int dirtyCleanInterval = 0);
    ~PrintServer();
    PrintServer(const PrintServer &) = delete;
    PrintServer &operator=(const PrintServer &) = delete;

    /* Starts it, and waits until it answers. */
    void start();
    /* Asks it to end, as a restart does. */
    void stop();
    /* Ends it as a crash does. */
    void kill();

    /* Makes a queue as the page says: for what is ready to be printed, or for documents, with a configuration
     * file of its own and options such as Columns=42. */
    void addQueue(const QString &name, const QString &uri) const;
    void addDocumentQueue(const QString &name, const QString &uri, const QByteArray &configuration,
                          const QStringList &options = {}) const;

    /* Submits a job, perhaps with options of the program lp; returns its name, such as kitchen-12. */
    QString submit(const QString &queue, const QByteArray &bytes, const QStringList &options = {}) const;

    /* The configuration file of a queue for documents. */
    QString configurationFile(const QString &queue) const { return file(queue + QStringLiteral(".conf")); }

    /* The program that submits, whatever comes of it. */
    ProgramResult lp(const QString &queue, const QByteArray &bytes, const QStringList &options = {}) const;

    /* What a client program such as lpstat prints; the test ends when it fails. */
    QByteArray client(const QString &program, const QStringList &arguments) const;

    /* The line "Alerts:" that lpstat shows for the queue: the printer's state reasons. */
    QByteArray reasons(const QString &queue) const;
    /* What lpstat shows of the jobs that are waiting, printing or held in the queue. */
    QByteArray openJobs(const QString &queue) const;

    qint64 processId() const { return m_process.processId(); }

    /* What it has written to its log, for a test that fails. */
    QByteArray log() const;

private:
    QString file(const QString &name) const { return m_folder.filePath(name); }
    QMap<QString, QString> environment() const;

    TemporaryHome m_folder;
    QProcess m_process;
};
