#include "write_file.h"

#include "file_name.h"
#include "read_file.h"

#include <QRandomGenerator>
#include <QStringList>

#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <utility>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using std::filesystem::path;

namespace {

constexpr mode_t permissions = 07777;

path pathOf(const QString &name)
{
    return fileNameBytes(name).toStdString();
}

WriteResult failed(int error)
{
    return {qt_error_string(error), {}, error == EEXIST};
}

// Returns the error, 0 when all was written.
int writeAll(int file, QByteArrayView bytes)
{
    while (!bytes.isEmpty()) {
        const ssize_t written = write(file, bytes.data(), static_cast<std::size_t>(bytes.size()));
        if (written < 0 && errno != EINTR)
            return errno;
        if (written > 0)
            bytes = bytes.sliced(written);
    }
    return 0;
}

/* A new file with the bytes, under a name of its own, that goes again unless it is moved to another. */
class NewFile
{
public:
    NewFile(const path &folder, mode_t mode, QByteArrayView bytes)
        : m_name(folder / (".tavolux-" + std::to_string(QRandomGenerator::system()->generate64())))
        , m_descriptor(open(m_name.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, mode))
        , m_error(m_descriptor < 0 ? errno : writeAll(m_descriptor, bytes))
    {
    }

    NewFile(const NewFile &) = delete;
    NewFile &operator=(const NewFile &) = delete;

    ~NewFile()
    {
        if (m_descriptor < 0)
            return;
        close(m_descriptor);
        unlink(m_name.c_str()); // unless it was moved
    }

    /* Gives it owner, group and mode of another file, and returns what was not permitted, and why. */
    QString takeOver(const struct stat &status) const
    {
        if (m_error != 0)
            return {};
        QStringList refused;
        int error = 0;
        const auto attempt = [&](int result, const QString &what) {
            if (result == 0)
                return;
            error = errno;
            refused.append(what);
        };
        attempt(fchown(m_descriptor, status.st_uid, static_cast<gid_t>(-1)), u"owner"_s);
        attempt(fchown(m_descriptor, static_cast<uid_t>(-1), status.st_gid), u"group"_s);
        attempt(fchmod(m_descriptor, status.st_mode & permissions),
                u"mode"_s); // a change of owner clears bits
        return refused.isEmpty()
            ? QString()
            : u"its %1 could not be kept: %2"_s.arg(refused.join(" and "_L1), qt_error_string(error));
    }

    /* Moves it in the place of the target, or where there is none yet. Returns the error, or 0. */
    int moveOver(const path &target)
    {
        return reachDisk() ? m_error : lastError(rename(m_name.c_str(), target.c_str()));
    }

    int moveToNew(const path &target)
    {
        if (reachDisk())
            return m_error;
        const int error =
            lastError(renameat2(AT_FDCWD, m_name.c_str(), AT_FDCWD, target.c_str(), RENAME_NOREPLACE));
        // A network file system knows links only.
        return error == EINVAL ? lastError(link(m_name.c_str(), target.c_str())) : error;
    }

private:
    static int lastError(int result) { return result == 0 ? 0 : errno; }

    int reachDisk()
    {
        if (m_error == 0)
            m_error = lastError(fsync(m_descriptor));
        return m_error;
    }

    path m_name;
    int m_descriptor;
    int m_error;
};

path withoutLinks(path name)
{
    constexpr int mostLinks = 40; // as for the system, which then refuses the name
    std::error_code error;
    for (int i = 0; i < mostLinks && is_symlink(name, error); ++i)
        name = name.parent_path() / read_symlink(name, error);
    return name;
}

WriteResult writeAsItStands(const QString &name, QByteArrayView bytes)
{
    const int descriptor = open(pathOf(name).c_str(), O_WRONLY | O_CLOEXEC);
    if (descriptor < 0)
        return failed(errno);
    int error = writeAll(descriptor, bytes);
    if (close(descriptor) != 0 && error == 0)
        error = errno;
    return error == 0 ? WriteResult() : failed(error);
}

} // namespace

WriteResult replaceFile(const QString &name, QByteArrayView bytes)
{
    const path target = withoutLinks(pathOf(name));
    struct stat old = {};
    const bool exists = stat(target.c_str(), &old) == 0;
    if (!exists && errno != ENOENT)
        return failed(errno);
    if (exists && !S_ISREG(old.st_mode))
        return {notRegularFile()};
    if (exists && faccessat(AT_FDCWD, target.c_str(), W_OK, AT_EACCESS) != 0)
        return failed(errno);

    NewFile file(target.parent_path(), exists ? S_IRUSR | S_IWUSR : 0666, bytes);
    const QString remark = exists ? file.takeOver(old) : QString();
    const int error = file.moveOver(target);
    return error == 0 ? WriteResult{{}, remark} : failed(error);
}

WriteResult createFile(const QString &name, QByteArrayView bytes)
{
    const path target = pathOf(name);
    std::error_code error;
    if (exists(symlink_status(target, error)))
        return failed(EEXIST);
    NewFile file(target.parent_path(), 0666, bytes);
    const int fault = file.moveToNew(target);
    return fault == 0 ? WriteResult() : failed(fault);
}

WriteResult writeFile(const QString &name, QByteArrayView bytes)
{
    struct stat status = {};
    const bool takesBytes = stat(pathOf(name).c_str(), &status) == 0 && !S_ISREG(status.st_mode);
    return takesBytes ? writeAsItStands(name, bytes) : replaceFile(name, bytes);
}
