#pragma once

#include "treatments/StadiLavoro.h"

#include <QList>
#include <QWidget>

class QCheckBox;
class QDateEdit;
class QLabel;

/// One stage in the row editor: pbStatus(i) with laStatus(i), cbStatusINI(i), dtpStatusINI(i), cbStatusFIN(i) and
/// dtpStatusFIN(i). Hidden and with an empty tag while the service has no such stage; "OK" otherwise.
class PannelloStadio : public QWidget {
    Q_OBJECT

public:
    PannelloStadio(int indice, QWidget* parent);

    void libera();                 ///< No stage: hidden, without dates.
    void usa(const QString& nome); ///< A stage that has not been started.
    bool inUso() const;
    void setDate(const StadioLavoro& stadio); ///< Its dates only.
    StadioLavoro stadio() const;
    QList<QWidget*> campi() const; ///< In the order of the Tab key.

private:
    void mostraDate();

    QLabel* laStatus_;
    QCheckBox* cbStatusINI_;
    QDateEdit* dtpStatusINI_;
    QCheckBox* cbStatusFIN_;
    QDateEdit* dtpStatusFIN_;
};
