#pragma once

#include <QString>

class BoundedDocument;
class PrinterDriver;
class QIODevice;
class QXmlDefaultHandler;

/* How the reading of a document ended. */
struct Reading
{
    enum class End {
        document, // at its end
        unknownMethod,
        fault, // not well-formed, or more than the machine could take
        unreadable, // it could not be opened: nothing was begun
    };

    End end = End::document;
    int line = 0; // of all ends but the document's: where, from 1
    int column = 0; // in characters, from 1
    QString reason = {}; // and why, in one line without a full stop

    bool complete() const { return end == End::document; }
};

/*
 * Reads one document with the handler, within the bounds. It is told of the document's begin and end, of
 * elements without their namespace declarations, and of text; false at a start tag ends the reading at an
 * unknown method.
 */
Reading readDocument(BoundedDocument &document, QXmlDefaultHandler &handler);

/*
 * Reads one document with the driver, which prints it, and finishes the driver: all of the printout is on its
 * way when the function returns. The device is opened unless it is open. Reading is bounded, so that no
 * document exhausts the machine; what came before an end of any kind is printed.
 */
Reading printDocument(QIODevice &document, PrinterDriver &driver);
