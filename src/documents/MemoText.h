#pragma once

#include "platform/XmlReading.h"

#include <QLatin1String>
#include <QString>

/// The text of a memo, which every document of a patient keeps in its row: XML put together by concatenation, one
/// element a line, free texts in Base64. What several kinds write and read alike stands here; the order of elements and
/// attributes is each kind's own.
namespace memo {

inline const QLatin1String LINE_END("\r\n");

/// Writing. Values that the fields normally hold come out unchanged; what would break the memo, and with it the whole
/// document, is escaped, and a character that XML cannot carry at all is dropped.
void appendDeclaration(QString& memo);
void appendValue(QString& memo, const QString& value);
void appendAttribute(QString& memo, QLatin1String name, const QString& value); ///< Name, value and a blank.
void appendEncoded(QString& memo, QLatin1String name, const QString& text);    ///< The same with the text in Base64.
/// A line with the tax code as an attribute and the name in Base64.
void appendPerson(QString& memo, QLatin1String element, const QString& taxCode, const QString& name);
void appendText(QString& memo, QLatin1String element, const QString& text); ///< A line with a text in Base64.

/// Reading. What is absent leaves the values as they are.
void readPerson(const platform::XmlElement& node, QString& taxCode, QString& name);
void readText(const platform::XmlElement& node, QString& text);
/// The root of a memo, or a null element when the memo could not be read or is another kind's.
platform::XmlElement root(const platform::XmlReading& memo, const char* element);
/// The descriptions of all rows that have one, a line each: what a document without a description is called.
QString rowDescriptions(const platform::XmlElement& rows);

} // namespace memo
