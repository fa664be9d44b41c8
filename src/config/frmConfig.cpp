#include "config/frmConfig.h"

#include "config/clsConfig.h"
#include "config/modIVA.h"
#include "config/modListaReports.h"
#include "host/context.h"
#include "host/modForm.h"
#include "platform/Dialogs.h"
#include "platform/Regional.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFontDatabase>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QStackedWidget>
#include <QTreeWidget>
#include <exception>

namespace {

constexpr int VOCE_FATTURAZIONE = 2; // among the topics

platform::Answer messaggio(const QString& testo, int valore) {
    return platform::dialogs().message(testo, valore, QString::fromUtf16(TITOLO_CORVALA));
}

float importo(const QString& testo) {
    return static_cast<float>(platform::regional().toNumber(testo).value_or(0));
}

QString comeImporto(float valore) {
    return platform::regional().format(valore, QStringLiteral("###0.00"));
}

void riformatta(QLineEdit& campo) {
    if (const float valore = importo(campo.text()); valore != 0) campo.setText(comeImporto(valore));
}

/// Nothing, or a number.
bool leggibile(const QString& testo) {
    return testo.trimmed().isEmpty() || platform::regional().toNumber(testo);
}

QString senzaZero(const QString& testo) {
    if (!leggibile(testo)) return testo; // shown as it stands, so that it is put right and not lost
    const float valore = importo(testo);
    return valore == 0 ? QString() : comeImporto(valore);
}

void scegliCarattere(QComboBox& combo, const QString& nome) {
    combo.clear();
    combo.addItems(QFontDatabase::families());
    // A font that this workstation lacks is not forgotten here: the others may have it.
    if (!nome.isEmpty() && combo.findText(nome, Qt::MatchFixedString) < 0) combo.insertItem(0, nome);
    combo.setCurrentIndex(nome.isEmpty() ? -1 : combo.findText(nome, Qt::MatchFixedString));
}

} // namespace

frmConfig::frmConfig(QWidget* parent)
    : QDialog(parent) {
    setObjectName(QStringLiteral("frmConfig"));
    setWindowTitle(TitoloForm(QStringLiteral("Configurazione")));
    costruisci();
    leggi();
    collega();
    InizializzaForm(this);
}

void frmConfig::collega() {
    for (const QLineEdit* campo : text1_)
        connect(campo, &QLineEdit::textChanged, this, &frmConfig::cambiato);
    for (QLineEdit* campo : {text1_[BOLLO], text1_[BOLLO_PLAFON]})
        connect(campo, &QLineEdit::editingFinished, this, [campo] { riformatta(*campo); });
    connect(dettagli_, &QPlainTextEdit::textChanged, this, &frmConfig::cambiato);
    for (const QComboBox* lista : {cbIVA_, cbFont_})
        connect(lista, &QComboBox::currentIndexChanged, this, &frmConfig::cambiato);
    connect(cbFont_, &QComboBox::currentIndexChanged, this, &frmConfig::mostraCarattere);
    for (const QCheckBox* casella : cbTrattamenti_)
        connect(casella, &QCheckBox::toggled, this, &frmConfig::cambiato);
    for (const QCheckBox* casella : cbOpzioni_)
        connect(casella, &QCheckBox::toggled, this, &frmConfig::cambiato);
    connect(treeView1_, &QTreeWidget::currentItemChanged, this,
            [this] { cornici_->setCurrentIndex(treeView1_->indexOfTopLevelItem(treeView1_->currentItem())); });
    connect(cbStrumenti_[IMPOSTA_REPORT], &QPushButton::clicked, this, [this] { ImpostaReport(reports_); });
    connect(cbStrumenti_[AZZERA_LOCK], &QPushButton::clicked, this, &frmConfig::azzeraLock);
    connect(cbConferma_, &QPushButton::clicked, this, &frmConfig::applica);
    connect(cbAnnulla_, &QPushButton::clicked, this, &QDialog::reject);
}

void frmConfig::showEvent(QShowEvent* event) {
    QDialog::showEvent(event);
    if (event->spontaneous()) return;
    treeView1_->setCurrentItem(treeView1_->topLevelItem(0));
    mostraCarattere();
}

void frmConfig::leggiIntestazione() {
    text1_[DESCRIZIONE]->setText(oConfig->UserTitle());
    dettagli_->setPlainText(oConfig->UserDetails());
}

