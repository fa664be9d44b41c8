#pragma once

#include "catalogues/clsServizi.h"
#include "host/context.h"
#include "platform/Files.h"

#include <QTemporaryDir>

/// A service catalogue of its own in a temporary folder, in force as `oServizi` for its lifetime.
class ServiceFile {
public:
    ServiceFile()
        : services_([this] { return path(); }) {
        oServizi = &services_;
    }
    ~ServiceFile() { oServizi = nullptr; }
    ServiceFile(const ServiceFile&) = delete;
    ServiceFile& operator=(const ServiceFile&) = delete;

    QString path() const { return folder_.filePath(QStringLiteral("TabellaServizi.xml")); }
    QByteArray bytes() const { return platform::files::read(path()).value_or(QByteArray()); }
    void put(const QByteArray& content) {
        platform::files::writeAtomically(path(), content);
        services_.Refresh();
    }
    /// Entries as they stand between <servizi> and its end.
    void putEntries(const QByteArray& entries) {
        put("<?xml version=\"1.0\" encoding=\"utf-8\"?>\r\n<servizi>" + entries + "</servizi>");
    }
    /// "Visita" in Base64, and all that reading requires; `more` comes last.
    static QByteArray entry(const QByteArray& id, const QByteArray& more = "inEvidenza=\"1\" breve=\"Vis\"") {
        return "<servizio ID=\"" + id +
               "\" descrizione=\"VmlzaXRh\" UM=\"NR\" prezzo=\"60,00\" codiceIva=\"ES\" raggruppamento=\"01\" "
               "usabileInPianoTrattamento=\"1\" statusLavori=\"\" " +
               more + "/>";
    }
    clsServizi& services() { return services_; }

private:
    QTemporaryDir folder_;
    clsServizi services_;
};
