#pragma once

#include <QCoreApplication>

/* The context of the texts that say what is wrong with a configuration: Findings::tr("…") is in the language
 * of the translator that a program has installed, and in English without one. */
class Findings
{
    Q_DECLARE_TR_FUNCTIONS(Findings)
};
