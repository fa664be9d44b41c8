#pragma once

#include "desk/shell/Panel.h"

#include <QList>
#include <QString>

namespace desk {

/// The layout of the patient's desk as a module proposes it, an XML text `Layout` with elements `Panel`: `caption`
/// names the panel, `side` is "left" or "right", `visible` "0" leaves it out. Panels stand in this order; those that
/// are not named follow on the left. A text that is no such XML changes nothing.
class DeskLayout {
public:
    void read(const QString& xml);
    QList<Panel> arrange(const QList<Panel>& panels) const;

private:
    struct Place {
        QString name;
        bool onTheRight = false;
        bool visible = true;
    };
    QList<Place> places_;
};

} // namespace desk
