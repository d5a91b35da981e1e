// The report engine on the SVG templates: every template filled and rendered to PDF and read back as text and pictures, the engine's failures, and the object names of the filling checked against the templates.
#include <gtest/gtest.h>

#include <pugixml.hpp>
#include <sys/wait.h>

#include <cstdio>
#include <filesystem>
#include <map>
#include <regex>
#include <set>
#include <string>
#include <vector>

#include "core/Catalogue.h"
#include "core/Tables.h"
#include "core/Text.h"
#include "reports/GraphImage.h"
#include "reports/ListPrint.h"
#include "reports/PageSink.h"
#include "reports/PdfExport.h"
#include "reports/PrintRoutines.h"
#include "reports/SvgReport.h"
#include "tests/reports/PrintFixture.h"
#include "units/UnitTable.h"

namespace fs = std::filesystem;

namespace {

using Strings = std::vector<std::string>;

// Runs a shell command; its standard output, and its exit code in code.
std::string Shell(const std::string& command, int& code) {
    std::string out;
    FILE* pipe = popen(command.c_str(), "r");
    if (!pipe) {
        code = -1;
        return out;
    }
    char buffer[4096];
    for (std::size_t n; (n = fread(buffer, 1, sizeof buffer, pipe)) > 0;) out.append(buffer, n);
    const int status = pclose(pipe);
    code = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    return out;
}

std::string Quote(const std::string& s) { return "'" + s + "'"; }

// The text of the PDF's pages first to last (all when 0), laid out as on the page.
std::string PdfText(const std::string& pdf, int first = 0, int last = 0) {
    std::string range;
    if (first) range = " -f " + std::to_string(first) + " -l " + std::to_string(last);
    int code = 0;
    const std::string text = Shell("pdftotext -layout" + range + " " + Quote(pdf) + " - 2>/dev/null", code);
    EXPECT_EQ(code, 0) << pdf;
    return text;
}

int PdfPages(const std::string& pdf) {
    int code = 0;
    const std::string info = Shell("pdfinfo " + Quote(pdf) + " 2>/dev/null", code);
    std::smatch m;
    if (code != 0 || !std::regex_search(info, m, std::regex(R"(Pages:\s+(\d+))"))) return -1;
    return std::stoi(m[1]);
}

// The number of pictures pdfimages lists on the pages.
int PdfImages(const std::string& pdf) {
    int code = 0;
    const std::string list = Shell("pdfimages -list " + Quote(pdf) + " 2>/dev/null", code);
    int lines = 0;
    for (char c : list) lines += c == '\n';
    return code == 0 ? lines - 2 : -1;  // less the two head lines
}

bool Holds(const std::string& text, const std::string& part) { return text.find(part) != std::string::npos; }

// The line of the text that holds part; "" when none does.
std::string LineWith(const std::string& text, const std::string& part) {
    std::size_t at = text.find(part);
    if (at == std::string::npos) return "";
    const std::size_t begin = text.rfind('\n', at), end = text.find('\n', at);
    return text.substr(begin == std::string::npos ? 0 : begin + 1, end - (begin == std::string::npos ? 0 : begin + 1));
}

// The numbers n of the "Data n" heads of the component blocks in the text.
std::set<int> DataHeads(const std::string& text) {
    std::set<int> heads;
    const std::regex head(R"(Data (\d+)\b)");
    for (std::sregex_iterator it(text.begin(), text.end(), head), end; it != end; ++it) heads.insert(std::stoi((*it)[1]));
    return heads;
}

std::set<int> Range(int from, int to) {
    std::set<int> r;
    for (int n = from; n <= to; ++n) r.insert(n);
    return r;
}

// The real engine, counting the filling calls and those that failed.
struct CountingLibrary : SvgReportLibrary {
    using SvgReportLibrary::SvgReportLibrary;
    int calls = 0, failed = 0;
    int32_t Count(int32_t result) {
        ++calls;
        failed += result == 0;
        return result;
    }
    int32_t wrSetText(int32_t h, const std::string& object, const std::string& text) override {
        return Count(SvgReportLibrary::wrSetText(h, object, text));
    }
    int32_t wrSetObjectProp(int32_t h, const std::string& object, const std::string& property,
                            const ReportProperty& record) override {
        return Count(SvgReportLibrary::wrSetObjectProp(h, object, property, record));
    }
    int32_t wrLoadDIB(int32_t h, const std::string& object, const std::string& path) override {
        return Count(SvgReportLibrary::wrLoadDIB(h, object, path));
    }
};

class SvgReportTest : public PrintTest {
protected:
    std::string Pdf(const std::string& name = "out.pdf") const { return appDir.File(name); }

