#include "treatments/clsTrattamenti.h"

#include "host/Step.h"
#include "host/context.h"
#include "host/contract/Host.h"
#include "platform/Dialogs.h"
#include "treatments/StrangeInMemo.h"
#include "treatments/TreatmentMemo.h"

clsTrattamenti* oTrattamenti = nullptr;

namespace {

const QString REMOVE_FILES = QStringLiteral("Elimina gli eventuali allegati");

platform::TaskAnswer askDeletion(const clsItemTrattamento& item) {
    platform::TaskRequest question;
    question.windowTitle = QString::fromUtf16(CORVALA_TITLE);
    question.title = QStringLiteral("Gestione Trattamenti");
    question.icon = platform::MB_INFORMATION;
    question.text = QStringLiteral("<TextBlock TextWrapping='Wrap'>Vuoi eliminare il trattamento numero ") +
                    item.number().text() + QLatin1String("?</TextBlock>");
    question.checkCaption = REMOVE_FILES;
    question.buttons = {QStringLiteral("Si"), QStringLiteral("No")};
    return platform::dialogs().task(question);
}

// Cuts the stock movements made for the plan from it. There is nothing to cut before the stock journal exists, which
// brings this step.
void detachStock(const clsItemTrattamento&, host::Paziente&) {}

// Deletes the files attached to the plan, or marks them as former ones. What belongs to a plan is told by the
// description of a file, which the attachments read; they bring this step.
void detachFiles(const clsItemTrattamento&, host::Paziente&, bool /*elimina*/) {}

} // namespace

clsTrattamenti::clsTrattamenti()
    : WorkspaceManager(QStringLiteral("TRT")) {}

std::optional<clsItemTrattamento> clsTrattamenti::Carica(const QString& id, host::Paziente* patient) {
    if (!patient) patient = currentPatient();
    if (!patient) return std::nullopt;
    patient->corvala().Refresh();
    return WorkspaceManager::Carica(id, patient);
}

std::optional<clsItemTrattamento> clsTrattamenti::salvage(const QString& id, host::Paziente* patient) {
    if (!patient) patient = currentPatient();
    if (!patient) return std::nullopt;
    patient->corvala().Refresh();
    const std::optional<host::RigaCorvala> row = patient->corvala().Carica(id);
    if (!row) return std::nullopt;
    clsItemTrattamento item;
    readRow(*row, item);
    salvageMemo(item, row->m1);
    if (item.fault.isEmpty()) item.fault = strangeInMemo(row->m1);
    return item;
}

std::optional<clsItemTrattamento> clsTrattamenti::CaricaUltimo() {
    if (host::Paziente* patient = currentPatient()) patient->corvala().Refresh();
    const clsItemTrattamento* last = nullptr;
    for (const clsItemTrattamento& item : Lista()) {
        // As texts on purpose: "2024-9" ranks above "2024-10", and the summary relies on the same order.
        if (!last || item.number().text() > last->number().text()) last = &item;
    }
    return last ? std::optional<clsItemTrattamento>(*last) : std::nullopt;
}

void clsTrattamenti::DeserializzaMEMO(clsItemTrattamento& item, const QString& memo) const {
    readTreatmentMemo(item, memo);
}

// The editor tells what is wrong when the plan is opened; the patient's other plans must be seen all the same.
void clsTrattamenti::deserializeForList(clsItemTrattamento& item, const QString& memo) const {
    salvageMemo(item, memo);
}

QString clsTrattamenti::SerializzaMEMO(const clsItemTrattamento& item) const {
    return writeTreatmentMemo(item);
}

bool clsTrattamenti::Elimina(host::Paziente& patient, const QString& id) {
    const std::optional<clsItemTrattamento> item = salvage(id, &patient);
    if (!item) {
        platform::dialogs().message(QStringLiteral("Segnalare problema"), 0, QString::fromUtf16(CORVALA_TITLE));
        return false;
    }
    const platform::TaskAnswer answer = askDeletion(*item);
    if (answer.button != QLatin1String("Si")) return false;
    if (!patient.corvala().Elimina(id)) return false;

    detachStock(*item, patient);
    detachFiles(*item, patient, answer.checked);
    step([&] { patient.Files().Refresh(); });
    step([&] { patient.Eventi().Refresh(); });
    Refresh();
    announceChange(t1());
    return true;
}
