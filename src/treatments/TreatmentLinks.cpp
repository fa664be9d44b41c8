#include "treatments/TreatmentLinks.h"

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

const QStringList CAPTIONS{QStringLiteral("Nuovo"), QStringLiteral("Modifica"), QStringLiteral("Elimina")};

struct Column {
    QString caption;
    int width;
    bool resizable;
};

void addColumns(platform::ReportGrid& grid, const QList<Column>& columns) {
    for (const Column& column : columns) {
        platform::ReportColumn description;
        description.caption = column.caption;
        description.width = column.width;
        description.resizable = column.resizable;
        grid.addColumn(description);
    }
}

QString notesTitle() {
    return oConfig ? oConfig->TitoloAppunti() : QStringLiteral("Storico degli Appunti");
}

} // namespace

TreatmentLinks::TreatmentLinks(QWidget* parent)
    : QObject(parent)
    , annotations_(platform::form::named(new QPlainTextEdit(parent), QStringLiteral("tbDati(7)")))
    , notes_(createPage("rcAppunti", "cbAppunti",
                        {QStringLiteral("Nuovo (F3)"), QStringLiteral("Modifica (F4)"), QStringLiteral("Elimina (F5)")},
                        parent))
    , files_(createPage("rcAllegati", "cbAllegati", CAPTIONS, parent))
    , journal_(createPage("rcPrimaNota", "cbPrimaNota", CAPTIONS, parent)) {
    annotations_->setTabChangesFocus(true);
    annotations_->setAccessibleName(QStringLiteral("Annotazioni"));
    addColumns(*notes_.grid, {{QStringLiteral("Data"), 90, false}, {QStringLiteral("Testo"), 300, true}});
    addColumns(*files_.grid, {{QStringLiteral("Data"), 90, false}, {QStringLiteral("Descrizione"), 400, true}});
    addColumns(*journal_.grid, {{QStringLiteral("Data"), 90, false},
                                {QStringLiteral("Articolo"), 120, false},
                                {QStringLiteral("Qta"), 80, false},
                                {QStringLiteral("Descrizione"), 300, true}});
}

TreatmentLinks::Page TreatmentLinks::createPage(const char* grid, const char* buttons, const QStringList& captions,
                                                QWidget* parent) {
    Page page;
    page.widget = new QWidget(parent);
    page.grid = platform::form::named(new platform::ReportGrid(page.widget), QLatin1String(grid));
    page.grid->setTexts(QStringLiteral("Non ci sono dati da visualizzare"), QString(), QString());
    page.grid->setColours(QColor(224, 233, 248), QColor(255, 255, 255), QColor(212, 208, 200));
    page.grid->setGroupBoxVisible(false);
    page.grid->setReadOnly(true);
    auto* row = new QHBoxLayout;
    for (std::size_t i = 0; i < page.buttons.size(); ++i) {
        const int index = static_cast<int>(i);
        QPushButton* button =
            platform::form::button(platform::form::arrayName(buttons, index), captions[index], page.widget);
        button->setAutoDefault(false);
        button->setEnabled(false);
        row->addWidget(button);
        page.buttons[i] = button;
    }
    row->addStretch(1);
    auto* column = new QVBoxLayout(page.widget);
    column->addWidget(page.grid, 1);
    column->addLayout(row);
    return page;
}

QWidget* TreatmentLinks::notesPage(QWidget* parent) {
    auto* page = new QWidget(parent);
    QGroupBox* note = platform::form::titledArea(QStringLiteral("Annotazioni"), page);
    auto* noteColumn = new QVBoxLayout(note);
    noteColumn->addWidget(annotations_);
    QGroupBox* history = platform::form::titledArea(notesTitle(), page);
    auto* historyColumn = new QVBoxLayout(history);
    historyColumn->setContentsMargins(0, 0, 0, 0);
    historyColumn->addWidget(notes_.widget);
    auto* row = new QHBoxLayout(page);
    row->addWidget(note, 1);
    row->addWidget(history, 1);
    return page;
}

void TreatmentLinks::addPages(QTabWidget& tabs) {
    tabs.addTab(notesPage(&tabs), QStringLiteral("Annotazioni e Appunti"));
    tabs.addTab(files_.widget, QStringLiteral("Allegati"));
    tabs.addTab(journal_.widget, QStringLiteral("Scarichi di Magazzino"));
}

void TreatmentLinks::load(const clsItemTrattamento& item) {
    annotations_->setPlainText(item.Annotazioni);
}

void TreatmentLinks::write(clsItemTrattamento& item) const {
    item.Annotazioni = annotations_->toPlainText().replace(QLatin1Char('\n'), QLatin1String("\r\n"));
}

void TreatmentLinks::pressNotes(int index) {
    QPushButton* button = notes_.buttons[static_cast<std::size_t>(index)];
    if (button->isEnabled()) button->click();
}

void TreatmentLinks::setReadOnly() {
    notes_.buttons[0]->setEnabled(false);
    notes_.buttons[1]->setText(QStringLiteral("dettagli"));
    notes_.buttons[2]->setEnabled(false);
}

bool TreatmentLinks::hasLinks() const {
    return files_.grid->recordCount() > 0 || journal_.grid->recordCount() > 0;
}
