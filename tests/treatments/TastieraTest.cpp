// Every window of the plans without a mouse: what has the keyboard has a name, and Tab goes as the eye does.
#include "EditorDiProva.h"
#include "catalogues/frmSceltaServizio.h"
#include "chart/frmSceltaDente.h"
#include "treatments/frmEditDente.h"
#include "treatments/frmEditRigoTrattamento.h"
#include "treatments/frmMDITrattamenti.h"
#include "treatments/frmZoomRighiTrattamento.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QTabWidget>
#include <functional>

using platform::form::arrayName;

namespace {

bool fermata(const QWidget* widget) {
    return widget->isVisible() && widget->isEnabled() && (widget->focusPolicy() & Qt::TabFocus) &&
           !widget->focusProxy();
}

/// Where Tab stops, from the first place of the window on.
QList<QWidget*> fermate(QWidget& finestra) {
    QList<QWidget*> tutte;
    for (QWidget* widget = finestra.nextInFocusChain(); widget != &finestra; widget = widget->nextInFocusChain())
        if (fermata(widget)) tutte << widget;
    return tutte;
}

QString nome(const QWidget* widget) {
    QAccessibleInterface* lettore = QAccessible::queryAccessibleInterface(const_cast<QWidget*>(widget));
    return lettore ? lettore->text(QAccessible::Name) : QString();
}

std::string chiE(const QWidget* widget) {
    const QString di = widget->parentWidget() ? widget->parentWidget()->objectName() : QString();
    return (QLatin1String(widget->metaObject()->className()) + u' ' + widget->objectName() + u'<' + di).toStdString();
}

void verifica(QWidget& finestra) {
    const QList<QWidget*> stazioni = fermate(finestra);
    EXPECT_GE(stazioni.size(), 2);
    for (const QWidget* widget : stazioni)
        EXPECT_FALSE(nome(widget).isEmpty()) << chiE(widget);
    for (const QAbstractButton* bottone : finestra.findChildren<QAbstractButton*>()) {
        if (bottone->isVisible() && bottone->isEnabled() && !bottone->objectName().isEmpty() &&
            !bottone->objectName().startsWith(QLatin1String("qt_"))) {
            EXPECT_TRUE(stazioni.contains(bottone)) << chiE(bottone);
        }
    }
    // From one stop to the next the eye goes down, or to the right; never back up on the left.
    for (qsizetype i = 1; i < stazioni.size(); ++i) {
        const auto posto = [&](const QWidget* widget) {
            return QRect(widget->mapTo(&finestra, QPoint()), widget->size());
        };
        const QRect da = posto(stazioni[i - 1]);
        const QRect a = posto(stazioni[i]);
        EXPECT_TRUE(a.bottom() > da.top() || a.left() >= da.left())
            << chiE(stazioni[i - 1]) << " -> " << chiE(stazioni[i]);
        const bool accanto = qAbs(a.center().y() - da.center().y()) < 6;
        EXPECT_TRUE(!accanto || a.left() >= da.left()) << chiE(stazioni[i - 1]) << " -> " << chiE(stazioni[i]);
    }
}

class Tastiera : public EditorDiProva {
protected:
    void SetUp() override {
        clsItemTrattamento item = salvato(QStringLiteral("2026"), QStringLiteral("0001"));
        clsItemRigoTrattamento rigo;
        rigo.progressivo = QStringLiteral("01");
        rigo.servizio = QStringLiteral("CORONA");
        rigo.dente = QStringLiteral("+");
        rigo.denti = QStringLiteral("7;8");
        rigo.inizio = QStringLiteral("10/03/2026");
        item.righi.add(rigo.progressivo, rigo);
        ASSERT_TRUE(trattamenti().Salva(item));
        id_ = item.ID;
        rigo_ = rigo;
    }
    QString id_;
    clsItemRigoTrattamento rigo_;
};

} // namespace

TEST_F(Tastiera, ReachesAndNamesAllOfEveryWindow) {
    const std::function<std::unique_ptr<QWidget>()> finestre[] = {
        [this] {
            sIDTrattamento = id_;
            return std::make_unique<frmEditTrattamento>();
        },
        [this] {
            auto rigo = std::make_unique<frmEditRigoTrattamento>();
            rigo->carica(rigo_);
            return rigo;
        },
        [] {
            auto dente = std::make_unique<frmEditDente>(PianoDelDente(), 7, DenteComposto());
            dente->carica(QStringLiteral("7:3:testo"));
            return dente;
        },
        [] { return std::make_unique<frmZoomRighiTrattamento>(QStringLiteral("2026-0001")); },
        [] { return std::make_unique<frmSceltaDente>(); },
        [] {
            auto servizio = std::make_unique<frmSceltaServizio>(true);
            servizio->filtra(QString(), QString());
            return servizio;
        },
        [] { return std::make_unique<frmMDITrattamenti>(); },
    };
    for (const auto& apre : finestre) {
        const std::unique_ptr<QWidget> finestra = apre();
        SCOPED_TRACE(finestra->objectName().toStdString());
        finestra->show();
        QTest::qWait(1);
        auto* schede = finestra->findChild<QTabWidget*>();
        for (int scheda = 0; scheda < (schede ? schede->count() : 1); ++scheda) {
            SCOPED_TRACE(scheda);
            if (schede) schede->setCurrentIndex(scheda);
            verifica(*finestra);
        }
    }
}

TEST_F(Tastiera, MarksATeethAndAServiceWithoutAMouse) {
    apri(id_);
    auto* tavola = finestra_->findChild<QWidget*>(QStringLiteral("pbDenti"))->parentWidget();
    const auto segnato = [this](int indice) {
        return nome(trova<QWidget>(arrayName("pbTooh", indice))).contains(QStringLiteral("evidenziato"));
    };
    QTest::keyClick(tavola, Qt::Key_Space); // 1.8, where the keyboard starts
    EXPECT_TRUE(segnato(0));
    QTest::keyClick(tavola, Qt::Key_Right);
    QTest::keyClick(tavola, Qt::Key_Return);
    EXPECT_TRUE(segnato(1));
    EXPECT_FALSE(segnato(0));
    QTest::keyClick(trova<QWidget>(arrayName("pbLavoriSeri", 0)), Qt::Key_Space);
    EXPECT_TRUE(segnato(7));
    EXPECT_TRUE(segnato(8));
    EXPECT_FALSE(segnato(1));
    dialoghi_.choice = QStringLiteral("Cariato");
    QTest::keyClick(tavola, Qt::Key_Menu);
    EXPECT_EQ(trova<QWidget>(arrayName("imTooth", 1))->property("tag").toString(), QStringLiteral("1:2:"));
}
