// MtrUser.dat beside the program: the administrator's name and address,
// which pre-fill the report's information block. Seven lines, each one text
// in double quotes and ending in CR LF. The texts here are in the single-byte
// code page of the files; the windows convert them.
#pragma once

#include <array>
#include <string>

// The lines in file order: Name, Corporation, Unit1, Unit2, TelNo, FaxNo, Mail.
inline constexpr int kAdminLines = 7;
using AdminTexts = std::array<std::string, kAdminLines>;

// AppPath + "/MtrUser.dat".
std::string MtrUser_Path();

// Reads the file: false when it is missing, is no regular file or cannot be
// read. An empty file gives seven empty texts; otherwise each line loses its
// first and last character and goes through Text_Clean. A line shorter than two characters, or fewer than
// seven lines, throws RuntimeError.
bool MtrUser_ReadFile(AdminTexts& texts);

// What the administrator dialog shows when it opens: the file, or without
// it the fields of the document's PRINTINFO through Text_Clean.
AdminTexts MtrUser_Read();

// The dialog's OK: the file is replaced with the seven quoted texts; when
// the document has no file yet (DocumentNamed 0) its PRINTINFO takes them
// as well. DirtyFlag becomes 1. Throws RuntimeError when the file cannot be
// written, and then changes nothing.
void MtrUser_Write(const AdminTexts& texts);
