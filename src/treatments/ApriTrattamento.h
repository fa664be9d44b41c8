#pragma once

#include <QString>

class Commands;

namespace host {
class Paziente;
}

/// Opens the plan editor, modal, on a plan of the open patient; a new one with an empty id. After a good confirm what
/// is open is refreshed.
void ApriTrattamento(const QString& id);

/// Deletes a plan of that patient as the manager does, questions included. One that the host could not read is told of;
/// false then, and when the user decides against it.
bool deleteTreatment(host::Paziente& patient, const QString& id);

/// Adds the commands of the plans: the practice-wide list, a new plan, the plan of the patient.
void registerTreatments(Commands& commands);
