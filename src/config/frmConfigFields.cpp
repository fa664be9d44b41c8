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

constexpr int TOPICS_WIDTH = 168;
constexpr int AMOUNT_WIDTH = 110;
constexpr int AMOUNT_DIGITS = 12;

/// A sentence with a field in the gap that its blanks leave.
class PhraseWithField : public QLabel {
public:
    PhraseWithField(const QString& phrase, QLineEdit* field, QWidget* parent)
        : QLabel(phrase, parent)
        , field_(field) {
        field_->setParent(this);
        setTextFormat(Qt::PlainText);
        setMinimumHeight(field_->sizeHint().height());
        setBuddy(field_);
    }

protected:
    void resizeEvent(QResizeEvent* event) override {
        QLabel::resizeEvent(event);
        const qsizetype from = text().indexOf(QLatin1String("  "));
        qsizetype to = from;
        while (to < text().size() && text()[to] == QLatin1Char(' '))
            ++to;
        const int left = fontMetrics().horizontalAdvance(text().left(from + 1));
        const int right = fontMetrics().horizontalAdvance(text().left(to - 1));
        const int fieldHeight = field_->sizeHint().height();
        field_->setGeometry(left, (height() - fieldHeight) / 2, right - left, fieldHeight);
    }

private:
    QLineEdit* field_;
};

/// The frame of a topic, with a column for its rows.
QGroupBox* topicFrame(const char* name, const QString& title, QGridLayout*& grid) {
    QGroupBox* made = form::named(form::titledArea(title, nullptr), QLatin1String(name));
    auto* column = new QVBoxLayout(made);
    column->setContentsMargins(16, 14, 16, 14);
    grid = new QGridLayout;
    grid->setHorizontalSpacing(8);
    grid->setVerticalSpacing(10);
    grid->setColumnStretch(1, 1);
    column->addLayout(grid);
    column->addStretch(1);
    return made;
}

QLabel* hint(const QString& text) {
    auto* made = new QLabel(text);
    made->setForegroundRole(QPalette::PlaceholderText);
    made->setWordWrap(true);
    return made;
}

/// A note that stands below the caption of a check box.
QLabel* indentedHint(const QString& text) {
    QLabel* made = hint(text);
    made->setContentsMargins(19, 0, 0, 0);
    return made;
}

/// An array of check boxes, one a row.
template <std::size_t N>
void addCheckBoxes(std::array<QCheckBox*, N>& array, const char* name, const std::array<QString, N>& captions,
                   QGridLayout& grid) {
    for (std::size_t i = 0; i < N; ++i) {
        const int row = static_cast<int>(i);
        array[i] = form::named(new QCheckBox(captions[i], grid.parentWidget()), form::arrayName(name, row));
        grid.addWidget(array[i], row, 0, 1, 2);
    }
}

} // namespace

void frmConfig::build() {
    treeView1_ = form::named(new QTreeWidget(this), QStringLiteral("TreeView1"));
    treeView1_->setAccessibleName(QStringLiteral("Argomenti"));
    treeView1_->setHeaderHidden(true);
    treeView1_->setIndentation(10); // topics have no branches, only a margin
    treeView1_->setFixedWidth(TOPICS_WIDTH);
    frames_ = new QStackedWidget(this);
    addFrame(QStringLiteral("INTESTAZIONE"), pbIntestazione());
    addFrame(QStringLiteral("TRATTAMENTI"), pbTrattamenti());
    addFrame(QStringLiteral("FATTURAZIONE"), pbFatturazione());
    addFrame(QStringLiteral("STRUMENTI"), pbStrumenti());
    addFrame(QStringLiteral("OPZIONI"), pbOpzioni());
    cbConferma_ = form::button(QStringLiteral("cbConferma"), QStringLiteral("APPLICA!"), this);
    cbConferma_->setDefault(true);
    cbAnnulla_ = form::button(QStringLiteral("cbAnnulla"), QStringLiteral("&Chiudi"), this);
    cbAnnulla_->setAutoDefault(false);

    auto* middle = new QHBoxLayout;
    middle->setSpacing(12);
    middle->addWidget(treeView1_);
    middle->addWidget(frames_, 1);
    auto* body = new QVBoxLayout;
    body->setContentsMargins(12, 10, 12, 12);
    body->setSpacing(10);
    body->addLayout(middle, 1);
    body->addLayout(form::buttonRow({cbConferma_, cbAnnulla_}));
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(form::titleStrip(QStringLiteral("PARAMETRI PROCEDURA"), QString(), this));
    column->addLayout(body, 1);
    resize(820, 420);
    treeView1_->setFocus();
}

void frmConfig::addFrame(const QString& entry, QWidget* topicFrame) {
    frames_->addWidget(topicFrame);
    auto* row = new QTreeWidgetItem(treeView1_, {entry});
    row->setSizeHint(0, QSize(0, 30));
}

QWidget* frmConfig::pbIntestazione() {
    QGridLayout* grid = nullptr;
    QGroupBox* made = topicFrame("pbIntestazione", QStringLiteral("Intestazione dei documenti"), grid);
    text1_[DESCRIPTION] = form::textBox(form::arrayName("Text1", 0), made);
    details_ = form::named(new QPlainTextEdit(made), form::arrayName("Text1", 1));
    details_->setTabChangesFocus(true);
    details_->setMinimumHeight(150);
    form::labelledRow(grid, 0, 0, QStringLiteral("Descrizione:"), text1_[DESCRIPTION]);
    form::labelledRow(grid, 1, 0, QStringLiteral("Dettagli:"), details_);
    grid->addWidget(hint(QStringLiteral("Nome dello studio, indirizzo, partita IVA e recapiti, come vanno stampati.")),
                    2, 1);
    return made;
}

