#include "desk/data/PatientDueDates.h"

#include "desk/data/Database.h"
#include "host/contract/HostError.h"

namespace desk {

namespace {

DueDate dueDateOf(const Query& query) {
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

QList<DueDate> PatientDueDates::Lista() {
    QList<DueDate> list;
    for (Query query = table_.rows(QStringLiteral("Data, ID")); query.next();)
        list << dueDateOf(query);
    return list;
}

std::optional<DueDate> PatientDueDates::Carica(const QString& id) {
    Query query = table_.row(id);
    if (!query.next()) return std::nullopt;
    return dueDateOf(query);
}

bool PatientDueDates::Salva(DueDate& dueDate) {
    return table_.save(dueDate.ID,
                       {storedMoment(dueDate.Data.startOfDay()), dueDate.descrizione, dueDate.chiusa ? 1 : 0});
}

bool PatientDueDates::Elimina(const QString& id) {
    return table_.remove(id);
}

} // namespace desk
