#pragma once

#include <QList>
#include <QMap>
#include <QString>
#include <QVariant>
#include <optional>

namespace host {
class Dati;
}

namespace desk {

/// Folder of the free-data archive in which the layouts lie.
inline constexpr char16_t REPORT_FOLDER[] = u"Certificati/Odontoiatria";

/// A layout that comes with the program.
struct ShippedReport {
    QString id;
    QString title;  ///< Its name in the archive.
    QString prefix; ///< With which the names of its variables begin.
    QString xml;
};

/// The layouts of the reports: those of the practice in its archive of free data, put there at first from those that
/// come with the program. Borrows the archive; throws HostError when that cannot be read.
class ReportLayouts {
public:
    explicit ReportLayouts(host::Dati& archive)
        : archive_(archive) {}

    /// Puts the layouts that are not there yet into the archive, once a run; what the practice has is left alone.
    void provide();
    struct Found {
        QString title;
        QString xml;
    };
    std::optional<Found> find(const QString& id);

    static const QList<ShippedReport>& shipped();
    /// The one that takes the place of a layout that cannot be used: that of the same identifier, else that for the
    /// same variables; null when there is none.
    static const ShippedReport* fallback(const QString& id, const QMap<QString, QVariant>& variables);

private:
    host::Dati& archive_;
    bool provided_ = false;
};

} // namespace desk
