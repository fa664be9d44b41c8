#pragma once

#include <QMetaType>
#include <QString>

class QObject;

namespace host {

/// The context menu of a panel's grid, before it is shown.
class PopupBar {
public:
    virtual ~PopupBar() = default;
    virtual void RemoveItem(int command) = 0; ///< Nothing happens for a command that is not there.
    virtual void AddItem(int command, const QString& caption) = 0;
};

/// What a list of a module must offer to be shown by the host as a panel of the patient. Grids are report grids of the
/// platform, windows are widgets; both cross the boundary as QObject. Owned by the module.
class View {
public:
    virtual ~View() = default;
    virtual void setLikePannello(bool likePannello) = 0; ///< True hides the columns that repeat the patient.
    virtual qint32 TipoRecord() const = 0;
    virtual QObject* EditForm(const QString& id) = 0;    ///< The editor for a record, to be shown and owned by the caller.
    virtual bool Elimina(const QString& id) = 0;
    virtual void RefreshPannello() = 0;
    virtual void Refresh() = 0;
    /// Fills the grid, with its columns on the first call, and focuses the record with that id.
    virtual void refreshGrid(QObject* grid, const QString& idToSelect) = 0;
    virtual void Popup(PopupBar& bar, QObject* grid) = 0;
    virtual void PopupExecute(int command, QObject* grid) = 0; ///< On the focused row of the grid.
};

} // namespace host

Q_DECLARE_METATYPE(host::View*)
