#include "store/ElencoPeriodo.h"

#include "host/context.h"
#include "host/contract/Host.h"
#include "host/modForm.h"
#include "platform/Clock.h"
#include "platform/Dialogs.h"
#include "platform/FormLayout.h"
#include "platform/Regional.h"
#include "platform/ReportGrid.h"
#include "store/modPazienti.h"
#include "store/modWorkspace.h"

#include <QColor>
#include <QCoreApplication>
#include <QDateEdit>
#include <QEvent>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QScopeGuard>
#include <QVBoxLayout>
#include <stdexcept>

namespace {

enum VoceMenu { NUOVO = 1, MODIFICA, ELIMINA, STAMPA };

// The tag of a row's first cell keeps whose row it is, for the bold marks.
constexpr int CELLA_PAZIENTE = 0;

QString idPazienteAperto() {
    const host::Paziente* aperto = PazienteAperto();
    return aperto ? aperto->ID() : QString();
}

} // namespace

ElencoPeriodo::ElencoPeriodo(const Impostazioni& impostazioni, QWidget* parent)
    : QWidget(parent)
    , impostazioni_(impostazioni) {
    setObjectName(impostazioni_.nome);
    costruisciFinestra();
}

void ElencoPeriodo::costruisciFinestra() {
    using namespace platform;
    titolo_ = form::heading(impostazioni_.nomeTitolo, impostazioni_.titolo, this);
    auto* barra = new QHBoxLayout;
    barra->addWidget(titolo_, 1);
    const std::array<QString, 2> didascalie{QStringLiteral("dal"), QStringLiteral("al")};
    for (std::size_t i = 0; i < dtpData_.size(); ++i) {
        dtpData_[i] = form::dateBox(form::arrayName("dtpData", static_cast<int>(i)), this);
        auto* didascalia = new QLabel(didascalie[i], this);
        didascalia->setBuddy(dtpData_[i]);
        barra->addWidget(didascalia);
        barra->addWidget(dtpData_[i]);
    }
    QPushButton* filtra = form::button(QStringLiteral("cbFiltra"), QStringLiteral("Filtra"), this);
    barra->addWidget(filtra);

    griglia_ = form::named(new ReportGrid(this), impostazioni_.nomeGriglia);
    auto* colonna = new QVBoxLayout(this);
    colonna->addLayout(barra);
    colonna->addWidget(griglia_, 1);

    pbAttesa_ = form::named(new QLabel(QStringLiteral("Attendere.. caricamento dati in corso.."), this),
                            QStringLiteral("pbAttesa"));
    pbAttesa_->setFrameShape(QFrame::StyledPanel);
    pbAttesa_->setAutoFillBackground(true);
    pbAttesa_->setMargin(18);
    pbAttesa_->hide();

    connect(filtra, &QPushButton::clicked, this, [this] { ricarica(QString()); });
    connect(griglia_, &ReportGrid::rowDoubleClicked, this, [this](ReportRecord* record) {
        if (record) attempt([this, record] { modifica(*record); });
    });
    connect(griglia_, &ReportGrid::keyPressed, this, [this](QKeyEvent* tasto) {
        if (tasto->key() != Qt::Key_Return && tasto->key() != Qt::Key_Enter) return;
        tasto->accept();
        // As a double click.
        if (const ReportRecord* scelto = griglia_->focusedRecord()) attempt([this, scelto] { modifica(*scelto); });
    });
    connect(griglia_, &ReportGrid::rowRightClicked, this, [this] { mostraMenu(); });
}

void ElencoPeriodo::prepara() {
    const QDate primo(platform::today().year(), platform::today().month(), 1);
    dtpData_[0]->setDate(primo);
    dtpData_[1]->setDate(primo.addMonths(1).addDays(-1));
    costruisciColonne(*griglia_);
    griglia_->setColours(QColor(224, 233, 248), QColor(255, 255, 255), QColor(212, 208, 200));
    griglia_->setGroupBoxVisible(true);
    griglia_->setReadOnly(true);
    griglia_->setSort(impostazioni_.colonnaOrdine, Qt::DescendingOrder);
    resize(1000, 560);
    InizializzaForm(this);
    ConservaGeometria(this);
    leggi();
}

void ElencoPeriodo::ricarica(const QString& idDaSelezionare) {
    const platform::ReportRecord* scelto = griglia_->focusedRecord();
    const QString id = idDaSelezionare.isEmpty() && scelto ? scelto->tag : idDaSelezionare;

    // The window may be closed while the events are pumped.
    const QPointer<ElencoPeriodo> viva(this);
    centraAttesa();
    pbAttesa_->show();
    pbAttesa_->raise();
    QCoreApplication::processEvents();
    if (!viva) return;
    {
        const auto fine = qScopeGuard([this] { pbAttesa_->hide(); });
        leggi();
        seleziona(id);
    }
    QCoreApplication::processEvents();
}

