#pragma once

#include "TreatmentFixture.h"
#include "documents/DocumentRows.h"
#include "platform/FormLayout.h"
#include "platform/ReportGrid.h"
#include "treatments/GridRow.h"
#include "treatments/frmEditTrattamento.h"

#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <memory>

/// The editor as a person works it, by the names of its controls.
class EditorFixture : public WindowFixture<frmEditTrattamento> {
protected:
    void open(const QString& id) {
        window_.reset();
        window_ = std::make_unique<frmEditTrattamento>(id);
        window_->show();
        QTest::qWait(1);
    }
    QLineEdit* field(int index) { return find<QLineEdit>(platform::form::arrayName("tbDati", index)); }
    platform::ReportGrid* rows() { return find<platform::ReportGrid>(QStringLiteral("rcRighi")); }
    QString cell(int row, int column) { return rows()->rowRecord(row)->cell(column).value; }
    void press(const QString& name) {
        QTest::mouseClick(find<QPushButton>(name), Qt::LeftButton);
        QTest::qWait(1);
    }
    void confirm() { press(QStringLiteral("cbConferma")); }
    void type(int row, int column, const QString& text) {
        EXPECT_TRUE(rows()->enterText(row, column, text)) << row << ' ' << column;
        QTest::qWait(1);
    }
    void newRow(const QString& service, const QString& teeth = {}) {
        press(platform::form::arrayName("cbRighi", 0));
        const int row = rows()->rowCount() - 1;
        type(row, gridrow::SERVICE, service);
        if (!teeth.isEmpty()) type(row, gridrow::TOOTH, teeth);
    }
    void selectRow(int row) { rows()->setFocusedRecord(rows()->rowRecord(row)); }
    void pressKey(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QTest::keyClick(rows()->view(), key, modifiers);
        QTest::qWait(1);
    }
};
