// The two pattern graphs as bitmaps for the printed report: drawn in print
// mode (black pen on white) at the report's own picture size, so that every
// program that prints makes the same pictures, whatever its windows.
#pragma once

#include <string>

#include "core/Tables.h"

inline constexpr const char* kRotationBitmap = "Rotation.bmp";
inline constexpr const char* kTorqueBitmap = "Torque.bmp";

// The pictures' size in twips, and pixels per twip in the bitmaps.
inline constexpr double kGraphWidthTwips = 10800, kGraphHeightTwips = 3600;
inline constexpr double kGraphPixelsPerTwip = 0.2;

// Writes the speed graph to folder/Rotation.bmp and the torque graph to
// folder/Torque.bmp from the first rows of the table. False when either
// file cannot be written.
bool Graph_Save(const PatarnTable& table, const std::string& folder);
