#include "printer_driver.h"

#include <QVarLengthArray>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr QChar blank = u' ';

/* A row that grows column by column. Widths count characters; a negative one counts as 0. */
class Row
{
public:
    /* A text in as many characters as it takes. */
    Row &append(QStringView column)
    {
        m_text.append(column.data(), column.size());
        return *this;
    }

    /* A text at the right or the left of a column that grows with it. */
    Row &right(QStringView column, int width, QChar fill)
    {
        return pad(width - column.size(), fill).append(column);
    }
    Row &left(QStringView column, int width, QChar fill)
    {
        return append(column).pad(width - column.size(), fill);
    }

    /* A text at the left of a column that cuts it. */
    Row &cut(QStringView column, int width, QChar fill)
    {
        return left(column.first(std::clamp<qsizetype>(width, 0, column.size())), width, fill);
    }

    operator QString() const { return QString(m_text.data(), m_text.size()); }

private:
    Row &pad(qsizetype count, QChar fill)
    {
        if (count > 0)
            m_text.resize(m_text.size() + count, fill);
        return *this;
    }

    QVarLengthArray<QChar, 128> m_text; // longer than most papers are wide
};

} // namespace

QString PrinterDriver::descriptionRow(const QString &quantity, const QString &description,
                                      const QString &price, const QString &totalPrice, const QChar &fill,
                                      const QString &format) const
{
    const int quantityWidth = profile.quantityFieldWidth;
    const int priceWidth = profile.priceFieldWidth;
    const int totalWidth = profile.totalPriceFieldWidth;

    // Deliberate: the quantity, and the total after a price, are padded with blanks whatever the fill; "qd"
    // and "date-amount-type" end short of the paper.
    if (format == "qdpt"_L1)
        return Row()
            .right(quantity, quantityWidth, blank)
            .append(u" ")
            .cut(description, profile.besideAmounts(), fill)
            .right(price, priceWidth, fill)
            .right(totalPrice, totalWidth, blank);
    if (format == "qxdpt"_L1)
        return Row()
            .right(quantity, quantityWidth, blank)
            .append(u" x ")
            .cut(description, profile.besideMultipliedAmounts(), fill)
            .right(price, priceWidth, fill)
            .right(totalPrice, totalWidth, blank);
    if (format == "qxdtDoubleLine"_L1)
        return Row()
            .append(quantity)
            .append(u" x ")
            .append(price)
            .append(u"\n")
            .cut(description, profile.paperWidth - totalWidth, fill)
            .right(totalPrice, totalWidth, fill);
    if (format == "qxd"_L1)
        return Row()
            .right(quantity, quantityWidth, blank)
            .append(u" x ")
            .cut(description, profile.besideQuantity(), fill);
    if (format == "qd"_L1)
        return Row()
            .right(quantity, quantityWidth, blank)
            .append(u" ")
            .cut(description, profile.besideQuantity(), blank);
    if (format == "date-amount-type"_L1)
        return Row()
            .left(quantity, DocumentProfile::dateWidth, blank)
            .cut(description, profile.besideDateAndAmount(), fill)
            .right(price, priceWidth, fill);
    return {};
}

bool PrinterDriver::oneTime()
{
    const bool first = !m_oneTimeDone;
    m_oneTimeDone = true;
    return first;
}

void PrinterDriver::printColumnsHeader(const QString &quantity, const QString &description,
                                       const QString &price, const QString &totalPrice)
{
    if (!oneTime())
        return;
    setBold();
    println(descriptionRow(quantity, description, price, totalPrice, blank, u"qdpt"_s));
    setCharSize();
}

void PrinterDriver::printSeparatorLine()
{
    println(QString(std::max(profile.paperWidth, 0), u'='));
}

void PrinterDriver::printLabelled(const QString &label, const QString &value)
{
    print(1, label);
    println(1, value);
}
