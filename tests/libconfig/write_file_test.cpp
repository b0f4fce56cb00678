#include "write_file.h"

#include "file_name.h"
#include "file_size_limit.h"
#include "read_file.h"
#include "temporary_home.h"

#include <QDir>
#include <QFile>
#include <QTest>

#include <sys/fsuid.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

constexpr uid_t nobody = 65534;
constexpr gid_t noGroup = 65534;

struct stat statusOf(const QString &name)
{
    struct stat status = {};
    if (lstat(fileNameBytes(name).constData(), &status) != 0)
        qFatal("there is no %s", qPrintable(name));
    return status;
}

QStringList entries(const TemporaryHome &home)
{
    return QDir(home.path())
        .entryList(QDir::NoDotAndDotDot | QDir::AllEntries | QDir::Hidden | QDir::System, QDir::Name);
}

/* What the function returns when an unprivileged user calls it; whoever is one already stays himself. */
template <typename Function>
auto asNobody(const Function &function)
{
    setfsgid(noGroup);
    setfsuid(nobody);
    const auto result = function();
    setfsuid(geteuid());
    setfsgid(getegid());
    return result;
}

} // namespace

/* Files read and written, whole or not at all. */
class WriteFileTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void newFileHasTheUsualMode()
    {
        const TemporaryHome home;
        const mode_t before = umask(027);
        for (const auto write : {replaceFile, createFile, writeFile}) {
            const QString file = home.filePath(u"new"_s);
            const WriteResult result = write(file, "text");
            QVERIFY(result);
            QCOMPARE(result.remark, QString());
            QCOMPARE(fileBytes(file), "text");
            QCOMPARE(statusOf(file).st_mode, mode_t{S_IFREG | 0640});
            QCOMPARE(entries(home), QStringList(u"new"_s));
            QVERIFY(QFile::remove(file));
        }
        umask(before);
    }

    void replacedFileKeepsItsMode_data()
    {
        QTest::addColumn<int>("mode");
        QTest::newRow("private") << 0600;
        QTest::newRow("of the group") << 0660;
        QTest::newRow("of everybody") << 0666;
        QTest::newRow("a program") << 0755;
    }
    void replacedFileKeepsItsMode()
    {
        QFETCH(const int, mode);
        const TemporaryHome home;
        const QString file = home.writeFile(u"file"_s, "old and longer");
        QCOMPARE(chmod(fileNameBytes(file).constData(), static_cast<mode_t>(mode)), 0);
        const ino_t number = statusOf(file).st_ino;
        QVERIFY(replaceFile(file, "new"));
        QCOMPARE(fileBytes(file), "new");
        QCOMPARE(static_cast<int>(statusOf(file).st_mode & 07777), mode);
        QVERIFY(statusOf(file).st_ino != number);
    }

    void replacedFileKeepsOwnerAndGroup()
    {
        if (geteuid() != 0)
            QSKIP("only root can have files of others");
        const TemporaryHome home;
        const QString file = home.writeFile(u"file"_s, "old");
        QCOMPARE(chown(fileNameBytes(file).constData(), nobody, noGroup), 0);
        QCOMPARE(chmod(fileNameBytes(file).constData(), 0640), 0);
        const WriteResult result = replaceFile(file, "new");
        QVERIFY(result);
        QCOMPARE(result.remark, QString());
        QCOMPARE(statusOf(file).st_uid, nobody);
        QCOMPARE(statusOf(file).st_gid, noGroup);
        QCOMPARE(statusOf(file).st_mode, mode_t{S_IFREG | 0640});
    }

    void whatCannotBeKeptIsSaid_data()
    {
        QTest::addColumn<uint>("group");
        QTest::addColumn<QString>("remark");
        QTest::newRow("owner") << noGroup << u"its owner could not be kept: Operation not permitted"_s;
        QTest::newRow("owner and group")
            << gid_t{0} << u"its owner and group could not be kept: Operation not permitted"_s;
    }
    void whatCannotBeKeptIsSaid()
    {
        QFETCH(const uint, group);
        if (geteuid() != 0)
            QSKIP("only root can leave files to others");
        const TemporaryHome home;
        const QString file = home.writeFile(u"file"_s, "old");
        QCOMPARE(chown(fileNameBytes(file).constData(), 0, group), 0);
        QCOMPARE(chmod(fileNameBytes(file).constData(), 0666), 0);
        for (const QString &folder : {home.path(), home.path() + "/.."_L1})
            QCOMPARE(chmod(QFile::encodeName(folder).constData(), 0777), 0);
        const WriteResult result = asNobody([&] { return replaceFile(file, "new"); });
        QVERIFY(result);
        QTEST(result.remark, "remark");
        QCOMPARE(fileBytes(file), "new");
        QCOMPARE(statusOf(file).st_mode, mode_t{S_IFREG | 0666});
    }

    void hardLinkKeepsTheOldBytes()
    {
        const TemporaryHome home;
        const QString file = home.writeFile(u"file"_s, "old");
        const QString other = home.filePath(u"other"_s);
        QCOMPARE(link(fileNameBytes(file).constData(), fileNameBytes(other).constData()), 0);
        QVERIFY(replaceFile(file, "new"));
        QCOMPARE(fileBytes(file), "new");
        QCOMPARE(fileBytes(other), "old");
    }

    void linksAreFollowed()
    {
        const TemporaryHome home;
        const QString file = home.writeFile(u"folder/file"_s, "old");
        QVERIFY(QFile::link(u"folder/file"_s, home.filePath(u"relative"_s)));
        QVERIFY(QFile::link(home.filePath(u"relative"_s), home.filePath(u"absolute"_s)));
        QVERIFY(replaceFile(home.filePath(u"absolute"_s), "new"));
        QCOMPARE(fileBytes(file), "new");
        for (const QString &name : {u"relative"_s, u"absolute"_s})
            QVERIFY(S_ISLNK(statusOf(home.filePath(name)).st_mode));

        QVERIFY(QFile::link(u"folder/made"_s, home.filePath(u"dangling"_s)));
        QVERIFY(replaceFile(home.filePath(u"dangling"_s), "made"));
        QCOMPARE(fileBytes(home.filePath(u"folder/made"_s)), "made");
        QVERIFY(S_ISLNK(statusOf(home.filePath(u"dangling"_s)).st_mode));

        const QString circle = home.filePath(u"circle"_s);
        QVERIFY(QFile::link(circle, circle));
        QCOMPARE(replaceFile(circle, "new").fault, u"Too many levels of symbolic links"_s);
        QVERIFY(S_ISLNK(statusOf(circle).st_mode));
    }

    void namesAreBytes()
    {
        const TemporaryHome home;
        const QString folder = home.path() + u'/';
        const QByteArray path = QFile::encodeName(folder) + "b\xE4r";
        QVERIFY(writeFile(fileNameFromBytes(path), "text"));
        QCOMPARE(access(path.constData(), F_OK), 0);
        QCOMPARE(readRegularFile(fileNameFromBytes(path)).bytes, "text");
    }

    void faultsLeaveEverythingAsItWas_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("fault");
        QTest::newRow("no folder") << u"missing/file"_s << u"No such file or directory"_s;
        QTest::newRow("below a file") << u"file/file"_s << u"Not a directory"_s;
        QTest::newRow("folder") << u"folder"_s << u"Not a regular file"_s;
        QTest::newRow("FIFO") << u"fifo"_s << u"Not a regular file"_s;
        QTest::newRow("not to be written") << u"readonly"_s << u"Permission denied"_s;
        QTest::newRow("in a folder not to be written") << u"closed/file"_s << u"Permission denied"_s;
        QTest::newRow("new in such a folder") << u"closed/new"_s << u"Permission denied"_s;
        QTest::newRow("far too long") << QString(256, u'x') << u"File name too long"_s;
    }
    void faultsLeaveEverythingAsItWas()
    {
        QFETCH(const QString, name);
        const TemporaryHome home;
        const QString file = home.writeFile(u"file"_s, "old");
        home.writeFile(u"folder/file"_s, "old");
        home.writeFile(u"readonly"_s, "old");
        home.writeFile(u"closed/file"_s, "old");
        home.makeFifo(u"fifo"_s);
        QCOMPARE(chmod(QFile::encodeName(home.filePath(u"readonly"_s)).constData(), 0444), 0);
        for (const QString &folder : {home.path(), home.path() + "/.."_L1})
            QCOMPARE(chmod(QFile::encodeName(folder).constData(), 0777), 0);
        QCOMPARE(chmod(QFile::encodeName(home.filePath(u"closed"_s)).constData(), 0555), 0);
        const QStringList before = entries(home);

        const WriteResult result = asNobody([&] { return replaceFile(home.filePath(name), "new"); });
        QVERIFY(!result);
        QTEST(result.fault, "fault");
        QCOMPARE(entries(home), before);
        for (const QString &kept : {u"file"_s, u"folder/file"_s, u"readonly"_s, u"closed/file"_s})
            QCOMPARE(fileBytes(home.filePath(kept)), "old");
        QCOMPARE(chmod(QFile::encodeName(home.filePath(u"closed"_s)).constData(), 0755), 0);
    }

    void fullDisk_data()
    {
        QTest::addColumn<int>("fitting");
        QTest::newRow("nothing") << 0;
        QTest::newRow("a part") << 100;
        QTest::newRow("all but a byte") << 999;
    }
    void fullDisk()
    {
        QFETCH(const int, fitting);
        const TemporaryHome home;
        const QString file = home.writeFile(u"file"_s, "old");
        const QByteArray text(1000, 'x');
        {
            const FileSizeLimit limit(static_cast<rlim_t>(fitting));
            QCOMPARE(replaceFile(file, text).fault, u"File too large"_s);
            QCOMPARE(createFile(home.filePath(u"new"_s), text).fault, u"File too large"_s);
        }
        QCOMPARE(fileBytes(file), "old");
        QCOMPARE(entries(home), QStringList(u"file"_s));
        QVERIFY(createFile(home.filePath(u"new"_s), text));
    }

    void whatExistsIsNotMadeAnew_data()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("file") << u"file"_s;
        QTest::newRow("folder") << u"folder"_s;
        QTest::newRow("FIFO") << u"fifo"_s;
        QTest::newRow("link that leads nowhere") << u"link"_s;
    }
    void whatExistsIsNotMadeAnew()
    {
        QFETCH(const QString, name);
        const TemporaryHome home;
        const QString file = home.writeFile(u"file"_s, "old");
        home.writeFile(u"folder/file"_s, "old");
        home.makeFifo(u"fifo"_s);
        QVERIFY(QFile::link(u"missing"_s, home.filePath(u"link"_s)));
        const QStringList before = entries(home);
        const WriteResult result = createFile(home.filePath(name), "new");
        QVERIFY(!result);
        QVERIFY(result.alreadyExists);
        QCOMPARE(entries(home), before);
        QCOMPARE(fileBytes(file), "old");
    }

    void faultsOfNewFiles()
    {
        const TemporaryHome home;
        const WriteResult result = createFile(home.filePath(u"missing/file"_s), "new");
        QCOMPARE(result.fault, u"No such file or directory"_s);
        QVERIFY(!result.alreadyExists);
    }

    void devicesAreWrittenAsTheyStand()
    {
        QVERIFY(writeFile(u"/dev/null"_s, "text"));
        QVERIFY(S_ISCHR(statusOf(u"/dev/null"_s).st_mode));
        QCOMPARE(writeFile(u"/dev/full"_s, "text").fault, u"No space left on device"_s);
        const TemporaryHome home;
        QCOMPARE(writeFile(home.path(), "text").fault, u"Is a directory"_s);
    }

    void reading_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("fault");
        QTest::addColumn<bool>("isMissing");
        QTest::newRow("file") << u"file"_s << QString() << false;
        QTest::newRow("link to it") << u"link"_s << QString() << false;
        QTest::newRow("missing") << u"missing"_s << u"No such file or directory"_s << true;
        QTest::newRow("below a file") << u"file/file"_s << u"Not a directory"_s << false;
        QTest::newRow("folder") << u"."_s << u"Not a regular file"_s << false;
        QTest::newRow("FIFO") << u"fifo"_s << u"Not a regular file"_s << false;
        QTest::newRow("not to be read") << u"secret"_s << u"Permission denied"_s << false;
    }
    void reading()
    {
        QFETCH(const QString, name);
        QFETCH(const QString, fault);
        const TemporaryHome home;
        const QByteArray text = QByteArray(100'000, 'x') + '\0' + "end";
        home.writeFile(u"file"_s, text);
        home.writeFile(u"secret"_s, text);
        QCOMPARE(chmod(QFile::encodeName(home.filePath(u"secret"_s)).constData(), 0), 0);
        home.makeFifo(u"fifo"_s);
        QVERIFY(QFile::link(home.filePath(u"file"_s), home.filePath(u"link"_s)));
        for (const QString &folder : {home.path(), home.path() + "/.."_L1})
            QCOMPARE(chmod(QFile::encodeName(folder).constData(), 0755), 0);

        const FileContent content = asNobody([&] { return readRegularFile(home.filePath(name)); });
        QCOMPARE(content.fault, fault);
        QTEST(content.isMissing, "isMissing");
        QCOMPARE(content.bytes, fault.isEmpty() ? text : QByteArray());
        QCOMPARE(isRegularFile(home.filePath(name)), fault.isEmpty() || name == "secret"_L1);
    }

    void readingThatFails()
    {
        // Opens like any file, and cannot be read from its start.
        const FileContent content = readRegularFile(u"/proc/self/mem"_s);
        QCOMPARE(content.fault, u"Input/output error"_s);
        QCOMPARE(content.bytes, QByteArray());
    }
};

QTEST_GUILESS_MAIN(WriteFileTest)
#include "write_file_test.moc"
