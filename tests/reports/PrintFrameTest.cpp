// The frame of the four print routines against the recording engine: the order of the engine's calls, the unwinding when a step fails, and the order of the parts.
#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

#include "core/Catalogue.h"
#include "core/Tables.h"
#include "reports/PrintRoutines.h"
#include "tests/reports/PrintFixture.h"

namespace {

using Strings = std::vector<std::string>;

class PrintFrameTest : public PrintTest {
protected:
    void SetUp() override {
        PrintTest::SetUp();
        ASSERT_TRUE(LoadExample());
    }
};

}  // namespace

TEST_F(PrintFrameTest, APartStartsLoadsPicksThePrinterFillsPrintsAndUnwinds) {
    ASSERT_TRUE(Print_Notes(wr, Request(false, false, false, true)));
    EXPECT_EQ(Trace(wr.Calls()), (Strings{"wrInit =", "wrSetErrorDispMode =0", "wrLoadReport =" + AppPath + "/Notes.svg",
                                          "wrSetPrintMode =0", "wrSetPrinterDevice =Office", "wrOpenPrinter =",
                                          "wrPrint =1", "wrClosePrinter =", "wrUnloadReport =", "wrExit ="}));
}

TEST_F(PrintFrameTest, TheFillingComesBetweenThePrinterAndTheJob) {
    ASSERT_TRUE(Print_Cover(wr, Request(true, true, true)));
    const Strings ops = Ops(wr.Calls());
    ASSERT_GT(ops.size(), 10u);
    EXPECT_EQ(Strings(ops.begin(), ops.begin() + 5),
              (Strings{"wrInit", "wrSetErrorDispMode", "wrLoadReport", "wrSetPrintMode", "wrSetPrinterDevice"}));
    EXPECT_EQ(Strings(ops.end() - 5, ops.end()),
              (Strings{"wrOpenPrinter", "wrPrint", "wrClosePrinter", "wrUnloadReport", "wrExit"}));
    for (std::size_t i = 5; i < ops.size() - 5; ++i) EXPECT_EQ(ops[i], "wrSetText") << i;
    EXPECT_EQ(wr.Calls()[2].value, AppPath + "/Title.svg");
    EXPECT_EQ(wr.Calls()[wr.Calls().size() - 4].value, "1");
}

TEST_F(PrintFrameTest, EachFailingStepUnwindsWhatWasDone) {
    struct Case {
        const char* op;
        Strings ops;
    };
    const std::vector<Case> cases = {
        {"wrInit", {"wrInit"}},
        {"wrSetErrorDispMode", {"wrInit", "wrSetErrorDispMode", "wrExit"}},
        {"wrLoadReport", {"wrInit", "wrSetErrorDispMode", "wrLoadReport", "wrExit"}},
        {"wrSetPrintMode", {"wrInit", "wrSetErrorDispMode", "wrLoadReport", "wrSetPrintMode", "wrUnloadReport", "wrExit"}},
        {"wrSetPrinterDevice",
         {"wrInit", "wrSetErrorDispMode", "wrLoadReport", "wrSetPrintMode", "wrSetPrinterDevice", "wrUnloadReport",
          "wrExit"}},
        {"wrOpenPrinter",
         {"wrInit", "wrSetErrorDispMode", "wrLoadReport", "wrSetPrintMode", "wrSetPrinterDevice", "wrOpenPrinter",
          "wrUnloadReport", "wrExit"}},
        {"wrPrint",
         {"wrInit", "wrSetErrorDispMode", "wrLoadReport", "wrSetPrintMode", "wrSetPrinterDevice", "wrOpenPrinter",
          "wrPrint", "wrClosePrinter", "wrUnloadReport", "wrExit"}},
        {"wrClosePrinter",
         {"wrInit", "wrSetErrorDispMode", "wrLoadReport", "wrSetPrintMode", "wrSetPrinterDevice", "wrOpenPrinter",
          "wrPrint", "wrClosePrinter", "wrUnloadReport", "wrExit"}},
    };
    for (const Case& c : cases) {
        RecordingReportLibrary engine;
        engine.FailOn(c.op);
        EXPECT_FALSE(Print_Notes(engine, Request(false, false, false, true))) << c.op;
        EXPECT_EQ(Ops(engine.Calls()), c.ops) << c.op;
    }
}

TEST_F(PrintFrameTest, ALoadThatFailsEndsTheLibraryOnly) {
    wr.FailOn("wrLoadReport");
    EXPECT_FALSE(Print_Cover(wr, Request(true, true, true)));
    EXPECT_EQ(Ops(wr.Calls()), (Strings{"wrInit", "wrSetErrorDispMode", "wrLoadReport", "wrExit"}));
    EXPECT_TRUE(ObjectsOf(wr.Calls(), "wrSetText").empty());
}

