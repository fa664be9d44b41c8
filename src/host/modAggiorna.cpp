#include "host/modAggiorna.h"

#include "platform/FormRegistry.h"

#include <QMetaObject>
#include <QObject>

namespace {

// Windows belong to higher rooms and are reached by the name of their invokable members only.
void chiama(const char* form, const char* membro) {
    if (QObject* finestra = platform::FormRegistry::find(QLatin1String(form)))
        QMetaObject::invokeMethod(finestra, membro);
}

void chiama(const char* form, const char* membro, const QString& id) {
    if (QObject* finestra = platform::FormRegistry::find(QLatin1String(form))) {
        QMetaObject::invokeMethod(finestra, membro, Q_ARG(QString, id));
    }
}

} // namespace

void RefreshPreventivi(const QString& id) {
    chiama("frmMDIPreventivi", "RefreshPreventivi", id);
}
void RefreshFatture(const QString& id) {
    chiama("frmMDIFatture", "RefreshFatture", id);
}
void RefreshPagamenti(const QString& id) {
    chiama("frmMDIPagamenti", "RefreshPagamenti", id);
}
void RefreshTrattamenti(const QString& id) {
    chiama("frmMDITrattamenti", "RefreshTrattamenti", id);
}
void RefreshGraficaPreventivi() {
    chiama("frmMDIPreventivi", "RefreshGraficaPreventivi");
}
void RefreshGraficaFatture() {
    chiama("frmMDIFatture", "RefreshGraficaFatture");
}
void RefreshGraficaPagamenti() {
    chiama("frmMDIPagamenti", "RefreshGraficaPagamenti");
}
void RefreshGraficaTrattamenti() {
    chiama("frmMDITrattamenti", "RefreshGraficaTrattamenti");
}
void RefreshSintesi() {
    chiama("frmMDISintesi", "plbRefresh");
}
void RefreshImmagini() {
    chiama("frmMDIImmagini", "plbRefresh");
}
