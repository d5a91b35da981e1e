// The fixture of the printed report's tests: templates, pictures, the example
// document and readers of the recording engine's trace.
#include "tests/reports/PrintFixture.h"

#include <filesystem>

#include "core/Catalogue.h"
#include "core/Tables.h"
#include "persist/mdlFile.h"

namespace fs = std::filesystem;

std::string Build_Folder() { return fs::path(TORVANE_CLI).parent_path().string(); }

std::vector<std::string> Trace(const std::vector<ReportCall>& calls) {
    std::vector<std::string> lines;
    for (const ReportCall& c : calls) lines.push_back(c.op + " " + c.object + "=" + c.value);
    return lines;
}

std::vector<std::string> Ops(const std::vector<ReportCall>& calls) {
    std::vector<std::string> ops;
    for (const ReportCall& c : calls) ops.push_back(c.op);
    return ops;
}

std::vector<ReportCall> CallsOf(const std::vector<ReportCall>& calls, const std::string& op) {
    std::vector<ReportCall> of;
    for (const ReportCall& c : calls)
        if (c.op == op) of.push_back(c);
    return of;
}

std::vector<std::string> ObjectsOf(const std::vector<ReportCall>& calls, const std::string& op) {
    std::vector<std::string> objects;
    for (const ReportCall& c : calls)
        if (c.op == op) objects.push_back(c.object);
    return objects;
}

std::string ValueOf(const std::vector<ReportCall>& calls, const std::string& op, const std::string& object) {
    std::string value = "<none>";
    for (const ReportCall& c : calls)
        if (c.op == op && c.object == object) value = c.value;
    return value;
}

bool Names(const std::vector<ReportCall>& calls, const std::string& op, const std::string& object) {
    for (const ReportCall& c : calls)
        if (c.op == op && c.object == object) return true;
    return false;
}

void PrintTest::SetUp() {
    StateTest::SetUp();
    InstallTemplates();
}

void PrintTest::InstallTemplates() {
    for (const char* name : {"Title.svg", "Element.svg", "Move.svg", "Notes.svg", "Select.svg"})
        fs::copy_file(fs::path(TORVANE_SOURCE_DIR) / "data/app" / name, appDir.File(name),
                      fs::copy_options::overwrite_existing);
    std::error_code ec;
    fs::create_directory_symlink(fs::path(Build_Folder()) / "BMP_data", appDir.File("BMP_data"), ec);
}

bool PrintTest::LoadExample() { return File_Load(kExampleFile); }

PrintRequest PrintTest::Request(bool cover, bool components, bool patterns, bool notes) const {
    PrintRequest request;
    request.printer = "Office";
    request.txtData = {"Head left", "Head centre", "Head right", "Foot left", "Foot centre", "Foot right"};
    request.comment = "A comment";
    request.PrintCheck[kPrintCover] = cover;
    request.PrintCheck[kPrintElements] = components;
    request.PrintCheck[kPrintPattern] = patterns;
    request.PrintCheck[kPrintNotes] = notes;
    request.date = Report_Date(2026, 11, 14);
    return request;
}

void PrintTest::Chain(std::initializer_list<int16_t> types) { Chain_Set(types); }

void PrintTest::LongChain(int count) {
    static constexpr int16_t kPictured[] = {1,  2,  3,  4,  5,  6,  7,  8,  9,  10, 11, 12, 13,
                                            14, 15, 16, 17, 18, 21, 31, 32, 33, 34, 41, 42};
    Element[0].ElementType = kTypeMotor;
    Item_Defaults(kTypeMotor, Element[0].Item);
    for (int slot = 1; slot < kMaxElements; ++slot) {
        const int16_t type = slot < count ? kPictured[(slot - 1) % std::size(kPictured)] : kTypeEmpty;
        Element[slot].ElementType = type;
        Item_Defaults(type, Element[slot].Item);
    }
    ElementCount = static_cast<int16_t>(count);
}

void PrintTest::PatternRows(int count) {
    double time = 0, position = 0;
    for (int r = 1; r <= kPatarnRows; ++r) Patarn[r] = PatarnRow{};
    for (int r = 1; r <= count; ++r) {
        PatarnRow& row = Patarn[r];
        row.DeltaTime = 0.125 * r;
        time += row.DeltaTime;
        row.Time = time;
        row.Speed = r % 3 == 0 ? 0 : 100.0 * r;
        row.LoadSpeed = row.Speed / 60;
        position += row.LoadSpeed * row.DeltaTime;
        row.Position = position;
        row.Torque = (r % 2 ? 1 : -1) * 0.25 * r;
        row.RowState = 3;
    }
    PatternRowCount = static_cast<int16_t>(count);
}