    // The flow through the real engine into the PDF file; false when no page was written.
    bool Export(const std::function<void(ReportLibrary&)>& flow, const std::string& name = "out.pdf") {
        return Report_ExportPdf(Pdf(name), flow);
    }

    // A template loaded on an engine whose pages go nowhere in particular.
    int32_t Load(SvgReportLibrary& engine, const std::string& name) { return engine.wrLoadReport(appDir.File(name)); }

    // Prints page 1 of a loaded template into the sink's file.
    static bool PrintPage(SvgReportLibrary& engine, int32_t h, int page = 1) {
        const int32_t pages[] = {page, 0};
        const bool ok = engine.wrOpenPrinter(h, 0, 0) && engine.wrPrint(h, pages, "");
        engine.wrClosePrinter(h, 1, 0);
        return ok;
    }

    // The ids of a template's elements with the element names.
    std::map<std::string, std::string> Ids(const std::string& name) const {
        pugi::xml_document doc;
        EXPECT_TRUE(doc.load_file(appDir.File(name).c_str())) << name;
        std::map<std::string, std::string> ids;
        for (const pugi::xpath_node& n : doc.select_nodes("//*[@id]")) {
            const bool fresh = ids.emplace(n.node().attribute("id").value(), n.node().name()).second;
            EXPECT_TRUE(fresh) << name << ": the id " << n.node().attribute("id").value() << " is given twice";
        }
        return ids;
    }

    // Every item row of every element in use named, with a unit and a value.
    static void NameEveryRow() {
        for (int e = 0; e < ElementCount; ++e)
            for (int r = 0; r < kItemRows; ++r) {
                ElementItem& item = Element[e].Item[r];
                item.ItemName = "Row " + std::to_string(r + 1);
                item.UnitKind = UnitKind::Mass;
                item.UnitIndex = 0;
                item.ItemText = std::to_string(e * 100 + r);
            }
    }
};

}  // namespace

TEST_F(SvgReportTest, EveryTemplateLoads) {
    PdfFileSink sink(Pdf());
    SvgReportLibrary engine(sink);
    for (const char* name : {kTitleTemplate, kElementTemplate, kMoveTemplate, kNotesTemplate, kSelectTemplate}) {
        const int32_t h = Load(engine, name);
        EXPECT_NE(h, -1) << name;
        EXPECT_EQ(engine.wrUnloadReport(h), 1) << name;
    }
}

TEST_F(SvgReportTest, CoverShowsItsFilledTexts) {
    ASSERT_TRUE(LoadExample());
    PrintRequest request = Request(true, true, true);
    request.comment = "Checked at 20 degrees C.";
    ASSERT_TRUE(Export([&](ReportLibrary& wr) { EXPECT_TRUE(Print_Cover(wr, request)); }));
    EXPECT_EQ(PdfPages(Pdf()), 1);
    const std::string text = PdfText(Pdf());
    for (const char* part : {"(1/3)", "Head left", "Foot right", "Nov.14,2026", "Acme Works", "R. Doe",
                             "Torvane Drives", "J. Lef\xC3\xA8vre", "sizing@example.com", "Pick and place, axis X",
                             "TV-M400A-B", "TV-D04", "TV-C1", "31.08", "1.351E+0", "1270", "2.63E-1", "5.14",
                             "N\xC2\xB7mm", "J(max.)", "OK", "Brake, straight shaft", "Checked at 20 degrees C."})
        EXPECT_TRUE(Holds(text, part)) << part;
    // The motor's comment and the box's comment stand on lines of their own.
    EXPECT_FALSE(Holds(LineWith(text, "Brake, straight shaft"), "Checked"));
}

