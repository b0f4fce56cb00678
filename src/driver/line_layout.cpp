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
    Row &as(QStringView column)
    {
        text.append(column.data(), column.size());
        return *this;
    }

    /* A text at the right or the left of a column that grows with it. */
    Row &right(QStringView column, int width, QChar fill)
    {
        return pad(width - column.size(), fill).as(column);
    }
    Row &left(QStringView column, int width, QChar fill)
    {
        return as(column).pad(width - column.size(), fill);
    }

    /* A text at the left of a column that cuts it. */
    Row &cut(QStringView column, int width, QChar fill)
    {
        return left(column.first(std::clamp<qsizetype>(width, 0, column.size())), width, fill);
    }

    operator QString() const { return QString(text.data(), text.size()); }

private:
    Row &pad(qsizetype count, QChar fill)
    {
        if (count > 0)
            text.resize(text.size() + count, fill);
        return *this;
    }

    QVarLengthArray<QChar, 128> text; // longer than most papers are wide
};

} // namespace

QString PrinterDriver::descriptionRow(const QString &quantity, const QString &description,
                                      const QString &price, const QString &totalPrice, const QChar &fill,
                                      const QString &format) const
{
    const int quantityWidth = profile.quantityFieldWidth;
    const int priceWidth = profile.priceFieldWidth;
    const int totalWidth = profile.totalPriceFieldWidth;
    const int width = profile.paperWidth;

    // Meant so: the quantity, and the total behind a price, are padded with blanks whatever the fill; "qd"
    // and "date-amount-type" end short of the paper.
    if (format == "qdpt"_L1)
        return Row()
            .right(quantity, quantityWidth, blank)
            .as(u" ")
            .cut(description, width - quantityWidth - priceWidth - totalWidth - 1, fill)
            .right(price, priceWidth, fill)
            .right(totalPrice, totalWidth, blank);
    if (format == "qxdpt"_L1)
        return Row()
            .right(quantity, quantityWidth, blank)
            .as(u" x ")
            .cut(description, width - quantityWidth - priceWidth - totalWidth - 3, fill)
            .right(price, priceWidth, fill)
            .right(totalPrice, totalWidth, blank);
    if (format == "qxdtDoubleLine"_L1)
        return Row()
            .as(quantity)
            .as(u" x ")
            .as(price)
            .as(u"\n")
            .cut(description, width - totalWidth, fill)
            .right(totalPrice, totalWidth, fill);
    if (format == "qxd"_L1)
        return Row()
            .right(quantity, quantityWidth, blank)
            .as(u" x ")
            .cut(description, width - quantityWidth - 3, fill);
    if (format == "qd"_L1)
        return Row()
            .right(quantity, quantityWidth, blank)
            .as(u" ")
            .cut(description, width - quantityWidth - 3, blank);
    if (format == "date-amount-type"_L1)
        return Row()
            .left(quantity, 15, blank)
            .cut(description, width - 15 - priceWidth - 3, fill)
            .right(price, priceWidth, fill);
    return {};
}

bool PrinterDriver::oneTime()
{
    const bool first = !oneTimeDone;
    oneTimeDone = true;
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
