#include "desk/people/PatientFields.h"

#include "desk/people/TaxCode.h"
#include "platform/Regional.h"

#include <QStringList>

namespace desk {

namespace {

using platform::BESIDE;
using platform::bound;
using platform::FieldKind;

/// Two letters are the sign of a province, written large; anything else stays as it was typed.
template <auto Member>
constexpr platform::BoundField<PatientData> province(const char* name) {
    platform::BoundField<PatientData> field = bound<Member>({name, u"Provincia:", FieldKind::Line, BESIDE});
    field.set = [](PatientData& patient, const QVariant& text) {
        patient.*Member = text.toString().size() == 2 ? text.toString().toUpper() : text.toString();
    };
    return field;
}

constexpr platform::BoundField<PatientData> FIELDS[] = {
    {{"", u"Persona", FieldKind::Area}},
    bound<&PatientData::Cognome>({"tbCognome", u"Co&gnome:", FieldKind::Line, 0, u"Indicare il cognome del paziente."}),
    bound<&PatientData::Nome>({"tbNome", u"&Nome:", FieldKind::Line, BESIDE, u"Indicare il nome del paziente."}),
    {{"tbCodiceFiscale", u"&Codice fiscale:"},
     [](const PatientData& patient) { return QVariant(patient.codicefiscale); },
     [](PatientData& patient, const QVariant& code) { patient.codicefiscale = taxcode::normalized(code.toString()); }},
    {{"tbDataNascita", u"&Data di nascita:", FieldKind::Line, BESIDE, nullptr, u"gg/mm/aaaa"},
     [](const PatientData& patient) { return QVariant(platform::regional().shortDate(patient.dataNascita)); },
     [](PatientData& patient, const QVariant& day) {
         patient.dataNascita = platform::regional().toDate(day.toString()).value_or(QDate());
     }},
    bound<&PatientData::luogoNascita>({"tbLuogoNascita", u"Luogo di nascita:"}),
    bound<&PatientData::sesso>({"cbSesso", u"&Sesso:", FieldKind::Choice, BESIDE}),
    {{"", u"Residenza", FieldKind::Area}},
    bound<&PatientData::indirizzo>({"tbIndirizzo", u"&Indirizzo:"}),
    bound<&PatientData::citta>({"tbCitta", u"Città:"}),
    bound<&PatientData::cap>({"tbCap", u"CAP:"}),
    province<&PatientData::provincia>("tbProvincia"),
    {{"", u"Domicilio, se diverso", FieldKind::Area, BESIDE}},
    bound<&PatientData::domicilio>({"tbDomicilio", u"Indirizzo:"}),
    bound<&PatientData::cittaDomicilio>({"tbCittaDomicilio", u"Città:"}),
    bound<&PatientData::capDomicilio>({"tbCapDomicilio", u"CAP:"}),
    province<&PatientData::provinciaDomicilio>("tbProvinciaDomicilio"),
    {{"", u"Contatti e cure", FieldKind::Area}},
    bound<&PatientData::telefono>({"tbTelefono", u"&Telefono:"}),
    bound<&PatientData::cellulare>({"tbCellulare", u"Ce&llulare:", FieldKind::Line, BESIDE}),
    bound<&PatientData::email>({"tbEmail", u"&E-mail:"}),
    bound<&PatientData::idMedico>({"cbMedico", u"&Medico:", FieldKind::Choice, BESIDE}),
    bound<&PatientData::note>({"tbNote", u"N&ote:", FieldKind::Memo})};

/// As it is called without the others around it.
QString nameOf(const platform::FormField& field) {
    const QString name = QString::fromUtf16(field.caption).remove(QLatin1Char('&')).chopped(1);
    const bool home = QLatin1String(field.name).contains(QLatin1String("Domicilio"));
    return home ? name + QStringLiteral(" del domicilio") : name;
}

/// What the user reads of a value.
QString shown(const platform::FormField& field, const QString& value, const QList<UserData>& users) {
    if (QLatin1String(field.name) != QLatin1String("cbMedico")) return value;
    for (const UserData& user : users)
        if (user.ID == value) return user.fullName();
    return {};
}

QString textOf(const QStringList& taken, const QStringList& contested) {
    QString text = QStringLiteral("Un'altra postazione ha modificato intanto questa scheda.");
    if (!taken.isEmpty()) text += QStringLiteral("\n\nRipreso da quella:\n") + taken.join(QStringLiteral(", "));
    if (!contested.isEmpty())
        text += QStringLiteral("\n\nModificato da entrambe, e qui rimasto com'era scritto:\n") +
                contested.join(QLatin1Char('\n'));
    return text + QStringLiteral("\n\nNulla è ancora salvato: controllare i dati e premere di nuovo Salva.");
}

} // namespace

std::span<const platform::BoundField<PatientData>> patientFields() {
    return FIELDS;
}

PatientMerge mergePatients(const PatientData& start, const PatientData& ours, const PatientData& theirs,
                           const QList<UserData>& users) {
    PatientMerge merge{ours, {}};
    QStringList taken;
    QStringList contested;
    for (const platform::BoundField<PatientData>& field : FIELDS) {
        if (!field.get) continue;
        const QString before = field.get(start).toString();
        const QString mine = field.get(ours).toString();
        const QString other = field.get(theirs).toString();
        if (other == before || other == mine) continue;
        const QString name = nameOf(field.field);
        const bool roomForBoth = field.field.kind == FieldKind::Memo && !other.isEmpty();
        if (mine == before || (roomForBoth && mine.isEmpty())) {
            field.set(merge.merged, other);
            taken << name;
        } else if (roomForBoth) {
            field.set(merge.merged, QString(mine + QStringLiteral("\n\n") + other));
            taken << name;
        } else if (field.field.kind != FieldKind::Memo) {
            const QString theirText = shown(field.field, other, users);
            contested << (theirText.isEmpty() ? QStringLiteral("%1, vuoto sull'altra").arg(name)
                                              : QStringLiteral("%1, sull'altra \u201c%2\u201d").arg(name, theirText));
        }
    }
    merge.told = textOf(taken, contested);
    return merge;
}

} // namespace desk