TEST_F(SvgReportTest, ComponentPagesShowTheBlocksInUseAndHideTheRest) {
    LongChain(6);
    ASSERT_TRUE(Export([&](ReportLibrary& wr) { EXPECT_TRUE(Print_Elements(wr, Request(true, true, true))); }));
    EXPECT_EQ(PdfPages(Pdf()), 2);
    const std::string text = PdfText(Pdf());
    EXPECT_EQ(DataHeads(text), Range(1, 6));
    for (int16_t type = 1; type <= 5; ++type) EXPECT_TRUE(Holds(text, std::string(Type_Label(type)))) << type;
    EXPECT_TRUE(Holds(text, "(2/4)"));
    EXPECT_TRUE(Holds(text, "(3/4)"));
    EXPECT_EQ(PdfImages(Pdf()), 5);  // the pictures of the five components
}

TEST_F(SvgReportTest, TwentyElementsFillFourPages) {
    LongChain(20);
    ASSERT_TRUE(Export([&](ReportLibrary& wr) { EXPECT_TRUE(Print_Elements(wr, Request(false, true, false))); }));
    EXPECT_EQ(PdfPages(Pdf()), 4);
    EXPECT_EQ(DataHeads(PdfText(Pdf())), Range(1, 20));
    EXPECT_EQ(DataHeads(PdfText(Pdf(), 1, 1)), Range(1, 4));
    EXPECT_EQ(DataHeads(PdfText(Pdf(), 4, 4)), Range(17, 20));
    EXPECT_EQ(PdfImages(Pdf()), 19);
}

TEST_F(SvgReportTest, MotorAloneShowsOnlyItsOwnBlock) {
    Chain_Set({kTypeMotor});
    ASSERT_TRUE(Export([&](ReportLibrary& wr) { EXPECT_TRUE(Print_Elements(wr, Request(false, true, false))); }));
    EXPECT_EQ(PdfPages(Pdf()), 1);
    const std::string text = PdfText(Pdf());
    EXPECT_EQ(DataHeads(text), Range(1, 1));
    EXPECT_TRUE(Holds(text, Text_Clean(Element[0].Item[0].ItemName.Raw())));
    EXPECT_EQ(PdfImages(Pdf()), 0);
}

TEST_F(SvgReportTest, PatternPageShowsTheRowsAndBothGraphs) {
    ASSERT_TRUE(LoadExample());
    ASSERT_TRUE(Export([&](ReportLibrary& wr) { EXPECT_TRUE(Print_Pattern(wr, Request(true, true, true))); }));
    EXPECT_EQ(PdfPages(Pdf()), 1);
    const std::string text = PdfText(Pdf());
    for (const char* part : {"(3/3)", "Pick and place, axis X", "0.100", "0.600", "0.700", "32.9", "52.33", "28.78",
                             "31.40", "6.125E+1", "-5.432E+1", "rad/s", "mm/s"})
        EXPECT_TRUE(Holds(text, part)) << part;
    EXPECT_EQ(PdfImages(Pdf()), 2);
}

TEST_F(SvgReportTest, PrecautionsPrintAsTheyStand) {
    ASSERT_TRUE(Export([&](ReportLibrary& wr) { EXPECT_TRUE(Print_Notes(wr, Request(false, false, false, true))); }));
    EXPECT_EQ(PdfPages(Pdf()), 1);
    EXPECT_TRUE(Holds(PdfText(Pdf()), "User Precautions"));
}

