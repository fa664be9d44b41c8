#pragma once

#include <QString>
#include <QStringList>

namespace desk {

/// The few names most like the wanted one, the nearest first; letter case does not count. For texts that help to find a
/// slip.
QStringList nearNames(const QString& wanted, const QStringList& names);

} // namespace desk
