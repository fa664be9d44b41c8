#pragma once

#include <QDialog>
#include <QString>

class CollegamentiTrattamento;
class PannelloDenti;
class QPushButton;
class QTabWidget;
class RigheTrattamento;
class TestataTrattamento;
class TotaliTrattamento;

struct clsItemTrattamento;

/// The editor of one treatment plan of the open patient. Opens the plan whose id stands in `sIDTrattamento`, a new one
/// when that is empty, and holds its lock while it is open; a plan in use elsewhere, or one that
/// could not be read whole, shows read-only.
/// `Framework.DialogCancel` is its result: false only after a good confirm. Its parts do the work: header, rows, chart,
/// totals, links.
class frmEditTrattamento : public QDialog {
    Q_OBJECT

public:
    explicit frmEditTrattamento(QWidget* parent = nullptr);
    ~frmEditTrattamento() override;

    /// With a row asked for in `sRigoTrattamento` only the row editor shows, and the plan follows its answer unseen,
    /// unless it cannot be saved. A number that no row bears counts as none.
    int exec() override;
    void done(int result) override;
    void reject() override; ///< Escape and the frame: cancels without a question.

protected:
    void showEvent(QShowEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void costruisci();
    void collega();
    void leggi();
    void caricaTrattamento();
    void setSolaLettura();
    void nonLetto(const QString& perche);
    void primaAttivazione();
    void aggiornaDisegno();
    void apriDente(int indice);
    void apriZoom();
    void premiTasto(int indice);

    void conferma();
    bool verifica();
    bool salva();
    void confermato();
    void annulla();
    clsItemTrattamento componi();
    void liberaLock();

    QString id_; ///< Of the plan at hand; empty for a new one.
    bool solaLettura_ = false;
    bool attivata_ = false;
    TestataTrattamento* testata_ = nullptr;
    PannelloDenti* denti_ = nullptr;
    RigheTrattamento* righe_ = nullptr;
    TotaliTrattamento* totali_ = nullptr;
    CollegamentiTrattamento* collegamenti_ = nullptr;
    QTabWidget* schede_ = nullptr;
    QPushButton* cbConferma_ = nullptr;
    QPushButton* cbAnnulla_ = nullptr;
    QPushButton* cbFattura_ = nullptr;
    QPushButton* cbPreventivo_ = nullptr;
};
