// The ready-made chains that the mechanical system selection offers.
#pragma once

#include <cstdint>
#include <string_view>

// Fills MecaTemplate and MecaTemplateCount.
void Init_Templates();

// The name under which a template is offered ("Horizontal ballscrew"); the
// hand selection, number 0, is offered as "hand selection".
std::string_view Template_Name(int16_t number);
