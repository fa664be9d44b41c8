#include "platform/FormRegistry.h"

#include <QPointer>

namespace platform {

namespace {

QList<QPointer<QObject>>& forms() {
    static QList<QPointer<QObject>> loaded;
    return loaded;
}

} // namespace

void FormRegistry::add(QObject* form) {
    remove(form);
    if (form) forms().append(form);
}

void FormRegistry::remove(const QObject* form) {
    forms().removeIf([form](const QPointer<QObject>& known) { return known.isNull() || known == form; });
}

QObject* FormRegistry::find(const QString& name) {
    for (auto form = forms().crbegin(); form != forms().crend(); ++form) {
        if (*form && (*form)->objectName() == name) return *form;
    }
    return nullptr;
}

QList<QObject*> FormRegistry::all() {
    QList<QObject*> result;
    for (const QPointer<QObject>& form : std::as_const(forms())) {
        if (form) result.append(form);
    }
    return result;
}

} // namespace platform
