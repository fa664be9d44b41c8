#include "desk/clinical/VisitRoom.h"

#include "desk/clinical/VisitEditor.h"
#include "desk/data/PatientRecord.h"
#include "host/contract/HostError.h"
#include "platform/Regional.h"

namespace desk {

RoomTexts VisitRoom::texts() const {
    return {QStringLiteral("Visita"), QStringLiteral("rcVisite"), QStringLiteral("Visite"),
            QStringLiteral("&Nuova visita"), QStringLiteral("Nessuna visita")};
}

QList<platform::ReportColumn> VisitRoom::columns() const {
    return {{.caption = QStringLiteral("Data"), .width = 80},
            {.caption = QStringLiteral("Ora"), .width = 50},
            {.caption = QStringLiteral("Descrizione"), .width = 400, .resizable = true}};
}

QList<RoomRow> VisitRoom::rows() {
    QList<RoomRow> rows;
    for (const host::Visita& visit : patient_.VisiteAmbDom().Lista()) {
        // Visits that came from elsewhere have a day and no hour.
        const QTime time = visit.Data.time();
        const QString hour = time == QTime(0, 0) ? QString() : time.toString(QStringLiteral("HH:mm"));
        rows.append(
            {visit.ID, {platform::regional().shortDate(visit.Data.date()), hour, visit.descrizione.simplified()}});
    }
    return rows;
}

RoomEditor* VisitRoom::editor(const QString& id, QWidget* parent) {
    if (id.isEmpty()) return new VisitEditor(patient_, {}, services_, parent);
    const auto visit = patient_.VisiteAmbDom().Carica(id);
    if (!visit) throw host::HostError(QStringLiteral("La visita non è più nell'archivio."));
    return new VisitEditor(patient_, *visit, services_, parent);
}

QString VisitRoom::removalQuestion(const QString& id) {
    const auto visit = patient_.VisiteAmbDom().Carica(id);
    if (!visit) return {};
    return QStringLiteral("Eliminare la visita del %1?").arg(platform::regional().shortDate(visit->Data.date()));
}

bool VisitRoom::remove(const QString& id) {
    if (!patient_.VisiteAmbDom().Elimina(id)) return false;
    patient_.GeneraEvento(patient_.VisiteAmbDom());
    return true;
}

} // namespace desk
