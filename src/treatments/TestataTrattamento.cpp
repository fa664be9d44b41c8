#include "treatments/TestataTrattamento.h"

#include "host/context.h"
#include "host/contract/Host.h"
#include "platform/Clock.h"
#include "platform/FormLayout.h"
#include "platform/Regional.h"
#include "store/modConversioni.h"
#include "store/modProgressivi.h"
#include "treatments/clsItemTrattamento.h"

#include <QDateEdit>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <cmath>

namespace {

enum Campo {
    ANNO = 0,
    PROGRESSIVO = 1,
    DESCRIZIONE = 2,
    ANNO_ANTICIPO = 3,
    NUMERO_ANTICIPO = 4,
    MEDICO = 11,
    NOME_MEDICO = 12
};

// Of four digits: a greater one would end the numbering of its year.
bool numerabile(double numero) {
    return numero >= 1 && numero <= 9999 && std::trunc(numero) == numero;
}

QString quattroCifre(const QString& testo) {
    const auto numero = platform::regional().toNumber(testo);
    return numero ? platform::regional().format(*numero, QStringLiteral("0000")) : testo;
}

} // namespace

TestataTrattamento::TestataTrattamento(QWidget* parent)
    : QWidget(parent) {
    dtpData_ = platform::form::dateBox(QStringLiteral("dtpData"), this);
    dtpData_->setDate(platform::today());
    nuovoCampo(ANNO, 56);
    nuovoCampo(PROGRESSIVO, 64);
    nuovoCampo(DESCRIZIONE, 0);
    nuovoCampo(ANNO_ANTICIPO, 56);
    nuovoCampo(NUMERO_ANTICIPO, 64);
    nuovoCampo(MEDICO, 160);
    nuovoCampo(NOME_MEDICO, 0);
    disponi();

    connect(campo(ANNO_ANTICIPO), &QLineEdit::textChanged, this, &TestataTrattamento::fatturaAnticipoCambiata);
    connect(campo(NUMERO_ANTICIPO), &QLineEdit::textChanged, this, &TestataTrattamento::fatturaAnticipoCambiata);
    connect(campo(NUMERO_ANTICIPO), &QLineEdit::editingFinished, this,
            [this] { campo(NUMERO_ANTICIPO)->setText(quattroCifre(campo(NUMERO_ANTICIPO)->text())); });
}

QLineEdit* TestataTrattamento::nuovoCampo(int indice, int larghezza) {
    QLineEdit* box = platform::form::textBox(platform::form::arrayName("tbDati", indice), this);
    if (larghezza > 0) box->setFixedWidth(larghezza);
    return tbDati_[static_cast<std::size_t>(indice)] = box;
}

void TestataTrattamento::disponi() {
    const auto coppia = [this](int primo, int secondo) {
        auto* scatola = new QWidget(this);
        auto* row = new QHBoxLayout(scatola);
        row->setContentsMargins(0, 0, 0, 0);
        row->addWidget(campo(primo));
        row->addWidget(new QLabel(QStringLiteral("-"), scatola));
        row->addWidget(campo(secondo));
        row->addStretch(1);
        scatola->setFocusProxy(campo(primo));
        return scatola;
    };
    const auto nomina = [this](int indice, const QString& nome) {
        campo(indice)->setAccessibleName(nome);
        campo(indice)->setToolTip(nome);
    };
    auto* medico = new QWidget(this);
    auto* rigaMedico = new QHBoxLayout(medico);
    rigaMedico->setContentsMargins(0, 0, 0, 0);
    rigaMedico->addWidget(campo(MEDICO));
    rigaMedico->addWidget(campo(NOME_MEDICO), 1);
    medico->setFocusProxy(campo(MEDICO));

    using platform::form::labelledRow;
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(10);
    labelledRow(grid, 0, 0, QStringLiteral("Numero:"), coppia(ANNO, PROGRESSIVO));
    labelledRow(grid, 0, 2, QStringLiteral("Data:"), dtpData_);
    labelledRow(grid, 0, 4, QStringLiteral("Descrizione:"), campo(DESCRIZIONE));
    labelledRow(grid, 1, 0, QStringLiteral("Fattura anticipo:"), coppia(ANNO_ANTICIPO, NUMERO_ANTICIPO), 3);
    labelledRow(grid, 1, 4, QStringLiteral("Medico:"), medico);
    grid->setColumnStretch(5, 1);
    nomina(ANNO, QStringLiteral("Anno"));
    nomina(PROGRESSIVO, QStringLiteral("Progressivo"));
    nomina(ANNO_ANTICIPO, QStringLiteral("Anno della fattura di anticipo"));
    nomina(NUMERO_ANTICIPO, QStringLiteral("Numero della fattura di anticipo"));
    nomina(MEDICO, QStringLiteral("Codice fiscale del medico"));
    nomina(NOME_MEDICO, QStringLiteral("Nome del medico"));

    QWidget* precedente = campo(ANNO);
    for (QWidget* prossimo : {static_cast<QWidget*>(campo(PROGRESSIVO)), static_cast<QWidget*>(dtpData_),
                              static_cast<QWidget*>(campo(DESCRIZIONE)), static_cast<QWidget*>(campo(ANNO_ANTICIPO)),
                              static_cast<QWidget*>(campo(NUMERO_ANTICIPO)), static_cast<QWidget*>(campo(MEDICO)),
                              static_cast<QWidget*>(campo(NOME_MEDICO))}) {
        setTabOrder(precedente, prossimo);
        precedente = prossimo;
    }
}

