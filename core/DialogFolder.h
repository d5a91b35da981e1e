// Where the file dialogs open. The current document's folder comes first:
// the files that belong together lie together. Before any document has a
// file, the dialog that opens an application starts among the example
// applications, so that a newcomer finds them at once, and every other
// dialog in the user's documents folder. A dialog never opens in the
// program's own folder, which is the working folder when the program is
// started from its build: a folder that does not exist is passed over, and
// the search ends at the home folder or, without one, at the root.
#pragma once

#include <string>

struct DialogFolderHints {
    std::string documentFile;  // the current document's file; empty before any
    std::string examples;      // the example applications; empty when there are none
    std::string documents;     // the user's documents folder
    std::string home;          // the user's home folder
};

// What the dialog is for: opening an application may start among the examples.
enum class DialogFor { OpenApplication, OtherFile };

// The folder the dialog opens in; never empty.
std::string Dialog_StartFolder(const DialogFolderHints& hints, DialogFor purpose);

// The hints of the running program: FileName and the examples beside
// AppPath; the caller knows the desktop's documents and home folders.
DialogFolderHints DialogFolder_Hints(const std::string& documents, const std::string& home);
