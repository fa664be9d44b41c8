#include "desk/data/PatientDirectory.h"

#include "desk/data/Database.h"
#include "desk/data/Identity.h"
#include "desk/data/Transaction.h"
#include "platform/Clock.h"

#include <QRegularExpression>
#include <QStringList>

namespace desk {

namespace {

constexpr int wordLimit = 8;

// Patients that another program put in have no key of ours yet.
QString searchKey() {
    return QStringLiteral("coalesce(p.ricerca, lower(p.Cognome || ' ' || p.Nome))");
}

QString columns() {
    return QStringLiteral(
        "Cognome, Nome, codicefiscale, datanascita, luogonascita, sesso, indirizzo, cap, citta, provincia, "
        "telefono, email, idmedico, note");
}

// Text as it is compared: no case, no accents, one kind of apostrophe.
QString folded(const QString& text) {
    QString plain;
    for (const QChar c : text.normalized(QString::NormalizationForm_D).toCaseFolded()) {
        if (c.category() != QChar::Mark_NonSpacing) plain += c == QChar(0x2019) ? QLatin1Char('\'') : c;
    }
    return plain.simplified();
}

QString containing(const QString& word) {
    static const QRegularExpression special(QStringLiteral("([\\\\%_])"));
    QString escaped = word;
    escaped.replace(special, QStringLiteral("\\\\1"));
    return QLatin1Char('%') + escaped + QLatin1Char('%');
}

QVariant orNull(const QString& text) {
    return text.isEmpty() ? QVariant() : QVariant(text);
}

QString taxCodeForm(const QString& text) {
    return text.trimmed().toUpper();
}

QVariantList valuesOf(const PatientData& p, const QString& sign) {
    const QVariant now = storedMoment(platform::now());
    return {p.Cognome,
            p.Nome,
            orNull(taxCodeForm(p.codicefiscale)),
            storedDate(p.dataNascita),
            p.luogoNascita,
            p.sesso,
            p.indirizzo,
            p.cap,
            p.citta,
            p.provincia,
            p.telefono,
            p.email,
            orNull(p.idMedico),
            p.note,
            folded(p.Cognome + QLatin1Char(' ') + p.Nome),
            sign,
            now,
            now,
            p.ID};
}

} // namespace

PatientDirectory::Column PatientDirectory::columnFromName(const QString& name) {
    return name.compare(QLatin1String("Codice Fiscale"), Qt::CaseInsensitive) == 0 ? Column::TaxCode
                                                                                   : Column::NameAndSurname;
}

QList<PatientSummary> PatientDirectory::search(const QString& text, Column column) {
    database_.noticeOthers();
    const QString searched = column == Column::TaxCode ? QStringLiteral("p.codicefiscale") : searchKey();
    QString condition;
    QVariantList values;
    for (const QString& word : folded(text).split(QLatin1Char(' '), Qt::SkipEmptyParts).mid(0, wordLimit)) {
        condition += (values.isEmpty() ? QStringLiteral(" where ") : QStringLiteral(" and ")) +
                     database_.dialect().matches(searched);
        values << containing(word);
    }
    Query query = database_.run(
        QStringLiteral("select p.ID, p.Cognome, p.Nome, p.codicefiscale, p.datanascita, u.Cognome, u.Nome "
                       "from {schema}.tblPazienti p left join {schema}.tblUtenti u on u.ID = p.idmedico") +
            condition + QStringLiteral(" order by ") + searchKey() + QStringLiteral(", p.ID limit %1").arg(searchLimit),
        values);
    QList<PatientSummary> found;
    while (query.next()) {
        found << PatientSummary{query.text(0), query.text(1),
                                query.text(2), query.text(3),
                                query.date(4), (query.text(5) + QLatin1Char(' ') + query.text(6)).trimmed()};
    }
    return found;
}

QString PatientDirectory::idByTaxCode(const QString& taxCode) {
    Query query = database_.run(
        QStringLiteral("select ID from {schema}.tblPazienti where codicefiscale = ? order by Cognome, Nome, ID"),
        {taxCodeForm(taxCode)});
    return query.next() ? query.text(0) : QString();
}

std::optional<PatientData> PatientDirectory::load(const QString& id) {
    Query query = database_.run(
        QStringLiteral("select ID, ") + columns() + QStringLiteral(" from {schema}.tblPazienti where ID = ?"), {id});
    if (!query.next()) return std::nullopt;
    PatientData p;
    p.ID = query.text(0);
    p.Cognome = query.text(1);
    p.Nome = query.text(2);
    p.codicefiscale = query.text(3);
    p.dataNascita = query.date(4);
    p.luogoNascita = query.text(5);
    p.sesso = query.text(6);
    p.indirizzo = query.text(7);
    p.cap = query.text(8);
    p.citta = query.text(9);
    p.provincia = query.text(10);
    p.telefono = query.text(11);
    p.email = query.text(12);
    p.idMedico = query.text(13);
    p.note = query.text(14);
    return p;
}

bool PatientDirectory::insert(PatientData& patient) {
    PatientData added = patient;
    added.ID = newIdentity();
    try {
        Transaction transaction(database_);
        database_.run(QStringLiteral("insert into {schema}.tblPazienti (") + columns() +
                          QStringLiteral(", ricerca, ModificatoDa, DataModifica, LastUpdate, ID) "
                                         "values (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)"),
                      valuesOf(added, sign_));
        transaction.commit();
    } catch (const DatabaseError&) {
        return false;
    }
    patient.ID = added.ID;
    return true;
}

bool PatientDirectory::update(const PatientData& patient) {
    QString places = columns();
    places.replace(QLatin1String(","), QLatin1String(" = ?,"));
    try {
        Transaction transaction(database_);
        const int changed =
            database_
                .run(QStringLiteral("update {schema}.tblPazienti set ") + places +
                         QStringLiteral(
                             " = ?, ricerca = ?, ModificatoDa = ?, DataModifica = ?, LastUpdate = ? where ID = ?"),
                     valuesOf(patient, sign_))
                .affectedRows();
        if (changed != 1) return false;
        transaction.commit();
        return true;
    } catch (const DatabaseError&) {
        return false;
    }
}

int PatientDirectory::count() {
    Query query = database_.run(QStringLiteral("select count(*) from {schema}.tblPazienti"));
    return query.next() ? query.number(0) : 0;
}

} // namespace desk
