#pragma once

#include "configuration_check.h"

#include <vector>

class QIODevice;
class TXConfiguration;

/* What a person would want to know about a document, in the order of the document. */
struct DocumentFindings
{
    /* More are not looked for. */
    static constexpr std::size_t maximum = 1000;

    std::vector<Finding> wrong; // with the document itself
    std::vector<Finding> hidden; // what it has, and a switch of the configuration keeps off the paper
};

/*
 * Looks for all that the printing program passes over in silence or leaves empty: names that its method does
 * not read, by the schema of the documents, rows that miss what they need, text, what stands before the
 * method, and what ends the reading. Where an element stands is no finding as long as it is read there.
 *
 * Reads as the printing program does, within the same bounds. The device is open. Without a configuration
 * nothing is hidden.
 */
DocumentFindings checkDocument(QIODevice &document, const TXConfiguration *configuration);
