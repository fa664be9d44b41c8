#pragma once

namespace platform {
class ReportGrid;
class ReportRecord;
} // namespace platform

struct clsItemTrattamento;

/// How a plan stands in the lists, in the panel of the patient and practice-wide alike.
namespace colonnetrattamenti {

enum Colonna { PROGRESSIVO, DATA, CODICE_FISCALE, CLIENTE, DESCRIZIONE, STATUS };

/// The practice-wide list shows the tax code, the panel never does.
void aggiungiPerPannello(platform::ReportGrid& grid);
void aggiungiPerElenco(platform::ReportGrid& grid);

/// The cells of one plan, with its state and icon; the tag is left to the caller.
void mostra(const clsItemTrattamento& item, platform::ReportRecord& record);

} // namespace colonnetrattamenti
