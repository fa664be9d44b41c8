#pragma once

#include <QString>

namespace desk {

/// One who works in the practice.
struct UserData {
    static constexpr int doctor = 0;
    static constexpr int assistant = 3;

    QString ID;
    QString codice; ///< Short code with which the user signs in.
    QString Cognome;
    QString Nome;
    QString codicefiscale;
    int tipo = doctor;
    QString codiceAttivita;    ///< Two letters; "OD" dentistry.
    bool attivo = true;        ///< One who left stays for the sake of the records, but signs in no more.
    bool asksPassword = false; ///< Read only: whether a password is asked at sign-in.

    bool isDoctor() const { return tipo == doctor; }
    QString fullName() const { return (Cognome + QLatin1Char(' ') + Nome).trimmed(); }
};

} // namespace desk
