#include "desk/people/PatientEditor.h"

#include "desk/data/PatientDirectory.h"
#include "desk/data/Guarded.h"
#include "platform/Clock.h"
#include "platform/Dialogs.h"
#include "platform/FormLayout.h"
#include "platform/FormRegistry.h"
#include "platform/Regional.h"

#include <QComboBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QIcon>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace desk {

namespace {

enum Text : std::size_t {
    SURNAME,
    NAME,
    BIRTHPLACE,
    TAX_CODE,
    ADDRESS,
    POSTCODE,
    TOWN,
    PROVINCE,
    TELEPHONE,
    EMAIL,
    TEXT_COUNT
};

struct Field {
    const char* name;
    const char16_t* caption;
    QString PatientData::*value;
    int longest;
};

constexpr std::array<Field, TEXT_COUNT> FIELDS{{
    {"tbCognome", u"Co&gnome:", &PatientData::Cognome, 80},
    {"tbNome", u"&Nome:", &PatientData::Nome, 80},
    {"tbLuogoNascita", u"Luogo di nascita:", &PatientData::luogoNascita, 80},
    {"tbCodiceFiscale", u"&Codice fiscale:", &PatientData::codicefiscale, 16},
    {"tbIndirizzo", u"&Indirizzo:", &PatientData::indirizzo, 120},
    {"tbCap", u"CAP:", &PatientData::cap, 10},
    {"tbCitta", u"Citt\u00e0:", &PatientData::citta, 80},
    {"tbProvincia", u"Provincia:", &PatientData::provincia, 2},
    {"tbTelefono", u"&Telefono:", &PatientData::telefono, 40},
    {"tbEmail", u"E-mail:", &PatientData::email, 120},
}};

constexpr int TAX_CODE_PERSON = 16;
constexpr int TAX_CODE_PROVISIONAL = 11;

} // namespace

PatientEditor::PatientEditor(PatientDirectory& patients, const QList<UserData>& doctors, QWidget* parent)
    : QDialog(parent)
    , patients_(patients) {
    setObjectName(QStringLiteral("frmPaziente"));
    setWindowIcon(QIcon(QStringLiteral(":/desk/icons/anagrafica.svg")));
    sex_ = platform::form::named(new QComboBox(this), QStringLiteral("cbSesso"));
    sex_->addItems({QString(), QStringLiteral("F"), QStringLiteral("M")});
    doctor_ = platform::form::named(new QComboBox(this), QStringLiteral("cbMedico"));
    doctor_->addItem(QStringLiteral("(nessuno)"), QString());
    for (const UserData& doctor : doctors)
        doctor_->addItem(doctor.Cognome + QLatin1Char(' ') + doctor.Nome, doctor.ID);
    notes_ = platform::form::named(new QPlainTextEdit(this), QStringLiteral("tbNote"));
    notes_->setTabChangesFocus(true);

    auto* fields = new QGridLayout;
    fields->setHorizontalSpacing(8);
    fields->setVerticalSpacing(8);
    fields->setColumnStretch(1, 1);
    fields->setColumnStretch(3, 1);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(14, 14, 14, 14);
    column->setSpacing(12);
    column->addLayout(fields);
    addText(*fields, 0, 0, SURNAME);
    addText(*fields, 0, 2, NAME);
    birth_ = platform::form::textBox(QStringLiteral("tbDataNascita"), this);
    birth_->setPlaceholderText(QStringLiteral("gg/mm/aaaa"));
    platform::form::labelledRow(fields, 1, 0, QStringLiteral("&Data di nascita:"), birth_);
    addText(*fields, 1, 2, BIRTHPLACE);
    platform::form::labelledRow(fields, 2, 0, QStringLiteral("&Sesso:"), sex_);
    addText(*fields, 2, 2, TAX_CODE);
    addText(*fields, 3, 0, ADDRESS, 3);
    addText(*fields, 4, 0, TOWN);
    addText(*fields, 4, 2, POSTCODE);
    addText(*fields, 5, 0, PROVINCE);
    addText(*fields, 5, 2, TELEPHONE);
    addText(*fields, 6, 0, EMAIL);
    platform::form::labelledRow(fields, 6, 2, QStringLiteral("&Medico:"), doctor_);
    platform::form::labelledRow(fields, 7, 0, QStringLiteral("N&ote:"), notes_, 3);

    QPushButton* confirm = platform::form::button(QStringLiteral("cbConferma"), QStringLiteral("Salva"), this);
    confirm->setDefault(true);
    QPushButton* cancel = platform::form::button(QStringLiteral("cbAnnulla"), QStringLiteral("Annulla"), this);
    cancel->setAutoDefault(false);
    column->addLayout(platform::form::buttonRow({confirm, cancel}));
    connect(confirm, &QPushButton::clicked, this, &PatientEditor::save);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    resize(720, 420);
    platform::FormRegistry::add(this);
}

