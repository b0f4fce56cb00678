#pragma once

#include <QByteArray>
#include <QList>
#include <QMap>
#include <QString>
#include <QStringList>

/* A printer as the decoder sees it: the name of each code page by its number, and the one it starts with. */
struct DecodedPrinter
{
    QMap<int, QString> pages;
    int firstPage = 0;
    int columns = 0;
};

/* What a printer does with the bytes of printouts. */
struct DecodedPrintout
{
    struct Line
    {
        QString text;
        int boldCharacters = 0;
        int highCharacters = 0;
    };

    QStringList lines() const;
    QByteArray dumpText() const { return dump.join(u'\n').toUtf8() + '\n'; }

    QString fault; // what is wrong with the bytes, and where; empty when nothing is
    QStringList dump; // each command by its name, each text in quotes
    QList<Line> printed;
    QStringList commands; // of the dump without texts
    int initialisations = 0;
    int cuts = 0;
    int pulses = 0;
    int widestLine = 0; // columns
    bool isBlank = true; // nothing was printed since the last cut
};

/*
 * Reads bytes as a strict receipt printer: every command in its exact length and none but those that the
 * device is known to send; no control characters in text but line ends; no byte that the code page in force
 * leaves undefined. Printing begins with an initialisation, and a printout ends in the normal state: no line
 * begun, no bold, normal size, the first code page. After a cut only a pulse, another initialisation or the
 * end may come.
 *
 * It reads with tables of its own, and stops at the first fault.
 */
DecodedPrintout decodeEscpos(const QByteArray &bytes, const DecodedPrinter &printer);
