#include "platform/CellFont.h"

#include <QGuiApplication>
#include <QRect>
#include <gtest/gtest.h>

TEST(CellFont, ShortensExactlyWhatTheColumnCannotHold) {
    QFont bold = QGuiApplication::font();
    bold.setBold(true);
    for (const QFont& font : {QGuiApplication::font(), bold}) {
        const platform::CellFont cells(font);
        const QFontMetrics measured(font);
        for (const char* text :
             {"", "Corona in zirconia", "WWWW", "però così", "AVAVAVAV ffi", "€ 12,50 – \u4E2D\u6587"}) {
            const QString written = QString::fromUtf8(text);
            const int whole = measured.horizontalAdvance(written);
            for (int width = 0; width <= whole + 12; ++width) {
                SCOPED_TRACE(testing::Message() << text << " in " << width << " of " << whole);
                EXPECT_EQ(cells.fitting(written, width), measured.elidedText(written, Qt::ElideRight, width));
            }
        }
    }
}
