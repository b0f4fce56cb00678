#pragma once

#include <QByteArrayView>
#include <QMap>
#include <QString>

/* Texts of options, by their names in small letters. */
using OptionTexts = QMap<QString, QString>;

/* The options of a job as the print system hands them over: words such as name=value, where a value may be in
 * quotes and a backslash keeps the character after it. A word alone is a switch: "name" is "true", "noname"
 * of the name "name" is "false". */
OptionTexts jobOptions(QByteArrayView text);

/* The choices that a PPD file makes by default: what its lines "*DefaultName: value" say. */
OptionTexts ppdDefaults(QByteArrayView ppd);
