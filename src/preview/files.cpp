#include "files.h"

#include "file_name.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <cerrno>
#include <cstring>

namespace {

QString reason(int error)
{
    return QString::fromLocal8Bit(std::strerror(error));
}

} // namespace

OpenedFile openForReading(const QString &name)
{
    const int descriptor = open(fileNameBytes(name).constData(), O_RDONLY | O_CLOEXEC);
    if (descriptor < 0)
        return {nullptr, reason(errno)};
    auto file = std::make_unique<QFile>();
    if (!file->open(descriptor, QIODevice::ReadOnly, QFile::AutoCloseHandle))
        return {nullptr, file->errorString()};
    struct stat status = {};
    if (fstat(descriptor, &status) == 0 && S_ISDIR(status.st_mode))
        return {nullptr, reason(EISDIR)};
    return {std::move(file), {}};
}

QString writeFile(const QString &name, const QByteArray &bytes)
{
    const int descriptor =
        open(fileNameBytes(name).constData(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0666);
    if (descriptor < 0)
        return reason(errno);
    QFile file;
    if (!file.open(descriptor, QIODevice::WriteOnly | QIODevice::Unbuffered, QFile::AutoCloseHandle)
        || file.write(bytes) != bytes.size())
        return file.errorString();
    file.close();
    return file.error() == QFile::NoError ? QString() : file.errorString();
}