TEST_F(SvgReportTest, TheWholeReportHasItsPagesAndRendersToPictures) {
    ASSERT_TRUE(LoadExample());
    LongChain(11);
    ASSERT_TRUE(Export([&](ReportLibrary& wr) { Report_PrintParts(wr, Request(true, true, true, true)); }));
    EXPECT_EQ(PdfPages(Pdf()), 1 + 3 + 1 + 1);
    const std::string text = PdfText(Pdf());
    for (const char* part : {"(1/5)", "(2/5)", "(4/5)", "(5/5)", "User Precautions"}) EXPECT_TRUE(Holds(text, part)) << part;
    int code = 0;
    Shell("pdftoppm -r 20 -png " + Quote(Pdf()) + " " + Quote(appDir.File("page")) + " 2>&1", code);
    EXPECT_EQ(code, 0);
    int pngs = 0;
    for (const auto& entry : fs::directory_iterator(appDir.Path()))
        if (entry.path().extension() == ".png" && entry.path().filename().string().rfind("page", 0) == 0) {
            EXPECT_GT(fs::file_size(entry.path()), 100u) << entry.path();
            ++pngs;
        }
    EXPECT_EQ(pngs, 6);
}

TEST_F(SvgReportTest, SeriesListPagesShowTheirMotorsOnly) {
    ListSheet sheet;
    sheet.series = "TVM-A Compact";
    sheet.model = "Low inertia";
    sheet.units = {"", "", "W", "r/min", "kg\xB7m\xB2", "N\xB7m", "N\xB7m", "", "kg", "kg\xB7m\xB2"};
    for (int n = 0; n < 25; ++n)
        sheet.motors.push_back({"OK", "TVX-" + std::to_string(100 + n), "400", "3000", "0.000263", "1.27", "4.46", "30",
                                "1.456", "0.00002"});
    ASSERT_TRUE(Export([&](ReportLibrary& wr) { EXPECT_EQ(List_Print(wr, sheet, "PDF", "Nov.14,2026"), ListPrinted::Done); }));
    EXPECT_EQ(PdfPages(Pdf()), 2);
    const std::string first = PdfText(Pdf(), 1, 1), second = PdfText(Pdf(), 2, 2);
    for (const char* part : {"TVM-A Compact", "Low inertia", "Nov.14,2026", "(1/2)", "kg\xC2\xB7m\xC2\xB2", "2.63E-4",
                             "2.0E-5", "1.46"})
        EXPECT_TRUE(Holds(first, part)) << part;
    for (int n = 0; n < 25; ++n) {
        const std::string model = "TVX-" + std::to_string(100 + n);
        EXPECT_EQ(Holds(first, model), n < 20) << model;
        EXPECT_EQ(Holds(second, model), n >= 20) << model;
    }
    EXPECT_TRUE(Holds(second, "(2/2)"));
}

TEST_F(SvgReportTest, TextOnAMissingOrNonTextObjectFails) {
    PdfFileSink sink(Pdf());
    SvgReportLibrary engine(sink);
    const int32_t h = Load(engine, kMoveTemplate);
    ASSERT_NE(h, -1);
    EXPECT_EQ(engine.wrGetErrorCode(h, -1), 0);
    EXPECT_EQ(engine.wrSetText(h, "NoSuchObject", "x"), 0);
    EXPECT_NE(engine.wrGetErrorCode(h, -1), 0);
    const int32_t e = Load(engine, kElementTemplate);
    EXPECT_EQ(engine.wrSetText(e, "EleData1.Box", "x"), 0);  // a group
    EXPECT_NE(engine.wrGetErrorCode(e, -1), 0);
    EXPECT_EQ(engine.wrSetText(e, "Element1.Img", "x"), 0);  // a picture's box
    EXPECT_EQ(engine.wrSetText(e, "Page1", "x"), 0);
    EXPECT_EQ(engine.wrSetObjectProp(e, "NoSuchObject", "VISIBLE", ReportProperty{}), 0);
    EXPECT_EQ(engine.wrLoadDIB(e, "Element1.Name", Build_Folder() + "/BMP_data/rotoro1.bmp"), 0);  // a text
    EXPECT_EQ(engine.wrSetText(h + 100, "SigT", "x"), 0);  // no such handle
    EXPECT_EQ(engine.wrSetText(h, "SigT", "x"), 1);
}

