#pragma once

#include "catalogues/clsServizi.h"
#include "chart/clsGraphical.h"
#include "config/clsConfig.h"
#include "config/clsItemIva.h"
#include "config/clsItemRaggMerc.h"
#include "config/clsItemSituazioneDente.h"
#include "desk/shell/Desk.h"
#include "desk/shell/Options.h"
#include "host/context.h"
#include "host/contract/Host.h"
#include "platform/Clock.h"
#include "platform/Collection.h"
#include "support/DialoghiDiProva.h"
#include "treatments/clsTrattamenti.h"
#include "treatments/clsViewTrattamenti.h"

#include <QCoreApplication>
#include <QTemporaryDir>
#include <gtest/gtest.h>
#include <optional>

/// A desk of its own on a real database with the demo practice, and the module's objects as its assembly makes them.
/// The patient without records is open; the clock stands.
class StudioDiProva : public testing::Test {
protected:
    StudioDiProva() {
        platform::setClock(QDateTime(QDate(2026, 3, 10), QTime(9, 30)));
        desk::Options opzioni;
        opzioni.databaseUrl = QStringLiteral("sqlite:") + cartella_.filePath(QStringLiteral("studio.db"));
        opzioni.configDir = cartella_.filePath(QStringLiteral("config"));
        opzioni.demo = true;
        desk_ = desk::Desk::open(opzioni);
        oHost = &desk_->host();
        sAppPath = QCoreApplication::applicationDirPath() + QStringLiteral("/../app");
        colIva = &iva_;
        colRaggMerc = &gruppi_;
        colSituazioniDenti = &situazioni_;
        oConfig = &config_;
        EXPECT_TRUE(config_.Init());
        oGraphical = &grafica_;
        EXPECT_TRUE(grafica_.Init(sAppPath + QStringLiteral("/Graphical.xml")));
        oServizi = &servizi_;
        oTrattamenti = &trattamenti_;
        oViewTrattamenti = &vista_;
        EXPECT_TRUE(desk_->openPatientByTaxCode(QStringLiteral("RSSMRA80A01H501U")));
    }
    ~StudioDiProva() override {
        oHost = nullptr;
        oConfig = nullptr;
        oGraphical = nullptr;
        oServizi = nullptr;
        oTrattamenti = nullptr;
        oViewTrattamenti = nullptr;
        colIva = nullptr;
        colRaggMerc = nullptr;
        colSituazioniDenti = nullptr;
        sIDTrattamento.clear();
        platform::releaseClock();
    }

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
        EXPECT_TRUE(trattamenti_.Salva(item));
        return item;
    }

    QTemporaryDir cartella_;
    DialoghiDiProva dialoghi_;
    std::unique_ptr<desk::Desk> desk_;
    platform::Collection<clsItemIva> iva_;
    platform::Collection<clsItemRaggMerc> gruppi_;
    platform::Collection<clsItemSituazioneDente> situazioni_;
    clsConfig config_;
    clsGraphical grafica_;
    clsServizi servizi_;
    clsTrattamenti trattamenti_;
    clsViewTrattamenti vista_;
};
