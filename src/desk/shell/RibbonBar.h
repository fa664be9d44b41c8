#pragma once

#include <QWidget>

class QStackedWidget;
class QTabBar;

namespace desk {

class CommandList;
class RibbonPage;

/// The ribbon: tabs above, the groups of the chosen tab below.
class RibbonBar : public QWidget {
    Q_OBJECT

public:
    explicit RibbonBar(CommandList& commands, QWidget* parent = nullptr);

    RibbonPage* insertTab(const QString& caption);
    RibbonPage* page(const QString& caption) const; ///< Null when there is none.
    QStringList tabs() const;
    QString activeTab() const;
    void activateTab(const QString& caption);

signals:
    void tabActivated(const QString& caption);

private:
    CommandList& commands_;
    QTabBar* tabs_;
    QStackedWidget* pages_;
};

} // namespace desk