QWidget* frmConfig::pbTrattamenti() {
    QGridLayout* grid = nullptr;
    QGroupBox* made = topicFrame("pbTrattamenti", QStringLiteral("Piani di trattamento"), grid);
    const std::array<QString, TREATMENTS> captions{QStringLiteral("Evidenzia status dente per lavori ancora aperti"),
                                                   QStringLiteral("Unica scheda per paziente")};
    addCheckBoxes(cbTrattamenti_, "cbTrattamenti", captions, *grid);
    grid->addWidget(indentedHint(QStringLiteral("I comandi della barra cambiano dal prossimo avvio.")), TREATMENTS, 0,
                    1, 2);
    return made;
}

QWidget* frmConfig::pbFatturazione() {
    QGridLayout* grid = nullptr;
    QGroupBox* made = topicFrame("pbFatturazione", QStringLiteral("Fatture e preventivi"), grid);
    for (const Text which : {STAMP_DUTY, STAMP_DUTY_FROM}) {
        text1_[which] = form::textBox(form::arrayName("Text1", which + 1), made);
        text1_[which]->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        text1_[which]->setMaxLength(AMOUNT_DIGITS);
        text1_[which]->setValidator(
            new QRegularExpressionValidator(QRegularExpression(QStringLiteral("[0-9.,]*")), text1_[which]));
    }
    text1_[STAMP_DUTY]->setFixedWidth(AMOUNT_WIDTH);
    text1_[STAMP_DUTY_FROM]->setAccessibleName(
        QStringLiteral("Bollo solo se l'importo dei servizi supera la cifra di"));
    cbIVA_ = form::named(new QComboBox(made), QStringLiteral("cbIVA"));
    cbFont_ = form::named(new QComboBox(made), QStringLiteral("cbFont"));
    laEsempio_ = form::named(new QLabel(QStringLiteral("Esempio Carattere"), made), QStringLiteral("laEsempio"));
    laEsempio_->setFrameShape(QFrame::StyledPanel);
    laEsempio_->setAutoFillBackground(true);
    laEsempio_->setBackgroundRole(QPalette::Base);
    laEsempio_->setAlignment(Qt::AlignCenter);
    laEsempio_->setFixedHeight(56);
    laFontAssente_ = hint(QStringLiteral("Questo carattere non è installato su questa postazione."));
    form::labelledRow(grid, 0, 0, QStringLiteral("Bollo (default):"), text1_[STAMP_DUTY]);
    grid->addWidget(
        new PhraseWithField(
            QStringLiteral("(solo se l'importo dei servizi supera la cifra di                              )"),
            text1_[STAMP_DUTY_FROM], made),
        1, 1, Qt::AlignLeft);
    form::labelledRow(grid, 2, 0, QStringLiteral("IVA (default):"), cbIVA_);
    form::labelledRow(grid, 3, 0, QStringLiteral("Font x Stampa (default):"), cbFont_);
    grid->addWidget(laEsempio_, 4, 1);
    grid->addWidget(laFontAssente_, 5, 1);
    return made;
}

QWidget* frmConfig::pbStrumenti() {
    QGridLayout* grid = nullptr;
    QGroupBox* made = topicFrame("pbStrumenti", QStringLiteral("Strumenti"), grid);
    const std::array<QString, TOOLS> captions{QStringLiteral("Imposta Report"), QStringLiteral("Azzera file lck")};
    const std::array<QString, TOOLS> hints{QStringLiteral("Sceglie i modelli di stampa di preventivi e fatture"),
                                           QStringLiteral("Rimuove eventuali file di blocco")};
    for (std::size_t i = 0; i < cbStrumenti_.size(); ++i) {
        const int row = static_cast<int>(i);
        cbStrumenti_[i] = form::button(form::arrayName("cbStrumenti", row), captions[i], made);
        cbStrumenti_[i]->setAutoDefault(false);
        cbStrumenti_[i]->setMinimumWidth(150);
        cbStrumenti_[i]->setAccessibleDescription(hints[i]);
        grid->addWidget(cbStrumenti_[i], row, 0);
        grid->addWidget(hint(hints[i]), row, 1);
    }
    return made;
}

QWidget* frmConfig::pbOpzioni() {
    QGridLayout* grid = nullptr;
    QGroupBox* made = topicFrame("pbOpzioni", QStringLiteral("Opzioni"), grid);
    const std::array<QString, OPTIONS> captions{
        QStringLiteral("Predisponi eventuale ricetta farmaceutica SSN in carta bianca (non SSN)"),
        QStringLiteral("Mostra appunti importanti di paziente con finestra modale"),
        QStringLiteral("In inserimento nuovo documento (preventivo, trattamento, fattura) predisponi un rigo vuoto"),
        QStringLiteral("Non nascondere le funzionalità previste per i Medici MMG")};
    addCheckBoxes(cbOpzioni_, "cbOpzioni", captions, *grid);
    grid->addWidget(indentedHint(QStringLiteral("La barra dei comandi cambia dal prossimo avvio.")), OPTIONS, 0, 1, 2);
    return made;
}
