#pragma once

#include "documents/EditorResult.h"

#include <QDialog>
#include <QString>

class TreatmentLinks;
class TeethPanel;
class QPushButton;
class QTabWidget;
class TreatmentRows;
class TreatmentHeader;
class TreatmentTotals;

struct clsItemTrattamento;

/// The editor of one treatment plan of the open patient, a new one without an id. Holds the lock of its plan while it is
/// open; a plan in use elsewhere, or one that could not be read whole, shows read-only.
/// `Framework.DialogCancel` is its result: false only after a good confirm. Its parts do the work: header, rows, chart,
/// totals, links.
class frmEditTrattamento : public QDialog {
    Q_OBJECT

public:
    /// With the number of a row, `exec` shows only the row editor, and the plan follows its answer unseen, unless it
    /// cannot be saved. A number that no row bears counts as none.
    explicit frmEditTrattamento(const QString& id, const QString& row = {}, QWidget* parent = nullptr);
    ~frmEditTrattamento() override;

    EditorResult run(); ///< As `exec`.
    int exec() override;
    void done(int result) override;
    void reject() override; ///< Escape and the frame: cancels without a question.

protected:
    void showEvent(QShowEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void build();
    void wire();
    void read();
    void loadTreatment();
    void setReadOnly();
    void notRead(const QString& why);
    void firstActivation();
    void refreshChart();
    void openTooth(int index);
    void openZoom();
    void pressButton(int index);

    void confirm();
    bool check();
    bool save();
    void closeConfirmed();
    void cancel();
    clsItemTrattamento compose();
    void releaseLock();

    QString id_; ///< Of the plan at hand; empty for a new one.
    QString row_;
    bool readOnly_ = false;
    bool activated_ = false;
    TreatmentHeader* header_ = nullptr;
    TeethPanel* teeth_ = nullptr;
    TreatmentRows* rows_ = nullptr;
    TreatmentTotals* totals_ = nullptr;
    TreatmentLinks* links_ = nullptr;
    QTabWidget* tabs_ = nullptr;
    QPushButton* cbConferma_ = nullptr;
    QPushButton* cbAnnulla_ = nullptr;
    QPushButton* cbFattura_ = nullptr;
    QPushButton* cbPreventivo_ = nullptr;
};
