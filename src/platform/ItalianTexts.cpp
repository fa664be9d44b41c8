#include "platform/ItalianTexts.h"

#include <QHash>

namespace platform {

namespace {

const QHash<QByteArray, QString>& texts() {
    static const QHash<QByteArray, QString> table{
        {"OK", QStringLiteral("OK")},
        {"&OK", QStringLiteral("&OK")},
        {"Cancel", QStringLiteral("Annulla")},
        {"&Cancel", QStringLiteral("&Annulla")},
        {"Close", QStringLiteral("Chiudi")},
        {"&Close", QStringLiteral("&Chiudi")},
        {"Open", QStringLiteral("Apri")},
        {"&Open", QStringLiteral("&Apri")},
        {"Save", QStringLiteral("Salva")},
        {"&Save", QStringLiteral("&Salva")},
        {"&Yes", QStringLiteral("&Sì")},
        {"&No", QStringLiteral("&No")},
        {"Apply", QStringLiteral("Applica")},
        {"Help", QStringLiteral("Aiuto")},
        {"&Undo", QStringLiteral("&Annulla modifica")},
        {"&Redo", QStringLiteral("&Ripeti")},
        {"Cu&t", QStringLiteral("&Taglia")},
        {"&Copy", QStringLiteral("&Copia")},
        {"&Paste", QStringLiteral("&Incolla")},
        {"Delete", QStringLiteral("Elimina")},
        {"&Delete", QStringLiteral("&Elimina")},
        {"Select All", QStringLiteral("Seleziona tutto")},
        {"Copy &Link Location", QStringLiteral("Copia &collegamento")},
        {"&Select All", QStringLiteral("&Seleziona tutto")},
        {"&Step up", QStringLiteral("&Aumenta")},
        {"Step &down", QStringLiteral("&Diminuisci")},
        {"Back", QStringLiteral("Indietro")},
        {"Forward", QStringLiteral("Avanti")},
        {"Parent Directory", QStringLiteral("Cartella superiore")},
        {"Create New Folder", QStringLiteral("Crea nuova cartella")},
        {"New Folder", QStringLiteral("Nuova cartella")},
        {"&New Folder", QStringLiteral("&Nuova cartella")},
        {"&Rename", QStringLiteral("&Rinomina")},
        {"List View", QStringLiteral("Elenco")},
        {"Detail View", QStringLiteral("Dettagli")},
        {"Show ", QStringLiteral("Mostra ")},
        {"Show &hidden files", QStringLiteral("Mostra i file &nascosti")},
        {"Look in:", QStringLiteral("Cerca in:")},
        {"Files of type:", QStringLiteral("Tipo file:")},
        {"File &name:", QStringLiteral("&Nome file:")},
        {"&Choose", QStringLiteral("&Scegli")},
        {"Directory:", QStringLiteral("Cartella:")},
        {"All Files (*)", QStringLiteral("Tutti i file (*)")},
        {"My Computer", QStringLiteral("Computer")},
        {"Computer", QStringLiteral("Computer")},
        {"Recent Places", QStringLiteral("Posizioni recenti")},
        {"Remove", QStringLiteral("Togli")},
        {"Name", QStringLiteral("Nome")},
        {"Size", QStringLiteral("Dimensione")},
        {"Type", QStringLiteral("Tipo")},
        {"Kind", QStringLiteral("Tipo")},
        {"Date Modified", QStringLiteral("Ultima modifica")},
        {"Folder", QStringLiteral("Cartella")},
        {"File Folder", QStringLiteral("Cartella")},
        {"Drive", QStringLiteral("Unità")},
        {"%1 File", QStringLiteral("File %1")},
        {"%1\nFile not found.\nPlease verify the correct file name was given.",
         QStringLiteral("%1\nFile non trovato.\nVerificare il nome del file.")},
        {"%1\nDirectory not found.\nPlease verify the correct directory name was given.",
         QStringLiteral("%1\nCartella non trovata.\nVerificare il nome della cartella.")},
        {"Print", QStringLiteral("Stampa")},
        {"&Print", QStringLiteral("&Stampa")},
    };
    return table;
}

} // namespace

QString ItalianTexts::translate(const char* context, const char* source, const char*, int) const {
    // Only the toolkit's own contexts: our windows are written in Italian.
    if (!context || context[0] != 'Q') return {};
    return texts().value(QByteArray(source));
}

} // namespace platform
