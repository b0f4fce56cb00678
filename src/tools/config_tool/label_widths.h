#pragma once

#include "document_profile.h"

#include <QString>

#include <vector>

class QTranslator;

/* A title or a label whose translation is wider than its column. */
struct WideLabel
{
    QLatin1StringView setting; // the width to look at
    QString text; // what is wrong, in one line without a full stop
};

/* Those of a document type with such a profile. Columns without a width, or that others leave nothing of, are
 * no columns. English labels are looked at only where a translation has the same words. */
std::vector<WideLabel> wideLabels(const DocumentType &type, const DocumentProfile &profile,
                                  const QTranslator &labels);
