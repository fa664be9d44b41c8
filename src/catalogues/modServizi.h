#pragma once

#include "store/Amount.h"

#include <QString>

/// Look-ups in the service catalogue by code, for rows of plans and documents. An empty or unknown code is answered
/// with nothing, never an error.

/// The code as the catalogue spells it, for one typed in other letters or with blanks around it.
QString serviceCode(const QString& id);
bool ServizioInEvidenza(const QString& id,
                        QString& shortText); ///< `shortText` is the short text, empty for an unknown code.
Amount PrezzoServizio(const QString& id);
QString StatusLavoriServizio(const QString& id); ///< Names of the intermediate states, one a line.
QString RaggruppamentoServizio(const QString& id);
