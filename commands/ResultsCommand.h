// The menu command "Save Results" without its window: the window supplies
// the save dialog, the command line tool the name it was given.
#pragma once

#include <functional>
#include <string>

// A chain of the motor alone is refused with a critical message and no
// dialog. Otherwise askFileName is asked for the file name (false when the
// user cancelled: nothing is written and nothing shown) and the results file
// is written under that name as given, with no extension appended. True
// when the file was written whole; the writing itself tells no failure (it
// goes to History.log).
bool Results_Command(const std::function<bool(std::string& fileName)>& askFileName);
