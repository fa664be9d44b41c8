#include "desk/scenario/NearNames.h"

#include <algorithm>
#include <numeric>
#include <utility>
#include <vector>

namespace desk {
namespace {

constexpr int NAMES_TOLD = 5;

/// Letters to insert, drop or change to make one text of the other.
int distance(const QString& from, const QString& to) {
    std::vector<int> row(static_cast<std::size_t>(to.size()) + 1);
    std::iota(row.begin(), row.end(), 0);
    for (qsizetype i = 0; i < from.size(); ++i) {
        int diagonal = row[0];
        row[0] = static_cast<int>(i) + 1;
        for (std::size_t j = 1; j < row.size(); ++j) {
            const int change = diagonal + (from[i] == to[static_cast<qsizetype>(j) - 1] ? 0 : 1);
            diagonal = std::exchange(row[j], std::min({change, row[j] + 1, row[j - 1] + 1}));
        }
    }
    return row.back();
}

} // namespace

QStringList nearNames(const QString& wanted, const QStringList& names) {
    std::vector<std::pair<int, QString>> ranked;
    for (const QString& name : names) {
        const bool contains = !wanted.isEmpty() && name.contains(wanted, Qt::CaseInsensitive);
        ranked.emplace_back(contains ? 0 : distance(wanted.toLower(), name.toLower()), name);
    }
    std::sort(ranked.begin(), ranked.end());
    QStringList nearest;
    for (const auto& [rank, name] : ranked) {
        if (nearest.size() == NAMES_TOLD) break;
        if (!nearest.contains(name)) nearest += name;
    }
    return nearest;
}

} // namespace desk
