#pragma once

#include "desk/DeskFixture.h"
#include "host/contract/Host.h"
#include "platform/Clock.h"
#include "platform/RecordForm.h"
#include "platform/ReportGrid.h"

#include <QLineEdit>
#include <QPlainTextEdit>

/// A desk with a patient open, whose doctor is the signed-in user. The clock stands, questions are answered with Yes.
class ClinicalDesk : public DeskFixture {
protected:
    ClinicalDesk() {
        dialogs_.answer = platform::Answer::Yes;
        platform::setClock(QDateTime(QDate(2026, 3, 10), QTime(9, 30)));
        setDoctor(host().Utente().ID());
    }
    ~ClinicalDesk() override { platform::releaseClock(); }

    host::Host& host() { return desk_->host(); }
    host::Paziente& patient() { return *host().paziente(); }

    void setDoctor(const QString& id) {
        desk_->closePatient();
        host().DB().Execute(QStringLiteral("update tessara.tblPazienti set idmedico = %1 where ID = '%2'")
                                .arg(id.isEmpty() ? QStringLiteral("null") : QStringLiteral("'%1'").arg(id), rossi_));
        ASSERT_TRUE(desk_->openPatient(rossi_));
    }
    void click(const char* button) {
        auto* found = control<QPushButton>(button);
        ASSERT_TRUE(found->isEnabled()) << button;
        QTest::mouseClick(found, Qt::LeftButton);
    }
    platform::ReportGrid& grid(const char* name) { return *control<platform::ReportGrid>(name); }
    QString cell(const char* name, int row, int column) {
        const platform::ReportRecord* record = grid(name).rowRecord(row);
        return record ? record->cell(column).value : QString();
    }
    /// Waits for what comes after a change was told.
    static void settle() {
        for (int i = 0; i < 3; ++i)
            QCoreApplication::processEvents();
    }
    QStringList stored(const QString& column, const QString& table) {
        QStringList all;
        const auto rows = host().DB().OpenRecordset(QStringLiteral("select %1 from tessara.%2").arg(column, table));
        for (; rows && !rows->isEOF(); rows->MoveNext())
            all << rows->text(column);
        return all;
    }
    /// Puts a text into a field as from the clipboard, in place of what is there.
    static void paste(QWidget& window, const char* name, const QString& text) {
        auto* field = window.findChild<QWidget*>(QLatin1String(name));
        ASSERT_NE(field, nullptr) << name;
        QMetaObject::invokeMethod(field, "selectAll");
        if (auto* memo = qobject_cast<QPlainTextEdit*>(field)) {
            memo->insertPlainText(text);
        } else {
            auto* line = qobject_cast<QLineEdit*>(field);
            ASSERT_NE(line, nullptr) << name;
            line->insert(text);
        }
    }
};
