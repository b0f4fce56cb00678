#pragma once

#include <QByteArray>
#include <QString>
#include <QTemporaryDir>

/* A home directory that lives as long as the object, for a program run in it or for the test itself. */
class TemporaryHome
{
public:
    /* An empty home directory; its path may end in a name of one's own, such as one with umlauts. */
    explicit TemporaryHome(const QString &name = QStringLiteral("home"));

    /* The absolute path, without a slash at its end. */
    QString path() const;

    /* The absolute path of a file of this name in the home directory. */
    QString filePath(const QString &name) const;

    /* Puts the bytes in place as the user's tavolux.conf. */
    void writeConfiguration(const QByteArray &text) const;

    /* Puts the bytes into a file of this name, creating folders; returns its absolute path. */
    QString writeFile(const QString &name, const QByteArray &bytes) const;

    /* Makes a FIFO of this name; returns its absolute path. */
    QString makeFifo(const QString &name) const;

    /* Makes this the home directory of the test itself. Before the first use of the configuration only. */
    void enter() const;

private:
    QTemporaryDir directory;
    QString home;
};

/* The bytes of a file; aborts the test when it cannot be read. */
QByteArray fileBytes(const QString &path);
