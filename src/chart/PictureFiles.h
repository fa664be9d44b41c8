#pragma once

#include <QPixmap>
#include <QSize>
#include <QString>

/// The picture files of a practice, which may hold anything: each is read once for a size on the screen and kept. A
/// file that is missing, broken or larger than any picture of a tooth can be gives no picture; reading never takes
/// long.

/// The picture fitted into a size in logical pixels, sharp on any screen; null when there is none.
QPixmap loadPicture(const QString& path, const QSize& size, qreal ratio);
/// The size that the picture asks for, in logical pixels; empty when there is none.
QSize pictureSize(const QString& path);
