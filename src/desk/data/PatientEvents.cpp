#include "desk/data/PatientEvents.h"

#include "desk/data/Database.h"
#include "platform/Regional.h"

namespace desk {

namespace {

host::Evento eventOf(const Query& query) {
    return {query.text(0), platform::regional().shortDate(query.date(1)), query.text(2), query.text(3)};
}

} // namespace

PatientEvents::PatientEvents(const PatientScope& scope)
    : database_(scope.database)
    , table_(scope, QStringLiteral("tblEventi"),
             {QStringLiteral("Data"), QStringLiteral("descrizione"), QStringLiteral("idfiles")}) {}

QList<host::Evento> PatientEvents::Lista() {
    QList<host::Evento> list;
    for (Query query = table_.rows(QStringLiteral("Data desc, ID")); query.next();)
        list << eventOf(query);
    return list;
}

std::optional<host::Evento> PatientEvents::Carica(const QString& id) {
    Query query = table_.row(id);
    if (!query.next()) return std::nullopt;
    return eventOf(query);
}

bool PatientEvents::Salva(host::Evento& evento) {
    const std::optional<QDate> date = platform::regional().toDate(evento.Data);
    if (!date) return false;
    return table_.save(evento.ID, {storedMoment(date->startOfDay()), evento.descrizione, evento.idfiles});
}

bool PatientEvents::Elimina(const QString& id) {
    return table_.remove(id);
}

void PatientEvents::Refresh() {
    database_.noticeOthers();
}

} // namespace desk
