#include "desk/data/PatientDirectory.h"

#include "desk/data/Database.h"
#include "desk/data/Identity.h"
#include "desk/data/Transaction.h"
#include "platform/Clock.h"

#include <QStringList>

namespace desk {

namespace {

constexpr int wordLimit = 8;

QString columns() {
    return QStringLiteral(
        "Cognome, Nome, codicefiscale, datanascita, luogonascita, sesso, indirizzo, cap, citta, provincia, "
        "domicilio, capdomicilio, cittadomicilio, provinciadomicilio, telefono, cellulare, email, idmedico, note");
}

// Text as it is compared: no case, no accents, one kind of apostrophe.
QString folded(const QString& text) {
    QString plain;
    for (const QChar c : text.normalized(QString::NormalizationForm_D).toCaseFolded()) {
        if (c.category() != QChar::Mark_NonSpacing) plain += c == QChar(0x2019) ? QLatin1Char('\'') : c;
    }
    return plain.simplified();
}

QString keyOf(const QString& surname, const QString& name) {
    return folded(surname + QLatin1Char(' ') + name);
}

/// The pieces that must occur, each by itself; beyond the limit the rest is one piece.
QStringList piecesOf(const QString& text, PatientDirectory::Column column) {
    const QString plain = folded(text);
    QStringList words = (column == PatientDirectory::Column::TaxCode ? plain.toUpper() : plain)
                            .split(QLatin1Char(' '), Qt::SkipEmptyParts);
    if (words.size() <= wordLimit) return words;
    const QString rest = words.mid(wordLimit - 1).join(QLatin1Char(' '));
    words = words.mid(0, wordLimit - 1);
    return words << rest;
}

/// The search as a condition that the index alone can judge: its text, and the values to bind.
struct Condition {
    QString sql;
    QVariantList values;
};

Condition conditionFor(const Dialect& dialect, const QString& text, PatientDirectory::Column column) {
    const QString searched = column == PatientDirectory::Column::TaxCode ? QStringLiteral("upper(codicefiscale)")
                                                                         : QStringLiteral("ricerca");
    Condition condition;
    for (const QString& piece : piecesOf(text, column)) {
        condition.sql += condition.values.isEmpty() ? QStringLiteral(" where ") : QStringLiteral(" and ");
        condition.sql += dialect.contains(searched);
        condition.values << piece;
    }
    return condition;
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
            p.domicilio,
            p.capDomicilio,
            p.cittaDomicilio,
            p.provinciaDomicilio,
            p.telefono,
            p.cellulare,
            p.email,
            orNull(p.idMedico),
            p.note,
            keyOf(p.Cognome, p.Nome),
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
    giveKeys();
    const Condition condition = conditionFor(database_.dialect(), text, column);
    // The index tells who is found; only those are then looked at.
    Query query = database_.run(
        QStringLiteral("select p.ID, p.Cognome, p.Nome, p.codicefiscale, p.datanascita, u.Cognome, u.Nome "
                       "from (select ID from {schema}.tblPazienti%1 order by ricerca, ID limit %2) f "
                       "join {schema}.tblPazienti p on p.ID = f.ID "
                       "left join {schema}.tblUtenti u on u.ID = p.idmedico order by p.ricerca, p.ID")
            .arg(condition.sql)
            .arg(searchLimit),
        condition.values);
    QList<PatientSummary> found;
    while (query.next()) {
        found << PatientSummary{query.text(0), query.text(1),
                                query.text(2), query.text(3),
                                query.date(4), (query.text(5) + QLatin1Char(' ') + query.text(6)).trimmed()};
    }
    return found;
}

int PatientDirectory::countMatches(const QString& text, Column column) {
    const Condition condition = conditionFor(database_.dialect(), text, column);
    Query query =
        database_.run(QStringLiteral("select count(*) from {schema}.tblPazienti") + condition.sql, condition.values);
    return query.next() ? query.number(0) : 0;
}

// Patients that another program put in have no key of ours yet.
void PatientDirectory::giveKeys() {
    QList<QVariantList> keys;
    {
        Query query =
            database_.run(QStringLiteral("select Cognome, Nome, ID from {schema}.tblPazienti where ricerca is null"));
        while (query.next())
            keys << QVariantList{keyOf(query.text(0), query.text(1)), query.text(2)};
    }
    if (keys.isEmpty()) return;
    Transaction transaction(database_);
    for (const QVariantList& key : std::as_const(keys))
        database_.run(QStringLiteral("update {schema}.tblPazienti set ricerca = ? where ID = ?"), key);
    transaction.commit();
}

QString PatientDirectory::idByTaxCode(const QString& taxCode) {
    Query query = database_.run(
        QStringLiteral("select ID from {schema}.tblPazienti where codicefiscale = ? order by Cognome, Nome, ID"),
        {taxCodeForm(taxCode)});
    return query.next() ? query.text(0) : QString();
}

QString PatientDirectory::idByNameAndBirth(const PatientData& patient) {
    if (!patient.dataNascita.isValid()) return {};
    Query query =
        database_.run(QStringLiteral("select ID from {schema}.tblPazienti where ricerca = ? and datanascita = ?"),
                      {keyOf(patient.Cognome, patient.Nome), storedDate(patient.dataNascita)});
    while (query.next()) {
        if (query.text(0) != patient.ID) return query.text(0);
    }
    return {};
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
    p.domicilio = query.text(11);
    p.capDomicilio = query.text(12);
    p.cittaDomicilio = query.text(13);
    p.provinciaDomicilio = query.text(14);
    p.telefono = query.text(15);
    p.cellulare = query.text(16);
    p.email = query.text(17);
    p.idMedico = query.text(18);
    p.note = query.text(19);
    return p;
}

bool PatientDirectory::insert(PatientData& patient) {
    PatientData added = patient;
    added.ID = newIdentity();
    try {
        Transaction transaction(database_);
        database_.run(QStringLiteral("insert into {schema}.tblPazienti (") + columns() +
                          QStringLiteral(", ricerca, ModificatoDa, DataModifica, LastUpdate, ID) "
                                         "values (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, "
                                         "?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)"),
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

PatientDirectory::Outcome PatientDirectory::updateFrom(const PatientData& before, const PatientData& patient) {
    try {
        Transaction transaction(database_);
        // Nobody else may come between the look and the writing: a server holds a row only for who has written it.
        database_.run(QStringLiteral("update {schema}.tblPazienti set ID = ID where ID = ?"), {patient.ID});
        const std::optional<PatientData> now = load(patient.ID);
        if (!now) return Outcome::Failed;
        if (*now != before) return Outcome::ChangedMeanwhile;
        if (!update(patient)) return Outcome::Failed;
        transaction.commit();
        return Outcome::Saved;
    } catch (const DatabaseError&) {
        return Outcome::Failed;
    }
}

int PatientDirectory::count() {
    Query query = database_.run(QStringLiteral("select count(*) from {schema}.tblPazienti"));
    return query.next() ? query.number(0) : 0;
}

} // namespace desk
