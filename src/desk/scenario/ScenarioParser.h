#pragma once

#include "desk/scenario/ScenarioLine.h"

#include <QList>
#include <QString>

namespace desk {

/// A script as read: its lines, or the first thing that is wrong with it.
struct ParsedScenario {
    QList<ScenarioLine> lines;
    int faultyLine = 0; ///< 0 when the whole script is well written.
    QString fault;
};

/// Reads a script: one command a line, words divided by blanks, texts in double quotes with the escapes \" \\ and \n,
/// comments from a "#" that starts a word. Commands and the number and form of their arguments are checked here, so
/// that a slip in the last line shows before the first one runs.
ParsedScenario parseScenario(const QString& text);

} // namespace desk
