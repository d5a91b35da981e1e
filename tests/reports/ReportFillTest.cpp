// The filling of the report's objects against the recording engine: cover, page numbers, component blocks, results rows, pictures and the pattern page.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <string>
#include <utility>
#include <vector>

#include "base/NumberFormat.h"
#include "commands/PrintCommands.h"
#include "core/Catalogue.h"
#include "core/Tables.h"
#include "core/Text.h"
#include "reports/PrintRoutines.h"
#include "tests/reports/PrintFixture.h"
#include "units/UnitTable.h"

namespace {

using Texts = std::vector<std::pair<std::string, std::string>>;

Texts TextsOf(const std::vector<ReportCall>& calls) {
    Texts texts;
    for (const ReportCall& c : calls)
        if (c.op == "wrSetText") texts.emplace_back(c.object, c.value);
    return texts;
}

// A result row as the cover shows it: its stem, judgement object, index, unit kind and keep-scientific.
struct Row {
    const char* stem;
    const char* judgement;
    int j;
    int16_t kind;
    int16_t keep;
};
constexpr std::array<Row, 7> kRows = {{
    {"EffectiveTorque", "JTHantei", EffectiveTorque, UnitKind::Torque, 0},
    {"StoppingTorque", "STHantei", StoppingTorque, UnitKind::Torque, 0},
    {"MaxTorque", "MTHantei", MaxTorque, UnitKind::Torque, 0},
    {"Inertia", "IHantei", Inertia, UnitKind::Inertia, 1},
    {"MaxRotationalSpeed", "MRHantei", MaxRotationalSpeed, UnitKind::MotorSpeed, 0},
    {"Regeneration1", "R1Hantei", Regeneration1, -1, 0},
    {"Regeneration2", "R2Hantei", Regeneration2, -1, 0},
}};

std::string Shown(double value, const Row& row) {
    return Num_Format(row.kind < 0 ? value : FromS(row.kind, UnitTable[row.kind].Sel, value), row.keep, 1);
}

class ReportFillTest : public PrintTest {
protected:
    // A filling on a loaded template of the recording engine.
    ReportFill Fill(const PrintRequest& request) { return ReportFill{wr, 1, request}; }
};

}  // namespace

TEST_F(ReportFillTest, CoverOfTheExampleSetsEveryObjectInTheRoutinesOrder) {
    ASSERT_TRUE(LoadExample());
    ASSERT_EQ(MotorSelected, 1);
    const PrintRequest request = Print_Request(Print_Open(), "Office", Report_Date(2026, 11, 14));
    ASSERT_EQ(request.date, "Nov.14,2026");
    ASSERT_EQ(request.PrintCheck[kPrintCover], 1);
    ASSERT_EQ(request.PrintCheck[kPrintElements], 1);
    ASSERT_EQ(request.PrintCheck[kPrintPattern], 1);
    ASSERT_EQ(ElementCount, 4);  // one page of components: three pages in all
    ASSERT_TRUE(Print_Cover(wr, request));

    Texts expected = {
        {"PageNo", "(1/3)"},
        {"HeadL", "Line 1"},
        {"HeadM", "Line 2"},
        {"HeadR", "Line 3"},
        {"FootL", "Line 4"},
        {"FootM", "Line 5"},
        {"FootR", "Line 6"},
        {"Date", "Nov.14,2026"},
        {"cstCorporation", "Acme Works"},
        {"cstUnit1", "Assembly"},
        {"cstUnit2", "Line 3"},
        {"cstName", "R. Doe"},
        {"Corporation", "Torvane Drives"},
        {"Unit1", "Applications"},
        {"Unit2", "Sizing"},
        {"Name", "J. Lef\xE8vre"},
        {"TelNo", "+1 555 0100"},
        {"FaxNo", "+1 555 0101"},
        {"Mail", "sizing@example.com"},
        {"System", "Pick and place, axis X"},
        {"MotorData", std::string(MotorModelText.Raw())},
        {"DriverData", std::string(DriverModelText.Raw())},
        {"RegData", std::string(DriverComment.Raw())},
        {"ConData", "TV-C1"},
        {"EffectiveTorqueUnit", "N\xB7mm"},
        {"StoppingTorqueUnit", "N\xB7mm"},
        {"MaxTorqueUnit", "N\xB7mm"},
        {"InertiaUnit", "kg\xB7" "cm\xB2(GD2/4)"},
        {"MaxRotationalSpeedUnit", "rad/s"},
        {"Regeneration1Unit", "J(max.)"},
        {"Regeneration2Unit", "W"},
    };
    for (const Row& row : kRows) expected.emplace_back(std::string(row.stem) + "Cul", Shown(ResultValues[Cul][row.j], row));
    for (const Row& row : kRows) {
        ASSERT_EQ(ResultValues[Hantei][row.j], 1) << row.stem;
        expected.emplace_back(std::string(row.stem) + "Rate", Shown(ResultValues[Rate][row.j], row));
        expected.emplace_back(std::string(row.stem) + "Ratio", Format_Mask(ResultValues[Ratio][row.j], "0.00"));
        expected.emplace_back(row.judgement, "OK");
    }
    expected.emplace_back("Message", "Brake, straight shaft\r\nChecked at 20 degrees C.");
    EXPECT_EQ(TextsOf(wr.Calls()), expected);

    // The models are as stored, blank-padded to their width.
    EXPECT_EQ(ValueOf(wr.Calls(), "wrSetText", "MotorData"), "TV-M400A-B" + std::string(50, ' '));
    // A few values of the example, in the units its file picked.
    EXPECT_EQ(ValueOf(wr.Calls(), "wrSetText", "EffectiveTorqueCul"), "31.08");
    EXPECT_EQ(ValueOf(wr.Calls(), "wrSetText", "InertiaCul"), "1.351E+0");
    EXPECT_EQ(ValueOf(wr.Calls(), "wrSetText", "EffectiveTorqueRate"), "1270");
    EXPECT_EQ(ValueOf(wr.Calls(), "wrSetText", "InertiaRate"), "2.63E-1");
    EXPECT_EQ(ValueOf(wr.Calls(), "wrSetText", "MaxRotationalSpeedRate"), "314");
    EXPECT_EQ(ValueOf(wr.Calls(), "wrSetText", "Regeneration1Rate"), "18");
}

