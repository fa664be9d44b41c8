// A second program for the tests that need one: a workstation that dies in the middle of its work, several that number
// their plans at once, and a user without rights.

#include "desk/data/Database.h"
#include "desk/data/DatabaseError.h"
#include "desk/data/PatientRecord.h"
#include "host/contract/HostError.h"

#include <QCoreApplication>
#include <QTextStream>
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

    constexpr uid_t nobody = 65534; // the tests may run as root, for whom nothing is read-only
    if (geteuid() == 0 && setuid(nobody) != 0) return 4;
    return openOnly(url);
}
