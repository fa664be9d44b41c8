#pragma once

#include <QList>
#include <QString>
#include <optional>

/// The situation of one tooth as a plan keeps it: one entry, "index:situation:text", of the situation of the mouth,
/// whose entries are joined by ";". It is their one reader and writer.
struct ToothSituation {
    int tooth = -1;    ///< Index in the chart.
    QString situation; ///< Of the practice's list; empty for none.
    QString text;

    /// Nothing when the entry begins with no tooth. The text is all that follows the situation, a ":" in it included.
    static std::optional<ToothSituation> fromEntry(const QString& entry);
    QString entry() const;
    /// Takes a text as typed. A ";" would tear the entry apart, and its neighbours with it: it gives way to a comma.
    void setText(const QString& typed);
    bool isPlain() const; ///< Says nothing of its tooth.

    bool operator==(const ToothSituation& other) const = default;
};

/// The situation of a mouth; entries of no tooth are passed over.
QList<ToothSituation> readMouth(const QString& mouthSituation);
QString writeMouth(const QList<ToothSituation>& entries);
/// What the mouth says of one tooth; a plain entry when that is nothing.
ToothSituation situationOf(const QString& mouthSituation, int tooth);
