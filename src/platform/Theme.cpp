#include "platform/Theme.h"

#include "platform/ItalianTexts.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QFontDatabase>
#include <QLibraryInfo>
#include <QLocale>
#include <QPainter>
#include <QPalette>
#include <QProxyStyle>
#include <QStyleFactory>
#include <QStyleOption>

namespace platform {

namespace {

const QColor accent(26, 111, 140);

/// Fusion with a focus frame that can be seen on every control, and "Sì" before "No" as our users know it.
class CalmStyle : public QProxyStyle {
public:
    CalmStyle()
        : QProxyStyle(QStyleFactory::create(QStringLiteral("Fusion"))) {}

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override {
        if (element == PE_IndicatorCheckBox) return drawBox(option, painter, widget);
        if (element != PE_FrameFocusRect) return QProxyStyle::drawPrimitive(element, option, painter, widget);
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        painter->setPen(QPen(accent, 1.5));
        painter->setBrush(Qt::NoBrush);
        painter->drawRoundedRect(QRectF(option->rect).adjusted(0.75, 0.75, -0.75, -0.75), 2.5, 2.5);
        painter->restore();
    }

    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override {
        const auto* button = qstyleoption_cast<const QStyleOptionButton*>(option);
        if (!button) return QProxyStyle::drawControl(element, option, painter, widget);
        const QStyleOptionButton seen = withFocusSeen(*button);
        QProxyStyle::drawControl(element, &seen, painter, widget);
    }

    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                            const QWidget* widget) const override {
        const auto* combo = qstyleoption_cast<const QStyleOptionComboBox*>(option);
        if (!combo) return QProxyStyle::drawComplexControl(control, option, painter, widget);
        const QStyleOptionComboBox seen = withFocusSeen(*combo);
        QProxyStyle::drawComplexControl(control, &seen, painter, widget);
    }

    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* data) const override {
        if (hint == SH_DialogButtonLayout) return QDialogButtonBox::WinLayout;
        if (hint == SH_DialogButtonBox_ButtonsHaveIcons) return 0;
        return QProxyStyle::styleHint(hint, option, widget, data);
    }

private:
    /// The style shows the focus only after a key; ours shows it always, as a timer or a handler may set it.
    template <class Option>
    static Option withFocusSeen(const Option& option) {
        Option seen(option);
        if (seen.state & State_HasFocus) seen.state |= State_KeyboardFocusChange;
        return seen;
    }

    /// On our light ground the style's own outline is hardly seen.
    void drawBox(const QStyleOption* option, QPainter* painter, const QWidget* widget) const {
        QProxyStyle::drawPrimitive(PE_IndicatorCheckBox, option, painter, widget);
        const bool enabled = option->state & State_Enabled;
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        painter->setPen(QPen(enabled ? QColor(110, 125, 140) : QColor(185, 194, 203), 1));
        painter->setBrush(Qt::NoBrush);
        painter->drawRoundedRect(QRectF(option->rect).adjusted(0.5, 0.5, -0.5, -0.5), 1.5, 1.5);
        painter->restore();
    }
};

QPalette calmPalette() {
    QPalette palette;
    const QColor text(31, 41, 51);
    const QColor faded(138, 148, 158);
    palette.setColor(QPalette::Window, QColor(243, 246, 249));
    palette.setColor(QPalette::WindowText, text);
    palette.setColor(QPalette::Base, Qt::white);
    palette.setColor(QPalette::AlternateBase, QColor(232, 240, 246));
    palette.setColor(QPalette::Text, text);
    palette.setColor(QPalette::PlaceholderText, QColor(110, 122, 134));
    palette.setColor(QPalette::Button, QColor(233, 238, 243));
    palette.setColor(QPalette::ButtonText, text);
    palette.setColor(QPalette::BrightText, Qt::white);
    palette.setColor(QPalette::Highlight, accent);
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::Link, accent);
    palette.setColor(QPalette::LinkVisited, accent);
    palette.setColor(QPalette::ToolTipBase, QColor(255, 252, 230));
    palette.setColor(QPalette::ToolTipText, text);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(QPalette::Disabled, role, faded);
    }
    palette.setColor(QPalette::Disabled, QPalette::Base, QColor(246, 248, 250));
    palette.setColor(QPalette::Disabled, QPalette::Highlight, QColor(176, 186, 195));
    return palette;
}

void speakItalian(QApplication& application) {
    QLocale::setDefault(QLocale(QLocale::Italian, QLocale::Italy));
    auto* complete = new QTranslator(&application);
    if (complete->load(QStringLiteral("qtbase_it"), QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
        QCoreApplication::installTranslator(complete);
    } else {
        QCoreApplication::installTranslator(new ItalianTexts(&application));
    }
}

} // namespace

void applyTheme(QApplication& application) {
    QApplication::setStyle(new CalmStyle);
    QApplication::setPalette(calmPalette());
    QFont font = QApplication::font();
    if (QFontDatabase::families().contains(QStringLiteral("DejaVu Sans")))
        font.setFamily(QStringLiteral("DejaVu Sans"));
    font.setPointSize(9);
    QApplication::setFont(font);
    speakItalian(application);
}

} // namespace platform
