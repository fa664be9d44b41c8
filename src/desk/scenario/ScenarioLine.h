#pragma once

#include <QString>
#include <QStringList>

namespace desk {

/// One command of a script.
struct ScenarioLine {
    int number = 0; ///< In the file, from 1.
    QString command;
    QStringList arguments;
};

} // namespace desk
