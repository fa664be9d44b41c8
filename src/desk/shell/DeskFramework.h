#pragma once

#include "desk/shell/DeskLayout.h"
#include "desk/shell/ReportVariables.h"
#include "host/contract/Framework.h"

#include <functional>

namespace desk {

class CommandList;
class MainWindow;

/// The window, ribbon and report services of the desk, as its module sees them. Borrows window and commands.
class DeskFramework : public host::Framework {
public:
    /// What only the desk as a whole can do.
    struct Hooks {
        std::function<std::unique_ptr<host::Paziente>()> newPatient;
        std::function<bool(const QString& id)> openPatient;
        std::function<QString()> schema;
        /// Shows or prints a report with these variables; returns when a preview has been closed.
        std::function<void(const QString& id, const QMap<QString, QVariant>& variables, bool preview)> viewReport;
    };

    DeskFramework(MainWindow& window, CommandList& commands, Hooks hooks);

    bool OpenChild(const QString& formClass, const QString& caption) override;
    QObject* CreateChildForm(QObject* form) override;
    void CloseChild(const QString& caption) override;
    void InitForm(QObject* form) override;

    bool DialogCancel() const override { return dialogCancel_; }
    void setDialogCancel(bool cancel) override { dialogCancel_ = cancel; }
    QString DialogID() const override { return dialogID_; }
    void setDialogID(const QString& id) override { dialogID_ = id; }

    qint32 GetNewID() override;
    host::RibbonControl* FindRibbonControl(qint32 id) override;
    host::RibbonTab* InsertRibbonTab(const QString& caption) override;
    bool AddFileBitmap(const QString& path, qint32 id) override;
    void setLayoutPredefinito(const QString& xml) override;

    int Popup(const QStringList& items) override;
    QString ApriFile(const QString& title, const QString& filter, const QString& folder) override;
    QString SalvaFile(const QString& title, const QString& filter, const QString& proposedName) override;

    host::Variables& Variables() override { return variables_; }
    void ClearVariables() override { variables_.clear(); }
    void ReportView(const QString& reportID, bool preview) override;

    std::unique_ptr<host::Paziente> NewPaziente() override { return hooks_.newPatient(); }
    bool RichiamaPaziente(const QString& id, const QString& idschema) override;
    bool ValoreBool(const QVariant& value) const override;
    QString noap(const QString& text) const override;

    const DeskLayout& layout() const { return layout_; }
    const QMap<QString, QVariant>& lastReportVariables() const { return lastVariables_; }
    const QString& lastReportID() const { return lastReportID_; }

private:
    MainWindow& window_;
    CommandList& commands_;
    Hooks hooks_;
    DeskLayout layout_;
    ReportVariables variables_;
    QMap<QString, QVariant> lastVariables_;
    QString lastReportID_;
    QString dialogID_;
    bool dialogCancel_ = true;
};

} // namespace desk
