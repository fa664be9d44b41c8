#pragma once

#include <QString>

namespace desk {

/// One who works in the practice.
struct UserData {
    QString ID;
    QString codice; ///< Short code with which the user signs in.
    QString Cognome;
    QString Nome;
    QString codicefiscale;
    int tipo = 0;           ///< 0 a doctor, 3 an assistant.
    QString codiceAttivita; ///< Two letters; "OD" dentistry.
};

} // namespace desk
