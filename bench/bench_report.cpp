// The printed report into a PDF file on the SVG engine: the whole report of
// cover, four pages of components (19 elements), patterns and precautions,
// and the series list of 100 motors on six pages.
#include <benchmark/benchmark.h>
#include <stdlib.h>

#include <filesystem>
#include <string>

#include "core/Catalogue.h"
#include "core/Startup.h"
#include "core/Tables.h"
#include "persist/mdlFile.h"
#include "reports/ListPrint.h"
#include "reports/PdfExport.h"
#include "reports/PrintRoutines.h"

namespace {

namespace fs = std::filesystem;

// The program's folder: the templates and the component pictures, and the
// example document with its chain grown to 19 elements and 12 pattern rows.
struct Setup {
    fs::path folder = fs::temp_directory_path() / "torvane-bench-report";
    std::string pdf = (folder / "out.pdf").string();

    Setup() {
        fs::remove_all(folder);
        fs::create_directories(folder);
        for (const char* name : {kTitleTemplate, kElementTemplate, kMoveTemplate, kNotesTemplate, kSelectTemplate})
            fs::copy_file(fs::path(TORVANE_SOURCE_DIR) / "data/app" / name, folder / name);
        fs::create_directory_symlink(fs::path(TORVANE_BINARY_DIR) / "BMP_data", folder / "BMP_data");
        setenv("TORVANE_APP_PATH", folder.c_str(), 1);
        Main_Prepare("");
        if (!File_Load(TORVANE_SOURCE_DIR "/tests/data/horizontal-ballscrew.AP2")) std::abort();
        static constexpr int16_t kTypes[] = {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16, 17, 21};
        for (int slot = 1; slot < 19; ++slot) {
            Element[slot].ElementType = kTypes[slot - 1];
            Item_Defaults(kTypes[slot - 1], Element[slot].Item);
        }
        ElementCount = 19;
        double time = 0;
        for (int r = 1; r <= 12; ++r) {
            PatarnRow& row = Patarn[r];
            row.DeltaTime = 0.1 * r;
            time += row.DeltaTime;
            row.Time = time;
            row.Speed = r % 4 == 0 ? 0 : 250.0 * r;
            row.Torque = (r % 2 ? 1 : -1) * 0.3 * r;
            row.RowState = 3;
        }
        PatternRowCount = 12;
    }
    ~Setup() {
        unsetenv("TORVANE_APP_PATH");
        fs::remove_all(folder);
    }
};

PrintRequest FourParts() {
    PrintRequest request;
    request.printer = "PDF";
    request.txtData = {"Head left", "Head centre", "Head right", "Foot left", "Foot centre", "Foot right"};
    request.comment = "A comment\r\nof two lines";
    request.PrintCheck = {1, 1, 1, 1, 0};
    request.date = Report_Date(2026, 11, 14);
    return request;
}

void BM_WholeReportToPdf(benchmark::State& state) {
    Setup setup;
    const PrintRequest request = FourParts();
    for (auto _ : state) {
        const bool written = Report_ExportPdf(setup.pdf, [&](ReportLibrary& wr) { Report_PrintParts(wr, request); });
        if (!written) state.SkipWithError("the PDF file was not written");
        benchmark::DoNotOptimize(written);
    }
    state.counters["pages"] = 1 + 4 + 1 + 1;
    state.counters["bytes"] = static_cast<double>(fs::file_size(setup.pdf));
}
BENCHMARK(BM_WholeReportToPdf)->Unit(benchmark::kMillisecond);

void BM_SeriesListOf100MotorsToPdf(benchmark::State& state) {
    Setup setup;
    ListSheet sheet;
    sheet.series = "TVM-A Compact";
    sheet.model = "Low inertia";
    sheet.units = {"", "", "W", "r/min", "kg\xB7m\xB2", "N\xB7m", "N\xB7m", "", "kg", "kg\xB7m\xB2"};
    for (int n = 0; n < 100; ++n)
        sheet.motors.push_back({n % 3 ? "OK" : "NG", "TVM-" + std::to_string(1000 + n), std::to_string(50 + 10 * n),
                                "3000", "0.000263", "1.27", "4.46", "30", "1.456", n % 2 ? "0.00002" : ""});
    for (auto _ : state) {
        ListPrinted result = ListPrinted::Failed;
        const bool written =
            Report_ExportPdf(setup.pdf, [&](ReportLibrary& wr) { result = List_Print(wr, sheet, "PDF", "Nov.14,2026"); });
        if (!written || result != ListPrinted::Done) state.SkipWithError("the list was not printed");
        benchmark::DoNotOptimize(written);
    }
    state.counters["pages"] = List_Pages(100);
}
BENCHMARK(BM_SeriesListOf100MotorsToPdf)->Unit(benchmark::kMillisecond);

}  // namespace
