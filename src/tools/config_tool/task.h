#pragma once

#include "config_tool.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <optional>

/* The configuration that a command works on, and what the command was given. */
struct Task
{
    QString file;
    QString kind; // "cfg" or "xml": as it was given, else as the file's content has it
    bool kindIsGiven = false;
    QString argument; // the command's own, if it takes one
    QStringList arguments = {}; // all of them
    std::optional<int> columns = {};
    std::optional<QString> printer = {};
    std::optional<QString> output = {};
    bool force = false;
    bool quiet = false;
    bool json = false;
    bool names = false;
};

/* Prints a line on standard output, or a message on standard error. */
void print(QByteArrayView line);
void complain(const QString &message);

/* Complains of wrong usage. */
ExitStatus refuse(const QString &message);

/* What to add to a complaint of a name that is not known: the one that was probably meant, if any. */
QString suggestion(const QString &name, const QStringList &known);

/* What is in the configuration file. None, with a complaint, when it cannot be read. */
std::optional<QByteArray> textOf(const QString &file);

/* A text that the store can read. */
struct Source
{
    QByteArray text;
    bool beginsWithRoot;
};

/* The text of the task's file. None, with a complaint, when the store cannot read it; it would not say why.
 */
std::optional<Source> readSource(const Task &task);
