#pragma once

#include <QString>

namespace host {
class View;
}

namespace desk {

/// A list of the module that the patient's desk shows. The view is the module's.
struct Panel {
    QString name; ///< As the module gave it: "Corvala: Lista Trattamenti".
    host::View* view = nullptr;
    bool onTheRight = false;

    bool operator==(const Panel&) const = default;

    /// The part after the module's own name.
    QString caption() const {
        const QString own = name.section(QStringLiteral(": "), 1);
        return own.isEmpty() ? name : own;
    }
};

} // namespace desk
