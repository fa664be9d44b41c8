#pragma once

#include <QtGlobal>
#include <exception>

/// Runs one step of an event. An error ends this step and no other, and never reaches the host.
template <class Azione>
void passo(Azione azione) noexcept {
    try {
        azione();
    } catch (const std::exception& errore) {
        qWarning("CORVALA: %s", errore.what());
    } catch (...) {
        qWarning("CORVALA: errore sconosciuto");
    }
}
