#include "desk/clinical/DueDateEditor.h"

#include "desk/data/PatientRecord.h"

#include <QCheckBox>
#include <QDateEdit>
#include <QPlainTextEdit>

namespace desk {

DueDateEditor::DueDateEditor(PatientRecord& patient, Scadenza dueDate, const RoomServices& services, QWidget* parent)
    : RoomEditor(services, QStringLiteral("frmEditScadenza"),
                 dueDate.ID.isEmpty() ? QStringLiteral("Nuova scadenza") : QStringLiteral("Scadenza"), parent)
    , patient_(patient)
    , dueDate_(std::move(dueDate)) {
    date_ = addDate(QStringLiteral("tbData"), QStringLiteral("&Data:"), dueDate_.Data);
    text_ = addMemo(QStringLiteral("tbDescrizione"), QStringLiteral("De&scrizione:"), dueDate_.descrizione);
    done_ = addCheck(QStringLiteral("ckFatta"), QStringLiteral("&Fatta"), dueDate_.chiusa);
    finish(text_, QSize(500, 280));
}

QString DueDateEditor::whatIsWrong() {
    if (!memoText(text_).trimmed().isEmpty()) return {};
    text_->setFocus();
    return QStringLiteral("Scrivere la descrizione della scadenza.");
}

QStringList DueDateEditor::storedNow() {
    const auto dueDate = patient_.scadenze().Carica(dueDate_.ID);
    if (!dueDate) return {};
    return {dueDate->descrizione, dueDate->Data.toString(Qt::ISODate), QString::number(dueDate->chiusa)};
}

bool DueDateEditor::store(QString& id) {
    Scadenza dueDate = dueDate_;
    dueDate.Data = date_->date();
    dueDate.descrizione = memoText(text_);
    dueDate.chiusa = done_->isChecked();
    if (!patient_.scadenze().Salva(dueDate)) return false;
    id = dueDate.ID;
    patient_.GeneraEvento(patient_.scadenze());
    return true;
}

} // namespace desk
