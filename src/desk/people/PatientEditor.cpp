#include "desk/people/PatientEditor.h"

#include "desk/data/PatientDirectory.h"
#include "desk/icons/DeskIcon.h"
#include "desk/people/PatientFields.h"
#include "desk/people/TaxCode.h"
#include "platform/Clock.h"
#include "platform/Regional.h"

#include <QComboBox>
#include <QLineEdit>
#include <QRegularExpression>

namespace desk {

PatientEditor::PatientEditor(PatientDirectory& patients, const QList<UserData>& users, QWidget* parent)
    : RecordForm(QStringLiteral("frmPaziente"), parent)
    , patients_(patients)
    , users_(users) {
    setWindowIcon(deskIcon("anagrafica"));
    setFailure(QStringLiteral("I dati del paziente non sono stati salvati."));
    build(platform::fieldsOf(patientFields()));
    for (const char* sex : {"", "F", "M"})
        addChoice("cbSesso", QLatin1String(sex), QLatin1String(sex));
    connect(field<QLineEdit>("tbCodiceFiscale"), &QLineEdit::editingFinished, this, &PatientEditor::readTaxCode);
}

// Those who may treat today, and the one who treated this patient until now.
void PatientEditor::fillDoctors(const QString& idDoctor) {
    field<QComboBox>("cbMedico")->clear();
    addChoice("cbMedico", QStringLiteral("(nessuno)"), QString());
    for (const UserData& user : std::as_const(users_)) {
        const bool offered = user.isDoctor() && user.attivo;
        if (offered || (!idDoctor.isEmpty() && user.ID == idDoctor)) addChoice("cbMedico", user.fullName(), user.ID);
    }
}

void PatientEditor::fill(const PatientData& patient) {
    patient_ = patient;
    setWindowTitle(patient.ID.isEmpty() ? QStringLiteral("Nuovo paziente") : QStringLiteral("Dati anagrafici"));
    fillDoctors(patient.idMedico);
    platform::show(*this, patientFields(), patient);
    start("tbCognome", QSize(780, 560));
}

// What the code tells need not be typed again; what was typed stays.
void PatientEditor::readTaxCode() {
    const auto person = taxcode::personOf(taxcode::normalized(value("tbCodiceFiscale").toString()), platform::today());
    if (!person) return;
    if (value("tbDataNascita").toString().isEmpty())
        setValue("tbDataNascita", platform::regional().shortDate(person->birth));
    if (value("cbSesso").toString().isEmpty()) setValue("cbSesso", person->sex);
}

PatientData PatientEditor::fromFields() const {
    return platform::typed(*this, patientFields(), patient_);
}

QString PatientEditor::whatIsWrong() {
    static const QRegularExpression address(QStringLiteral("^[^@\\s]+@[^@\\s]+$"));
    const QString blank = RecordForm::whatIsWrong();
    if (!blank.isEmpty()) return blank;
    const PatientData patient = fromFields();
    const bool hasBirth = !value("tbDataNascita").toString().isEmpty();
    if (hasBirth && (!patient.dataNascita.isValid() || patient.dataNascita > platform::today()))
        return refuse("tbDataNascita", QStringLiteral("La data di nascita non è valida."));
    if (!patient.email.isEmpty() && !address.match(patient.email).hasMatch())
        return refuse("tbEmail", QStringLiteral("L'indirizzo e-mail non è valido."));
    return whatIsWrongWithTaxCode(patient);
}

QString PatientEditor::whatIsWrongWithTaxCode(const PatientData& patient) {
    constexpr qsizetype PERSON = 16;
    constexpr qsizetype PROVISIONAL = 11;
    const QString& code = patient.codicefiscale;
    // A code that came wrong from another archive does not keep the rest of the card from being changed.
    if (code.isEmpty() || (code == patient_.codicefiscale && !patient_.ID.isEmpty())) return {};
    const auto refused = [this](const char* why) { return refuse("tbCodiceFiscale", QString::fromUtf8(why)); };
    if (code.size() != PERSON && code.size() != PROVISIONAL)
        return refused("Il codice fiscale ha 16 caratteri, oppure 11 se provvisorio.");
    const QString owner = patients_.idByTaxCode(code);
    if (!owner.isEmpty() && owner != patient.ID) return refused("Un altro paziente ha già questo codice fiscale.");
    if (!taxcode::isValid(code)) return refused("Il codice fiscale non è valido: controllare ogni carattere.");
    return {};
}

QString PatientEditor::doubt() {
    const PatientData patient = fromFields();
    QStringList doubts;
    if (!taxcode::fitsBirth(patient.codicefiscale, patient.dataNascita))
        doubts << QStringLiteral("La data di nascita non corrisponde al codice fiscale.");
    if (!taxcode::fitsSex(patient.codicefiscale, patient.sesso))
        doubts << QStringLiteral("Il sesso non corrisponde al codice fiscale.");
    const bool renamed = patient.Cognome != patient_.Cognome || patient.Nome != patient_.Nome ||
                         patient.dataNascita != patient_.dataNascita;
    if ((patient.ID.isEmpty() || renamed) && !patients_.idByNameAndBirth(patient).isEmpty())
        doubts << QStringLiteral("Un altro paziente ha già lo stesso nome e la stessa data di nascita.");
    return doubts.isEmpty() ? QString() : doubts.join(QLatin1Char('\n')) + QStringLiteral("\n\nSalvare ugualmente?");
}

QString PatientEditor::store(QString& id) {
    using Outcome = PatientDirectory::Outcome;
    PatientData patient = fromFields();
    const Outcome outcome = !patient.ID.isEmpty()       ? patients_.updateFrom(patient_, patient)
                            : patients_.insert(patient) ? Outcome::Saved
                                                        : Outcome::Failed;
    if (outcome == Outcome::Saved) {
        patient_ = patient;
        id = patient.ID;
        return {};
    }
    const QString others = outcome == Outcome::ChangedMeanwhile ? takeInOthersChanges(patient) : QString();
    return others.isEmpty() ? QStringLiteral("I dati del paziente non sono stati salvati. Riprovare.") : others;
}

// From now on the window stands on the card as it lies in the archive.
QString PatientEditor::takeInOthersChanges(const PatientData& patient) {
    const std::optional<PatientData> theirs = patients_.load(patient.ID);
    if (!theirs) return {};
    const PatientMerge merge = mergePatients(patient_, patient, *theirs, users_);
    patient_ = *theirs;
    fillDoctors(merge.merged.idMedico);
    platform::show(*this, patientFields(), merge.merged);
    return merge.told;
}

} // namespace desk
