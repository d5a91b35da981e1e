// The line model of the results file: every byte of the report goes out
// through Results_Print. Blanks and text of several calls may make up one
// line; a line ends with CR LF. Nothing is ever cut: a text longer than its
// column shifts the rest of the line to the right. Writing never stops on an
// error: each failed statement leaves one entry in History.log.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

// Error numbers written to History.log, in the runtime's classic numbering.
inline constexpr int16_t kErrInvalidCall = 5;     // the name of an item without "="
inline constexpr int16_t kErrTypeMismatch = 13;   // a row number that is no digit
inline constexpr int16_t kErrBadFileNumber = 52;  // writing when the report is not open
inline constexpr int16_t kErrDeviceIO = 57;       // a write that failed
inline constexpr int16_t kErrPathAccess = 75;     // the report could not be opened

// Opens the report for output: created, or emptied when it exists.
void Results_Open(const std::string& fileName);
// Closes the file: true when every statement since the open succeeded.
bool Results_Close();

// One statement: the number of blanks, the text (single-byte code page), and
// CR LF when the line ends.
void Results_Print(int blanks, std::string_view text, bool endLine);

// Blanks to add to text in the 1-based column: the column's width minus the
// byte length of the text, never below 0.
int16_t Results_Pad(std::string_view text, int column);

// Appends the error to History.log: the time, two blanks and the number as
// a decimal text with a place for the sign.
void Results_LogError(int16_t number);
