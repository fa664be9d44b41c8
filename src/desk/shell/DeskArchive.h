#pragma once

#include "host/contract/Archivio.h"

#include <functional>

namespace desk {

class Practice;

/// The archive as the module sees it: which panels are loaded, free data, users, and the patient search. Borrows the
/// practice.
class DeskArchive : public host::Archivio, private host::Pannelli, private host::Pazienti {
public:
    struct Hooks {
        std::function<bool(const QString& name)> isPanelLoaded;
        /// Shows the search window; the id of the chosen patient, or nothing.
        std::function<QString(const QString& value, const QString& column)> choosePatient;
        std::function<void()> beforeFreeData; ///< Before the module sees the free data.
    };

    DeskArchive(Practice& practice, Hooks hooks);

    host::Pannelli& Pannelli() override { return *this; }
    host::Dati& Dati() override;
    host::Utenti& Utenti() override;
    host::Pazienti& Pazienti() override { return *this; }

private:
    bool PannelloCaricato(const QString& name) const override { return hooks_.isPanelLoaded(name); }
    std::unique_ptr<host::Paziente> Show(const QString& value, const QString& column) override;

    Practice& practice_;
    Hooks hooks_;
};

} // namespace desk
