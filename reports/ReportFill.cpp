// Opens with its header: reports/ReportFill.h.
#include "reports/ReportFill.h"

#include <cmath>
#include <ctime>

#include "base/NumberFormat.h"
#include "base/Numeric.h"
#include "core/Catalogue.h"
#include "core/PatarnRows.h"
#include "core/Tables.h"
#include "core/Text.h"
#include "pattern/GridText.h"
#include "reports/GraphImage.h"
#include "units/UnitTable.h"

namespace {

constexpr int kElementBlocks = 20;
constexpr std::array<const char*, 6> kHeadFoot = {"HeadL", "HeadM", "HeadR", "FootL", "FootM", "FootR"};
constexpr std::array<const char*, 4> kJudgement = {"NA", "OK", "FAIR", "NG"};

// A row of the results table: its objects, the value it shows and how.
struct ResultObjects {
    const char* name;      // the objects' stem, as "EffectiveTorque"
    const char* judgement; // the judgement object
    int j;                 // index in ResultValues
    int16_t kind;          // the unit category, or -1 for no conversion
    int16_t keep;          // keep-scientific of Num_Format
};

constexpr std::array<ResultObjects, 7> kResultObjects = {{
    {"EffectiveTorque", "JTHantei", EffectiveTorque, UnitKind::Torque, 0},
    {"StoppingTorque", "STHantei", StoppingTorque, UnitKind::Torque, 0},
    {"MaxTorque", "MTHantei", MaxTorque, UnitKind::Torque, 0},
    {"Inertia", "IHantei", Inertia, UnitKind::Inertia, 1},
    {"MaxRotationalSpeed", "MRHantei", MaxRotationalSpeed, UnitKind::MotorSpeed, 0},
    {"Regeneration1", "R1Hantei", Regeneration1, -1, 0},
    {"Regeneration2", "R2Hantei", Regeneration2, -1, 0},
}};

std::string ResultText(double value, const ResultObjects& row) {
    const double shown = row.kind < 0 ? value : FromS(row.kind, UnitTable[row.kind].Sel, value);
    return Num_Format(shown, row.keep, 1);
}

// A mask applied to a cell's text: a number is formatted, any other text stays.
std::string Masked(const std::string& cell, std::string_view mask) {
    return IsNumeric(cell) ? Format_Mask(Val(cell), mask) : cell;
}

}  // namespace

