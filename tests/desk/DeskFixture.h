#pragma once

#include "DeskTestModule.h"

#include "desk/data/Database.h"
#include "desk/data/PatientDirectory.h"
#include "desk/shell/Desk.h"
#include "desk/shell/Options.h"
#include "support/PracticeDatabase.h"
#include "support/ScriptedDialogs.h"

#include <QApplication>
#include <QLineEdit>
#include <QMainWindow>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <functional>
#include <gtest/gtest.h>
#include <utility>

/// A desk on a practice of its own, with three patients, on the database system that the run is for.
class DeskFixture : public testing::Test {
protected:
    DeskFixture() {
        options_.databaseUrl = place_.url();
        rossi_ = addPatient("Rossi", "Mario", "RSSMRA80A01H501U");
        verdi_ = addPatient("Verdi", "Nicolò", "VRDNCL75C10F205X");
        addPatient("Rossini", "Ada", "RSSDAA62D41L219K");
        desk_ = desk::Desk::open(options_);
    }

    QString addPatient(const char* surname, const char* name, const char* taxCode) {
        const auto database = elsewhere();
        desk::PatientData patient;
        patient.Cognome = QString::fromUtf8(surname);
        patient.Nome = QString::fromUtf8(name);
        patient.codicefiscale = QLatin1String(taxCode);
        patient.dataNascita = QDate(1980, 1, 1);
        EXPECT_TRUE(desk::PatientDirectory(*database, QStringLiteral("prova")).insert(patient));
        return patient.ID;
    }

    void attach() { ASSERT_TRUE(desk_->attachModule(std::make_unique<DeskTestModule>(run_))); }

    QString addRecord(const QString& description) {
        QString id;
        const QString number = QStringLiteral("2025-%1").arg(++records_, 4, 10, QLatin1Char('0'));
        EXPECT_TRUE(desk_->host().paziente()->corvala().Salva(
            id, {QStringLiteral("01/10/2025"), number, description, QStringLiteral("PRV"), {}}));
        return id;
    }

    host::Framework& framework() { return desk_->host().Framework(); }

    template <class Control>
    Control* control(const char* name) {
        auto* found = desk_->window()->findChild<Control*>(QString::fromUtf8(name));
        EXPECT_NE(found, nullptr) << name;
        return found;
    }

    static void press(QWidget& window, const char* button) {
        auto* found = window.findChild<QPushButton*>(QLatin1String(button));
        ASSERT_NE(found, nullptr) << button;
        QTest::mouseClick(found, Qt::LeftButton);
    }
    /// Key by key, in place of what is there.
    static void type(QWidget& window, const char* name, const QString& text) {
        auto* field = window.findChild<QLineEdit*>(QLatin1String(name));
        ASSERT_NE(field, nullptr) << name;
        field->selectAll();
        QTest::keyClick(field, Qt::Key_Delete);
        QTest::keyClicks(field, text);
    }

    /// Runs when a modal window of that name is up.
    static void whenModal(const char* name, std::function<void(QWidget&)> act) {
        auto* timer = new QTimer(qApp);
        QObject::connect(timer, &QTimer::timeout, qApp, [timer, name, act] {
            QWidget* modal = QApplication::activeModalWidget();
            if (!modal || modal->objectName() != QLatin1String(name)) return;
            timer->stop();
            timer->deleteLater();
            act(*modal);
        });
        timer->start(1);
    }

    /// As another workstation has it open.
    std::unique_ptr<desk::Database> elsewhere() const {
        return desk::Database::open(desk::DatabaseUrl::parse(options_.databaseUrl));
    }

    QTemporaryDir folder_;
    PracticeDatabase place_; // before the desk, which must be closed when its place goes
    desk::Options options_;
    QString rossi_;
    QString verdi_;
    ScriptedDialogs dialogs_;
    DeskModuleRun run_;
    std::unique_ptr<desk::Desk> desk_;
    int records_ = 0;
};
