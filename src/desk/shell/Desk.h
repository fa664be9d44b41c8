#pragma once

#include <QMap>
#include <QString>
#include <QVariant>
#include <memory>

class QMainWindow;

namespace host {
class Host;
class PluginInterface;
} // namespace host

namespace desk {

struct Options;

/// The whole stand-alone host: database, signed-in user, main window, the patient's desk and at most one module. It
/// owns all of them and ends them in the right order; ending a desk raises "fine" to its module. Interface thread only.
class Desk {
public:
    /// Opens the database, signs the user in and builds the main window, not yet shown. Throws DatabaseError or
    /// OptionError with text for the user, and SignInCancelled when nobody signed in.
    static std::unique_ptr<Desk> open(const Options& options);
    ~Desk();
    Desk(const Desk&) = delete;
    Desk& operator=(const Desk&) = delete;

    host::Host& host();
    QMainWindow* window();

    /// Loads a module and starts it. False leaves a desk that works without it; `moduleError` and the main window say
    /// why.
    bool loadModule(const QString& libraryPath);
    /// The same for a module that is already in the program.
    bool attachModule(std::unique_ptr<host::PluginInterface> module);
    bool hasModule() const;
    QString moduleError() const; ///< Empty while nothing is wrong.

    bool openPatient(const QString& id);
    bool openPatientByTaxCode(const QString& taxCode); ///< Letter case does not matter.
    void closePatient();

    /// Presses a command of the ribbon or of the main menu, named by the module's key ("CRVL0302") or by its caption.
    /// False, with the reason in `error`, when there is none, or it is hidden or disabled.
    bool pressCommand(const QString& keyOrCaption, QString* error = nullptr);

    /// Variables that the last report was asked with, by name.
    QMap<QString, QVariant> lastReportVariables() const;
    QString lastReportID() const; ///< Empty before the first report.

    struct Parts; ///< The inside, for the commands of the desk.

private:
    explicit Desk(std::unique_ptr<Parts> parts);
    std::unique_ptr<Parts> parts_;
};

} // namespace desk
