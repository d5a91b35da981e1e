// Where the program's files lie. Run from its build folder, the data lies
// beside the executable and is used there. Installed (the executable in
// PREFIX/bin beside PREFIX/share/torvane), the shipped data is read-only and
// each user works in a folder of their own, the desktop's per-user data
// folder, into which the shipped files are copied the first time they are
// missing. TORVANE_APP_PATH, when set and not empty, names the folder to use
// instead of both.
#pragma once

#include <string>

// What the environment and the executable's place tell.
struct FolderHints {
    std::string appPathVariable;  // TORVANE_APP_PATH
    std::string xdgDataHome;      // XDG_DATA_HOME
    std::string home;             // HOME
    std::string exeFolder;        // the folder of the running executable
};

FolderHints FolderHints_Read();

// PREFIX/share/torvane when the executable lies in PREFIX/bin and that folder
// holds the catalogue; empty otherwise.
std::string Installed_DataFolder(const std::string& exeFolder);

// $XDG_DATA_HOME/Torvane, or $HOME/.local/share/Torvane when XDG_DATA_HOME is
// unset, empty or not absolute; empty when neither gives an absolute folder.
std::string User_DataFolder(const FolderHints& hints);

// Creates the folder user and copies into it every file below shipped that
// it lacks, keeping the sub-folders; a file already there is never touched.
// False when the folder cannot be made.
bool UserData_Prepare(const std::string& shipped, const std::string& user);

// AppPath: the variable's folder when set; the per-user folder, prepared,
// when installed (the shipped folder itself when the per-user one cannot be
// made); else the executable's folder.
std::string AppPath_For(const FolderHints& hints);

// The folder of the example applications: "examples" below AppPath when it
// exists, else below the shipped data; empty when neither exists.
std::string Examples_Folder(const FolderHints& hints, const std::string& appPath);
