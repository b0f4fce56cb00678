#pragma once

#include "temporary_home.h"

#include <QStringList>

/* The languages that there are catalogues for, as in tavolux_it.ts. */
inline QStringList translatedLanguages()
{
    return QString::fromLatin1(fileBytes(QStringLiteral(TAVOLUX_SOURCE_DIR "/translations/languages")))
        .split(u'\n', Qt::SkipEmptyParts);
}
