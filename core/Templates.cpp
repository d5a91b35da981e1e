#include "core/Templates.h"

#include <array>
#include <initializer_list>

#include "core/Catalogue.h"
#include "core/Tables.h"

namespace {

struct TemplateDef {
    std::string_view name;
    std::initializer_list<int16_t> types;
};

const std::array<TemplateDef, kTemplates> kTemplateDefs = {{
    {"hand selection", {51}},
    {"Horizontal ballscrew", {51, 1, 11, 31}},
    {"Vertical ballscrew", {51, 1, 12, 34}},
    {"Turntable", {51, 1, 5}},
    {"Conveyor belt", {51, 1, 13, 31}},
    {"Roll feeder", {51, 1, 14}},
    {"Suspension", {51, 1, 15}},
    {"Rack and pinion", {51, 1, 16, 31}},
    {"Cart", {51, 41}},
    {"Pinion-driven cart", {51, 42}},
}};

}  // namespace

void Init_Templates() {
    for (auto& slot : MecaTemplate) slot.fill(0);
    MecaTemplateCount.fill(0);
    for (int n = 0; n < kTemplates; ++n) {
        int slot = 0;
        for (const int16_t type : kTemplateDefs[n].types) MecaTemplate[slot++][n] = type;
        MecaTemplateCount[n] = static_cast<int16_t>(slot);
        for (; slot <= 19; ++slot) MecaTemplate[slot][n] = kTypeEmpty;
    }
}

std::string_view Template_Name(int16_t number) {
    return (number >= 0 && number < kTemplates) ? kTemplateDefs[number].name : "";
}
