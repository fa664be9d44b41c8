#pragma once

#include <QString>

// What ribbon and summary ask of the plans of the open patient. HostError tells that they could not be read.

void rereadPlans();              ///< The next question sees what other workstations wrote.
qint16 ContaTrattamentiAperti(); ///< Plans with work going on.
QString
UltimoTrattamentoAperto();  ///< `ID` of the last plan with work going on, in the order of the list; empty for none.
QString PrimoTrattamento(); ///< `ID` of the first plan; empty for none.
