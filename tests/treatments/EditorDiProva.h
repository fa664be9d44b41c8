#pragma once

#include "StudioDiProva.h"
#include "platform/FormLayout.h"
#include "platform/ReportGrid.h"
#include "treatments/RigoInGriglia.h"
#include "treatments/frmEditTrattamento.h"

#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <memory>

/// The editor as a person works it, by the names of its controls.
class EditorDiProva : public FinestraDiProva<frmEditTrattamento> {
protected:
    void apri(const QString& id) {
        finestra_.reset();
        sIDTrattamento = id;
        finestra_ = std::make_unique<frmEditTrattamento>();
        finestra_->show();
        QTest::qWait(1);
    }
    QLineEdit* dato(int indice) { return trova<QLineEdit>(platform::form::arrayName("tbDati", indice)); }
    platform::ReportGrid* righi() { return trova<platform::ReportGrid>(QStringLiteral("rcRighi")); }
    QString cella(int riga, int colonna) { return righi()->rowRecord(riga)->cell(colonna).value; }
    void premi(const QString& nome) {
        QTest::mouseClick(trova<QPushButton>(nome), Qt::LeftButton);
        QTest::qWait(1);
    }
    void conferma() { premi(QStringLiteral("cbConferma")); }
    void scrivi(int riga, int colonna, const QString& testo) {
        EXPECT_TRUE(righi()->enterText(riga, colonna, testo)) << riga << ' ' << colonna;
        QTest::qWait(1);
    }
    void nuovoRigo(const QString& servizio, const QString& denti = {}) {
        premi(platform::form::arrayName("cbRighi", 0));
        const int riga = righi()->rowCount() - 1;
        scrivi(riga, rigogriglia::SERVIZIO, servizio);
        if (!denti.isEmpty()) scrivi(riga, rigogriglia::DENTE, denti);
    }
    void scegliRiga(int riga) { righi()->setFocusedRecord(righi()->rowRecord(riga)); }
    void tasto(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QTest::keyClick(righi()->view(), key, modifiers);
        QTest::qWait(1);
    }
};
