// The printed list of a series' motors against the recording engine: pages of twenty row groups, the hidden groups, the head row, the cell texts and the failures.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "core/Tables.h"
#include "reports/ListPrint.h"
#include "reports/PrintRoutines.h"
#include "tests/reports/PrintFixture.h"

namespace {

using Strings = std::vector<std::string>;

const std::string kDate = "Nov.14,2026";

class ListPrintTest : public PrintTest {
protected:
    // A sheet of count motors "TV-<n>", each row's numbers told apart by n.
    static ListSheet Sheet(int count) {
        ListSheet sheet;
        sheet.series = "TVM-A Compact";
        sheet.model = "Low inertia";
        sheet.units = {"", "", "W", "r/min", "kg\xB7m\xB2", "N\xB7m", "N\xB7m", "times", "kg", "kg\xB7m\xB2"};
        for (int n = 0; n < count; ++n)
            sheet.motors.push_back({n % 3 == 0 ? "NG" : "OK", "TV-" + std::to_string(n), std::to_string(100 + n), "3000",
                                    "0.000263", "1.27", "4.46", "30", "1.456", "0.00002"});
        return sheet;
    }

    // The row groups' prefixes of the calls, in order, with what each call did.
    static Strings RowCalls(const std::vector<ReportCall>& calls) {
        Strings rows;
        for (const ReportCall& c : calls)
            if (c.object.rfind("SelectMtr", 0) == 0) rows.push_back((c.op == "wrSetObjectProp" ? "hide " : "") + c.object);
        return rows;
    }
};

}  // namespace

TEST_F(ListPrintTest, NineteenMotorsGiveOnePageAndHideTheTwentiethGroup) {
    EXPECT_EQ(List_Print(wr, Sheet(19), "Office", kDate), ListPrinted::Done);
    EXPECT_EQ(CallsOf(wr.Calls(), "wrPrint").size(), 1u);
    EXPECT_EQ(ValueOf(wr.Calls(), "wrSetText", "PageNo"), "(1/1)");
    const auto hidden = CallsOf(wr.Calls(), "wrSetObjectProp");
    ASSERT_EQ(hidden.size(), 1u);
    EXPECT_EQ(hidden[0].object, "SelectMtr19.");
    EXPECT_EQ(hidden[0].value, "VISIBLE");
    EXPECT_EQ(ValueOf(wr.Calls(), "wrSetText", "SelectMtr18.Type"), "TV-18");
    EXPECT_FALSE(Names(wr.Calls(), "wrSetText", "SelectMtr19.Type"));
}

TEST_F(ListPrintTest, TwentyMotorsGiveTwoPagesTheSecondWithEveryGroupHidden) {
    EXPECT_EQ(List_Print(wr, Sheet(20), "Office", kDate), ListPrinted::Done);
    const auto& calls = wr.Calls();
    const auto prints = CallsOf(calls, "wrPrint");
    ASSERT_EQ(prints.size(), 2u);
    EXPECT_EQ(prints[0].value, "1");
    EXPECT_EQ(prints[1].value, "1");
    Strings pageNumbers;
    for (const ReportCall& c : CallsOf(calls, "wrSetText"))
        if (c.object == "PageNo") pageNumbers.push_back(c.value);
    EXPECT_EQ(pageNumbers, (Strings{"(1/2)", "(2/2)"}));
    // Between the two prints: the second page number and twenty hidden groups.
    std::size_t first = 0;
    while (calls[first].op != "wrPrint") ++first;
    Strings second;
    for (std::size_t i = first + 1; calls[i].op != "wrPrint"; ++i) second.push_back(calls[i].op + " " + calls[i].object);
    Strings expected = {"wrSetText PageNo"};
    for (int n = 0; n < 20; ++n) expected.push_back("wrSetObjectProp SelectMtr" + std::to_string(n) + ".");
    EXPECT_EQ(second, expected);
    EXPECT_EQ(ValueOf(calls, "wrSetText", "SelectMtr19.Type"), "TV-19");
}

TEST_F(ListPrintTest, NoMotorsGiveOnePageWithEveryGroupHidden) {
    EXPECT_EQ(List_Print(wr, Sheet(0), "Office", kDate), ListPrinted::Done);
    EXPECT_EQ(CallsOf(wr.Calls(), "wrPrint").size(), 1u);
    EXPECT_EQ(ValueOf(wr.Calls(), "wrSetText", "PageNo"), "(1/1)");
    Strings expected;
    for (int n = 0; n < 20; ++n) expected.push_back("hide SelectMtr" + std::to_string(n) + ".");
    EXPECT_EQ(RowCalls(wr.Calls()), expected);
}

