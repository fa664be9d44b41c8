#pragma once

#include "documents/DocumentEditorOf.h"
#include "treatments/clsItemTrattamento.h"

class TreatmentLinks;
class TeethPanel;
class QTabWidget;
class TreatmentRows;
class TreatmentHeader;
class TreatmentTotals;

/// The editor of one treatment plan of the open patient. Its parts do the work: header, rows, chart, totals, links.
class frmEditTrattamento : public DocumentEditorOf<clsItemTrattamento> {
    Q_OBJECT

public:
    /// With the number of a row, `exec` shows only the row editor, and the plan follows its answer unseen, unless it
    /// cannot be saved. A number that no row bears counts as none.
    explicit frmEditTrattamento(const QString& id, const QString& row = {}, QWidget* parent = nullptr);

    int exec() override;

protected:
    DocumentHeader& header() const override;
    void prepare() override;
    std::optional<clsItemTrattamento> loadItem() override;
    void fill(const clsItemTrattamento& item) override;
    void compose(clsItemTrattamento& item) override;
    void shown() override;
    void setReadOnly() override;
    void endEdits() override;
    QStringList losses() const override;
    void pressFunction(int index) override;
    void showEvent(QShowEvent* event) override;

private:
    void build();
    void wire();
    void firstActivation();
    void refreshChart();
    void openTooth(int index);
    void openZoom();

    QString row_;
    bool activated_ = false;
    TreatmentHeader* header_ = nullptr;
    TeethPanel* teeth_ = nullptr;
    TreatmentRows* rows_ = nullptr;
    TreatmentTotals* totals_ = nullptr;
    TreatmentLinks* links_ = nullptr;
    QTabWidget* tabs_ = nullptr;
    QPushButton* cbFattura_ = nullptr;
    QPushButton* cbPreventivo_ = nullptr;
};
