#pragma once

#include "program_run.h"
#include "temporary_home.h"

/*
 * One run of the printing program in a home directory of its own, with everything in order until a test puts
 * something wrong. Memory is bounded, so that a run that takes too much of it fails.
 */
class PrintRun
{
public:
    /* With a configuration (see row) and, as the document, one item: item(1, "Pasta"). */
    PrintRun();

    /* The path of the program. */
    static QString program();

    ProgramResult run() const;

    /* What is in the output file. */
    QByteArray printed() const;

    TemporaryHome home;
    QString input;
    QString output;
    QMap<QString, QString> environment;
    /* Runs in the new process just before the program starts. */
    std::function<void()> beforeStart;
};

/* What went wrong in a run beyond a message: a crash or a hang, an exit status, a word on standard error.
 * Empty if nothing did. */
QByteArray misbehaviour(const ProgramResult &result);

/* A partial order that holds the markup, an item of it, and the row in which that is printed. */
QByteArray document(const QByteArray &markup);
QByteArray item(int quantity, const QByteArray &name);
QByteArray row(int quantity, const QByteArray &name);

/* The row of item(1, "Pasta") without a configuration: no quantity column, and the device's 34 characters. */
QByteArray rowWithoutSettings();

/* 4 KB of bytes that depend on nothing but the seed. */
QByteArray noise(quint32 seed);

/* A document and its printout that pass through every buffer more than once. */
QByteArray longDocument();
QByteArray longPrintout();

// The messages of the program.
QByteArray cannotOpenOutput();
QByteArray cannotWrite(const QString &output, const QByteArray &reason);
QByteArray cannotReadConfiguration(const QString &file);

// For a new process before its program starts.

/* Without root's power over files, so that their permissions count as they do for everybody. */
void becomeOrdinaryUser();
/* No file can grow beyond so many bytes. */
void limitFileSize(unsigned long bytes);
/* The stack of the program's first thread has no more than so many bytes. */
void limitStack(unsigned long bytes);

/* Whether file systems can be mounted here, in a mount namespace of one's own. */
bool canMount();
