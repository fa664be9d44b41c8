#include "store/modFile.h"

#include "platform/Files.h"
#include "platform/SingleByteText.h"

bool FileEsiste(const QString& path) {
    return platform::files::exists(path);
}

bool ScriviFile(const QString& path, const QString& text) {
    return platform::files::writeAtomically(path, platform::toSingleByte(text)) && FileEsiste(path);
}

bool RinominaFile(const QString& from, const QString& to) {
    if (FileEsiste(to)) return false;
    return platform::files::move(from, to) && FileEsiste(to);
}