TEST_F(ReportFillTest, MessageWithoutAMotorCommentIsTheCommentAlone) {
    ASSERT_TRUE(LoadExample());
    MotorComment = "";
    PrintRequest request = Request(true, false, false);
    request.comment = "First line\r\nSecond line";
    ASSERT_TRUE(Print_Cover(wr, request));
    EXPECT_EQ(ValueOf(wr.Calls(), "wrSetText", "Message"), "First line\r\nSecond line");
    MotorComment = "Motor note";
    RecordingReportLibrary again;
    ASSERT_TRUE(Print_Cover(again, request));
    EXPECT_EQ(ValueOf(again.Calls(), "wrSetText", "Message"), "Motor note\r\nFirst line\r\nSecond line");
}

TEST_F(ReportFillTest, TodaysDateHasTheMonthWordDayAndYear) {
    EXPECT_EQ(Report_Date(2026, 11, 14), "Nov.14,2026");
    EXPECT_EQ(Report_Date(2025, 1, 5), "Jan.5,2025");
    EXPECT_EQ(Report_Date(1999, 12, 31), "Dec.31,1999");
    EXPECT_EQ(Report_Date(2024, 5, 1), "May.1,2024");
}

TEST_F(ReportFillTest, ComponentPagesByChainLength) {
    const std::vector<std::pair<int16_t, int>> cases = {{1, 1},  {4, 1},  {5, 2},  {10, 2}, {11, 3},
                                                        {16, 3}, {17, 4}, {19, 4}, {20, 4}};
    for (const auto& [count, pages] : cases) EXPECT_EQ(Report_ElementPages(count), pages) << count;
}

TEST_F(ReportFillTest, PageNumbersFollowTheCheckedParts) {
    for (const int16_t count : {4, 5, 11, 17}) {
        LongChain(count);
        const int componentPages = Report_ElementPages(count);
        for (int mask = 0; mask < 8; ++mask) {
            const bool cover = mask & 1, components = mask & 2, patterns = mask & 4;
            SCOPED_TRACE("elements " + std::to_string(count) + " cover " + std::to_string(cover) + " components " +
                         std::to_string(components) + " patterns " + std::to_string(patterns));
            const int total = (cover ? 1 : 0) + (components ? componentPages : 0) + (patterns ? 1 : 0);
            const std::string of = "/" + std::to_string(total) + ")";
            RecordingReportLibrary engine;
            const PrintRequest request = Request(cover, components, patterns);
            ReportFill f{engine, 1, request};
            f.Report_PageNo(0);
            f.Report_PageNo(1);
            f.Report_PageNo(2);
            const int first = cover ? 2 : 1;
            const Texts expected = {
                {"PageNo", "(1" + of},
                {"PageNo1", "(" + std::to_string(first) + of},
                {"PageNo2", "(" + std::to_string(first + 1) + of},
                {"PageNo3", "(" + std::to_string(first + 2) + of},
                {"PageNo4", "(" + std::to_string(first + 3) + of},
                {"PageNo", "(" + std::to_string(total) + of},
            };
            EXPECT_EQ(TextsOf(engine.Calls()), expected);
            EXPECT_EQ(f.ReportFailed, 0);
        }
    }
}

