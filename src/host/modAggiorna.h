#pragma once

#include <QString>

// The fan-out with which one window tells the others that data has changed. Each routine finds its window among the
// open ones and does nothing when it is not open. `id` is the record to highlight; empty for none.

void RefreshPreventivi(const QString& id);
void RefreshFatture(const QString& id);
void RefreshPagamenti(const QString& id);
void RefreshTrattamenti(const QString& id);
void RefreshGraficaPreventivi();
void RefreshGraficaFatture();
void RefreshGraficaPagamenti();
void RefreshGraficaTrattamenti();
void RefreshSintesi();
void RefreshImmagini();
