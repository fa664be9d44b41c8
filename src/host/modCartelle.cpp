#include "host/modCartelle.h"

#include "platform/Files.h"
#include "platform/SpecialFolders.h"

QString CartellaUtente() {
    QString cartella = platform::cartellaSpeciale(platform::CSIDL_APPDATA);
    if (cartella.isEmpty() || !platform::files::isFolder(cartella)) return {};
    for (const char* livello : {"Lumetra", "Tessara 5000 V6", "Corvala"}) {
        cartella += QLatin1Char('/') + QLatin1String(livello);
        if (!platform::files::createFolder(cartella)) return {};
    }
    return platform::files::resolve(cartella);
}
