#include "desk/clinical/NoteRoom.h"

#include "desk/clinical/NoteEditor.h"
#include "desk/data/PatientRecord.h"
#include "host/contract/HostError.h"
#include "platform/Regional.h"

namespace desk {

bool NoteRoom::maySee(const host::Appunto& note) const {
    return !note.b1.toBool() || services_.userId == patient_.IDMedico();
}

RoomTexts NoteRoom::texts() const {
    return {QStringLiteral("Appunto"), QStringLiteral("rcAppunti"), QStringLiteral("Appunti"),
            QStringLiteral("&Nuovo appunto"), QStringLiteral("Nessun appunto")};
}

QList<platform::ReportColumn> NoteRoom::columns() const {
    return {{.caption = QStringLiteral("Data"), .width = 80},
            {.caption = QStringLiteral("Testo"), .width = 400, .resizable = true},
            {.caption = QStringLiteral("Importante"), .width = 80},
            {.caption = QStringLiteral("Privato"), .width = 70}};
}

QList<RoomRow> NoteRoom::rows() {
    QList<RoomRow> rows;
    for (const host::Appunto& note : patient_.Appunti().Lista()) {
        if (!maySee(note)) continue;
        const bool important = note.b2.toBool();
        const auto yes = [](bool flag) { return flag ? QStringLiteral("sì") : QString(); };
        rows.append({.id = note.ID,
                     .cells = {platform::regional().shortDate(note.Data.date()), note.m1.simplified(), yes(important),
                               yes(note.b1.toBool())},
                     .bold = important});
    }
    return rows;
}

RoomEditor* NoteRoom::editor(const QString& id, QWidget* parent) {
    if (id.isEmpty()) return new NoteEditor(patient_, {}, services_, parent);
    const auto note = patient_.Appunti().Carica(id);
    if (!note) throw host::HostError(QStringLiteral("L'appunto non è più nell'archivio."));
    if (!maySee(*note)) throw host::HostError(QStringLiteral("L'appunto è privato del medico del paziente."));
    return new NoteEditor(patient_, *note, services_, parent);
}

QString NoteRoom::removalQuestion(const QString& id) {
    const auto note = patient_.Appunti().Carica(id);
    if (!note || !maySee(*note)) return {};
    return QStringLiteral("Eliminare l'appunto del %1?").arg(platform::regional().shortDate(note->Data.date()));
}

bool NoteRoom::remove(const QString& id) {
    if (!patient_.Appunti().Elimina(id)) return false;
    patient_.GeneraEvento(patient_.Appunti());
    return true;
}

} // namespace desk