TEST_F(SvgReportTest, LoadingAMissingForeignOrBrokenTemplateGivesMinusOne) {
    WriteFile(appDir.File("text.svg"), "Just some text, no XML.\n");
    WriteFile(appDir.File("html.svg"), "<?xml version=\"1.0\"?><html><body id=\"x\"/></html>");
    WriteFile(appDir.File("broken.svg"), "<svg xmlns=\"http://www.w3.org/2000/svg\"><g id=\"Page1\"><text id=\"a\">");
    WriteFile(appDir.File("empty.svg"), "");
    fs::create_directory(appDir.File("folder.svg"));
    PdfFileSink sink(Pdf());
    SvgReportLibrary engine(sink);
    for (const char* name : {"missing.svg", "text.svg", "html.svg", "broken.svg", "empty.svg", "folder.svg"})
        EXPECT_EQ(Load(engine, name), -1) << name;
}

TEST_F(SvgReportTest, MultiLineTextStandsOnSeparateLines) {
    PdfFileSink sink(Pdf());
    SvgReportLibrary engine(sink);
    const int32_t h = Load(engine, kTitleTemplate);
    ASSERT_EQ(engine.wrSetText(h, "Message", "Alpha first line\r\nBravo second line\r\n\r\nDelta fourth line"), 1);
    ASSERT_TRUE(PrintPage(engine, h));
    engine.wrUnloadReport(h);
    ASSERT_TRUE(sink.Finish());
    const std::string text = PdfText(Pdf());
    const std::string alpha = LineWith(text, "Alpha first line"), bravo = LineWith(text, "Bravo second line"),
                      delta = LineWith(text, "Delta fourth line");
    ASSERT_FALSE(alpha.empty());
    ASSERT_FALSE(bravo.empty());
    ASSERT_FALSE(delta.empty());
    EXPECT_FALSE(Holds(alpha, "Bravo"));
    EXPECT_FALSE(Holds(bravo, "Delta"));
    EXPECT_LT(text.find("Alpha"), text.find("Bravo"));
    EXPECT_LT(text.find("Bravo"), text.find("Delta"));
}

TEST_F(SvgReportTest, AHiddenObjectIsGoneFromThePage) {
    PdfFileSink sink(Pdf());
    SvgReportLibrary engine(sink);
    const int32_t h = Load(engine, kTitleTemplate);
    ASSERT_EQ(engine.wrSetText(h, "cstCorporation", "Zanzibar Shown"), 1);
    ASSERT_EQ(engine.wrSetText(h, "cstUnit1", "Quixote Hidden"), 1);
    ASSERT_EQ(engine.wrSetObjectProp(h, "cstUnit1", "VISIBLE", ReportProperty{}), 1);
    ASSERT_TRUE(PrintPage(engine, h));
    engine.wrUnloadReport(h);
    ASSERT_TRUE(sink.Finish());
    const std::string text = PdfText(Pdf());
    EXPECT_TRUE(Holds(text, "Zanzibar Shown"));
    EXPECT_FALSE(Holds(text, "Quixote Hidden"));
}

TEST_F(SvgReportTest, AHiddenGroupTakesItsTextsAlong) {
    PdfFileSink sink(Pdf());
    SvgReportLibrary engine(sink);
    const int32_t h = Load(engine, kSelectTemplate);
    ASSERT_EQ(engine.wrSetText(h, "SelectMtr0.Type", "Visible-Model"), 1);
    ASSERT_EQ(engine.wrSetText(h, "SelectMtr1.Type", "Hidden-Model"), 1);
    ASSERT_EQ(engine.wrSetObjectProp(h, "SelectMtr1.", "VISIBLE", ReportProperty{}), 1);
    ASSERT_TRUE(PrintPage(engine, h));
    engine.wrUnloadReport(h);
    ASSERT_TRUE(sink.Finish());
    const std::string text = PdfText(Pdf());
    EXPECT_TRUE(Holds(text, "Visible-Model"));
    EXPECT_FALSE(Holds(text, "Hidden-Model"));
}

