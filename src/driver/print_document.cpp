#include "print_document.h"

#include "bounded_document.h"
#include "printer_driver.h"

#include <QIODevice>
#include <QXmlSimpleReader>

using namespace Qt::StringLiterals;

namespace {

bool isNamespaceDeclaration(const QString &attribute)
{
    return attribute == "xmlns"_L1 || attribute.startsWith("xmlns:"_L1);
}

bool hasNamespaceDeclaration(const QXmlAttributes &attributes)
{
    for (int i = 0; i < attributes.count(); ++i)
        if (isNamespaceDeclaration(attributes.qName(i)))
            return true;
    return false;
}

QXmlAttributes withoutNamespaceDeclarations(const QXmlAttributes &attributes)
{
    QXmlAttributes others;
    for (int i = 0; i < attributes.count(); ++i)
        if (!isNamespaceDeclaration(attributes.qName(i)))
            others.append(attributes.qName(i), attributes.uri(i), attributes.localName(i),
                          attributes.value(i));
    return others;
}

/* What the reader calls: hands the document on to a handler, within the bounds, and notes how it ended. */
class DocumentHandler : public QXmlDefaultHandler
{
public:
    DocumentHandler(BoundedDocument &document, QXmlDefaultHandler &handler)
        : m_document(document)
        , m_handler(handler)
    {
    }

    bool startDocument() override { return m_handler.startDocument(); }
    bool endDocument() override { return m_handler.endDocument(); }

    bool startElement(const QString &namespaceURI, const QString &localName, const QString &qName,
                      const QXmlAttributes &attributes) override
    {
        if (!m_document.descend())
            return false;
        // The handler alone stops the reader, at an unknown method.
        const bool known = hasNamespaceDeclaration(attributes)
            ? m_handler.startElement(namespaceURI, localName, qName, withoutNamespaceDeclarations(attributes))
            : m_handler.startElement(namespaceURI, localName, qName, attributes);
        if (!known) {
            m_reading.end = Reading::End::unknownMethod;
            m_reading.reason = u"unknown method \"%1\""_s.arg(attributes.value(u"name"_s));
        }
        return known;
    }

    bool endElement(const QString &namespaceURI, const QString &localName, const QString &qName) override
    {
        return m_handler.endElement(namespaceURI, localName, qName);
    }

    bool characters(const QString &text) override { return m_handler.characters(text); }

    bool internalEntityDecl(const QString &name, const QString &value) override
    {
        return m_document.declare(name, value);
    }

    bool fatalError(const QXmlParseException &fault) override
    {
        m_reading.line = fault.lineNumber();
        m_reading.column = fault.columnNumber();
        if (m_reading.end == Reading::End::document) {
            m_reading.end = Reading::End::fault;
            m_reading.reason = m_document.excess().isEmpty() ? fault.message() : m_document.excess();
            if (m_reading.reason.endsWith(u'.'))
                m_reading.reason.chop(1);
        }
        return false;
    }

    const Reading &reading() const { return m_reading; }

private:
    BoundedDocument &m_document;
    QXmlDefaultHandler &m_handler;
    Reading m_reading;
};

} // namespace

Reading readDocument(BoundedDocument &document, QXmlDefaultHandler &handler)
{
    DocumentHandler reading(document, handler);
    QXmlSimpleReader reader;
    // Nothing looks at namespaces, and processing them takes the reader memory and time by the square of
    // their declarations.
    reader.setFeature(u"http://xml.org/sax/features/namespaces"_s, false);
    reader.setContentHandler(&reading);
    reader.setDeclHandler(&reading);
    reader.setErrorHandler(&reading);
    reader.parse(document);
    return reading.reading();
}

Reading printDocument(QIODevice &document, PrinterDriver &driver)
{
    if (!document.isOpen() && !document.open(QIODevice::ReadOnly))
        return {Reading::End::unreadable, 0, 0, document.errorString()};

    BoundedDocument source(document);
    Reading reading = readDocument(source, driver);
    driver.finish(reading.complete() ? Ending::complete : Ending::incomplete);
    return reading;
}
