#pragma once

#include <QMap>
#include <QString>
#include <QStringList>
#include <QVariant>

namespace desk {

/// The variables with which a report is filled. Keeps the names that were asked for and are not there. "{Nome}" in a
/// text stands for a variable, "{{" for a brace.
class ReportValues {
public:
    explicit ReportValues(QMap<QString, QVariant> variables);

    void set(const QString& name, const QString& value) { variables_.insert(name, value); }
    QString text(const QString& name);        ///< Empty, and noted as missing, when there is none.
    bool isFilled(const QString& name) const; ///< There and not empty; asking notes nothing.
    QString expanded(const QString& text);
    /// What else went wrong while filling, in words for the user; each text once.
    void note(const QString& what);

    const QStringList& missing() const { return missing_; }
    const QStringList& notes() const { return notes_; }

private:
    QMap<QString, QVariant> variables_;
    QStringList missing_;
    QStringList notes_;
};

} // namespace desk
