// Reading the bytes of a file whatever its path names: plain files, missing
// ones, folders, FIFOs, endless devices, failing reads and huge files.
#include "base/ReadFile.h"

#include <gtest/gtest.h>

#include "tests/support/HostilePaths.h"
#include "tests/support/TestState.h"

namespace {

class ReadFileTest : public ::testing::Test {
protected:
    TempDir dir;
    std::string bytes = "left over";
};

TEST_F(ReadFileTest, APlainFileIsReadWhole) {
    WriteFile(dir.File("a"), std::string("ab\0cd", 5));
    EXPECT_TRUE(File_ReadPrefix(dir.File("a"), 100, bytes));
    EXPECT_EQ(bytes, std::string("ab\0cd", 5));
    EXPECT_TRUE(File_Readable(dir.File("a")));
}

TEST_F(ReadFileTest, AnEmptyFileIsReadAsNoBytes) {
    WriteFile(dir.File("a"), "");
    EXPECT_TRUE(File_ReadPrefix(dir.File("a"), 100, bytes));
    EXPECT_EQ(bytes, "");
}

TEST_F(ReadFileTest, ALongerFileIsReadUpToTheLimit) {
    WriteFile(dir.File("a"), std::string(200000, 'x'));
    EXPECT_TRUE(File_ReadPrefix(dir.File("a"), 70000, bytes));
    EXPECT_EQ(bytes, std::string(70000, 'x'));
}

TEST_F(ReadFileTest, AMissingFileIsRefused) {
    EXPECT_FALSE(File_ReadPrefix(dir.File("none"), 100, bytes));
    EXPECT_EQ(bytes, "");
    EXPECT_FALSE(File_Readable(dir.File("none")));
}

TEST_F(ReadFileTest, AFolderIsRefused) {
    EXPECT_FALSE(File_ReadPrefix(Path_Folder(dir.File("d")), 100, bytes));
    EXPECT_FALSE(File_Readable(dir.Path()));
}

TEST_F(ReadFileTest, AFifoWithoutAWriterIsRefusedAtOnce) {
    EXPECT_FALSE(File_ReadPrefix(Path_Fifo(dir.File("f")), 100, bytes));
    EXPECT_FALSE(File_Readable(dir.File("f")));
}

TEST_F(ReadFileTest, AnEndlessDeviceIsRefused) {
    EXPECT_FALSE(File_ReadPrefix(Path_EndlessDevice(dir.File("z")), 100, bytes));
    EXPECT_FALSE(File_Readable(dir.File("z")));
}

TEST_F(ReadFileTest, AFileWhoseReadFailsIsRefused) {
    EXPECT_FALSE(File_ReadPrefix(Path_ReadFails(dir.File("m")), 100, bytes));
    EXPECT_EQ(bytes, "");
}

TEST_F(ReadFileTest, AHugeFileIsReadOnlyUpToTheLimit) {
    EXPECT_TRUE(File_ReadPrefix(Path_Huge(dir.File("h"), "head"), 6, bytes));
    EXPECT_EQ(bytes, std::string("head\0\0", 6));
}

}  // namespace
