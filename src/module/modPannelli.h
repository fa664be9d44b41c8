#pragma once

#include <QString>
#include <QStringList>

namespace host {
class View;
}

// The lists that the module gives the host's archive as panels.

/// Names of the panels, in the order in which the host is told them.
QStringList panelNames();

/// The list behind a panel; null for a panel of somebody else.
host::View* panelView(const QString& name);

/// Rereads everything shown for the open patient, what other workstations wrote included: child windows and loaded
/// panels. One that fails does not keep the others.
void refreshPatientData();
