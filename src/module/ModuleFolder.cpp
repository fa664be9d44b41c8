#include "module/ModuleFolder.h"

#include <QFile>
#include <QFileInfo>
#include <dlfcn.h>

QString moduleFolder() {
    Dl_info library{};
    if (dladdr(reinterpret_cast<const void*>(&moduleFolder), &library) == 0 || !library.dli_fname) return {};
    return QFileInfo(QFile::decodeName(library.dli_fname)).absolutePath();
}
