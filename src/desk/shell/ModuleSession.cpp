#include "desk/shell/ModuleSession.h"

#include "host/contract/Forms.h"
#include "host/contract/PluginInterface.h"
#include "host/contract/View.h"
#include "platform/Guarded.h"

#include <QFileInfo>
#include <QJsonObject>
#include <QPluginLoader>
#include <QStringList>

namespace desk {

std::unique_ptr<host::PluginInterface> loadModuleLibrary(const QString& path) {
    if (!QFileInfo::exists(path)) throw ModuleError(QStringLiteral("il file %1 non esiste.").arg(path));
    QPluginLoader loader(path);
    const QString interfaceName = loader.metaData().value(QLatin1String("IID")).toString();
    if (interfaceName.isEmpty()) throw ModuleError(QStringLiteral("il file %1 non \u00e8 un modulo.").arg(path));
    if (interfaceName != QLatin1String(HOST_PLUGIN_IID))
        throw ModuleError(
            QStringLiteral("il file %1 \u00e8 fatto per un'altra versione del programma (%2 invece di %3).")
                .arg(path, interfaceName, QLatin1String(HOST_PLUGIN_IID)));
    auto* factory = qobject_cast<host::PluginFactory*>(loader.instance());
    if (!factory)
        throw ModuleError(
            QStringLiteral("il file %1 non pu\u00f2 essere caricato: %2").arg(path, loader.errorString()));
    std::unique_ptr<host::PluginInterface> module = factory->create();
    if (!module) throw ModuleError(QStringLiteral("il modulo non si \u00e8 avviato."));
    return module;
}

ModuleSession::ModuleSession(std::unique_ptr<host::PluginInterface> module, host::Host& host, Report report)
    : module_(std::move(module))
    , host_(host)
    , report_(std::move(report)) {
    const QString why = platform::guarded([this] { module_->Init(&host_, QVariant()); });
    if (!why.isEmpty()) throw ModuleError(why);
    if (!module_->terminated()) return;
    const QString reason = module_->terminationReason();
    throw ModuleError(reason.isEmpty() ? QStringLiteral("il modulo non si \u00e8 avviato.") : reason);
}

ModuleSession::~ModuleSession() {
    QVariantList none;
    platform::guarded([&] { module_->evento(QStringLiteral("fine"), &host_, none); });
    platform::guarded([&] { module_.reset(); });
}

void ModuleSession::send(const QString& event, QVariantList& args) {
    const QString why = platform::guarded([&] { module_->evento(event, &host_, args); });
    if (!why.isEmpty()) report_(QStringLiteral("l'operazione \u201c%1\u201d non \u00e8 riuscita: %2").arg(event, why));
}

void ModuleSession::raise(const QString& event, QVariantList args) {
    send(event, args);
}

void ModuleSession::formLoad(host::HostForm& form) {
    raise(QStringLiteral("form.load"), {QVariant::fromValue(&form)});
}

bool ModuleSession::asksForTabs() {
    QVariantList args{false};
    send(QStringLiteral("mainribbonbar.returntab"), args);
    return !args.isEmpty() && args.constFirst().toBool();
}

QList<Panel> ModuleSession::askPanels() {
    QVariantList names{QStringList()};
    send(QStringLiteral("listapannelli"), names);
    QList<Panel> panels;
    if (names.isEmpty()) return panels;
    for (const QString& name : names.constFirst().toStringList()) {
        QVariantList args{name, 0, QVariant()};
        send(QStringLiteral("arcpannelli.daiparent"), args);
        auto* view = args.size() > 2 ? args.at(2).value<host::View*>() : nullptr;
        if (view) panels.append({name, view});
    }
    return panels;
}

} // namespace desk
