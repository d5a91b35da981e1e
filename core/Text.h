// Small text helpers of the core.
#pragma once

#include <string>
#include <string_view>

// Cuts a path at its last separator ('\' as stored in older files, or '/'):
// dir is what stands before it, name what stands after; without a separator
// dir is empty and name is the whole path.
void Path_Split(std::string_view path, std::string& dir, std::string& name);

// The text up to its first character of code 0, trimmed of blanks at both ends.
std::string Text_Clean(std::string_view text);

// True when the text, lower-cased, holds part (itself in lower case).
bool Text_HoldsLower(std::string_view text, std::string_view part);
