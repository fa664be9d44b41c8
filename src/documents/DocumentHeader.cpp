#include "documents/DocumentHeader.h"

#include "host/context.h"
#include "host/contract/Host.h"
#include "platform/Clock.h"
#include "platform/FormLayout.h"
#include "platform/Regional.h"
#include "store/modProgressivi.h"
#include "store/modWorkspace.h"

#include <QComboBox>
#include <QDateEdit>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>

using platform::form::labelledRow;

DocumentHeader::DocumentHeader(const QString& t1, QWidget* parent)
    : QWidget(parent)
    , t1_(t1)
    , grid_(new QGridLayout(this)) {
    grid_->setContentsMargins(0, 0, 0, 0);
    grid_->setHorizontalSpacing(10);
    QLineEdit* year = newField(YEAR, 56, QStringLiteral("Anno"));
    QWidget* number = pair(year, newField(PROGRESSIVE, 64, QStringLiteral("Progressivo")));
    numberRow_ = static_cast<QHBoxLayout*>(number->layout());
    labelledRow(grid_, 0, 0, QStringLiteral("Numero:"), number);
    dtpData_ = platform::form::dateBox(QStringLiteral("dtpData"), this);
    dtpData_->setDate(platform::today());
    labelledRow(grid_, 0, 2, QStringLiteral("Data:"), dtpData_);
    labelledRow(grid_, 0, 4, QStringLiteral("Descrizione:"), newField(DESCRIPTION, 0, QString()));
    grid_->setColumnStretch(5, 1);
}

QLineEdit* DocumentHeader::newField(int index, int width, const QString& name) {
    QLineEdit* box = platform::form::textBox(platform::form::arrayName("tbDati", index), this);
    if (width > 0) box->setFixedWidth(width);
    if (!name.isEmpty()) {
        box->setAccessibleName(name);
        box->setToolTip(name);
    }
    return tbDati_[static_cast<std::size_t>(index)] = box;
}

QWidget* DocumentHeader::pair(QLineEdit* first, QLineEdit* second) {
    auto* box = new QWidget(this);
    auto* row = new QHBoxLayout(box);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(first);
    row->addWidget(new QLabel(QStringLiteral("-"), box));
    row->addWidget(second);
    row->addStretch(1);
    box->setFocusProxy(first);
    return box;
}

void DocumentHeader::addSuffixes() {
    cbBisTris_ = platform::form::named(new QComboBox(this), QStringLiteral("cbBisTris"));
    cbBisTris_->setAccessibleName(QStringLiteral("Suffisso del progressivo"));
    cbBisTris_->addItem(QString());
    cbBisTris_->addItems(RecordNumber::suffixes());
    numberRow_->insertWidget(numberRow_->count() - 1, cbBisTris_);
    setTabOrder(field(PROGRESSIVE), cbBisTris_);
}

void DocumentHeader::addDoctor(int row, int column, int codeField, int nameField) {
    doctor_ = newField(codeField, 160, QStringLiteral("Codice fiscale del medico"));
    doctorName_ = newField(nameField, 0, QStringLiteral("Nome del medico"));
    auto* box = new QWidget(this);
    auto* fields = new QHBoxLayout(box);
    fields->setContentsMargins(0, 0, 0, 0);
    fields->addWidget(doctor_);
    fields->addWidget(doctorName_, 1);
    box->setFocusProxy(doctor_);
    labelledRow(grid_, row, column, QStringLiteral("Medico:"), box);
}

void DocumentHeader::load(const WorkspaceItem& item) {
    fixNumber(item.number());
    field(DESCRIPTION)->setText(item.descrizione);
    if (const auto day = platform::regional().toDate(item.Data)) dtpData_->setDate(*day);
}

void DocumentHeader::prepare() {
    const QString year = QString::number(platform::today().year());
    field(YEAR)->setText(year);
    field(PROGRESSIVE)->setText(ProssimoProgressivo(t1_, year));
    const host::Paziente* patient = currentPatient();
    if (!patient || !doctor_) return;
    const host::Medico own = patient->medico();
    const bool isNamed = !own.Cognome.isEmpty() || !own.Nome.isEmpty();
    setDoctor(own.codicefiscale, isNamed ? own.Cognome + QStringLiteral(" dott. ") + own.Nome : QString());
}

bool DocumentHeader::isNew() const {
    return field(YEAR)->isEnabled();
}

std::optional<DocumentHeader::Missing> DocumentHeader::check() {
    const RecordNumber typed = number();
    if (typed.year.isEmpty()) return Missing{QStringLiteral("Attenzione! Anno di riferimento mancante"), field(YEAR)};
    if (typed.progressive.isEmpty())
        return Missing{QStringLiteral("Attenzione! Progressivo mancante"), field(PROGRESSIVE)};
    // A number that is stored already stays as it is, whatever earlier versions let through.
    if (!platform::regional().toDate(QStringLiteral("01/01/") + typed.year) || (isNew() && typed.year.size() != 4))
        return Missing{QStringLiteral("Attenzione! Anno di riferimento errato!"), field(YEAR)};
    const bool isNumber = platform::regional().toNumber(typed.progressive).has_value();
    if (!isNumber || (isNew() && !RecordNumber::mayBeNew(typed.progressive)))
        return Missing{QStringLiteral("Attenzione! Progressivo di riferimento errato!"), field(PROGRESSIVE)};
    field(PROGRESSIVE)->setText(RecordNumber::fourDigits(typed.progressive));
    return std::nullopt;
}

void DocumentHeader::write(WorkspaceItem& item) const {
    item.setNumber(number());
    item.Data = date();
    item.descrizione = field(DESCRIPTION)->text();
}

RecordNumber DocumentHeader::number() const {
    return {field(YEAR)->text().trimmed(), field(PROGRESSIVE)->text().trimmed(),
            cbBisTris_ ? cbBisTris_->currentText() : suffix_};
}

void DocumentHeader::fixNumber(const RecordNumber& number) {
    field(YEAR)->setText(number.year);
    field(PROGRESSIVE)->setText(number.progressive);
    field(YEAR)->setEnabled(false);
    field(PROGRESSIVE)->setEnabled(false);
    suffix_ = number.suffix;
    if (!cbBisTris_) return;
    cbBisTris_->setCurrentText(number.suffix);
    cbBisTris_->setEnabled(false);
}

QString DocumentHeader::date() const {
    return platform::regional().shortDate(dtpData_->date());
}

void DocumentHeader::setDoctor(const QString& taxCode, const QString& name) {
    doctor_->setText(taxCode);
    doctorName_->setText(name);
}

QString DocumentHeader::doctor() const {
    return doctor_ ? doctor_->text() : QString();
}

QString DocumentHeader::doctorName() const {
    return doctorName_ ? doctorName_->text() : QString();
}
