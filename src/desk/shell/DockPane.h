#pragma once

#include "host/contract/Forms.h"

#include <QDockWidget>

namespace desk {

/// A pane at the side of the main window.
class DockPane : public QDockWidget, public host::Pane {
    Q_OBJECT

public:
    using QDockWidget::QDockWidget;
    QString Title() const override { return windowTitle(); }
    void Close() override { close(); }
};

} // namespace desk
