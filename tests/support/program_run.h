#pragma once

#include <QByteArray>
#include <QMap>
#include <QString>
#include <QStringList>

#include <functional>

/* What a finished program left behind. */
struct ProgramResult
{
    bool crashed = false; // or did not end in time
    int exitStatus = -1;
    QByteArray standardOutput;
    QByteArray standardError;
};

/*
 * Runs a program to its end (60 seconds at most), with the environment of the test changed by the given
 * variables; one whose value is a null text is taken out. The last function runs in the new process just
 * before the program starts, to set what cannot be said otherwise: limits, the working directory, where
 * output goes.
 */
ProgramResult runProgram(const QString &program, const QStringList &arguments,
                         const QMap<QString, QString> &environment = {}, const QByteArray &standardInput = {},
                         const std::function<void()> &beforeStart = {});

/* For the last argument of runProgram: the program starts in the folder. */
std::function<void()> inFolder(const QString &folder);
