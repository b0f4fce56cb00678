#pragma once

#include "document_profile.h"
#include "ending.h"

#include <QXmlAttributes>
#include <QXmlDefaultHandler>

#include <memory>
#include <optional>

class PrintOutput;
class TXConfiguration;

/*
 * The abstract printer: decides what a document prints, while a device derived from it decides how that
 * reaches the paper.
 *
 * The SAX reader feeds it one document. Elements before "method" are ignored; "method" names the document's
 * print routine and loads the profile of its type; every later start tag goes to that routine, which prints
 * at once and keeps nothing. The end of the document ends the section. Texts are printed as they came;
 * lengths and widths count characters (UTF-16 code units).
 */
class PrinterDriver : public QXmlDefaultHandler
{
public:
    /* Prints to the file, truncated or, with append, from its end on, with the user's configuration. If the
     * file cannot be opened one line is printed on standard output and nothing will be written anywhere. */
    PrinterDriver(const QString &outputPath, bool append);

    /* Prints to the output, or nowhere without one, with a configuration that outlives the driver. */
    PrinterDriver(const TXConfiguration &settings, std::unique_ptr<PrintOutput> output);

    PrinterDriver(const PrinterDriver &) = delete;
    PrinterDriver &operator=(const PrinterDriver &) = delete;

    /* Finishes the output, as finish does, unless that was done. */
    ~PrinterDriver() override;

    /* Called once all that there is of the document was read: all that was printed is on its way when it
     * returns, and later text goes nowhere. Devices derived from this one end the paper first. */
    virtual void finish(Ending ending);

    /* The output given at construction. */
    PrintOutput &output() { return *m_output; }

    /* The key prefix, with its final dot, of a document type's settings. A type that is not known prints one
     * line on standard output and gets the pre-fiscal prefix. */
    QString documentPath(const QString &docType) const;

    /* The document type whose profile a method prints with; empty when there is no such method. */
    static QLatin1StringView documentTypeOf(const QString &method);

    /* Loads the profile of a document type. A paper width of 0 becomes the device's. */
    void loadValues(const QString &docType);

    /* One row, without a line end, in one of the formats "qdpt", "qxdpt", "qxdtDoubleLine", "qxd", "qd" and
     * "date-amount-type"; an empty text for any other. The description is cut to what the other columns leave
     * of the paper, the others grow. */
    QString descriptionRow(const QString &quantity, const QString &description, const QString &price,
                           const QString &totalPrice, const QChar &fill, const QString &format) const;

    /* True the first time in a run; column titles use it up as well. */
    bool oneTime();

    // What the SAX reader calls. False stops it, which only an unknown method does.
    bool startDocument() override;
    bool endDocument() override;
    bool startElement(const QString &namespaceURI, const QString &localName, const QString &qName,
                      const QXmlAttributes &attributes) override;
    bool endElement(const QString &namespaceURI, const QString &localName, const QString &qName) override;

    // The device: width of its paper in characters, and its state. setCharSize also ends centring.
    virtual unsigned int getPaperWidth() const = 0;
    /* Called at the start of each document and after a statement's column titles. Does nothing by default. */
    virtual void reset();
    virtual void setBold() = 0;
    virtual void setCharSize() = 0;
    virtual void setCharSize(int size) = 0;
    virtual void setCenterJustify() = 0;
    virtual void fullCut() = 0;
    virtual void generatePulse() = 0;

    /* Prints a line of "=" as wide as the profile's paper. */
    virtual void printSeparatorLine();

    /* Called after a profile was loaded, and at the end of the document. */
    virtual void startSection() = 0;
    virtual void endSection() = 0;
    /* Called for the "printers" element, once its texts are known. Does nothing by default. */
    virtual void initPrinter();

    // Text on the paper. All of it passes through print; println ends the line. The indent counts characters.
    virtual void print(unsigned int indent, const QString &text) = 0;
    virtual void println(unsigned int indent, const QString &text) = 0;
    virtual void println(const QString &text) = 0;

    /* Called by the fiscal documents for their total and for each row. A fiscal printer overrides them; they
     * do nothing by default. */
    virtual void printRowFiscal(const QString &element, const QXmlAttributes &attributes);
    virtual void printRowFiscal(const QString &department, const QString &quantity,
                                const QString &description, const QString &price);

