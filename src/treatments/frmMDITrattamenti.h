#pragma once

#include "store/ElencoPeriodo.h"

/// The practice-wide list of treatment plans. Owned by the host as a child window; refreshed by name through its two
/// invokable members.
class frmMDITrattamenti : public ElencoPeriodo {
    Q_OBJECT

public:
    explicit frmMDITrattamenti(QWidget* parent = nullptr);

    Q_INVOKABLE void
    RefreshTrattamenti(const QString& id);        ///< Reloads and focuses that plan; empty keeps the selected one.
    Q_INVOKABLE void RefreshGraficaTrattamenti(); ///< Only marks the rows of the open patient anew.

protected:
    void costruisciColonne(platform::ReportGrid& grid) override;
    void riempi(platform::ReportRecord& record, const host::Recordset& riga, host::Paziente& paziente) override;
    QList<int> colonnePaziente() const override;
    void apri(const QString& id) override;
    bool elimina(host::Paziente& paziente, const QString& id) override;
};
