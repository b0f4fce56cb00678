#pragma once

#include "document_profile.h"
#include "tx_configuration.h"

#include <QXmlAttributes>

#include <algorithm>

/*
 * A driver with little paper: margins and widths may be as large as the configuration likes, which takes time
 * and leads nowhere new.
 */
template <typename Driver>
class Frugal : public Driver
{
public:
    using Driver::Driver;

    void startSection() override
    {
        for (const auto width : {&DocumentProfile::quantityFieldWidth, &DocumentProfile::priceFieldWidth,
                                 &DocumentProfile::totalPriceFieldWidth, &DocumentProfile::paperWidth})
            this->profile.*width = std::clamp(this->profile.*width, -enough, enough);
    }

    void printGeometry(const QXmlAttributes &attributes) override
    {
        const QString margin =
            this->configuration.getStrValue(this->documentPrefix + DocumentProfile::topMargin);
        if (margin.toInt() <= enough)
            Driver::printGeometry(attributes);
    }

private:
    static constexpr int enough = 200;
};
