// Saving a document (persist/FileSave): the bytes of the layout, the replaced file and the failed writes.
#include <gtest/gtest.h>

#include <sys/resource.h>

#include <csignal>
#include <filesystem>

#include "core/Tables.h"
#include "persist/mdlFile.h"
#include "tests/persist/Documents.h"
#include "tests/support/TestState.h"

namespace {

// Files may grow no larger than limit bytes while it lives.
class FileSizeLimit {
public:
    explicit FileSizeLimit(rlim_t limit) {
        getrlimit(RLIMIT_FSIZE, &saved_);
        previous_ = std::signal(SIGXFSZ, SIG_IGN);
        rlimit small = saved_;
        small.rlim_cur = limit;
        setrlimit(RLIMIT_FSIZE, &small);
    }
    ~FileSizeLimit() {
        setrlimit(RLIMIT_FSIZE, &saved_);
        std::signal(SIGXFSZ, previous_);
    }

private:
    rlimit saved_{};
    void (*previous_)(int) = nullptr;
};

std::size_t FilesIn(const std::string& dir) {
    std::size_t n = 0;
    for ([[maybe_unused]] const auto& e : std::filesystem::directory_iterator(dir)) ++n;
    return n;
}

}  // namespace

class FileSaveTest : public StateTest {
protected:
    void ExpectWriteFailedOnce() {
        ASSERT_EQ(msg.Seen().size(), 1u);
        EXPECT_EQ(msg.Seen()[0].text, "File write failed.");
        EXPECT_EQ(msg.Seen()[0].title, "Save");
        EXPECT_EQ(msg.Seen()[0].icon, MsgIcon::Exclamation);
    }
};

TEST_F(FileSaveTest, SaveWritesExactlyTheBytesOfTheLayout) {
    Document_Golden();
    const std::string path = appDir.File("doc.AP2");
    EXPECT_TRUE(File_Save(path));
    EXPECT_TRUE(ReadFile(path) == File_Bytes());
    EXPECT_TRUE(msg.Seen().empty());
    EXPECT_EQ(FilesIn(appDir.Path()), 1u);
}

TEST_F(FileSaveTest, SaveOverALongerFileLeavesNothingOfIt) {
    const std::string path = appDir.File("doc.AP2");
    WriteFile(path, std::string(50000, 'x'));
    EXPECT_TRUE(File_Save(path));
    EXPECT_EQ(ReadFile(path).size(), 35763u);
}

TEST_F(FileSaveTest, FailedWriteTellsAndKeepsThePreviousFile) {
    const std::string path = appDir.File("doc.AP2");
    WriteFile(path, "previous content");
    Document_Golden();
    DirtyFlag = 1;
    {
        FileSizeLimit limit(1000);
        EXPECT_FALSE(File_Save(path));
    }
    ExpectWriteFailedOnce();
    EXPECT_EQ(ReadFile(path), "previous content");
    EXPECT_EQ(FilesIn(appDir.Path()), 1u);  // no temporary file left behind
    EXPECT_EQ(DirtyFlag, 1);
    EXPECT_EQ(ElementCount, 4);
}

TEST_F(FileSaveTest, SaveIntoAMissingFolderTellsWriteFailed) {
    EXPECT_FALSE(File_Save(appDir.File("no such folder/doc.AP2")));
    ExpectWriteFailedOnce();
}

TEST_F(FileSaveTest, SaveOverAFolderTellsWriteFailedAndLeavesIt) {
    const std::string path = appDir.File("folder.AP2");
    std::filesystem::create_directory(path);
    EXPECT_FALSE(File_Save(path));
    ExpectWriteFailedOnce();
    EXPECT_TRUE(std::filesystem::is_directory(path));
    EXPECT_EQ(FilesIn(appDir.Path()), 1u);
}

TEST_F(FileSaveTest, SaveKeepsTheModeOfTheFileItReplaces) {
    const std::string path = appDir.File("doc.AP2");
    WriteFile(path, "x");
    std::filesystem::permissions(path, std::filesystem::perms::owner_read | std::filesystem::perms::owner_write |
                                           std::filesystem::perms::group_read);
    ASSERT_TRUE(File_Save(path));
    EXPECT_EQ(std::filesystem::status(path).permissions(),
              std::filesystem::perms::owner_read | std::filesystem::perms::owner_write |
                  std::filesystem::perms::group_read);
}