TEST_F(ReportFillTest, PrecautionsAndAttachmentAreNotCountedInThePages) {
    Chain({kTypeMotor, 1, 11, 31});
    PrintRequest request = Request(true, true, true, true);
    request.PrintCheck[kPrintAttachment] = 1;
    ReportFill f = Fill(request);
    f.Report_PageNo(0);
    f.Report_PageNo(1);
    f.Report_PageNo(2);
    EXPECT_EQ(ValueOf(wr.Calls(), "wrSetText", "PageNo1"), "(2/3)");
    EXPECT_EQ(ValueOf(wr.Calls(), "wrSetText", "PageNo4"), "(5/3)");  // set even beyond the pages printed
    EXPECT_EQ(ValueOf(wr.Calls(), "wrSetText", "PageNo"), "(3/3)");
}

TEST_F(ReportFillTest, ComponentPagesPrintedByChainLength) {
    const std::vector<std::pair<int, std::string>> cases = {
        {1, "1"}, {4, "1"}, {5, "1,2"}, {10, "1,2"}, {11, "1,2,3"}, {16, "1,2,3"}, {17, "1,2,3,4"}, {20, "1,2,3,4"}};
    for (const auto& [count, pages] : cases) {
        LongChain(count);
        RecordingReportLibrary engine;
        ASSERT_TRUE(Print_Elements(engine, Request(true, true, true)));
        const auto prints = CallsOf(engine.Calls(), "wrPrint");
        ASSERT_EQ(prints.size(), 1u) << count;
        EXPECT_EQ(prints[0].value, pages) << count;
    }
}

TEST_F(ReportFillTest, HeaderAndFooterOfTheComponentPagesGoToEachOfTheFourPages) {
    const PrintRequest request = Request(true, true, true);
    ReportFill f = Fill(request);
    f.Report_HeadFoot(1);
    const std::vector<std::string> objects = ObjectsOf(wr.Calls(), "wrSetText");
    ASSERT_EQ(objects.size(), 28u);
    for (int p = 1; p <= 4; ++p) {
        const std::string n = std::to_string(p);
        EXPECT_EQ(ValueOf(wr.Calls(), "wrSetText", "HeadL" + n), "Head left");
        EXPECT_EQ(ValueOf(wr.Calls(), "wrSetText", "HeadM" + n), "Head centre");
        EXPECT_EQ(ValueOf(wr.Calls(), "wrSetText", "HeadR" + n), "Head right");
        EXPECT_EQ(ValueOf(wr.Calls(), "wrSetText", "FootL" + n), "Foot left");
        EXPECT_EQ(ValueOf(wr.Calls(), "wrSetText", "FootM" + n), "Foot centre");
        EXPECT_EQ(ValueOf(wr.Calls(), "wrSetText", "FootR" + n), "Foot right");
        EXPECT_EQ(ValueOf(wr.Calls(), "wrSetText", "Date" + n), "Nov.14,2026");
    }
}

TEST_F(ReportFillTest, AnEmptyHeaderBoxSetsNothingAndAFilledOneSetsItsObject) {
    PrintRequest request = Request(true, false, false);
    request.txtData = {"", "Centre", "", "", "", "Right foot"};
    ReportFill f = Fill(request);
    f.Report_HeadFoot(0);
    EXPECT_EQ(TextsOf(wr.Calls()), (Texts{{"HeadM", "Centre"}, {"FootR", "Right foot"}, {"Date", "Nov.14,2026"}}));

    RecordingReportLibrary pages;
    ReportFill g{pages, 1, request};
    g.Report_HeadFoot(1);
    std::vector<std::string> objects = ObjectsOf(pages.Calls(), "wrSetText");
    std::sort(objects.begin(), objects.end());
    EXPECT_EQ(objects, (std::vector<std::string>{"Date1", "Date2", "Date3", "Date4", "FootR1", "FootR2", "FootR3",
                                                 "FootR4", "HeadM1", "HeadM2", "HeadM3", "HeadM4"}));
}

