// The single-byte texts of the tables at the edge of the windows.
#pragma once

#include <QString>
#include <string>
#include <string_view>

// A text of the code page as the windows show it.
QString Cp1252_ToQString(std::string_view cp1252);

// What a window holds as a text of the code page; characters it cannot
// hold become "?".
std::string QString_ToCp1252(const QString& text);