TEST_F(SvgReportTest, ABitmapFillsAPictureBoxAndABrokenOneFails) {
    WriteFile(appDir.File("broken.bmp"), "BM not really a bitmap");
    PdfFileSink sink(Pdf());
    SvgReportLibrary engine(sink);
    const int32_t h = Load(engine, kMoveTemplate);
    EXPECT_EQ(engine.wrLoadDIB(h, "FigR", appDir.File("broken.bmp")), 0);
    EXPECT_NE(engine.wrGetErrorCode(h, -1), 0);
    EXPECT_EQ(engine.wrLoadDIB(h, "FigR", appDir.File("missing.bmp")), 0);
    EXPECT_EQ(engine.wrLoadDIB(h, "FigR", Build_Folder() + "/BMP_data/rotoro1.bmp"), 1);
    EXPECT_EQ(engine.wrLoadDIB(h, "FigR", Build_Folder() + "/BMP_data/rotost2.bmp"), 1);  // a second load replaces the first
    ASSERT_TRUE(PrintPage(engine, h));
    engine.wrUnloadReport(h);
    ASSERT_TRUE(sink.Finish());
    EXPECT_EQ(PdfImages(Pdf()), 1);
}

TEST_F(SvgReportTest, PrintingNeedsAnOpenJobAndAPageOfTheTemplate) {
    PdfFileSink sink(Pdf());
    SvgReportLibrary engine(sink);
    const int32_t h = Load(engine, kNotesTemplate);
    const int32_t one[] = {1, 0}, two[] = {2, 0};
    EXPECT_EQ(engine.wrPrint(h, one, ""), 0);  // no job yet
    EXPECT_NE(engine.wrGetErrorCode(h, -1), 0);
    ASSERT_EQ(engine.wrOpenPrinter(h, 0, 0), 1);
    EXPECT_EQ(engine.wrPrint(h, two, ""), 0);  // the precautions have one page
    EXPECT_EQ(engine.wrPrint(h, one, ""), 1);
    EXPECT_EQ(engine.wrClosePrinter(h, 1, 0), 1);
    EXPECT_EQ(engine.wrClosePrinter(h, 1, 0), 0);  // the job has ended
    engine.wrUnloadReport(h);
    EXPECT_EQ(engine.wrUnloadReport(h), 0);
    ASSERT_TRUE(sink.Finish());
    EXPECT_EQ(PdfPages(Pdf()), 1);
}

TEST_F(SvgReportTest, AFileSinkWithoutPagesReportsFailure) {
    PdfFileSink sink(Pdf());
    EXPECT_FALSE(sink.Finish());
    EXPECT_FALSE(Report_ExportPdf(Pdf("none.pdf"), [](ReportLibrary&) {}));
    EXPECT_FALSE(Report_ExportPdf(appDir.File("no-such-folder/out.pdf"), [&](ReportLibrary& wr) { Print_Notes(wr, Request(false, false, false, true)); }));
}

