#include "desk/shell/MessageFilter.h"

#include <QString>
#include <QtGlobal>
#include <cstdio>

namespace desk {

namespace {

void write(QtMsgType type, const QMessageLogContext& context, const QString& message) {
    if (message.contains(QLatin1String("propagateSizeHints"))) return;
    std::fprintf(stderr, "%s\n", qUtf8Printable(qFormatLogMessage(type, context, message)));
}

} // namespace

void installMessageFilter() {
    qInstallMessageHandler(write);
}

} // namespace desk