TEST_F(PrintFrameTest, AFailedMessageOfTheCoverLeavesThroughExitAndPrintsNothing) {
    wr.FailOn("wrSetText", "Message");
    EXPECT_FALSE(Print_Cover(wr, Request(true, true, true)));
    const Strings ops = Ops(wr.Calls());
    EXPECT_EQ(Strings(ops.end() - 2, ops.end()), (Strings{"wrSetText", "wrExit"}));
    EXPECT_EQ(wr.Calls()[wr.Calls().size() - 2].object, "Message");
    EXPECT_TRUE(CallsOf(wr.Calls(), "wrUnloadReport").empty());
    EXPECT_TRUE(CallsOf(wr.Calls(), "wrOpenPrinter").empty());
    EXPECT_TRUE(CallsOf(wr.Calls(), "wrPrint").empty());
}

TEST_F(PrintFrameTest, AFailedSystemOfTheComponentsLeavesBeforeThePageNumbers) {
    wr.FailOn("wrSetText", "System");
    EXPECT_FALSE(Print_Elements(wr, Request(true, true, true)));
    const auto& calls = wr.Calls();
    ASSERT_GE(calls.size(), 2u);
    EXPECT_EQ(calls[calls.size() - 2].object, "System");
    EXPECT_EQ(calls.back().op, "wrExit");
    EXPECT_FALSE(Names(calls, "wrSetText", "PageNo1"));
    EXPECT_TRUE(CallsOf(calls, "wrUnloadReport").empty());
    EXPECT_TRUE(CallsOf(calls, "wrPrint").empty());
    // The header and footer of the four pages came first.
    EXPECT_EQ(ObjectsOf(calls, "wrSetText").size(), 28u + 1u);
}

TEST_F(PrintFrameTest, AFailedSystemOfThePatternPageLeavesBeforeTheGraphs) {
    std::filesystem::remove(appDir.File("Rotation.bmp"));
    wr.FailOn("wrSetText", "System");
    EXPECT_FALSE(Print_Pattern(wr, Request(true, true, true)));
    EXPECT_EQ(wr.Calls().back().op, "wrExit");
    EXPECT_TRUE(CallsOf(wr.Calls(), "wrLoadDIB").empty());
    EXPECT_TRUE(CallsOf(wr.Calls(), "wrUnloadReport").empty());
    EXPECT_FALSE(std::filesystem::exists(appDir.File("Rotation.bmp")));
    EXPECT_EQ(ObjectsOf(wr.Calls(), "wrSetText"),
              (Strings{"PageNo", "HeadL", "HeadM", "HeadR", "FootL", "FootM", "FootR", "Date", "System"}));
}

TEST_F(PrintFrameTest, TheSystemOfTheCoverIsFillingAndTheCoverStillPrints) {
    wr.FailOn("wrSetText", "System");
    EXPECT_TRUE(Print_Cover(wr, Request(true, true, true)));
    EXPECT_FALSE(Names(wr.Calls(), "wrSetText", "MotorData"));  // the rest of that routine is left out
    EXPECT_TRUE(Names(wr.Calls(), "wrSetText", "EffectiveTorqueUnit"));  // the next routine runs
    EXPECT_TRUE(Names(wr.Calls(), "wrSetText", "Message"));
    EXPECT_EQ(Ops(wr.Calls()).back(), "wrExit");
    EXPECT_EQ(CallsOf(wr.Calls(), "wrPrint").size(), 1u);
    EXPECT_EQ(CallsOf(wr.Calls(), "wrUnloadReport").size(), 1u);
}

TEST_F(PrintFrameTest, AFailedFillingTextStopsItsRoutineButThePagePrints) {
    wr.FailOn("wrSetText", "cstUnit1");
    EXPECT_TRUE(Print_Cover(wr, Request(true, true, true)));
    EXPECT_TRUE(Names(wr.Calls(), "wrSetText", "cstCorporation"));
    EXPECT_FALSE(Names(wr.Calls(), "wrSetText", "cstUnit2"));
    EXPECT_FALSE(Names(wr.Calls(), "wrSetText", "cstName"));
    EXPECT_TRUE(Names(wr.Calls(), "wrSetText", "Corporation"));
    EXPECT_EQ(CallsOf(wr.Calls(), "wrPrint").size(), 1u);

    RecordingReportLibrary elements;
    elements.FailOn("wrSetText", "EleData2.Item1");
    EXPECT_TRUE(Print_Elements(elements, Request(true, true, true)));
    EXPECT_FALSE(Names(elements.Calls(), "wrSetText", "EleData2.Data1"));
    EXPECT_TRUE(CallsOf(elements.Calls(), "wrSetObjectProp").empty());
    EXPECT_EQ(Ops(elements.Calls()).back(), "wrExit");
    EXPECT_EQ(CallsOf(elements.Calls(), "wrPrint").size(), 1u);

    RecordingReportLibrary pattern;
    pattern.FailOn("wrSetText", "Group2.Time");
    EXPECT_TRUE(Print_Pattern(pattern, Request(true, true, true)));
    EXPECT_FALSE(Names(pattern.Calls(), "wrSetText", "Group3.Time"));
    EXPECT_EQ(CallsOf(pattern.Calls(), "wrPrint").size(), 1u);
}

