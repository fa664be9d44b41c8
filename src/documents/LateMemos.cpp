#include "documents/LateMemos.h"

#include "platform/ReportGrid.h"

#include <QElapsedTimer>
#include <utility>

namespace {

constexpr int TURN = 15; // milliseconds: less than what a person sees between two frames

} // namespace

LateMemos::LateMemos(platform::ReportGrid& grid, Work work)
    : grid_(grid)
    , work_(std::move(work)) {
    timer_.setObjectName(QStringLiteral("tmLettura"));
    timer_.setInterval(0);
    QObject::connect(&timer_, &QTimer::timeout, &timer_, [this] { turn(); });
    // Painting bears no error, nor the end of the list that it may be.
    grid_.setBeforeShown([this](platform::ReportRecord& record) {
        try {
            readFor(&record);
        } catch (const host::HostError& error) {
            fault_ = error;
        }
    });
}

void LateMemos::clear() {
    timer_.stop();
    rows_.clear();
    order_.clear();
    next_ = 0;
    fault_.reset();
}

void LateMemos::add(const platform::ReportRecord* record, DocumentRow row) {
    rows_.insert(record, std::move(row));
}

void LateMemos::start() {
    if (!rows_.isEmpty()) timer_.start();
}

void LateMemos::finish() {
    if (!rows_.isEmpty()) finishUntil([] { return false; });
}

void LateMemos::turn() {
    QElapsedTimer since;
    since.start();
    finishUntil([&since] { return since.hasExpired(TURN); });
}

void LateMemos::finishUntil(const std::function<bool()>& enough) {
    try {
        if (fault_) throw host::HostError(*fault_);
        if (order_.empty()) order();
        while (!rows_.isEmpty() && next_ < order_.size() && !enough())
            readFor(order_[next_++]);
    } catch (const host::HostError& error) {
        clear();
        work_.failed(error);
        return;
    }
    if (rows_.isEmpty()) clear();
    work_.progress();
}

void LateMemos::readFor(platform::ReportRecord* record) {
    const auto found = rows_.find(record);
    if (found == rows_.end()) return;
    const DocumentRow row = std::move(*found);
    rows_.erase(found);
    work_.read(*record, row);
}

void LateMemos::order() {
    order_.reserve(2 * static_cast<std::size_t>(rows_.size()));
    for (int row = 0; row < grid_.rowCount(); ++row)
        order_.push_back(grid_.rowRecord(row));
    // Those that a folded group hides.
    for (int i = 0; i < grid_.recordCount(); ++i)
        order_.push_back(grid_.record(i));
}
