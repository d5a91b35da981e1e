// Formatting numbers by mask and as NumberText (base/NumberFormat): rounding, optional decimals, exponents.
#include <gtest/gtest.h>

#include "base/NumberFormat.h"

TEST(FormatMask, RoundsTheDecimalFormHalfAwayFromZero) {
    EXPECT_EQ(Format_Mask(2.675, "0.00"), "2.68");
    EXPECT_EQ(Format_Mask(-2.675, "0.00"), "-2.68");
    EXPECT_EQ(Format_Mask(12.005, "#.0##E+0"), "1.201E+1");
}

TEST(FormatMask, ScientificKeepsFourSignificantDigits) {
    EXPECT_EQ(Format_Mask(1234.6, "#.0##E+0"), "1.235E+3");
    EXPECT_EQ(Format_Mask(12.34, "#.0##E+0"), "1.234E+1");
    EXPECT_EQ(Format_Mask(0.002, "#.0##E+0"), "2.0E-3");
    EXPECT_EQ(Format_Mask(1000, "#.0##E+0"), "1.0E+3");
    EXPECT_EQ(Format_Mask(9.9996, "#.0##E+0"), "1.0E+1");
    EXPECT_EQ(Format_Mask(-1.5, "#.0##E+0"), "-1.5E+0");
    EXPECT_EQ(Format_Mask(1.5e-20, "#.0##E+0"), "1.5E-20");
}

TEST(FormatMask, ZeroThroughTheScientificMaskHasNoLeadingDigit) {
    EXPECT_EQ(Format_Mask(0, "#.0##E+0"), ".0E+0");
    EXPECT_EQ(Format_Mask(0, "#.0000E+0"), ".0000E+0");
}

TEST(FormatMask, FiveDigitScientificKeepsItsZeros) {
    EXPECT_EQ(Format_Mask(1, "#.0000E+0"), "1.0000E+0");
    EXPECT_EQ(Format_Mask(123456, "#.0000E+0"), "1.2346E+5");
}

TEST(FormatMask, FixedMasks) {
    EXPECT_EQ(Format_Mask(3.14159, "0.000"), "3.142");
    EXPECT_EQ(Format_Mask(0, "0.000"), "0.000");
    EXPECT_EQ(Format_Mask(0.05, "0.0"), "0.1");
    EXPECT_EQ(Format_Mask(2.5, "0"), "3");
    EXPECT_EQ(Format_Mask(-0.4, "0"), "0");
    EXPECT_EQ(Format_Mask(1234567.891, "0.00"), "1234567.89");
    EXPECT_EQ(Format_Mask(0.0004, "0.000"), "0.000");
    EXPECT_EQ(Format_Mask(0.0005, "0.000"), "0.001");
}

TEST(FormatMask, OptionalDecimalsDropThePoint) {
    EXPECT_EQ(Format_Mask(3000, "0.#"), "3000");
    EXPECT_EQ(Format_Mask(2.5, "0.#"), "2.5");
    EXPECT_EQ(Format_Mask(2.04, "0.#"), "2");
    EXPECT_EQ(Format_Mask(2.5, "0.##"), "2.5");
    EXPECT_EQ(Format_Mask(2.456, "0.##"), "2.46");
    EXPECT_EQ(Format_Mask(0.999, "0.##"), "1");
}

TEST(NumberText, FifteenSignificantDigitsWithoutTrailingZeros) {
    EXPECT_EQ(NumberText(0.1 + 0.2), "0.3");
    EXPECT_EQ(NumberText(3000), "3000");
    EXPECT_EQ(NumberText(-2.5), "-2.5");
    EXPECT_EQ(NumberText(1.0 / 3), "0.333333333333333");
    EXPECT_EQ(NumberText(123456789012345.0), "123456789012345");
}

TEST(NumberText, ExponentFormForVeryLargeAndVerySmall) {
    EXPECT_EQ(NumberText(1.5e20), "1.5E+20");
    EXPECT_EQ(NumberText(1e-5), "1E-05");
    EXPECT_EQ(NumberText(1e15), "1E+15");
    EXPECT_EQ(NumberText(0.0001), "0.0001");
}

TEST(NumberText, MinusZeroPrintsZero) { EXPECT_EQ(NumberText(-0.0), "0"); }
