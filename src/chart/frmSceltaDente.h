#pragma once

#include "chart/modDenti.h"

#include <QDialog>
#include <array>

class QCheckBox;
class QGridLayout;
class QLabel;
class QPushButton;
class QTimer;
class QToolButton;
class ToothPicture;

/// Modal choice of teeth, laid out as the dentist faces the patient. Two digits typed anywhere toggle a tooth ("1", "6"
/// for 1.6). `laOUTB` holds "OK" or "CANCEL" once the window has hidden itself.
class frmSceltaDente : public QDialog {
    Q_OBJECT

public:
    explicit frmSceltaDente(QWidget* parent = nullptr);

    void setSelection(const QString& selection); ///< Sets the boxes of those teeth, besides the ones already set.
    QStringList teeth() const;                   ///< Captions of the set boxes, in index order.
    bool confirmed() const;

protected:
    void keyPressEvent(QKeyEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void reject() override; ///< Escape and the frame's cross do as cbChiudi.

private:
    void buildTeeth(QWidget* panel);
    void addTooth(QGridLayout* grid, int index, int row, int column);
    void addArrow(QGridLayout* grid, int quadrant, int row, int column);
    void orderByEye();
    void buildButtons();
    void colourLabel(int index);
    void chooseQuadrant(int quadrant);
    void clearAll();
    void finish(const QString& result);
    bool takeDigit(const QString& text);

    std::array<QCheckBox*, TOOTH_COUNT> cbTooth_{};
    std::array<QLabel*, TOOTH_COUNT> laDente_{};
    std::array<ToothPicture*, TOOTH_COUNT> pbTooth_{};
    std::array<QToolButton*, 8> arrow_{};
    QPushButton* cbPiglia_ = nullptr;
    QPushButton* cbChiudi_ = nullptr;
    QPushButton* cbNessuno_ = nullptr;
    QLabel* laOUTB_ = nullptr;
    QTimer* timer1_ = nullptr;
    QString digits_;
};
