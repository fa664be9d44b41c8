#pragma once

#include <QString>

class QWidget;

namespace desk {

/// The text that a control shows, whatever its kind: content of a field, caption of a button, current entry of a list
/// or a tab, title of an area or a window. Empty for a control without text.
QString controlText(const QWidget* control);

QString withoutMnemonic(const QString& caption); ///< "&Conferma" becomes "Conferma".
QString withPlainLineEnds(const QString& text);  ///< CR LF and CR become LF.

} // namespace desk
