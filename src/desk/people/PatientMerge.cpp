#include "desk/people/PatientMerge.h"

#include "platform/Regional.h"

namespace desk {

namespace {

struct TextField {
    const char16_t* caption;
    QString PatientData::*value;
};

constexpr TextField TEXTS[] = {
    {u"Cognome", &PatientData::Cognome},
    {u"Nome", &PatientData::Nome},
    {u"Codice fiscale", &PatientData::codicefiscale},
    {u"Luogo di nascita", &PatientData::luogoNascita},
    {u"Sesso", &PatientData::sesso},
    {u"Indirizzo", &PatientData::indirizzo},
    {u"Citt\u00e0", &PatientData::citta},
    {u"CAP", &PatientData::cap},
    {u"Provincia", &PatientData::provincia},
    {u"Indirizzo del domicilio", &PatientData::domicilio},
    {u"Citt\u00e0 del domicilio", &PatientData::cittaDomicilio},
    {u"CAP del domicilio", &PatientData::capDomicilio},
    {u"Provincia del domicilio", &PatientData::provinciaDomicilio},
    {u"Telefono", &PatientData::telefono},
    {u"Cellulare", &PatientData::cellulare},
    {u"E-mail", &PatientData::email},
};

QString nameOf(const QString& id, const QList<UserData>& users) {
    for (const UserData& user : users)
        if (user.ID == id) return user.nomeCompleto();
    return {};
}

/// Brings one field after the other together.
class Merger {
public:
    Merger(const PatientData& start, const PatientData& ours, const PatientData& theirs)
        : start_(start)
        , theirs_(theirs)
        , merge_{ours, {}, {}} {}

    template <class Value, class Shown>
    void field(const QString& caption, Value PatientData::*value, Shown shown) {
        Value& ours = merge_.merged.*value;
        if (theirs_.*value == start_.*value || theirs_.*value == ours) return;
        if (ours == start_.*value) {
            ours = theirs_.*value;
            merge_.taken << caption;
            return;
        }
        const QString other = shown(theirs_.*value);
        merge_.contested << (other.isEmpty() ? QStringLiteral("%1, vuoto sull'altra").arg(caption)
                                             : QStringLiteral("%1, sull'altra \u201c%2\u201d").arg(caption, other));
    }
    /// Free text has room for both.
    void notes() {
        QString& ours = merge_.merged.note;
        if (theirs_.note == start_.note || theirs_.note == ours) return;
        if (ours == start_.note || ours.isEmpty())
            ours = theirs_.note;
        else if (!theirs_.note.isEmpty())
            ours += QStringLiteral("\n\n") + theirs_.note;
        else
            return;
        merge_.taken << QStringLiteral("Note");
    }
    PatientMerge result() { return std::move(merge_); }

private:
    const PatientData& start_;
    const PatientData& theirs_;
    PatientMerge merge_;
};

} // namespace

PatientMerge mergePatients(const PatientData& start, const PatientData& ours, const PatientData& theirs,
                           const QList<UserData>& users) {
    Merger merger(start, ours, theirs);
    for (const TextField& text : TEXTS)
        merger.field(QString::fromUtf16(text.caption), text.value, [](const QString& other) { return other; });
    merger.field(QStringLiteral("Data di nascita"), &PatientData::dataNascita,
                 [](const QDate& other) { return platform::regional().shortDate(other); });
    merger.field(QStringLiteral("Medico"), &PatientData::idMedico,
                 [&users](const QString& other) { return nameOf(other, users); });
    merger.notes();
    return merger.result();
}

QString PatientMerge::toText() const {
    QString text = QStringLiteral("Un'altra postazione ha modificato intanto questa scheda.");
    if (!taken.isEmpty()) text += QStringLiteral("\n\nRipreso da quella:\n") + taken.join(QStringLiteral(", "));
    if (!contested.isEmpty())
        text += QStringLiteral("\n\nModificato da entrambe, e qui rimasto com'era scritto:\n") +
                contested.join(QLatin1Char('\n'));
    return text + QStringLiteral("\n\nNulla \u00e8 ancora salvato: controllare i dati e premere di nuovo Salva.");
}

} // namespace desk
