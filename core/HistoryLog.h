// History.log: the log of the results file and of the setting file. It has
// no head and no limit; every entry is opened, written and closed by itself.
#pragma once

#include <string>
#include <string_view>

// The log in the application's folder: AppPath, a separator, "History.log".
std::string History_Path();

// The file whose name is AppPath's own name followed directly by
// "History.log", beside that folder. The entry of an empty setting item
// lands here, unlike every other entry.
std::string History_SiblingPath();

// Appends one line: the present local time as "yyyy/mm/dd hh:nn:ss", two
// blanks, the text, CR LF. A log that cannot be written is passed over.
void History_Append(const std::string& path, std::string_view text);