TEST_F(ListPrintTest, PagesAreTheCountDividedByTwentyPlusOne) {
    EXPECT_EQ(List_Pages(0), 1);
    EXPECT_EQ(List_Pages(1), 1);
    EXPECT_EQ(List_Pages(19), 1);
    EXPECT_EQ(List_Pages(20), 2);
    EXPECT_EQ(List_Pages(39), 2);
    EXPECT_EQ(List_Pages(40), 3);
    EXPECT_EQ(List_Pages(100), 6);
}

TEST_F(ListPrintTest, FortyFiveMotorsFillThreePages) {
    EXPECT_EQ(List_Print(wr, Sheet(45), "Office", kDate), ListPrinted::Done);
    EXPECT_EQ(CallsOf(wr.Calls(), "wrPrint").size(), 3u);
    Strings rows = RowCalls(wr.Calls());
    Strings hidden;
    for (const std::string& r : rows)
        if (r.rfind("hide ", 0) == 0) hidden.push_back(r);
    ASSERT_EQ(hidden.size(), 15u);
    EXPECT_EQ(hidden.front(), "hide SelectMtr5.");
    EXPECT_EQ(hidden.back(), "hide SelectMtr19.");
    // The third page's first group holds motor 40.
    std::string typeOfGroup0;
    for (const ReportCall& c : CallsOf(wr.Calls(), "wrSetText"))
        if (c.object == "SelectMtr0.Type") typeOfGroup0 = c.value;
    EXPECT_EQ(typeOfGroup0, "TV-40");
}

TEST_F(ListPrintTest, TheListOpensWithItsHeadAndEndsTheJob) {
    EXPECT_EQ(List_Print(wr, Sheet(1), "Office", kDate), ListPrinted::Done);
    const Strings trace = Trace(wr.Calls());
    const Strings head = {"wrInit =",
                          "wrSetErrorDispMode =0",
                          "wrLoadReport =" + AppPath + "/Select.svg",
                          "wrSetPrintMode =0",
                          "wrSetPrinterDevice =Office",
                          "wrSetText Series=TVM-A Compact",
                          "wrSetText Model=Low inertia",
                          "wrSetText Date=Nov.14,2026",
                          "wrSetText Unit.Type=",
                          "wrSetText Unit.Capa=W",
                          "wrSetText Unit.Round=r/min",
                          "wrSetText Unit.Inert=kg\xB7m\xB2",
                          "wrSetText Unit.Reg_Trq=N\xB7m",
                          "wrSetText Unit.Max_Trq=N\xB7m",
                          "wrSetText Unit.Permit=times",
                          "wrSetText Unit.Weight=kg",
                          "wrSetText Unit.Brk_Inert=kg\xB7m\xB2",
                          "wrOpenPrinter =",
                          "wrSetText PageNo=(1/1)"};
    ASSERT_GT(trace.size(), head.size());
    EXPECT_EQ(Strings(trace.begin(), trace.begin() + head.size()), head);
    EXPECT_EQ(Strings(trace.end() - 4, trace.end()),
              (Strings{"wrPrint =1", "wrClosePrinter =", "wrUnloadReport =", "wrExit ="}));
    EXPECT_FALSE(Names(wr.Calls(), "wrSetText", "Unit.Judge"));
}

TEST_F(ListPrintTest, CellTextsOfAMotorRow) {
    ListSheet sheet = Sheet(2);
    sheet.motors[1] = {"FAIR", "TV-X", "750", "3000.0", "0.0001234567", "2.38765", "7.16", "15", "2", "0"};
    ASSERT_TRUE(List_Row(wr, 1, sheet, 0, "SelectMtr0."));
    ASSERT_TRUE(List_Row(wr, 1, sheet, 1, "SelectMtr1."));
    const auto& c = wr.Calls();
    EXPECT_EQ(Trace(c), (Strings{"wrSetText SelectMtr0.Judge=NG",
                                 "wrSetText SelectMtr0.Type=TV-0",
                                 "wrSetText SelectMtr0.Capa=100",
                                 "wrSetText SelectMtr0.Round=3000",
                                 "wrSetText SelectMtr0.Inert=2.63E-4",
                                 "wrSetText SelectMtr0.Reg_Trq=1.27",
                                 "wrSetText SelectMtr0.Max_Trq=4.46",
                                 "wrSetText SelectMtr0.Permit=30",
                                 "wrSetText SelectMtr0.Weight=1.46",
                                 "wrSetText SelectMtr0.Brk_Inert=2.0E-5",
                                 "wrSetText SelectMtr1.Judge=FAIR",
                                 "wrSetText SelectMtr1.Type=TV-X",
                                 "wrSetText SelectMtr1.Capa=750",
                                 "wrSetText SelectMtr1.Round=3000",
                                 "wrSetText SelectMtr1.Inert=1.235E-4",
                                 "wrSetText SelectMtr1.Reg_Trq=2.388",
                                 "wrSetText SelectMtr1.Max_Trq=7.16",
                                 "wrSetText SelectMtr1.Permit=15",
                                 "wrSetText SelectMtr1.Weight=2",
                                 "wrSetText SelectMtr1.Brk_Inert=.0E+0"}));
}

