#include "desk/data/PatientNotes.h"

#include "desk/data/Database.h"
#include "host/contract/HostError.h"

namespace desk {

namespace {

host::Appunto noteOf(const Query& query) {
    return {query.text(0), query.moment(1), query.value(2), query.value(3), query.text(4)};
}

} // namespace

PatientNotes::PatientNotes(const PatientScope& scope)
    : scope_(scope)
    , table_(scope, QStringLiteral("tblAppunti"),
             {QStringLiteral("Data"), QStringLiteral("b1"), QStringLiteral("b2"), QStringLiteral("m1")}) {}

QList<host::Appunto> PatientNotes::Lista() {
    QList<host::Appunto> list;
    for (Query query = table_.rows(QStringLiteral("Data desc, ID")); query.next();)
        list << noteOf(query);
    return list;
}

std::optional<host::Appunto> PatientNotes::Carica(const QString& id) {
    Query query = table_.row(id);
    if (!query.next()) return std::nullopt;
    return noteOf(query);
}

bool PatientNotes::Salva(host::Appunto& note) {
    return table_.save(note.ID, {storedMoment(note.Data), note.b1.toBool() ? 1 : 0, note.b2.toBool() ? 1 : 0, note.m1});
}

bool PatientNotes::Elimina(const QString& id) {
    return table_.remove(id);
}

QObject* PatientNotes::EditForm(const QString& id) {
    if (!scope_.hooks.noteForm) throw host::HostError(QStringLiteral("La finestra degli appunti non è disponibile."));
    return scope_.hooks.noteForm(scope_.patient, id);
}

} // namespace desk
