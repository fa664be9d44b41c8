#include "config/clsServices.h"

#include "host/contract/Framework.h"
#include "platform/XmlDocument.h"

#include <QStringList>

namespace {

constexpr const char* FIXED[] = {"CRVL.main",       "CRVL.main.webinfo",  "CRVL.main.refresh",
                                 "CRVL.main.setup", "CRVL.main.userdata", "CRVL.main.about"};

bool isOne(const platform::XmlNode& node, const char* attribute) {
    return node.attribute(attribute, QString()) == QLatin1String("1");
}

QString bibliography(const platform::XmlNode& service) {
    QStringList lines;
    for (const platform::XmlNode& link : service.select("bibliography/link")) {
        lines << link.attribute("title", QString()) + QLatin1Char('\t') + link.attribute("caption", QString()) +
                     QLatin1Char(';') + link.attribute("url", QString());
    }
    return lines.join(QStringLiteral("\r\n"));
}

} // namespace

clsServices::clsServices(const platform::XmlNode& root, host::Framework& framework) {
    for (const char* key : FIXED) {
        list_.add(QLatin1String(key), {framework.GetNewID(), QLatin1String(key), {}, {}, true, false});
    }
    for (const platform::XmlNode& node : root.select("services/service")) {
        const QString key = node.attribute("id", QString());
        if (key.isEmpty() || list_.contains(key)) continue;
        list_.add(key, {framework.GetNewID(), key, node.attribute("endpoint", QString()), bibliography(node),
                        isOne(node, "enabled"), isOne(node, "patient")});
    }
}

qint32 clsServices::IDService(const QString& key) const {
    const clsItemService* service = list_.find(key);
    return service ? service->ID : 0;
}

QString clsServices::KeyService(qint32 id) const {
    return find(id).Key;
}
QString clsServices::EndpointService(qint32 id) const {
    return find(id).Endpoint;
}
QString clsServices::BiblioService(qint32 id) const {
    return find(id).Biblio;
}
bool clsServices::UsableService(qint32 id) const {
    return find(id).Enabled;
}
bool clsServices::PatientService(qint32 id) const {
    return find(id).Patient;
}

bool clsServices::UsableService(const QString& key) const {
    const clsItemService* service = list_.find(key);
    return service && service->Enabled;
}

clsItemService clsServices::find(qint32 id) const {
    for (const clsItemService& service : list_) {
        if (service.ID == id) return service;
    }
    return {};
}
