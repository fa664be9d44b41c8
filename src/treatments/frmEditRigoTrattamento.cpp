#include "treatments/frmEditRigoTrattamento.h"

#include "catalogues/modSceltaServizio.h"
#include "catalogues/modServizi.h"
#include "chart/ToothList.h"
#include "chart/modSceltaDenti.h"
#include "documents/CellNotice.h"
#include "host/contract/Host.h"
#include "host/modForm.h"
#include "platform/Dialogs.h"
#include "platform/FormLayout.h"
#include "platform/Regional.h"
#include "store/modUtenti.h"
#include "treatments/StagePanel.h"
#include "treatments/clsItemRigoTrattamento.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDateEdit>
#include <QEvent>
#include <QGroupBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>

namespace {

constexpr int DOCTOR_KIND = 0;
constexpr int ASSISTANT_KIND = 3;
const char* const TAG = "Tag";

} // namespace

frmEditRigoTrattamento::frmEditRigoTrattamento(QWidget* parent)
    : RowDialog(QStringLiteral("frmEditRigoTrattamento"), QStringLiteral("Dettaglio Trattamento"),
                {2, QStringLiteral("tbTotali(0)")}, parent) {
    buildFields();
    layOut();
    wire();
    showDates();
    InizializzaForm(this);
    keepGeometry(this);
}

frmEditRigoTrattamento::~frmEditRigoTrattamento() {
    hide();
}

void frmEditRigoTrattamento::wire() {
    connect(cbFndDente_, &QPushButton::clicked, this, &frmEditRigoTrattamento::chooseTeeth);
    connect(cbFndOperatore_, &QPushButton::clicked, this, [this] { chooseUser(DOCTOR_KIND, operator_); });
    connect(cbFndAssistente_, &QPushButton::clicked, this, [this] { chooseUser(ASSISTANT_KIND, assistant_); });
    connect(teeth_, &QLineEdit::textChanged, this, &frmEditRigoTrattamento::updateTotal);
    connect(price(), &QLineEdit::textChanged, this, &frmEditRigoTrattamento::updateTotal);
    connect(teeth_, &QLineEdit::editingFinished, this, &frmEditRigoTrattamento::teethTyped);
    connect(cbDate_[0], &QCheckBox::toggled, this, [this](bool isStarted) {
        if (!isStarted) cbDate_[1]->setChecked(false); // no end without a start
        showDates();
    });
    connect(cbDate_[1], &QCheckBox::toggled, this, &frmEditRigoTrattamento::showDates);
}

// ---------------------------------------------------------------------------------------------- the row in and out

void frmEditRigoTrattamento::load(const clsItemRigoTrattamento& row) {
    isInvoiced_ = !row.fattura.isEmpty();
    loadService(row.progressivo, row.servizio, row.descrizione);
    operator_->setText(DescrizioneUtente(row.operatore));
    operator_->setProperty(TAG, row.operatore);
    assistant_->setText(DescrizioneUtente(row.assistente));
    assistant_->setProperty(TAG, row.assistente);
    teeth_->setText(ToothList::fromRecord(row.dente, row.denti).selection());
    teethTyped();
    tbNote_->setPlainText(row.note);
    CaricaComboRaggrMerc(cbRaggrMerc_, row.raggruppamento);
    price()->setText(row.prezzo.text());
    priceTyped();
    cbFuoriPreventivo_->setChecked(row.fuoripreventivo);
    loadDates(row);
    codeChanged();
    const QList<WorkStage> stages = workstages::read(row.statuslavori);
    for (std::size_t i = 0; i < pbStatus_.size() && static_cast<qsizetype>(i) < stages.size(); ++i)
        pbStatus_[i]->setDate(stages[static_cast<qsizetype>(i)]);
    updateTotal();
}

void frmEditRigoTrattamento::loadDates(const clsItemRigoTrattamento& row) {
    const std::array<QString, 2> date{row.inizio, row.fine};
    for (std::size_t i = 0; i < date.size(); ++i) {
        const auto day = platform::regional().toDate(date[i]);
        if (day) dtpData_[i]->setDate(*day);
        cbDate_[i]->setChecked(day.has_value());
    }
    showDates();
}

void frmEditRigoTrattamento::write(clsItemRigoTrattamento& row) const {
    const auto day = [this](std::size_t i) {
        return cbDate_[i]->isChecked() ? platform::regional().shortDate(dtpData_[i]->date()) : QString();
    };
    row.servizio = service();
    row.descrizione = description()->text();
    row.operatore = operator_->property(TAG).toString();
    row.assistente = assistant_->property(TAG).toString();
    const ToothList teeth = ToothList::fromTyped(teeth_->text()).value_or(ToothList());
    row.dente = teeth.tooth();
    row.denti = teeth.toothList();
    row.note = tbNote_->toPlainText().replace(QLatin1Char('\n'), QLatin1String("\r\n"));
    // A group that the practice has since struck off its list is no line here, and stays with the row.
    if (cbRaggrMerc_->currentIndex() >= 0)
        row.raggruppamento = cbRaggrMerc_->currentText().section(QLatin1Char(' '), 0, 0);
    row.prezzo = Amount::fromText(price()->text());
    row.fuoripreventivo = cbFuoriPreventivo_->isChecked();
    row.inizio = day(0);
    row.fine = day(1);
    QList<WorkStage> stages;
    for (const StagePanel* stage : pbStatus_) {
        if (stage->inUse()) stages << stage->stage();
    }
    row.statuslavori = workstages::write(stages);
}

