#pragma once

#include "chart/ComposizioneDenti.h"
#include "treatments/clsItemRigoTrattamento.h"

#include <QList>
#include <QString>
#include <QWidget>
#include <array>

class QKeyEvent;
class QPushButton;
class QTimer;
class frmZoomRighiTrattamento;

namespace platform {
class ReportGrid;
class ReportRecord;
} // namespace platform

struct clsItemTrattamento;

/// The rows of the plan editor: the grid rcRighi, the buttons cbRighi(0) to cbRighi(3), the context menu and the keys,
/// the edit in the cells. The grid is the working copy; the window takes the rows from it when it saves. Owned by the
/// window.
class RigheTrattamento : public QWidget {
    Q_OBJECT

public:
    enum Comando { NUOVO = 0, MODIFICA = 1, ELIMINA = 2, ZOOM = 3 };

    explicit RigheTrattamento(QWidget* parent = nullptr);

    void carica(const clsItemTrattamento& item);
    QList<clsItemRigoTrattamento> righi() const; ///< As they will be stored; without the number of the plan.
    QList<RigoGrafico> perIlDisegno() const;
    /// Reference of the plan's advance invoice, which new rows count as covered by; empty for none.
    void setFatturaAnticipo(const QString& riferimento) { fatturaAnticipo_ = riferimento; }
    void setSolaLettura();

    /// Runs a command through the timer tmRighi, after the event at hand has ended.
    void arma(Comando comando);
    void concludiModifica();     ///< Ends the edit in a cell with all that follows from it.
    void premi(Comando comando); ///< As a click on its button: nothing when that is disabled.

    /// Shows the rows of a tooth bold; empty ends it.
    void evidenzia(const QString& dente);
    /// The teeth of all rows with a service, as a selection.
    QString dentiDelServizio(const QString& servizio) const;
    void copia(frmZoomRighiTrattamento& zoom) const; ///< The rows as they stand, to be read only.
    bool haRigo(const QString& numero) const { return rigoNumero(numero) != nullptr; }
    bool apriRigo(const QString& numero); ///< The row editor on the row of that number; true when it was accepted.

signals:
    void zoomChiesto();
    void cambiati();                       ///< Chart, marks and totals must follow.
    void rigoScelto(const QString& denti); ///< Teeth of the row now selected.

private:
    void costruisciColonne();
    void collega();
    platform::ReportRecord* aggiungi(const clsItemRigoTrattamento& rigo);
    platform::ReportRecord* rigoNumero(const QString& numero) const; ///< Null when there is none.
    void esegui(int comando);
    void nuovoRigo();
    bool modificaRigo(platform::ReportRecord* record);
    void eliminaRigo();
    void rinumera();
    void sposta(int passo);
    void completaScelte(platform::ReportRecord& record) const;
    void tasto(QKeyEvent* evento);
    void mostraMenu();
    void doppioClic(platform::ReportRecord* record, int colonna);

    void cellaCambiata(platform::ReportRecord* record, int colonna);
    void servizioScritto(platform::ReportRecord& record, int colonna);
    void cercaServizio(platform::ReportRecord& record);
    void applicaServizio(platform::ReportRecord& record);
    void scegliDenti(platform::ReportRecord* record);
    void tornaAlRigo(platform::ReportRecord* record);
    void riprendeFuoco();
    int posizione(const platform::ReportRecord* record) const;

    platform::ReportGrid* rcRighi_ = nullptr;
    std::array<QPushButton*, 4> cbRighi_{};
    QTimer* tmRighi_ = nullptr;
    QTimer* tmSetFocusOnRow_ = nullptr;
    int comandoArmato_ = -1;
    int rigoDaFocalizzare_ = -1;
    QString fatturaAnticipo_;
    bool solaLettura_ = false;
    QStringList gruppi_;
    QStringList operatori_;
    QStringList assistenti_;
};
