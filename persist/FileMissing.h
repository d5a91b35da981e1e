// Whether a file can be read at all.
#pragma once

#include <string>

// True when the file can't be opened for reading (it doesn't exist, it is a
// folder, or it may not be read); false when it can.
bool File_Missing(const std::string& path);
