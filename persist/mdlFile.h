// The application file (.AP2): the whole document in one file of fixed-width
// fields. Files are written in the current layout and read in the current
// and the older one.
#pragma once

#include <functional>
#include <string>

// What opening a file does to the windows; the main window supplies it, and
// every empty member is skipped.
struct FileLoadHooks {
    std::function<void()> resetDisplay;                      // the window side of a new document
    std::function<void()> refresh;                           // redraws from the tables
    std::function<void(const std::string& title)> setTitle;  // the caption of the main window
    std::function<void()> showInfobox;                       // shows the component settings
};

// --- writing (persist/FileSave.cpp) -------------------------------------------------

// "Ver." and the program's major, minor and revision numbers.
std::string File_VersionText();

// The document in the current layout, 35,763 bytes.
std::string File_Bytes();

// The file that the document was last opened from when it could not be read
// (a failed or no reader), empty otherwise. Its bytes are kept as NAME.bak
// before the first save over it.
inline std::string UnreadFile;

// Writes the document to path. A failure shows "File write failed." and
// returns false; the document and the previous file are left as they were.
// Writing over UnreadFile first copies it to path + ".bak", notes that in
// History.log, and fails when the copy cannot be made.
bool File_Save(const std::string& path);

// --- opening (persist/FileLoad.cpp) -------------------------------------------------

// Makes the file at path the document. When the file cannot be read whole,
// "File read failed." is shown, the fields read so far stay and the loading
// goes on. Returns true when the file was read whole and every step after
// it ran without a failure.
bool File_Load(const std::string& path, const FileLoadHooks& hooks = {});
