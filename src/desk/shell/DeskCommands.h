#pragma once

#include <QtGlobal>

namespace desk {

class CommandList;
class RibbonBar;

/// Commands that the desk performs itself. All others of its ribbon are shown disabled until their part is built.
enum DeskCommand : qint32 {
    CERCA_PAZIENTE = 1,
    CHIUDI_PAZIENTE = 2,
    ESCI = 3,
    INFORMAZIONI = 5,
    NUOVO_PAZIENTE = 6,
    DATI_ANAGRAFICI = 7,
    IMPOSTAZIONI = 8,
    COPIA_SICUREZZA = 9,
    RIPRISTINA_COPIA = 13,
    MODELLI_STAMPA = 14,
    UTENTI = 15,
    ARCHIVIO_DATI = 16,
    DIARIO_CLINICO = 1001,
    APPUNTI = 1002,
    SCADENZE = 1003,
    FILE_ALLEGATI = 1004,
    VISITE = 1005,
    ELENCO_PAZIENTI = 1031,
};

/// Fills the ribbon with the desk's own tabs. The numbers of the commands are part of the contract: modules look them
/// up.
void buildStandardRibbon(RibbonBar& ribbon, CommandList& commands);

} // namespace desk
