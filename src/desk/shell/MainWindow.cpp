#include "desk/shell/MainWindow.h"

#include "desk/icons/DeskIcon.h"
#include "desk/shell/ChildWindows.h"
#include "desk/shell/CommandAction.h"
#include "desk/shell/CommandList.h"
#include "desk/shell/DeskCommands.h"
#include "desk/shell/DockPane.h"
#include "desk/shell/MainMenu.h"
#include "desk/shell/RibbonBar.h"
#include "desk/shell/RibbonGroupBox.h"
#include "desk/shell/RibbonPage.h"
#include "platform/FormRegistry.h"

#include <QCloseEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenuBar>
#include <QStatusBar>
#include <QToolBar>
#include <QToolButton>
#include <QVBoxLayout>

namespace desk {

MainWindow::MainWindow(CommandList& commands)
    : commands_(commands) {
    setObjectName(QStringLiteral("frmMain"));
    setWindowTitle(QStringLiteral("Tessara 5000"));
    setWindowIcon(deskIcon("tessara"));
    setContextMenuPolicy(Qt::NoContextMenu);
    buildRibbon();
    buildMenu();
    buildCentre();
    buildPanes();
    buildStatusBar();
    resize(1400, 860);
    platform::FormRegistry::add(this);
}

MainWindow::~MainWindow() = default;

void MainWindow::buildRibbon() {
    addDeskCommands(commands_);
    ribbon_ = new RibbonBar(commands_);
    RibbonPage* page = nullptr;
    RibbonGroupBox* group = nullptr;
    for (const DeskCommand& command : deskCommands()) {
        if (!command.tab) continue;
        const QString tab = QString::fromUtf16(command.tab);
        const QString caption = QString::fromUtf16(command.group);
        if (!page || page->Caption() != tab) {
            page = ribbon_->insertTab(tab);
            group = nullptr;
        }
        if (!group || group->Caption() != caption) group = page->insertGroup(caption);
        group->addButton(*commands_.find(command.id));
    }
    auto* bar = new QToolBar(QStringLiteral("Barra dei comandi"), this);
    bar->setObjectName(QStringLiteral("barraComandi"));
    bar->setMovable(false);
    bar->setFloatable(false);
    bar->addWidget(ribbon_);
    bar->setStyleSheet(QStringLiteral("QToolBar { padding: 0; spacing: 0; border: none; }"));
    addToolBar(Qt::TopToolBarArea, bar);
}

void MainWindow::buildMenu() {
    menu_ = std::make_unique<MainMenu>(*menuBar(), commands_);
    for (const char16_t* menu : deskMenus()) {
        const QString caption = QString::fromUtf16(menu);
        const QString key = QLatin1Char('M') + QString(caption).remove(QLatin1Char('&')).toLower();
        menu_->addMenu(key, caption);
        for (const DeskCommand& command : deskCommands()) {
            if (command.menu != menu) continue;
            if (command.is(DeskCommand::SEPARATED)) menu_->addSeparator(key);
            menu_->addCommand(key, *commands_.find(command.id), command.shortcut);
        }
    }
}

void MainWindow::buildCentre() {
    auto* centre = new QWidget(this);
    auto* column = new QVBoxLayout(centre);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);

    warning_ = new QFrame(centre);
    warning_->setObjectName(QStringLiteral("barraAvviso"));
    warning_->setStyleSheet(QStringLiteral("#barraAvviso { background: #fff4d6; border-bottom: 1px solid #e0c070; }"));
    auto* row = new QHBoxLayout(warning_);
    row->setContentsMargins(10, 5, 6, 5);
    auto* picture = new QLabel(warning_);
    picture->setPixmap(deskIcon("avviso").pixmap(QSize(18, 18), devicePixelRatioF()));
    warningText_ = new QLabel(warning_);
    warningText_->setObjectName(QStringLiteral("laAvviso"));
    warningText_->setTextFormat(Qt::PlainText);
    warningText_->setTextInteractionFlags(Qt::TextSelectableByMouse);
    warningText_->setWordWrap(true);
    auto* close = new QToolButton(warning_);
    close->setObjectName(QStringLiteral("cbChiudiAvviso"));
    close->setText(QStringLiteral("Nascondi"));
    close->setAutoRaise(true);
    connect(close, &QToolButton::clicked, warning_, &QWidget::hide);
    row->addWidget(picture);
    row->addWidget(warningText_, 1);
    row->addWidget(close);
    warning_->hide();

    children_ = new ChildWindows(centre);
    column->addWidget(warning_);
    column->addWidget(children_, 1);
    setCentralWidget(centre);
}

void MainWindow::buildPanes() {
    menuPane_ = new DockPane(QStringLiteral("Menu principale"), this);
    menuPane_->setObjectName(QStringLiteral("pannelloMenu"));
    menuPane_->setFeatures(QDockWidget::DockWidgetClosable | QDockWidget::DockWidgetMovable);
    auto* content = new QWidget(menuPane_);
    auto* column = new QVBoxLayout(content);
    column->setContentsMargins(6, 6, 6, 6);
    column->setSpacing(2);
    for (const DeskCommand& command : deskCommands()) {
        if (!command.is(DeskCommand::IN_PANE)) continue;
        auto* button = new QToolButton(content);
        button->setDefaultAction(new CommandAction(*commands_.find(command.id), button));
        button->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
        button->setAutoRaise(true);
        button->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
        column->addWidget(button);
    }
    column->addStretch();
    content->setMinimumWidth(170);
    menuPane_->setWidget(content);
    addDockWidget(Qt::LeftDockWidgetArea, menuPane_);
}

void MainWindow::buildStatusBar() {
    const auto field = [this](const QString& name) {
        auto* label = new QLabel(this);
        label->setObjectName(name);
        label->setTextFormat(Qt::PlainText);
        label->setContentsMargins(8, 2, 8, 2);
        return label;
    };
    user_ = field(QStringLiteral("laUtente"));
    patient_ = field(QStringLiteral("laPaziente"));
    database_ = field(QStringLiteral("laArchivio"));
    statusBar()->addWidget(user_);
    statusBar()->addWidget(patient_, 1);
    statusBar()->addPermanentWidget(database_);
    showPatient(QString());
}

QList<host::Pane*> MainWindow::DockingPane1() {
    return {menuPane_};
}

void MainWindow::AddMenu(const QString& key, const QString& caption, const QString& parentKey) {
    menu_->addModuleEntry(key, caption, parentKey);
}

void MainWindow::showUser(const QString& text) {
    user_->setText(QStringLiteral("Utente: ") + text);
}

void MainWindow::showPatient(const QString& text) {
    patient_->setText(text.isEmpty() ? QStringLiteral("Nessun paziente aperto") : QStringLiteral("Paziente: ") + text);
    setWindowTitle(text.isEmpty() ? QStringLiteral("Tessara 5000") : text + QStringLiteral(" \u2013 Tessara 5000"));
}

void MainWindow::showDatabase(const QString& text) {
    database_->setText(QStringLiteral("Archivio: ") + text);
}

void MainWindow::showMenuPane(bool shown) {
    menuPane_->setVisible(shown);
}

bool MainWindow::menuPaneShown() const {
    return !menuPane_->isHidden();
}

void MainWindow::showWarning(const QString& text) {
    warningText_->setText(text);
    warning_->setVisible(!text.isEmpty());
}

void MainWindow::closeEvent(QCloseEvent* event) {
    event->setAccepted(!mayClose_ || mayClose_());
}

} // namespace desk