void frmConfig::leggi() {
    leggiIntestazione();
    text1_[BOLLO]->setText(senzaZero(oConfig->Bollo()));
    text1_[BOLLO_PLAFON]->setText(senzaZero(oConfig->BolloPlafon()));
    CaricaComboIVA(*cbIVA_, oConfig->IVADefault());
    scegliCarattere(*cbFont_, oConfig->PrintFont());
    cbTrattamenti_[PEGGIOR_STATUS]->setChecked(oConfig->PeggiorStatusDente());
    cbTrattamenti_[UNICA_SCHEDA]->setChecked(oConfig->UnicaSchedaTrattamento());
    cbOpzioni_[RICETTE_BIANCHE]->setChecked(oConfig->DefaultRicetteBianche());
    cbOpzioni_[APPUNTI_MODALI]->setChecked(oConfig->AppuntiPazienteModali());
    cbOpzioni_[RIGO_VUOTO]->setChecked(oConfig->AutomaticoRigoVuoto());
    cbOpzioni_[UTILIZZO_MMG]->setChecked(oConfig->UtilizzoMMG());
    cbConferma_->setEnabled(false);
}

void frmConfig::cambiato() {
    cbConferma_->setEnabled(true);
}

void frmConfig::mostraCarattere() {
    const QString nome = cbFont_->currentText();
    QFont carattere = nome.isEmpty() ? font() : QFont(nome);
    carattere.setPointSizeF(font().pointSizeF() * 1.6);
    laEsempio_->setFont(carattere);
    laFontAssente_->setVisible(!nome.isEmpty() && !QFontDatabase::hasFamily(nome));
}

void frmConfig::applica() {
    if (!oConfig) return; // the host has ended the module under the window
    for (QLineEdit* campo : {text1_[BOLLO], text1_[BOLLO_PLAFON]})
        riformatta(*campo); // the button's key leaves the focus in the field
    if (!importiLeggibili()) return;
    try {
        scrivi();
        leggiIntestazione(); // a letter that the file cannot hold shows as what became of it
        cbConferma_->setEnabled(false);
    } catch (const std::exception& errore) {
        messaggio(QStringLiteral("Attenzione! Salvataggio non a buon fine!\r\n") + QString::fromUtf8(errore.what()),
                  platform::MB_CRITICAL);
    }
}

bool frmConfig::importiLeggibili() {
    const struct {
        Testo campo;
        QString nome;
    } importi[] = {{BOLLO, QStringLiteral("del bollo")},
                   {BOLLO_PLAFON, QStringLiteral("oltre cui si applica il bollo")}};
    for (const auto& [campo, nome] : importi) {
        if (leggibile(text1_[campo]->text())) continue;
        treeView1_->setCurrentItem(treeView1_->topLevelItem(VOCE_FATTURAZIONE));
        messaggio(QStringLiteral("Attenzione! L'importo %1 non è un numero: \"%2\".\r\nNessuna impostazione è stata "
                                 "salvata.")
                      .arg(nome, text1_[campo]->text()),
                  platform::MB_WARNING);
        text1_[campo]->setFocus();
        text1_[campo]->selectAll();
        return false;
    }
    return true;
}

// Each setting is in the file at once: what was written before a failure stays.
void frmConfig::scrivi() {
    oConfig->setUserTitle(text1_[DESCRIZIONE]->text());
    oConfig->setUserDetails(
        dettagli_->toPlainText().replace(QLatin1Char('\n'), QStringLiteral("\r\n"))); // as the reports expect it
    oConfig->setBollo(text1_[BOLLO]->text());
    oConfig->setBolloPlafon(text1_[BOLLO_PLAFON]->text());
    // Without a choice the file holds a code of which this configuration knows nothing.
    if (cbIVA_->currentIndex() >= 0) oConfig->setIVADefault(cbIVA_->currentData().toString());
    oConfig->setPrintFont(cbFont_->currentText());
    oConfig->setPeggiorStatusDente(cbTrattamenti_[PEGGIOR_STATUS]->isChecked());
    oConfig->setUnicaSchedaTrattamento(cbTrattamenti_[UNICA_SCHEDA]->isChecked());
    oConfig->setDefaultRicetteBianche(cbOpzioni_[RICETTE_BIANCHE]->isChecked());
    oConfig->setAppuntiPazienteModali(cbOpzioni_[APPUNTI_MODALI]->isChecked());
    oConfig->setAutomaticoRigoVuoto(cbOpzioni_[RIGO_VUOTO]->isChecked());
    oConfig->setUtilizzoMMG(cbOpzioni_[UTILIZZO_MMG]->isChecked());
}

bool frmConfig::RimuoviTuttiLock() {
    return agganci.rimuoviTuttiLock && agganci.rimuoviTuttiLock();
}

void frmConfig::azzeraLock() {
    const QString domanda = QStringLiteral("Attenzione! Vuoi davvero rimuovere eventuali file di bloccaggio presenti?");
    if (messaggio(domanda, platform::MB_QUESTION_DEFAULT_NO) != platform::Answer::Yes || !oConfig) return;
    if (RimuoviTuttiLock()) messaggio(QStringLiteral("Operazione terminata correttamente!"), platform::MB_INFORMATION);
}
