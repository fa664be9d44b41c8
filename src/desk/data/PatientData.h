#pragma once

#include <QDate>
#include <QString>

namespace desk {

/// All that is kept of a patient.
struct PatientData {
    QString ID;
    QString Cognome;
    QString Nome;
    QString codicefiscale;
    QDate dataNascita;
    QString luogoNascita;
    QString sesso; ///< "M" or "F".
    QString indirizzo;
    QString cap;
    QString citta;
    QString provincia;
    QString domicilio; ///< Where the patient lives, if elsewhere: street and number.
    QString capDomicilio;
    QString cittaDomicilio;
    QString provinciaDomicilio;
    QString telefono;
    QString cellulare;
    QString email;
    QString idMedico;
    QString note;

    friend bool operator==(const PatientData&, const PatientData&) = default;
};

/// A patient in a list of search results.
struct PatientSummary {
    QString ID;
    QString Cognome;
    QString Nome;
    QString codicefiscale;
    QDate dataNascita;
    QString medico; ///< Surname and name of the doctor; empty without one.
};

} // namespace desk
