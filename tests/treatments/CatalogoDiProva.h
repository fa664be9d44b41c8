#pragma once

#include "catalogues/clsServizi.h"
#include "host/context.h"

#include <QTemporaryDir>
#include <memory>
#include <utility>

/// A service catalogue of its own, in force as the module's for the lifetime of this object.
class CatalogoDiProva {
public:
    CatalogoDiProva()
        : catalogo_(std::make_unique<clsServizi>([this] { return cartella_.filePath(QStringLiteral("servizi.xml")); }))
        , precedente_(std::exchange(oServizi, catalogo_.get())) {
        aggiungi(QStringLiteral("CORONA"), QStringLiteral("Corona in ceramica"), 50.0F, true);
        aggiungi(QStringLiteral("VISITA"), QStringLiteral("Visita"), 30.0F, false);
    }
    ~CatalogoDiProva() { oServizi = precedente_; }
    CatalogoDiProva(const CatalogoDiProva&) = delete;
    CatalogoDiProva& operator=(const CatalogoDiProva&) = delete;

private:
    void aggiungi(const QString& codice, const QString& descrizione, float prezzo, bool inEvidenza) {
        clsItemServizio item;
        item.ID = codice;
        item.descrizione = descrizione;
        item.prezzo = prezzo;
        item.inEvidenza = inEvidenza;
        item.usabileInPianoTrattamento = true;
        catalogo_->Aggiorna(item);
    }

    QTemporaryDir cartella_;
    std::unique_ptr<clsServizi> catalogo_;
    clsServizi* precedente_;
};
