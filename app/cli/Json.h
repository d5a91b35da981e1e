// A minimal writer of JSON text for the command line tool's output.
#pragma once

#include <string>
#include <string_view>

// The text as a JSON string literal, quotes included; the text is UTF-8.
std::string Json_String(std::string_view utf8);

// A number with 17 significant digits; non-finite numbers become null.
std::string Json_Number(double x);
