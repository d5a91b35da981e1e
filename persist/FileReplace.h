// Replacing a file whole: the bytes go to a temporary file in the same
// folder, which is then renamed over the target, so a failed write never
// destroys what the file held before.
#pragma once

#include <string>
#include <string_view>

// True when the file now holds exactly the bytes. On false the target is
// untouched and no temporary file is left behind.
bool File_Replace(const std::string& path, std::string_view bytes);

// Replaces the target whole with a copy of the source file's bytes, read in
// chunks whatever its size. False when the source is no regular file or
// cannot be read, or the target cannot be written; the target is then
// untouched.
bool File_CopyOver(const std::string& source, const std::string& target);
