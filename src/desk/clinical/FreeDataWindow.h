#pragma once

#include "desk/clinical/RoomServices.h"

#include <QWidget>

class QPushButton;
class QTreeWidget;
class QTreeWidgetItem;

namespace platform {
class ListPage;
}

namespace desk {

class FreeData;

/// The archive of free data, "frmArchivioDati": the tree of folders, what is in the chosen one, and their editors.
/// Report layouts are kept there, too. Borrows the archive.
class FreeDataWindow : public QWidget {
    Q_OBJECT

public:
    FreeDataWindow(FreeData& archive, const RoomServices& services, QWidget* parent = nullptr);

    void refresh();

private:
    QWidget* buildFolders();
    void readFolders(const QString& select); ///< Keeps the tree when the folders cannot be read.
    QTreeWidgetItem* folderItem(const QString& path);
    void showFolder();
    QString chosenFolder() const;
    void renameFolder();
    void removeFolder();
    void tell(const QString& text);

    FreeData& archive_;
    RoomServices services_;
    QString folder_; ///< The chosen one.
    platform::ListPage* page_;
    QTreeWidget* folders_ = nullptr;
    QPushButton* rename_ = nullptr;
    QPushButton* remove_ = nullptr;
};

} // namespace desk