std::string Report_Date(int year, int month, int day) {
    static constexpr std::array<const char*, 12> kMonths = {"Jan", "Feb", "Mar", "Apr", "May", "Jun",
                                                            "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};
    return std::string(kMonths[(month - 1) % 12]) + "." + std::to_string(day) + "," + std::to_string(year);
}

std::string Report_Today() {
    const std::time_t now = std::time(nullptr);
    std::tm local{};
    localtime_r(&now, &local);
    return Report_Date(local.tm_year + 1900, local.tm_mon + 1, local.tm_mday);
}

int Report_ElementPages(int16_t count) { return count < 5 ? 1 : count < 11 ? 2 : count < 17 ? 3 : 4; }

std::string Report_PictureFile(int16_t type) {
    if (type >= 1 && type <= 10) return "rotoro" + std::to_string(type) + ".bmp";
    if (type >= 11 && type <= 18) return "rotost" + std::to_string(type - 10) + ".bmp";
    if (type == 21) return "sttoro1.bmp";
    if (type >= 31 && type <= 34) return "sttost" + std::to_string(type - 30) + ".bmp";
    if (type == 41) return "sp_ex1.bmp";
    if (type == 42) return "sp_ex2.bmp";
    return {};
}

bool ReportFill::Text(const std::string& object, const std::string& text) {
    if (wr.wrSetText(ReportHandle, object, text)) return true;
    ReportFailed = 1;
    return false;
}

bool ReportFill::Hide(const std::string& object) {
    if (wr.wrSetObjectProp(ReportHandle, object, "VISIBLE", ReportProperty{})) return true;
    ReportFailed = 1;
    return false;
}

void ReportFill::Report_PageNo(int kind) {
    const auto& check = request.PrintCheck;
    const int total = (check[kPrintCover] ? 1 : 0) + (check[kPrintElements] ? Report_ElementPages(ElementCount) : 0) +
                      (check[kPrintPattern] ? 1 : 0);
    const std::string of = "/" + std::to_string(total) + ")";
    if (kind == 0) {
        Text("PageNo", "(1" + of);
    } else if (kind == 1) {
        const int first = check[kPrintCover] ? 2 : 1;
        for (int p = 1; p <= 4; ++p)
            if (!Text("PageNo" + std::to_string(p), "(" + std::to_string(first + p - 1) + of)) return;
    } else {
        Text("PageNo", "(" + std::to_string(total) + of);
    }
}

void ReportFill::Report_HeadFoot(int kind) {
    const int copies = kind == 1 ? 4 : 1;
    for (int p = 1; p <= copies; ++p) {
        const std::string suffix = kind == 1 ? std::to_string(p) : "";
        for (std::size_t i = 0; i < kHeadFoot.size(); ++i)
            if (!request.txtData[i].empty() && !Text(kHeadFoot[i] + suffix, request.txtData[i])) return;
        if (!Text("Date" + suffix, request.date)) return;
    }
}

void ReportFill::Report_Customer() {
    const PrintInfoRecord& info = PRINTINFO;
    if (!Text("cstCorporation", Text_Clean(info.cstCorporation.Raw()))) return;
    if (!Text("cstUnit1", Text_Clean(info.cstUnit1.Raw()))) return;
    if (!Text("cstUnit2", Text_Clean(info.cstUnit2.Raw()))) return;
    const std::string name = Text_Clean(info.cstName.Raw());
    if (!name.empty()) Text("cstName", name);
}

void ReportFill::Report_Administrator() {
    const PrintInfoRecord& info = PRINTINFO;
    const std::array<std::pair<const char*, std::string_view>, 7> fields = {{
        {"Corporation", info.Corporation.Raw()},
        {"Unit1", info.Unit1.Raw()},
        {"Unit2", info.Unit2.Raw()},
        {"Name", info.Name.Raw()},
        {"TelNo", info.TelNo.Raw()},
        {"FaxNo", info.FaxNo.Raw()},
        {"Mail", info.Mail.Raw()},
    }};
    for (const auto& [object, field] : fields)
        if (!Text(object, Text_Clean(field))) return;
}

void ReportFill::Report_System() {
    if (!Text("System", Text_Clean(PRINTINFO.System.Raw()))) return;
    if (!MotorModelText.Str().empty() && !Text("MotorData", std::string(MotorModelText.Raw()))) return;
    if (!DriverModelText.Str().empty() && !Text("DriverData", std::string(DriverModelText.Raw()))) return;
    if (!DriverComment.Str().empty() && !Text("RegData", std::string(DriverComment.Raw()))) return;
    Text("ConData", Text_Clean(PRINTINFO.ConData.Raw()));
}

void ReportFill::Report_Result() {
    const auto rows = Result_Texts(MotorSelected);
    for (std::size_t r = 0; r < kResultObjects.size(); ++r)
        if (!Text(std::string(kResultObjects[r].name) + "Unit", rows[r].unit)) return;
    for (const ResultObjects& row : kResultObjects)
        if (!Text(std::string(row.name) + "Cul", ResultText(ResultValues[Cul][row.j], row))) return;
    for (const ResultObjects& row : kResultObjects) {
        const std::string rate = ResultText(ResultValues[Rate][row.j], row);
        if (rate != (row.j == Inertia ? "0.0E+0" : "0.000")) {
            if (!Text(std::string(row.name) + "Rate", rate)) return;
            if (!Text(std::string(row.name) + "Ratio", Format_Mask(ResultValues[Ratio][row.j], kMask2))) return;
        }
        const double code = Round_Even(ResultValues[Hantei][row.j]);
        if (code >= 0 && code < 4 && !Text(row.judgement, kJudgement[static_cast<int>(code)])) return;
    }
}

void ReportFill::Report_Elements(int last) {
    for (int e = 0; e <= last; ++e) {
        const ElementRecord& element = Element[e];
        const std::string block = "Element" + std::to_string(e), data = "EleData" + std::to_string(e);
        if (e != 0) {
            const std::string label(Type_Label(element.ElementType));
            if (!Text(block + ".Name", label)) return;
            if (!EleImg_Set(element.ElementType, block + ".Img")) {
                ReportFailed = 1;
                return;
            }
            if (!Text(data + ".DataName", label)) return;
        }
        for (int r = 1; r <= kItemRows; ++r) {
            const ElementItem& item = element.Item[r - 1];
            const std::string name = Text_Clean(item.ItemName.Raw());
            if (name.empty() || Text_HoldsLower(name, "regeneration")) continue;
            const std::string row = std::to_string(r);
            if (!Text(data + ".Item" + row, name)) return;
            const std::string unit = Unit_Name(item.UnitKind, item.UnitIndex);
            if (!unit.empty() && !Text(data + ".Unit" + row, unit)) return;
            if (!Text(data + ".Data" + row, Text_Clean(item.ItemText.Raw()))) return;
        }
    }
    for (int k = last + 1; k < kElementBlocks; ++k) SetNonVisible(k);
}

void ReportFill::SetNonVisible(int k) {
    const std::string block = "Element" + std::to_string(k), data = "EleData" + std::to_string(k);
    for (const char* part : {".No", ".Name", ".Img"})
        if (!Hide(block + part)) return;
    for (const char* part : {".DataNo", ".DataName", ".Box", ".TxtItem", ".TxtUnit", ".TxtData"})
        if (!Hide(data + part)) return;
    for (const char* list : {".Item", ".Unit", ".Data"})
        for (int r = 1; r <= kItemRows; ++r)
            if (!Hide(data + list + std::to_string(r))) return;
}

bool ReportFill::EleImg_Set(int16_t type, const std::string& object) {
    const std::string file = Report_PictureFile(type);
    return !file.empty() && wr.wrLoadDIB(ReportHandle, object, AppPath + "/BMP_data/" + file);
}

void ReportFill::Report_Graph() {
    if (!wr.wrLoadDIB(ReportHandle, "FigR", AppPath + "/" + kRotationBitmap)) wr.wrGetErrorCode(ReportHandle, -1);
    if (!wr.wrLoadDIB(ReportHandle, "FigT", AppPath + "/" + kTorqueBitmap)) wr.wrGetErrorCode(ReportHandle, -1);
}

void ReportFill::Report_Pattern() {
    static constexpr std::array<const char*, 7> kHeads = {"", "SigTime", "SigTrack", "SigR", "SigNega", "SigPosi", "SigT"};
    const auto heads = Patarn_HeaderTexts(LoadMotion);
    for (int col = 1; col <= 6; ++col)
        if (!Text(kHeads[col], heads[col])) return;
    const auto cells = Patarn_CellTexts(Patarn, LoadMotion);
    const int16_t n = Patarn_CountRows(Patarn);
    for (int k = 1; k <= n; ++k) {
        const std::string group = "Group" + std::to_string(k);
        const auto& row = cells[k];
        if (!Text(group + ".Time", Masked(row[1], kMask3))) return;
        if (!Text(group + ".Track", Masked(row[2], kMask3))) return;
        if (!Text(group + ".RS", Masked(row[3], kMask1))) return;
        if (!Text(group + ".NegaS", Masked(row[4], kMask2))) return;
        if (!Text(group + ".Pos", Masked(row[5], kMask2))) return;
        if (!Text(group + ".Trk", Num_Format(Val(row[6]), 1, 1))) return;
    }
}
