// The operating pattern to and from a point table file (pattern/PointTable.h):
// File > Import Pattern... and File > Export Pattern..., and the same on the
// command line.
#pragma once

#include <string>

#include "pattern/PointTable.h"

inline constexpr const char* kExportTitle = "Export Pattern";

// Replaces the pattern with the rows of the point table in the file, as a
// typed edit does: the document is marked changed and recalculated. A file
// that cannot be read, or a table refused, is told in a message box and
// leaves the document as it was; false then.
bool Pattern_Import(const std::string& path);

// Writes the pattern into the file as a point table of the given columns,
// replacing the file whole. A file that cannot be written is told; false then.
bool Pattern_Export(const std::string& path, PointColumns columns);
