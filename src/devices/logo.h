#pragma once

#include <QByteArray>
#include <QString>

/* A picture of black dots and white ones, as printers take it. */
struct Raster
{
    int bytesPerRow = 0; // eight dots each, the leftmost in the highest bit, a black dot being 1
    int rows = 0;
    QByteArray bits;
};

/* A logo that was read or, with a reason, was not. */
struct Logo
{
    Raster raster;
    QString fault; // why it cannot be printed, in one line without a full stop; empty when it can
};

/*
 * Reads a PNG file for a paper of so many dots across, at least one: scaled down to them where it is wider,
 * grey tones dithered, transparent parts white, and in the middle of the paper. Files above 4 MB and pictures
 * of more than 4,096 dots in either direction are not read. The library that reads PNG files is loaded when
 * the first is read.
 */
Logo readLogo(const QString &file, int dots);
