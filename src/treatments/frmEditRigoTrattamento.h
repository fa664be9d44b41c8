#pragma once

#include <QDialog>
#include <QList>
#include <array>

class PannelloStadio;
class QCheckBox;
class QComboBox;
class QDateEdit;
class QGridLayout;
class QGroupBox;
class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QPushButton;
class QTimer;

struct clsItemRigoTrattamento;

/// The editor of one row of a plan, with the intermediate stages of its service. Fills from a row and gives it back;
/// the hidden label laOUTB reads "OK" after "Accetta". Modal, one per call of ModificaRigoTrattamento.
class frmEditRigoTrattamento : public QDialog {
    Q_OBJECT

public:
    explicit frmEditRigoTrattamento(QWidget* parent = nullptr);
    ~frmEditRigoTrattamento() override;

    void carica(const clsItemRigoTrattamento& rigo);
    void scrivi(clsItemRigoTrattamento& rigo) const;
    void setSolaLettura(); ///< The row can be seen but not changed.
    bool accettato() const;

    void reject() override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    // Places in tbDati_ and cerca_.
    enum Campo { SERVIZIO = 0, DESCRIZIONE = 2, OPERATORE = 3, ASSISTENTE = 4, DENTI = 5 };
    enum Ricerca { CERCA_SERVIZIO, CERCA_OPERATORE, CERCA_ASSISTENTE, CERCA_DENTE };

    void costruisciCampi();
    void disponi();
    void ordinaCampi();
    QGroupBox* areaLavori();
    QGroupBox* areaStadi();
    void collega();
    void accetta();

    void servizioCambiato();
    void servizioScritto();
    void dentiScritti();
    void prezzoScritto();
    float prezzo() const; ///< The catalogue's while the row has none of its own.
    void cercaServizio();
    void applicaServizio();
    void scegliDenti();
    void scegliUtente(int tipo, QLineEdit* campo);
    void aggiornaTotale();
    void avvisaServizio();
    void mostraDate();
    void caricaDate(const clsItemRigoTrattamento& rigo);

    QLabel* laProgressivo_ = nullptr;
    std::array<QLineEdit*, 6> tbDati_{}; ///< Number 1 is not in use.
    QPlainTextEdit* tbNote_ = nullptr;   ///< tbDati(6)
    std::array<QPushButton*, 4> cerca_{};
    std::array<QLineEdit*, 2> tbTotali_{};
    QComboBox* cbRaggrMerc_ = nullptr;
    std::array<QCheckBox*, 2> cbDate_{};
    std::array<QDateEdit*, 2> dtpData_{};
    QCheckBox* cbFuoriPreventivo_ = nullptr;
    std::array<PannelloStadio*, 4> pbStatus_{};
    QGroupBox* areaStadi_ = nullptr;
    QLabel* laOUTB_ = nullptr;
    QPushButton* cbAccetta_ = nullptr;
    QPushButton* cbAnnulla_ = nullptr;
    QTimer* tmCavolo_ = nullptr;
    QString servizio_;       ///< The service of the catalogue that was applied last.
    bool fatturato_ = false; ///< An invoiced row keeps its price, even if that is 0.
};

/// Lets the user edit a row; true when accepted, and the row then holds the new values. Its number, invoice and keys
/// are left as they are.
bool ModificaRigoTrattamento(clsItemRigoTrattamento& rigo, bool solaLettura, QWidget* parent = nullptr);
