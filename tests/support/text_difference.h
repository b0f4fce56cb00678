#pragma once

#include <QByteArray>

/*
 * The lines in which two texts differ, for a person to read: those that are missing after "- ", those that
 * are there instead after "+ ", between one line before and one after. Control bytes are shown as \xHH and
 * every line end as \n. Empty when the texts are the same.
 */
QByteArray textDifference(const QByteArray &expected, const QByteArray &actual);
