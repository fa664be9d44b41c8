#include "treatments/frmEditRigoTrattamento.h"

#include "catalogues/clsServizi.h"
#include "catalogues/modSceltaServizio.h"
#include "catalogues/modServizi.h"
#include "chart/ToothList.h"
#include "chart/modSceltaDenti.h"
#include "host/context.h"
#include "host/contract/Host.h"
#include "host/modForm.h"
#include "platform/Dialogs.h"
#include "platform/FormLayout.h"
#include "platform/Regional.h"
#include "store/modUtenti.h"
#include "treatments/GridRow.h"
#include "treatments/StagePanel.h"
#include "treatments/clsItemRigoTrattamento.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDateEdit>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSignalBlocker>
#include <QTimer>

namespace {

constexpr int DOCTOR_KIND = 0;
constexpr int ASSISTANT_KIND = 3;
const char* const TAG = "Tag";
const QLatin1Char SEARCH_MARK('?');

} // namespace

frmEditRigoTrattamento::frmEditRigoTrattamento(QWidget* parent)
    : QDialog(parent)
    , tmCavolo_(new QTimer(this)) {
    setObjectName(QStringLiteral("frmEditRigoTrattamento"));
    setWindowTitle(TitoloForm(QStringLiteral("Dettaglio Trattamento")));
    tmCavolo_->setObjectName(QStringLiteral("tmCavolo"));
    tmCavolo_->setSingleShot(true);
    tmCavolo_->setInterval(0);
    buildFields();
    layOut();
    wire();
    showDates();
    InizializzaForm(this);
    keepGeometry(this);
}

// The field that loses the keyboard with the window has its say while the window is whole.
frmEditRigoTrattamento::~frmEditRigoTrattamento() {
    hide();
}

void frmEditRigoTrattamento::wire() {
    connect(cbAccetta_, &QPushButton::clicked, this, &frmEditRigoTrattamento::acceptRow);
    connect(cbAnnulla_, &QPushButton::clicked, this, &frmEditRigoTrattamento::reject);
    connect(search_[SEARCH_SERVICE], &QPushButton::clicked, this, &frmEditRigoTrattamento::searchService);
    connect(search_[SEARCH_TEETH], &QPushButton::clicked, this, &frmEditRigoTrattamento::chooseTeeth);
    connect(search_[SEARCH_OPERATOR], &QPushButton::clicked, this,
            [this] { chooseUser(DOCTOR_KIND, tbDati_[OPERATOR]); });
    connect(search_[SEARCH_ASSISTANT], &QPushButton::clicked, this,
            [this] { chooseUser(ASSISTANT_KIND, tbDati_[ASSISTANT]); });
    connect(tbDati_[SERVICE], &QLineEdit::textChanged, this, &frmEditRigoTrattamento::serviceChanged);
    for (QLineEdit* field : {tbDati_[SERVICE], tbDati_[DESCRIPTION]}) {
        connect(field, &QLineEdit::textEdited, this, [this](const QString& text) {
            if (text.contains(SEARCH_MARK)) tmCavolo_->start();
        });
    }
    connect(tmCavolo_, &QTimer::timeout, this, [this] {
        for (QLineEdit* field : {tbDati_[SERVICE], tbDati_[DESCRIPTION]})
            field->setText(field->text().replace(SEARCH_MARK, QLatin1Char(' ')).trimmed());
        searchService();
    });
    connect(tbDati_[TEETH], &QLineEdit::textChanged, this, &frmEditRigoTrattamento::updateTotal);
    connect(tbTotali_[0], &QLineEdit::textChanged, this, &frmEditRigoTrattamento::updateTotal);
    connect(tbDati_[SERVICE], &QLineEdit::editingFinished, this, &frmEditRigoTrattamento::serviceTyped);
    connect(tbDati_[TEETH], &QLineEdit::editingFinished, this, &frmEditRigoTrattamento::teethTyped);
    connect(tbTotali_[0], &QLineEdit::editingFinished, this, &frmEditRigoTrattamento::priceTyped);
    connect(cbDate_[0], &QCheckBox::toggled, this, [this](bool isStarted) {
        if (!isStarted) cbDate_[1]->setChecked(false); // no end without a start
        showDates();
    });
    connect(cbDate_[1], &QCheckBox::toggled, this, &frmEditRigoTrattamento::showDates);
}