    // The header blocks, called for their elements. Each prints what the profile asks for.
    virtual void printGeometry(const QXmlAttributes &attributes);
    virtual void printPrinterInfo();
    virtual void printHeaders(const QXmlAttributes &attributes);
    virtual void printLogo() = 0;
    virtual void printCompanyHeader(const QXmlAttributes &attributes);
    virtual void printReceiptHeader(const QXmlAttributes &attributes);
    virtual void printInvoiceHeader(const QXmlAttributes &attributes);
    virtual void printDeliveryHeader(const QXmlAttributes &attributes);
    virtual void printCustomerHeader(const QXmlAttributes &attributes);
    virtual void printOrderInfo(const QXmlAttributes &attributes);

    /* Prints the block of a header element; false when the element is none. */
    virtual bool printSections(const QString &qName, const QXmlAttributes &attributes);

    /* Prints the column titles, the first time in a run only (see oneTime). */
    virtual void printColumnsHeader(const QString &quantity, const QString &description, const QString &price,
                                    const QString &totalPrice);

    // The documents, called for each element after "method". Elements that a document does not know print
    // nothing.
    virtual void printPartialOrder(const QString &qName, const QXmlAttributes &attributes);
    virtual void printFullOrder(const QString &qName, const QXmlAttributes &attributes);
    virtual void printFullOrderReceipt(const QString &qName, const QXmlAttributes &attributes);
    virtual void printFullOrderInvoice(const QString &qName, const QXmlAttributes &attributes);
    virtual void printFullOrderDelivery(const QString &qName, const QXmlAttributes &attributes);
    virtual void printFullOrderFiscal(const QString &qName, const QXmlAttributes &attributes);
    /* Does nothing by default. */
    virtual void printAbstractOrder(const QString &qName, const QXmlAttributes &attributes);
    virtual void printAbstractOrderReceipt(const QString &qName, const QXmlAttributes &attributes);
    virtual void printAbstractOrderInvoice(const QString &qName, const QXmlAttributes &attributes);
    virtual void printAbstractOrderFiscal(const QString &qName, const QXmlAttributes &attributes);
    virtual void printReport(const QString &qName, const QXmlAttributes &attributes);
    virtual void printSold(const QString &qName, const QXmlAttributes &attributes);
    virtual void printStatementOfAccount(const QString &qName, const QXmlAttributes &attributes);

    /* Whether the document is to be printed twice: so since an invoice, until a fiscal document. */
    virtual bool printDuplicate();

protected:
    enum class Justification { left, center };

    /* False when what follows could not be printed anyway, so that long work may end: once the output failed.
     */
    virtual bool takesMore() const;

    // What several documents print alike: an item with its price and amount in one of the row formats, a kind
    // of item with its amount alone (both below the column titles), a label with its amount in the total
    // column.
    void printItem(const QXmlAttributes &item, const QString &format);
    void printItemType(const QXmlAttributes &itemType);
    void printTotalRow(const QString &label, const QString &amount);

    /* Prints the block of tax totals that ends every invoice. */
    void printTaxTotals(const QXmlAttributes &totals);

    /* Prints a label and a value on one line, each after one blank. */
    void printLabelled(const QString &label, const QString &value);

    const TXConfiguration &configuration;
    DocumentProfile profile;
    QString documentPrefix;
    Justification justification = Justification::left;

    // Kept for devices that have a use for them: the texts of the "printers" element, of which only the name
    // is printed here, and the credit of "orderinfo", where the profile prints it.
    QString printerName;
    QString printerCharSize;
    QString printerIpAddress;
    QString printerPort;
    QString credit;

private:
    /* Translated at the first item: later ones hand them over as well, for nothing to be printed. */
    struct ColumnTitles
    {
        QString number;
        QString description;
        QString price;
        QString amount;
    };
    const ColumnTitles &titles();

    struct DocumentMethod;
    static const DocumentMethod *documentMethod(const QString &name);

    struct Section;
    static const Section *section(const QString &qName);

    // The sections that are no header block of their own.
    void takePrinter(const QXmlAttributes &attributes);
    void printHeadersAndPrinter(const QXmlAttributes &attributes);
    void printLogoSection(const QXmlAttributes &attributes);

    void printAddress(const QString &address);

    std::unique_ptr<PrintOutput> m_output;
    const DocumentMethod *m_currentMethod = nullptr;
    bool m_duplicate = false;
    bool m_oneTimeDone = false;
    std::optional<ColumnTitles> m_columnTitles;
};
