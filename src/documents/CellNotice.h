#pragma once

#include "platform/Notice.h"

#include <QString>

class ToothList;

/// What the user should know of a cell or a field, and how much it matters. `unread` is the text that was typed into
/// it and could not be read; empty when all was.
struct CellNotice {
    platform::Notice kind = platform::Notice::None;
    QString text;
};

/// Which of the teeth will not be stored.
CellNotice noticeOfTeeth(const ToothList& teeth, const QString& unread);
/// A date that is none, and what stays stored in its place.
CellNotice noticeOfDate(const QString& stored, const QString& unread);
/// A service that the catalogue does not have.
CellNotice noticeOfService(const QString& code);
/// A text that is none of a list's.
CellNotice noticeOfChoice(const QString& unread);
