#pragma once

#include "desk/report/ReportDocument.h"
#include "desk/report/ReportLayouts.h"

#include <optional>

class QWidget;

namespace desk {

/// What the desk does when its module asks for a report: finds the layout, fills it, and shows or prints it. Tells the
/// user itself when a layout is missing or broken, and offers the one that comes with the program. Borrows the
/// archive.
class ReportViewer {
public:
    explicit ReportViewer(host::Dati& archive)
        : archive_(archive)
        , layouts_(archive) {}

    void provideLayouts() { layouts_.provide(); }
    /// Returns when a preview has been closed.
    void view(const QString& id, const QMap<QString, QVariant>& variables, bool preview, QWidget* parent);

    /// Lets the user change the layouts; returns when the window has been closed.
    void manage(QWidget* parent);

private:
    std::optional<ReportDocument> compose(const QString& id, const QMap<QString, QVariant>& variables);
    std::optional<ReportDocument> composeShipped(const QString& id, const QString& why,
                                                 const QMap<QString, QVariant>& variables) const;

    host::Dati& archive_;
    ReportLayouts layouts_;
};

} // namespace desk
