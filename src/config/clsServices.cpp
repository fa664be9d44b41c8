#include "config/clsServices.h"

#include "host/contract/Framework.h"
#include "platform/XmlDocument.h"

#include <QStringList>

namespace {

constexpr const char* FISSI[] = {"CRVL.main",       "CRVL.main.webinfo",  "CRVL.main.refresh",
                                 "CRVL.main.setup", "CRVL.main.userdata", "CRVL.main.about"};

bool uno(const platform::XmlNode& nodo, const char* attributo) {
    return nodo.attribute(attributo, QString()) == QLatin1String("1");
}

QString bibliografia(const platform::XmlNode& servizio) {
    QStringList righe;
    for (const platform::XmlNode& link : servizio.select("bibliography/link")) {
        righe << link.attribute("title", QString()) + QLatin1Char('\t') + link.attribute("caption", QString()) +
                     QLatin1Char(';') + link.attribute("url", QString());
    }
    return righe.join(QStringLiteral("\r\n"));
}

} // namespace

clsServices::clsServices(const platform::XmlNode& radice, host::Framework& framework) {
    for (const char* key : FISSI) {
        lista_.add(QLatin1String(key), {framework.GetNewID(), QLatin1String(key), {}, {}, true, false});
    }
    for (const platform::XmlNode& nodo : radice.select("services/service")) {
        const QString key = nodo.attribute("id", QString());
        if (key.isEmpty() || lista_.contains(key)) continue;
        lista_.add(key, {framework.GetNewID(), key, nodo.attribute("endpoint", QString()), bibliografia(nodo),
                         uno(nodo, "enabled"), uno(nodo, "patient")});
    }
}

qint32 clsServices::IDService(const QString& key) const {
    const clsItemService* servizio = lista_.find(key);
    return servizio ? servizio->ID : 0;
}

QString clsServices::KeyService(qint32 id) const {
    return trova(id).Key;
}
QString clsServices::EndpointService(qint32 id) const {
    return trova(id).Endpoint;
}
QString clsServices::BiblioService(qint32 id) const {
    return trova(id).Biblio;
}
bool clsServices::UsableService(qint32 id) const {
    return trova(id).Enabled;
}
bool clsServices::PatientService(qint32 id) const {
    return trova(id).Patient;
}

bool clsServices::UsableService(const QString& key) const {
    const clsItemService* servizio = lista_.find(key);
    return servizio && servizio->Enabled;
}

clsItemService clsServices::trova(qint32 id) const {
    for (const clsItemService& servizio : lista_) {
        if (servizio.ID == id) return servizio;
    }
    return {};
}
