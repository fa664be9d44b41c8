#pragma once

#include "desk/clinical/RoomEditor.h"

namespace desk {

class FreeData;

/// The name of a folder of the archive of free data, "frmEditCartella". Another path moves all that is in it and below
/// it. `savedId` is the new path. Borrows the archive.
class FolderEditor : public RoomEditor {
    Q_OBJECT

public:
    FolderEditor(FreeData& archive, const QString& folder, const RoomServices& services, QWidget* parent);

protected:
    QString whatIsWrong() override;
    bool store(QString& id) override;

private:
    FreeData& archive_;
    QString folder_;
    QLineEdit* name_;
};

} // namespace desk