void ElencoPeriodo::leggi() {
    const QDate da = dtpData_[0]->date();
    const QDate a = dtpData_[1]->date();
    titolo_->setText(impostazioni_.titolo + platform::regional().shortDate(da) + QLatin1String(" - ") +
                     platform::regional().shortDate(a));
    reading_.read(*griglia_, [&] {
        const auto righe = runningHost().DB().OpenRecordset(queryPeriodo(impostazioni_.t1, da, a));
        for (; righe && !righe->isEOF(); righe->MoveNext())
            aggiungi(*righe);
    });
}

std::unique_ptr<host::Paziente> ElencoPeriodo::paziente(const QString& id) {
    std::unique_ptr<host::Paziente> paziente = runningHost().Framework().NewPaziente();
    return paziente && paziente->Init(id) ? std::move(paziente) : nullptr;
}

void ElencoPeriodo::aggiungi(const host::Recordset& riga) {
    const std::unique_ptr<host::Paziente> suo = paziente(riga.text(QStringLiteral("idpaziente")));
    if (!suo) return;

    platform::ReportRecord* record = griglia_->addRecord();
    record->tag = riga.text(QStringLiteral("id"));
    record->cell(CELLA_PAZIENTE).tag = suo->ID();
    try {
        riempi(*record, riga, *suo);
    } catch (const host::HostError&) {
        throw;
    } catch (const std::runtime_error&) {
        // One record that cannot be read must not hide those of the whole practice.
    }
    segnaPaziente(*record, idPazienteAperto());
}

void ElencoPeriodo::segnaPaziente(platform::ReportRecord& record, const QString& idPaziente) const {
    const bool suo = !idPaziente.isEmpty() && record.cell(CELLA_PAZIENTE).tag == idPaziente;
    for (const int colonna : colonnePaziente())
        record.cell(colonna).setBold(suo);
}

void ElencoPeriodo::aggiornaGrafica() {
    const QString idPaziente = idPazienteAperto();
    for (int i = 0; i < griglia_->recordCount(); ++i)
        segnaPaziente(*griglia_->record(i), idPaziente);
    griglia_->populate();
}

void ElencoPeriodo::seleziona(const QString& id) {
    if (id.isEmpty()) return;
    for (int i = 0; i < griglia_->recordCount(); ++i) {
        if (griglia_->record(i)->tag != id) continue;
        griglia_->setFocusedRecord(griglia_->record(i));
        return;
    }
}

void ElencoPeriodo::centraAttesa() {
    pbAttesa_->adjustSize();
    pbAttesa_->move((width() - pbAttesa_->width()) / 2, (height() - pbAttesa_->height()) / 2);
}

void ElencoPeriodo::mostraMenu() {
    QStringList voci{QStringLiteral("Nuovo")};
    const auto scelti = griglia_->selectedRecords();
    platform::ReportRecord* record = scelti.size() == 1 ? scelti.first() : nullptr;
    if (record) voci << QStringLiteral("Modifica") << QStringLiteral("Elimina") << QStringLiteral("Stampa");
    attempt([this, voci, record] {
        const QPointer<ElencoPeriodo> viva(this);
        const int scelta = runningHost().Framework().Popup(voci);
        if (!viva || (scelta > NUOVO && griglia_->focusedRecord() != record)) return;
        if (scelta == NUOVO) nuovo();
        if (scelta == MODIFICA) modifica(*record);
        if (scelta == ELIMINA) eliminaRigo(record);
        if (scelta == STAMPA) stampa(record->tag);
    });
}

// The windows of another host may not bear what a command throws.
void ElencoPeriodo::attempt(const std::function<void()>& step) {
    try {
        step();
    } catch (const std::exception& errore) {
        platform::dialogs().message(QStringLiteral("Attenzione! Operazione non riuscita!\r\nErrore: ") +
                                        QString::fromUtf8(errore.what()),
                                    platform::MB_WARNING, QString::fromUtf16(TITOLO_CORVALA));
    }
}

bool ElencoPeriodo::richiamaPaziente(const platform::ReportRecord& record) const {
    const std::unique_ptr<host::Paziente> suo = paziente(record.cell(CELLA_PAZIENTE).tag);
    return ApriPaziente(suo.get()) && idPazienteAperto() == suo->ID(); // the host may have refused
}

void ElencoPeriodo::modifica(const platform::ReportRecord& record) {
    const QString id = record.tag; // the change of patient may refill the list
    if (richiamaPaziente(record)) apri(id);
}

void ElencoPeriodo::nuovo() {
    if (SelezionaPaziente(QString(), QString())) apri(QString());
}

void ElencoPeriodo::eliminaRigo(platform::ReportRecord* record) {
    const QString id = record->tag;
    const std::unique_ptr<host::Paziente> suo = paziente(record->cell(CELLA_PAZIENTE).tag);
    const QPointer<ElencoPeriodo> viva(this);
    if (!suo || !elimina(*suo, id) || !viva) return;
    if (griglia_->focusedRecord() == record) griglia_->removeRecord(record);
}

void ElencoPeriodo::stampa(const QString&) {}
