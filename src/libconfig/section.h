#pragma once

#include <QMap>
#include <QString>

#include <vector>

namespace libconfig {

/* A section as plain values: what two configurations are compared by. */
struct Section
{
    QString name;
    QMap<QString, QString> settings;
    std::vector<Section> sections;

    bool isEmpty() const { return settings.isEmpty() && sections.empty(); }
    bool operator==(const Section &other) const = default;
};

} // namespace libconfig
