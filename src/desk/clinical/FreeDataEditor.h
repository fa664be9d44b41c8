#pragma once

#include "desk/clinical/RoomEditor.h"
#include "host/contract/Archivio.h"

namespace desk {

class FreeData;

/// An item of the archive of free data, "frmEditDato": its folder, which moves it, description and content. Borrows the
/// archive.
class FreeDataEditor : public RoomEditor {
    Q_OBJECT

public:
    FreeDataEditor(FreeData& archive, host::ItemDati item, const RoomServices& services, QWidget* parent);

protected:
    QString whatIsWrong() override;
    QStringList storedNow() override;
    bool store(QString& id) override;

private:
    FreeData& archive_;
    host::ItemDati item_;
    QLineEdit* folder_;
    QLineEdit* description_;
    QPlainTextEdit* content_;
};

} // namespace desk
