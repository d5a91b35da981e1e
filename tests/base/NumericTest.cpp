// Reading numbers from text (base/Numeric): IsNumeric, Val whatever the locale, ties to even and CInt.
#include <gtest/gtest.h>

#include <limits>

#include <clocale>

#include "base/Numeric.h"
#include "base/RuntimeError.h"

TEST(IsNumeric, AcceptsDecimalNumbersWithBlanksAround) {
    EXPECT_TRUE(IsNumeric("12"));
    EXPECT_TRUE(IsNumeric(" -1.5 "));
    EXPECT_TRUE(IsNumeric("+3"));
    EXPECT_TRUE(IsNumeric(".5"));
    EXPECT_TRUE(IsNumeric("1."));
    EXPECT_TRUE(IsNumeric("1.5E+3"));
    EXPECT_TRUE(IsNumeric("2e-4"));
}

TEST(IsNumeric, RefusesTextAndFractions) {
    EXPECT_FALSE(IsNumeric(""));
    EXPECT_FALSE(IsNumeric("   "));
    EXPECT_FALSE(IsNumeric("abc"));
    EXPECT_FALSE(IsNumeric("1/100"));
    EXPECT_FALSE(IsNumeric("1.2.3"));
    EXPECT_FALSE(IsNumeric("."));
    EXPECT_FALSE(IsNumeric("-"));
    EXPECT_FALSE(IsNumeric("1e"));
}

TEST(Val, ReadsTheLeadingNumber) {
    EXPECT_DOUBLE_EQ(Val("1/100"), 1);
    EXPECT_DOUBLE_EQ(Val("  12.5kg"), 12.5);
    EXPECT_DOUBLE_EQ(Val("1 2 3"), 123);
    EXPECT_DOUBLE_EQ(Val("abc"), 0);
    EXPECT_DOUBLE_EQ(Val(""), 0);
    EXPECT_DOUBLE_EQ(Val("1.235E+3"), 1235);
    EXPECT_DOUBLE_EQ(Val(".0E+0"), 0);
    EXPECT_DOUBLE_EQ(Val("1e"), 1);
    EXPECT_DOUBLE_EQ(Val("-2.5D2"), -250);
}

TEST(Val, IgnoresTheMachineLocale) {
    const char* old = std::setlocale(LC_NUMERIC, nullptr);
    const std::string saved = old ? old : "C";
    if (std::setlocale(LC_NUMERIC, "de_DE.UTF-8") == nullptr) std::setlocale(LC_NUMERIC, "C");
    EXPECT_DOUBLE_EQ(Val("2.5"), 2.5);
    std::setlocale(LC_NUMERIC, saved.c_str());
}

TEST(RoundEven, TiesGoToEven) {
    EXPECT_EQ(Round_Even(0.5), 0);
    EXPECT_EQ(Round_Even(1.5), 2);
    EXPECT_EQ(Round_Even(2.5), 2);
    EXPECT_EQ(Round_Even(-2.5), -2);
    EXPECT_EQ(Round_Even(2.6), 3);
}

TEST(CInt, ConvertsOrFails) {
    EXPECT_EQ(CInt("3"), 3);
    EXPECT_EQ(CInt(" 2.5 "), 2);
    EXPECT_THROW(CInt("x"), RuntimeError);
    EXPECT_THROW(CInt(""), RuntimeError);
    EXPECT_THROW(CInt("40000"), RuntimeError);
    EXPECT_EQ(CInt("-32768"), -32768);
    EXPECT_THROW(CInt("1e11"), RuntimeError);
}

TEST(CInt, ANumberFromOutsideIsRoundedOrIsTheFailureOverflow) {
    EXPECT_EQ(CInt(2.5), 2);
    EXPECT_EQ(CInt(-3.5), -4);
    EXPECT_EQ(CInt(32767.4), 32767);
    EXPECT_EQ(CInt(-32768.5), -32768);
    for (const double outside : {32767.5, -32768.6, 1e11, -1e300, std::numeric_limits<double>::infinity(),
                                 std::numeric_limits<double>::quiet_NaN()}) {
        try {
            CInt(outside);
            ADD_FAILURE() << outside;
        } catch (const RuntimeError& e) {
            EXPECT_STREQ(e.what(), "Overflow");
        }
    }
}

TEST(SameSingle, EqualityInSinglePrecision) {
    EXPECT_TRUE(Same_Single(1.0, 1.0 + 1e-7));
    EXPECT_TRUE(Same_Single(100.0, 100.0 + 9e-6));
    EXPECT_FALSE(Same_Single(1.0, 1.00002));
}