void PatientEditor::addText(QGridLayout& grid, int row, int column, std::size_t text, int span) {
    const Field& field = FIELDS[text];
    texts_[text] = platform::form::textBox(QLatin1String(field.name), this);
    texts_[text]->setMaxLength(field.longest);
    platform::form::labelledRow(&grid, row, column, QString::fromUtf16(field.caption), texts_[text], span);
}

void PatientEditor::fill(const PatientData& patient) {
    patient_ = patient;
    setWindowTitle(patient.ID.isEmpty() ? QStringLiteral("Nuovo paziente") : QStringLiteral("Dati anagrafici"));
    for (std::size_t i = 0; i < FIELDS.size(); ++i)
        texts_[i]->setText(patient.*(FIELDS[i].value));
    birth_->setText(platform::regional().shortDate(patient.dataNascita));
    sex_->setCurrentIndex(qMax(0, sex_->findText(patient.sesso)));
    doctor_->setCurrentIndex(qMax(0, doctor_->findData(patient.idMedico)));
    notes_->setPlainText(patient.note);
    texts_[SURNAME]->setFocus();
}

PatientData PatientEditor::fromFields() const {
    PatientData patient = patient_;
    for (std::size_t i = 0; i < FIELDS.size(); ++i)
        patient.*(FIELDS[i].value) = texts_[i]->text().trimmed();
    patient.codicefiscale = patient.codicefiscale.toUpper();
    patient.provincia = patient.provincia.toUpper();
    patient.dataNascita = platform::regional().toDate(birth_->text().trimmed()).value_or(QDate());
    patient.sesso = sex_->currentText();
    patient.idMedico = doctor_->currentData().toString();
    patient.note = notes_->toPlainText();
    return patient;
}

QString PatientEditor::whatIsWrong(const PatientData& patient) {
    if (patient.Cognome.isEmpty()) {
        texts_[SURNAME]->setFocus();
        return QStringLiteral("Indicare il cognome del paziente.");
    }
    if (patient.Nome.isEmpty()) {
        texts_[NAME]->setFocus();
        return QStringLiteral("Indicare il nome del paziente.");
    }
    const bool hasBirth = !birth_->text().trimmed().isEmpty();
    if (hasBirth && (!patient.dataNascita.isValid() || patient.dataNascita > platform::today())) {
        birth_->setFocus();
        return QStringLiteral("La data di nascita non \u00e8 valida.");
    }
    const qsizetype length = patient.codicefiscale.size();
    if (length != 0 && length != TAX_CODE_PERSON && length != TAX_CODE_PROVISIONAL) {
        texts_[TAX_CODE]->setFocus();
        return QStringLiteral("Il codice fiscale ha 16 caratteri, oppure 11 se provvisorio.");
    }
    const QString owner = length == 0 ? QString() : patients_.idByTaxCode(patient.codicefiscale);
    if (!owner.isEmpty() && owner != patient.ID) {
        texts_[TAX_CODE]->setFocus();
        return QStringLiteral("Un altro paziente ha gi\u00e0 questo codice fiscale.");
    }
    return {};
}

void PatientEditor::save() {
    PatientData patient = fromFields();
    QString wrong;
    const QString failure = guarded([&] {
        wrong = whatIsWrong(patient);
        if (!wrong.isEmpty()) return;
        const bool saved = patient.ID.isEmpty() ? patients_.insert(patient) : patients_.update(patient);
        if (!saved) wrong = QStringLiteral("I dati del paziente non sono stati salvati. Riprovare.");
    });
    if (!failure.isEmpty()) wrong = failure;
    if (!wrong.isEmpty()) {
        platform::dialogs().message(wrong, platform::MB_WARNING, windowTitle());
        return;
    }
    patient_ = patient;
    accept();
}

} // namespace desk
