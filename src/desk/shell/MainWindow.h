#pragma once

#include "host/contract/Forms.h"

#include <QMainWindow>
#include <functional>
#include <memory>

class QFrame;
class QLabel;

namespace desk {

class ChildWindows;
class CommandList;
class DockPane;
class MainMenu;
class RibbonBar;

/// The desk's main window, "frmMain": menu bar and ribbon above, the open windows in the middle, panes at the side, a
/// status bar with user, patient and database. Borrows the commands.
class MainWindow : public QMainWindow, public host::MainForm {
    Q_OBJECT

public:
    explicit MainWindow(CommandList& commands);
    ~MainWindow() override;

    QString Name() const override { return objectName(); }
    QList<host::Pane*> DockingPane1() override;
    void AddMenu(const QString& key, const QString& caption, const QString& parentKey) override;

    RibbonBar& ribbon() { return *ribbon_; }
    ChildWindows& children() { return *children_; }

    void showUser(const QString& text);
    void showPatient(const QString& text); ///< Empty for none.
    void showDatabase(const QString& text);
    void showMenuPane(bool shown);
    bool menuPaneShown() const;
    /// A line under the ribbon that stays until it is closed; an empty text takes it away.
    void showWarning(const QString& text);
    /// Asked before the window closes; false keeps it open.
    void setCloseGuard(std::function<bool()> guard) { mayClose_ = std::move(guard); }

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    void buildRibbon();
    void buildMenu();
    void buildCentre();
    void buildPanes();
    void buildStatusBar();

    CommandList& commands_;
    std::function<bool()> mayClose_;
    std::unique_ptr<MainMenu> menu_;
    RibbonBar* ribbon_ = nullptr;
    ChildWindows* children_ = nullptr;
    DockPane* menuPane_ = nullptr;
    QFrame* warning_ = nullptr;
    QLabel* warningText_ = nullptr;
    QLabel* user_ = nullptr;
    QLabel* patient_ = nullptr;
    QLabel* database_ = nullptr;
};

} // namespace desk
