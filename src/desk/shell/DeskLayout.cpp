#include "desk/shell/DeskLayout.h"

#include "platform/XmlDocument.h"

#include <algorithm>

namespace desk {

void DeskLayout::read(const QString& xml) {
    platform::XmlDocument document;
    if (!document.loadText(xml)) return;
    order_.clear();
    hidden_.clear();
    for (const platform::XmlNode& node : document.select("//Pannello")) {
        const QString name = node.attribute("nome", QString());
        if (name.isEmpty()) continue;
        order_.append(name);
        if (node.attribute("visibile", QStringLiteral("1")) == QLatin1String("0")) hidden_.append(name);
    }
}

QList<Panel> DeskLayout::arrange(const QList<Panel>& panels) const {
    const auto place = [this](const Panel& panel) {
        const qsizetype index = order_.indexOf(panel.name);
        return index < 0 ? order_.size() : index;
    };
    QList<Panel> arranged = panels;
    arranged.removeIf([this](const Panel& panel) { return hidden_.contains(panel.name); });
    std::stable_sort(arranged.begin(), arranged.end(),
                     [&place](const Panel& one, const Panel& other) { return place(one) < place(other); });
    return arranged;
}

} // namespace desk
