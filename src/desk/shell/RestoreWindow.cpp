#include "desk/shell/RestoreWindow.h"

#include "desk/data/DatabaseError.h"
#include "desk/icons/DeskIcon.h"
#include "desk/shell/ArchiveRestore.h"
#include "desk/shell/BackupCommands.h"
#include "platform/Dialogs.h"
#include "platform/FormLayout.h"
#include "platform/FormRegistry.h"
#include "platform/Regional.h"
#include "platform/WaitCursor.h"

#include <QDir>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QStandardPaths>
#include <QStorageInfo>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace desk {

namespace {

constexpr int SHOWN_COPIES = 6;

QString title() {
    return QStringLiteral("Archivio danneggiato");
}

/// Where people put copies: beside the archive, in their own folders, on a stick.
QStringList usualFolders(const QString& archive) {
    QStringList folders{QFileInfo(archive).absolutePath()};
    for (const auto place : {QStandardPaths::DocumentsLocation, QStandardPaths::DesktopLocation,
                             QStandardPaths::DownloadLocation, QStandardPaths::HomeLocation})
        folders << QStandardPaths::writableLocation(place);
    for (const QStorageInfo& volume : QStorageInfo::mountedVolumes())
        if (volume.rootPath().startsWith(QLatin1String("/media/")) ||
            volume.rootPath().startsWith(QLatin1String("/run/media/")))
            folders << volume.rootPath();
    folders.removeDuplicates();
    return folders;
}

QString dayAndTime(const QDateTime& moment) {
    return platform::regional().shortDate(moment.date()) + moment.toString(QStringLiteral(" HH:mm"));
}

} // namespace

RestoreWindow::RestoreWindow(DatabaseUrl url, const QString& damage, QWidget* parent)
    : QDialog(parent)
    , url_(std::move(url))
    , list_(platform::form::named(new QTreeWidget(this), QStringLiteral("lbCopie")))
    , restore_(platform::form::button(QStringLiteral("cbRipristina"), QStringLiteral("&Ripristina"), this)) {
    setObjectName(QStringLiteral("frmRipristino"));
    setWindowTitle(QStringLiteral("Tessara 5000 – ") + title());
    setWindowIcon(deskIcon("tessara"));
    build(damage);
    listCopies();
    platform::FormRegistry::add(this);
}

void RestoreWindow::build(const QString& damage) {
    auto* text = platform::form::named(new QLabel(damage, this), QStringLiteral("laStato"));
    text->setWordWrap(true);
    text->setTextFormat(Qt::PlainText);
    auto* hint = platform::form::named(
        new QLabel(QStringLiteral("Si può mettere al suo posto una copia di sicurezza. L'archivio danneggiato resta "
                                  "conservato accanto, con la data di oggi nel nome."),
                   this),
        QStringLiteral("laNota"));
    hint->setWordWrap(true);
    list_->setAccessibleName(QStringLiteral("Copie di sicurezza trovate"));
    list_->setRootIsDecorated(false);
    list_->setHeaderLabels({QStringLiteral("Copia"), QStringLiteral("Fatta il"), QStringLiteral("Pazienti"),
                            QStringLiteral("Documenti"), QStringLiteral("Ultima modifica")});
    list_->header()->setStretchLastSection(false);
    list_->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    list_->header()->setSectionResizeMode(0, QHeaderView::Stretch);
    restore_->setDefault(true);
    QPushButton* other = platform::form::button(QStringLiteral("cbAltroFile"), QStringLiteral("&Altro file…"), this);
    QPushButton* leave = platform::form::button(QStringLiteral("cbAnnulla"), QStringLiteral("Esci"), this);
    for (QPushButton* each : {other, leave})
        each->setAutoDefault(false);
    connect(restore_, &QPushButton::clicked, this, &RestoreWindow::restoreChosen);
    connect(list_, &QTreeWidget::itemActivated, this, &RestoreWindow::restoreChosen);
    connect(other, &QPushButton::clicked, this, &RestoreWindow::restoreOther);
    connect(leave, &QPushButton::clicked, this, &QDialog::reject);

    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(16, 14, 16, 14);
    column->setSpacing(10);
    column->addWidget(
        platform::form::heading(QStringLiteral("laTitolo"), QStringLiteral("L'archivio è danneggiato"), this));
    column->addWidget(text);
    column->addWidget(hint);
    column->addWidget(list_, 1);
    column->addLayout(platform::form::buttonRow({restore_, other, leave}));
    resize(720, 420);
    QWidget* const order[] = {list_, restore_, other, leave};
    for (std::size_t i = 1; i < std::size(order); ++i)
        setTabOrder(order[i - 1], order[i]);
}

void RestoreWindow::listCopies() {
    {
        const platform::WaitCursor wait;
        copies_ = sqlite_copy::latest(usualFolders(url_.path), url_.path, SHOWN_COPIES);
    }
    for (const FoundCopy& copy : std::as_const(copies_)) {
        const QDate change = copy.facts.lastChange;
        auto* row =
            new QTreeWidgetItem(list_, {QFileInfo(copy.path).fileName(), dayAndTime(copy.made),
                                        QString::number(copy.facts.patients), QString::number(copy.facts.records),
                                        change.isValid() ? platform::regional().shortDate(change) : QString()});
        row->setToolTip(0, QDir::toNativeSeparators(copy.path));
        for (int number : {2, 3})
            row->setTextAlignment(number, Qt::AlignRight | Qt::AlignVCenter);
    }
    restore_->setEnabled(!copies_.isEmpty());
    if (!copies_.isEmpty()) return list_->setCurrentItem(list_->topLevelItem(0));
    auto* none =
        new QTreeWidgetItem(list_, {QStringLiteral("Nessuna copia nelle cartelle consuete: scegliere un altro file.")});
    none->setFirstColumnSpanned(true);
    none->setFlags(Qt::NoItemFlags);
}

void RestoreWindow::restoreChosen() {
    const int row = list_->indexOfTopLevelItem(list_->currentItem());
    if (row >= 0 && row < copies_.size()) restore(copies_[row].path);
}

void RestoreWindow::restoreOther() {
    const QString path =
        platform::dialogs().openFile(title(), BackupCommands::fileKinds(), QFileInfo(url_.path).absolutePath());
    if (!path.isEmpty()) restore(path);
}

void RestoreWindow::restore(const QString& path) {
    QString why;
    RestoredArchive restored;
    try {
        const platform::WaitCursor wait;
        restored = restoreArchive(url_, path);
    } catch (const DatabaseError& error) {
        why = error.text();
    }
    if (!why.isEmpty()) {
        platform::dialogs().message(QStringLiteral("La copia non è stata ripristinata.\n\n") + why,
                                    platform::MB_CRITICAL, title());
        return;
    }
    platform::dialogs().message(describe(restored), platform::MB_INFORMATION, title());
    accept();
}

} // namespace desk
