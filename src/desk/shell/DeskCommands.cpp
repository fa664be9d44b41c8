#include "desk/shell/DeskCommands.h"

#include "desk/clinical/ClinicalRooms.h"
#include "desk/icons/DeskIcon.h"
#include "desk/shell/DeskParts.h"

namespace desk {

namespace {

constexpr char16_t SURGERY[] = u"Ambulatorio";
constexpr char16_t TOOLS[] = u"Strumenti";
constexpr char16_t PATIENT[] = u"Paziente";
constexpr char16_t RECORD[] = u"Cartella clinica";
constexpr char16_t ARCHIVES[] = u"Archivi";
constexpr char16_t PROGRAM[] = u"Programma";

constexpr char16_t MENU_PATIENT[] = u"&Paziente";
constexpr char16_t MENU_RECORD[] = u"&Cartella";
constexpr char16_t MENU_ARCHIVE[] = u"A&rchivio";
constexpr char16_t MENU_TOOLS[] = u"&Strumenti";
constexpr char16_t MENU_HELP[] = u"&Aiuto";

constexpr QKeyCombination NO_KEY;

using enum DeskCommand::Flag;

template <RoomKind KIND>
void showRoom(Desk::Parts& desk) {
    desk.showRoom(KIND);
}

constexpr DeskCommand COMMANDS[] = {
    {1, u"Cerca paziente", u"Cerca un paziente nell'archivio e lo apre (Ctrl+F)", "cerca", SURGERY, PATIENT,
     LARGE | IN_PANE, MENU_PATIENT, Qt::CTRL | Qt::Key_F, [](Desk::Parts& desk) { desk.searchPatient(); }},
    {6, u"Nuovo paziente", u"Aggiunge un paziente all'archivio", "nuovo", SURGERY, PATIENT, IN_PANE, MENU_PATIENT,
     Qt::CTRL | Qt::Key_N, [](Desk::Parts& desk) { desk.addPatient(); }},
    {7, u"Dati anagrafici", u"Dati anagrafici del paziente aperto", "anagrafica", SURGERY, PATIENT,
     IN_PANE | NEEDS_PATIENT, MENU_PATIENT, NO_KEY, [](Desk::Parts& desk) { desk.editPatient(); }},
    {2, u"Chiudi paziente", u"Chiude il paziente aperto", "chiudi", SURGERY, PATIENT, IN_PANE | NEEDS_PATIENT,
     MENU_PATIENT, NO_KEY, [](Desk::Parts& desk) { desk.closePatient(); }},
    // Modules stand their own groups beside the one and set the look of the other.
    {10, u"Problemi", u"Elenco dei problemi del paziente", "problemi", SURGERY, RECORD, LARGE, nullptr, NO_KEY,
     nullptr},
    {12, u"Accertamenti", u"Richieste di accertamenti", "accertamenti", SURGERY, RECORD, 0, nullptr, NO_KEY, nullptr},
    {4, u"Archivi clinici", u"Archivi della cartella clinica", "archivi", SURGERY, ARCHIVES, LARGE | IS_MENU, nullptr,
     NO_KEY, nullptr},
    {1001, u"Diario clinico", u"", nullptr, nullptr, nullptr, NEEDS_PATIENT, MENU_RECORD, Qt::CTRL | Qt::Key_1,
     showRoom<RoomKind::Events>},
    {1002, u"Appunti", u"", nullptr, nullptr, nullptr, NEEDS_PATIENT, MENU_RECORD, Qt::CTRL | Qt::Key_2,
     showRoom<RoomKind::Notes>},
    {1005, u"Visite", u"", nullptr, nullptr, nullptr, NEEDS_PATIENT, MENU_RECORD, Qt::CTRL | Qt::Key_3,
     showRoom<RoomKind::Visits>},
    {1003, u"Scadenze", u"", nullptr, nullptr, nullptr, NEEDS_PATIENT, MENU_RECORD, Qt::CTRL | Qt::Key_4,
     showRoom<RoomKind::DueDates>},
    {1004, u"File allegati", u"", nullptr, nullptr, nullptr, NEEDS_PATIENT, MENU_RECORD, Qt::CTRL | Qt::Key_5,
     showRoom<RoomKind::Files>},
    {74, u"Statistiche", u"Elenchi e statistiche dello studio", "statistiche", SURGERY, ARCHIVES, LARGE | IS_MENU,
     nullptr, NO_KEY, nullptr},
    {1031, u"Elenco pazienti", u"", nullptr, nullptr, nullptr, 0, nullptr, NO_KEY,
     [](Desk::Parts& desk) { desk.searchPatient(); }},
    {8, u"Impostazioni", u"Impostazioni del programma per l'utente", "impostazioni", TOOLS, PROGRAM, LARGE, MENU_TOOLS,
     NO_KEY, [](Desk::Parts& desk) { desk.changeSettings(); }},
    {15, u"Utenti", u"Chi lavora nello studio, e le password", "utenti", TOOLS, PROGRAM, LARGE, MENU_TOOLS, NO_KEY,
     [](Desk::Parts& desk) { desk.showUsers(); }},
    {16, u"Archivio dati", u"Dati liberi dello studio e modelli di stampa", "archivi", TOOLS, PROGRAM, LARGE,
     MENU_ARCHIVE, NO_KEY, [](Desk::Parts& desk) { desk.showFreeData(); }},
    {9, u"Copia di sicurezza\u2026", u"Copia di sicurezza dell'archivio", "copia", TOOLS, PROGRAM, LARGE | SEPARATED,
     MENU_ARCHIVE, NO_KEY, [](Desk::Parts& desk) { desk.backup.makeCopy(); }},
    {13, u"Ripristina copia\u2026", u"Ripristina una copia di sicurezza", "ripristina", TOOLS, PROGRAM, LARGE,
     MENU_ARCHIVE, NO_KEY, [](Desk::Parts& desk) { desk.backup.restoreCopy(); }},
    {14, u"Modelli di stampa", u"Modelli di fatture, preventivi e riepiloghi", "certificati", TOOLS, PROGRAM, LARGE,
     nullptr, NO_KEY, [](Desk::Parts& desk) { desk.reports.manage(&desk.window); }},
    {5, u"Informazioni", u"Informazioni sul programma", "informazioni", TOOLS, PROGRAM, LARGE, MENU_HELP, NO_KEY,
     [](Desk::Parts& desk) { desk.showInformation(); }},
    {3, u"Esci", u"Chiude il programma (Ctrl+Q)", "esci", TOOLS, PROGRAM, LARGE | SEPARATED, MENU_PATIENT,
     Qt::CTRL | Qt::Key_Q, [](Desk::Parts& desk) { desk.window.close(); }}};

} // namespace

std::span<const char16_t* const> deskMenus() {
    static constexpr const char16_t* MENUS[] = {MENU_PATIENT, MENU_RECORD, MENU_ARCHIVE, MENU_TOOLS, MENU_HELP};
    return MENUS;
}

std::span<const DeskCommand> deskCommands() {
    return COMMANDS;
}

const DeskCommand* deskCommand(qint32 id) {
    for (const DeskCommand& command : COMMANDS)
        if (command.id == id) return &command;
    return nullptr;
}

void addDeskCommands(CommandList& commands) {
    Command* menu = nullptr;
    for (const DeskCommand& command : COMMANDS) {
        host::BottoneRibbon description;
        description.id = command.id;
        if (command.tab) description.key = QStringLiteral("TSR%1").arg(command.id, 4, 10, QLatin1Char('0'));
        description.caption = QString::fromUtf16(command.caption);
        description.tooltip = QString::fromUtf16(command.tooltip);
        description.style = command.is(DeskCommand::LARGE) ? host::StileBottone::IconaSopraDidascalia
                                                           : host::StileBottone::IconaEDidascalia;
        const bool needsPatient = command.is(DeskCommand::NEEDS_PATIENT);
        description.enabled = command.is(DeskCommand::IS_MENU) || (command.run && !needsPatient);
        if (command.icon) commands.setPicture(command.id, deskIcon(command.icon));
        Command* added = command.tab ? commands.add(description) : commands.addEntry(*menu, description);
        if (command.is(DeskCommand::IS_MENU)) menu = added;
    }
}

} // namespace desk
