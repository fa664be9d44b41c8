#pragma once

#include "config/ReportList.h"

#include <QDialog>
#include <array>

class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QPushButton;
class QStackedWidget;
class QTreeWidget;

/// Modal window of the settings, by topic, with the tools for print reports and lock files. Writes every setting when
/// it is told to apply, and stays open; what cannot be written is told, and the window keeps what was typed. Borrows
/// the configuration.
class frmConfig : public QDialog {
    Q_OBJECT

public:
    explicit frmConfig(QWidget* parent = nullptr);

    /// Removes the marks of records in use, of all workstations. False when one could not be removed, which was told.
    bool RimuoviTuttiLock();

protected:
    void showEvent(QShowEvent* event) override;

private:
    // What it is made of (frmConfigFields.cpp).
    void build();
    void addFrame(const QString& entry, QWidget* topicFrame);
    QWidget* pbIntestazione();
    QWidget* pbTrattamenti();
    QWidget* pbFatturazione();
    QWidget* pbStrumenti();
    QWidget* pbOpzioni();

    void wire();
    void read();
    void readHeading();
    void apply();
    bool amountsAreReadable(); ///< False after the user was told which amount is none.
    void write();
    void changed();
    void showFont();
    void clearLocks();

    // By their place in Text1; the details, which have more lines, are a box of their own.
    enum Text { DESCRIPTION, STAMP_DUTY, STAMP_DUTY_FROM, TEXTS };
    enum Option { WHITE_FORMS, MODAL_NOTES, EMPTY_ROW, GP_USE, OPTIONS };
    enum Treatment { WORST_STATUS, SINGLE_SHEET, TREATMENTS };
    enum Tool { ASSIGN_REPORTS, CLEAR_LOCKS, TOOLS };

    QTreeWidget* treeView1_ = nullptr;
    QStackedWidget* frames_ = nullptr;
    std::array<QLineEdit*, TEXTS> text1_{};
    QPlainTextEdit* details_ = nullptr;
    QComboBox* cbIVA_ = nullptr;
    QComboBox* cbFont_ = nullptr;
    QLabel* laEsempio_ = nullptr;
    QLabel* laFontAssente_ = nullptr;
    std::array<QCheckBox*, TREATMENTS> cbTrattamenti_{};
    std::array<QCheckBox*, OPTIONS> cbOpzioni_{};
    std::array<QPushButton*, TOOLS> cbStrumenti_{};
    QPushButton* cbConferma_ = nullptr;
    QPushButton* cbAnnulla_ = nullptr;
    ReportList reports_;
};
