#pragma once

#include <QString>

/// The vocabulary of teeth. A tooth is written as quadrant, full stop, position ("1.8"); records hold its place in the
/// fixed order of the chart, windows show the tooth. Unknown teeth and places are answered, never an error.

inline constexpr int TOOTH_COUNT = 52;

QString DenteDaIndice(int index);              ///< Empty outside 0 to 51.
QString DentiDaIndici(const QString& indices); ///< "0;9" gives "1.8;2.2"; an entry that is no tooth gives an empty one.
qint16 IndiceDaDente(const QString& tooth);    ///< -1 for an empty or unknown tooth.
QString IndiciDaDenti(const QString& teeth);   ///< "1.1;1.2" gives "7;6"; unknown teeth give -1.

bool isUpper(int index); ///< The tooth belongs to the upper arch.
bool isDeciduous(int index);
/// Quadrant 1 to 8 and position 1 to 8 from the middle of the mouth; 0 outside 0 to 51.
int toothQuadrant(int index);
int toothPosition(int index);
