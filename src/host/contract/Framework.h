#pragma once

#include "host/contract/Paziente.h"
#include "host/contract/Ribbon.h"

#include <QString>
#include <QStringList>
#include <QVariant>
#include <memory>

class QObject;

namespace host {

/// The variables of the next report.
class Variables {
public:
    virtual ~Variables() = default;
    virtual void Add(const QVariant& value, const QString& name) = 0;
};

/// Window, ribbon and report services of the host. Windows are passed as QObject; they are QWidgets.
class Framework {
public:
    virtual ~Framework() = default;

    /// True when a child window with this caption is open, which is then brought forward. `formClass` is "frmMDI".
    virtual bool OpenChild(const QString& formClass, const QString& caption) = 0;
    virtual QObject* CreateChildForm(QObject* form) = 0; ///< Adopts the form as a child window and returns it.
    virtual void CloseChild(const QString& caption) = 0;
    virtual void InitForm(QObject* form) = 0; ///< Applies the host's appearance.

    virtual bool DialogCancel() const = 0; ///< Answer of the last modal editor: false only after a good confirm.
    virtual void setDialogCancel(bool cancel) = 0;
    virtual QString DialogID() const = 0;
    virtual void setDialogID(const QString& id) = 0;

    virtual qint32 GetNewID() = 0; ///< A command id, unique in the run.
    virtual RibbonControl* FindRibbonControl(qint32 id) = 0;
    virtual RibbonTab* InsertRibbonTab(const QString& caption) = 0;
    virtual bool AddFileBitmap(const QString& path, qint32 id) = 0;
    virtual void setLayoutPredefinito(const QString& xml) = 0;

    /// Context menu at the cursor. Empty texts are skipped; the result is the position of the chosen text from 1, or 0.
    virtual int Popup(const QStringList& items) = 0;
    virtual QString ApriFile(const QString& title, const QString& filter, const QString& folder) = 0;
    virtual QString SalvaFile(const QString& title, const QString& filter, const QString& proposedName) = 0;

    virtual host::Variables& Variables() = 0;
    virtual void ClearVariables() = 0;
    virtual void ReportView(const QString& reportID, bool preview) = 0;

    virtual std::unique_ptr<Paziente> NewPaziente() = 0;
    /// Opens that patient in the desk. The schema is given for a patient of another schema. False when it cannot.
    virtual bool RichiamaPaziente(const QString& id, const QString& idschema = QString()) = 0;
    virtual bool ValoreBool(const QVariant& value) const = 0;
    virtual QString noap(const QString& text) const = 0; ///< Makes a text safe inside a quoted SQL value.
};

} // namespace host
