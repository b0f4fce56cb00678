#pragma once

#include <QDateTime>
#include <QFileSystemWatcher>
#include <QMap>
#include <QObject>
#include <QTimer>

/*
 * Tells when one of some files was written, replaced, removed or made. Changes that follow each other closely
 * are told once.
 */
class FileFollower : public QObject
{
    Q_OBJECT

public:
    explicit FileFollower(QObject *parent = nullptr);

    /* Follows these files instead of those before. They need not be there yet. */
    void follow(const QStringList &files);

Q_SIGNALS:
    void changed();

private:
    struct State
    {
        bool exists = false;
        qint64 size = 0;
        QDateTime modified;

        bool operator==(const State &) const = default;
    };

    static State stateOf(const QString &file);
    void watch();
    void look();

    QFileSystemWatcher m_watcher;
    QTimer m_pause; // until whoever writes has probably finished
    QMap<QString, State> m_states; // as told last
    bool m_wasWritten = false;
};
