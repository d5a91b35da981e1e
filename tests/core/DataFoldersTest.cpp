// Where the data files lie: the build folder, an installed tree with the
// user's own folder, the variable that names a folder, and the examples.
#include <gtest/gtest.h>

#include <filesystem>

#include "core/DataFolders.h"
#include "tests/support/TestState.h"

namespace {

namespace fs = std::filesystem;

// An installed tree: PREFIX/bin and PREFIX/share/torvane with a catalogue,
// a Param.ini and a picture below a sub-folder.
class DataFoldersTest : public ::testing::Test {
protected:
    void SetUp() override {
        fs::create_directories(prefix.File("bin"));
        fs::create_directories(Share() + "/BMP_data");
        WriteFile(Share() + "/Series.db", "catalogue");
        WriteFile(Share() + "/Param.ini", "shipped");
        WriteFile(Share() + "/BMP_data/rotoro1.bmp", "picture");
    }
    std::string Share() const { return prefix.File("share/torvane"); }
    FolderHints Installed() const { return {"", "", home.Path(), prefix.File("bin")}; }

    TempDir prefix, home;
};

TEST_F(DataFoldersTest, RunFromTheBuildFolderAppPathIsTheExecutablesFolder) {
    TempDir build;
    EXPECT_EQ(AppPath_For({"", "", home.Path(), build.Path()}), build.Path());
    EXPECT_FALSE(fs::exists(home.File(".local")));
}

TEST_F(DataFoldersTest, AFolderNamedBinWithoutTheSharedCatalogueIsNoInstallation) {
    fs::remove(Share() + "/Series.db");
    EXPECT_EQ(Installed_DataFolder(prefix.File("bin")), "");
    EXPECT_EQ(AppPath_For(Installed()), prefix.File("bin"));
}

TEST_F(DataFoldersTest, InstalledTheFirstStartCopiesTheShippedFilesIntoTheUsersFolder) {
    const std::string user = home.File(".local/share/Torvane");
    EXPECT_EQ(Installed_DataFolder(prefix.File("bin")), Share());
    EXPECT_EQ(AppPath_For(Installed()), user);
    EXPECT_EQ(ReadFile(user + "/Series.db"), "catalogue");
    EXPECT_EQ(ReadFile(user + "/Param.ini"), "shipped");
    EXPECT_EQ(ReadFile(user + "/BMP_data/rotoro1.bmp"), "picture");
}

TEST_F(DataFoldersTest, ALaterStartKeepsWhatTheUserChangedAndAddsWhatIsMissing) {
    const std::string user = home.File(".local/share/Torvane");
    AppPath_For(Installed());
    WriteFile(user + "/Param.ini", "the user's own");
    fs::remove(user + "/BMP_data/rotoro1.bmp");
    EXPECT_EQ(AppPath_For(Installed()), user);
    EXPECT_EQ(ReadFile(user + "/Param.ini"), "the user's own");
    EXPECT_EQ(ReadFile(user + "/BMP_data/rotoro1.bmp"), "picture");
}

TEST_F(DataFoldersTest, AnAbsoluteXdgDataHomeWinsOverHome) {
    TempDir xdg;
    FolderHints hints = Installed();
    hints.xdgDataHome = xdg.Path();
    EXPECT_EQ(AppPath_For(hints), xdg.File("Torvane"));
    EXPECT_EQ(ReadFile(xdg.File("Torvane/Series.db")), "catalogue");
}

TEST_F(DataFoldersTest, ARelativeXdgDataHomeIsIgnored) {
    FolderHints hints = Installed();
    hints.xdgDataHome = "relative/data";
    EXPECT_EQ(User_DataFolder(hints), home.File(".local/share/Torvane"));
}

TEST_F(DataFoldersTest, WithoutAUsersFolderTheShippedDataIsUsedAsItStands) {
    FolderHints hints = Installed();
    hints.home = "";
    EXPECT_EQ(AppPath_For(hints), Share());
    WriteFile(home.File("file"), "not a folder");
    hints.xdgDataHome = home.File("file");
    EXPECT_EQ(AppPath_For(hints), Share());
}

TEST_F(DataFoldersTest, TheVariableWinsOverBothPlaces) {
    TempDir chosen;
    FolderHints hints = Installed();
    hints.appPathVariable = chosen.Path();
    EXPECT_EQ(AppPath_For(hints), chosen.Path());
    EXPECT_FALSE(fs::exists(home.File(".local")));
}

TEST_F(DataFoldersTest, ALinkInTheUsersFolderIsNeverWrittenThrough) {
    const std::string user = home.File(".local/share/Torvane");
    fs::create_directories(user);
    TempDir elsewhere;
    fs::create_symlink(elsewhere.File("target"), user + "/Param.ini");
    AppPath_For(Installed());
    EXPECT_FALSE(fs::exists(elsewhere.File("target")));
}

TEST_F(DataFoldersTest, TheExamplesAreTheUsersCopyElseTheShippedOnesElseNone) {
    TempDir app;
    EXPECT_EQ(Examples_Folder(Installed(), app.Path()), "");
    fs::create_directories(Share() + "/examples");
    EXPECT_EQ(Examples_Folder(Installed(), app.Path()), Share() + "/examples");
    fs::create_directories(app.File("examples"));
    EXPECT_EQ(Examples_Folder(Installed(), app.Path()), app.File("examples"));
}

}  // namespace
