#pragma once

#include "host/ListReading.h"
#include "host/contract/View.h"

#include <QObject>
#include <QPointer>
#include <QString>

namespace platform {
class ReportGrid;
}

/// Commands of a panel's context menu, as the host hands them back.
inline constexpr int COMMAND_NEW = 10077;
inline constexpr int COMMAND_EDIT = 10078;
inline constexpr int COMMAND_REMOVE = 10079;
inline constexpr int COMMAND_PRINT = 10080;

/// What all lists of the patient's panels share: set-up of the host's grid, the refill with the focus on one record,
/// the host's own menu entries taken away. A list gives its columns, its rows and its commands. Owned by the module's
/// assembly; the grids are the host's and may go away at any time.
class clsViewBase : public host::View {
public:
    void setLikePannello(bool likePanel) override { likePanel_ = likePanel; }
    bool LikePannello() const { return likePanel_; }

    /// Null here: a list whose editor exists returns it.
    QObject* EditForm(const QString& id) override;
    /// Shows a message with the id and deletes nothing, on purpose: every real deletion goes through the popup's own
    /// command, which asks first.
    bool Elimina(const QString& id) override;
    void RefreshPannello() override; ///< Refills the grid last seen, with no record to focus.
    void Refresh() override {}       ///< Empty on purpose: a list keeps no state of its own.
    void refreshGrid(QObject* grid, const QString& idToSelect) override;
    void Popup(host::PopupBar& bar, QObject* grid) override;
    void PopupExecute(int command, QObject* grid) override;

protected:
    /// Adds the columns and their sort, on the first fill of a grid.
    virtual void buildColumns(platform::ReportGrid& grid) = 0;
    /// Adds one record per item of the open patient, its tag the item's `ID`. The grid is empty and being updated. A
    /// HostError tells that they could not be read.
    virtual void fill(platform::ReportGrid& grid) = 0;
    /// Shows and hides columns; on every fill.
    virtual void adaptColumns(platform::ReportGrid& grid);
    /// Adds the list's own commands to the menu, from which the host's are already gone.
    virtual void addEntries(host::PopupBar& bar, platform::ReportGrid& grid);
    /// Performs a command; only called with a patient open.
    virtual void run(int command, platform::ReportGrid& grid);

private:
    bool likePanel_ = false;
    QPointer<QObject> grid_;
    ListReading reading_{[this] { RefreshPannello(); }};
};
