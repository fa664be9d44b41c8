#pragma once

#include <QMap>
#include <QString>
#include <QVariant>
#include <functional>

namespace desk {

/// What a scenario asks of the desk beyond its windows. A plain set of functions, so that the driver also runs on
/// windows without a desk behind them.
struct ScenarioDesk {
    std::function<bool(const QString& taxCode)> openPatient;
    std::function<bool(const QString& keyOrCaption, QString* error)> pressCommand;
    std::function<QMap<QString, QVariant>()> lastReportVariables;
};

} // namespace desk
