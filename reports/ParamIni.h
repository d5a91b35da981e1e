// Param.ini, the setting file of the formula texts: one section per
// component type, read with the usual initialisation-file rules (sections in
// square brackets, key=value lines, sections and keys without regard to
// case, the first of two equal keys counts). The file is read afresh at
// every call; nothing is cached.
#pragma once

#include <string>
#include <string_view>

// AppPath, a separator, "Param.ini".
std::string ParamIni_Path();

// The whole number at the head of the key's value; 0 when the file, the
// section, the key or the number is missing.
int ParamIni_Int(const std::string& path, std::string_view section, std::string_view key);

// The key's value, blanks at both ends trimmed, cut to 255 bytes; "" when
// the file, the section or the key is missing.
std::string ParamIni_String(const std::string& path, std::string_view section, std::string_view key);