TEST_F(SvgReportTest, EveryObjectTheFillingNamesIsInItsTemplate) {
    // Everything filled: a chosen motor with its texts, twenty elements with
    // every row in use, twenty pattern rows, and twenty motors in the list.
    ASSERT_TRUE(LoadExample());
    LongChain(20);
    NameEveryRow();
    PatternRows(20);
    RecordingReportLibrary full;
    Report_PrintParts(full, Request(true, true, true, true));
    // The motor alone, so that every block behind it is hidden.
    Chain_Set({kTypeMotor});
    RecordingReportLibrary alone;
    Print_Elements(alone, Request(true, true, true));
    ListSheet sheet;
    for (int n = 0; n < 20; ++n) sheet.motors.push_back({"OK", "M", "1", "1", "1", "1", "1", "1", "1", "1"});
    RecordingReportLibrary list;
    List_Print(list, sheet, "PDF", "Nov.14,2026");
    sheet.motors.clear();
    RecordingReportLibrary emptyList;
    List_Print(emptyList, sheet, "PDF", "Nov.14,2026");

    std::map<std::string, std::map<std::string, std::string>> ids;
    std::map<std::string, std::set<std::string>> used;
    int checked = 0;
    for (const RecordingReportLibrary* engine : {&full, &alone, &list, &emptyList})
        for (const ReportCall& c : engine->Calls()) {
            if (c.op != "wrSetText" && c.op != "wrLoadDIB" && c.op != "wrSetObjectProp") continue;
            if (!ids.count(c.report)) ids[c.report] = Ids(c.report);
            const auto& in = ids[c.report];
            const auto it = in.find(c.object);
            used[c.report].insert(c.object);
            ++checked;
            if (it == in.end()) {
                ADD_FAILURE() << c.report << " has no object " << c.object;
                continue;
            }
            if (c.op == "wrSetText") {
                EXPECT_EQ(it->second, "text") << c.report << " " << c.object;
            } else if (c.op == "wrLoadDIB") {
                EXPECT_EQ(it->second, "rect") << c.report << " " << c.object;
            }
        }
    EXPECT_EQ(ids.size(), 4u);  // the precautions fill nothing
    // The objects of every block, item row, pattern group and list group were asked for.
    EXPECT_EQ(used["Element.svg"].count("EleData19.Data14"), 1u);
    EXPECT_EQ(used["Element.svg"].count("Element19.Img"), 1u);
    EXPECT_EQ(used["Move.svg"].count("Group20.Trk"), 1u);
    EXPECT_EQ(used["Select.svg"].count("SelectMtr19.Brk_Inert"), 1u);
    EXPECT_EQ(used["Select.svg"].count("SelectMtr19."), 1u);
    EXPECT_EQ(used["Title.svg"].count("R2Hantei"), 1u);
    EXPECT_GT(checked, 2000);
    // All of them print: the full report through the engine has no failed call.
    ASSERT_TRUE(LoadExample());
    LongChain(20);
    NameEveryRow();
    PatternRows(20);
    PdfFileSink sink(Pdf());
    CountingLibrary engine(sink);
    Report_PrintParts(engine, Request(true, true, true, true));
    EXPECT_EQ(engine.failed, 0);
    EXPECT_GT(engine.calls, 1000);
    ASSERT_TRUE(sink.Finish());
    EXPECT_EQ(PdfPages(Pdf()), 7);
}

TEST_F(SvgReportTest, ObjectsInsideAReplacedTextAreGoneWithIt) {
    WriteFile(appDir.File("nested.svg"),
              "<svg xmlns=\"http://www.w3.org/2000/svg\" viewBox=\"0 0 210 297\"><g id=\"Page1\">"
              "<text id=\"Outer\" x=\"10\" y=\"10\" font-size=\"4\">head <tspan id=\"Inner\">inner</tspan>"
              "<text id=\"Deep\" x=\"10\" y=\"20\">deep</text></text><text id=\"Other\" x=\"10\" y=\"40\"/></g></svg>");
    PdfFileSink sink(Pdf());
    SvgReportLibrary engine(sink);
    const int32_t h = Load(engine, "nested.svg");
    ASSERT_NE(h, -1);
    ASSERT_EQ(engine.wrSetObjectProp(h, "Inner", "VISIBLE", ReportProperty{}), 1);
    ASSERT_EQ(engine.wrSetText(h, "Outer", "Replaced\r\ntwice"), 1);
    // The old content went, and its objects with it.
    EXPECT_EQ(engine.wrSetObjectProp(h, "Inner", "VISIBLE", ReportProperty{}), 0);
    EXPECT_EQ(engine.wrSetText(h, "Deep", "x"), 0);
    EXPECT_EQ(engine.wrSetObjectProp(h, "Deep", "VISIBLE", ReportProperty{}), 0);
    EXPECT_EQ(engine.wrSetText(h, "Other", "Kept object"), 1);
    EXPECT_EQ(engine.wrSetText(h, "Outer", "Again"), 1);
    ASSERT_TRUE(PrintPage(engine, h));
    engine.wrUnloadReport(h);
    ASSERT_TRUE(sink.Finish());
    const std::string text = PdfText(Pdf());
    EXPECT_TRUE(Holds(text, "Again"));
    EXPECT_TRUE(Holds(text, "Kept object"));
    EXPECT_FALSE(Holds(text, "deep"));
    EXPECT_FALSE(Holds(text, "Replaced"));
}
