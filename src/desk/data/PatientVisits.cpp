#include "desk/data/PatientVisits.h"

#include "desk/data/Database.h"
#include "host/contract/HostError.h"

namespace desk {

namespace {

host::Visita visitOf(const Query& query) {
    return {query.text(0), query.moment(1), query.text(2)};
}

} // namespace

PatientVisits::PatientVisits(const PatientScope& scope)
    : scope_(scope)
    , table_(scope, QStringLiteral("tblVisite"), {QStringLiteral("Data"), QStringLiteral("descrizione")}) {}

QList<host::Visita> PatientVisits::Lista() {
    QList<host::Visita> list;
    for (Query query = table_.rows(QStringLiteral("Data desc, ID")); query.next();)
        list << visitOf(query);
    return list;
}

QObject* PatientVisits::EditForm(const QString& id) {
    if (!scope_.hooks.visitForm) throw host::HostError(QStringLiteral("La finestra delle visite non è disponibile."));
    return scope_.hooks.visitForm(scope_.patient, id);
}

std::optional<host::Visita> PatientVisits::Carica(const QString& id) {
    Query query = table_.row(id);
    if (!query.next()) return std::nullopt;
    return visitOf(query);
}

bool PatientVisits::Salva(host::Visita& visit) {
    return table_.save(visit.ID, {storedMoment(visit.Data), visit.descrizione});
}

bool PatientVisits::Elimina(const QString& id) {
    return table_.remove(id);
}

} // namespace desk
