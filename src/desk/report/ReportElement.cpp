#include "desk/report/ReportElement.h"

#include "platform/Regional.h"

#include <QRegularExpression>

namespace desk {

const ReportElement* ReportElement::child(const char* childName) const {
    for (const ReportElement& one : children)
        if (one.name == QLatin1String(childName)) return &one;
    return nullptr;
}

QString ReportElement::value(const char* attribute, const QString& otherwise) const {
    return attributes.value(QLatin1String(attribute), otherwise);
}

std::optional<qreal> ReportElement::number(const char* attribute) const {
    return readNumber(value(attribute));
}

qreal ReportElement::number(const char* attribute, qreal otherwise) const {
    return number(attribute).value_or(otherwise);
}

bool ReportElement::flag(const char* attribute, bool otherwise) const {
    return readFlag(value(attribute)).value_or(otherwise);
}

QColor ReportElement::colour(const char* attribute, const QColor& otherwise) const {
    const QString given = value(attribute);
    return given.isEmpty() ? otherwise : QColor(given);
}

QList<qreal> ReportElement::numbers(const char* attribute) const {
    return readNumbers(value(attribute)).value_or(QList<qreal>());
}

std::optional<qreal> ReportElement::readNumber(const QString& text) {
    // A layout is the same on every machine, whatever the settings in force.
    return platform::Regional::italian().toNumber(text.trimmed());
}

std::optional<bool> ReportElement::readFlag(const QString& text) {
    const QString word = text.trimmed().toLower();
    if (word == QLatin1String("si") || word == QStringLiteral("s\u00ec")) return true;
    if (word == QLatin1String("no")) return false;
    return std::nullopt;
}

std::optional<QList<qreal>> ReportElement::readNumbers(const QString& text) {
    static const QRegularExpression divider(QStringLiteral("[;\\s]+"));
    QList<qreal> numbers;
    for (const QString& part : text.split(divider, Qt::SkipEmptyParts)) {
        const std::optional<qreal> number = readNumber(part);
        if (!number) return std::nullopt;
        numbers.append(*number);
    }
    return numbers;
}

} // namespace desk
