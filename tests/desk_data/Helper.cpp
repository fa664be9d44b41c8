// A second program for the tests that need one: workstations that die in the middle of their work, start over and over,
// number their plans at once, or guess at a password, and a user without rights.

#include "desk/data/Database.h"
#include "desk/data/DatabaseError.h"
#include "desk/data/PatientRecord.h"
#include "desk/data/Transaction.h"
#include "desk/people/SignIn.h"
#include "host/contract/HostError.h"

#include <QCoreApplication>
#include <QTextStream>
#include <QThread>
#include <unistd.h>

namespace {

// Saves one plan over and over, each time with a content that tells by itself whether it is whole.
int saveUntilKilled(desk::Database& database, const QString& patientId, int firstNumber) {
    desk::PatientRecord patient(database, QStringLiteral("Conti Giulia"));
    if (!patient.Init(patientId)) return 2;
    QTextStream out(stdout);
    QString id;
    for (int i = firstNumber;; ++i) {
        const QString number = QStringLiteral("2025-%1").arg(i);
        if (i % 10 == 1) id.clear();
        if (!patient.corvala().Salva(
                id, {QStringLiteral("22/11/2025"), number, number, QStringLiteral("TRT"), number.repeated(3000)}))
            return 3;
        out << id << ' ' << i << Qt::endl; // only what was confirmed is announced
    }
}

// Gives the answer back before anything is written: nobody can write who still reads an older state.
QString nextNumber(desk::Database& database) {
    desk::Query highest = database.run(QStringLiteral("select max(idrif1) from {schema}.tblWorkspace"));
    const int next = highest.next() ? highest.text(0).section(QLatin1Char('-'), 1).toInt() + 1 : 1;
    return QStringLiteral("2025-%1").arg(next, 4, 10, QLatin1Char('0'));
}

// Waits for the start, then stores plans as an editor does: the next free number, and another one when it was taken.
int storeNumbered(desk::Database& database, const QString& patientId) {
    desk::PatientRecord patient(database, QStringLiteral("Conti Giulia"));
    if (!patient.Init(patientId)) return 2;
    QTextStream out(stdout);
    out << "pronto" << Qt::endl;
    QTextStream(stdin).readLine();
    for (int stored = 0; stored < 15;) {
        const QString number = nextNumber(database);
        QString id;
        try {
            if (!patient.corvala().Salva(id, {QStringLiteral("22/11/2025"), number, number, QStringLiteral("TRT"),
                                              QStringLiteral("<trattamento/>")}))
                return 3;
            ++stored;
        } catch (const host::NumberTakenError&) {
            out << "preso" << Qt::endl;
        }
    }
    return 0;
}

// Comes and goes for ever: opens the practice, stores one plan, tells so, closes.
int startOverAndOver(const desk::DatabaseUrl& url, const QString& patientId) {
    QTextStream out(stdout);
    for (int i = 1;; ++i) {
        QThread::msleep(60);
        try {
            const auto database = desk::Database::open(url);
            desk::PatientRecord patient(*database, QStringLiteral("Conti Giulia"));
            QString id;
            const QString number = QStringLiteral("2025-%1/%2").arg(QCoreApplication::applicationPid()).arg(i);
            if (patient.Init(patientId) && patient.corvala().Salva(id, {QStringLiteral("22/11/2025"), number, number,
                                                                        QStringLiteral("TRT"), number.repeated(500)}))
                out << id << Qt::endl; // only what was confirmed is announced
        } catch (const desk::DatabaseError&) {
            // Somebody else has it for himself; a person would try again, too.
        }
    }
}

// Adds patients, each together with a record, in one transaction.
int addPairs(desk::Database& database) {
    QTextStream out(stdout);
    for (int i = 1;; ++i) {
        desk::Transaction transaction(database);
        const QString id = QStringLiteral("coppia-%1").arg(i);
        database.run(QStringLiteral("insert into {schema}.tblPazienti (ID, Cognome, Nome) values (?, 'Coppia', 'a')"),
                     {id});
        database.run(
            QStringLiteral(
                "insert into {schema}.tblWorkspace (ID, tiporecord, t1, idpaziente) values (?, 906, 'PGM', ?)"),
            {id, id});
        transaction.commit();
        out << i << Qt::endl;
    }
}

int guess(desk::Database& database, const QString& code) {
    QTextStream out(stdout);
    out << "pronto" << Qt::endl;
    QTextStream(stdin).readLine();
    desk::SignIn signIn(database);
    for (int i = 0; i < 3; ++i)
        if (signIn.attempt(code, QStringLiteral("x")) == desk::SignIn::Outcome::Wrong) out << "provata" << Qt::endl;
    return 0;
}

int hold(const desk::DatabaseUrl& url) {
    const auto database = desk::Database::open(url);
    QTextStream(stdout) << "aperto" << Qt::endl;
    QTextStream(stdin).readLine();
    return 0;
}

int openOnly(const desk::DatabaseUrl& url) {
    QTextStream out(stdout);
    try {
        desk::Database::open(url);
    } catch (const desk::DatabaseError& error) {
        out << error.text() << Qt::endl;
        return 1;
    }
    out << "aperto" << Qt::endl;
    return 0;
}

} // namespace

int main(int argc, char** argv) {
    QCoreApplication application(argc, argv);
    const QStringList arguments = application.arguments();
    const desk::DatabaseUrl url = desk::DatabaseUrl::parse(arguments.value(2));
    if (arguments.value(1) == QLatin1String("save"))
        return saveUntilKilled(*desk::Database::open(url), arguments.value(3), arguments.value(4).toInt());
    if (arguments.value(1) == QLatin1String("number"))
        return storeNumbered(*desk::Database::open(url), arguments.value(3));
    if (arguments.value(1) == QLatin1String("restart")) return startOverAndOver(url, arguments.value(3));
    if (arguments.value(1) == QLatin1String("pairs")) return addPairs(*desk::Database::open(url));
    if (arguments.value(1) == QLatin1String("guess")) return guess(*desk::Database::open(url), arguments.value(3));
    if (arguments.value(1) == QLatin1String("hold")) return hold(url);

    constexpr uid_t nobody = 65534; // the tests may run as root, for whom nothing is read-only
    if (geteuid() == 0 && setuid(nobody) != 0) return 4;
    return openOnly(url);
}
