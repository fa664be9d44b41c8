#include "desk/shell/DeskCommands.h"

#include "desk/icons/DeskIcon.h"
#include "desk/shell/CommandList.h"
#include "desk/shell/RibbonBar.h"
#include "desk/shell/RibbonGroupBox.h"
#include "desk/shell/RibbonPage.h"

namespace desk {

namespace {

constexpr host::StileBottone SMALL = host::StileBottone::IconaEDidascalia;
constexpr host::StileBottone LARGE = host::StileBottone::IconaSopraDidascalia;

struct Row {
    const char16_t* tab;
    const char16_t* group;
    qint32 id;
    const char16_t* caption;
    const char16_t* tooltip;
    const char* icon;
    host::StileBottone style;
    bool enabled;
};

constexpr char16_t AMBULATORIO[] = u"Ambulatorio";
constexpr char16_t STRUMENTI[] = u"Strumenti";

constexpr Row ROWS[] = {
    {AMBULATORIO, u"Paziente", CERCA_PAZIENTE, u"Cerca paziente", u"Cerca un paziente nell'archivio e lo apre (Ctrl+F)",
     "cerca", LARGE, true},
    {AMBULATORIO, u"Paziente", CHIUDI_PAZIENTE, u"Chiudi paziente", u"Chiude il paziente aperto", "chiudi", SMALL,
     false},
    {AMBULATORIO, u"Paziente", NUOVO_PAZIENTE, u"Nuovo paziente", u"Aggiunge un paziente all'archivio", "nuovo", SMALL,
     true},
    {AMBULATORIO, u"Paziente", DATI_ANAGRAFICI, u"Dati anagrafici", u"Dati anagrafici del paziente aperto",
     "anagrafica", SMALL, false},
    {AMBULATORIO, u"Cartella clinica", 10, u"Problemi", u"Elenco dei problemi del paziente", "problemi", LARGE, false},
    {AMBULATORIO, u"Cartella clinica", 11, u"Prescrizioni", u"Prescrizioni di farmaci", "prescrizioni", SMALL, false},
    {AMBULATORIO, u"Cartella clinica", 12, u"Accertamenti", u"Richieste di accertamenti", "accertamenti", SMALL, false},
    {AMBULATORIO, u"Cartella clinica", 20, u"Certificati", u"Certificati del paziente", "certificati", SMALL, false},
    {AMBULATORIO, u"Ricette", 69, u"Ricetta SSN", u"Stampa la ricetta rossa", "ricetta", SMALL, false},
    {AMBULATORIO, u"Ricette", 70, u"Ricetta dematerializzata", u"Invia la ricetta dematerializzata", "rete", SMALL,
     false},
    {AMBULATORIO, u"Ricette", 71, u"Ricetta bianca", u"Stampa la ricetta bianca", "ricetta", SMALL, false},
    {AMBULATORIO, u"Servizi in rete", 279, u"Fascicolo sanitario", u"Consulta il fascicolo sanitario elettronico",
     "rete", LARGE, false},
    {AMBULATORIO, u"Servizi in rete", 417, u"Certificato di malattia", u"Invia il certificato di malattia",
     "certificati", SMALL, false},
    {AMBULATORIO, u"Servizi in rete", 418, u"Tessera sanitaria", u"Verifica la tessera sanitaria", "anagrafica", SMALL,
     false},
    {AMBULATORIO, u"Servizi in rete", 419, u"Esenzioni", u"Esenzioni del paziente", "problemi", SMALL, false},
    {AMBULATORIO, u"Servizi in rete", 420, u"Piani terapeutici", u"Piani terapeutici del paziente", "prescrizioni",
     SMALL, false},
    {AMBULATORIO, u"Archivi", 4, u"Archivi clinici", u"Archivi della cartella clinica", "archivi", LARGE, true},
    {AMBULATORIO, u"Archivi", 74, u"Statistiche", u"Elenchi e statistiche dello studio", "statistiche", LARGE, true},
    {STRUMENTI, u"Programma", IMPOSTAZIONI, u"Impostazioni", u"Impostazioni del programma per l'utente", "impostazioni",
     LARGE, true},
    {STRUMENTI, u"Programma", UTENTI, u"Utenti", u"Chi lavora nello studio, e le password", "utenti", LARGE, true},
    {STRUMENTI, u"Programma", ARCHIVIO_DATI, u"Archivio dati", u"Dati liberi dello studio e modelli di stampa",
     "archivi", LARGE, true},
    {STRUMENTI, u"Programma", COPIA_SICUREZZA, u"Copia di sicurezza\u2026", u"Copia di sicurezza dell'archivio",
     "copia", LARGE, true},
    {STRUMENTI, u"Programma", RIPRISTINA_COPIA, u"Ripristina copia\u2026", u"Ripristina una copia di sicurezza",
     "ripristina", LARGE, true},
    {STRUMENTI, u"Programma", MODELLI_STAMPA, u"Modelli di stampa", u"Modelli di fatture, preventivi e riepiloghi",
     "certificati", LARGE, true},
    {STRUMENTI, u"Programma", INFORMAZIONI, u"Informazioni", u"Informazioni sul programma", "informazioni", LARGE,
     true},
    {STRUMENTI, u"Programma", ESCI, u"Esci", u"Chiude il programma (Ctrl+Q)", "esci", LARGE, true},
};

struct Entry {
    qint32 menu;
    qint32 id;
    const char16_t* caption;
};

constexpr Entry ENTRIES[] = {
    {4, DIARIO_CLINICO, u"Diario clinico"},
    {4, APPUNTI, u"Appunti"},
    {4, VISITE, u"Visite"},
    {4, SCADENZE, u"Scadenze"},
    {4, FILE_ALLEGATI, u"File allegati"},
    {4, 1011, u"Accessi ADI/ADP/ADR"},
    {4, 1012, u"Prestazioni PPIP"},
    {4, 1013, u"Vaccinazioni"},
    {4, 1014, u"Campagna Antinfluenzale"},
    {4, 1015, u"Gestione Integrata"},
    {4, 1016, u"Covid 19"},
    {4, 1017, u"Pazienti Fragili"},
    {4, 1018, u"Visite Domiciliari"},
    {4, 1019, u"PDTA"},
    {4, 1020, u"Patient Summary"},
    {4, 1021, u"Fatture"},
    {4, 1022, u"Spesa per paziente"},
    {74, ELENCO_PAZIENTI, u"Elenco pazienti"},
    {74, 1032, u"Pazienti per fascia di et\u00e0"},
    {74, 1033, u"Accessi per periodo"},
    {74, 1034, u"Fatture"},
    {74, 1035, u"Spesa per paziente"},
};

host::BottoneRibbon describe(const Row& row) {
    host::BottoneRibbon description;
    description.id = row.id;
    description.key = QStringLiteral("TSR%1").arg(row.id, 4, 10, QLatin1Char('0'));
    description.caption = QString::fromUtf16(row.caption);
    description.tooltip = QString::fromUtf16(row.tooltip);
    description.style = row.style;
    description.enabled = row.enabled;
    return description;
}

} // namespace

void buildStandardRibbon(RibbonBar& ribbon, CommandList& commands) {
    RibbonPage* page = nullptr;
    RibbonGroupBox* group = nullptr;
    for (const Row& row : ROWS) {
        const QString tab = QString::fromUtf16(row.tab);
        const QString caption = QString::fromUtf16(row.group);
        if (!page || page->Caption() != tab) {
            page = ribbon.insertTab(tab);
            group = nullptr;
        }
        if (!group || group->Caption() != caption) group = page->insertGroup(caption);
        commands.setPicture(row.id, deskIcon(row.icon));
        Command* command = commands.add(describe(row));
        for (const Entry& entry : ENTRIES) {
            if (entry.menu != row.id) continue;
            host::BottoneRibbon description;
            description.id = entry.id;
            description.caption = QString::fromUtf16(entry.caption);
            description.enabled = entry.id == ELENCO_PAZIENTI;
            commands.addEntry(*command, description);
        }
        group->addButton(*command);
    }
}

} // namespace desk
