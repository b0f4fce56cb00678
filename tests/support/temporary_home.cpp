#include "temporary_home.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <sys/stat.h>

TemporaryHome::TemporaryHome(const QString &name)
    : home(directory.filePath(name))
{
    if (!QDir().mkpath(home))
        qFatal("cannot create the folder %s", qPrintable(home));
}

QString TemporaryHome::path() const
{
    return home;
}

QString TemporaryHome::filePath(const QString &name) const
{
    return home + u'/' + name;
}

void TemporaryHome::writeConfiguration(const QByteArray &text) const
{
    writeFile(QStringLiteral(".tavolux/conf/tavolux.conf"), text);
}

QString TemporaryHome::writeFile(const QString &name, const QByteArray &bytes) const
{
    QFile file(filePath(name));
    if (!QDir().mkpath(QFileInfo(file).path()) || !file.open(QIODevice::WriteOnly)
        || file.write(bytes) != bytes.size())
        qFatal("cannot write the file %s", qPrintable(file.fileName()));
    return file.fileName();
}

QString TemporaryHome::makeFifo(const QString &name) const
{
    QString path = filePath(name);
    if (mkfifo(QFile::encodeName(path).constData(), 0600) != 0)
        qFatal("cannot make the FIFO %s", qPrintable(path));
    return path;
}

void TemporaryHome::enter() const
{
    qputenv("HOME", QFile::encodeName(home));
}

QByteArray fileBytes(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("cannot read the file %s", qPrintable(path));
    return file.readAll();
}
