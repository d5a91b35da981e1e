// Reading the bytes of an application file into the tables, without
// messages; File_Load tells the user.
#pragma once

#include <string_view>

enum class FileReadResult {
    Read,      // a reader ran to its end
    Failed,    // the bytes ended early or held a field the program cannot use
    NoReader,  // "Ver" with no digit as its fifth character: nothing is read
};

// Chooses the reader by the first bytes: without "Ver" the older one, with
// "Ver" and a digit in the fifth place the current one, whatever the version.
// After a reader that ran to its end, the ratings ResultValues(1, 0) to
// ResultValues(1, 6) are rebuilt from the motor's item rows.
FileReadResult File_Read(std::string_view bytes);

// The two readers. Each throws RuntimeError where the bytes end early or a
// field fails its check. The current one stores every record it has read
// whole before that point; the older one reads everything before it stores
// anything.
void File_ReadCurrent(std::string_view bytes);
void File_ReadOlder(std::string_view bytes);
