#include "platform/DateBox.h"

#include "platform/Regional.h"

#include <QCalendarWidget>
#include <QKeyEvent>
#include <QLineEdit>
#include <QLocale>

namespace platform {

DateBox::DateBox(QWidget* parent)
    : QDateEdit(parent) {
    const QLocale italian(QLocale::Italian, QLocale::Italy);
    setLocale(italian);
    setDisplayFormat(QStringLiteral("dd/MM/yyyy"));
    setCalendarPopup(true);
    setMinimumWidth(fontMetrics().horizontalAdvance(QStringLiteral("00/00/0000")) + 44);
    QCalendarWidget* calendar = calendarWidget();
    calendar->setLocale(italian);
    calendar->setFirstDayOfWeek(Qt::Monday);
    calendar->setVerticalHeaderFormat(QCalendarWidget::NoVerticalHeader);
}

void DateBox::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) completeYear();
    const QString text = event->text();
    if (text.size() == 1 && QStringLiteral("/.- ").contains(text)) {
        // A second digit has already moved on to the next part; one more step would leave it out.
        if (typedInto_ == NoSection || currentSection() == typedInto_) nextPart();
        typedInto_ = NoSection;
        return;
    }
    const bool digit = text.size() == 1 && text.front().isDigit();
    const Section before = currentSection();
    QDateEdit::keyPressEvent(event);
    typedInto_ = digit ? before : NoSection;
}

void DateBox::focusInEvent(QFocusEvent* event) {
    typedInto_ = NoSection;
    QDateEdit::focusInEvent(event);
}

void DateBox::focusOutEvent(QFocusEvent* event) {
    completeYear();
    QDateEdit::focusOutEvent(event);
}

// Of itself the field would drop a year of two digits and keep the one before.
void DateBox::completeYear() {
    if (hasAcceptableInput()) return;
    if (const auto date = regional().typedDate(lineEdit()->text())) setDate(*date);
}

void DateBox::nextPart() {
    const int next = currentSectionIndex() + 1;
    if (next < sectionCount()) setSelectedSection(sectionAt(next));
}

} // namespace platform
