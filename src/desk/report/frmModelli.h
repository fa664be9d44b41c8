#pragma once

#include "host/contract/Archivio.h"

#include <QDialog>

class QPushButton;
namespace platform {
class ReportGrid;
}

namespace desk {

/// Modal list of the practice's report layouts, to take them out as files and put changed ones in. A file that is no
/// good layout is refused with the reason. Borrows the archive.
class frmModelli : public QDialog {
    Q_OBJECT

public:
    explicit frmModelli(host::Dati& archive, QWidget* parent = nullptr);

private:
    void buildList();
    void buildButtons();
    void fill(const QString& idToSelect);
    void showChoices();
    std::optional<host::ItemDati> chosen();
    /// A good layout from a file that the user picks; nothing on cancel or after a message.
    std::optional<QString> pickLayout(QString* name);
    void store(host::ItemDati item);
    void exportChosen();
    void importOverChosen();
    void importAsNew();
    void restoreChosen();
    void removeChosen();

    host::Dati& archive_;
    platform::ReportGrid* rcModelli_ = nullptr;
    QPushButton* cbEsporta_ = nullptr;
    QPushButton* cbImporta_ = nullptr;
    QPushButton* cbNuovo_ = nullptr;
    QPushButton* cbRipristina_ = nullptr;
    QPushButton* cbElimina_ = nullptr;
    QPushButton* cbChiudi_ = nullptr;
};

} // namespace desk
