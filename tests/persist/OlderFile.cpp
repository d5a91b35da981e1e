#include "tests/persist/OlderFile.h"

#include "tests/persist/FileBytes.h"

namespace {

void Item(std::string& b, int slot, int row, int16_t kind, int16_t unit, const char* name, const char* text,
          double value) {
    const std::size_t at = OldItemAt(slot, row);
    PutI16(b, at, kind);
    PutI16(b, at + 2, unit);
    PutText(b, at + 4, 50, name);
    PutText(b, at + 54, 50, text);
    PutF64(b, at + 104, value);
}

}  // namespace

std::string OlderFile() {
    std::string b(kOldFileSize, ' ');
    const int16_t types[4] = {51, 1, 11, 31};
    for (int slot = 0; slot < 20; ++slot) {
        for (int row = 0; row < 12; ++row) Item(b, slot, row, 9999, 9999, "", "", 0);
        const std::size_t tail = slot * kOldElementSize + 12 * 112;
        PutI16(b, tail, slot < 4 ? types[slot] : 50);
        PutI16(b, tail + 2, 0);
        PutF64(b, tail + 4, 0);
    }
    Item(b, 0, 1, 5, 0, "Rotational speed", "3000", 3000);
    Item(b, 0, 2, 8, 1, "Inertia", "1.2E-5", 1.2e-5);
    Item(b, 0, 3, 10, 1, "  Rated torque  ", "0.64", 0.64);
    Item(b, 0, 4, 10, 1, "Maximum torque", "1.91", 1.91);
    Item(b, 0, 6, 8, 1, "Brake inertia", "0.3E-5", 0.3e-5);
    Item(b, 0, 7, 7, 1, "Mass", "0.9", 0.9);
    Item(b, 0, 8, 14, 0, "Regeneration(J)", "7", 7);
    Item(b, 0, 9, 13, 0, "Regeneration(W)", "5", 5);
    Item(b, 1, 0, 11, 2, "Reduction ratio", "1", 1);
    Item(b, 2, 0, 1, 0, "  Screw pitch", " 10", 0.01);
    Item(b, 2, 11, 7, 1, "Old row eleven", "1", 1);
    Item(b, 3, 0, 7, 1, "Workpiece mass", "2", 2);
    PutF64(b, 2 * kOldElementSize + 12 * 112 + 4, 0.0002);  // DirectValue of slot 2
    PutI16(b, 2 * kOldElementSize + 12 * 112 + 2, 1);       // its InputMode

    PutI16(b, kOldCountAt, 4);
    for (int i = 0; i < 20; ++i) {
        for (int f = 0; f < 7; ++f) PutF64(b, kOldRowAt + i * 58 + f * 8, 0);
        PutI16(b, kOldRowAt + i * 58 + 56, 0);
    }
    const double row0[7] = {0.2, 0.2, 3000, 0.5, 0.05, 0.8, 0};
    for (int f = 0; f < 7; ++f) PutF64(b, kOldRowAt + f * 8, row0[f]);
    PutI16(b, kOldRowAt + 56, 3);

    PutI16(b, kOldMotorSelectedAt, 1);
    PutText(b, kOldMotorModelAt, 60, "  TV-M200A  ");
    PutText(b, kOldMotorCommentAt, 80, "Older comment");
    PutText(b, kOldDriverModelAt, 60, "TV-D02");
    PutText(b, kOldDriverCommentAt, 80, " Driver note");

    PutI16(b, kOldInfoAt, 1);
    PutText(b, kOldInfoAt + 2, 40, "  Acme  ");
    PutText(b, kOldInfoAt + 282, 40, "R. Roe");
    PutText(b, kOldInfoAt + 422, 80, std::string(55, 'S') + "-sixty-and-more-");
    PutText(b, kOldInfoAt + 502, 40, "Stale motor text");
    PutText(b, kOldInfoAt + 542, 40, "Stale driver text");
    PutText(b, kOldInfoAt + 1222, 1024, "Old comment");
    PutI16(b, kOldInfoAt + 2246, 2);
    PutI16(b, kOldInfoAt + 2248, 3);
    PutI16(b, kOldInfoAt + 2250, 4);
    PutI16(b, kOldInfoAt + 2252, 5);
    PutText(b, kOldInfoAt + 2254, 256, "Old reserved text");

    const int16_t sel[11] = {1, 0, 2, 1, 0, 2, 1, 0, 1, 1, 4};
    for (int k = 0; k < 11; ++k) PutI16(b, kOldSelAt + 2 * k, sel[k]);
    return b;
}