// ---------------------------------------------------------------------------------------------- the row in and out

void frmEditRigoTrattamento::load(const clsItemRigoTrattamento& row) {
    service_ = serviceCode(row.servizio);
    isInvoiced_ = !row.fattura.isEmpty();
    laProgressivo_->setText(row.progressivo);
    tbDati_[SERVICE]->setText(row.servizio);
    tbDati_[DESCRIPTION]->setText(row.descrizione);
    tbDati_[OPERATOR]->setText(DescrizioneUtente(row.operatore));
    tbDati_[OPERATOR]->setProperty(TAG, row.operatore);
    tbDati_[ASSISTANT]->setText(DescrizioneUtente(row.assistente));
    tbDati_[ASSISTANT]->setProperty(TAG, row.assistente);
    tbDati_[TEETH]->setText(ToothList::fromRecord(row.dente, row.denti).selection());
    teethTyped();
    tbNote_->setPlainText(row.note);
    CaricaComboRaggrMerc(cbRaggrMerc_, row.raggruppamento);
    tbTotali_[0]->setText(row.prezzo.text());
    priceTyped();
    cbFuoriPreventivo_->setChecked(row.fuoripreventivo);
    loadDates(row);
    serviceChanged();
    noticeService();
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
    const QString written = tbDati_[SERVICE]->text();
    const QString code = serviceCode(written);
    row.servizio = code.isEmpty() ? written : code;
    row.descrizione = tbDati_[DESCRIPTION]->text();
    row.operatore = tbDati_[OPERATOR]->property(TAG).toString();
    row.assistente = tbDati_[ASSISTANT]->property(TAG).toString();
    const ToothList teeth = ToothList::fromTyped(tbDati_[TEETH]->text()).value_or(ToothList());
    row.dente = teeth.tooth();
    row.denti = teeth.toothList();
    row.note = tbNote_->toPlainText().replace(QLatin1Char('\n'), QLatin1String("\r\n"));
    // A group that the practice has since struck off its list is no line here, and stays with the row.
    if (cbRaggrMerc_->currentIndex() >= 0)
        row.raggruppamento = cbRaggrMerc_->currentText().section(QLatin1Char(' '), 0, 0);
    row.prezzo = Amount::fromText(tbTotali_[0]->text());
    row.fuoripreventivo = cbFuoriPreventivo_->isChecked();
    row.inizio = day(0);
    row.fine = day(1);
    QList<WorkStage> stages;
    for (const StagePanel* stage : pbStatus_) {
        if (stage->inUse()) stages << stage->stage();
    }
    row.statuslavori = workstages::write(stages);
}

void frmEditRigoTrattamento::setReadOnly() {
    cbAccetta_->setEnabled(false);
    cbAnnulla_->setText(QStringLiteral("Chiudi"));
}

bool frmEditRigoTrattamento::isAccepted() const {
    return laOUTB_->text() == QLatin1String("OK");
}

void frmEditRigoTrattamento::acceptRow() {
    serviceTyped();
    laOUTB_->setText(QStringLiteral("OK"));
    done(QDialog::Accepted);
}

void frmEditRigoTrattamento::reject() {
    laOUTB_->clear();
    done(QDialog::Rejected);
}

// --------------------------------------------------------------------------------------- what follows from a change

void frmEditRigoTrattamento::serviceChanged() {
    // The dates of the old service's stages go with it, on purpose.
    for (StagePanel* stage : pbStatus_)
        stage->release();
    const QStringList names = workstages::names(StatusLavoriServizio(tbDati_[SERVICE]->text()));
    for (qsizetype i = 0; i < names.size(); ++i)
        pbStatus_[static_cast<std::size_t>(i)]->use(names[i]);
    stagesArea_->setVisible(!names.isEmpty());
    const Amount listPrice = isInvoiced_ ? Amount() : PrezzoServizio(tbDati_[SERVICE]->text());
    tbTotali_[0]->setPlaceholderText(listPrice.text());
    updateTotal();
}

void frmEditRigoTrattamento::serviceTyped() {
    const QString code = serviceCode(tbDati_[SERVICE]->text());
    if (!code.isEmpty()) {
        const QSignalBlocker sameService(tbDati_[SERVICE]); // in other letters, and its stages stay
        tbDati_[SERVICE]->setText(code);
    }
    noticeService();
    if (code.isEmpty() || code == service_) return;
    if (isInvoiced_)
        service_ = code;
    else
        applyService();
}

