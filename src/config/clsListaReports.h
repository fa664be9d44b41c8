#pragma once

#include <QList>
#include <QString>

namespace host {
class Dati;
}

/// A print report of the practice, as the archive keeps it.
struct clsItemReport {
    QString ID;
    QString descrizione;
};

/// The dental reports in the host's archive of free data. Read once and then kept in memory: a report that was added
/// meanwhile shows only in a new list. Owned by who offers the choice.
class clsListaReports {
public:
    /// Reads the list, unless it is in memory already.
    void Carica(host::Dati& dati);
    bool InMemoria() const { return !lista_.isEmpty(); }
    const QList<clsItemReport>& Lista() const { return lista_; }

    /// For what the settings use a report: "Preventivo", "Fattura", "Preventivo, Fattura" or nothing.
    static QString Utilizzo(const QString& id);

private:
    QList<clsItemReport> lista_;
};
