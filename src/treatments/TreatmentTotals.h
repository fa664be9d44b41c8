#pragma once

#include <QWidget>
#include <array>

class QLineEdit;

struct RowTotals;

/// The four totals tbTotale(0) to tbTotale(3) of the plan editor: finished work, work to finish, invoiced and paid
/// work, advances not used. Read-only fields that follow the rows.
class TreatmentTotals : public QWidget {
    Q_OBJECT

public:
    explicit TreatmentTotals(QWidget* parent = nullptr);

    void updateWork(const RowTotals& work);
    /// Paid invoices and open advances.
    void updateBilling();

private:
    std::array<QLineEdit*, 4> tbTotale_{};
};
