#pragma once

#include "store/PeriodList.h"

/// The practice-wide list of treatment plans. Owned by the host as a child window; refreshed by name through its two
/// invokable members.
class frmMDITrattamenti : public PeriodList {
    Q_OBJECT

public:
    explicit frmMDITrattamenti(QWidget* parent = nullptr);

    Q_INVOKABLE void
    RefreshTrattamenti(const QString& id);        ///< Reloads and focuses that plan; empty keeps the selected one.
    Q_INVOKABLE void RefreshGraficaTrattamenti(); ///< Only marks the rows of the open patient anew.

protected:
    void buildColumns(platform::ReportGrid& grid) override;
    void fill(platform::ReportRecord& record, const host::Recordset& row, host::Paziente& patient) override;
    QList<int> patientColumns() const override;
    void open(const QString& id) override;
    bool remove(host::Paziente& patient, const QString& id) override;
};
