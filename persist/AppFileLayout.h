// The application file, field by field. Each description runs over a
// ByteReader or a ByteWriter, so reading and writing follow one order.
//
// Current layout, 35,763 bytes: a 10-byte version text, Element(0) to
// Element(19) of fourteen items each, Patarn(1) to Patarn(20), ElementCount,
// MotorSelected, the four texts of the chosen motor and driver, PRINTINFO and
// the eleven unit picks. The older layout, 31,096 bytes without a version,
// has elements of twelve items, a block with four words instead of five and
// a different order (see FileReadOlder.cpp).
#pragma once

#include <cstddef>
#include <cstdint>

#include "core/Tables.h"
#include "persist/FieldCheck.h"
#include "units/UnitTable.h"

inline constexpr std::size_t kVersionBytes = 10;
inline constexpr std::size_t kCurrentFileBytes = 35763;
inline constexpr std::size_t kOlderFileBytes = 31096;
inline constexpr int kCurrentItems = 14;
inline constexpr int kOlderItems = 12;
inline constexpr int kStoredElements = 20;  // Element(20) is never stored

// 112 bytes.
template <class IO>
void Io_Item(IO& io, ElementItem& item) {
    io.Int16(item.UnitKind);
    io.Int16(item.UnitIndex);
    io.Text(item.ItemName);
    io.Text(item.ItemText);
    io.Double(item.Value);
}

// 1580 bytes with fourteen items, 1356 with twelve.
template <class IO>
void Io_Element(IO& io, ElementRecord& element, int items) {
    for (int row = 0; row < items; ++row) Io_Item(io, element.Item[row]);
    io.Int16(element.ElementType);
    io.Int16(element.InputMode);
    io.Double(element.DirectValue);
}

// 58 bytes; Position is the travel of the row.
template <class IO>
void Io_Row(IO& io, PatarnRow& row) {
    io.Double(row.Time);
    io.Double(row.DeltaTime);
    io.Double(row.Speed);
    io.Double(row.LoadSpeed);
    io.Double(row.Position);
    io.Double(row.Torque);
    io.Double(row.Regeneration);
    io.Int16(row.RowState);
}

// 2512 bytes; the older block (older = true) has no fifth word and is 2510.
template <class IO>
void Io_PrintInfo(IO& io, PrintInfoRecord& info, bool older) {
    io.Int16(info.PrintInfoSet);
    io.Text(info.cstCorporation);
    io.Text(info.cstUnit1);
    io.Text(info.cstUnit2);
    io.Text(info.cstName);
    io.Text(info.Corporation);
    io.Text(info.Unit1);
    io.Text(info.Unit2);
    io.Text(info.Name);
    io.Text(info.TelNo);
    io.Text(info.FaxNo);
    io.Text(info.Mail);
    io.Text(info.System);
    io.Text(info.InfoMotorModel);
    io.Text(info.InfoDriverModel);
    io.Text(info.ConData);
    for (auto& line : info.PrintLine) io.Text(line);
    io.Text(info.PrintComment);
    for (auto& option : info.PrintOption) io.Int16(option);
    if (!older) io.Int16(info.Reserved);
    io.Text(info.ReservedText);
}

template <class IO>
void Io_Int16(IO& io, int16_t& value) {
    io.Int16(value);
}

// Everything after the version text, read into or written from the tables.
template <class IO>
void Io_CurrentFile(IO& io) {
    for (int slot = 0; slot < kStoredElements; ++slot)
        io.Record(
            Element[slot], [](IO& x, ElementRecord& e) { Io_Element(x, e, kCurrentItems); },
            [slot](const ElementRecord& e) { return Element_Valid(slot, e); });
    for (int row = 1; row <= kPatarnRows; ++row) io.Record(Patarn[row], Io_Row<IO>, Row_Valid);
    io.Record(ElementCount, Io_Int16<IO>, Count_Valid);
    io.Record(MotorSelected, Io_Int16<IO>, MotorSelected_Valid);
    io.Text(MotorModelText);
    io.Text(MotorComment);
    io.Text(DriverModelText);
    io.Text(DriverComment);
    io.Record(
        PRINTINFO, [](IO& x, PrintInfoRecord& p) { Io_PrintInfo(x, p, false); },
        [](const PrintInfoRecord&) { return true; });
    for (int kind = 0; kind < kUnitCategories; ++kind)
        io.Record(UnitTable[kind].Sel, Io_Int16<IO>, [kind](int16_t sel) { return Sel_Valid(kind, sel); });
}
