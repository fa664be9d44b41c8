#pragma once

#include "documents/EditorResult.h"

#include <QString>

class Commands;

namespace host {
class Paziente;
}

/// The plan that was opened last; empty for a new one. Written for whoever looks at the module from outside.
extern QString sIDTrattamento;

/// Opens the plan editor, modal, on a plan of the open patient; a new one with an empty id. With the number of a row
/// that row is opened at once.
EditorResult ApriTrattamento(const QString& id, const QString& row = {});

/// Deletes a plan of that patient as the manager does, questions included. One that the host could not read is told of;
/// false then, and when the user decides against it.
bool deleteTreatment(host::Paziente& patient, const QString& id);

/// The commands of the plans: the practice-wide list, a new plan, the plan of the patient.
void addTreatmentCommands(Commands& commands);
