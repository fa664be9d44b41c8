#pragma once

#include <QString>
#include <exception>

namespace platform {

/// Runs a step that may fail; the text of the failure, empty when all went well. Nothing may pass on into Qt's event
/// loop.
template <class Step>
QString guarded(Step&& step) {
    try {
        step();
        return {};
    } catch (const std::exception& error) {
        const QString text = QString::fromUtf8(error.what());
        return text.isEmpty() ? QStringLiteral("Errore imprevisto.") : text;
    } catch (...) {
        return QStringLiteral("Errore imprevisto.");
    }
}

} // namespace platform
