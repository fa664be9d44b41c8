#pragma once

#include "desk/clinical/RoomServices.h"

#include <QDialog>
#include <QHash>
#include <QList>
#include <QStringList>

class QCheckBox;
class QDateEdit;
class QGridLayout;
class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QPushButton;

namespace desk {

/// The editor of one row of a room. It is accepted only when the row could be stored; what is wrong, and a database
/// that fails, is told and leaves the window open with all that was typed. Leaving a changed row asks first, and so
/// does writing over a row that another workstation changed meanwhile.
class RoomEditor : public QDialog {
    Q_OBJECT

public:
    QString savedId() const { return savedId_; } ///< Empty until the row was stored.

    void reject() override;

protected:
    RoomEditor(RoomServices services, const QString& name, const QString& title, QWidget* parent);

    QDateEdit* addDate(const QString& name, const QString& caption, const QDate& date);
    QLineEdit* addLine(const QString& name, const QString& caption, const QString& text);
    /// Keeps line ends and blanks of a text that is not changed.
    QPlainTextEdit* addMemo(const QString& name, const QString& caption, const QString& text);
    QCheckBox* addCheck(const QString& name, const QString& caption, bool checked);
    QLabel* addText(const QString& name, const QString& caption, const QString& text); ///< Not to be changed.
    void addRow(const QString& caption, QWidget* control);
    void finish(QWidget* first, const QSize& size); ///< Buttons, tab order and focus, after the last field.

    QString memoText(const QPlainTextEdit* memo) const;
    bool isChanged() const;
    const RoomServices& services() const { return services_; }

    virtual QString whatIsWrong() { return {}; } ///< Empty when nothing is; the field at fault gets the focus.
    /// What is stored of the row now, its text first; empty for a new one and one that is gone.
    virtual QStringList storedNow() { return {}; }
    virtual bool store(QString& id) = 0; ///< Writes the id of the stored row; tells everybody of the change.

private:
    void save();
    bool mayOverwrite();
    QStringList contents() const;

    RoomServices services_;
    QGridLayout* grid_;
    QList<QWidget*> fields_;
    QHash<const QPlainTextEdit*, QString> originals_;
    QStringList untouched_;
    QStringList storedBefore_;
    QString savedId_;
};

} // namespace desk
