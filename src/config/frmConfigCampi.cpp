// The controls of the settings window: what they are called and where they lie.
#include "config/frmConfig.h"
#include "platform/FormLayout.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFrame>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRegularExpressionValidator>
#include <QStackedWidget>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace form = platform::form;

namespace {

constexpr int LARGHEZZA_VOCI = 168;
constexpr int LARGHEZZA_IMPORTO = 110;
constexpr int CIFRE_IMPORTO = 12;

/// A sentence with a field in the gap that its blanks leave.
class FraseConCampo : public QLabel {
public:
    FraseConCampo(const QString& frase, QLineEdit* campo, QWidget* parent)
        : QLabel(frase, parent)
        , campo_(campo) {
        campo_->setParent(this);
        setTextFormat(Qt::PlainText);
        setMinimumHeight(campo_->sizeHint().height());
        setBuddy(campo_);
    }

protected:
    void resizeEvent(QResizeEvent* event) override {
        QLabel::resizeEvent(event);
        const qsizetype inizio = text().indexOf(QLatin1String("  "));
        qsizetype fine = inizio;
        while (fine < text().size() && text()[fine] == QLatin1Char(' '))
            ++fine;
        const int sinistra = fontMetrics().horizontalAdvance(text().left(inizio + 1));
        const int destra = fontMetrics().horizontalAdvance(text().left(fine - 1));
        const int altezza = campo_->sizeHint().height();
        campo_->setGeometry(sinistra, (height() - altezza) / 2, destra - sinistra, altezza);
    }

private:
    QLineEdit* campo_;
};

/// The frame of a topic, with a column for its rows.
QGroupBox* cornice(const char* nome, const QString& titolo, QGridLayout*& griglia) {
    QGroupBox* fatta = form::named(form::titledArea(titolo, nullptr), QLatin1String(nome));
    auto* colonna = new QVBoxLayout(fatta);
    colonna->setContentsMargins(16, 14, 16, 14);
    griglia = new QGridLayout;
    griglia->setHorizontalSpacing(8);
    griglia->setVerticalSpacing(10);
    griglia->setColumnStretch(1, 1);
    colonna->addLayout(griglia);
    colonna->addStretch(1);
    return fatta;
}

QLabel* nota(const QString& testo) {
    auto* fatta = new QLabel(testo);
    fatta->setForegroundRole(QPalette::PlaceholderText);
    fatta->setWordWrap(true);
    return fatta;
}

/// A note that stands below the caption of a check box.
QLabel* notaRientrata(const QString& testo) {
    QLabel* fatta = nota(testo);
    fatta->setContentsMargins(19, 0, 0, 0);
    return fatta;
}

/// An array of check boxes, one a row.
template <std::size_t N>
void caselle(std::array<QCheckBox*, N>& array, const char* nome, const std::array<QString, N>& didascalie,
             QGridLayout& griglia) {
    for (std::size_t i = 0; i < N; ++i) {
        const int riga = static_cast<int>(i);
        array[i] = form::named(new QCheckBox(didascalie[i], griglia.parentWidget()), form::arrayName(nome, riga));
        griglia.addWidget(array[i], riga, 0, 1, 2);
    }
}

} // namespace

