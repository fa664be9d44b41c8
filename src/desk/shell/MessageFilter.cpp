#include "desk/shell/MessageFilter.h"

#include <QString>
#include <QtGlobal>
#include <cstdio>

namespace desk {

namespace {

void write(QtMsgType type, const QMessageLogContext& context, const QString& message) {
    // What a platform without a window manager cannot do is no news.
    if (message.startsWith(QLatin1String("This plugin does not support"))) return;
    std::fprintf(stderr, "%s\n", qUtf8Printable(qFormatLogMessage(type, context, message)));
}

} // namespace

void installMessageFilter() {
    qInstallMessageHandler(write);
}

} // namespace desk
