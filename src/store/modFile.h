#pragma once

#include <QString>

// Small file operations of the records. Failures give false, never an error; paths follow the rules of platform::files.

bool FileEsiste(const QString& path);
/// Replaces the file by the text, one byte per character, in one step: a failure keeps the old file and gives false.
bool ScriviFile(const QString& path, const QString& text);
/// Moves nothing and gives false when `to` is already there; otherwise whether it is there afterwards.
bool RinominaFile(const QString& from, const QString& to);
