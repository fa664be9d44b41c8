#pragma once

#include "desk/shell/Panel.h"

#include <QWidget>

namespace host {
class Framework;
}
namespace platform {
class ReportGrid;
class ReportRecord;
} // namespace platform

namespace desk {

/// One panel of the patient's desk: a grid that a view of the module fills, with the context menu and the editor behind
/// a double click. Borrows view and framework. What the view fails at is told by `failed`. What a person began for one
/// patient is dropped when that patient is closed meanwhile.
class PanelPage : public QWidget {
    Q_OBJECT

public:
    PanelPage(const Panel& panel, host::Framework& framework, QWidget* parent);

    const Panel& panel() const { return panel_; }
    platform::ReportGrid& grid() { return *grid_; }
    void refresh(const QString& idToSelect = QString());
    void leave(); ///< Forgets the patient's records.

signals:
    void failed(const QString& why);

private:
    void showMenu(platform::ReportRecord* record);
    void edit(platform::ReportRecord* record);

    Panel panel_;
    host::Framework& framework_;
    platform::ReportGrid* grid_;
    int sitting_ = 0; ///< Changes with the patient.
};

} // namespace desk
