#pragma once

#include "host/contract/Archivio.h"

#include <QList>
#include <QString>

// Records keep a user by tax code; windows show a display name: surname, " dott. " for a doctor, and name. A host
// that cannot tell its users gives empty answers.

/// Display name of the user with that tax code; the code itself when no user has it.
QString DescrizioneUtente(const QString& codicefiscale);

/// Tax code of the first user with that display name, in either form; empty when there is none.
QString CodiceFiscaleUtente(const QString& descrizione);

/// The display name of a user at hand.
QString NomeUtente(const host::VoceUtente& utente);

/// Those users of a kind (0 doctors, 3 assistants) who may be chosen today, in the host's order: who left the practice
/// is still named in records, and offered no more.
QList<host::VoceUtente> UtentiDaScegliere(int tipo);
