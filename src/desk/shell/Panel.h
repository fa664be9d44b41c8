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

    /// The part after the module's own name.
    QString caption() const {
        return name.section(QStringLiteral(": "), 1).isEmpty() ? name : name.section(QStringLiteral(": "), 1);
    }
};

} // namespace desk
