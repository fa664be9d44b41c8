#pragma once

#include <QObject>
#include <QTimer>
#include <functional>

namespace platform {
class ReportGrid;
}

/// Fills a grid with what the host gives. None and unread are different answers: a list that could not be read is
/// emptied, says why in the place of its rows, and is read again by itself until the host answers. Owned by the list.
class ListReading : public QObject {
public:
    /// `again` is what the list does to read itself.
    explicit ListReading(std::function<void()> again, QObject* parent = nullptr);

    /// Empties the grid and lets `fill` add the records; a HostError of `fill` ends here.
    void read(platform::ReportGrid& grid, const std::function<void()>& fill);

private:
    QTimer timer_; ///< tmRilettura; runs while the list is unread.
};
