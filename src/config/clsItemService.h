#pragma once

#include <QString>

/// A command of the module, as the configuration offers it to the practice.
struct clsItemService {
    qint32 ID = 0; ///< Command id, given by the host.
    QString Key;
    QString Endpoint;
    QString Biblio; ///< Lines joined by CR LF: title, a tab, caption, ";", address.
    bool Enabled = false;
    bool Patient = false; ///< Needs a patient open in the desk.
};
