// The operating pattern written as a point table (pattern/PointTable.h): a
// header naming the columns and their units, then one line a row, in the
// picked units of time and motor speed and the precision of the pattern
// grid, in UTF-8 with line feeds.
#pragma once

#include <string>

#include "core/Tables.h"
#include "pattern/PointTable.h"

// The leading complete rows of the table, those the sizing uses. With the
// time column the start point, time 0 at speed 0, comes first, so that the
// points draw the whole profile.
std::string PointTable_Text(const PatarnTable& table, PointColumns columns);
