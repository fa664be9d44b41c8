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

constexpr int INVOICING_TOPIC = 2; // among the topics

platform::Answer message(const QString& text, int value) {
    return platform::dialogs().message(text, value, QString::fromUtf16(CORVALA_TITLE));
}

float amount(const QString& text) {
    return static_cast<float>(platform::regional().toNumber(text).value_or(0));
}

QString asAmount(float value) {
    return platform::regional().format(value, QStringLiteral("###0.00"));
}

void reformat(QLineEdit& field) {
    if (const float value = amount(field.text()); value != 0) field.setText(asAmount(value));
}

/// Nothing, or a number.
bool isReadable(const QString& text) {
    return text.trimmed().isEmpty() || platform::regional().toNumber(text);
}

QString withoutZero(const QString& text) {
    if (!isReadable(text)) return text; // shown as it stands, so that it is put right and not lost
    const float value = amount(text);
    return value == 0 ? QString() : asAmount(value);
}

void chooseFont(QComboBox& combo, const QString& name) {
    combo.clear();
    combo.addItems(QFontDatabase::families());
    // A font that this workstation lacks is not forgotten here: the others may have it.
    if (!name.isEmpty() && combo.findText(name, Qt::MatchFixedString) < 0) combo.insertItem(0, name);
    combo.setCurrentIndex(name.isEmpty() ? -1 : combo.findText(name, Qt::MatchFixedString));
}

} // namespace

frmConfig::frmConfig(QWidget* parent)
    : QDialog(parent) {
    setObjectName(QStringLiteral("frmConfig"));
    setWindowTitle(TitoloForm(QStringLiteral("Configurazione")));
    build();
    read();
    wire();
    InizializzaForm(this);
}

void frmConfig::wire() {
    for (const QLineEdit* field : text1_)
        connect(field, &QLineEdit::textChanged, this, &frmConfig::changed);
    for (QLineEdit* field : {text1_[STAMP_DUTY], text1_[STAMP_DUTY_FROM]})
        connect(field, &QLineEdit::editingFinished, this, [field] { reformat(*field); });
    connect(details_, &QPlainTextEdit::textChanged, this, &frmConfig::changed);
    for (const QComboBox* list : {cbIVA_, cbFont_})
        connect(list, &QComboBox::currentIndexChanged, this, &frmConfig::changed);
    connect(cbFont_, &QComboBox::currentIndexChanged, this, &frmConfig::showFont);
    for (const QCheckBox* box : cbTrattamenti_)
        connect(box, &QCheckBox::toggled, this, &frmConfig::changed);
    for (const QCheckBox* box : cbOpzioni_)
        connect(box, &QCheckBox::toggled, this, &frmConfig::changed);
    connect(treeView1_, &QTreeWidget::currentItemChanged, this,
            [this] { frames_->setCurrentIndex(treeView1_->indexOfTopLevelItem(treeView1_->currentItem())); });
    connect(cbStrumenti_[ASSIGN_REPORTS], &QPushButton::clicked, this, [this] { assignReports(reports_); });
    connect(cbStrumenti_[CLEAR_LOCKS], &QPushButton::clicked, this, &frmConfig::clearLocks);
    connect(cbConferma_, &QPushButton::clicked, this, &frmConfig::apply);
    connect(cbAnnulla_, &QPushButton::clicked, this, &QDialog::reject);
}

void frmConfig::showEvent(QShowEvent* event) {
    QDialog::showEvent(event);
    if (event->spontaneous()) return;
    treeView1_->setCurrentItem(treeView1_->topLevelItem(0));
    showFont();
}

void frmConfig::readHeading() {
    text1_[DESCRIPTION]->setText(oConfig->UserTitle());
    details_->setPlainText(oConfig->UserDetails());
}

void frmConfig::read() {
    readHeading();
    text1_[STAMP_DUTY]->setText(withoutZero(oConfig->Bollo()));
    text1_[STAMP_DUTY_FROM]->setText(withoutZero(oConfig->BolloPlafon()));
    CaricaComboIVA(*cbIVA_, oConfig->IVADefault());
    chooseFont(*cbFont_, oConfig->PrintFont());
    cbTrattamenti_[WORST_STATUS]->setChecked(oConfig->PeggiorStatusDente());
    cbTrattamenti_[SINGLE_SHEET]->setChecked(oConfig->UnicaSchedaTrattamento());
    cbOpzioni_[WHITE_FORMS]->setChecked(oConfig->DefaultRicetteBianche());
    cbOpzioni_[MODAL_NOTES]->setChecked(oConfig->AppuntiPazienteModali());
    cbOpzioni_[EMPTY_ROW]->setChecked(oConfig->AutomaticoRigoVuoto());
    cbOpzioni_[GP_USE]->setChecked(oConfig->UtilizzoMMG());
    cbConferma_->setEnabled(false);
}

