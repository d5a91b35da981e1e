// UnitInfo.dat in AppPath: the eleven unit picks, one per line.
#pragma once

#include <string>

// Path of UnitInfo.dat.
std::string UnitFile_Path();

// Reads the picks. A missing or empty file gives the picks of a fresh
// installation (and leaves an empty file behind). A line that is no number,
// a pick the category does not have, or fewer than eleven lines is a
// RuntimeError; the picks are then unchanged. The names are set in any case.
void Unit_Load();

// Replaces the file with the eleven picks, each line ending in CR LF.
// Throws RuntimeError when the file cannot be written.
void Unit_Save();

// Unit_Load at start-up: a failure is told in one message naming the file,
// and the program goes on with the picks of a fresh installation.
void Unit_LoadOrDefaults();
