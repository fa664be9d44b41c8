#pragma once

#include "host/contract/Archivio.h"

#include <QList>
#include <QString>

// Records keep a user by tax code; windows show a display name: surname, " dott. " for a doctor, and name. A host
// that cannot tell its users gives empty answers.

/// Display name of the user with that tax code; the code itself when no user has it.
QString DescrizioneUtente(const QString& taxCode);

/// Tax code of the first user with that display name, in either form; empty when there is none.
QString CodiceFiscaleUtente(const QString& description);

/// The display name of a user at hand.
QString displayName(const host::VoceUtente& user);

/// Those users of a kind (0 doctors, 3 assistants) who may be chosen today, in the host's order: who left the practice
/// is still named in records, and offered no more.
QList<host::VoceUtente> usersToChooseFrom(int kind);
