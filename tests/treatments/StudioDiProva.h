#pragma once

#include "config/clsConfig.h"
#include "config/clsItemSituazioneDente.h"
#include "platform/Collection.h"
#include "support/StudioConModulo.h"
#include "treatments/clsTrattamenti.h"
#include "treatments/clsViewTrattamenti.h"

#include <memory>
#include <optional>

/// The practice with the module running and the patient without records open.
class StudioDiProva : public StudioConModulo {
protected:
    StudioDiProva() {
        avvia();
        apriRossi();
        oTrattamenti->Refresh(); // the panels have listed the plans already
    }
    ~StudioDiProva() override { sIDTrattamento.clear(); }

    clsTrattamenti& trattamenti() { return *oTrattamenti; }
    clsViewTrattamenti& vista() { return *oViewTrattamenti; }
    host::Paziente& paziente() { return *PazienteAperto(); }
    /// The stored row of the plan with that number.
    std::optional<host::RigaCorvala> riga(const QString& numero) {
        paziente().corvala().Refresh();
        for (const host::RigaCorvala& riga : paziente().corvala().Lista()) {
            if (riga.idrif1 == numero) return riga;
        }
        return std::nullopt;
    }
    clsItemTrattamento salvato(const QString& anno, const QString& progressivo) {
        clsItemTrattamento item;
        item.anno = anno;
        item.progressivo = progressivo;
        item.Data = QStringLiteral("10/03/2026");
        item.cliente = paziente().codicefiscale();
        item.descrizionecliente = paziente().Cognome() + QLatin1Char(' ') + paziente().Nome();
        item.descrizione = QStringLiteral("Piano ") + progressivo;
        EXPECT_TRUE(trattamenti().Salva(item));
        return item;
    }
};

/// The same with a window, whose controls are found by their names.
template <class Finestra>
class FinestraDiProva : public StudioDiProva {
protected:
    template <class T>
    T* trova(const QString& nome) {
        T* trovato = finestra_->template findChild<T*>(nome);
        EXPECT_NE(trovato, nullptr) << nome.toStdString();
        return trovato;
    }
    std::unique_ptr<Finestra> finestra_;
};
