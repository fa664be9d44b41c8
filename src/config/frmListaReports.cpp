#include "config/frmListaReports.h"

#include "config/clsConfig.h"
#include "config/clsListaReports.h"
#include "host/context.h"
#include "host/contract/Framework.h"
#include "host/contract/Host.h"
#include "host/modForm.h"
#include "platform/Dialogs.h"
#include "platform/FormLayout.h"
#include "platform/ReportGrid.h"

#include <QFrame>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QPushButton>
#include <QVBoxLayout>

namespace form = platform::form;

namespace {

enum Colonna { DESCRIZIONE, UTILIZZO };
enum Voce { NESSUNA, COME_PREVENTIVO, COME_FATTURA };

bool apreMenu(const QKeyEvent& event) {
    const bool maiuscF10 = event.key() == Qt::Key_F10 && event.modifiers() == Qt::ShiftModifier;
    return maiuscF10 || event.key() == Qt::Key_Menu || event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
}

} // namespace

frmListaReports::frmListaReports(const clsListaReports& reports, QWidget* parent)
    : QDialog(parent) {
    setObjectName(QStringLiteral("frmListaReports"));
    setWindowTitle(TitoloForm(QStringLiteral("Elenco Reports")));
    costruisciLista(reports);
    cbChiudi_ = form::button(QStringLiteral("cbChiudi"), QStringLiteral("&Chiudi"), this);
    cbChiudi_->setDefault(true);
    connect(cbChiudi_, &QPushButton::clicked, this, &QDialog::reject);

    auto* corpo = new QVBoxLayout;
    corpo->setContentsMargins(12, 10, 12, 12);
    corpo->setSpacing(10);
    corpo->addWidget(rcLista_, 1);
    corpo->addLayout(form::buttonRow({cbChiudi_}));
    auto* colonna = new QVBoxLayout(this);
    colonna->setContentsMargins(0, 0, 0, 0);
    colonna->setSpacing(0);
    colonna->addWidget(form::titleStrip(
        QStringLiteral("ELENCO REPORTS"),
        QStringLiteral("Il tasto destro, o Invio, assegna il modello ai preventivi o alle fatture."), this));
    colonna->addLayout(corpo, 1);
    resize(520, 360);
    rcLista_->setFocus();
    InizializzaForm(this);
}

void frmListaReports::costruisciLista(const clsListaReports& reports) {
    rcLista_ = form::named(new platform::ReportGrid(this), QStringLiteral("rcLista"));
    rcLista_->setAccessibleName(QStringLiteral("Elenco dei reports"));
    rcLista_->addColumn({.caption = QStringLiteral("Descrizione"), .width = 60, .resizable = true});
    rcLista_->addColumn({.caption = QStringLiteral("Utilizzo"), .width = 70, .sortable = false});
    rcLista_->setTexts(QStringLiteral("Non ci sono dati da visualizzare"), QString(), QStringLiteral("Ordina per "));
    rcLista_->setGroupBoxVisible(false);
    rcLista_->setReadOnly(true);
    rcLista_->setEditMode(false, false);
    rcLista_->beginUpdate();
    for (const clsItemReport& report : reports.Lista()) {
        platform::ReportRecord* record = rcLista_->addRecord();
        record->tag = report.ID;
        record->cell(DESCRIZIONE).value = report.descrizione;
        record->cell(UTILIZZO).value = clsListaReports::Utilizzo(report.ID);
    }
    rcLista_->endUpdate();
    rcLista_->populate();
    if (rcLista_->rowCount() > 0) rcLista_->setFocusedRecord(rcLista_->rowRecord(0));
    connect(rcLista_, &platform::ReportGrid::rowRightClicked, this, &frmListaReports::mostraMenu);
    connect(rcLista_, &platform::ReportGrid::keyPressed, this, [this](QKeyEvent* event) {
        if (!apreMenu(*event)) return;
        event->accept();
        mostraMenu(rcLista_->focusedRecord());
    });
}

void frmListaReports::mostraMenu(platform::ReportRecord* record) {
    if (!record || !oHost || !oConfig) return;
    const QString id = record->tag;
    const int voce =
        oHost->Framework().Popup({QStringLiteral("Imposta come preventivo"), QStringLiteral("Imposta come fattura")});
    try {
        if (voce == COME_PREVENTIVO) oConfig->setPreventReportID(id);
        if (voce == COME_FATTURA) oConfig->setFatturaReportID(id);
    } catch (const ErroreConfigurazione& errore) {
        platform::dialogs().message(QString::fromUtf8(errore.what()), platform::MB_CRITICAL,
                                    QString::fromUtf16(TITOLO_CORVALA));
    }
    if (voce != NESSUNA) mostraUtilizzo();
}

void frmListaReports::mostraUtilizzo() {
    for (int i = 0; i < rcLista_->recordCount(); ++i) {
        platform::ReportRecord* record = rcLista_->record(i);
        record->cell(UTILIZZO).value = clsListaReports::Utilizzo(record->tag);
        rcLista_->refreshRecord(record);
    }
}