void frmConfig::changed() {
    cbConferma_->setEnabled(true);
}

void frmConfig::showFont() {
    const QString name = cbFont_->currentText();
    QFont sample = name.isEmpty() ? font() : QFont(name);
    sample.setPointSizeF(font().pointSizeF() * 1.6);
    laEsempio_->setFont(sample);
    laFontAssente_->setVisible(!name.isEmpty() && !QFontDatabase::hasFamily(name));
}

void frmConfig::apply() {
    if (!oConfig) return; // the host has ended the module under the window
    for (QLineEdit* field : {text1_[STAMP_DUTY], text1_[STAMP_DUTY_FROM]})
        reformat(*field); // the button's key leaves the focus in the field
    if (!amountsAreReadable()) return;
    try {
        write();
        readHeading(); // a letter that the file cannot hold shows as what became of it
        cbConferma_->setEnabled(false);
    } catch (const std::exception& error) {
        message(QStringLiteral("Attenzione! Salvataggio non a buon fine!\r\n") + QString::fromUtf8(error.what()),
                platform::MB_CRITICAL);
    }
}

bool frmConfig::amountsAreReadable() {
    const struct {
        Text field;
        QString name;
    } amounts[] = {{STAMP_DUTY, QStringLiteral("del bollo")},
                   {STAMP_DUTY_FROM, QStringLiteral("oltre cui si applica il bollo")}};
    for (const auto& [field, name] : amounts) {
        if (isReadable(text1_[field]->text())) continue;
        treeView1_->setCurrentItem(treeView1_->topLevelItem(INVOICING_TOPIC));
        message(QStringLiteral("Attenzione! L'importo %1 non è un numero: \"%2\".\r\nNessuna impostazione è stata "
                               "salvata.")
                    .arg(name, text1_[field]->text()),
                platform::MB_WARNING);
        text1_[field]->setFocus();
        text1_[field]->selectAll();
        return false;
    }
    return true;
}

// Each setting is in the file at once: what was written before a failure stays.
void frmConfig::write() {
    oConfig->setUserTitle(text1_[DESCRIPTION]->text());
    oConfig->setUserDetails(
        details_->toPlainText().replace(QLatin1Char('\n'), QStringLiteral("\r\n"))); // as the reports expect it
    oConfig->setBollo(text1_[STAMP_DUTY]->text());
    oConfig->setBolloPlafon(text1_[STAMP_DUTY_FROM]->text());
    // Without a choice the file holds a code of which this configuration knows nothing.
    if (cbIVA_->currentIndex() >= 0) oConfig->setIVADefault(cbIVA_->currentData().toString());
    oConfig->setPrintFont(cbFont_->currentText());
    oConfig->setPeggiorStatusDente(cbTrattamenti_[WORST_STATUS]->isChecked());
    oConfig->setUnicaSchedaTrattamento(cbTrattamenti_[SINGLE_SHEET]->isChecked());
    oConfig->setDefaultRicetteBianche(cbOpzioni_[WHITE_FORMS]->isChecked());
    oConfig->setAppuntiPazienteModali(cbOpzioni_[MODAL_NOTES]->isChecked());
    oConfig->setAutomaticoRigoVuoto(cbOpzioni_[EMPTY_ROW]->isChecked());
    oConfig->setUtilizzoMMG(cbOpzioni_[GP_USE]->isChecked());
}

bool frmConfig::RimuoviTuttiLock() {
    return hooks.removeAllLocks && hooks.removeAllLocks();
}

void frmConfig::clearLocks() {
    const QString question =
        QStringLiteral("Attenzione! Vuoi davvero rimuovere eventuali file di bloccaggio presenti?");
    if (message(question, platform::MB_QUESTION_DEFAULT_NO) != platform::Answer::Yes || !oConfig) return;
    if (RimuoviTuttiLock()) message(QStringLiteral("Operazione terminata correttamente!"), platform::MB_INFORMATION);
}