void TestataTrattamento::carica(const clsItemTrattamento& item) {
    campo(ANNO)->setText(item.anno);
    campo(PROGRESSIVO)->setText(item.progressivo);
    campo(ANNO)->setEnabled(false);
    campo(PROGRESSIVO)->setEnabled(false);
    campo(DESCRIZIONE)->setText(item.descrizione);
    const QStringList anticipo = item.fatturaAnticipo.split(QLatin1Char('-'));
    if (anticipo.size() > 1) {
        campo(ANNO_ANTICIPO)->setText(anticipo[0]);
        campo(NUMERO_ANTICIPO)->setText(anticipo[1]);
    }
    campo(MEDICO)->setText(item.medico);
    campo(NOME_MEDICO)->setText(item.descrizionemedico);
    if (const auto giorno = platform::regional().toDate(item.Data)) dtpData_->setDate(*giorno);
}

void TestataTrattamento::prepara() {
    const QString annoCorrente = QString::number(platform::today().year());
    campo(ANNO)->setText(annoCorrente);
    campo(PROGRESSIVO)->setText(ProssimoProgressivo(QStringLiteral("TRT"), annoCorrente));
    const host::Paziente* paziente = PazienteAperto();
    if (!paziente) return;
    const host::Medico medico = paziente->medico();
    campo(MEDICO)->setText(medico.codicefiscale);
    if (medico.Cognome.isEmpty() && medico.Nome.isEmpty()) return; // a patient without a doctor
    campo(NOME_MEDICO)->setText(medico.Cognome + QStringLiteral(" dott. ") + medico.Nome);
}

std::optional<TestataTrattamento::Mancanza> TestataTrattamento::verifica() {
    if (anno().isEmpty()) return Mancanza{QStringLiteral("Attenzione! Anno di riferimento mancante"), campo(ANNO)};
    if (progressivo().isEmpty())
        return Mancanza{QStringLiteral("Attenzione! Progressivo mancante"), campo(PROGRESSIVO)};
    // A number that is stored already stays as it is, whatever earlier versions let through.
    const bool nuovo = campo(ANNO)->isEnabled();
    if (!platform::regional().toDate(QStringLiteral("01/01/") + anno()) || (nuovo && anno().size() != 4))
        return Mancanza{QStringLiteral("Attenzione! Anno di riferimento errato!"), campo(ANNO)};
    const auto numero = platform::regional().toNumber(progressivo());
    if (!numero || (nuovo && !numerabile(*numero)))
        return Mancanza{QStringLiteral("Attenzione! Progressivo di riferimento errato!"), campo(PROGRESSIVO)};
    setProgressivo(quattroCifre(progressivo()));
    return std::nullopt;
}

QString TestataTrattamento::anno() const {
    return campo(ANNO)->text().trimmed();
}

QString TestataTrattamento::progressivo() const {
    return campo(PROGRESSIVO)->text().trimmed();
}

QString TestataTrattamento::data() const {
    return platform::regional().shortDate(dtpData_->date());
}

void TestataTrattamento::setProgressivo(const QString& progressivo) {
    campo(PROGRESSIVO)->setText(progressivo);
}

QString TestataTrattamento::fatturaAnticipo() const {
    const QString annoAnticipo = campo(ANNO_ANTICIPO)->text().trimmed();
    const QString numero = campo(NUMERO_ANTICIPO)->text().trimmed();
    if (annoAnticipo.isEmpty() || numero.isEmpty()) return {};
    return QString::number(CastLong(annoAnticipo)) + QLatin1Char('-') + quattroCifre(numero);
}

QString TestataTrattamento::fatturaAnticipoScritta() const {
    const QString annoAnticipo = campo(ANNO_ANTICIPO)->text().trimmed();
    const QString numero = campo(NUMERO_ANTICIPO)->text().trimmed();
    if (annoAnticipo.isEmpty() || numero.isEmpty()) return {};
    return annoAnticipo + QLatin1Char('-') + numero;
}

void TestataTrattamento::scrivi(clsItemTrattamento& item) const {
    item.anno = anno();
    item.progressivo = progressivo();
    item.Data = data();
    item.descrizione = campo(DESCRIZIONE)->text();
    item.medico = campo(MEDICO)->text();
    item.descrizionemedico = campo(NOME_MEDICO)->text();
    item.fatturaAnticipo = fatturaAnticipo();
    const host::Paziente* paziente = PazienteAperto();
    if (!paziente) return;
    item.cliente = paziente->codicefiscale();
    item.descrizionecliente = paziente->Cognome() + QLatin1Char(' ') + paziente->Nome();
}