TEST_F(ReportFillTest, CustomerNameOnlyWhenStoredTheOtherFieldsAlways) {
    PRINTINFO.cstCorporation = "  Works  ";
    const PrintRequest request = Request(true, false, false);
    ReportFill f = Fill(request);
    f.Report_Customer();
    EXPECT_EQ(TextsOf(wr.Calls()), (Texts{{"cstCorporation", "Works"}, {"cstUnit1", ""}, {"cstUnit2", ""}}));
}

TEST_F(ReportFillTest, AdministratorFieldsAreCleanedAndAllSet) {
    PRINTINFO.Name = std::string("Ann\0tail", 8);
    PRINTINFO.Mail = " a@b.example ";
    const PrintRequest request = Request(true, false, false);
    ReportFill f = Fill(request);
    f.Report_Administrator();
    EXPECT_EQ(TextsOf(wr.Calls()), (Texts{{"Corporation", ""},
                                         {"Unit1", ""},
                                         {"Unit2", ""},
                                         {"Name", "Ann"},
                                         {"TelNo", ""},
                                         {"FaxNo", ""},
                                         {"Mail", "a@b.example"}}));
}

TEST_F(ReportFillTest, SystemSetsTheSelectionOnlyWhenItIsGiven) {
    PRINTINFO.System = "Axis Y";
    PRINTINFO.ConData = "PLC-9";
    const PrintRequest request = Request(true, false, false);
    {
        ReportFill f = Fill(request);
        f.Report_System();
        EXPECT_EQ(TextsOf(wr.Calls()), (Texts{{"System", "Axis Y"}, {"ConData", "PLC-9"}}));
    }
    MotorModelText = "M-1";
    DriverComment = "Resistor";
    RecordingReportLibrary engine;
    ReportFill g{engine, 1, request};
    g.Report_System();
    EXPECT_EQ(TextsOf(engine.Calls()), (Texts{{"System", "Axis Y"},
                                             {"MotorData", "M-1" + std::string(57, ' ')},
                                             {"RegData", "Resistor" + std::string(72, ' ')},
                                             {"ConData", "PLC-9"}}));
}

TEST_F(ReportFillTest, ARatedValueOfZeroPrintsZeroAndItsRatio) {
    ASSERT_TRUE(LoadExample());
    ResultValues[Rate][EffectiveTorque] = 0;
    ResultValues[Ratio][EffectiveTorque] = 0;
    ResultValues[Rate][Regeneration2] = 0;
    ResultValues[Ratio][Regeneration2] = 0;
    ResultValues[Rate][Inertia] = 0;
    ResultValues[Ratio][Inertia] = 0;
    const PrintRequest request = Request(true, false, false);
    ReportFill f = Fill(request);
    f.Report_Result();
    EXPECT_EQ(f.ReportFailed, 0);
    EXPECT_EQ(ValueOf(wr.Calls(), "wrSetText", "EffectiveTorqueRate"), "0");
    EXPECT_EQ(ValueOf(wr.Calls(), "wrSetText", "EffectiveTorqueRatio"), "0.00");
    EXPECT_EQ(ValueOf(wr.Calls(), "wrSetText", "Regeneration2Rate"), "0");
    EXPECT_EQ(ValueOf(wr.Calls(), "wrSetText", "Regeneration2Ratio"), "0.00");
    // The inertia keeps its exponent form, which is no "0.0E+0" either.
    EXPECT_EQ(ValueOf(wr.Calls(), "wrSetText", "InertiaRate"), ".0E+0");
    EXPECT_EQ(ValueOf(wr.Calls(), "wrSetText", "InertiaRatio"), "0.00");
}

