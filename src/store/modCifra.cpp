#include "store/modCifra.h"

#include "host/context.h"
#include "host/contract/Host.h"
#include "store/clsAES.h"

namespace {

constexpr qsizetype GUID_CHARACTERS = 38; ///< With its braces.

} // namespace

QString encryptText(const QString& text) {
    return text.isEmpty() ? QString() : clsAES().EncryptStr(oHost->API().GetGUID() + text);
}

QString decryptText(const QString& text) {
    return text.isEmpty() ? QString() : clsAES().DecryptStr(text).mid(GUID_CHARACTERS);
}
