#include "desk/data/PatientDueDates.h"

#include "desk/data/Database.h"
#include "host/contract/HostError.h"

namespace desk {

namespace {

Scadenza dueDateOf(const Query& query) {
    return {query.text(0), query.date(1), query.text(2), query.number(3) != 0};
}

} // namespace

PatientDueDates::PatientDueDates(const PatientScope& scope)
    : scope_(scope)
    , table_(scope, QStringLiteral("tblScadenze"),
             {QStringLiteral("Data"), QStringLiteral("descrizione"), QStringLiteral("chiusa")}) {}

QObject* PatientDueDates::EditForm(const QString& id) {
    if (!scope_.hooks.dueDateForm)
        throw host::HostError(QStringLiteral("La finestra delle scadenze non è disponibile."));
    return scope_.hooks.dueDateForm(scope_.patient, id);
}

QList<Scadenza> PatientDueDates::Lista() {
    QList<Scadenza> list;
    for (Query query = table_.rows(QStringLiteral("Data, ID")); query.next();)
        list << dueDateOf(query);
    return list;
}

std::optional<Scadenza> PatientDueDates::Carica(const QString& id) {
    Query query = table_.row(id);
    if (!query.next()) return std::nullopt;
    return dueDateOf(query);
}

bool PatientDueDates::Salva(Scadenza& scadenza) {
    return table_.save(scadenza.ID,
                       {storedMoment(scadenza.Data.startOfDay()), scadenza.descrizione, scadenza.chiusa ? 1 : 0});
}

bool PatientDueDates::Elimina(const QString& id) {
    return table_.remove(id);
}

} // namespace desk
