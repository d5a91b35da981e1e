// What the settings grid of a component accepts: the materials of the density
// rows, the keys that may be typed, the checks of an edit in their order, and
// the store of an accepted edit into the element.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "core/Tables.h"

// The list a density row offers, in the grid's combo-list form.
inline constexpr std::string_view kMaterialList = "|Iron|Aluminium|Cooper|Brass|Bronze";

// Density in g/cm3 of a material of the list; -1 for any other name.
double Material_Density(std::string_view name);

// The number in ItemText of the first row of Element(element) whose name
// holds "inner" (or "outer"); 0 when the element has no such row.
double Diameter_Inner(int16_t element);
double Diameter_Outer(int16_t element);

// A row whose unit is g/cm3.
bool Item_IsDensityRow(const ElementItem& item);

// The characters a cell edit lets through: digits, backspace, comma, point,
// slash, e, E, + and -.
bool ItemEdit_KeyAllowed(char32_t key);

// May the setting of grid row 1..14 be opened? Not a row showing "--", nor
// a row without an item.
bool ItemEdit_MayOpen(const ElementRecord& element, int gridRow, std::string_view cellText);

// Checks the text typed into grid row 1..14 of Element(element). On success
// text becomes what the cell keeps: a material's density, the number cut to
// four significant digits, or a ratio "a/b" as typed. On failure the message
// "Illegal input value." has been shown and false is returned.
bool ValidateEdit(int16_t element, int gridRow, std::string& text);

// Stores an accepted text: into DirectValue when the direct inertia input is
// on and the row is an inertia, else into ItemText and Value of the row.
// Marks the document changed.
void ItemEdit_Store(int16_t element, int gridRow, const std::string& text, bool directInertia);
