#include "desk/shell/DeskLayout.h"

#include "platform/XmlDocument.h"

#include <algorithm>

namespace desk {

void DeskLayout::read(const QString& xml) {
    platform::XmlDocument document;
    if (!document.loadText(xml)) return;
    places_.clear();
    for (const platform::XmlNode& node : document.select("//Panel"))
        places_.append({.name = node.attribute("caption", QString()),
                        .onTheRight = node.attribute("side", QString()) == QLatin1String("right"),
                        .visible = node.attribute("visible", QStringLiteral("1")) != QLatin1String("0")});
}

QList<Panel> DeskLayout::arrange(const QList<Panel>& panels) const {
    QList<Panel> arranged;
    QList<Panel> rest = panels;
    for (const Place& place : places_) {
        const auto found =
            std::find_if(rest.begin(), rest.end(), [&place](const Panel& panel) { return panel.name == place.name; });
        if (found == rest.end()) continue;
        Panel panel = *found;
        rest.erase(found);
        panel.onTheRight = place.onTheRight;
        if (place.visible) arranged.append(panel);
    }
    return arranged + rest;
}

} // namespace desk
