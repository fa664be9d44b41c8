#include "treatments/TreatmentHeader.h"

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

namespace {

enum Field {
    YEAR = 0,
    PROGRESSIVE = 1,
    DESCRIPTION = 2,
    ADVANCE_YEAR = 3,
    ADVANCE_NUMBER = 4,
    DOCTOR = 11,
    DOCTOR_NAME = 12
};

} // namespace

TreatmentHeader::TreatmentHeader(QWidget* parent)
    : QWidget(parent) {
    dtpData_ = platform::form::dateBox(QStringLiteral("dtpData"), this);
    dtpData_->setDate(platform::today());
    newField(YEAR, 56);
    newField(PROGRESSIVE, 64);
    newField(DESCRIPTION, 0);
    newField(ADVANCE_YEAR, 56);
    newField(ADVANCE_NUMBER, 64);
    newField(DOCTOR, 160);
    newField(DOCTOR_NAME, 0);
    layOut();

    connect(field(ADVANCE_YEAR), &QLineEdit::textChanged, this, &TreatmentHeader::advanceInvoiceChanged);
    connect(field(ADVANCE_NUMBER), &QLineEdit::textChanged, this, &TreatmentHeader::advanceInvoiceChanged);
    connect(field(ADVANCE_NUMBER), &QLineEdit::editingFinished, this,
            [this] { field(ADVANCE_NUMBER)->setText(RecordNumber::fourDigits(field(ADVANCE_NUMBER)->text())); });
}

QLineEdit* TreatmentHeader::newField(int index, int width) {
    QLineEdit* box = platform::form::textBox(platform::form::arrayName("tbDati", index), this);
    if (width > 0) box->setFixedWidth(width);
    return tbDati_[static_cast<std::size_t>(index)] = box;
}

void TreatmentHeader::layOut() {
    const auto pair = [this](int first, int second) {
        auto* box = new QWidget(this);
        auto* row = new QHBoxLayout(box);
        row->setContentsMargins(0, 0, 0, 0);
        row->addWidget(field(first));
        row->addWidget(new QLabel(QStringLiteral("-"), box));
        row->addWidget(field(second));
        row->addStretch(1);
        box->setFocusProxy(field(first));
        return box;
    };
    const auto nameField = [this](int index, const QString& name) {
        field(index)->setAccessibleName(name);
        field(index)->setToolTip(name);
    };
    auto* doctor = new QWidget(this);
    auto* doctorRow = new QHBoxLayout(doctor);
    doctorRow->setContentsMargins(0, 0, 0, 0);
    doctorRow->addWidget(field(DOCTOR));
    doctorRow->addWidget(field(DOCTOR_NAME), 1);
    doctor->setFocusProxy(field(DOCTOR));

    using platform::form::labelledRow;
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(10);
    labelledRow(grid, 0, 0, QStringLiteral("Numero:"), pair(YEAR, PROGRESSIVE));
    labelledRow(grid, 0, 2, QStringLiteral("Data:"), dtpData_);
    labelledRow(grid, 0, 4, QStringLiteral("Descrizione:"), field(DESCRIPTION));
    labelledRow(grid, 1, 0, QStringLiteral("Fattura anticipo:"), pair(ADVANCE_YEAR, ADVANCE_NUMBER), 3);
    labelledRow(grid, 1, 4, QStringLiteral("Medico:"), doctor);
    grid->setColumnStretch(5, 1);
    nameField(YEAR, QStringLiteral("Anno"));
    nameField(PROGRESSIVE, QStringLiteral("Progressivo"));
    nameField(ADVANCE_YEAR, QStringLiteral("Anno della fattura di anticipo"));
    nameField(ADVANCE_NUMBER, QStringLiteral("Numero della fattura di anticipo"));
    nameField(DOCTOR, QStringLiteral("Codice fiscale del medico"));
    nameField(DOCTOR_NAME, QStringLiteral("Nome del medico"));

    QWidget* previous = field(YEAR);
    for (QWidget* next : {static_cast<QWidget*>(field(PROGRESSIVE)), static_cast<QWidget*>(dtpData_),
                          static_cast<QWidget*>(field(DESCRIPTION)), static_cast<QWidget*>(field(ADVANCE_YEAR)),
                          static_cast<QWidget*>(field(ADVANCE_NUMBER)), static_cast<QWidget*>(field(DOCTOR)),
                          static_cast<QWidget*>(field(DOCTOR_NAME))}) {
        setTabOrder(previous, next);
        previous = next;
    }
}

