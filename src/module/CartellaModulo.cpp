#include "module/CartellaModulo.h"

#include <QFile>
#include <QFileInfo>
#include <dlfcn.h>

QString CartellaModulo() {
    Dl_info libreria{};
    if (dladdr(reinterpret_cast<const void*>(&CartellaModulo), &libreria) == 0 || !libreria.dli_fname) return {};
    return QFileInfo(QFile::decodeName(libreria.dli_fname)).absolutePath();
}
