#pragma once

#include "desk/shell/Panel.h"

#include <QList>
#include <QString>
#include <QStringList>

namespace desk {

/// The layout of the patient's desk as a module proposes it, an XML text `Layout`. Read from it are the attributes
/// `nome` of elements `Pannello`, at any depth: the panels in their order, left out where the attribute `visibile` is
/// "0". Panels that it does not name follow in their own order. A text that is no such XML changes nothing.
class DeskLayout {
public:
    void read(const QString& xml);
    QList<Panel> arrange(const QList<Panel>& panels) const;

private:
    QStringList order_;
    QStringList hidden_;
};

} // namespace desk
