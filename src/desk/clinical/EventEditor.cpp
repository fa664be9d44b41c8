#include "desk/clinical/EventEditor.h"

#include "desk/data/PatientRecord.h"
#include "platform/Regional.h"

#include <QDateEdit>
#include <QPlainTextEdit>

namespace desk {

EventEditor::EventEditor(PatientRecord& patient, host::Evento event, const RoomServices& services, QWidget* parent)
    : RoomEditor(services, QStringLiteral("frmEditEvento"),
                 event.ID.isEmpty() ? QStringLiteral("Nuova voce del diario") : QStringLiteral("Voce del diario"),
                 parent)
    , patient_(patient)
    , event_(std::move(event)) {
    date_ = addDate(QStringLiteral("tbData"), QStringLiteral("&Data:"),
                    platform::regional().toDate(event_.Data).value_or(QDate()));
    text_ = addMemo(QStringLiteral("tbDescrizione"), QStringLiteral("De&scrizione:"), event_.descrizione);
    finish(text_, QSize(520, 300));
}

QString EventEditor::whatIsWrong() {
    if (!memoText(text_).trimmed().isEmpty()) return {};
    text_->setFocus();
    return QStringLiteral("Scrivere la descrizione.");
}

QStringList EventEditor::storedNow() {
    const auto event = patient_.Eventi().Carica(event_.ID);
    if (!event) return {};
    return {event->descrizione, event->Data};
}

bool EventEditor::store(QString& id) {
    host::Evento event = event_;
    event.Data = platform::regional().shortDate(date_->date());
    event.descrizione = memoText(text_);
    if (!patient_.Eventi().Salva(event)) return false;
    id = event.ID;
    patient_.GeneraEvento(patient_.Eventi());
    return true;
}

} // namespace desk
