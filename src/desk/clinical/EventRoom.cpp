#include "desk/clinical/EventRoom.h"

#include "desk/clinical/EventEditor.h"
#include "desk/clinical/FileRoom.h"
#include "desk/data/PatientRecord.h"
#include "host/contract/HostError.h"

namespace desk {

RoomTexts EventRoom::texts() const {
    return {QStringLiteral("Evento"), QStringLiteral("rcEventi"), QStringLiteral("Diario clinico"),
            QStringLiteral("&Nuova voce"), QStringLiteral("Il diario è vuoto")};
}

QList<platform::ReportColumn> EventRoom::columns() const {
    return {{.caption = QStringLiteral("Data"), .width = 80},
            {.caption = QStringLiteral("Descrizione"), .width = 400, .resizable = true},
            {.caption = QStringLiteral("File"), .width = 50}};
}

QList<RoomRow> EventRoom::rows() {
    QList<RoomRow> rows;
    for (const host::Evento& event : patient_.Eventi().Lista())
        rows.append(
            {event.ID,
             {event.Data, event.descrizione.simplified(), event.idfiles.isEmpty() ? QString() : QStringLiteral("sì")}});
    return rows;
}

RoomEditor* EventRoom::editor(const QString& id, QWidget* parent) {
    if (id.isEmpty()) return new EventEditor(patient_, {}, services_, parent);
    const auto event = patient_.Eventi().Carica(id);
    if (!event) throw host::HostError(QStringLiteral("La voce del diario non è più nell'archivio."));
    return new EventEditor(patient_, *event, services_, parent);
}

QString EventRoom::removalQuestion(const QString& id) {
    const auto event = patient_.Eventi().Carica(id);
    if (!event) return {};
    const QString question = QStringLiteral("Eliminare dal diario la voce del %1?").arg(event->Data);
    if (event->idfiles.isEmpty()) return question;
    return question + QStringLiteral("\nIl suo file resta tra i file del paziente.");
}

bool EventRoom::remove(const QString& id) {
    if (!patient_.Eventi().Elimina(id)) return false;
    patient_.GeneraEvento(patient_.Eventi());
    return true;
}

QList<RoomAction> EventRoom::actions() {
    return {{QStringLiteral("cbApriFile"), QStringLiteral("Apri &file"), [this](const QString& id) {
                 const auto event = patient_.Eventi().Carica(id);
                 if (!event || event->idfiles.isEmpty())
                     throw host::HostError(QStringLiteral("Questa voce del diario non ha un file."));
                 FileRoom(patient_, services_).show(event->idfiles);
             }}};
}

} // namespace desk
