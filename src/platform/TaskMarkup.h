#pragma once

#include <QString>

namespace platform {

/// The markup of the task dialogs (<TextBlock>, <Bold>, <Underline>, <Run Foreground='Red'>, <LineBreak/>, <A
/// HREF="…">) as rich text. Everything else is text and shown as written; a tag left open is closed at the end.
QString richText(const QString& markup);

} // namespace platform
