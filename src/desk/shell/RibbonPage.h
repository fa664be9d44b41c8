#pragma once

#include "host/contract/Ribbon.h"

#include <QWidget>

class QHBoxLayout;
class QScrollArea;
class QToolButton;

namespace desk {

class CommandList;
class RibbonGroupBox;

/// The groups of one ribbon tab, side by side. When the window is too narrow, arrows at both ends move them.
class RibbonPage : public QWidget, public host::RibbonTab {
    Q_OBJECT

public:
    RibbonPage(const QString& caption, CommandList& commands, QWidget* parent);

    QString Caption() const override { return caption_; }
    host::RibbonGroup* AddGroup(const QString& caption, qint32 id) override;
    host::RibbonGroup* InsertTabGroup(const QString& caption) override;
    RibbonGroupBox* insertGroup(const QString& caption);

protected:
    void resizeEvent(QResizeEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void showArrows();
    QToolButton* arrow(Qt::ArrowType type, int step);

    QString caption_;
    CommandList& commands_;
    QScrollArea* scroll_;
    QHBoxLayout* groups_;
    QToolButton* left_;
    QToolButton* right_;
};

} // namespace desk
