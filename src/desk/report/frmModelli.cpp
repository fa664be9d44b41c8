#include "desk/report/frmModelli.h"

#include "desk/report/ReportLayout.h"
#include "desk/report/ReportLayoutError.h"
#include "desk/report/ReportLayouts.h"
#include "host/contract/HostError.h"
#include "platform/Dialogs.h"
#include "platform/Files.h"
#include "platform/FormLayout.h"
#include "platform/FormRegistry.h"
#include "platform/ReportGrid.h"

#include <QDir>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace desk {

using platform::form::button;
using platform::form::named;

namespace {

const QString TITLE = QStringLiteral("Modelli di stampa");

platform::FileKinds layoutFiles() {
    return {{TITLE, {QStringLiteral("*.xml")}}, platform::everyFile()};
}

const ShippedReport* shippedFor(const QString& id) {
    return ReportLayouts::fallback(id, {});
}

QString stateOf(const host::ItemDati& item) {
    try {
        ReportLayout::read(item.file);
    } catch (const ReportLayoutError&) {
        return QStringLiteral("Non leggibile");
    }
    const ShippedReport* shipped = shippedFor(item.ID);
    return shipped && shipped->xml == item.file ? QStringLiteral("Fornito con il programma")
                                                : QStringLiteral("Dello studio");
}

void tell(const QString& what, int value) {
    platform::dialogs().message(what, value, TITLE);
}

bool confirms(const QString& question) {
    return platform::dialogs().message(question, platform::MB_QUESTION_DEFAULT_NO, TITLE) == platform::Answer::Yes;
}

} // namespace

frmModelli::frmModelli(host::Dati& archive, QWidget* parent)
    : QDialog(parent)
    , archive_(archive) {
    setObjectName(QStringLiteral("frmModelli"));
    setWindowTitle(TITLE);
    buildList();
    buildButtons();
    auto* side = new QVBoxLayout;
    side->setSpacing(8);
    for (QPushButton* one : {cbEsporta_, cbImporta_, cbNuovo_, cbRipristina_, cbElimina_})
        side->addWidget(one);
    side->addStretch(1);
    side->addWidget(cbChiudi_);
    auto* centre = new QHBoxLayout;
    centre->setSpacing(12);
    centre->addWidget(rcModelli_, 1);
    centre->addLayout(side);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(14, 12, 14, 14);
    layout->setSpacing(10);
    layout->addWidget(
        platform::form::heading(QStringLiteral("laTitoloForm"), QStringLiteral("MODELLI DI STAMPA"), this));
    layout->addLayout(centre, 1);
    resize(640, 360);
    fill(QString());
    rcModelli_->setFocus();
    platform::FormRegistry::add(this);
}

void frmModelli::buildList() {
    rcModelli_ = named(new platform::ReportGrid(this), QStringLiteral("rcModelli"));
    rcModelli_->setAccessibleName(TITLE);
    rcModelli_->addColumn({.caption = QStringLiteral("Descrizione"), .width = 160, .resizable = true});
    rcModelli_->addColumn({.caption = QStringLiteral("Stato"), .width = 150});
    rcModelli_->setTexts(QStringLiteral("Non ci sono modelli"), QString(), QStringLiteral("Ordina per "));
    rcModelli_->setGroupBoxVisible(false);
    rcModelli_->setReadOnly(true);
    rcModelli_->setEditMode(false, false);
    connect(rcModelli_, &platform::ReportGrid::focusedRecordChanged, this, &frmModelli::showChoices);
}

void frmModelli::buildButtons() {
    const auto make = [this](const char* name, const QString& caption, void (frmModelli::*action)()) {
        QPushButton* made = button(QLatin1String(name), caption, this);
        made->setAutoDefault(false);
        connect(made, &QPushButton::clicked, this, [this, action] {
            try {
                (this->*action)();
            } catch (const host::HostError& error) {
                tell(error.text(), platform::MB_WARNING);
            }
        });
        return made;
    };
    cbEsporta_ = make("cbEsporta", QStringLiteral("&Esporta\u2026"), &frmModelli::exportChosen);
    cbImporta_ = make("cbImporta", QStringLiteral("&Importa\u2026"), &frmModelli::importOverChosen);
    cbNuovo_ = make("cbNuovo", QStringLiteral("&Nuovo\u2026"), &frmModelli::importAsNew);
    cbRipristina_ = make("cbRipristina", QStringLiteral("&Ripristina"), &frmModelli::restoreChosen);
    cbElimina_ = make("cbElimina", QStringLiteral("E&limina"), &frmModelli::removeChosen);
    cbChiudi_ = make("cbChiudi", QStringLiteral("&Chiudi"), &frmModelli::reject);
    cbEsporta_->setToolTip(QStringLiteral("Scrive il modello scelto in un file"));
    cbImporta_->setToolTip(QStringLiteral("Sostituisce il modello scelto con quello di un file"));
    cbNuovo_->setToolTip(QStringLiteral("Aggiunge il modello di un file"));
    cbRipristina_->setToolTip(QStringLiteral("Rimette il modello fornito con il programma"));
    cbChiudi_->setDefault(true);
}

