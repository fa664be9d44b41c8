// Every window of the plans without a mouse: what has the keyboard has a name, and Tab goes as the eye does.
#include "EditorFixture.h"
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

bool isStop(const QWidget* widget) {
    return widget->isVisible() && widget->isEnabled() && (widget->focusPolicy() & Qt::TabFocus) &&
           !widget->focusProxy();
}

/// Where Tab stops, from the first place of the window on.
QList<QWidget*> stopsOf(QWidget& window) {
    QList<QWidget*> all;
    for (QWidget* widget = window.nextInFocusChain(); widget != &window; widget = widget->nextInFocusChain())
        if (isStop(widget)) all << widget;
    return all;
}

QString name(const QWidget* widget) {
    QAccessibleInterface* reader = QAccessible::queryAccessibleInterface(const_cast<QWidget*>(widget));
    return reader ? reader->text(QAccessible::Name) : QString();
}

std::string whoIs(const QWidget* widget) {
    const QString parentName = widget->parentWidget() ? widget->parentWidget()->objectName() : QString();
    return (QLatin1String(widget->metaObject()->className()) + u' ' + widget->objectName() + u'<' + parentName)
        .toStdString();
}

void check(QWidget& window) {
    const QList<QWidget*> stops = stopsOf(window);
    EXPECT_GE(stops.size(), 2);
    for (const QWidget* widget : stops)
        EXPECT_FALSE(name(widget).isEmpty()) << whoIs(widget);
    for (const QAbstractButton* button : window.findChildren<QAbstractButton*>()) {
        if (button->isVisible() && button->isEnabled() && !button->objectName().isEmpty() &&
            !button->objectName().startsWith(QLatin1String("qt_"))) {
            EXPECT_TRUE(stops.contains(button)) << whoIs(button);
        }
    }
    // From one stop to the next the eye goes down, or to the right; never back up on the left.
    for (qsizetype i = 1; i < stops.size(); ++i) {
        const auto place = [&](const QWidget* widget) {
            return QRect(widget->mapTo(&window, QPoint()), widget->size());
        };
        const QRect from = place(stops[i - 1]);
        const QRect to = place(stops[i]);
        EXPECT_TRUE(to.bottom() > from.top() || to.left() >= from.left())
            << whoIs(stops[i - 1]) << " -> " << whoIs(stops[i]);
        const bool beside = qAbs(to.center().y() - from.center().y()) < 6;
        EXPECT_TRUE(!beside || to.left() >= from.left()) << whoIs(stops[i - 1]) << " -> " << whoIs(stops[i]);
    }
}

class Keyboard : public EditorFixture {
protected:
    void SetUp() override {
        clsItemTrattamento item = savedPlan(QStringLiteral("2026"), QStringLiteral("0001"));
        clsItemRigoTrattamento row;
        row.progressivo = QStringLiteral("01");
        row.servizio = QStringLiteral("CORONA");
        row.dente = QStringLiteral("+");
        row.denti = QStringLiteral("7;8");
        row.inizio = QStringLiteral("10/03/2026");
        item.righi.add(row.progressivo, row);
        ASSERT_TRUE(treatments().Salva(item));
        id_ = item.ID;
        row_ = row;
    }
    QString id_;
    clsItemRigoTrattamento row_;
};

} // namespace

TEST_F(Keyboard, ReachesAndNamesAllOfEveryWindow) {
    const std::function<std::unique_ptr<QWidget>()> windows[] = {
        [this] {
            return std::make_unique<frmEditTrattamento>(id_);
        },
        [this] {
            auto row = std::make_unique<frmEditRigoTrattamento>();
            row->load(row_);
            return row;
        },
        [] {
            auto tooth = std::make_unique<frmEditDente>(ToothPlan(), 7, ComposedTooth());
            tooth->load(*ToothSituation::fromEntry(QStringLiteral("7:3:testo")));
            return tooth;
        },
        [] { return std::make_unique<frmZoomRighiTrattamento>(QStringLiteral("2026-0001")); },
        [] { return std::make_unique<frmSceltaDente>(); },
        [] {
            auto service = std::make_unique<frmSceltaServizio>(true);
            service->filter(QString(), QString());
            return service;
        },
        [] { return std::make_unique<frmMDITrattamenti>(); },
    };
    for (const auto& make : windows) {
        const std::unique_ptr<QWidget> window = make();
        SCOPED_TRACE(window->objectName().toStdString());
        window->show();
        QTest::qWait(1);
        auto* tabs = window->findChild<QTabWidget*>();
        for (int tab = 0; tab < (tabs ? tabs->count() : 1); ++tab) {
            SCOPED_TRACE(tab);
            if (tabs) tabs->setCurrentIndex(tab);
            check(*window);
        }
    }
}

TEST_F(Keyboard, MarksATeethAndAServiceWithoutAMouse) {
    open(id_);
    auto* chart = window_->findChild<QWidget*>(QStringLiteral("pbDenti"))->parentWidget();
    const auto isMarked = [this](int index) {
        return name(find<QWidget>(arrayName("pbTooh", index))).contains(QStringLiteral("evidenziato"));
    };
    QTest::keyClick(chart, Qt::Key_Space); // 1.8, where the keyboard starts
    EXPECT_TRUE(isMarked(0));
    QTest::keyClick(chart, Qt::Key_Right);
    QTest::keyClick(chart, Qt::Key_Return);
    EXPECT_TRUE(isMarked(1));
    EXPECT_FALSE(isMarked(0));
    QTest::keyClick(find<QWidget>(arrayName("pbLavoriSeri", 0)), Qt::Key_Space);
    EXPECT_TRUE(isMarked(7));
    EXPECT_TRUE(isMarked(8));
    EXPECT_FALSE(isMarked(1));
    dialogs_.choice = QStringLiteral("Cariato");
    QTest::keyClick(chart, Qt::Key_Menu);
    EXPECT_EQ(find<QWidget>(arrayName("imTooth", 1))->property("tag").toString(), QStringLiteral("1:2:"));
}
