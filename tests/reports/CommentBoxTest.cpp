// The comment box of the print dialog: wrapping at 100 characters and 5 lines,
// the plain, internal and shown forms, the keys it refuses and edits merged into it.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "reports/CommentBox.h"
#include "tests/support/TestState.h"

namespace {

constexpr int16_t kBackspace = 8;
constexpr int16_t kEnter = 13;

// The alphabet over and over, so that a cut or a shift shows.
std::string Letters(int count) {
    std::string text;
    for (int n = 0; n < count; ++n) text += static_cast<char>('a' + n % 26);
    return text;
}

// The text cut every 100 characters, the pieces joined by lineEnd.
std::string Cut(const std::string& text, const std::string& lineEnd) {
    std::string joined = text.substr(0, 100);
    for (std::size_t at = 100; at < text.size(); at += 100) joined += lineEnd + text.substr(at, 100);
    return joined;
}

int LineCount(const std::string& text) {
    std::vector<int> lengths;
    return Box_LineLengths(text, lengths);
}

class CommentBoxTest : public ::testing::Test {
protected:
    void SetUp() override {
        State_Reset();
        Box_Init(100, 5);  // as the print dialog opens
    }
};

}  // namespace

TEST_F(CommentBoxTest, HundredCharactersStayOnOneLineTheHundredAndFirstStartsANewLine) {
    EXPECT_EQ(Box_Wrap(Letters(100)), Letters(100));
    EXPECT_EQ(LineCount(BoxText), 1);
    EXPECT_EQ(Box_Wrap(Letters(101)), Letters(100) + "\r\r" + "w");
    EXPECT_EQ(LineCount(BoxText), 2);
}

TEST_F(CommentBoxTest, HardLineEndAtTheEndOfTheFifthLineIsAllowedTheNextCharacterRefused) {
    const std::string shown = Box_Show(Box_Wrap(Letters(500)));
    ASSERT_EQ(LineCount(BoxText), 5);
    EXPECT_FALSE(Box_KeyAllowed(static_cast<int>(shown.size()), 'x'));
    ASSERT_TRUE(Box_KeyAllowed(static_cast<int>(shown.size()), kEnter));

    int shift = -1;
    const std::string typed = Box_Change(shown + "\r\n", shift);
    EXPECT_EQ(typed, shown + "\r\n");
    EXPECT_EQ(shift, 0);
    EXPECT_EQ(Box_Unwrap(), Letters(500) + "\r\n");
    EXPECT_FALSE(Box_KeyAllowed(static_cast<int>(typed.size()), 'x'));
}

TEST_F(CommentBoxTest, DeletingFromTheFirstLinePullsTheSoftLineEndsBack) {
    const std::string plain = Letters(250);
    std::string shown = Box_Show(Box_Wrap(plain));
    shown.erase(10, 10);

    int shift = -1;
    const std::string left = plain.substr(0, 10) + plain.substr(20);
    EXPECT_EQ(Box_Change(shown, shift), Cut(left, "\r\n"));
    EXPECT_EQ(BoxText, Cut(left, "\r\r"));
    EXPECT_EQ(shift, 0);
}

TEST_F(CommentBoxTest, BackspaceIsNeverRefusedEvenWithMoreThanFiveLines) {
    const std::string shown = Box_Show(Box_Wrap(Letters(700)));
    ASSERT_EQ(LineCount(BoxText), 7);
    EXPECT_FALSE(Box_KeyAllowed(0, 'x'));
    EXPECT_TRUE(Box_KeyAllowed(0, kBackspace));
    EXPECT_TRUE(Box_KeyAllowed(static_cast<int>(shown.size()), kBackspace));
}

TEST_F(CommentBoxTest, UnwrapGivesAWrappedCommentBackWithoutSoftLineEnds) {
    const std::string plain = Letters(250);
    ASSERT_EQ(Box_Wrap(plain), Cut(plain, "\r\r"));
    EXPECT_EQ(Box_Unwrap(), plain);
}

TEST_F(CommentBoxTest, WrapPutsCrCrInFrontOfTheCharacterPastTheWidthAndKeepsIt) {
    Box_Init(4, 5);
    EXPECT_EQ(Box_Wrap("abcdefghij"), "abcd\r\refgh\r\rij");
    EXPECT_EQ(BoxText, "abcd\r\refgh\r\rij");
    EXPECT_EQ(Box_Wrap("ab\r\ncdefg"), "ab\r\ncdef\r\rg");
    EXPECT_EQ(Box_Wrap("abc\ndefgh"), "abc\ndefg\r\rh");  // an LF alone also starts the count again
    EXPECT_EQ(Box_Wrap(""), "");
}

TEST_F(CommentBoxTest, UnwrapDropsEveryCrAndMakesEveryLfCrLf) {
    BoxText = "ab\r\rcd\r\nef\ngh\r";
    EXPECT_EQ(Box_Unwrap(), "abcd\r\nef\r\ngh");
    EXPECT_EQ(BoxText, "ab\r\rcd\r\nef\ngh\r");
}

TEST_F(CommentBoxTest, ShowTurnsTheSecondCrOfARunIntoLf) {
    EXPECT_EQ(Box_Show("ab\r\rcd\r\nef"), "ab\r\ncd\r\nef");
    EXPECT_EQ(Box_Show("a\r\r\r\rb\r"), "a\r\n\r\nb\r");
}

TEST_F(CommentBoxTest, KeyTestIsOneCharacterStricterThanTheText) {
    const std::string shown = Box_Show(Box_Wrap(Letters(499)));
    const std::string kept = BoxText;
    // At the end nothing counts twice: the 500th character fits.
    EXPECT_TRUE(Box_KeyAllowed(static_cast<int>(shown.size()), 'x'));
    // Elsewhere the character behind the caret counts twice and makes a sixth line.
    EXPECT_FALSE(Box_KeyAllowed(0, 'x'));
    EXPECT_FALSE(Box_KeyAllowed(250, 'x'));
    EXPECT_EQ(BoxText, kept);
}

