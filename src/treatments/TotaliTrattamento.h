#pragma once

#include "treatments/clsItemRigoTrattamento.h"

#include <QList>
#include <QWidget>
#include <array>

class QLineEdit;

/// The four totals tbTotale(0) to tbTotale(3) of the plan editor: finished work, work to finish, invoiced and paid
/// work, advances not used. Read-only fields that follow the rows.
class TotaliTrattamento : public QWidget {
    Q_OBJECT

public:
    explicit TotaliTrattamento(QWidget* parent = nullptr);

    void aggiornaLavori(const QList<clsItemRigoTrattamento>& righi);
    /// Paid invoices and open advances.
    void aggiornaFatturazione();

private:
    std::array<QLineEdit*, 4> tbTotale_{};
};
