#pragma once

#include <QObject>
#include <QString>
#include <QTimer>
#include <functional>

namespace host {
class HostError;
}
namespace platform {
class ReportGrid;
}

/// Fills a grid with what the host gives. None and unread are different answers: a list that could not be read is
/// emptied, says why in the place of its rows, and is read again by itself until the host answers. Owned by the list.
class ListReading : public QObject {
public:
    /// `again` is what the list does to read itself.
    explicit ListReading(std::function<void()> again, QObject* parent = nullptr);

    /// Empties the grid and lets `fill` add the records; false after a HostError of `fill`, which ends here.
    bool read(platform::ReportGrid& grid, const std::function<void()>& fill);
    /// The same end for an error that came after `read`, while a list was still being completed.
    void failed(platform::ReportGrid& grid, const host::HostError& error);

private:
    static void say(platform::ReportGrid& grid, const QString& text);

    QTimer timer_; ///< tmRilettura; runs while the list is unread.
};

/// The look and the behaviour that all lists of documents share.
void dressList(platform::ReportGrid& grid);
