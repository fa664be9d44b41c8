#pragma once

#include <QString>
#include <QStringList>
#include <stdexcept>

namespace desk {

/// Thrown for a command line or a setting that makes no sense; the text is Italian and meant for the user.
class OptionError : public std::runtime_error {
public:
    explicit OptionError(const QString& what)
        : std::runtime_error(what.toStdString()) {}
    QString text() const { return QString::fromUtf8(what()); }
};

/// What the command line asks of the desk. Empty texts stand for the defaults: the embedded database in the user's data
/// folder, the user's own application-data folder, the first user of the practice.
struct Options {
    QString databaseUrl;
    QString configDir;
    QString userCode;
    QString forgottenCode; ///< User whose password is taken away.
    QString scenarioFile;
    QString outDir;
    QString copyTo;      ///< Address of an empty database into which the practice is copied; then the program ends.
    QString restoreFrom; ///< Safety copy that takes the place of the archive; then the program ends.
    /// Whether somebody sits at the screen who can say who they are; a script takes the first user.
    bool asksWhoSignsIn = false;
    bool demo = false;
    bool help = false;

    /// Reads the arguments after the program's name; throws OptionError.
    static Options parse(const QStringList& arguments);
    static QString helpText();
    void useConfigFolder() const; ///< Throws OptionError when it cannot be made.
};

} // namespace desk
