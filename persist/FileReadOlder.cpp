#include <array>
#include <string>
#include <string_view>

#include "core/Catalogue.h"
#include "persist/AppFileLayout.h"
#include "persist/ByteIO.h"
#include "persist/FileRead.h"

namespace {

constexpr int kOlderRowsTaken = 11;    // rows 0 to 10 come from the file
constexpr std::size_t kOlderSystem = 60;  // the older program kept 60 characters of System

// The older file as one record, 31,096 bytes.
struct OlderFile {
    std::array<ElementRecord, kStoredElements> elements{};
    int16_t elementCount = 1;
    std::array<PatarnRow, kPatarnRows> rows{};
    int16_t motorSelected = 0;
    FixedText<60> motorModel;
    FixedText<80> motorComment;
    FixedText<60> driverModel;
    FixedText<80> driverComment;
    PrintInfoRecord info{};  // PrintOption holds the four old words
    std::array<int16_t, kUnitCategories> sel{};
};

template <class IO>
void Io_OlderFile(IO& io, OlderFile& f) {
    for (int slot = 0; slot < kStoredElements; ++slot)
        io.Record(
            f.elements[slot], [](IO& x, ElementRecord& e) { Io_Element(x, e, kOlderItems); },
            [slot](const ElementRecord& e) { return Element_Valid(slot, e); });
    io.Record(f.elementCount, Io_Int16<IO>, Count_Valid);
    for (PatarnRow& row : f.rows) io.Record(row, Io_Row<IO>, Row_Valid);
    io.Record(f.motorSelected, Io_Int16<IO>, MotorSelected_Valid);
    io.Text(f.motorModel);
    io.Text(f.motorComment);
    io.Text(f.driverModel);
    io.Text(f.driverComment);
    Io_PrintInfo(io, f.info, true);
    for (int kind = 0; kind < kUnitCategories; ++kind)
        io.Record(f.sel[kind], Io_Int16<IO>, [kind](int16_t sel) { return Sel_Valid(kind, sel); });
}

std::string_view Trimmed(std::string_view text) {
    const auto first = text.find_first_not_of(' ');
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

// Visits a record and trims each of its texts in place.
struct TrimTexts {
    void Int16(int16_t&) {}
    void Double(double&) {}
    template <std::size_t N>
    void Text(FixedText<N>& text) {
        text = std::string(Trimmed(text.Raw()));  // a copy: the text is its own source
    }
};

void Element_Move(int slot, const ElementRecord& old) {
    ElementRecord& e = Element[slot];
    e.ElementType = old.ElementType;
    e.InputMode = old.InputMode;
    e.DirectValue = old.DirectValue;
    Item_Defaults(e.ElementType, e.Item);
    for (int row = 0; row < kOlderRowsTaken; ++row) {
        e.Item[row].ItemName = Trimmed(old.Item[row].ItemName.Raw());
        e.Item[row].UnitKind = old.Item[row].UnitKind;
        e.Item[row].UnitIndex = old.Item[row].UnitIndex;
        e.Item[row].Value = old.Item[row].Value;
        e.Item[row].ItemText = old.Item[row].ItemText;
    }
}

void Info_Move(PrintInfoRecord old) {
    old.System = std::string(old.System.Raw().substr(0, kOlderSystem));  // a copy, as above
    TrimTexts trim;
    Io_PrintInfo(trim, old, true);
    old.InfoMotorModel = MotorModelText.Str();
    old.InfoDriverModel = DriverModelText.Str();
    old.PrintOption = {old.PrintOption[0], old.PrintOption[1], 1, old.PrintOption[3]};
    old.Reserved = 0;
    old.ReservedText = "";
    PRINTINFO = old;
}

}  // namespace

void File_ReadOlder(std::string_view bytes) {
    OlderFile old;
    ByteReader in(bytes);
    Io_OlderFile(in, old);

    for (int slot = 0; slot < kStoredElements; ++slot) Element_Move(slot, old.elements[slot]);
    for (int i = 0; i < kPatarnRows; ++i) Patarn[i + 1] = old.rows[i];
    ElementCount = old.elementCount;
    MotorSelected = old.motorSelected;
    MotorModelText = Trimmed(old.motorModel.Raw());
    MotorComment = Trimmed(old.motorComment.Raw());
    DriverModelText = Trimmed(old.driverModel.Raw());
    DriverComment = Trimmed(old.driverComment.Raw());
    Info_Move(old.info);
    for (int kind = 0; kind < kUnitCategories; ++kind) UnitTable[kind].Sel = old.sel[kind];
}
