// Path_Split and Text_Clean.
#include <gtest/gtest.h>

#include <string>

#include "base/FixedText.h"
#include "core/Text.h"
#include "tests/support/TestState.h"

namespace {

class TextTest : public StateTest {};

TEST_F(TextTest, PathSplitCutsAtTheLastBackslash) {
    std::string dir = "x", name = "x";
    Path_Split("C:\\Torvane\\data\\lift.AP2", dir, name);
    EXPECT_EQ(dir, "C:\\Torvane\\data");
    EXPECT_EQ(name, "lift.AP2");
}

TEST_F(TextTest, PathSplitWithoutSeparatorGivesTheWholePathAsName) {
    std::string dir = "x", name = "x";
    Path_Split("lift.AP2", dir, name);
    EXPECT_EQ(dir, "");
    EXPECT_EQ(name, "lift.AP2");
    Path_Split("", dir, name);
    EXPECT_EQ(dir, "");
    EXPECT_EQ(name, "");
}

TEST_F(TextTest, PathSplitAtTheEdges) {
    std::string dir, name;
    Path_Split("\\lift.AP2", dir, name);
    EXPECT_EQ(dir, "");
    EXPECT_EQ(name, "lift.AP2");
    Path_Split("C:\\data\\", dir, name);
    EXPECT_EQ(dir, "C:\\data");
    EXPECT_EQ(name, "");
}

TEST_F(TextTest, PathSplitAlsoCutsAtASlash) {
    std::string dir, name;
    Path_Split("/home/user/my files/lift one.AP2", dir, name);
    EXPECT_EQ(dir, "/home/user/my files");
    EXPECT_EQ(name, "lift one.AP2");
}

TEST_F(TextTest, TextCleanStopsAtTheFirstZeroAndTrimsBlanks) {
    EXPECT_EQ(Text_Clean(std::string("  M-100  \0garbage", 17)), "M-100");
    EXPECT_EQ(Text_Clean(std::string("\0abc", 4)), "");
}

TEST_F(TextTest, TextCleanOfBlanksIsEmpty) {
    EXPECT_EQ(Text_Clean(""), "");
    EXPECT_EQ(Text_Clean("     "), "");
}

TEST_F(TextTest, TextCleanKeepsInnerBlanksAndOtherWhitespace) {
    EXPECT_EQ(Text_Clean("  a  b  "), "a  b");
    EXPECT_EQ(Text_Clean("\tab\t "), "\tab\t");
}

TEST_F(TextTest, TextCleanOfAFixedFieldGivesItsText) {
    FixedText<10> field("abc");
    EXPECT_EQ(Text_Clean(field.Raw()), "abc");
}

}  // namespace
