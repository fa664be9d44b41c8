#pragma once

#include "documents/DocumentHeader.h"

struct clsItemTrattamento;

/// The head of a plan: beside what all documents have, the advance invoice in tbDati(3) and tbDati(4), and the doctor
/// in tbDati(11) and tbDati(12). Owned by the window.
class TreatmentHeader : public DocumentHeader {
    Q_OBJECT

public:
    explicit TreatmentHeader(QWidget* parent);

    void fill(const clsItemTrattamento& item); ///< The plan's own fields.
    void compose(clsItemTrattamento& item) const;
    /// Reference of the advance invoice as typed, for new rows; empty unless both parts are there.
    QString typedAdvanceInvoice() const;

signals:
    void advanceInvoiceChanged();

private:
    enum Own { ADVANCE_YEAR = 3, ADVANCE_NUMBER = 4, DOCTOR = 11, DOCTOR_NAME = 12 };
    QString advanceInvoice() const;
};