TEST_F(ReportFillTest, JudgementOutsideTheFourCodesSetsNothing) {
    ASSERT_TRUE(LoadExample());
    ResultValues[Hantei][EffectiveTorque] = -9999;
    ResultValues[Hantei][StoppingTorque] = 4;
    ResultValues[Hantei][MaxTorque] = 3;
    ResultValues[Hantei][Inertia] = 2.5;  // rounds to the even 2
    ResultValues[Hantei][MaxRotationalSpeed] = 0.4;
    ResultValues[Hantei][Regeneration1] = -0.4;  // rounds to 0
    ResultValues[Hantei][Regeneration2] = 3.6;   // rounds to 4
    const PrintRequest request = Request(true, false, false);
    ReportFill f = Fill(request);
    f.Report_Result();
    EXPECT_FALSE(Names(wr.Calls(), "wrSetText", "JTHantei"));
    EXPECT_FALSE(Names(wr.Calls(), "wrSetText", "STHantei"));
    EXPECT_EQ(ValueOf(wr.Calls(), "wrSetText", "MTHantei"), "NG");
    EXPECT_EQ(ValueOf(wr.Calls(), "wrSetText", "IHantei"), "FAIR");
    EXPECT_EQ(ValueOf(wr.Calls(), "wrSetText", "MRHantei"), "NA");
    EXPECT_EQ(ValueOf(wr.Calls(), "wrSetText", "R1Hantei"), "NA");
    EXPECT_FALSE(Names(wr.Calls(), "wrSetText", "R2Hantei"));
    // The rated value and ratio of a row without judgement still print.
    EXPECT_TRUE(Names(wr.Calls(), "wrSetText", "EffectiveTorqueRatio"));
}

TEST_F(ReportFillTest, ResultRowsFollowTheUnitPicks) {
    ASSERT_TRUE(LoadExample());
    for (int16_t sel = 0; sel < Unit_Count(UnitKind::Torque); ++sel) {
        UnitTable[UnitKind::Torque].Sel = sel;
        RecordingReportLibrary engine;
        const PrintRequest request = Request(true, false, false);
        ReportFill f{engine, 1, request};
        f.Report_Result();
        EXPECT_EQ(ValueOf(engine.Calls(), "wrSetText", "MaxTorqueUnit"), Unit_Name(UnitKind::Torque, sel));
        EXPECT_EQ(ValueOf(engine.Calls(), "wrSetText", "MaxTorqueCul"),
                  Num_Format(FromS(UnitKind::Torque, sel, ResultValues[Cul][MaxTorque]), 0, 1));
        // The regeneration rows are never converted.
        EXPECT_EQ(ValueOf(engine.Calls(), "wrSetText", "Regeneration1Cul"), Num_Format(ResultValues[Cul][Regeneration1], 0, 1));
    }
}

TEST_F(ReportFillTest, BlocksBehindTheLastElementAreHiddenObjectByObject) {
    Chain({kTypeMotor, 1, 11, 31});
    const PrintRequest request = Request(true, true, false);
    ReportFill f = Fill(request);
    f.Report_Elements(ElementCount - 1);
    EXPECT_EQ(f.ReportFailed, 0);
    std::vector<std::string> expected;
    for (int k = 4; k <= 19; ++k) {
        const std::string e = "Element" + std::to_string(k), d = "EleData" + std::to_string(k);
        for (const char* part : {".No", ".Name", ".Img"}) expected.push_back(e + part);
        for (const char* part : {".DataNo", ".DataName", ".Box", ".TxtItem", ".TxtUnit", ".TxtData"})
            expected.push_back(d + part);
        for (const char* list : {".Item", ".Unit", ".Data"})
            for (int r = 1; r <= 14; ++r) expected.push_back(d + list + std::to_string(r));
    }
    EXPECT_EQ(ObjectsOf(wr.Calls(), "wrSetObjectProp"), expected);
    for (const ReportCall& c : CallsOf(wr.Calls(), "wrSetObjectProp")) EXPECT_EQ(c.value, "VISIBLE") << c.object;
    // The hiding comes after the last block's filling.
    EXPECT_EQ(wr.Calls().back().object, "EleData19.Data14");
    for (const ReportCall& c : CallsOf(wr.Calls(), "wrSetText")) EXPECT_EQ(c.object.find("EleData4"), std::string::npos);
}

