#pragma once

#include <QString>

struct clsItemTrattamento;

/// The stored text of a treatment plan, both directions side by side. The layout (tabs, line ends, order of the
/// attributes, blanks before the closing brackets) is read by other programs of the practice and stays as it is, byte
/// for byte.

/// The memo of a plan. Always well-formed, whatever the fields hold.
QString writeTreatmentMemo(const clsItemTrattamento& item);

/// Fills the plan from its memo. A text that is no such memo leaves the plan as it is but for `fault`. Throws
/// platform::DuplicateKey when two rows have one number; the plan then has its rows up to there and all else. A row
/// without price, or with price 0 and no invoice, takes the catalogue's present price.
void readTreatmentMemo(clsItemTrattamento& item, const QString& memo);

/// The same with all rows, those of a number that another one bears under keys of their own; `fault` tells of them.
void salvageMemo(clsItemTrattamento& item, const QString& memo);

/// The same without the rows: what the lists of the practice show, counts included. Two rows of one number are no
/// error here.
void readMemoForList(clsItemTrattamento& item, const QString& memo);
