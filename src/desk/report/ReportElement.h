#pragma once

#include <QColor>
#include <QList>
#include <QMap>
#include <QString>
#include <optional>
#include <vector>

namespace desk {

/// One element of a layout, checked against the grammar when it was read, so that asking for a value cannot fail. An
/// attribute that is not there answers the given default.
struct ReportElement {
    QString name;
    QMap<QString, QString> attributes;
    QString text;
    std::vector<ReportElement> children;

    const ReportElement* child(const char* childName) const; ///< The first of that name, or null.
    QString value(const char* attribute, const QString& otherwise = {}) const;
    qreal number(const char* attribute, qreal otherwise) const;
    std::optional<qreal> number(const char* attribute) const;
    bool flag(const char* attribute, bool otherwise = false) const;
    QColor colour(const char* attribute, const QColor& otherwise = {}) const;
    QList<qreal> numbers(const char* attribute) const;

    /// Readings of one attribute's text; nothing when it does not fit.
    static std::optional<qreal> readNumber(const QString& text);
    static std::optional<bool> readFlag(const QString& text);
    static std::optional<QList<qreal>> readNumbers(const QString& text); ///< Divided by semicolons or blanks.
};

} // namespace desk