TEST_F(ReportFillTest, MotorAloneHidesBlocksOneToNineteenAndShowsItsOwnRows) {
    Chain({kTypeMotor});
    ASSERT_EQ(ElementCount, 1);
    const PrintRequest request = Request(true, true, false);
    ReportFill f = Fill(request);
    f.Report_Elements(0);
    EXPECT_EQ(f.ReportFailed, 0);
    const auto hidden = ObjectsOf(wr.Calls(), "wrSetObjectProp");
    ASSERT_EQ(hidden.size(), 19u * 51u);
    EXPECT_EQ(hidden.front(), "Element1.No");
    EXPECT_EQ(hidden.back(), "EleData19.Data14");
    for (const std::string& object : hidden) EXPECT_NE(object.rfind("EleData0.", 0), 0u) << object;
    // The motor's block: its rows, without a name, picture or data name of its own.
    EXPECT_FALSE(Names(wr.Calls(), "wrSetText", "Element0.Name"));
    EXPECT_FALSE(Names(wr.Calls(), "wrSetText", "EleData0.DataName"));
    EXPECT_TRUE(CallsOf(wr.Calls(), "wrLoadDIB").empty());
    EXPECT_EQ(ValueOf(wr.Calls(), "wrSetText", "EleData0.Item1"), Text_Clean(Element[0].Item[0].ItemName.Raw()));
    EXPECT_EQ(ValueOf(wr.Calls(), "wrSetText", "EleData0.Data1"), Text_Clean(Element[0].Item[0].ItemText.Raw()));
    EXPECT_EQ(ValueOf(wr.Calls(), "wrSetText", "EleData0.Unit1"),
              Unit_Name(Element[0].Item[0].UnitKind, Element[0].Item[0].UnitIndex));
}

TEST_F(ReportFillTest, ComponentBlockHasLabelPictureDataNameAndRows) {
    Chain({kTypeMotor, 11});
    const PrintRequest request = Request(true, true, false);
    ReportFill f = Fill(request);
    f.Report_Elements(1);
    const auto& calls = wr.Calls();
    const std::string label(Type_Label(11));
    ASSERT_FALSE(label.empty());
    // The head of block 1 follows the motor's rows: name, picture, data name.
    std::size_t at = 0;
    while (at < calls.size() && calls[at].object.rfind("EleData0.", 0) == 0) ++at;
    ASSERT_LE(at + 3, calls.size());
    EXPECT_EQ(calls[at].op + " " + calls[at].object + "=" + calls[at].value, "wrSetText Element1.Name=" + label);
    EXPECT_EQ(calls[at + 1].op + " " + calls[at + 1].object + "=" + calls[at + 1].value,
              "wrLoadDIB Element1.Img=" + AppPath + "/BMP_data/rotost1.bmp");
    EXPECT_EQ(calls[at + 2].op + " " + calls[at + 2].object + "=" + calls[at + 2].value,
              "wrSetText EleData1.DataName=" + label);
    // Every row in use: item, unit, data, in this order.
    std::vector<std::string> rows;
    for (std::size_t i = at + 3; i < calls.size() && calls[i].op == "wrSetText"; ++i) rows.push_back(calls[i].object);
    std::vector<std::string> expected;
    for (int r = 1; r <= 14; ++r) {
        const ElementItem& item = Element[1].Item[r - 1];
        if (Text_Clean(item.ItemName.Raw()).empty()) continue;
        expected.push_back("EleData1.Item" + std::to_string(r));
        if (!Unit_Name(item.UnitKind, item.UnitIndex).empty()) expected.push_back("EleData1.Unit" + std::to_string(r));
        expected.push_back("EleData1.Data" + std::to_string(r));
    }
    ASSERT_FALSE(expected.empty());
    EXPECT_EQ(rows, expected);
}

TEST_F(ReportFillTest, RowsNamingRegenerationInAnyCaseAndUnnamedRowsAreSkipped) {
    Chain({kTypeMotor, 1});
    ElementItem* rows = Element[1].Item.data();
    rows[0].ItemName = "Regeneration energy";
    rows[1].ItemName = "Peak REGENERATION";
    rows[2].ItemName = "regeneRation";
    rows[3].ItemName = "";
    rows[4].ItemName = "Kept row";
    rows[4].UnitKind = UnitKind::Mass;
    rows[4].UnitIndex = 0;
    rows[4].ItemText = " 12.5 ";
    rows[5].ItemName = "No unit";
    rows[5].UnitKind = kUnitNotUsed;
    rows[5].ItemText = "7";
    for (int r = 6; r < 14; ++r) rows[r].ItemName = "";
    const PrintRequest request = Request(true, true, false);
    ReportFill f = Fill(request);
    f.Report_Elements(1);
    std::vector<std::string> block;
    for (const ReportCall& c : CallsOf(wr.Calls(), "wrSetText"))
        if (c.object.rfind("EleData1.", 0) == 0 && c.object != "EleData1.DataName") block.push_back(c.object + "=" + c.value);
    EXPECT_EQ(block, (std::vector<std::string>{"EleData1.Item5=Kept row", "EleData1.Unit5=" + Unit_Name(UnitKind::Mass, 0),
                                               "EleData1.Data5=12.5", "EleData1.Item6=No unit", "EleData1.Data6=7"}));
}

