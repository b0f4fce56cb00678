#pragma once

class QString;
class QTranslator;
class TXConfiguration;

/* Loads the translation of the labels that the configuration names. False when there is none, which leaves
 * the labels as they are. */
bool loadLabels(QTranslator &translator, const TXConfiguration &configuration);

/* Loads the translation of this language, such as "it", from the folder that the configuration names or, if
 * it is not there, from where translations are installed. False when there is none. */
bool loadLabelsOf(QTranslator &translator, const TXConfiguration &configuration, const QString &language);