void TreatmentHeader::load(const clsItemTrattamento& item) {
    field(YEAR)->setText(item.anno);
    field(PROGRESSIVE)->setText(item.progressivo);
    field(YEAR)->setEnabled(false);
    field(PROGRESSIVE)->setEnabled(false);
    field(DESCRIPTION)->setText(item.descrizione);
    const RecordNumber advance = RecordNumber::parseReference(item.fatturaAnticipo);
    field(ADVANCE_YEAR)->setText(advance.year);
    field(ADVANCE_NUMBER)->setText(advance.progressivo());
    field(DOCTOR)->setText(item.medico);
    field(DOCTOR_NAME)->setText(item.descrizionemedico);
    if (const auto day = platform::regional().toDate(item.Data)) dtpData_->setDate(*day);
}

void TreatmentHeader::prepare() {
    const QString currentYear = QString::number(platform::today().year());
    field(YEAR)->setText(currentYear);
    field(PROGRESSIVE)->setText(ProssimoProgressivo(QStringLiteral("TRT"), currentYear));
    const host::Paziente* patient = currentPatient();
    if (!patient) return;
    const host::Medico doctor = patient->medico();
    field(DOCTOR)->setText(doctor.codicefiscale);
    if (doctor.Cognome.isEmpty() && doctor.Nome.isEmpty()) return; // a patient without a doctor
    field(DOCTOR_NAME)->setText(doctor.Cognome + QStringLiteral(" dott. ") + doctor.Nome);
}

std::optional<TreatmentHeader::Missing> TreatmentHeader::check() {
    if (year().isEmpty()) return Missing{QStringLiteral("Attenzione! Anno di riferimento mancante"), field(YEAR)};
    if (progressive().isEmpty()) return Missing{QStringLiteral("Attenzione! Progressivo mancante"), field(PROGRESSIVE)};
    // A number that is stored already stays as it is, whatever earlier versions let through.
    const bool newRecord = field(YEAR)->isEnabled();
    if (!platform::regional().toDate(QStringLiteral("01/01/") + year()) || (newRecord && year().size() != 4))
        return Missing{QStringLiteral("Attenzione! Anno di riferimento errato!"), field(YEAR)};
    if (!platform::regional().toNumber(progressive()) || (newRecord && !RecordNumber::mayBeNew(progressive())))
        return Missing{QStringLiteral("Attenzione! Progressivo di riferimento errato!"), field(PROGRESSIVE)};
    setProgressive(RecordNumber::fourDigits(progressive()));
    return std::nullopt;
}

QString TreatmentHeader::year() const {
    return field(YEAR)->text().trimmed();
}

QString TreatmentHeader::progressive() const {
    return field(PROGRESSIVE)->text().trimmed();
}

QString TreatmentHeader::date() const {
    return platform::regional().shortDate(dtpData_->date());
}

void TreatmentHeader::setProgressive(const QString& progressive) {
    field(PROGRESSIVE)->setText(progressive);
}

QString TreatmentHeader::advanceInvoice() const {
    const QString advanceYear = field(ADVANCE_YEAR)->text().trimmed();
    const QString number = field(ADVANCE_NUMBER)->text().trimmed();
    if (advanceYear.isEmpty() || number.isEmpty()) return {};
    return RecordNumber{QString::number(CastLong(advanceYear)), RecordNumber::fourDigits(number), {}}.text();
}

QString TreatmentHeader::typedAdvanceInvoice() const {
    const QString advanceYear = field(ADVANCE_YEAR)->text().trimmed();
    const QString number = field(ADVANCE_NUMBER)->text().trimmed();
    if (advanceYear.isEmpty() || number.isEmpty()) return {};
    return RecordNumber{advanceYear, number, {}}.text();
}

void TreatmentHeader::write(clsItemTrattamento& item) const {
    item.anno = year();
    item.progressivo = progressive();
    item.Data = date();
    item.descrizione = field(DESCRIPTION)->text();
    item.medico = field(DOCTOR)->text();
    item.descrizionemedico = field(DOCTOR_NAME)->text();
    item.fatturaAnticipo = advanceInvoice();
    const host::Paziente* patient = currentPatient();
    if (!patient) return;
    item.cliente = patient->codicefiscale();
    item.descrizionecliente = patient->Cognome() + QLatin1Char(' ') + patient->Nome();
}
