#pragma once

#include "documents/DocumentKind.h"
#include "host/contract/HostError.h"

#include <QHash>
#include <QTimer>
#include <functional>
#include <optional>
#include <vector>

namespace platform {
class ReportGrid;
class ReportRecord;
} // namespace platform

/// The rows of a long list whose memos are still to be read: those on screen as they come up, the others from the top
/// downwards while the window stays alive. Owned by the list; borrows its grid and the records, until `forget` or
/// `clear`.
class LateMemos {
public:
    struct Work {
        /// Fills the cells of a record. May throw HostError.
        std::function<void(platform::ReportRecord& record, const DocumentRow& row)> read;
        std::function<void()> progress; ///< After each turn, the last one included.
        std::function<void(const host::HostError& error)> failed; ///< Nothing is left to be read then.
    };

    LateMemos(platform::ReportGrid& grid, Work work);

    void clear(); ///< Forgets all rows.
    void add(const platform::ReportRecord* record, DocumentRow row);
    void start();
    int left() const { return static_cast<int>(rows_.size()); }
    bool awaits(const platform::ReportRecord& record) const { return rows_.contains(&record); }
    void forget(const platform::ReportRecord* record) { rows_.remove(record); } ///< Before it is removed.
    void finish(); ///< All the rest at once.

private:
    void turn();
    void finishUntil(const std::function<bool()>& enough);
    void readFor(platform::ReportRecord* record); ///< Nothing for one that was read or forgotten.
    void order();

    platform::ReportGrid& grid_;
    Work work_;
    QHash<const platform::ReportRecord*, DocumentRow> rows_;
    std::vector<platform::ReportRecord*> order_; ///< Made by the first turn, since it takes its time.
    std::size_t next_ = 0;
    std::optional<host::HostError> fault_; ///< Of a row that was read for the screen; the next turn tells it.
    QTimer timer_;
};
