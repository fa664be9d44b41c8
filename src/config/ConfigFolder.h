#pragma once

#include <QString>
#include <QStringList>

namespace platform {
class XmlDocument;
}

/// The working configuration in the user's folder: seeded from the templates beside the module at the first run, mended
/// when it is broken, brought up to a newer template. What it changes it changes in one step each, so that a program
/// that dies in between finds its way at the next start; what it replaces it keeps. Lives as long as the start.
class ConfigFolder {
public:
    ConfigFolder();

    /// Loads `Config.xml`. False when it can neither be read nor seeded; `error` says why.
    bool open(platform::XmlDocument& document);
    /// Puts the templates of the catalogues in the place of broken ones, in whatever folder the practice chose.
    void mendCatalogues(const QString& dataFolder);

    const QString& file() const { return file_; } ///< Path of `Config.xml`; empty without a folder.
    const QString& error() const { return error_; }
    const QStringList& notices() const { return notices_; } ///< What the user has to be told.

private:
    bool seed(platform::XmlDocument& document);
    bool seedCatalogues(QString& dataFolder) const;
    void renew(platform::XmlDocument& document) const;
    void restrict() const;

    QString folder_;
    QString file_;
    QString error_;
    QStringList notices_;
};