TEST_F(CommentBoxTest, EnterMakingASixthLineWithTextIsRefused) {
    Box_Wrap(Letters(450));
    EXPECT_FALSE(Box_KeyAllowed(0, kEnter));
    EXPECT_TRUE(Box_KeyAllowed(0, 'x'));
}

TEST_F(CommentBoxTest, TypingInTheMiddleOfAWrappedLineMovesTheSoftLineEnd) {
    const std::string plain = Letters(150);
    std::string shown = Box_Show(Box_Wrap(plain));
    shown.insert(50, "X");

    int shift = -1;
    const std::string typed = plain.substr(0, 50) + "X" + plain.substr(50);
    EXPECT_EQ(Box_Change(shown, shift), Cut(typed, "\r\n"));
    EXPECT_EQ(BoxText, Cut(typed, "\r\r"));
    EXPECT_EQ(shift, 0);
}

TEST_F(CommentBoxTest, TypingPastAFullLinePutsASoftLineEndBeforeTheCaret) {
    const std::string shown = Box_Show(Box_Wrap(Letters(100)));
    int shift = -1;
    EXPECT_EQ(Box_Change(shown + "X", shift), Letters(100) + "\r\nX");
    EXPECT_EQ(shift, 2);
}

TEST_F(CommentBoxTest, ChangeOfEqualLengthReplacesOneCharacter) {
    Box_Init(4, 5);
    std::string shown = Box_Show(Box_Wrap("abcdefgh"));
    shown[7] = 'X';
    int shift = -1;
    EXPECT_EQ(Box_Change(shown, shift), "abcd\r\neXgh");
    EXPECT_EQ(BoxText, "abcd\r\reXgh");
    EXPECT_EQ(shift, 0);
    // The shown form of BoxText itself is no edit.
    EXPECT_EQ(Box_Change(Box_Show(BoxText), shift), "abcd\r\neXgh");
    EXPECT_EQ(shift, 0);
}

TEST_F(CommentBoxTest, PasteOfSevenLinesIsTakenNotRefused) {
    int shift = -1;
    const std::string shown = Box_Change(Letters(650), shift);
    EXPECT_EQ(shown, Cut(Letters(650), "\r\n"));
    EXPECT_EQ(shift, 12);
    EXPECT_EQ(LineCount(shown), 7);
    EXPECT_EQ(Box_Unwrap(), Letters(650));
}

TEST_F(CommentBoxTest, LineLengthsCountCrCrOnceAndCloseALineAtCrLf) {
    std::vector<int> lengths;
    EXPECT_EQ(Box_LineLengths("ab\r\ncde", lengths), 2);
    EXPECT_EQ(lengths, (std::vector<int>{2, 3, 0, 0, 0}));
    // The length runs on across CR CR, which only an LF sets back.
    EXPECT_EQ(Box_LineLengths("ab\r\rcde", lengths), 2);
    EXPECT_EQ(lengths, (std::vector<int>{2, 5, 0, 0, 0}));
    EXPECT_EQ(Box_LineLengths("abc\r\n", lengths), 2);
    EXPECT_EQ(lengths[1], 0);
    EXPECT_EQ(Box_LineLengths("", lengths), 1);
    EXPECT_EQ(lengths[0], 0);
}

TEST_F(CommentBoxTest, LineLengthsGrowTheArrayByTenPastFiveLines) {
    std::vector<int> lengths;
    EXPECT_EQ(Box_LineLengths("a\r\nbb\r\nc\r\nd\r\ne\r\nf\r\nggg", lengths), 7);
    ASSERT_EQ(lengths.size(), 15u);
    EXPECT_EQ(lengths[5], 1);
    EXPECT_EQ(lengths[6], 3);
    EXPECT_EQ(lengths[7], 0);
}

TEST_F(CommentBoxTest, FirstDifferenceFindsTheEditAndTheLengthDifference) {
    int difference = 99;
    EXPECT_EQ(Box_FirstDifference("abc", "abc", difference), 0);
    EXPECT_EQ(difference, 0);
    EXPECT_EQ(Box_FirstDifference("ab\r\ncd", "ab\r\rcd", difference), 0);
    EXPECT_EQ(difference, 0);
    EXPECT_EQ(Box_FirstDifference("abXcd", "abcd", difference), 3);
    EXPECT_EQ(difference, 1);
    EXPECT_EQ(Box_FirstDifference("abc", "abcd", difference), 4);
    EXPECT_EQ(difference, -1);
    EXPECT_EQ(Box_FirstDifference("a\r\nbX", "a\r\rbc", difference), 5);
    EXPECT_EQ(difference, 0);
}

TEST_F(CommentBoxTest, InitWithANegativeLimitMakesBothLimitsZero) {
    Box_Wrap(Letters(150));
    const std::string kept = BoxText;
    Box_Init(-1, 5);
    EXPECT_EQ(BoxWidth, 0);
    EXPECT_EQ(BoxLines, 0);
    EXPECT_EQ(BoxText, kept);
}

TEST_F(CommentBoxTest, InitWrapsTheTextAgainAtTheNewLimits) {
    Box_Wrap(Letters(150));
    Box_Init(50, 3);
    EXPECT_EQ(BoxWidth, 50);
    EXPECT_EQ(BoxLines, 3);
    const std::string plain = Letters(150);
    EXPECT_EQ(BoxText, plain.substr(0, 50) + "\r\r" + plain.substr(50, 50) + "\r\r" + plain.substr(100));
}
