#pragma once

#include <QString>

// Records keep a user by tax code; windows show a display name: surname, " dott. " for a doctor, and name.

/// Display name of the user with that tax code; the code itself when no user has it.
QString DescrizioneUtente(const QString& codicefiscale);

/// Tax code of the first user with that display name, in either form; empty when there is none.
QString CodiceFiscaleUtente(const QString& descrizione);
