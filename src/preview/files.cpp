#include "files.h"

#include "file_name.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

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
    QByteArrayView rest = bytes;
    int error = 0;
    while (!rest.isEmpty() && error == 0) {
        const ssize_t written = ::write(descriptor, rest.data(), static_cast<std::size_t>(rest.size()));
        if (written >= 0)
            rest = rest.sliced(written);
        else if (errno != EINTR)
            error = errno;
    }
    if (::close(descriptor) != 0 && error == 0)
        error = errno;
    return error == 0 ? QString() : reason(error);
}
