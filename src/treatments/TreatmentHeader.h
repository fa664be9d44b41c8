#pragma once

#include "store/RecordNumber.h"

#include <QDate>
#include <QString>
#include <QWidget>
#include <array>
#include <optional>

class QDateEdit;
class QLineEdit;

struct clsItemTrattamento;

/// The header of the plan editor: number, date, description, advance invoice and doctor, in tbDati(0) to tbDati(12) and
/// dtpData. Fills from a record, checks what was typed, and gives it back to a record. Owned by the window.
class TreatmentHeader : public QWidget {
    Q_OBJECT

public:
    struct Missing {
        QString message;
        QWidget* field = nullptr; ///< Takes the focus.
    };

    explicit TreatmentHeader(QWidget* parent);

    void load(const clsItemTrattamento& item); ///< The number of a saved plan is then fixed.
    void prepare();                            ///< A new plan of the open patient.
    void write(clsItemTrattamento& item) const;

    /// The first thing that keeps the plan from being saved, or nothing; the number is then in its final form.
    std::optional<Missing> check();
    RecordNumber number() const { return {year(), progressive(), {}}; }
    QString year() const;
    QString progressive() const;
    QString date() const; ///< In the regional short form.
    void setProgressive(const QString& progressive);
    /// Reference of the advance invoice; empty unless both parts are there.
    QString advanceInvoice() const;
    /// The same as typed, as new rows take it.
    QString typedAdvanceInvoice() const;

signals:
    void advanceInvoiceChanged();

private:
    QLineEdit* field(int index) const { return tbDati_[static_cast<std::size_t>(index)]; }
    QLineEdit* newField(int index, int width);
    void layOut();

    std::array<QLineEdit*, 13> tbDati_{}; ///< Some numbers are not in use.
    QDateEdit* dtpData_ = nullptr;
};
