#include "desk/data/Migrations.h"

#include "desk/data/Database.h"
#include "desk/data/Transaction.h"
#include "platform/Clock.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>

namespace desk {

namespace {

QStringList files() {
    const QDir folder(QStringLiteral(":/desk/data/migrations"));
    return folder.entryList({QStringLiteral("*.sql")}, QDir::Files, QDir::Name);
}

int numberOf(const QString& file) {
    return file.left(4).toInt();
}

// Statements end with a semicolon at the end of a line; comments take whole lines.
QStringList statementsOf(const QString& file) {
    QFile source(QStringLiteral(":/desk/data/migrations/") + file);
    if (!source.open(QIODevice::ReadOnly))
        throw DatabaseError(QStringLiteral("Manca un aggiornamento dell'archivio: %1.").arg(file));
    static const QRegularExpression comment(QStringLiteral("^\\s*--.*$"), QRegularExpression::MultilineOption);
    static const QRegularExpression end(QStringLiteral(";\\s*(\\n|$)"));
    QString text = QString::fromUtf8(source.readAll());
    QStringList statements;
    for (const QString& statement : text.remove(comment).split(end)) {
        if (!statement.trimmed().isEmpty()) statements << statement.trimmed();
    }
    return statements;
}

} // namespace

int Migrations::latest() {
    const QStringList known = files();
    return known.isEmpty() ? 0 : numberOf(known.last());
}

void Migrations::bringUpToDate() {
    const int found = version();
    if (found > latest()) {
        throw DatabaseError(
            QStringLiteral("L'archivio è di una versione più recente (%1) di quella che questo programma conosce "
                           "(%2): aggiornare il programma.")
                .arg(found)
                .arg(latest()));
    }
    for (const QString& file : files()) {
        if (numberOf(file) > found) apply(file, numberOf(file));
    }
}

int Migrations::version() {
    QStringList tables;
    Query names = database_.command(database_.dialect().tables(database_.schema()));
    while (names.next())
        tables << names.text(0);
    if (tables.isEmpty()) return 0;
    if (!tables.contains(QStringLiteral("tblVersione"), Qt::CaseInsensitive))
        throw DatabaseError(QStringLiteral("Contiene i dati di un altro programma."));
    Query highest = database_.run(QStringLiteral("select max(versione) from {schema}.tblVersione"));
    return highest.next() ? highest.number(0) : 0;
}

void Migrations::apply(const QString& file, int number) {
    const Database::Unhurried unhurried(database_);
    Transaction transaction(database_);
    if (version() >= number) return; // another workstation was faster
    for (const QString& statement : statementsOf(file)) {
        const QString fitting = database_.dialect().expand(statement, database_.schema());
        if (!fitting.isEmpty()) database_.command(fitting);
    }
    database_.run(QStringLiteral("insert into {schema}.tblVersione (versione, applicata) values (?, ?)"),
                  {number, storedMoment(platform::now())});
    transaction.commit();
}

} // namespace desk
