#include "app/cli/ChainPrint.h"

#include <iomanip>

#include "app/cli/Json.h"
#include "base/Cp1252.h"
#include "base/NumberFormat.h"
#include "core/Catalogue.h"
#include "core/Tables.h"
#include "units/UnitTable.h"

namespace {

bool InUse(const ElementItem& item) { return item.UnitKind != kUnitNotUsed; }

// Pads UTF-8 text to a width counted in characters.
std::string Pad(const std::string& utf8, std::size_t width) {
    std::size_t chars = 0;
    for (const char c : utf8) chars += (static_cast<unsigned char>(c) & 0xC0) != 0x80;
    return chars >= width ? utf8 + " " : utf8 + std::string(width - chars, ' ');
}

}  // namespace

void Chain_PrintText(std::ostream& out) {
    for (int slot = 0; slot < ElementCount; ++slot) {
        const ElementRecord& e = Element[slot];
        out << "Slot " << slot << "  type " << e.ElementType << "  "
            << Cp1252_ToUtf8(Type_Label(e.ElementType)) << '\n';
        for (int row = 0; row < kItemRows; ++row) {
            const ElementItem& item = e.Item[row];
            if (!InUse(item)) continue;
            out << "  " << std::setw(2) << row << "  " << Pad(item.ItemName.Utf8(), 24)
                << Pad(Cp1252_ToUtf8(Unit_Name(item.UnitKind, item.UnitIndex)), 16)
                << Pad(item.ItemText.Utf8(), 12) << NumberText(item.Value) << '\n';
        }
    }
}

void Chain_PrintJson(std::ostream& out) {
    out << '[';
    for (int slot = 0; slot < ElementCount; ++slot) {
        const ElementRecord& e = Element[slot];
        out << (slot ? "," : "") << "{\"slot\":" << slot << ",\"type\":" << e.ElementType
            << ",\"label\":" << Json_String(Cp1252_ToUtf8(Type_Label(e.ElementType))) << ",\"rows\":[";
        bool first = true;
        for (int row = 0; row < kItemRows; ++row) {
            const ElementItem& item = e.Item[row];
            if (!InUse(item)) continue;
            out << (first ? "" : ",") << "{\"row\":" << row << ",\"name\":" << Json_String(item.ItemName.Utf8())
                << ",\"unit\":" << Json_String(Cp1252_ToUtf8(Unit_Name(item.UnitKind, item.UnitIndex)))
                << ",\"text\":" << Json_String(item.ItemText.Utf8()) << ",\"value\":" << Json_Number(item.Value)
                << '}';
            first = false;
        }
        out << "]}";
    }
    out << ']';
}