void frmConfig::costruisci() {
    treeView1_ = form::named(new QTreeWidget(this), QStringLiteral("TreeView1"));
    treeView1_->setAccessibleName(QStringLiteral("Argomenti"));
    treeView1_->setHeaderHidden(true);
    treeView1_->setIndentation(10); // topics have no branches, only a margin
    treeView1_->setFixedWidth(LARGHEZZA_VOCI);
    cornici_ = new QStackedWidget(this);
    aggiungiCornice(QStringLiteral("INTESTAZIONE"), pbIntestazione());
    aggiungiCornice(QStringLiteral("TRATTAMENTI"), pbTrattamenti());
    aggiungiCornice(QStringLiteral("FATTURAZIONE"), pbFatturazione());
    aggiungiCornice(QStringLiteral("STRUMENTI"), pbStrumenti());
    aggiungiCornice(QStringLiteral("OPZIONI"), pbOpzioni());
    cbConferma_ = form::button(QStringLiteral("cbConferma"), QStringLiteral("APPLICA!"), this);
    cbConferma_->setDefault(true);
    cbAnnulla_ = form::button(QStringLiteral("cbAnnulla"), QStringLiteral("&Chiudi"), this);
    cbAnnulla_->setAutoDefault(false);

    auto* centro = new QHBoxLayout;
    centro->setSpacing(12);
    centro->addWidget(treeView1_);
    centro->addWidget(cornici_, 1);
    auto* corpo = new QVBoxLayout;
    corpo->setContentsMargins(12, 10, 12, 12);
    corpo->setSpacing(10);
    corpo->addLayout(centro, 1);
    corpo->addLayout(form::buttonRow({cbConferma_, cbAnnulla_}));
    auto* colonna = new QVBoxLayout(this);
    colonna->setContentsMargins(0, 0, 0, 0);
    colonna->setSpacing(0);
    colonna->addWidget(form::titleStrip(QStringLiteral("PARAMETRI PROCEDURA"), QString(), this));
    colonna->addLayout(corpo, 1);
    resize(820, 420);
    treeView1_->setFocus();
}

void frmConfig::aggiungiCornice(const QString& voce, QWidget* cornice) {
    cornici_->addWidget(cornice);
    auto* riga = new QTreeWidgetItem(treeView1_, {voce});
    riga->setSizeHint(0, QSize(0, 30));
}

QWidget* frmConfig::pbIntestazione() {
    QGridLayout* griglia = nullptr;
    QGroupBox* fatta = cornice("pbIntestazione", QStringLiteral("Intestazione dei documenti"), griglia);
    text1_[DESCRIZIONE] = form::textBox(form::arrayName("Text1", 0), fatta);
    dettagli_ = form::named(new QPlainTextEdit(fatta), form::arrayName("Text1", 1));
    dettagli_->setTabChangesFocus(true);
    dettagli_->setMinimumHeight(150);
    form::labelledRow(griglia, 0, 0, QStringLiteral("Descrizione:"), text1_[DESCRIZIONE]);
    form::labelledRow(griglia, 1, 0, QStringLiteral("Dettagli:"), dettagli_);
    griglia->addWidget(
        nota(QStringLiteral("Nome dello studio, indirizzo, partita IVA e recapiti, come vanno stampati.")), 2, 1);
    return fatta;
}

QWidget* frmConfig::pbTrattamenti() {
    QGridLayout* griglia = nullptr;
    QGroupBox* fatta = cornice("pbTrattamenti", QStringLiteral("Piani di trattamento"), griglia);
    const std::array<QString, TRATTAMENTI> didascalie{QStringLiteral("Evidenzia status dente per lavori ancora aperti"),
                                                      QStringLiteral("Unica scheda per paziente")};
    caselle(cbTrattamenti_, "cbTrattamenti", didascalie, *griglia);
    griglia->addWidget(notaRientrata(QStringLiteral("I comandi della barra cambiano dal prossimo avvio.")), TRATTAMENTI,
                       0, 1, 2);
    return fatta;
}

