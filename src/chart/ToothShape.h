#pragma once

#include <QPainterPath>
#include <QRectF>

class QPainter;

/// The outline of a tooth as seen from the cheek, for charts and pickers where no picture is at hand: the kind of tooth
/// gives crown and roots, the arch which way up it stands.
struct ToothShape {
    QPainterPath crown;
    QPainterPath roots;
    QPainterPath grooves; ///< Lines between the cusps, open.

    /// Fits the tooth of that index into the box, whose proportions are 40 to 84.
    static ToothShape of(int indice, const QRectF& box);
};

/// Paints the shape with enamel and roots; `faded` for teeth that are not in play.
void paintTooth(QPainter& painter, int indice, const QRectF& box, bool faded = false);
