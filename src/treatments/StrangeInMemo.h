#pragma once

#include <QString>

/// What the memo of a plan, readable as such, holds that a plan has no place for, in words: an element or attribute of
/// another name, a part that stands twice or is missing. Writing the plan back would lose it. Empty for a whole memo.
QString strangeInMemo(const QString& memo);
