#pragma once

#include <QString>
#include <QStringList>
#include <optional>

/// The teeth of a row as one value: none, one or several, in the order in which they were given. It is the one reader
/// and writer of their texts: the selection of the windows ("1.1", "+1.1;1.2"), the two fields of a stored row, and
/// what people type. An entry of a list that is no tooth keeps its place, so that the price of a row still counts it;
/// it is never drawn.
class ToothList {
public:
    ToothList() = default;
    explicit ToothList(const QStringList& teeth);
    static ToothList fromSelection(const QString& selection);
    static ToothList fromRecord(const QString& tooth, const QString& toothList);
    /// "16", "1,6", "1-6" and "1.6" are one tooth; several stand apart by blanks or any of ; , / + and count once each.
    /// A selection ("+1.1;9.9") is taken as it is, with what is no tooth in its place, as long as one entry is a tooth.
    /// Any other text with a part that is none gives nothing.
    static std::optional<ToothList> fromTyped(const QString& text);

    const QStringList& entries() const { return entries_; } ///< Written "1.6"; what is no tooth as it came.
    QStringList unknown() const;                            ///< The entries that are no tooth.
    bool isEmpty() const { return entries_.isEmpty(); }
    bool isList() const { return list_; } ///< Written with the leading "+".
    bool contains(const QString& tooth) const { return entries_.contains(tooth); }
    int factor() const; ///< How often a price for one tooth counts; once for a row without teeth.

    QString selection() const; ///< As windows show it.
    QString listText() const;  ///< "1.1;1.2"
    /// The stored fields. One tooth: `tooth` holds its index. A list: `tooth` is "+" and `toothList` the indexes, -1
    /// for what is no tooth. A tooth alone that there is not leaves both empty.
    QString tooth() const;
    QString toothList() const;
    QString label() const; ///< "Dente 1.1" or "Denti 1.1;1.2"; empty without teeth.

    bool operator==(const ToothList& other) const = default;

private:
    QStringList entries_;
    bool list_ = false;
};
