#pragma once

#include "host/modComandi.h"

#include <memory>

namespace host {
class Host;
}

/// The objects of the application context: makes them in their order, puts them where every room reaches them
/// (host/context.h) and fills what lower rooms ask of higher ones. Owned by the Plugin; takes everything out of reach
/// again when it ends, unless that is another run's by then.
class Contesto {
public:
    explicit Contesto(host::Host& host);
    ~Contesto();
    Contesto(const Contesto&) = delete;
    Contesto& operator=(const Contesto&) = delete;

    Comandi& comandi() { return comandi_; }

    /// Whether what every room reaches is of this run; another one may have taken its place.
    bool isCurrent() const { return current_ == this; }

    /// The end of the run: host and configuration go, the other objects stay until the Plugin itself is ended, since
    /// the host may still hold its panels.
    void termina();

private:
    struct Oggetti;

    void creaGestori();
    void collega();

    std::unique_ptr<Oggetti> oggetti_;
    Comandi comandi_;
    static const Contesto* current_;
};
