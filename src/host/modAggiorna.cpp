#include "host/modAggiorna.h"

#include "platform/FormRegistry.h"

#include <QMetaObject>
#include <QObject>

namespace {

// Windows belong to higher rooms and are reached by the name of their invokable members only.
void call(const char* form, const char* member) {
    if (QObject* window = platform::FormRegistry::find(QLatin1String(form))) QMetaObject::invokeMethod(window, member);
}

void call(const char* form, const char* member, const QString& id) {
    if (QObject* window = platform::FormRegistry::find(QLatin1String(form))) {
        QMetaObject::invokeMethod(window, member, Q_ARG(QString, id));
    }
}

} // namespace

void RefreshPreventivi(const QString& id) {
    call("frmMDIPreventivi", "RefreshPreventivi", id);
}
void RefreshFatture(const QString& id) {
    call("frmMDIFatture", "RefreshFatture", id);
}
void RefreshPagamenti(const QString& id) {
    call("frmMDIPagamenti", "RefreshPagamenti", id);
}
void RefreshTrattamenti(const QString& id) {
    call("frmMDITrattamenti", "RefreshTrattamenti", id);
}
void RefreshGraficaPreventivi() {
    call("frmMDIPreventivi", "RefreshGraficaPreventivi");
}
void RefreshGraficaFatture() {
    call("frmMDIFatture", "RefreshGraficaFatture");
}
void RefreshGraficaPagamenti() {
    call("frmMDIPagamenti", "RefreshGraficaPagamenti");
}
void RefreshGraficaTrattamenti() {
    call("frmMDITrattamenti", "RefreshGraficaTrattamenti");
}
void RefreshSintesi() {
    call("frmMDISintesi", "plbRefresh");
}
void RefreshImmagini() {
    call("frmMDIImmagini", "plbRefresh");
}
