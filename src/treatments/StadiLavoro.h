#pragma once

#include <QDate>
#include <QList>
#include <QString>

/// One intermediate stage of the work on a row. A stage without a start has no end either.
struct StadioLavoro {
    QString nome;
    QDate inizio; ///< Invalid while not started.
    QDate fine;
};

/// The stages as a row keeps them (`statuslavori`): lines joined by CR LF, each a name, then "|" and one or two dates
/// as "yyyymmdd" without anything between.
namespace stadilavoro {

constexpr int MASSIMO = 4;

/// The first four lines; a date that is none counts as not there.
QList<StadioLavoro> leggi(const QString& statuslavori);
QString scrivi(const QList<StadioLavoro>& stadi);
/// The names of the stages that the catalogue gives a service: of its first four lines those that are not empty.
QStringList nomi(const QString& testoCatalogo);

} // namespace stadilavoro
