#pragma once

#include <QHash>
#include <QString>
#include <functional>

class QWidget;

/// The commands of the module by their keys ("CRVL0302"). Each room adds its own; what has no entry has no window yet
/// and is grey. Owned by the module's assembly.
class Commands {
public:
    using Action = std::function<void()>;
    using KeyOf = std::function<QString(qint32)>;
    using Test = std::function<bool()>;

    /// Whether a command that needs a patient has anything to do; empty for always. HostError when nobody can tell.
    struct Conditions {
        Test patient; ///< When a patient was opened.
        Test records; ///< When the patient's records changed.
    };

    /// `serviceKey` gives the key of a service by its command id, empty for an id that is none.
    explicit Commands(KeyOf serviceKey)
        : serviceKey_(std::move(serviceKey)) {}

    void add(const QString& key, Action action, Conditions conditions = {});
    bool contains(const QString& key) const { return commands_.contains(key); }
    bool fitsPatient(const QString& key) const;
    bool fitsRecords(const QString& key) const;

    /// Runs the command that the host gave this id; nothing happens for an id that is not known. Passes on what the
    /// action throws.
    void EseguiComando(qint32 id) const;

private:
    bool runFixed(qint32 id) const;
    void run(const QString& key) const;

    struct Command {
        Action action;
        Conditions conditions;
    };
    QHash<QString, Command> commands_;
    KeyOf serviceKey_;
};

/// Opens a child window that `create` makes and the host adopts, or brings forward the one that is open under its
/// caption: the module's name and `text`, such as ": Elenco TRATTAMENTI".
void openWindow(const QString& text, const std::function<QWidget*()>& create);
