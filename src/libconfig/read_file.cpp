#include "read_file.h"

#include "file_name.h"

#include <QFile>

#include <cerrno>

#include <fcntl.h>
#include <sys/stat.h>

using namespace Qt::StringLiterals;

FileFault openRegularFile(QFile &file, const QString &name)
{
    const QByteArray path = fileNameBytes(name);
    struct stat status = {};
    if (stat(path.constData(), &status) != 0) {
        const int error = errno;
        return {qt_error_string(error), error == ENOENT};
    }
    if (!S_ISREG(status.st_mode))
        return {notRegularFile()};
    // Should it become a FIFO meanwhile, nobody waits for it.
    const int descriptor = open(path.constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
    if (descriptor < 0) {
        const int error = errno;
        return {qt_error_string(error)};
    }
    if (!file.open(descriptor, QIODevice::ReadOnly, QFileDevice::AutoCloseHandle))
        return {file.errorString()};
    return {};
}

FileContent readRegularFile(const QString &name)
{
    QFile file;
    FileContent content{openRegularFile(file, name)};
    if (!content.fault.isEmpty())
        return content;
    content.bytes = file.readAll();
    if (file.error() != QFileDevice::NoError)
        return {{file.errorString()}};
    return content;
}

bool isRegularFile(const QString &name)
{
    struct stat status = {};
    return stat(fileNameBytes(name).constData(), &status) == 0 && S_ISREG(status.st_mode);
}

QString notRegularFile()
{
    return u"Not a regular file"_s;
}
