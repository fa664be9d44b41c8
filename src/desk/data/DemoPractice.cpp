#include "desk/data/DemoPractice.h"

#include "desk/data/Database.h"
#include "desk/data/DemoPlans.h"
#include "desk/data/DemoTable.h"
#include "desk/data/PatientDirectory.h"
#include "desk/data/PatientRecord.h"
#include "desk/data/Transaction.h"
#include "desk/data/UserDirectory.h"
#include "platform/Regional.h"

namespace desk {

namespace {

const QString sign = QStringLiteral("Conti Giulia"); // who keeps the cards of this practice

QDate dateIn(const DemoTable& table, int row, const char* column = "data") {
    return QDate::fromString(table.text(row, column), Qt::ISODate);
}

void require(bool done) {
    if (!done) throw DatabaseError(QStringLiteral("I dati di prova non possono essere registrati."));
}

} // namespace

bool DemoPractice::fill(Database& database) {
    if (!database.isEmpty()) return false;
    Transaction transaction(database);
    DemoPractice practice(database);
    practice.addUsers();
    practice.addPatients();
    practice.addPatientRows();
    practice.addPlans();
    transaction.commit();
    return true;
}

void DemoPractice::addUsers() {
    const DemoTable table(QStringLiteral("utenti"));
    UserDirectory directory(database_);
    for (int i = 0; i < table.size(); ++i) {
        UserData user{{},
                      table.text(i, "codice"),
                      table.text(i, "Cognome"),
                      table.text(i, "Nome"),
                      table.text(i, "codicefiscale"),
                      table.number(i, "tipo"),
                      table.text(i, "codiceattivita")};
        require(directory.insert(user));
        users_.insert(user.codice, user);
    }
}

void DemoPractice::addPatients() {
    const DemoTable table(QStringLiteral("pazienti"));
    PatientDirectory directory(database_, sign);
    for (int i = 0; i < table.size(); ++i) {
        PatientData patient;
        patient.Cognome = table.text(i, "Cognome");
        patient.Nome = table.text(i, "Nome");
        patient.codicefiscale = table.text(i, "codicefiscale");
        patient.dataNascita = dateIn(table, i, "datanascita");
        patient.luogoNascita = table.text(i, "luogonascita");
        patient.sesso = table.text(i, "sesso");
        patient.indirizzo = table.text(i, "indirizzo");
        patient.cap = table.text(i, "cap");
        patient.citta = table.text(i, "citta");
        patient.provincia = table.text(i, "provincia");
        patient.telefono = table.text(i, "telefono");
        patient.email = table.text(i, "email");
        patient.idMedico = users_.value(table.text(i, "medico")).ID;
        patient.note = table.text(i, "note");
        require(directory.insert(patient));
        patientIds_.insert(patient.codicefiscale, patient.ID);
    }
}

template <class AddRow>
void DemoPractice::eachRow(const QString& name, AddRow addRow) {
    const DemoTable table(name);
    for (int i = 0; i < table.size(); ++i) {
        PatientRecord owner(database_, sign);
        require(owner.Init(patientIds_.value(table.text(i, "codicefiscale"))));
        require(addRow(owner, table, i));
    }
}

void DemoPractice::addPatientRows() {
    eachRow(QStringLiteral("appunti"), [](PatientRecord& owner, const DemoTable& table, int i) {
        host::Appunto note{{},
                           dateIn(table, i).startOfDay(),
                           table.number(i, "privato"),
                           table.number(i, "importante"),
                           table.text(i, "testo")};
        return owner.Appunti().Salva(note);
    });
    eachRow(QStringLiteral("visite"), [](PatientRecord& owner, const DemoTable& table, int i) {
        host::Visita visit{{}, dateIn(table, i).startOfDay(), table.text(i, "descrizione")};
        return owner.VisiteAmbDom().Salva(visit);
    });
    eachRow(QStringLiteral("eventi"), [](PatientRecord& owner, const DemoTable& table, int i) {
        host::Evento event{{}, platform::regional().shortDate(dateIn(table, i)), table.text(i, "descrizione"), {}};
        return owner.Eventi().Salva(event);
    });
    eachRow(QStringLiteral("scadenze"), [](PatientRecord& owner, const DemoTable& table, int i) {
        DueDate due{{}, dateIn(table, i), table.text(i, "descrizione"), table.number(i, "chiusa") != 0};
        return owner.scadenze().Salva(due);
    });
}

void DemoPractice::addPlans() {
    const DemoPlans plans;
    PatientDirectory directory(database_, sign);
    for (int i = 0; i < plans.size(); ++i) {
        const auto data = directory.load(patientIds_.value(plans.taxCode(i)));
        PatientRecord owner(database_, sign);
        require(data && owner.Init(data->ID));
        const host::DatiCorvala plan{plans.date(i), plans.number(i), plans.description(i), QStringLiteral("TRT"),
                                     plans.memo(i, *data, users_.value(plans.doctorCode(i)))};
        QString id;
        require(owner.corvala().Salva(id, plan));
    }
}

} // namespace desk
