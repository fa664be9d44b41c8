#include "desk/clinical/FreeDataWindow.h"

#include "desk/clinical/FreeDataKind.h"
#include "desk/data/Database.h"
#include "desk/data/FreeData.h"
#include "desk/icons/DeskIcon.h"
#include "platform/Dialogs.h"
#include "platform/FormLayout.h"
#include "platform/FormRegistry.h"
#include "platform/Guarded.h"
#include "platform/ListPage.h"

#include <QHBoxLayout>
#include <QPointer>
#include <QPushButton>
#include <QSplitter>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace desk {

namespace {

constexpr int PATH = Qt::UserRole;

} // namespace

FreeDataWindow::FreeDataWindow(FreeData& archive, const RoomServices& services, QWidget* parent)
    : QWidget(parent)
    , archive_(archive)
    , services_(services) {
    setObjectName(QStringLiteral("frmArchivioDati"));
    setWindowTitle(QStringLiteral("Archivio dati"));
    setWindowIcon(deskIcon("archivi"));
    page_ = new platform::ListPage(freeDataList(archive, folder_, services), platform::ListPage::Buttons::Above, this);
    auto* splitter = new QSplitter(this);
    splitter->setChildrenCollapsible(false);
    splitter->addWidget(buildFolders());
    splitter->addWidget(page_);
    splitter->setStretchFactor(1, 1);
    splitter->setSizes({280, 620});
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(splitter);
    resize(900, 560);
    // A stored item may be the first of a folder, or have left the last one behind.
    connect(page_, &platform::ListPage::changed, this, &FreeDataWindow::refresh);
    refresh();
    folders_->setFocus();
    platform::FormRegistry::add(this);
}

QWidget* FreeDataWindow::buildFolders() {
    auto* side = new QWidget(this);
    auto* column = new QVBoxLayout(side);
    column->setContentsMargins(6, 6, 0, 6);
    column->setSpacing(6);
    rename_ = platform::form::button(QStringLiteral("cbRinominaCartella"), QStringLiteral("&Rinomina"), side);
    remove_ = platform::form::button(QStringLiteral("cbEliminaCartella"), QStringLiteral("E&limina"), side);
    for (QPushButton* button : {rename_, remove_})
        button->setAutoDefault(false);
    rename_->setAccessibleName(QStringLiteral("Rinomina cartella"));
    remove_->setAccessibleName(QStringLiteral("Elimina cartella"));
    auto* buttons = new QHBoxLayout;
    buttons->setSpacing(6);
    buttons->addWidget(rename_);
    buttons->addWidget(remove_);
    buttons->addStretch();
    folders_ = platform::form::named(new QTreeWidget(side), QStringLiteral("tvCartelle"));
    folders_->setHeaderLabel(QStringLiteral("Cartelle"));
    folders_->setAccessibleName(QStringLiteral("Cartelle"));
    column->addLayout(buttons);
    column->addWidget(folders_, 1);
    connect(folders_, &QTreeWidget::currentItemChanged, this, &FreeDataWindow::showFolder);
    connect(rename_, &QPushButton::clicked, this, &FreeDataWindow::renameFolder);
    connect(remove_, &QPushButton::clicked, this, &FreeDataWindow::removeFolder);
    return side;
}

void FreeDataWindow::refresh() {
    readFolders(chosenFolder());
}

void FreeDataWindow::readFolders(const QString& select) {
    QStringList paths;
    const QString why = platform::guarded([&] { paths = archive_.folders(); });
    if (!why.isEmpty()) return tell(why);
    {
        const QSignalBlocker quiet(folders_);
        folders_->clear();
        for (const QString& path : std::as_const(paths))
            folderItem(path);
        folders_->expandAll();
        // Of a folder that has gone, the one above it.
        QTreeWidgetItem* chosen = nullptr;
        for (QString path = select; !chosen && !path.isEmpty(); path = path.section(QLatin1Char('/'), 0, -2))
            for (QTreeWidgetItem* item :
                 folders_->findItems(path.section(QLatin1Char('/'), -1), Qt::MatchExactly | Qt::MatchRecursive))
                if (item->data(0, PATH).toString() == path) chosen = item;
        folders_->setCurrentItem(chosen ? chosen : folders_->topLevelItem(0));
    }
    showFolder();
}

QTreeWidgetItem* FreeDataWindow::folderItem(const QString& path) {
    const qsizetype slash = path.lastIndexOf(QLatin1Char('/'));
    QTreeWidgetItem* above = slash < 0 ? folders_->invisibleRootItem() : folderItem(path.left(slash));
    for (int i = 0; i < above->childCount(); ++i)
        if (above->child(i)->data(0, PATH).toString() == path) return above->child(i);
    auto* item = new QTreeWidgetItem(above, {path.mid(slash + 1)});
    item->setData(0, PATH, path);
    item->setIcon(0, style()->standardIcon(QStyle::SP_DirIcon));
    return item;
}

QString FreeDataWindow::chosenFolder() const {
    const QTreeWidgetItem* item = folders_->currentItem();
    return item ? item->data(0, PATH).toString() : QString();
}

void FreeDataWindow::showFolder() {
    folder_ = chosenFolder();
    page_->refresh();
    const bool any = folders_->currentItem() != nullptr;
    rename_->setEnabled(any);
    remove_->setEnabled(any);
}

void FreeDataWindow::renameFolder() {
    const QPointer<FreeDataWindow> alive(this);
    const QString path = platform::RecordForm::run(makeFolderForm(archive_, folder_, services_, this));
    if (alive && !path.isEmpty()) readFolders(path);
}

void FreeDataWindow::removeFolder() {
    const QString folder = chosenFolder();
    const QPointer<FreeDataWindow> alive(this);
    qsizetype count = 0;
    const QString unread = platform::guarded([&] { count = archive_.Lista(folder, true).size(); });
    if (!unread.isEmpty()) return tell(unread);
    services_.database.takeFailure();
    const QString items =
        count == 1 ? QStringLiteral("il dato che contiene") : QStringLiteral("i %1 dati che contiene").arg(count);
    const auto answer = platform::dialogs().message(
        QStringLiteral("Eliminare la cartella \u201c%1\u201d con %2, anche nelle cartelle al suo interno?")
            .arg(folder, items),
        platform::MB_QUESTION_DEFAULT_NO, windowTitle());
    if (answer != platform::Answer::Yes || !alive) return;
    if (!archive_.removeFolder(folder)) {
        const QString why = services_.database.takeFailure();
        tell(why.isEmpty() ? QStringLiteral("La cartella non è più nell'archivio.") : why);
    }
    if (alive) refresh();
}

void FreeDataWindow::tell(const QString& text) {
    platform::dialogs().message(text, platform::MB_WARNING, windowTitle());
}

} // namespace desk
