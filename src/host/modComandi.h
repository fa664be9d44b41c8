#pragma once

#include <QHash>
#include <QString>
#include <functional>

class QWidget;

/// The commands of the module by their keys ("CRVL0302"). Each room adds its own; what has no entry has no window yet
/// and is grey./// Owned by the module's assembly.
class Comandi {
public:
    using Azione = std::function<void()>;
    using Chiave = std::function<QString(qint32)>;

    /// `chiaveServizio` gives the key of a service by its command id, empty for an id that is none.
    explicit Comandi(Chiave chiaveServizio)
        : chiaveServizio_(std::move(chiaveServizio)) {}

    void add(const QString& key, Azione azione) { azioni_.insert(key, std::move(azione)); }
    bool contains(const QString& key) const { return azioni_.contains(key); }

    /// Runs the command that the host gave this id; nothing happens for an id that is not known. Passes on what the
    /// action throws.
    void EseguiComando(qint32 id) const;

private:
    bool eseguiFisso(qint32 id) const;
    void esegui(const QString& key) const;

    QHash<QString, Azione> azioni_;
    Chiave chiaveServizio_;
};

/// Opens a child window that `crea` makes and the host adopts, or brings forward the one that is open under its
/// caption: the module's name and `testo`, such as ": Elenco TRATTAMENTI".
void ApriFinestra(const QString& testo, const std::function<QWidget*()>& crea);
