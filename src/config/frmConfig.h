#pragma once

#include "config/clsListaReports.h"

#include <QDialog>
#include <array>

class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QPushButton;
class QStackedWidget;
class QTreeWidget;

/// Modal window of the settings, by topic, with the tools for print reports and lock files. Writes every setting when
/// it is told to apply, and stays open; what cannot be written is told, and the window keeps what was typed. Borrows
/// the configuration.
class frmConfig : public QDialog {
    Q_OBJECT

public:
    explicit frmConfig(QWidget* parent = nullptr);

    /// Removes the marks of records in use, of all workstations. False when one could not be removed, which was told.
    bool RimuoviTuttiLock();

protected:
    void showEvent(QShowEvent* event) override;

private:
    // What it is made of (frmConfigCampi.cpp).
    void costruisci();
    void aggiungiCornice(const QString& voce, QWidget* cornice);
    QWidget* pbIntestazione();
    QWidget* pbTrattamenti();
    QWidget* pbFatturazione();
    QWidget* pbStrumenti();
    QWidget* pbOpzioni();

    void collega();
    void leggi();
    void leggiIntestazione();
    void applica();
    bool importiLeggibili(); ///< False after the user was told which amount is none.
    void scrivi();
    void cambiato();
    void mostraCarattere();
    void azzeraLock();

    // By their place in Text1; the details, which have more lines, are a box of their own.
    enum Testo { DESCRIZIONE, BOLLO, BOLLO_PLAFON, TESTI };
    enum Opzione { RICETTE_BIANCHE, APPUNTI_MODALI, RIGO_VUOTO, UTILIZZO_MMG, OPZIONI };
    enum Trattamento { PEGGIOR_STATUS, UNICA_SCHEDA, TRATTAMENTI };
    enum Strumento { IMPOSTA_REPORT, AZZERA_LOCK, STRUMENTI };

    QTreeWidget* treeView1_ = nullptr;
    QStackedWidget* cornici_ = nullptr;
    std::array<QLineEdit*, TESTI> text1_{};
    QPlainTextEdit* dettagli_ = nullptr;
    QComboBox* cbIVA_ = nullptr;
    QComboBox* cbFont_ = nullptr;
    QLabel* laEsempio_ = nullptr;
    QLabel* laFontAssente_ = nullptr;
    std::array<QCheckBox*, TRATTAMENTI> cbTrattamenti_{};
    std::array<QCheckBox*, OPZIONI> cbOpzioni_{};
    std::array<QPushButton*, STRUMENTI> cbStrumenti_{};
    QPushButton* cbConferma_ = nullptr;
    QPushButton* cbAnnulla_ = nullptr;
    clsListaReports reports_;
};
