#pragma once

#include <QList>
#include <QString>

namespace host {
class Dati;
}

/// A print report of the practice, as the archive keeps it.
struct clsItemReport {
    QString ID;
    QString description;
};

/// The dental reports in the host's archive of free data. Read once and then kept in memory: a report that was added
/// meanwhile shows only in a new list. Owned by who offers the choice.
class ReportList {
public:
    /// Reads the list, unless it is in memory already.
    void load(host::Dati& data);
    bool isLoaded() const { return !list_.isEmpty(); }
    const QList<clsItemReport>& reports() const { return list_; }

    /// For what the settings use a report: "Preventivo", "Fattura", "Preventivo, Fattura" or nothing.
    static QString useOf(const QString& id);

private:
    QList<clsItemReport> list_;
};
