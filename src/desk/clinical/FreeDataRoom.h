#pragma once

#include "desk/clinical/Room.h"
#include "desk/clinical/RoomServices.h"

namespace desk {

class FreeData;

/// The items of one folder of the archive of free data. Borrows the archive.
class FreeDataRoom : public Room {
public:
    FreeDataRoom(FreeData& archive, RoomServices services)
        : archive_(archive)
        , services_(std::move(services)) {}

    void setFolder(const QString& folder) { folder_ = folder; }
    const QString& folder() const { return folder_; }

    RoomTexts texts() const override;
    QList<platform::ReportColumn> columns() const override;
    QList<RoomRow> rows() override;
    RoomEditor* editor(const QString& id, QWidget* parent) override;
    QString removalQuestion(const QString& id) override;
    bool remove(const QString& id) override;

private:
    FreeData& archive_;
    RoomServices services_;
    QString folder_;
};

} // namespace desk
