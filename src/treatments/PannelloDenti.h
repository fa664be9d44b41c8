#pragma once

#include "chart/ComposizioneDenti.h"

#include <QList>
#include <QString>
#include <QWidget>

class EvidencePanel;
class ToothChart;

/// The chart of the plan editor with what stands beside it. It follows the rows that it is given, keeps the situation
/// of the teeth, and tells what the user points at. Owned by the window.
class PannelloDenti : public QWidget {
    Q_OBJECT

public:
    explicit PannelloDenti(QWidget* parent = nullptr);

    void caricaSituazione(const QString& situazioneOrale);
    QString situazioneOrale() const { return composizione_.SituazioneOrale(); }
    void aggiorna(const QList<RigoGrafico>& righi); ///< Services and status marks, from the rows.
    /// Marks the teeth of a selection ("1.1" or "+1.1;1.2"); empty clears all marks.
    void plbSelezionaTooh(const QString& denti);
    /// The entry of a tooth, "index:situation:text"; a plain one has empty parts.
    QString voce(int indice) const;
    const DenteComposto& dente(int indice) const { return composizione_.tooth(indice); }
    void applica(int indice, const QString& voce); ///< Gives a tooth the situation and text of the entry.
    void setSolaLettura() { solaLettura_ = true; }

signals:
    void denteScelto(const QString& dente); ///< Clicked and now marked; empty when the click took the marks away.
    void servizioScelto(const QString& servizio);
    void informazioniChieste(int indice); ///< The tooth's own window.

private:
    void clicDente(int indice);
    void menuDente(int indice);

    ToothChart* denti_;
    EvidencePanel* evidenza_;
    ComposizioneDenti composizione_;
    bool solaLettura_ = false;
};
