#include "host/modCartelle.h"

#include "platform/Files.h"
#include "platform/SpecialFolders.h"

QString userFolder() {
    QString folder = platform::specialFolder(platform::CSIDL_APPDATA);
    if (folder.isEmpty() || !platform::files::isFolder(folder)) return {};
    for (const char* level : {"Lumetra", "Tessara 5000 V6", "Corvala"}) {
        folder += QLatin1Char('/') + QLatin1String(level);
        if (!platform::files::createFolder(folder)) return {};
    }
    return platform::files::resolve(folder);
}
