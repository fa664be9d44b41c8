#pragma once

#include "store/modWorkspace.h"
#include "treatments/clsItemTrattamento.h"

#include <QString>
#include <optional>

class clsTrattamenti;
extern clsTrattamenti* oTrattamenti; ///< From the start of the module to the end of its Plugin.

/// The treatment plans of the patient open in the desk: loads, lists, saves and deletes them. One long-lived instance,
/// `oTrattamenti`, owned by the module's assembly. Errors of the host pass through, and so does,
/// from `Carica`, a plan with two rows of one number; the callers report them.
class clsTrattamenti : public WorkspaceManager<clsItemTrattamento> {
public:
    clsTrattamenti();

    /// Reads the patient's rows anew first, so that what another workstation saved is seen. The same for those below.
    std::optional<clsItemTrattamento> Carica(const QString& id, host::Paziente* patient = nullptr);
    /// As `Carica`, for whoever shows or deletes the plan: with all that can be read of it, and what cannot in
    /// `fault`.
    std::optional<clsItemTrattamento> salvage(const QString& id, host::Paziente* patient = nullptr);
    /// The plan with the greatest number; nothing without plans. Numbers are compared as texts.
    std::optional<clsItemTrattamento> CaricaUltimo();
    void DeserializzaMEMO(clsItemTrattamento& item, const QString& memo) const override;
    /// Asks, then deletes the plan with all that is tied to it. False when refused, not found or not deleted.
    bool Elimina(host::Paziente& patient, const QString& id) override;

protected:
    QString SerializzaMEMO(const clsItemTrattamento& item) const override;
    /// A plan with two rows of one number stands in the list with what could be read of it.
    void deserializeForList(clsItemTrattamento& item, const QString& memo) const override;
};
