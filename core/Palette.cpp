#include "core/Palette.h"

#include <array>

std::string_view Palette_TabCaption(int tab) {
    static constexpr std::array<std::string_view, kPaletteTabs> captions = {
        "Rotation -> Rotation", "Rotation -> Linear", "Linear -> Rotation", "Linear -> Linear", "Special Mechanism"};
    return (tab >= 1 && tab <= kPaletteTabs) ? captions[tab - 1] : std::string_view();
}

int16_t Palette_Type(int tab, int cell) { return static_cast<int16_t>(10 * (tab - 1) + cell + 1); }

int Palette_NextCell(int cell, int keyCode) {
    switch (static_cast<PaletteKey>(keyCode)) {
        case PaletteKey::Enter: return cell;
        case PaletteKey::Right: return cell == 9 ? 0 : cell + 1;
        case PaletteKey::Left: return cell == 0 ? 9 : cell - 1;
        case PaletteKey::Up: return cell < 5 ? cell + 5 : cell - 5;
        case PaletteKey::Down: return cell >= 5 ? cell - 5 : cell + 5;
        default: return 0;
    }
}
