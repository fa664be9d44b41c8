#pragma once

#include "desk/clinical/PatientRoom.h"

namespace desk {

/// The diary of a patient. An entry may hold a file, which a button shows.
class EventRoom : public PatientRoom {
public:
    using PatientRoom::PatientRoom;

    RoomTexts texts() const override;
    QList<platform::ReportColumn> columns() const override;
    QList<RoomRow> rows() override;
    RoomEditor* editor(const QString& id, QWidget* parent) override;
    QString removalQuestion(const QString& id) override;
    bool remove(const QString& id) override;
    QList<RoomAction> actions() override;
};

} // namespace desk
