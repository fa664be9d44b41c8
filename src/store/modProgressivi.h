#pragma once

#include <QString>

// The human numbers of the records, shared by the whole practice per type and year. A number is proposed, not reserved:
// the editors test it again when they save.

/// The highest number of type and year plus 1, as "0001". Beyond 9999 it stays at "10000": the maximum is one of text.
QString ProssimoProgressivo(const QString& t1, const QString& year);
bool EsisteProgressivo(const QString& t1, const QString& idrif1);
