// Replacing a file whole, from bytes or from another file's bytes.
#include "persist/FileReplace.h"

#include <gtest/gtest.h>

#include "tests/support/HostilePaths.h"
#include "tests/support/TestState.h"

namespace {

class FileReplaceTest : public ::testing::Test {
protected:
    TempDir dir;
};

TEST_F(FileReplaceTest, ACopyReplacesTheTargetWithTheSourcesBytes) {
    WriteFile(dir.File("from"), std::string(200000, 'x') + "end");
    WriteFile(dir.File("to"), "old");
    EXPECT_TRUE(File_CopyOver(dir.File("from"), dir.File("to")));
    EXPECT_EQ(ReadFile(dir.File("to")), std::string(200000, 'x') + "end");
}

TEST_F(FileReplaceTest, ASourceThatIsNoRegularFileIsRefusedAndTheTargetStays) {
    WriteFile(dir.File("to"), "old");
    for (const std::string& source : {Path_Folder(dir.File("folder")), Path_Fifo(dir.File("fifo")),
                                      Path_EndlessDevice(dir.File("zero")), dir.File("missing")}) {
        SCOPED_TRACE(source);
        EXPECT_FALSE(File_CopyOver(source, dir.File("to")));
        EXPECT_EQ(ReadFile(dir.File("to")), "old");
    }
}

}  // namespace