TEST_F(PrintFrameTest, PatternPageWritesTheGraphsThenLoadsThem) {
    std::filesystem::remove(appDir.File("Rotation.bmp"));
    std::filesystem::remove(appDir.File("Torque.bmp"));
    ASSERT_TRUE(Print_Pattern(wr, Request(false, false, true)));
    EXPECT_TRUE(std::filesystem::exists(appDir.File("Rotation.bmp")));
    EXPECT_TRUE(std::filesystem::exists(appDir.File("Torque.bmp")));
    const auto pictures = CallsOf(wr.Calls(), "wrLoadDIB");
    ASSERT_EQ(pictures.size(), 2u);
    EXPECT_EQ(pictures[0].object + "=" + pictures[0].value, "FigR=" + AppPath + "/Rotation.bmp");
    EXPECT_EQ(pictures[1].object + "=" + pictures[1].value, "FigT=" + AppPath + "/Torque.bmp");
    const Strings objects = ObjectsOf(wr.Calls(), "wrSetText");
    ASSERT_GE(objects.size(), 9u);
    EXPECT_EQ(Strings(objects.begin(), objects.begin() + 9),
              (Strings{"PageNo", "HeadL", "HeadM", "HeadR", "FootL", "FootM", "FootR", "Date", "System"}));
    EXPECT_EQ(wr.Calls()[2].value, AppPath + "/Move.svg");
}

TEST_F(PrintFrameTest, ComponentsFillHeadFootSystemPageNumbersThenBlocks) {
    ASSERT_TRUE(Print_Elements(wr, Request(true, true, true)));
    const Strings objects = ObjectsOf(wr.Calls(), "wrSetText");
    ASSERT_GT(objects.size(), 33u);
    EXPECT_EQ(objects[0], "HeadL1");
    EXPECT_EQ(objects[27], "Date4");
    EXPECT_EQ(objects[28], "System");
    EXPECT_EQ(Strings(objects.begin() + 29, objects.begin() + 33), (Strings{"PageNo1", "PageNo2", "PageNo3", "PageNo4"}));
    EXPECT_EQ(objects[33], "EleData0.Item1");
    EXPECT_EQ(wr.Calls()[2].value, AppPath + "/Element.svg");
}

TEST_F(PrintFrameTest, PartsPrintCoverComponentsPatternsThenPrecautions) {
    Report_PrintParts(wr, Request(true, true, true, true));
    Strings loaded;
    for (const ReportCall& c : CallsOf(wr.Calls(), "wrLoadReport")) loaded.push_back(c.value);
    EXPECT_EQ(loaded, (Strings{AppPath + "/Title.svg", AppPath + "/Element.svg", AppPath + "/Move.svg",
                               AppPath + "/Notes.svg"}));
    EXPECT_EQ(CallsOf(wr.Calls(), "wrInit").size(), 4u);
    EXPECT_EQ(CallsOf(wr.Calls(), "wrExit").size(), 4u);
}

TEST_F(PrintFrameTest, OnlyTheCheckedPartsPrint) {
    const std::vector<std::pair<PrintRequest, Strings>> cases = {
        {Request(false, false, false, false), {}},
        {Request(false, true, false, false), {"Element.svg"}},
        {Request(true, false, false, true), {"Title.svg", "Notes.svg"}},
        {Request(false, true, true, false), {"Element.svg", "Move.svg"}},
    };
    for (const auto& [request, parts] : cases) {
        RecordingReportLibrary engine;
        Report_PrintParts(engine, request);
        Strings loaded;
        for (const ReportCall& c : CallsOf(engine.Calls(), "wrLoadReport"))
            loaded.push_back(std::filesystem::path(c.value).filename().string());
        EXPECT_EQ(loaded, parts);
    }
}

TEST_F(PrintFrameTest, AFailedPartDoesNotStopTheLaterOnes) {
    wr.FailOn("wrSetText", "Message");
    wr.FailOn("wrPrint");
    Report_PrintParts(wr, Request(true, true, true, true));
    EXPECT_EQ(CallsOf(wr.Calls(), "wrLoadReport").size(), 4u);
    EXPECT_EQ(CallsOf(wr.Calls(), "wrExit").size(), 4u);
}
