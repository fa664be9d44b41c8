#pragma once

#include "config/clsConfig.h"
#include "config/clsItemSituazioneDente.h"
#include "platform/Collection.h"
#include "support/ModuleFixture.h"
#include "treatments/clsTrattamenti.h"
#include "treatments/clsViewTrattamenti.h"

#include <memory>
#include <optional>

/// The practice with the module running and the patient without records open.
class TreatmentFixture : public ModuleFixture {
protected:
    TreatmentFixture() {
        start();
        openRossi();
        oTrattamenti->Refresh(); // the panels have listed the plans already
    }

    clsTrattamenti& treatments() { return *oTrattamenti; }
    clsViewTrattamenti& view() { return *oViewTrattamenti; }
    host::Paziente& patient() { return *currentPatient(); }
    /// The stored row of the plan with that number.
    std::optional<host::RigaCorvala> storedRow(const QString& number) {
        patient().corvala().Refresh();
        for (const host::RigaCorvala& row : patient().corvala().Lista()) {
            if (row.idrif1 == number) return row;
        }
        return std::nullopt;
    }
    clsItemTrattamento savedPlan(const QString& year, const QString& progressive) {
        clsItemTrattamento item;
        item.anno = year;
        item.progressivo = progressive;
        item.Data = QStringLiteral("10/03/2026");
        item.cliente = patient().codicefiscale();
        item.descrizionecliente = patient().Cognome() + QLatin1Char(' ') + patient().Nome();
        item.descrizione = QStringLiteral("Piano ") + progressive;
        EXPECT_TRUE(treatments().Salva(item));
        return item;
    }
};

/// The same with a window, whose controls are found by their names.
template <class Window>
class WindowFixture : public TreatmentFixture {
protected:
    template <class T>
    T* find(const QString& name) {
        T* found = window_->template findChild<T*>(name);
        EXPECT_NE(found, nullptr) << name.toStdString();
        return found;
    }
    std::unique_ptr<Window> window_;
};
