#include "treatments/clsTrattamenti.h"

#include "config/clsConfig.h"
#include "host/Passo.h"
#include "host/context.h"
#include "host/contract/Host.h"
#include "platform/Dialogs.h"
#include "treatments/MemoTrattamento.h"
#include "treatments/StrangeInMemo.h"

namespace {

const QString ELIMINA_ALLEGATI = QStringLiteral("Elimina gli eventuali allegati");

platform::TaskAnswer chiedeEliminazione(const clsItemTrattamento& item) {
    platform::TaskRequest domanda;
    domanda.windowTitle = QString::fromUtf16(TITOLO_CORVALA);
    domanda.title = QStringLiteral("Gestione Trattamenti");
    domanda.icon = platform::MB_INFORMATION;
    domanda.text = QStringLiteral("<TextBlock TextWrapping='Wrap'>Vuoi eliminare il trattamento numero ") +
                   unisciIdrif1(item) + QLatin1String("?</TextBlock>");
    domanda.checkCaption = ELIMINA_ALLEGATI;
    domanda.buttons = {QStringLiteral("Si"), QStringLiteral("No")};
    return platform::dialogs().task(domanda);
}

// Cuts the stock movements made for the plan from it. There is nothing to cut before the stock journal exists, which
// brings this step.
void scollegaMagazzino(const clsItemTrattamento&, host::Paziente&) {}

// Deletes the files attached to the plan, or marks them as former ones. What belongs to a plan is told by the
// description of a file, which the attachments read; they bring this step.
void scollegaAllegati(const clsItemTrattamento&, host::Paziente&, bool /*elimina*/) {}

} // namespace

clsTrattamenti::clsTrattamenti()
    : WorkspaceManager(QStringLiteral("TRT")) {}

std::optional<clsItemTrattamento> clsTrattamenti::Carica(const QString& id, host::Paziente* paziente) {
    if (!paziente) paziente = PazienteAperto();
    if (!paziente) return std::nullopt;
    paziente->corvala().Refresh();
    return WorkspaceManager::Carica(id, paziente);
}

std::optional<clsItemTrattamento> clsTrattamenti::salvage(const QString& id, host::Paziente* paziente) {
    if (!paziente) paziente = PazienteAperto();
    if (!paziente) return std::nullopt;
    paziente->corvala().Refresh();
    const std::optional<host::RigaCorvala> riga = paziente->corvala().Carica(id);
    if (!riga) return std::nullopt;
    clsItemTrattamento item;
    leggiRiga(*riga, item);
    salvageMemo(item, riga->m1);
    if (item.guasto.isEmpty()) item.guasto = strangeInMemo(riga->m1);
    return item;
}

std::optional<clsItemTrattamento> clsTrattamenti::CaricaUltimo() {
    if (host::Paziente* paziente = PazienteAperto()) paziente->corvala().Refresh();
    const clsItemTrattamento* ultimo = nullptr;
    for (const clsItemTrattamento& item : Lista()) {
        // As texts on purpose: "2024-9" ranks above "2024-10", and the summary relies on the same order.
        if (!ultimo || unisciIdrif1(item) > unisciIdrif1(*ultimo)) ultimo = &item;
    }
    return ultimo ? std::optional<clsItemTrattamento>(*ultimo) : std::nullopt;
}

void clsTrattamenti::DeserializzaMEMO(clsItemTrattamento& item, const QString& memo) const {
    leggiMemoTrattamento(item, memo);
}

// The editor tells what is wrong when the plan is opened; the patient's other plans must be seen all the same.
void clsTrattamenti::DeserializzaPerLista(clsItemTrattamento& item, const QString& memo) const {
    salvageMemo(item, memo);
}

QString clsTrattamenti::SerializzaMEMO(const clsItemTrattamento& item) const {
    return scriviMemoTrattamento(item);
}

bool clsTrattamenti::Elimina(host::Paziente& paziente, const QString& id) {
    const std::optional<clsItemTrattamento> item = salvage(id, &paziente);
    if (!item) {
        platform::dialogs().message(QStringLiteral("Segnalare problema"), 0, QString::fromUtf16(TITOLO_CORVALA));
        return false;
    }
    const platform::TaskAnswer risposta = chiedeEliminazione(*item);
    if (risposta.button != QLatin1String("Si")) return false;
    if (!paziente.corvala().Elimina(id)) return false;

    scollegaMagazzino(*item, paziente);
    scollegaAllegati(*item, paziente, risposta.checked);
    passo([&] { paziente.Files().Refresh(); });
    passo([&] { paziente.Eventi().Refresh(); });
    Refresh();
    if (oConfig) oConfig->RefreshGUITrattamento();
    return true;
}
