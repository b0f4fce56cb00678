#pragma once

#include "document_profile.h"

#include <QByteArray>
#include <QStringList>
#include <QXmlAttributes>

#include <functional>

class CompanyPrinterDriver;
class PrinterDriver;
class QXmlDefaultHandler;

/* One of the driver's operations that print the elements of a document. */
using DocumentRoutine = void (PrinterDriver::*)(const QString &, const QXmlAttributes &);

/* A profile with columns of 3, 7 and 8 characters, and all switches off. */
DocumentProfile profileOfWidth(int paperWidth);

/* Reads the elements, given as XML without a root, and hands each over as a document's elements are. */
void readElements(const QByteArray &elements,
                  const std::function<void(const QString &, const QXmlAttributes &)> &take);

/* Reads a whole document with the handler; false when the handler or a fault in the document ended it. */
bool readDocument(const QByteArray &document, QXmlDefaultHandler &handler);

/* What a document routine calls on its device for these elements. */
QStringList recordedCalls(const DocumentProfile &profile, DocumentRoutine routine,
                          const QByteArray &elements);

/* What the plain-text printer puts on paper while the operation runs. */
QByteArray printedText(const DocumentProfile &profile,
                       const std::function<void(CompanyPrinterDriver &)> &operation);

/* What a document routine puts on the plain-text printer's paper for these elements. */
QByteArray printedText(const DocumentProfile &profile, DocumentRoutine routine, const QByteArray &elements);
