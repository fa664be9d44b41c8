#pragma once

#include <QString>
#include <functional>

namespace desk {

class Database;

/// What the rooms need of the desk around them. Copied by each; the database outlives them all.
struct RoomServices {
    Database& database;
    QString userId;                            ///< The signed-in user, for whom private notes are shown or not.
    std::function<void(bool)> setDialogCancel; ///< How the last editor ended, for whoever opened it.
    std::function<void(const QString& path)> showFile;
};

} // namespace desk
