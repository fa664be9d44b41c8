#pragma once

#include "desk/clinical/PatientRoom.h"
#include "host/contract/Paziente.h"

namespace desk {

/// The files of a patient: added from the disk, shown, extracted into the folder of the run or saved to one of the
/// user. A file that is deleted takes its entries in the diary with it.
class FileRoom : public PatientRoom {
public:
    using PatientRoom::PatientRoom;

    RoomTexts texts() const override;
    QList<platform::ReportColumn> columns() const override;
    QList<RoomRow> rows() override;
    RoomEditor* editor(const QString& id, QWidget* parent) override;
    QString removalQuestion(const QString& id) override;
    bool remove(const QString& id) override;
    QList<RoomAction> actions() override;

    void show(const QString& id); ///< Throws HostError.

private:
    void extract(const QString& id);
    void saveAs(const QString& id);
    QString extracted(const QString& id); ///< Path of a copy; throws HostError.
    [[noreturn]] void failed(const QString& id, const QString& otherwise);
    QList<host::Evento> entriesOf(const QString& id); ///< In the diary.
};

} // namespace desk
