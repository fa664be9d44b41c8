#pragma once

#include <QString>
#include <stdexcept>

namespace desk {

/// A layout that cannot be read or filled; `text` says why, in words for whoever wrote the layout.
class ReportLayoutError : public std::runtime_error {
public:
    explicit ReportLayoutError(const QString& text)
        : std::runtime_error(text.toStdString()) {}
    QString text() const { return QString::fromUtf8(what()); }
};

} // namespace desk
