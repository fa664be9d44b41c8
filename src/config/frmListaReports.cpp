#include "config/frmListaReports.h"

#include "config/ReportList.h"
#include "config/clsConfig.h"
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

enum Column { DESCRIPTION, USE };
enum Choice { NONE, AS_ESTIMATE, AS_INVOICE };

bool opensMenu(const QKeyEvent& event) {
    const bool shiftF10 = event.key() == Qt::Key_F10 && event.modifiers() == Qt::ShiftModifier;
    return shiftF10 || event.key() == Qt::Key_Menu || event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
}

} // namespace

frmListaReports::frmListaReports(const ReportList& reports, QWidget* parent)
    : QDialog(parent) {
    setObjectName(QStringLiteral("frmListaReports"));
    setWindowTitle(TitoloForm(QStringLiteral("Elenco Reports")));
    buildList(reports);
    cbChiudi_ = form::button(QStringLiteral("cbChiudi"), QStringLiteral("&Chiudi"), this);
    cbChiudi_->setDefault(true);
    connect(cbChiudi_, &QPushButton::clicked, this, &QDialog::reject);

    auto* body = new QVBoxLayout;
    body->setContentsMargins(12, 10, 12, 12);
    body->setSpacing(10);
    body->addWidget(rcLista_, 1);
    body->addLayout(form::buttonRow({cbChiudi_}));
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(form::titleStrip(
        QStringLiteral("ELENCO REPORTS"),
        QStringLiteral("Il tasto destro, o Invio, assegna il modello ai preventivi o alle fatture."), this));
    column->addLayout(body, 1);
    resize(520, 360);
    rcLista_->setFocus();
    InizializzaForm(this);
}

void frmListaReports::buildList(const ReportList& reports) {
    rcLista_ = form::named(new platform::ReportGrid(this), QStringLiteral("rcLista"));
    rcLista_->setAccessibleName(QStringLiteral("Elenco dei reports"));
    rcLista_->addColumn({.caption = QStringLiteral("Descrizione"), .width = 60, .resizable = true});
    rcLista_->addColumn({.caption = QStringLiteral("Utilizzo"), .width = 70, .sortable = false});
    rcLista_->setTexts(QStringLiteral("Non ci sono dati da visualizzare"), QString(), QStringLiteral("Ordina per "));
    rcLista_->setGroupBoxVisible(false);
    rcLista_->setReadOnly(true);
    rcLista_->setEditMode(false, false);
    rcLista_->beginUpdate();
    for (const clsItemReport& report : reports.reports()) {
        platform::ReportRecord* record = rcLista_->addRecord();
        record->tag = report.ID;
        record->cell(DESCRIPTION).value = report.description;
        record->cell(USE).value = ReportList::useOf(report.ID);
    }
    rcLista_->endUpdate();
    rcLista_->populate();
    if (rcLista_->rowCount() > 0) rcLista_->setFocusedRecord(rcLista_->rowRecord(0));
    connect(rcLista_, &platform::ReportGrid::rowRightClicked, this, &frmListaReports::showMenu);
    connect(rcLista_, &platform::ReportGrid::keyPressed, this, [this](QKeyEvent* event) {
        if (!opensMenu(*event)) return;
        event->accept();
        showMenu(rcLista_->focusedRecord());
    });
}

void frmListaReports::showMenu(platform::ReportRecord* record) {
    if (!record || !oHost || !oConfig) return;
    const QString id = record->tag;
    const int entry =
        oHost->Framework().Popup({QStringLiteral("Imposta come preventivo"), QStringLiteral("Imposta come fattura")});
    try {
        if (entry == AS_ESTIMATE) oConfig->setPreventReportID(id);
        if (entry == AS_INVOICE) oConfig->setFatturaReportID(id);
    } catch (const ConfigError& error) {
        platform::dialogs().message(QString::fromUtf8(error.what()), platform::MB_CRITICAL,
                                    QString::fromUtf16(CORVALA_TITLE));
    }
    if (entry != NONE) showUse();
}

void frmListaReports::showUse() {
    for (int i = 0; i < rcLista_->recordCount(); ++i) {
        platform::ReportRecord* record = rcLista_->record(i);
        record->cell(USE).value = ReportList::useOf(record->tag);
        rcLista_->refreshRecord(record);
    }
}
