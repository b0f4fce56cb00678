#pragma once

class QTranslator;
class TXConfiguration;

/* Loads the translation of the labels that the configuration names. False when there is none, which leaves
 * the labels as they are. */
bool loadLabels(QTranslator &translator, const TXConfiguration &configuration);
