#pragma once

#include <QStringList>

class QTranslator;

/* The folders that translations are installed in, the likeliest first. Needs the application object. */
QStringList translationFolders();

/* Loads the translation of windows in the language of the person at the machine. False when there is none. */
bool loadInterface(QTranslator &translator, const QStringList &folders = translationFolders());

/* A number as that person writes it, such as "100,000"; so without a language. */
QString shownNumber(qlonglong number);