void frmModelli::fill(const QString& idToSelect) {
    const QList<host::ItemDati> items = archive_.Lista(QString::fromUtf16(REPORT_FOLDER), true);
    rcModelli_->beginUpdate();
    rcModelli_->clear();
    platform::ReportRecord* selected = nullptr;
    for (const host::ItemDati& item : items) {
        platform::ReportRecord* record = rcModelli_->addRecord();
        record->tag = item.ID;
        record->cell(0).value = item.descrizione;
        record->cell(1).value = stateOf(item);
        if (item.ID == idToSelect) selected = record;
    }
    rcModelli_->endUpdate();
    rcModelli_->populate();
    if (!selected && rcModelli_->rowCount() > 0) selected = rcModelli_->rowRecord(0);
    rcModelli_->setFocusedRecord(selected);
    showChoices();
}

void frmModelli::showChoices() {
    std::optional<host::ItemDati> item;
    try {
        item = chosen();
    } catch (const host::HostError&) {
        // What cannot be read offers nothing; the buttons come back with the next choice.
    }
    const ShippedReport* shipped = item ? shippedFor(item->ID) : nullptr;
    cbEsporta_->setEnabled(item.has_value());
    cbImporta_->setEnabled(item.has_value());
    cbRipristina_->setEnabled(shipped && shipped->xml != item->file);
    // Those that come with the program would be back at the next start.
    cbElimina_->setEnabled(item && !shipped);
}

std::optional<host::ItemDati> frmModelli::chosen() {
    const platform::ReportRecord* record = rcModelli_->focusedRecord();
    return record ? archive_.Carica(record->tag) : std::nullopt;
}

std::optional<QString> frmModelli::pickLayout(QString* name) {
    const QString path = platform::dialogs().openFile(QStringLiteral("Scelta del modello"), layoutFiles(), QString());
    if (path.isEmpty()) return std::nullopt;
    const std::optional<QByteArray> content = platform::files::read(path);
    if (!content) {
        tell(QStringLiteral("Il file %1 non si pu\u00f2 leggere.").arg(QDir::toNativeSeparators(path)),
             platform::MB_CRITICAL);
        return std::nullopt;
    }
    const QString xml = QString::fromUtf8(*content);
    try {
        ReportLayout::read(xml);
    } catch (const ReportLayoutError& error) {
        tell(QStringLiteral("Il file non \u00e8 un modello di stampa valido.\n") + error.text(), platform::MB_WARNING);
        return std::nullopt;
    }
    if (name) *name = QFileInfo(path).completeBaseName();
    return xml;
}

void frmModelli::store(host::ItemDati item) {
    if (archive_.Salva(item, true)) return fill(item.ID);
    tell(QStringLiteral("Il modello \u201c%1\u201d non \u00e8 stato salvato: l'archivio non risponde.")
             .arg(item.descrizione),
         platform::MB_CRITICAL);
}

void frmModelli::exportChosen() {
    const std::optional<host::ItemDati> item = chosen();
    if (!item) return;
    const QString path = platform::dialogs().saveFile(QStringLiteral("Esporta modello"), layoutFiles(),
                                                      item->descrizione + QStringLiteral(".xml"));
    if (path.isEmpty() || platform::files::writeAtomically(path, item->file.toUtf8())) return;
    tell(QStringLiteral("Il file %1 non si pu\u00f2 scrivere.").arg(QDir::toNativeSeparators(path)),
         platform::MB_CRITICAL);
}

void frmModelli::importOverChosen() {
    std::optional<host::ItemDati> item = chosen();
    if (!item) return;
    const std::optional<QString> xml = pickLayout(nullptr);
    if (!xml || !confirms(QStringLiteral("Sostituire il modello \u201c%1\u201d?").arg(item->descrizione))) return;
    item->file = *xml;
    store(*item);
}

void frmModelli::importAsNew() {
    host::ItemDati item = archive_.GetEmptyItem();
    const std::optional<QString> xml = pickLayout(&item.descrizione);
    if (!xml) return;
    item.Cartella = QString::fromUtf16(REPORT_FOLDER);
    item.file = *xml;
    store(item);
}

void frmModelli::restoreChosen() {
    std::optional<host::ItemDati> item = chosen();
    const ShippedReport* shipped = item ? shippedFor(item->ID) : nullptr;
    if (!shipped ||
        !confirms(QStringLiteral("Rimettere il modello \u201c%1\u201d fornito con il programma?\nQuello dello "
                                 "studio va perso.")
                      .arg(shipped->title)))
        return;
    item->file = shipped->xml;
    store(*item);
}

void frmModelli::removeChosen() {
    const std::optional<host::ItemDati> item = chosen();
    if (!item || !confirms(QStringLiteral("Eliminare il modello \u201c%1\u201d?").arg(item->descrizione))) return;
    if (!archive_.Elimina(item->ID))
        tell(QStringLiteral("Il modello \u201c%1\u201d non \u00e8 stato eliminato.").arg(item->descrizione),
             platform::MB_CRITICAL);
    fill(QString());
}

} // namespace desk
