#pragma once

#include "platform/Dialogs.h"

#include <QString>
#include <functional>

namespace desk {

class Database;
struct RestoredArchive;

/// The commands "Copia di sicurezza" and "Ripristina copia", with all they ask and tell. On a server, which has tools
/// of its own for both, they say how it is done there. Borrows the database.
class BackupCommands {
public:
    struct Hooks {
        std::function<bool()> closeEverything; ///< Patient and windows; false when one of them stays open.
        std::function<void()> leave;           ///< Ends the program.
    };
    BackupCommands(Database& database, QString userId, Hooks hooks);

    void makeCopy();
    void restoreCopy();
    static platform::FileKinds fileKinds(); ///< For questions about copies.

private:
    bool explainedServer() const;
    bool mayReplace(const QString& path);
    void goOnAfter(const RestoredArchive& restored);

    Database& database_;
    QString userId_; ///< Of who has signed in.
    Hooks hooks_;
};

} // namespace desk
