#pragma once

#include <QtGlobal>
#include <exception>

/// Runs one step of an event. An error ends this step and no other, and never reaches the host.
template <class Action>
void step(Action action) noexcept {
    try {
        action();
    } catch (const std::exception& error) {
        qWarning("CORVALA: %s", error.what());
    } catch (...) {
        qWarning("CORVALA: errore sconosciuto");
    }
}
