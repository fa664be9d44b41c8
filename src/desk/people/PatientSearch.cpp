#include "desk/people/PatientSearch.h"

#include "desk/data/PatientDirectory.h"
#include "desk/icons/DeskIcon.h"
#include "platform/FormRegistry.h"
#include "platform/ListPage.h"
#include "platform/Regional.h"

#include <QVBoxLayout>

namespace desk {

namespace {

using Column = PatientDirectory::Column;

constexpr Column COLUMNS[] = {Column::NameAndSurname, Column::TaxCode};

} // namespace

PatientSearch::PatientSearch(PatientDirectory& patients, QWidget* parent)
    : QDialog(parent)
    , patients_(patients) {
    setObjectName(QStringLiteral("frmCercaPaziente"));
    setWindowTitle(QStringLiteral("Cerca paziente"));
    setWindowIcon(deskIcon("cerca"));
    platform::ListSource source{
        .name = QStringLiteral("pagina"),
        .grid = QStringLiteral("rcPazienti"),
        .status = QStringLiteral("laTrovati"),
        .caption = windowTitle(),
        .empty = QStringLiteral("Nessun paziente trovato"),
        .columns = {{.caption = QStringLiteral("Cognome e Nome"), .width = 260, .resizable = true},
                    {.caption = QStringLiteral("Codice Fiscale"), .width = 170},
                    {.caption = QStringLiteral("Data di nascita"), .width = 110},
                    {.caption = QStringLiteral("Medico"), .width = 200, .resizable = true}},
        .rows = [this](const platform::ListQuery& query) { return search(query); },
        .commands = {{.name = QStringLiteral("cbConferma"),
                      .caption = QStringLiteral("Apri"),
                      .run = [this](const QString& id, platform::ListPage&) -> std::optional<QString> {
                          chosen_ = id;
                          accept();
                          return std::nullopt;
                      },
                      .main = true,
                      .inMenu = false},
                     platform::closeCommand(QStringLiteral("cbAnnulla"), QStringLiteral("Annulla"), *this)},
        .searchColumns = {QStringLiteral("Cognome e Nome"), QStringLiteral("Codice Fiscale")}};
    page_ = new platform::ListPage(std::move(source), platform::ListPage::Buttons::Below, this);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(page_);
    resize(860, 520);
    platform::FormRegistry::add(this);
}

void PatientSearch::start(const QString& value, const QString& column) {
    page_->search({value, PatientDirectory::columnFromName(column) == Column::TaxCode ? 1 : 0});
}

platform::ListRows PatientSearch::search(const platform::ListQuery& query) {
    const Column column = COLUMNS[query.column];
    const QList<PatientSummary> found = patients_.search(query.text, column);
    platform::ListRows rows;
    for (const PatientSummary& patient : found)
        rows.rows.append({patient.ID,
                          {patient.Cognome + QLatin1Char(' ') + patient.Nome, patient.codicefiscale,
                           platform::regional().shortDate(patient.dataNascita), patient.medico}});
    rows.summary = found.size() == 1 ? QStringLiteral("1 paziente trovato")
                                     : QStringLiteral("%1 pazienti trovati").arg(found.size());
    const qsizetype more =
        found.size() < PatientDirectory::searchLimit ? 0 : patients_.countMatches(query.text, column) - found.size();
    if (more > 0)
        rows.summary = QStringLiteral("Primi %1 pazienti, altri %L2: precisare la ricerca").arg(found.size()).arg(more);
    return rows;
}

} // namespace desk
