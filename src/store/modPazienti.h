#pragma once

#include <QString>
#include <memory>

namespace host {
class Paziente;
}

/// Opens the host's patient search on a name, or on a tax code when only that is given. Null when none is chosen.
std::unique_ptr<host::Paziente> CercaPaziente(const QString& fullName, const QString& taxCode);

/// The search, then ApriPaziente. Every command that needs a patient and finds none calls it with two empty texts and
/// goes on only when one is open afterwards.
bool SelezionaPaziente(const QString& fullName, const QString& taxCode);

/// Makes the host open that patient and waits a while until it has; goes on regardless then. False only without a
/// patient, or when the host cannot even be asked.
bool ApriPaziente(const host::Paziente* patient);
