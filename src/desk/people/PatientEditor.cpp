#include "desk/people/PatientEditor.h"

#include "desk/data/Guarded.h"
#include "desk/data/PatientDirectory.h"
#include "desk/icons/DeskIcon.h"
#include "desk/people/PatientMerge.h"
#include "desk/people/TaxCode.h"
#include "platform/Clock.h"
#include "platform/Dialogs.h"
#include "platform/FormLayout.h"
#include "platform/FormRegistry.h"
#include "platform/Regional.h"

#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRegularExpression>
#include <QVBoxLayout>

namespace desk {

namespace {

constexpr qsizetype PROVINCE_LETTERS = 2;

enum Text : std::size_t {
    SURNAME,
    NAME,
    BIRTHPLACE,
    TAX_CODE,
    ADDRESS,
    POSTCODE,
    TOWN,
    PROVINCE,
    HOME_ADDRESS,
    HOME_POSTCODE,
    HOME_TOWN,
    HOME_PROVINCE,
    TELEPHONE,
    MOBILE,
    EMAIL,
    TEXT_COUNT
};

struct Field {
    const char* name;
    const char16_t* caption;
    QString PatientData::*value;
};

constexpr std::array<Field, TEXT_COUNT> FIELDS{{
    {"tbCognome", u"Co&gnome:", &PatientData::Cognome},
    {"tbNome", u"&Nome:", &PatientData::Nome},
    {"tbLuogoNascita", u"Luogo di nascita:", &PatientData::luogoNascita},
    {"tbCodiceFiscale", u"&Codice fiscale:", &PatientData::codicefiscale},
    {"tbIndirizzo", u"&Indirizzo:", &PatientData::indirizzo},
    {"tbCap", u"CAP:", &PatientData::cap},
    {"tbCitta", u"Citt\u00e0:", &PatientData::citta},
    {"tbProvincia", u"Provincia:", &PatientData::provincia},
    {"tbDomicilio", u"Indirizzo:", &PatientData::domicilio},
    {"tbCapDomicilio", u"CAP:", &PatientData::capDomicilio},
    {"tbCittaDomicilio", u"Citt\u00e0:", &PatientData::cittaDomicilio},
    {"tbProvinciaDomicilio", u"Provincia:", &PatientData::provinciaDomicilio},
    {"tbTelefono", u"&Telefono:", &PatientData::telefono},
    {"tbCellulare", u"Ce&llulare:", &PatientData::cellulare},
    {"tbEmail", u"&E-mail:", &PatientData::email},
}};

QGridLayout* areaIn(QBoxLayout& column, const QString& title, QWidget* parent) {
    QGroupBox* area = platform::form::titledArea(title, parent);
    column.addWidget(area);
    auto* grid = new QGridLayout(area);
    grid->setHorizontalSpacing(8);
    grid->setVerticalSpacing(8);
    grid->setColumnStretch(1, 1);
    grid->setColumnStretch(3, 1);
    return grid;
}

/// Two letters are the sign of a province, written large; anything else stays as it was typed.
QString provinceForm(const QString& text) {
    return text.size() == PROVINCE_LETTERS ? text.toUpper() : text;
}

} // namespace

PatientEditor::PatientEditor(PatientDirectory& patients, const QList<UserData>& users, QWidget* parent)
    : QDialog(parent)
    , patients_(patients)
    , users_(users) {
    setObjectName(QStringLiteral("frmPaziente"));
    setWindowIcon(deskIcon("anagrafica"));
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(14, 14, 14, 14);
    column->setSpacing(10);
    buildPerson(*areaIn(*column, QStringLiteral("Persona"), this));
    auto* addresses = new QHBoxLayout;
    addresses->setSpacing(10);
    column->addLayout(addresses);
    buildAddresses(*areaIn(*addresses, QStringLiteral("Residenza"), this));
    QGridLayout* home = areaIn(*addresses, QStringLiteral("Domicilio, se diverso"), this);
    addText(*home, 0, 0, HOME_ADDRESS, 3);
    addText(*home, 1, 0, HOME_TOWN, 3);
    addText(*home, 2, 0, HOME_POSTCODE);
    addText(*home, 2, 2, HOME_PROVINCE);
    buildContacts(*areaIn(*column, QStringLiteral("Contatti e cure"), this));

    QPushButton* confirm = platform::form::button(QStringLiteral("cbConferma"), QStringLiteral("Salva"), this);
    confirm->setDefault(true);
    QPushButton* cancel = platform::form::button(QStringLiteral("cbAnnulla"), QStringLiteral("Annulla"), this);
    cancel->setAutoDefault(false);
    column->addLayout(platform::form::buttonRow({confirm, cancel}));
    setTabs({doctor_, notes_, confirm, cancel});
    connect(confirm, &QPushButton::clicked, this, &PatientEditor::save);
    connect(cancel, &QPushButton::clicked, this, &PatientEditor::reject);
    connect(texts_[TAX_CODE], &QLineEdit::editingFinished, this, &PatientEditor::readTaxCode);
    resize(780, 560);
    platform::FormRegistry::add(this);
}

void PatientEditor::buildPerson(QGridLayout& grid) {
    birth_ = platform::form::textBox(QStringLiteral("tbDataNascita"), this);
    birth_->setPlaceholderText(QStringLiteral("gg/mm/aaaa"));
    sex_ = platform::form::named(new QComboBox(this), QStringLiteral("cbSesso"));
    sex_->addItems({QString(), QStringLiteral("F"), QStringLiteral("M")});
    addText(grid, 0, 0, SURNAME);
    addText(grid, 0, 2, NAME);
    addText(grid, 1, 0, TAX_CODE);
    platform::form::labelledRow(&grid, 1, 2, QStringLiteral("&Data di nascita:"), birth_);
    addText(grid, 2, 0, BIRTHPLACE);
    platform::form::labelledRow(&grid, 2, 2, QStringLiteral("&Sesso:"), sex_);
}

void PatientEditor::buildAddresses(QGridLayout& grid) {
    addText(grid, 0, 0, ADDRESS, 3);
    addText(grid, 1, 0, TOWN, 3);
    addText(grid, 2, 0, POSTCODE);
    addText(grid, 2, 2, PROVINCE);
}

void PatientEditor::buildContacts(QGridLayout& grid) {
    doctor_ = platform::form::named(new QComboBox(this), QStringLiteral("cbMedico"));
    notes_ = platform::form::named(new QPlainTextEdit(this), QStringLiteral("tbNote"));
    notes_->setTabChangesFocus(true);
    addText(grid, 0, 0, TELEPHONE);
    addText(grid, 0, 2, MOBILE);
    addText(grid, 1, 0, EMAIL);
    platform::form::labelledRow(&grid, 1, 2, QStringLiteral("&Medico:"), doctor_);
    platform::form::labelledRow(&grid, 2, 0, QStringLiteral("N&ote:"), notes_, 3);
}

void PatientEditor::addText(QGridLayout& grid, int row, int column, std::size_t text, int span) {
    const Field& field = FIELDS[text];
    texts_[text] = platform::form::textBox(QLatin1String(field.name), this);
    platform::form::labelledRow(&grid, row, column, QString::fromUtf16(field.caption), texts_[text], span);
}

void PatientEditor::setTabs(const QList<QWidget*>& last) {
    constexpr std::size_t MIDDLE[] = {ADDRESS,       TOWN,          POSTCODE,  PROVINCE, HOME_ADDRESS, HOME_TOWN,
                                      HOME_POSTCODE, HOME_PROVINCE, TELEPHONE, MOBILE,   EMAIL};
    QList<QWidget*> order{texts_[SURNAME], texts_[NAME], texts_[TAX_CODE], birth_, texts_[BIRTHPLACE], sex_};
    for (const std::size_t text : MIDDLE)
        order << texts_[text];
    order << last;
    for (qsizetype i = 1; i < order.size(); ++i)
        setTabOrder(order[i - 1], order[i]);
}

// Those who may treat today, and the one who treated this patient until now.
void PatientEditor::fillDoctors(const QString& idDoctor) {
    doctor_->clear();
    doctor_->addItem(QStringLiteral("(nessuno)"), QString());
    for (const UserData& user : std::as_const(users_)) {
        const bool offered = user.isDoctor() && user.attivo;
        if (offered || (!idDoctor.isEmpty() && user.ID == idDoctor)) doctor_->addItem(user.nomeCompleto(), user.ID);
    }
    doctor_->setCurrentIndex(qMax(0, doctor_->findData(idDoctor)));
}

void PatientEditor::fill(const PatientData& patient) {
    patient_ = patient;
    setWindowTitle(patient.ID.isEmpty() ? QStringLiteral("Nuovo paziente") : QStringLiteral("Dati anagrafici"));
    show(patient);
    untouched_ = fromFields();
    texts_[SURNAME]->setFocus();
}

void PatientEditor::show(const PatientData& patient) {
    for (std::size_t i = 0; i < FIELDS.size(); ++i) {
        texts_[i]->setText(patient.*(FIELDS[i].value));
        texts_[i]->setCursorPosition(0);
    }
    birth_->setText(platform::regional().shortDate(patient.dataNascita));
    sex_->setCurrentIndex(qMax(0, sex_->findText(patient.sesso)));
    fillDoctors(patient.idMedico);
    notes_->setPlainText(patient.note);
}

// What the code tells need not be typed again; what was typed stays.
void PatientEditor::readTaxCode() {
    const auto person = taxcode::personOf(taxcode::normalized(texts_[TAX_CODE]->text()), platform::today());
    if (!person) return;
    if (birth_->text().trimmed().isEmpty()) birth_->setText(platform::regional().shortDate(person->birth));
    if (sex_->currentText().isEmpty()) sex_->setCurrentText(person->sex);
}

PatientData PatientEditor::fromFields() const {
    PatientData patient = patient_;
    for (std::size_t i = 0; i < FIELDS.size(); ++i)
        patient.*(FIELDS[i].value) = texts_[i]->text().trimmed();
    patient.codicefiscale = taxcode::normalized(patient.codicefiscale);
    patient.provincia = provinceForm(patient.provincia);
    patient.provinciaDomicilio = provinceForm(patient.provinciaDomicilio);
    patient.dataNascita = platform::regional().toDate(birth_->text().trimmed()).value_or(QDate());
    patient.sesso = sex_->currentText();
    patient.idMedico = doctor_->currentData().toString();
    patient.note = notes_->toPlainText();
    return patient;
}

QString PatientEditor::refuse(QWidget* field, const QString& why) {
    field->setFocus();
    return why;
}

QString PatientEditor::whatIsWrong(const PatientData& patient) {
    static const QRegularExpression address(QStringLiteral("^[^@\\s]+@[^@\\s]+$"));
    if (patient.Cognome.isEmpty()) return refuse(texts_[SURNAME], QStringLiteral("Indicare il cognome del paziente."));
    if (patient.Nome.isEmpty()) return refuse(texts_[NAME], QStringLiteral("Indicare il nome del paziente."));
    const bool hasBirth = !birth_->text().trimmed().isEmpty();
    if (hasBirth && (!patient.dataNascita.isValid() || patient.dataNascita > platform::today()))
        return refuse(birth_, QStringLiteral("La data di nascita non \u00e8 valida."));
    if (!patient.email.isEmpty() && !address.match(patient.email).hasMatch())
        return refuse(texts_[EMAIL], QStringLiteral("L'indirizzo e-mail non \u00e8 valido."));
    return whatIsWrongWithTaxCode(patient);
}

QString PatientEditor::whatIsWrongWithTaxCode(const PatientData& patient) {
    constexpr qsizetype PERSON = 16;
    constexpr qsizetype PROVISIONAL = 11;
    const QString& code = patient.codicefiscale;
    // A code that came wrong from another archive does not keep the rest of the card from being changed.
    if (code.isEmpty() || (code == patient_.codicefiscale && !patient_.ID.isEmpty())) return {};
    if (code.size() != PERSON && code.size() != PROVISIONAL)
        return refuse(texts_[TAX_CODE], QStringLiteral("Il codice fiscale ha 16 caratteri, oppure 11 se provvisorio."));
    const QString owner = patients_.idByTaxCode(code);
    if (!owner.isEmpty() && owner != patient.ID)
        return refuse(texts_[TAX_CODE], QStringLiteral("Un altro paziente ha gi\u00e0 questo codice fiscale."));
    if (!taxcode::isValid(code))
        return refuse(texts_[TAX_CODE],
                      QStringLiteral("Il codice fiscale non \u00e8 valido: controllare ogni carattere."));
    return {};
}

QString PatientEditor::doubtAbout(const PatientData& patient) {
    QStringList doubts;
    if (!taxcode::fitsBirth(patient.codicefiscale, patient.dataNascita))
        doubts << QStringLiteral("La data di nascita non corrisponde al codice fiscale.");
    if (!taxcode::fitsSex(patient.codicefiscale, patient.sesso))
        doubts << QStringLiteral("Il sesso non corrisponde al codice fiscale.");
    const bool renamed = patient.Cognome != patient_.Cognome || patient.Nome != patient_.Nome ||
                         patient.dataNascita != patient_.dataNascita;
    if ((patient.ID.isEmpty() || renamed) && !patients_.idByNameAndBirth(patient).isEmpty())
        doubts << QStringLiteral("Un altro paziente ha gi\u00e0 lo stesso nome e la stessa data di nascita.");
    return doubts.isEmpty() ? QString() : doubts.join(QLatin1Char('\n')) + QStringLiteral("\n\nSalvare ugualmente?");
}

void PatientEditor::reject() {
    if (fromFields() != untouched_ &&
        platform::dialogs().message(QStringLiteral("Chiudere senza salvare le modifiche?"),
                                    platform::MB_QUESTION_DEFAULT_NO, windowTitle()) != platform::Answer::Yes)
        return;
    QDialog::reject();
}

void PatientEditor::save() {
    PatientData patient = fromFields();
    QString wrong;
    bool sure = true;
    const QString failure = guarded([&] {
        wrong = whatIsWrong(patient);
        if (!wrong.isEmpty()) return;
        const QString doubt = doubtAbout(patient);
        sure = doubt.isEmpty() || platform::dialogs().message(doubt, platform::MB_QUESTION_DEFAULT_NO, windowTitle()) ==
                                      platform::Answer::Yes;
        if (sure) wrong = store(patient);
    });
    if (!failure.isEmpty()) wrong = QStringLiteral("I dati del paziente non sono stati salvati.\n") + failure;
    if (!wrong.isEmpty()) platform::dialogs().message(wrong, platform::MB_WARNING, windowTitle());
    if (!wrong.isEmpty() || !sure) return;
    patient_ = patient;
    accept();
}

QString PatientEditor::store(PatientData& patient) {
    using Outcome = PatientDirectory::Outcome;
    const Outcome outcome = !patient.ID.isEmpty()       ? patients_.updateFrom(patient_, patient)
                            : patients_.insert(patient) ? Outcome::Saved
                                                        : Outcome::Failed;
    if (outcome == Outcome::Saved) return {};
    const QString others = outcome == Outcome::ChangedMeanwhile ? takeInOthersChanges(patient) : QString();
    return others.isEmpty() ? QStringLiteral("I dati del paziente non sono stati salvati. Riprovare.") : others;
}

// From now on the window stands on the card as it lies in the archive.
QString PatientEditor::takeInOthersChanges(const PatientData& patient) {
    const std::optional<PatientData> theirs = patients_.load(patient.ID);
    if (!theirs) return {};
    const PatientMerge merge = mergePatients(patient_, patient, *theirs, users_);
    patient_ = *theirs;
    show(merge.merged);
    return merge.toText();
}

} // namespace desk
