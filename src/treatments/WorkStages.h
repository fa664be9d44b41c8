#pragma once

#include <QDate>
#include <QList>
#include <QString>

/// One intermediate stage of the work on a row. A stage without a start has no end either.
struct WorkStage {
    QString name;
    QDate start; ///< Invalid while not started.
    QDate end;
};

/// The stages as a row keeps them (`statuslavori`): lines joined by CR LF, each a name, then "|" and one or two dates
/// as "yyyymmdd" without anything between.
namespace workstages {

constexpr int MOST_STAGES = 4;

/// The first four lines; a date that is none counts as not there.
QList<WorkStage> read(const QString& statuslavori);
QString write(const QList<WorkStage>& stages);
/// The names of the stages that the catalogue gives a service: of its first four lines those that are not empty.
QStringList names(const QString& catalogueText);

} // namespace workstages
