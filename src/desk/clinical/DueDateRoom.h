#pragma once

#include "desk/clinical/PatientRoom.h"

namespace desk {

/// The due dates of a patient: those that have passed and are not done stand out.
class DueDateRoom : public PatientRoom {
public:
    using PatientRoom::PatientRoom;

    RoomTexts texts() const override;
    QList<platform::ReportColumn> columns() const override;
    QList<RoomRow> rows() override;
    RoomEditor* editor(const QString& id, QWidget* parent) override;
    QString removalQuestion(const QString& id) override;
    bool remove(const QString& id) override;
};

} // namespace desk
