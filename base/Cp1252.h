// Conversion between the single-byte Western code page that every stored text
// uses and UTF-8, which the windows, the terminal and the file names use.
#pragma once

#include <string>
#include <string_view>

// Bytes of the code page to UTF-8. Undefined code points (0x81, 0x8D, 0x8F,
// 0x90, 0x9D) map to the C1 control of the same number, so nothing is lost.
std::string Cp1252_ToUtf8(std::string_view bytes);

// UTF-8 to the code page. A character the code page cannot hold, and any
// malformed UTF-8 sequence, becomes '?'.
std::string Utf8_ToCp1252(std::string_view utf8);
