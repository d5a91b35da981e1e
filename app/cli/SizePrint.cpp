#include "app/cli/SizePrint.h"

#include <iomanip>
#include <string>

#include "app/cli/ChainPrint.h"
#include "app/cli/Json.h"
#include "base/Cp1252.h"
#include "base/NumberFormat.h"
#include "core/Tables.h"
#include "units/UnitTable.h"

namespace {

constexpr int kNoKind = -1;  // a quantity shown in its base unit

struct Column {
    const char* title;
    int kind;
};

std::string UnitLabel(int kind, const char* fixed) {
    return kind == kNoKind ? fixed : Cp1252_ToUtf8(Unit_Name(static_cast<int16_t>(kind), UnitTable[kind].Sel));
}

std::string Shown(double value, int kind) {
    if (value == kOver) return "OVER";
    if (kind == kNoKind) return NumberText(value);
    return NumberText(FromS(static_cast<int16_t>(kind), UnitTable[kind].Sel, value));
}

void PrintPattern(std::ostream& out) {
    const Column columns[7] = {{"Time", 0},
                               {"Interval", 0},
                               {"Rotational speed", 5},
                               {"Load speed", LoadMotion == 1 ? 6 : 4},
                               {"Position", LoadMotion == 1 ? 3 : 2},
                               {"Required torque", 10},
                               {"Regeneration", kNoKind}};
    out << "Operating pattern (" << PatternRowCount << " complete rows)\n  Row";
    for (const Column& c : columns) out << std::setw(20) << c.title;
    out << "\n     ";
    for (const Column& c : columns) out << std::setw(20) << UnitLabel(c.kind, "J");
    out << '\n';
    for (int r = 1; r <= kPatarnRows; ++r) {
        const PatarnRow& row = Patarn[r];
        if (row.RowState == 0) continue;
        const double values[7] = {row.Time,   row.DeltaTime, row.Speed,       row.LoadSpeed,
                                  row.Position, row.Torque,  row.Regeneration};
        out << "  " << std::setw(3) << r;
        for (int f = 0; f < 7; ++f) out << std::setw(20) << Shown(values[f], columns[f].kind);
        out << '\n';
    }
}

const char* Verdict(double hantei) {
    switch (static_cast<int>(hantei)) {
        case 1: return "OK";
        case 2: return "FAIR";
        case 3: return "NG";
        default: return "-";
    }
}

void PrintResults(std::ostream& out) {
    struct Value {
        const char* label;
        int kind;
        const char* fixedUnit;
    };
    const Value values[7] = {{"Effective torque", 10, ""}, {"Maximum torque", 10, ""},
                             {"Maximum rotational speed", 5, ""}, {"Inertia", 8, ""},
                             {"Regeneration", kNoKind, "J(max.)"}, {"Regeneration", kNoKind, "W"},
                             {"Stopping torque", 10, ""}};
    out << "Sizing values\n  " << std::left << std::setw(26) << "Item" << std::setw(22) << "Units" << std::right
        << std::setw(24) << "Calculated value" << std::setw(24) << "Rating" << std::setw(12) << "Rated ratio"
        << std::setw(8) << "Verdict" << '\n';
    for (int j = 0; j < 7; ++j) {
        const Value& v = values[j];
        const double rating = ResultValues[Rate][j], ratio = ResultValues[Ratio][j];
        out << "  " << std::left << std::setw(26) << v.label << std::setw(22) << UnitLabel(v.kind, v.fixedUnit)
            << std::right << std::setw(24) << Shown(ResultValues[Cul][j], v.kind) << std::setw(24)
            << (rating == 0 ? "-" : Shown(rating, v.kind)) << std::setw(12)
            << (rating == 0 ? "-" : ratio == kOver ? "OVER" : Format_Mask(ratio, kMask2)) << std::setw(8)
            << Verdict(ResultValues[Hantei][j]) << '\n';
    }
}

// A JSON array of the numbers.
template <class Range>
std::string NumberArray(const Range& values) {
    std::string text = "[";
    for (const double v : values) text += (text.size() > 1 ? "," : "") + Json_Number(v);
    return text + "]";
}

void PrintParams(std::ostream& out) {
    out << "\"params\":[";
    for (int i = 1; i <= ElementCount; ++i) {
        const ParamRecord& p = Param[i];
        out << (i > 1 ? "," : "") << "{\"slot\":" << i << ",\"m1\":" << Json_Number(p.m1)
            << ",\"m2\":" << Json_Number(p.m2) << ",\"m3\":" << Json_Number(p.m3)
            << ",\"inert0\":" << Json_Number(p.inert0) << ",\"inert1\":" << Json_Number(p.inert1)
            << ",\"ratio\":" << Json_Number(p.ratio) << ",\"eff\":" << Json_Number(p.eff)
            << ",\"exforce\":" << Json_Number(p.exforce) << ",\"fric\":" << Json_Number(p.fric) << '}';
    }
    out << ']';
}

void PrintElements(std::ostream& out) {
    out << "\"elements\":[";
    for (int slot = 0; slot < ElementCount; ++slot) {
        const ElementRecord& e = Element[slot];
        std::array<double, kItemRows> values{};
        for (int row = 0; row < kItemRows; ++row) values[row] = e.Item[row].Value;
        out << (slot ? "," : "") << "{\"slot\":" << slot << ",\"type\":" << e.ElementType
            << ",\"inputMode\":" << e.InputMode << ",\"directValue\":" << Json_Number(e.DirectValue)
            << ",\"values\":" << NumberArray(values) << '}';
    }
    out << ']';
}

void PrintRows(std::ostream& out) {
    out << "\"pattern\":[";
    for (int r = 1; r <= kPatarnRows; ++r) {
        const PatarnRow& row = Patarn[r];
        out << (r > 1 ? "," : "") << "{\"row\":" << r << ",\"time\":" << Json_Number(row.Time)
            << ",\"deltaTime\":" << Json_Number(row.DeltaTime) << ",\"speed\":" << Json_Number(row.Speed)
            << ",\"loadSpeed\":" << Json_Number(row.LoadSpeed) << ",\"position\":" << Json_Number(row.Position)
            << ",\"torque\":" << Json_Number(row.Torque) << ",\"regeneration\":" << Json_Number(row.Regeneration)
            << ",\"rowState\":" << row.RowState << '}';
    }
    out << ']';
}

void PrintResultRecords(std::ostream& out) {
    out << "\"results\":{\"cul\":" << NumberArray(ResultValues[Cul]) << ",\"rate\":" << NumberArray(ResultValues[Rate])
        << ",\"ratio\":" << NumberArray(ResultValues[Ratio]) << ",\"hantei\":[";
    for (int j = 0; j < 7; ++j) out << (j ? "," : "") << static_cast<int>(ResultValues[Hantei][j]);
    out << "],\"verdicts\":[";
    for (int j = 0; j < 7; ++j) out << (j ? "," : "") << '"' << Verdict(ResultValues[Hantei][j]) << '"';
    out << "]}";
}

}  // namespace

void Size_PrintText(std::ostream& out) {
    out << "Chain (" << ElementCount << " elements)\n";
    Chain_PrintText(out);
    out << '\n';
    PrintPattern(out);
    out << '\n';
    PrintResults(out);
}

void Size_PrintJson(std::ostream& out) {
    out << "{\"elementCount\":" << ElementCount << ",\"motorSelected\":" << MotorSelected
        << ",\"loadMotion\":" << LoadMotion << ",\"loadInertiaTotal\":" << Json_Number(LoadInertiaTotal)
        << ",\"totalRatio\":" << Json_Number(TotalRatio) << ",\"patternRowCount\":" << PatternRowCount << ',';
    PrintParams(out);
    out << ',';
    PrintElements(out);
    out << ',';
    PrintRows(out);
    out << ',';
    PrintResultRecords(out);
    out << "}\n";
}