// --------------------------------------------------------------------------------------- what follows from a change

void frmEditRigoTrattamento::codeChanged() {
    // The dates of the old service's stages go with it, on purpose.
    for (StagePanel* stage : pbStatus_)
        stage->release();
    const QStringList names = workstages::names(StatusLavoriServizio(code()->text()));
    for (qsizetype i = 0; i < names.size(); ++i)
        pbStatus_[static_cast<std::size_t>(i)]->use(names[i]);
    stagesArea_->setVisible(!names.isEmpty());
    const Amount listPrice = isInvoiced_ ? Amount() : PrezzoServizio(code()->text());
    price()->setPlaceholderText(listPrice.text());
    updateTotal();
}

// What an invoice has billed keeps its price.
void frmEditRigoTrattamento::serviceTyped() {
    if (!isInvoiced_) takeService();
}

void frmEditRigoTrattamento::applyService(const QString& serviceCode) {
    price()->setText(PrezzoServizio(serviceCode).text());
    CaricaComboRaggrMerc(cbRaggrMerc_, RaggruppamentoServizio(serviceCode));
    priceTyped();
}

void frmEditRigoTrattamento::teethTyped() {
    const QString written = teeth_->text();
    const auto read = ToothList::fromTyped(written);
    if (read && read->selection() != written) teeth_->setText(read->selection());
    const CellNotice notice = noticeOfTeeth(read.value_or(ToothList()), read ? QString() : written);
    platform::form::setNotice(teeth_, notice.kind, notice.text);
}

void frmEditRigoTrattamento::priceTyped() {
    RowDialog::priceTyped();
    // A row without a price of its own has the catalogue's, which then shows through.
    const bool isAmount = platform::regional().toNumber(price()->text()).has_value();
    if (isAmount && !isInvoiced_ && Amount::fromText(price()->text()).isZero()) price()->clear();
}

void frmEditRigoTrattamento::chooseTeeth() {
    QString selection = teeth_->text();
    qint16 count = 0;
    if (!ScegliDenti(selection, count)) return;
    teeth_->setText(selection);
    teethTyped();
}

// miOperatori and miAssistenti: one entry per user of that kind who is still in the practice.
void frmEditRigoTrattamento::chooseUser(int kind, QLineEdit* field) {
    QList<platform::MenuEntry> entries;
    QStringList codes;
    for (const host::VoceUtente& user : usersToChooseFrom(kind)) {
        entries << platform::MenuEntry{displayName(user), true};
        codes << user.codicefiscale;
    }
    const int choice = platform::dialogs().popup(entries);
    if (choice < 0 || choice >= codes.size()) return;
    field->setText(entries[choice].caption);
    field->setProperty(TAG, codes[choice]);
}

void frmEditRigoTrattamento::updateTotal() {
    const int count = ToothList::fromTyped(teeth_->text()).value_or(ToothList()).factor();
    total_->setText(Amount(unitPrice().wide() * count).text());
}

Amount frmEditRigoTrattamento::unitPrice() const {
    const Amount own = Amount::fromText(price()->text());
    return own.isZero() && !isInvoiced_ ? PrezzoServizio(code()->text()) : own;
}

void frmEditRigoTrattamento::showDates() {
    const bool isStarted = cbDate_[0]->isChecked();
    dtpData_[0]->setVisible(isStarted);
    cbDate_[1]->setVisible(isStarted);
    dtpData_[1]->setVisible(cbDate_[1]->isChecked());
}

bool frmEditRigoTrattamento::eventFilter(QObject* watched, QEvent* event) {
    // In the note, which has lines, Enter writes one, on purpose; Tab leaves it.
    if (!tbNote_ || watched != tbNote_->viewport()) return RowDialog::eventFilter(watched, event);
    if (event->type() != QEvent::MouseButtonDblClick) return false;
    tbNote_->setReadOnly(!tbNote_->isReadOnly());
    QPalette colours = palette();
    if (tbNote_->isReadOnly()) colours.setColor(QPalette::Base, colours.color(QPalette::Window));
    tbNote_->setPalette(colours);
    return true;
}

bool ModificaRigoTrattamento(clsItemRigoTrattamento& row, bool readOnly, QWidget* parent) {
    frmEditRigoTrattamento editor(parent);
    editor.load(row);
    if (readOnly) editor.setReadOnly();
    editor.exec();
    if (!editor.isAccepted()) return false;
    editor.write(row);
    return true;
}
