#pragma once

#include "host/ListReading.h"
#include "treatments/modSituazioneDente.h"

#include <QDialog>

class QComboBox;
class QLabel;
class QLayout;
class QLineEdit;
class QPushButton;
class ToothBox;

struct clsItemTrattamento;

namespace platform {
class ReportGrid;
}

/// One tooth of a plan: its situation with a text, and what the patient's plans have done to it. Modal, one per call of
/// ScegliSituazioneDente.
class frmEditDente : public QDialog {
    Q_OBJECT

public:
    frmEditDente(const PianoDelDente& piano, int indice, const DenteComposto& dente, QWidget* parent = nullptr);

    void carica(const QString& voce); ///< The entry "index:situation:text".
    QString voce() const;             ///< The entry as it stands in the controls.
    bool confermato() const { return result() == Accepted; }

private:
    QLayout* colonnaDente();
    void costruisciCampi();
    void costruisciElenchi();
    void disponi();
    void riempiSituazioni();
    void riempiTrattamenti();
    void mostraRighi();
    void mostraSituazione(); ///< The picture follows the situation that is chosen.
    void togliSituazione();

    PianoDelDente piano_;
    int indice_;
    DenteComposto dente_;
    ToothBox* immagine_ = nullptr;
    QLabel* laDente_ = nullptr;
    QComboBox* cbSituazione_ = nullptr;
    QPushButton* cbNessuna_ = nullptr;
    QLineEdit* tbDati_ = nullptr;
    platform::ReportGrid* rcTrattamenti_ = nullptr;
    platform::ReportGrid* rcRighi_ = nullptr;
    ListReading reading_{[this] { riempiTrattamenti(); }, this};
    ListReading readingRows_{[this] { mostraRighi(); }, this};
    QPushButton* cbConferma_ = nullptr;
    QPushButton* cbAnnulla_ = nullptr;
};
