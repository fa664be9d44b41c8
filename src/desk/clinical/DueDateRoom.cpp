#include "desk/clinical/DueDateRoom.h"

#include "desk/clinical/DueDateEditor.h"
#include "desk/data/PatientRecord.h"
#include "host/contract/HostError.h"
#include "platform/Clock.h"
#include "platform/Regional.h"

namespace desk {

namespace {

const QColor OVERDUE(176, 32, 32);
const QColor DONE(110, 122, 134);

} // namespace

RoomTexts DueDateRoom::texts() const {
    return {QStringLiteral("Scadenza"), QStringLiteral("rcScadenze"), QStringLiteral("Scadenze"),
            QStringLiteral("&Nuova scadenza"), QStringLiteral("Nessuna scadenza")};
}

QList<platform::ReportColumn> DueDateRoom::columns() const {
    return {{.caption = QStringLiteral("Data"), .width = 80},
            {.caption = QStringLiteral("Descrizione"), .width = 400, .resizable = true},
            {.caption = QStringLiteral("Stato"), .width = 80}};
}

QList<RoomRow> DueDateRoom::rows() {
    QList<RoomRow> rows;
    for (const Scadenza& dueDate : patient_.scadenze().Lista()) {
        const bool overdue = !dueDate.chiusa && dueDate.Data.isValid() && dueDate.Data < platform::today();
        const QString state = dueDate.chiusa ? QStringLiteral("Fatta")
                              : overdue      ? QStringLiteral("Scaduta")
                                             : QStringLiteral("Da fare");
        rows.append({.id = dueDate.ID,
                     .cells = {platform::regional().shortDate(dueDate.Data), dueDate.descrizione.simplified(), state},
                     .colour = dueDate.chiusa ? DONE
                               : overdue      ? OVERDUE
                                              : QColor(),
                     .bold = overdue});
    }
    return rows;
}

RoomEditor* DueDateRoom::editor(const QString& id, QWidget* parent) {
    if (id.isEmpty()) return new DueDateEditor(patient_, {}, services_, parent);
    const auto dueDate = patient_.scadenze().Carica(id);
    if (!dueDate) throw host::HostError(QStringLiteral("La scadenza non è più nell'archivio."));
    return new DueDateEditor(patient_, *dueDate, services_, parent);
}

QString DueDateRoom::removalQuestion(const QString& id) {
    const auto dueDate = patient_.scadenze().Carica(id);
    if (!dueDate) return {};
    return QStringLiteral("Eliminare la scadenza del %1?").arg(platform::regional().shortDate(dueDate->Data));
}

bool DueDateRoom::remove(const QString& id) {
    if (!patient_.scadenze().Elimina(id)) return false;
    patient_.GeneraEvento(patient_.scadenze());
    return true;
}

} // namespace desk
