#pragma once

#include "config.h"

/*
 * The application's configuration: the "cfg" file .tavolux/conf/tavolux.conf in the user's home directory.
 * Every setting of the system is read through SyncSingleton<TXConfiguration>::instance().
 */
class TXConfiguration : public libconfig::Config
{
public:
    /* Reads the user's file. One that cannot be opened prints one line and leaves every setting empty. */
    TXConfiguration();

    /* The same from another file, of the kind "cfg" or "xml", for programs that look after configurations. */
    TXConfiguration(const QString &file, const QString &type);

    /* The path of the user's file. */
    static QString userFile();

    /* The value of a dotted key, empty when it is missing or empty. Key and value pass through Latin-1: a
     * character outside it becomes a question mark. */
    QString getStrValue(const QString &key) const;
};
