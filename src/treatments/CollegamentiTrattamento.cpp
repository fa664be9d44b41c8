#include "treatments/CollegamentiTrattamento.h"

#include "config/clsConfig.h"
#include "host/context.h"
#include "platform/FormLayout.h"
#include "platform/ReportGrid.h"
#include "treatments/clsItemTrattamento.h"

#include <QColor>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QVBoxLayout>

namespace {

const QStringList DIDASCALIE{QStringLiteral("Nuovo"), QStringLiteral("Modifica"), QStringLiteral("Elimina")};

struct Colonna {
    QString didascalia;
    int larghezza;
    bool ridimensionabile;
};

void aggiungiColonne(platform::ReportGrid& griglia, const QList<Colonna>& colonne) {
    for (const Colonna& colonna : colonne) {
        platform::ReportColumn descrizione;
        descrizione.caption = colonna.didascalia;
        descrizione.width = colonna.larghezza;
        descrizione.resizable = colonna.ridimensionabile;
        griglia.addColumn(descrizione);
    }
}

QString titoloAppunti() {
    return oConfig ? oConfig->TitoloAppunti() : QStringLiteral("Storico degli Appunti");
}

} // namespace

CollegamentiTrattamento::CollegamentiTrattamento(QWidget* parent)
    : QObject(parent)
    , annotazioni_(platform::form::named(new QPlainTextEdit(parent), QStringLiteral("tbDati(7)")))
    , appunti_(creaPagina(
          "rcAppunti", "cbAppunti",
          {QStringLiteral("Nuovo (F3)"), QStringLiteral("Modifica (F4)"), QStringLiteral("Elimina (F5)")}, parent))
    , allegati_(creaPagina("rcAllegati", "cbAllegati", DIDASCALIE, parent))
    , primaNota_(creaPagina("rcPrimaNota", "cbPrimaNota", DIDASCALIE, parent)) {
    annotazioni_->setTabChangesFocus(true);
    annotazioni_->setAccessibleName(QStringLiteral("Annotazioni"));
    aggiungiColonne(*appunti_.griglia, {{QStringLiteral("Data"), 90, false}, {QStringLiteral("Testo"), 300, true}});
    aggiungiColonne(*allegati_.griglia,
                    {{QStringLiteral("Data"), 90, false}, {QStringLiteral("Descrizione"), 400, true}});
    aggiungiColonne(*primaNota_.griglia, {{QStringLiteral("Data"), 90, false},
                                          {QStringLiteral("Articolo"), 120, false},
                                          {QStringLiteral("Qta"), 80, false},
                                          {QStringLiteral("Descrizione"), 300, true}});
}

CollegamentiTrattamento::Pagina CollegamentiTrattamento::creaPagina(const char* griglia, const char* bottoni,
                                                                    const QStringList& didascalie, QWidget* parent) {
    Pagina pagina;
    pagina.widget = new QWidget(parent);
    pagina.griglia = platform::form::named(new platform::ReportGrid(pagina.widget), QLatin1String(griglia));
    pagina.griglia->setTexts(QStringLiteral("Non ci sono dati da visualizzare"), QString(), QString());
    pagina.griglia->setColours(QColor(224, 233, 248), QColor(255, 255, 255), QColor(212, 208, 200));
    pagina.griglia->setGroupBoxVisible(false);
    pagina.griglia->setReadOnly(true);
    auto* riga = new QHBoxLayout;
    for (std::size_t i = 0; i < pagina.bottoni.size(); ++i) {
        const int indice = static_cast<int>(i);
        QPushButton* bottone =
            platform::form::button(platform::form::arrayName(bottoni, indice), didascalie[indice], pagina.widget);
        bottone->setAutoDefault(false);
        bottone->setEnabled(false);
        riga->addWidget(bottone);
        pagina.bottoni[i] = bottone;
    }
    riga->addStretch(1);
    auto* colonna = new QVBoxLayout(pagina.widget);
    colonna->addWidget(pagina.griglia, 1);
    colonna->addLayout(riga);
    return pagina;
}

QWidget* CollegamentiTrattamento::paginaAppunti(QWidget* parent) {
    auto* pagina = new QWidget(parent);
    QGroupBox* note = platform::form::titledArea(QStringLiteral("Annotazioni"), pagina);
    auto* colonnaNote = new QVBoxLayout(note);
    colonnaNote->addWidget(annotazioni_);
    QGroupBox* storico = platform::form::titledArea(titoloAppunti(), pagina);
    auto* colonnaStorico = new QVBoxLayout(storico);
    colonnaStorico->setContentsMargins(0, 0, 0, 0);
    colonnaStorico->addWidget(appunti_.widget);
    auto* riga = new QHBoxLayout(pagina);
    riga->addWidget(note, 1);
    riga->addWidget(storico, 1);
    return pagina;
}

void CollegamentiTrattamento::aggiungiPagine(QTabWidget& schede) {
    schede.addTab(paginaAppunti(&schede), QStringLiteral("Annotazioni e Appunti"));
    schede.addTab(allegati_.widget, QStringLiteral("Allegati"));
    schede.addTab(primaNota_.widget, QStringLiteral("Scarichi di Magazzino"));
}

void CollegamentiTrattamento::carica(const clsItemTrattamento& item) {
    annotazioni_->setPlainText(item.Annotazioni);
}

void CollegamentiTrattamento::scrivi(clsItemTrattamento& item) const {
    item.Annotazioni = annotazioni_->toPlainText().replace(QLatin1Char('\n'), QLatin1String("\r\n"));
}

void CollegamentiTrattamento::premiAppunti(int indice) {
    QPushButton* bottone = appunti_.bottoni[static_cast<std::size_t>(indice)];
    if (bottone->isEnabled()) bottone->click();
}

void CollegamentiTrattamento::setSolaLettura() {
    appunti_.bottoni[0]->setEnabled(false);
    appunti_.bottoni[1]->setText(QStringLiteral("dettagli"));
    appunti_.bottoni[2]->setEnabled(false);
}

bool CollegamentiTrattamento::haCollegamenti() const {
    return allegati_.griglia->recordCount() > 0 || primaNota_.griglia->recordCount() > 0;
}
