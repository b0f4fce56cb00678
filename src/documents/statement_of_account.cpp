#include "printer_driver.h"

using namespace Qt::StringLiterals;

namespace {

// The kinds that applications write most. They come from the document and nothing here looks them up: the
// table is what brings them into the catalogues.
[[maybe_unused]] constexpr const char *commonKinds[] = {
    QT_TRANSLATE_NOOP("QObject", "deposit"), QT_TRANSLATE_NOOP("QObject", "withdrawal"),
    QT_TRANSLATE_NOOP("QObject", "payment"), QT_TRANSLATE_NOOP("QObject", "invoice"),
    QT_TRANSLATE_NOOP("QObject", "credit"),  QT_TRANSLATE_NOOP("QObject", "refund"),
};

} // namespace

void PrinterDriver::printStatementOfAccount(const QString &qName, const QXmlAttributes &attributes)
{
    if (printSections(qName, attributes))
        return;
    if (qName == "statement_list"_L1) {
        setBold();
        println(descriptionRow(QObject::tr("Date"), QObject::tr("Description"), QObject::tr("Amount"),
                               QString(), u' ', u"date-amount-type"_s));
        reset();
    } else if (qName == "statement"_L1) {
        // The kind of movement is its own translation key; one that the catalogue does not know stays as it
        // is.
        const QString kind = QObject::tr(attributes.value(u"type"_s).toUtf8().constData());
        println(descriptionRow(attributes.value(u"date"_s) + ": "_L1, kind, attributes.value(u"amount"_s),
                               QString(), u'.', u"date-amount-type"_s));
    }
}
