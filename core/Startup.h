// Start-up without windows: where the data files lie, the fixed tables, the
// unit picks and a cleared document, before the main window first becomes
// active.
#pragma once

#include <string>

// Finds AppPath, fills the fixed tables, reads the unit picks (a damaged file
// is told and replaced by the defaults) and clears the document. The command
// line, taken whole, becomes FileName when not empty.
void Main_Prepare(const std::string& commandLine);
