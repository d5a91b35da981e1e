#include "core/MecaSelect.h"

#include "core/Tables.h"

int16_t Meca_Arrow(int16_t current, MecaKey key) {
    int next = current;
    switch (key) {
        case MecaKey::Up: next = current - 4 < 0 ? current + 8 : current - 4; break;
        case MecaKey::Down: next = current + 4 > 11 ? current - 8 : current + 4; break;
        case MecaKey::Right: next = current + 1 > 11 ? 0 : current + 1; break;
        case MecaKey::Left: next = current - 1 < 0 ? 11 : current - 1; break;
    }
    return static_cast<int16_t>(next);
}

bool Meca_OK(bool cellHasPicture) {
    MecaResult = MecaTemplateNo == 0 ? 2 : 1;
    return MecaTemplateNo == 0 || cellHasPicture;
}

void Meca_Cancel() {
    MecaTemplateNo = 0;
    MecaResult = 3;
}

void Meca_Load() {
    MecaResult = 0;
    MecaTemplateNo = 1;
}
