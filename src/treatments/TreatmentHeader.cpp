#include "treatments/TreatmentHeader.h"

#include "platform/FormLayout.h"
#include "store/modConversioni.h"
#include "treatments/clsItemTrattamento.h"

#include <QGridLayout>
#include <QLineEdit>

TreatmentHeader::TreatmentHeader(QWidget* parent)
    : DocumentHeader(QStringLiteral("TRT"), parent) {
    QLineEdit* year = newField(ADVANCE_YEAR, 56, QStringLiteral("Anno della fattura di anticipo"));
    QLineEdit* number = newField(ADVANCE_NUMBER, 64, QStringLiteral("Numero della fattura di anticipo"));
    platform::form::labelledRow(&grid(), 1, 0, QStringLiteral("Fattura anticipo:"), pair(year, number), 3);
    addDoctor(1, 4, DOCTOR, DOCTOR_NAME);
    connect(year, &QLineEdit::textChanged, this, &TreatmentHeader::advanceInvoiceChanged);
    connect(number, &QLineEdit::textChanged, this, &TreatmentHeader::advanceInvoiceChanged);
    connect(number, &QLineEdit::editingFinished, this,
            [number] { number->setText(RecordNumber::fourDigits(number->text())); });
}

void TreatmentHeader::fill(const clsItemTrattamento& item) {
    const RecordNumber advance = RecordNumber::parseReference(item.fatturaAnticipo);
    field(ADVANCE_YEAR)->setText(advance.year);
    field(ADVANCE_NUMBER)->setText(advance.progressivo());
    setDoctor(item.medico, item.descrizionemedico);
}

void TreatmentHeader::compose(clsItemTrattamento& item) const {
    item.medico = doctor();
    item.descrizionemedico = doctorName();
    item.fatturaAnticipo = advanceInvoice();
}

QString TreatmentHeader::typedAdvanceInvoice() const {
    const QString year = field(ADVANCE_YEAR)->text().trimmed();
    const QString number = field(ADVANCE_NUMBER)->text().trimmed();
    return year.isEmpty() || number.isEmpty() ? QString() : RecordNumber{year, number, {}}.text();
}

QString TreatmentHeader::advanceInvoice() const {
    RecordNumber advance = RecordNumber::parseReference(typedAdvanceInvoice());
    if (advance.isEmpty()) return {};
    advance.year = QString::number(CastLong(advance.year));
    advance.progressive = RecordNumber::fourDigits(advance.progressive);
    return advance.text();
}
