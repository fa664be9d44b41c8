#pragma once

#include "host/Changes.h"
#include "host/modComandi.h"

#include <memory>

class Rooms;

namespace host {
class Host;
}

/// The objects of the application context: makes them in their order, puts them where every room reaches them
/// (host/context.h) and fills what lower rooms ask of higher ones. Owned by the Plugin; takes everything out of reach
/// again when it ends, unless that is another run's by then.
class Context {
public:
    explicit Context(host::Host& host);
    ~Context();
    Context(const Context&) = delete;
    Context& operator=(const Context&) = delete;

    Commands& commands() { return commands_; }
    const Rooms& rooms() const;

    /// Rereads everything shown for the open patient, what other workstations wrote included.
    void refreshPatientData();

    /// Whether what every room reaches is of this run; another one may have taken its place.
    bool isCurrent() const { return current_ == this; }

    /// The end of the run: host and configuration go, the other objects stay until the Plugin itself is ended, since
    /// the host may still hold its panels.
    void terminate();

private:
    struct Objects;

    void wire();

    Commands commands_;
    std::unique_ptr<Objects> objects_;
    Changes changes_;
    static const Context* current_;
};
