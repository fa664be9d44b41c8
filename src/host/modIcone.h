#pragma once

#include <QIcon>

/// Status marks of the lists, by their index: 2 work going on (amber), 3 finished (green), 4 paid (green), 5 still to begin
/// (red). An empty icon for any other index.
QIcon IconaStato(int indice);

/// The module's mark, worn by every child window.
QIcon IconaModulo();