void frmEditRigoTrattamento::noticeService() {
    const QString written = tbDati_[SERVICE]->text();
    const bool isUnknown = !written.isEmpty() && serviceCode(written).isEmpty();
    platform::form::setNotice(tbDati_[SERVICE], isUnknown ? platform::Notice::Warning : platform::Notice::None,
                              isUnknown ? QStringLiteral("Il servizio non è nel catalogo") : QString());
}

void frmEditRigoTrattamento::teethTyped() {
    const QString written = tbDati_[TEETH]->text();
    const auto read = ToothList::fromTyped(written);
    if (read && read->selection() != written) tbDati_[TEETH]->setText(read->selection());
    const QString notice = gridrow::teethNotice(read.value_or(ToothList()), written.trimmed());
    platform::form::setNotice(tbDati_[TEETH], notice.isEmpty() ? platform::Notice::None : platform::Notice::Error,
                              notice);
}

void frmEditRigoTrattamento::priceTyped() {
    const QString written = tbTotali_[0]->text();
    const bool isAmount = written.isEmpty() || platform::regional().toNumber(written);
    // A row without a price of its own has the catalogue's, which then shows through.
    if (isAmount && !isInvoiced_ && Amount::fromText(written).isZero()) tbTotali_[0]->clear();
    platform::form::setNotice(tbTotali_[0], isAmount ? platform::Notice::None : platform::Notice::Error,
                              isAmount ? QString() : QStringLiteral("Non è un importo: non verrà memorizzato"));
}

void frmEditRigoTrattamento::searchService() {
    QString code = tbDati_[SERVICE]->text();
    QString description = tbDati_[DESCRIPTION]->text();
    if (!ScegliServizio(true, code, description)) return;
    tbDati_[SERVICE]->setText(code);
    tbDati_[DESCRIPTION]->setText(description);
    applyService();
}

void frmEditRigoTrattamento::applyService() {
    const QString code = tbDati_[SERVICE]->text();
    service_ = serviceCode(code);
    noticeService();
    tbTotali_[0]->setText(PrezzoServizio(code).text());
    const clsItemServizio* service = oServizi->Carica(code);
    if (service && tbDati_[DESCRIPTION]->text().trimmed().isEmpty())
        tbDati_[DESCRIPTION]->setText(service->descrizione);
    CaricaComboRaggrMerc(cbRaggrMerc_, RaggruppamentoServizio(code));
    priceTyped();
}

void frmEditRigoTrattamento::chooseTeeth() {
    QString selection = tbDati_[TEETH]->text();
    qint16 count = 0;
    if (!ScegliDenti(selection, count)) return;
    tbDati_[TEETH]->setText(selection);
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
    const int count = ToothList::fromTyped(tbDati_[TEETH]->text()).value_or(ToothList()).factor();
    tbTotali_[1]->setText(Amount(price().wide() * count).text());
}

Amount frmEditRigoTrattamento::price() const {
    const Amount own = Amount::fromText(tbTotali_[0]->text());
    return own.isZero() && !isInvoiced_ ? PrezzoServizio(tbDati_[SERVICE]->text()) : own;
}

void frmEditRigoTrattamento::showDates() {
    const bool isStarted = cbDate_[0]->isChecked();
    dtpData_[0]->setVisible(isStarted);
    cbDate_[1]->setVisible(isStarted);
    dtpData_[1]->setVisible(cbDate_[1]->isChecked());
}

bool frmEditRigoTrattamento::eventFilter(QObject* watched, QEvent* event) {
    if (watched == tbNote_->viewport() && event->type() == QEvent::MouseButtonDblClick) {
        tbNote_->setReadOnly(!tbNote_->isReadOnly());
        QPalette colours = palette();
        if (tbNote_->isReadOnly()) colours.setColor(QPalette::Base, colours.color(QPalette::Window));
        tbNote_->setPalette(colours);
        return true;
    }
    // In the note, which has lines, Enter writes one, on purpose; Tab leaves it.
    if (event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Return || key == Qt::Key_Enter) {
            platform::form::focusNextField(static_cast<QWidget*>(watched));
            return true;
        }
    }
    return QDialog::eventFilter(watched, event);
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
