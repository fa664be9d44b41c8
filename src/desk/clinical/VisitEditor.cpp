#include "desk/clinical/VisitEditor.h"

#include "desk/data/PatientRecord.h"
#include "platform/Clock.h"
#include "platform/FormLayout.h"

#include <QDateEdit>
#include <QPlainTextEdit>
#include <QTimeEdit>

namespace desk {

VisitEditor::VisitEditor(PatientRecord& patient, host::Visita visit, const RoomServices& services, QWidget* parent)
    : RoomEditor(services, QStringLiteral("frmEditVisita"),
                 visit.ID.isEmpty() ? QStringLiteral("Nuova visita") : QStringLiteral("Visita"), parent)
    , patient_(patient)
    , visit_(std::move(visit)) {
    if (!visit_.Data.isValid()) visit_.Data = platform::now();
    date_ = addDate(QStringLiteral("tbData"), QStringLiteral("&Data:"), visit_.Data.date());
    time_ = platform::form::named(new QTimeEdit(visit_.Data.time(), this), QStringLiteral("tbOra"));
    time_->setDisplayFormat(QStringLiteral("HH:mm"));
    time_->setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed);
    addRow(QStringLiteral("&Ora:"), time_);
    text_ = addMemo(QStringLiteral("tbDescrizione"), QStringLiteral("De&scrizione:"), visit_.descrizione);
    finish(text_, QSize(520, 320));
}

QString VisitEditor::whatIsWrong() {
    if (!memoText(text_).trimmed().isEmpty()) return {};
    text_->setFocus();
    return QStringLiteral("Scrivere la descrizione della visita.");
}

QStringList VisitEditor::storedNow() {
    const auto visit = patient_.VisiteAmbDom().Carica(visit_.ID);
    if (!visit) return {};
    return {visit->descrizione, visit->Data.toString(Qt::ISODate)};
}

bool VisitEditor::store(QString& id) {
    host::Visita visit = visit_;
    visit.Data = QDateTime(date_->date(), time_->time());
    visit.descrizione = memoText(text_);
    if (!patient_.VisiteAmbDom().Salva(visit)) return false;
    id = visit.ID;
    patient_.GeneraEvento(patient_.VisiteAmbDom());
    return true;
}

} // namespace desk
