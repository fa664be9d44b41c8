#pragma once

#include <QString>

class Comandi;

/// Opens the plan editor, modal, on a plan of the open patient; a new one with an empty id. After a good confirm what
/// is open is refreshed.
void ApriTrattamento(const QString& id);

/// Adds the commands of the plans: the practice-wide list, a new plan, the plan of the patient.
void registraTrattamenti(Comandi& comandi);
