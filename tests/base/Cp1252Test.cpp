// The Western single-byte code page and UTF-8.
#include <gtest/gtest.h>

#include <string>

#include "base/Cp1252.h"
#include "tests/support/TestState.h"

namespace {

class Cp1252Test : public ::testing::Test {
protected:
    void SetUp() override { State_Reset(); }
};

TEST_F(Cp1252Test, AsciiIsUnchanged) {
    std::string all;
    for (int b = 1; b < 0x80; ++b) all += static_cast<char>(b);
    EXPECT_EQ(Cp1252_ToUtf8(all), all);
    EXPECT_EQ(Utf8_ToCp1252(all), all);
    EXPECT_EQ(Cp1252_ToUtf8(std::string("\0", 1)), std::string("\0", 1));
}

TEST_F(Cp1252Test, EveryHighByteRoundTrips) {
    for (int b = 0x80; b <= 0xFF; ++b) {
        const std::string one(1, static_cast<char>(b));
        const std::string utf8 = Cp1252_ToUtf8(one);
        EXPECT_GE(utf8.size(), 2u) << std::hex << b;
        EXPECT_EQ(Utf8_ToCp1252(utf8), one) << std::hex << b;
    }
}

TEST_F(Cp1252Test, AllBytesInOneTextRoundTrip) {
    std::string all;
    for (int b = 0; b <= 0xFF; ++b) all += static_cast<char>(b);
    EXPECT_EQ(Utf8_ToCp1252(Cp1252_ToUtf8(all)), all);
}

TEST_F(Cp1252Test, CharactersOfTheUnitNames) {
    EXPECT_EQ(Cp1252_ToUtf8("\xB7"), "\xC2\xB7");      // middle dot U+00B7
    EXPECT_EQ(Cp1252_ToUtf8("\xB2"), "\xC2\xB2");      // superscript two U+00B2
    EXPECT_EQ(Cp1252_ToUtf8("\xB3"), "\xC2\xB3");      // superscript three U+00B3
    EXPECT_EQ(Cp1252_ToUtf8("\x93"), "\xE2\x80\x9C");  // left double quotation mark U+201C
}

TEST_F(Cp1252Test, TheRangeOfTheSpecialCharacters) {
    EXPECT_EQ(Cp1252_ToUtf8("\x80"), "\xE2\x82\xAC");  // euro sign U+20AC
    EXPECT_EQ(Cp1252_ToUtf8("\x99"), "\xE2\x84\xA2");  // trade mark U+2122
    EXPECT_EQ(Cp1252_ToUtf8("\x9F"), "\xC5\xB8");      // Y with diaeresis U+0178
    EXPECT_EQ(Cp1252_ToUtf8("\xA0"), "\xC2\xA0");
    EXPECT_EQ(Cp1252_ToUtf8("\xFF"), "\xC3\xBF");
}

TEST_F(Cp1252Test, UndefinedBytesKeepTheirNumber) {
    EXPECT_EQ(Cp1252_ToUtf8("\x81"), "\xC2\x81");
    EXPECT_EQ(Cp1252_ToUtf8("\x8D"), "\xC2\x8D");
    EXPECT_EQ(Cp1252_ToUtf8("\x8F"), "\xC2\x8F");
    EXPECT_EQ(Cp1252_ToUtf8("\x90"), "\xC2\x90");
    EXPECT_EQ(Cp1252_ToUtf8("\x9D"), "\xC2\x9D");
}

TEST_F(Cp1252Test, CharacterOutsideThePageBecomesAQuestionMark) {
    EXPECT_EQ(Utf8_ToCp1252("a\xE2\x82\xBD" "b"), "a?b");       // U+20BD
    EXPECT_EQ(Utf8_ToCp1252("\xF0\x9F\x98\x80"), "?");         // U+1F600, one character
    EXPECT_EQ(Utf8_ToCp1252("\xC2\x80"), "?");                 // U+0080 has no byte: 0x80 is the euro
    EXPECT_EQ(Utf8_ToCp1252("\xC4\x80"), "?");                 // U+0100
}

TEST_F(Cp1252Test, MalformedUtf8BecomesQuestionMarks) {
    EXPECT_EQ(Utf8_ToCp1252("a\xC3"), "a?");           // cut short at the end
    EXPECT_EQ(Utf8_ToCp1252("\x80" "b"), "?b");        // a lone continuation byte
    EXPECT_EQ(Utf8_ToCp1252("\xC3" "b"), "?b");        // a lead byte without continuation
    EXPECT_EQ(Utf8_ToCp1252("\xFF"), "?");
    EXPECT_EQ(Utf8_ToCp1252("\xE2\x82"), "??");
}

TEST_F(Cp1252Test, OverlongFormsAreMalformed) {
    EXPECT_EQ(Utf8_ToCp1252("\xC1\x81"), "??");          // 'A' in two bytes
    EXPECT_EQ(Utf8_ToCp1252("\xC0\x80"), "??");          // a zero in two bytes
    EXPECT_EQ(Utf8_ToCp1252("\xE0\x82\xB7"), "???");     // the middle dot in three bytes
    EXPECT_EQ(Utf8_ToCp1252("\xED\xA0\x80"), "???");     // a lone surrogate
}

}  // namespace
