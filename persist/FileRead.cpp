#include "persist/FileRead.h"

#include "base/RuntimeError.h"
#include "persist/AppFileLayout.h"
#include "persist/ByteIO.h"

namespace {

// The ratings as the driver selection set them, from the motor's rows:
// rated torque, maximum torque, speed, inertia, both regenerations, and the
// rated torque again for the stopping torque.
void Rate_Rebuild() {
    constexpr int kRows[7] = {3, 4, 1, 2, 8, 9, 3};
    for (int j = 0; j < 7; ++j) ResultValues[Rate][j] = Element[0].Item[kRows[j]].Value;
}

}  // namespace

void File_ReadCurrent(std::string_view bytes) {
    ByteReader in(bytes);
    in.Skip(kVersionBytes);
    Io_CurrentFile(in);
}

FileReadResult File_Read(std::string_view bytes) {
    const bool current = bytes.substr(0, 3) == "Ver";
    if (current && (bytes.size() < 5 || bytes[4] < '0' || bytes[4] > '9')) return FileReadResult::NoReader;
    try {
        current ? File_ReadCurrent(bytes) : File_ReadOlder(bytes);
    } catch (const RuntimeError&) {
        return FileReadResult::Failed;
    }
    Rate_Rebuild();
    return FileReadResult::Read;
}