TEST_F(ListPrintTest, TheHeadRowHasNoJudgeAndTakesTheUnitsAsTheyStand) {
    ListSheet sheet = Sheet(0);
    sheet.units[0] = "ignored";
    sheet.units[4] = "0.5";  // a unit text is never formatted
    ASSERT_TRUE(List_Row(wr, 1, sheet, -1, "Unit."));
    EXPECT_EQ(ObjectsOf(wr.Calls(), "wrSetText"),
              (Strings{"Unit.Type", "Unit.Capa", "Unit.Round", "Unit.Inert", "Unit.Reg_Trq", "Unit.Max_Trq",
                       "Unit.Permit", "Unit.Weight", "Unit.Brk_Inert"}));
    EXPECT_EQ(ValueOf(wr.Calls(), "wrSetText", "Unit.Inert"), "0.5");
}

TEST_F(ListPrintTest, WithoutAPrinterItSaysSoAndPrintsNothing) {
    EXPECT_EQ(List_Print(wr, Sheet(5), "", kDate), ListPrinted::NoPrinter);
    EXPECT_EQ(Ops(wr.Calls()), (Strings{"wrInit", "wrSetErrorDispMode", "wrLoadReport", "wrUnloadReport", "wrExit"}));
    ASSERT_EQ(msg.Seen().size(), 1u);
    EXPECT_EQ(msg.Seen()[0].text, "Printer is not set.");
    EXPECT_EQ(msg.Seen()[0].title, "Print Motor Series");
    EXPECT_EQ(msg.Seen()[0].icon, MsgIcon::Exclamation);
}

TEST_F(ListPrintTest, AFailedCallUnwindsAndTellsFailed) {
    struct Case {
        const char* op;
        const char* object;
        Strings tail;  // the last calls
    };
    const std::vector<Case> cases = {
        {"wrInit", "", {"wrInit"}},
        {"wrSetErrorDispMode", "", {"wrSetErrorDispMode", "wrExit"}},
        {"wrLoadReport", "", {"wrLoadReport", "wrExit"}},
        {"wrSetPrinterDevice", "", {"wrSetPrinterDevice", "wrUnloadReport", "wrExit"}},
        {"wrSetText", "Model", {"wrSetText", "wrUnloadReport", "wrExit"}},
        {"wrSetText", "Unit.Weight", {"wrSetText", "wrUnloadReport", "wrExit"}},
        {"wrOpenPrinter", "", {"wrOpenPrinter", "wrUnloadReport", "wrExit"}},
        {"wrSetText", "SelectMtr3.Inert", {"wrSetText", "wrClosePrinter", "wrUnloadReport", "wrExit"}},
        {"wrSetObjectProp", "SelectMtr7.", {"wrSetObjectProp", "wrClosePrinter", "wrUnloadReport", "wrExit"}},
        {"wrPrint", "", {"wrPrint", "wrClosePrinter", "wrUnloadReport", "wrExit"}},
        {"wrClosePrinter", "", {"wrClosePrinter", "wrUnloadReport", "wrExit"}},
    };
    for (const Case& c : cases) {
        RecordingReportLibrary engine;
        engine.FailOn(c.op, c.object);
        EXPECT_EQ(List_Print(engine, Sheet(5), "Office", kDate), ListPrinted::Failed) << c.op << " " << c.object;
        const Strings ops = Ops(engine.Calls());
        ASSERT_GE(ops.size(), c.tail.size());
        EXPECT_EQ(Strings(ops.end() - static_cast<long>(c.tail.size()), ops.end()), c.tail) << c.op << " " << c.object;
        // The job is ended whenever it was begun.
        const bool opened = !CallsOf(engine.Calls(), "wrOpenPrinter").empty() && std::string(c.op) != "wrOpenPrinter";
        EXPECT_EQ(CallsOf(engine.Calls(), "wrClosePrinter").size(), opened ? 1u : 0u) << c.op << " " << c.object;
        EXPECT_TRUE(msg.Seen().empty());
    }
}
