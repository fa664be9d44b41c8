#pragma once

#include "host/contract/Framework.h"

#include <QMap>

namespace desk {

/// The variables of the next report, by name; the last value of a name wins.
class ReportVariables : public host::Variables {
public:
    void Add(const QVariant& value, const QString& name) override { values_.insert(name, value); }
    void clear() { values_.clear(); }
    const QMap<QString, QVariant>& values() const { return values_; }

private:
    QMap<QString, QVariant> values_;
};

} // namespace desk