TEST_F(ReportFillTest, EveryPicturedTypeLoadsItsOwnFile) {
    const std::vector<std::pair<int16_t, std::string>> files = {
        {1, "rotoro1.bmp"},   {2, "rotoro2.bmp"},   {9, "rotoro9.bmp"},   {10, "rotoro10.bmp"}, {11, "rotost1.bmp"},
        {12, "rotost2.bmp"},  {18, "rotost8.bmp"},  {21, "sttoro1.bmp"},  {31, "sttost1.bmp"},  {32, "sttost2.bmp"},
        {34, "sttost4.bmp"},  {41, "sp_ex1.bmp"},   {42, "sp_ex2.bmp"}};
    for (const auto& [type, file] : files) EXPECT_EQ(Report_PictureFile(type), file) << type;
    for (int16_t type = 1; type <= 10; ++type) EXPECT_EQ(Report_PictureFile(type), "rotoro" + std::to_string(type) + ".bmp");
    for (int16_t type = 11; type <= 18; ++type)
        EXPECT_EQ(Report_PictureFile(type), "rotost" + std::to_string(type - 10) + ".bmp");
    for (int16_t type = 31; type <= 34; ++type)
        EXPECT_EQ(Report_PictureFile(type), "sttost" + std::to_string(type - 30) + ".bmp");

    const PrintRequest request = Request(true, true, false);
    ReportFill f = Fill(request);
    for (const auto& [type, file] : files) {
        EXPECT_TRUE(f.EleImg_Set(type, "Element1.Img")) << type;
        EXPECT_EQ(wr.Calls().back().op, "wrLoadDIB");
        EXPECT_EQ(wr.Calls().back().value, AppPath + "/BMP_data/" + file);
    }
}

TEST_F(ReportFillTest, ATypeWithoutPictureFailsWithoutACall) {
    const PrintRequest request = Request(true, true, false);
    ReportFill f = Fill(request);
    for (const int16_t type : std::initializer_list<int16_t>{0, 19, 20, 22, 30, 35, 40, 43, kTypeEmpty, kTypeMotor, -1}) {
        EXPECT_EQ(Report_PictureFile(type), "") << type;
        EXPECT_FALSE(f.EleImg_Set(type, "Element1.Img")) << type;
    }
    EXPECT_TRUE(wr.Calls().empty());
}

TEST_F(ReportFillTest, AnUnknownTypeStopsTheComponentsWithReportFailed) {
    Chain({kTypeMotor, 1, 11, 31});
    Element[2].ElementType = 22;
    const PrintRequest request = Request(true, true, false);
    ReportFill f = Fill(request);
    f.Report_Elements(3);
    EXPECT_EQ(f.ReportFailed, 1);
    const ReportCall& last = wr.Calls().back();
    EXPECT_EQ(last.op + " " + last.object, "wrSetText Element2.Name");
    EXPECT_FALSE(Names(wr.Calls(), "wrSetText", "EleData2.DataName"));
    EXPECT_FALSE(Names(wr.Calls(), "wrSetText", "Element3.Name"));
    EXPECT_TRUE(CallsOf(wr.Calls(), "wrSetObjectProp").empty());
}

TEST_F(ReportFillTest, AFailedPictureLoadStopsTheComponents) {
    Chain({kTypeMotor, 1, 11, 31});
    wr.FailOn("wrLoadDIB", "Element2.Img");
    const PrintRequest request = Request(true, true, false);
    ReportFill f = Fill(request);
    f.Report_Elements(3);
    EXPECT_EQ(f.ReportFailed, 1);
    EXPECT_EQ(wr.Calls().back().op + " " + wr.Calls().back().object, "wrLoadDIB Element2.Img");
    EXPECT_TRUE(CallsOf(wr.Calls(), "wrSetObjectProp").empty());
}

TEST_F(ReportFillTest, AFailedTextStopsItsRoutineAndSetsReportFailed) {
    Chain({kTypeMotor, 1, 11, 31});
    wr.FailOn("wrSetText", "EleData1.Item2");
    const PrintRequest request = Request(true, true, false);
    ReportFill f = Fill(request);
    f.Report_Elements(3);
    EXPECT_EQ(f.ReportFailed, 1);
    EXPECT_EQ(wr.Calls().back().object, "EleData1.Item2");
    EXPECT_FALSE(Names(wr.Calls(), "wrSetText", "Element2.Name"));
}

