#pragma once

#include <QString>
#include <stdexcept>

namespace desk {

/// Why a line of a script cannot be done. Passing faults (a window that is not up yet, a text that is not there yet)
/// are tried again for a while before they fail the script; they may only be thrown before the line has done anything.
class ScenarioFault : public std::runtime_error {
public:
    enum class Kind { Passing, Final };
    ScenarioFault(Kind kind, const QString& what)
        : std::runtime_error(what.toStdString())
        , kind_(kind) {}
    Kind kind() const { return kind_; }
    QString text() const { return QString::fromUtf8(what()); }

private:
    Kind kind_;
};

[[noreturn]] inline void failNow(const QString& what) {
    throw ScenarioFault(ScenarioFault::Kind::Final, what);
}
[[noreturn]] inline void failUnlessItPasses(const QString& what) {
    throw ScenarioFault(ScenarioFault::Kind::Passing, what);
}

} // namespace desk
