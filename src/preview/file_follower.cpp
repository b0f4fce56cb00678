#include "file_follower.h"

#include <QFileInfo>

#include <chrono>

FileFollower::FileFollower(QObject *parent)
    : QObject(parent)
{
    using namespace std::chrono_literals;
    m_pause.setSingleShot(true);
    m_pause.setInterval(40ms);
    connect(&m_pause, &QTimer::timeout, this, &FileFollower::look);
    connect(&m_watcher, &QFileSystemWatcher::fileChanged, this, [this] {
        m_wasWritten = true;
        m_pause.start();
    });
    connect(&m_watcher, &QFileSystemWatcher::directoryChanged, &m_pause, qOverload<>(&QTimer::start));
}

void FileFollower::follow(const QStringList &files)
{
    if (const QStringList watched = m_watcher.files() + m_watcher.directories(); !watched.isEmpty())
        m_watcher.removePaths(watched);
    m_states.clear();
    for (const QString &file : files)
        m_states.insert(file, stateOf(file));
    watch();
}

FileFollower::State FileFollower::stateOf(const QString &file)
{
    const QFileInfo info(file);
    return {info.exists(), info.size(), info.lastModified()};
}

// A file that was replaced is watched no longer; its folder tells when another takes its place.
void FileFollower::watch()
{
    for (const QString &file : m_states.keys())
        for (const QString &path : {file, QFileInfo(file).absolutePath()})
            if (QFileInfo::exists(path) && !m_watcher.files().contains(path)
                && !m_watcher.directories().contains(path))
                m_watcher.addPath(path);
}

void FileFollower::look()
{
    watch();
    bool isOther = std::exchange(m_wasWritten, false);
    for (auto file = m_states.begin(); file != m_states.end(); ++file) {
        const State state = stateOf(file.key());
        isOther |= state != std::exchange(file.value(), state);
    }
    if (isOther)
        Q_EMIT changed();
}
