#pragma once

#include <QList>
#include <QObject>
#include <QString>

namespace platform {

/// The windows that are loaded at the moment, found by name (their `objectName`). A window adds itself when it is
/// created; its destruction takes it off, and so does a window that is put away for later.
class FormRegistry {
public:
    static void add(QObject* form);
    static void remove(const QObject* form);
    static QObject* find(const QString& name); ///< The one loaded last of that name, or null.
    static QList<QObject*> all();              ///< In the order of loading.
};

} // namespace platform
