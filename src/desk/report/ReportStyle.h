#pragma once

#include <QColor>
#include <QFont>
#include <QString>
#include <Qt>

namespace desk {

struct ReportElement;

/// How a text looks. Blocks take the style of the page and change what their attributes name.
struct ReportStyle {
    QString family = QStringLiteral("Carlito");
    qreal size = 10; ///< Points.
    bool bold = false;
    bool italic = false;
    bool upperCase = false;
    QColor colour{31, 41, 51};
    Qt::Alignment alignment = Qt::AlignLeft;

    ReportStyle changedBy(const ReportElement& element) const;
    ReportStyle aligned(Qt::Alignment where) const;
    ReportStyle bolder() const;
    ReportStyle coloured(const QColor& with) const;
    ReportStyle sized(qreal points) const;
    QFont font() const; ///< Sized in the units of a report.
};

/// "sinistra", "centro" or "destra" of an element; left when it does not say.
Qt::Alignment reportAlignment(const ReportElement& element);

} // namespace desk