TEST_F(ReportFillTest, AHidingThatFailsStopsTheBlocksOwnList) {
    Chain({kTypeMotor, 1, 11, 31});
    wr.FailOn("wrSetObjectProp", "EleData18.Box");
    const PrintRequest request = Request(true, true, false);
    ReportFill f = Fill(request);
    f.SetNonVisible(18);
    EXPECT_EQ(f.ReportFailed, 1);
    EXPECT_EQ(ObjectsOf(wr.Calls(), "wrSetObjectProp"),
              (std::vector<std::string>{"Element18.No", "Element18.Name", "Element18.Img", "EleData18.DataNo",
                                        "EleData18.DataName", "EleData18.Box"}));
}

TEST_F(ReportFillTest, AFailedGraphLoadAsksTheErrorCodeAndGoesOn) {
    wr.FailOn("wrLoadDIB", "FigR");
    const PrintRequest request = Request(false, false, true);
    ReportFill f = Fill(request);
    f.Report_Graph();
    EXPECT_EQ(Trace(wr.Calls()),
              (std::vector<std::string>{"wrLoadDIB FigR=" + AppPath + "/Rotation.bmp", "wrGetErrorCode =",
                                        "wrLoadDIB FigT=" + AppPath + "/Torque.bmp"}));
    EXPECT_EQ(f.ReportFailed, 0);

    RecordingReportLibrary both;
    both.FailOn("wrLoadDIB", "FigR");
    both.FailOn("wrLoadDIB", "FigT");
    ReportFill g{both, 1, request};
    g.Report_Graph();
    EXPECT_EQ(Ops(both.Calls()), (std::vector<std::string>{"wrLoadDIB", "wrGetErrorCode", "wrLoadDIB", "wrGetErrorCode"}));
}

TEST_F(ReportFillTest, PatternPageHasTheHeadsAndOneGroupPerRow) {
    ASSERT_TRUE(LoadExample());
    ASSERT_EQ(PatternRowCount, 3);
    const PrintRequest request = Request(false, false, true);
    ReportFill f = Fill(request);
    f.Report_Pattern();
    EXPECT_EQ(f.ReportFailed, 0);
    const Texts texts = TextsOf(wr.Calls());
    ASSERT_EQ(texts.size(), 6u + 3u * 6u);
    const std::vector<std::string> heads = {"SigTime", "SigTrack", "SigR", "SigNega", "SigPosi", "SigT"};
    for (int i = 0; i < 6; ++i) EXPECT_EQ(texts[i].first, heads[i]);
    EXPECT_EQ(texts[5].second, "N\xB7mm");
    const Texts group1 = {texts.begin() + 6, texts.begin() + 12};
    EXPECT_EQ(group1, (Texts{{"Group1.Time", "0.100"},
                             {"Group1.Track", "0.100"},
                             {"Group1.RS", "32.9"},
                             {"Group1.NegaS", "52.33"},
                             {"Group1.Pos", "2.62"},
                             {"Group1.Trk", "6.125E+1"}}));
    EXPECT_EQ(ValueOf(wr.Calls(), "wrSetText", "Group3.RS"), "0.0");
    EXPECT_EQ(ValueOf(wr.Calls(), "wrSetText", "Group3.Pos"), "31.40");
    EXPECT_FALSE(Names(wr.Calls(), "wrSetText", "Group4.Time"));
}

TEST_F(ReportFillTest, TwentyPatternRowsFillTwentyGroups) {
    Chain({kTypeMotor, 1, 11, 31});
    PatternRows(20);
    const PrintRequest request = Request(false, false, true);
    ReportFill f = Fill(request);
    f.Report_Pattern();
    EXPECT_EQ(ObjectsOf(wr.Calls(), "wrSetText").size(), 6u + 20u * 6u);
    EXPECT_EQ(ValueOf(wr.Calls(), "wrSetText", "Group20.Track"), "2.500");
    EXPECT_EQ(ValueOf(wr.Calls(), "wrSetText", "Group20.Trk"), Num_Format(FromS(UnitKind::Torque, UnitTable[UnitKind::Torque].Sel, -5.0), 1, 1));
}
