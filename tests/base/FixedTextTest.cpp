// Fixed-width single-byte texts and their conversion at the edge.
#include <gtest/gtest.h>

#include <string>

#include "base/FixedText.h"
#include "tests/support/TestState.h"

namespace {

class FixedTextTest : public ::testing::Test {
protected:
    void SetUp() override { State_Reset(); }
};

TEST_F(FixedTextTest, NewTextIsAllBlanks) {
    FixedText<8> t;
    EXPECT_EQ(t.Raw(), "        ");
    EXPECT_EQ(t.Str(), "");
    EXPECT_EQ(FixedText<8>::Size(), 8u);
}

TEST_F(FixedTextTest, ShortTextIsPaddedWithBlanks) {
    FixedText<6> t("ab");
    EXPECT_EQ(t.Raw(), "ab    ");
    EXPECT_EQ(t.Raw().size(), 6u);
    EXPECT_EQ(t.Str(), "ab");
}

TEST_F(FixedTextTest, LongTextIsCut) {
    FixedText<5> t("abcdefgh");
    EXPECT_EQ(t.Raw(), "abcde");
    EXPECT_EQ(t.Str(), "abcde");
}

TEST_F(FixedTextTest, AssigningAShorterTextClearsTheRest) {
    FixedText<6> t("abcdef");
    t = "xy";
    EXPECT_EQ(t.Raw(), "xy    ");
    t = "";
    EXPECT_EQ(t.Raw(), "      ");
}

TEST_F(FixedTextTest, LeadingAndInnerBlanksStayTrailingOnesAreThePadding) {
    FixedText<8> t(" a b  ");
    EXPECT_EQ(t.Str(), " a b");
    EXPECT_EQ(t.Raw(), " a b    ");
}

TEST_F(FixedTextTest, ZeroBytesAreKept) {
    FixedText<4> t(std::string("a\0b", 3));
    EXPECT_EQ(t.Raw(), std::string("a\0b ", 4));
}

TEST_F(FixedTextTest, Utf8IsStoredAsSingleBytes) {
    FixedText<10> t;
    t.SetUtf8("kg\xC2\xB7m\xC2\xB2");  // kg·m²
    EXPECT_EQ(t.Str(), "kg\xB7m\xB2");
    EXPECT_EQ(t.Raw().size(), 10u);
    t.SetUtf8("\xE2\x82\xAC" "5");  // €5
    EXPECT_EQ(t.Str(), "\x80" "5");
}

TEST_F(FixedTextTest, SingleBytesComeBackAsUtf8) {
    FixedText<12> t("\x93" "degree/s");
    EXPECT_EQ(t.Utf8(), "\xE2\x80\x9C" "degree/s");
    FixedText<6> d("g/cm\xB3");
    EXPECT_EQ(d.Utf8(), "g/cm\xC2\xB3");
}

TEST_F(FixedTextTest, Utf8IsCutByCharactersStored) {
    FixedText<3> t;
    t.SetUtf8("\xC3\xA9\xC3\xA9\xC3\xA9\xC3\xA9");  // four é, two bytes each in UTF-8
    EXPECT_EQ(t.Raw(), "\xE9\xE9\xE9");
    EXPECT_EQ(t.Utf8(), "\xC3\xA9\xC3\xA9\xC3\xA9");
}

TEST_F(FixedTextTest, EqualityComparesAllBytes) {
    EXPECT_EQ(FixedText<4>("ab"), FixedText<4>("ab  "));
    EXPECT_NE(FixedText<4>("ab"), FixedText<4>("abc"));
}

TEST_F(FixedTextTest, SettingFromItsOwnBytesKeepsThem) {
    FixedText<8> t("abcdef");
    t = t.Str().substr(2);
    EXPECT_EQ(t.Raw(), "cdef    ");
}

}  // namespace
