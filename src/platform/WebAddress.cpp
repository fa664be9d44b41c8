#include "platform/WebAddress.h"

#include "platform/FileHold.h"

#include <QDesktopServices>
#include <QStringList>
#include <QUrl>
#include <utility>

namespace platform {

namespace {

AddressOpener& installed() {
    static AddressOpener opener;
    return opener;
}

} // namespace

bool openWebAddress(const QString& address) {
    const QUrl url = QUrl::fromUserInput(address.trimmed()); // "www.studio.it" is enough
    static const QStringList schemes{QStringLiteral("http"), QStringLiteral("https"), QStringLiteral("mailto")};
    if (!url.isValid() || !schemes.contains(url.scheme())) return false;
    const ForOtherPrograms asTheyDo;
    return installed() ? installed()(url.toString()) : QDesktopServices::openUrl(url);
}

AddressOpener installAddressOpener(AddressOpener opener) {
    return std::exchange(installed(), std::move(opener));
}

} // namespace platform
