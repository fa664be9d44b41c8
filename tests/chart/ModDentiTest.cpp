#include "chart/modDenti.h"
#include "chart/GraphicFile.h"

#include <gtest/gtest.h>

TEST(ModDenti, EveryToothKeepsItsPlaceInTheChart) {
    const QString chart = u8("1.8;1.7;1.6;1.5;1.4;1.3;1.2;1.1;2.1;2.2;2.3;2.4;2.5;2.6;2.7;2.8;"
                             "3.8;3.7;3.6;3.5;3.4;3.3;3.2;3.1;4.1;4.2;4.3;4.4;4.5;4.6;4.7;4.8;"
                             "5.5;5.4;5.3;5.2;5.1;6.1;6.2;6.3;6.4;6.5;7.5;7.4;7.3;7.2;7.1;8.1;8.2;8.3;8.4;8.5");
    const QStringList teeth = chart.split(u';');
    ASSERT_EQ(teeth.size(), TOOTH_COUNT);
    for (int index = 0; index < TOOTH_COUNT; ++index) {
        EXPECT_EQ(DenteDaIndice(index), teeth[index]);
        EXPECT_EQ(IndiceDaDente(teeth[index]), index);
        const int quadrant = teeth[index].left(1).toInt();
        EXPECT_EQ(toothQuadrant(index), quadrant);
        EXPECT_EQ(isUpper(index), quadrant == 1 || quadrant == 2 || quadrant == 5 || quadrant == 6) << index;
        EXPECT_EQ(isDeciduous(index), quadrant > 4);
    }
    EXPECT_TRUE(DenteDaIndice(-1).isEmpty());
    EXPECT_TRUE(DenteDaIndice(52).isEmpty());
    for (const char* unknown : {"", "9.9", "1.9", "5.6", "11", "1,1", "1.1 ", "1.10", "x.1"})
        EXPECT_EQ(IndiceDaDente(u8(unknown)), -1) << unknown;
}

TEST(ModDenti, ListsConvertEntryByEntry) {
    EXPECT_EQ(DentiDaIndici(u8("0;9")), u8("1.8;2.2"));
    EXPECT_EQ(IndiciDaDenti(u8("1.1;1.2")), u8("7;6"));
    EXPECT_EQ(DentiDaIndici(QString()), QString());
    EXPECT_EQ(IndiciDaDenti(QString()), QString());
    EXPECT_EQ(DentiDaIndici(u8(" 7;52;x;")), u8("1.1;;;")) << "what is no index is not tooth 0";
    EXPECT_EQ(IndiciDaDenti(u8("1.1;9.9")), u8("7;-1"));
}
