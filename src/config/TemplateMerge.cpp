#include "config/TemplateMerge.h"

#include "platform/XmlDocument.h"

#include <QSet>
#include <QStringList>
#include <algorithm>
#include <vector>

using platform::XmlDocument;
using platform::XmlNode;

namespace {

const char* const OFFERED = "noti";
/// The commands that had a window in the first version, and so were on: one that is off was switched off.
const char* const ON_FROM_THE_START[] = {"CRVL0301", "CRVL0302", "CRVL0303"};

QString text(const XmlNode& node, const char* attribute) {
    return node.attribute(attribute, QString());
}

XmlNode child(const XmlNode& parent, const char* name) {
    const XmlNode there = parent.firstChild(name);
    return there ? there : parent.appendChild(name);
}

void append(const XmlNode& parent, const XmlNode& original) {
    const XmlNode copy = parent.appendChild(original.name().toUtf8().constData());
    for (const auto& [name, value] : original.attributes())
        copy.setAttribute(name.toUtf8().constData(), value);
    const XmlNode first = original.firstChild();
    if (!first) copy.setText(original.text());
    for (XmlNode node = first; node; node = node.nextSibling())
        append(copy, node);
}

QSet<QString> ids(const std::vector<XmlNode>& nodes) {
    QSet<QString> found;
    for (const XmlNode& node : nodes)
        found.insert(text(node, "id"));
    return found;
}

void switchOn(const XmlNode& service) {
    const QString key = text(service, "id");
    const bool wasOn = std::any_of(std::begin(ON_FROM_THE_START), std::end(ON_FROM_THE_START),
                                   [&](const char* on) { return key == QLatin1String(on); });
    if (!wasOn) service.setAttribute("enabled", QStringLiteral("1"));
}

/// The group of the working copy for the buttons of a group of the template: by its caption, or by a button that stands
/// in both, since a practice may call it otherwise; or a new one.
XmlNode groupFor(const XmlNode& groups, const XmlNode& shipped) {
    const std::vector<XmlNode> own = groups.select("group");
    for (const XmlNode& group : own)
        if (text(group, "caption") == text(shipped, "caption")) return group;
    const QSet<QString> buttons = ids(shipped.select("button"));
    for (const XmlNode& group : own)
        if (ids(group.select("button")).intersects(buttons)) return group;
    const XmlNode made = groups.appendChild("group");
    for (const auto& [name, value] : shipped.attributes())
        made.setAttribute(name.toUtf8().constData(), value);
    return made;
}

void addButtons(const XmlNode& root, const XmlDocument& shipped, const QSet<QString>& keys) {
    const XmlNode groups = child(child(root, "gui"), "groups");
    const QSet<QString> there = ids(groups.select("group/button"));
    for (const XmlNode& group : shipped.root().select("gui/groups/group")) {
        for (const XmlNode& button : group.select("button")) {
            const QString key = text(button, "id");
            if (keys.contains(key) && !there.contains(key)) append(groupFor(groups, group), button);
        }
    }
}

QSet<QString> offered(const XmlNode& services) {
    const QStringList noted = text(services, OFFERED).split(QLatin1Char(' '), Qt::SkipEmptyParts);
    return ids(services.select("service")) + QSet<QString>(noted.begin(), noted.end());
}

void note(const XmlNode& services, const QSet<QString>& keys) {
    QStringList sorted(keys.begin(), keys.end());
    sorted.sort();
    services.setAttribute(OFFERED, sorted.join(QLatin1Char(' ')));
}

} // namespace

bool mergeTemplate(XmlDocument& working, const XmlDocument& shipped) {
    const XmlNode services = child(working.root(), "services");
    const bool firstVersion = !services.hasAttribute(OFFERED);
    const QSet<QString> known = offered(services);
    QSet<QString> added;
    for (const XmlNode& service : shipped.root().select("services/service")) {
        const QString key = text(service, "id");
        if (known.contains(key) || added.contains(key)) continue;
        append(services, service);
        added.insert(key);
    }
    if (!firstVersion && added.isEmpty()) return false;
    if (firstVersion) {
        const QSet<QString> on = ids(shipped.root().select("services/service[@enabled='1']"));
        for (const XmlNode& service : services.select("service"))
            if (on.contains(text(service, "id"))) switchOn(service);
    }
    addButtons(working.root(), shipped, added);
    note(services, known + added);
    return true;
}

void noteOfferedCommands(XmlDocument& working) {
    const XmlNode services = child(working.root(), "services");
    note(services, offered(services));
}