QWidget* frmConfig::pbFatturazione() {
    QGridLayout* griglia = nullptr;
    QGroupBox* fatta = cornice("pbFatturazione", QStringLiteral("Fatture e preventivi"), griglia);
    for (const Testo quale : {BOLLO, BOLLO_PLAFON}) {
        text1_[quale] = form::textBox(form::arrayName("Text1", quale + 1), fatta);
        text1_[quale]->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        text1_[quale]->setMaxLength(CIFRE_IMPORTO);
        text1_[quale]->setValidator(
            new QRegularExpressionValidator(QRegularExpression(QStringLiteral("[0-9.,]*")), text1_[quale]));
    }
    text1_[BOLLO]->setFixedWidth(LARGHEZZA_IMPORTO);
    text1_[BOLLO_PLAFON]->setAccessibleName(QStringLiteral("Bollo solo se l'importo dei servizi supera la cifra di"));
    cbIVA_ = form::named(new QComboBox(fatta), QStringLiteral("cbIVA"));
    cbFont_ = form::named(new QComboBox(fatta), QStringLiteral("cbFont"));
    laEsempio_ = form::named(new QLabel(QStringLiteral("Esempio Carattere"), fatta), QStringLiteral("laEsempio"));
    laEsempio_->setFrameShape(QFrame::StyledPanel);
    laEsempio_->setAutoFillBackground(true);
    laEsempio_->setBackgroundRole(QPalette::Base);
    laEsempio_->setAlignment(Qt::AlignCenter);
    laEsempio_->setFixedHeight(56);
    laFontAssente_ = nota(QStringLiteral("Questo carattere non è installato su questa postazione."));
    form::labelledRow(griglia, 0, 0, QStringLiteral("Bollo (default):"), text1_[BOLLO]);
    griglia->addWidget(
        new FraseConCampo(
            QStringLiteral("(solo se l'importo dei servizi supera la cifra di                              )"),
            text1_[BOLLO_PLAFON], fatta),
        1, 1, Qt::AlignLeft);
    form::labelledRow(griglia, 2, 0, QStringLiteral("IVA (default):"), cbIVA_);
    form::labelledRow(griglia, 3, 0, QStringLiteral("Font x Stampa (default):"), cbFont_);
    griglia->addWidget(laEsempio_, 4, 1);
    griglia->addWidget(laFontAssente_, 5, 1);
    return fatta;
}

QWidget* frmConfig::pbStrumenti() {
    QGridLayout* griglia = nullptr;
    QGroupBox* fatta = cornice("pbStrumenti", QStringLiteral("Strumenti"), griglia);
    const std::array<QString, STRUMENTI> didascalie{QStringLiteral("Imposta Report"),
                                                    QStringLiteral("Azzera file lck")};
    const std::array<QString, STRUMENTI> note{QStringLiteral("Sceglie i modelli di stampa di preventivi e fatture"),
                                              QStringLiteral("Rimuove eventuali file di blocco")};
    for (std::size_t i = 0; i < cbStrumenti_.size(); ++i) {
        const int riga = static_cast<int>(i);
        cbStrumenti_[i] = form::button(form::arrayName("cbStrumenti", riga), didascalie[i], fatta);
        cbStrumenti_[i]->setAutoDefault(false);
        cbStrumenti_[i]->setMinimumWidth(150);
        cbStrumenti_[i]->setAccessibleDescription(note[i]);
        griglia->addWidget(cbStrumenti_[i], riga, 0);
        griglia->addWidget(nota(note[i]), riga, 1);
    }
    return fatta;
}

QWidget* frmConfig::pbOpzioni() {
    QGridLayout* griglia = nullptr;
    QGroupBox* fatta = cornice("pbOpzioni", QStringLiteral("Opzioni"), griglia);
    const std::array<QString, OPZIONI> didascalie{
        QStringLiteral("Predisponi eventuale ricetta farmaceutica SSN in carta bianca (non SSN)"),
        QStringLiteral("Mostra appunti importanti di paziente con finestra modale"),
        QStringLiteral("In inserimento nuovo documento (preventivo, trattamento, fattura) predisponi un rigo vuoto"),
        QStringLiteral("Non nascondere le funzionalità previste per i Medici MMG")};
    caselle(cbOpzioni_, "cbOpzioni", didascalie, *griglia);
    griglia->addWidget(notaRientrata(QStringLiteral("La barra dei comandi cambia dal prossimo avvio.")), OPZIONI, 0, 1,
                       2);
    return fatta;
}
