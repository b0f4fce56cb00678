#include "nearest_name.h"

#include <algorithm>
#include <numeric>
#include <vector>

namespace {

// The Damerau-Levenshtein distance, of texts that are edited nowhere twice.
qsizetype editDistance(QStringView from, QStringView to)
{
    const auto width = static_cast<std::size_t>(to.size()) + 1;
    std::vector<qsizetype> beforeLast(width);
    std::vector<qsizetype> last(width);
    std::vector<qsizetype> row(width);
    std::iota(row.begin(), row.end(), 0);

    for (qsizetype i = 1; i <= from.size(); ++i) {
        std::swap(beforeLast, last);
        std::swap(last, row);
        row[0] = i;
        for (qsizetype j = 1; j <= to.size(); ++j) {
            const auto column = static_cast<std::size_t>(j);
            const bool same = from[i - 1] == to[j - 1];
            row[column] =
                std::min({last[column] + 1, row[column - 1] + 1, last[column - 1] + (same ? 0 : 1)});
            if (i > 1 && j > 1 && from[i - 1] == to[j - 2] && from[i - 2] == to[j - 1])
                row[column] = std::min(row[column], beforeLast[column - 2] + 1);
        }
    }
    return row.back();
}

} // namespace

QString nearestName(const QString &name, const QStringList &known)
{
    QString nearest;
    qsizetype nearestDistance = name.size() / 3 + 2; // further away is another word
    for (const QString &candidate : known) {
        // A text far longer is far away; measuring it would take long.
        if (name.size() - candidate.size() >= nearestDistance)
            continue;
        const qsizetype distance = editDistance(name.toLower(), candidate.toLower());
        if (distance < nearestDistance) {
            nearest = candidate;
            nearestDistance = distance;
        }
    }
    return nearest;
}
