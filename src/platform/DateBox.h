#pragma once

#include <QDateEdit>

namespace platform {

/// A date field with a calendar, always "dd/MM/yyyy" and Italian. Takes dates as people type them: "22/11/2026",
/// "22112026", "221126", "5.1.2027", "5/1".
class DateBox : public QDateEdit {
    Q_OBJECT

public:
    explicit DateBox(QWidget* parent = nullptr);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    void nextPart();
    void completeYear();

    Section typedInto_ = NoSection; ///< The part that took the last digit.
};

} // namespace platform
