// Start-up without windows and what the main window does when it becomes active.
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "commands/Activation.h"
#include "core/Startup.h"
#include "core/Tables.h"
#include "persist/mdlFile.h"
#include "tests/support/TestState.h"
#include "units/UnitTable.h"

namespace {

// Records which seams the activation called, in order.
struct SeamLog {
    std::vector<std::string> calls;
    std::string title;

    ActivationHooks Seams() {
        ActivationHooks s;
        s.fileLoad.resetDisplay = [this] { calls.push_back("loadFile"); };
        s.resetDisplay = [this] { calls.push_back("resetDisplay"); };
        s.setTitle = [this](const std::string& t) {
            calls.push_back("setTitle");
            title = t;
        };
        s.refresh = [this] { calls.push_back("refresh"); };
        s.setUnitRow = [this] { calls.push_back("setUnitRow"); };
        return s;
    }
    bool Called(const std::string& name) const {
        for (const auto& c : calls)
            if (c == name) return true;
        return false;
    }
};

class ActivationTest : public StateTest {
protected:
    // A saved horizontal ball screw, the tables cleared again.
    std::string Saved() {
        const std::string path = appDir.File("lift.AP2");
        Chain_Set({51, 1, 11, 31});
        EXPECT_TRUE(File_Save(path));
        State_Reset();
        return path;
    }

    // A named and changed document of three elements, before the question is answered.
    static void PrepareAChangedDocument() {
        Main_Prepare("");
        ElementCount = 3;
        Element[1].ElementType = 1;
        DocumentNamed = 1;
        DirtyFlag = 1;
    }

    // The motor alone in a new, unchanged document, the question's answer taken.
    static void ExpectTheMotorAlone() {
        EXPECT_EQ(ElementCount, 1);
        EXPECT_EQ(Element[0].ElementType, 51);
        EXPECT_EQ(Element[1].ElementType, 50);
        EXPECT_EQ(DocumentNamed, 0);
        EXPECT_EQ(DirtyFlag, 0);
        EXPECT_EQ(MecaResult, 0);
    }
};

TEST_F(ActivationTest, CommandLineOfSeveralWordsIsOneFileName) {
    const std::string line = "  \"/home/user/my drives/lift axis 2.AP2\" --extra word  ";
    Main_Prepare(line);
    EXPECT_EQ(CommandFileGiven, 1);
    EXPECT_EQ(FileName, line);  // not parsed, unquoted or trimmed
}

TEST_F(ActivationTest, EmptyCommandLineNamesNoFile) {
    Main_Prepare("");
    EXPECT_EQ(CommandFileGiven, 0);
    EXPECT_EQ(FileName, "");
}

TEST_F(ActivationTest, PrepareFillsTheTablesAndClearsTheDocument) {
    WriteFile(appDir.File("UnitInfo.dat"), "0\r\n1\r\n2\r\n2\r\n3\r\n1\r\n2\r\n0\r\n5\r\n3\r\n4\r\n");
    ElementItemCount.fill(0);
    ElementCount = 5;
    AppPath.clear();
    Main_Prepare("");
    EXPECT_EQ(AppPath, appDir.Path());
    EXPECT_EQ(ElementItemCount[14], 10);
    EXPECT_EQ(MecaTemplateCount[2], 4);
    EXPECT_EQ(UnitTable[1].Sel, 1);
    EXPECT_EQ(UnitTable[8].Sel, 5);
    EXPECT_EQ(ElementCount, 1);
    EXPECT_EQ(Element[0].ElementType, 51);
    EXPECT_EQ(Element[0].Item[2].UnitIndex, 5);  // the motor's inertia opens in the pick read
    EXPECT_TRUE(msg.Seen().empty());
}

TEST_F(ActivationTest, FileOnTheCommandLineIsLoadedAndNamed) {
    const std::string path = Saved();
    Main_Prepare(path);
    MecaResult = 1;  // not looked at in this activation
    MecaTemplateNo = 1;
    SeamLog log;
    EXPECT_TRUE(Main_Activate(log.Seams()));
    EXPECT_EQ(log.calls, std::vector<std::string>{"loadFile"});
    EXPECT_EQ(FileName, path);
    EXPECT_EQ(DocumentNamed, 1);
    EXPECT_EQ(CommandFileGiven, 0);
    EXPECT_EQ(SelectedElement, 1);
    EXPECT_EQ(MecaResult, 1);
    EXPECT_EQ(ElementCount, 4);
    EXPECT_TRUE(msg.Seen().empty());
}

TEST_F(ActivationTest, AFileOnTheCommandLineThatCannotBeReadIsTold) {
    Main_Prepare(appDir.File("none.AP2"));
    EXPECT_FALSE(Main_Activate());
    EXPECT_EQ(msg.Seen().at(0).text, "File read failed.");
    EXPECT_EQ(DocumentNamed, 1);
}

TEST_F(ActivationTest, NextActivationAfterTheFileLooksAtTheSelection) {
    Main_Prepare(Saved());
    SeamLog log;
    Main_Activate(log.Seams());
    MecaResult = 3;
    Main_Activate(log.Seams());
    EXPECT_EQ(std::count(log.calls.begin(), log.calls.end(), "loadFile"), 1);
    EXPECT_EQ(MecaResult, 0);
    EXPECT_TRUE(log.Called("setUnitRow"));
}

TEST_F(ActivationTest, CancelLeavesTheMotorAlone) {
    Main_Prepare("");
    MecaResult = 3;
    MecaTemplateNo = 0;
    SeamLog log;
    Main_Activate(log.Seams());
    ExpectTheMotorAlone();
    EXPECT_EQ(log.calls, std::vector<std::string>{"setUnitRow"});
    EXPECT_FALSE(log.Called("loadFile"));
}

TEST_F(ActivationTest, CancelChangesNothingElse) {
    PrepareAChangedDocument();
    MecaResult = 3;
    SeamLog log;
    Main_Activate(log.Seams());
    EXPECT_EQ(ElementCount, 3);
    EXPECT_EQ(Element[1].ElementType, 1);
    EXPECT_EQ(DocumentNamed, 1);
    EXPECT_EQ(DirtyFlag, 1);
    EXPECT_EQ(MecaResult, 0);
}

TEST_F(ActivationTest, OkWithoutTemplateGivesTheSameChainAsCancel) {
    PrepareAChangedDocument();
    MecaResult = 2;
    MecaTemplateNo = 0;
    SeamLog log;
    Main_Activate(log.Seams());
    ExpectTheMotorAlone();
    EXPECT_FALSE(log.Called("setTitle"));
    EXPECT_FALSE(log.Called("loadFile"));
    EXPECT_TRUE(log.Called("setUnitRow"));
    EXPECT_EQ(Element[0].Item[2].ItemText.Str(), "");  // no Item_Format
}

TEST_F(ActivationTest, TemplateOneBuildsTheHorizontalBallscrew) {
    Main_Prepare("");
    DocumentNamed = 1;
    DirtyFlag = 1;
    MecaResult = 1;
    MecaTemplateNo = 1;
    SeamLog log;
    Main_Activate(log.Seams());
    EXPECT_EQ(log.title, "Torvane-[Horizontal ballscrew]");
    EXPECT_EQ(ElementCount, 4);
    EXPECT_EQ(Element[0].ElementType, 51);
    EXPECT_EQ(Element[1].ElementType, 1);
    EXPECT_EQ(Element[2].ElementType, 11);
    EXPECT_EQ(Element[3].ElementType, 31);
    for (int slot = 4; slot <= 19; ++slot) EXPECT_EQ(Element[slot].ElementType, 50) << slot;
    EXPECT_EQ(SelectedElement, 1);
    EXPECT_EQ(DocumentNamed, 0);
    EXPECT_EQ(DirtyFlag, 0);
    EXPECT_EQ(MecaResult, 0);
    EXPECT_NEAR(Element[2].Item[13].Value, 7.6e-5, 1e-7);  // the screw's inertia is computed
    EXPECT_TRUE(log.Called("refresh"));
    EXPECT_EQ(log.calls.back(), "setUnitRow");
    EXPECT_EQ(Element[2].Item[0].ItemText.Str(), "10");  // 0.01 m screw pitch in mm, formatted
    EXPECT_EQ(Element[3].Item[0].ItemText.Str(), "1");
}

TEST_F(ActivationTest, EveryTemplateSetsItsCountAndTitle) {
    const struct {
        int16_t number;
        int16_t count;
        const char* title;
    } cases[] = {{2, 4, "Torvane-[Vertical ballscrew]"}, {3, 3, "Torvane-[Turntable]"},
                 {4, 4, "Torvane-[Conveyor belt]"},    {5, 3, "Torvane-[Roll feeder]"},
                 {6, 3, "Torvane-[Suspension]"},       {7, 4, "Torvane-[Rack and pinion]"},
                 {8, 2, "Torvane-[Cart]"},             {9, 2, "Torvane-[Pinion-driven cart]"}};
    Main_Prepare("");
    for (const auto& c : cases) {
        MecaResult = 1;
        MecaTemplateNo = c.number;
        SeamLog log;
        Main_Activate(log.Seams());
        EXPECT_EQ(ElementCount, c.count) << c.number;
        EXPECT_EQ(log.title, c.title);
    }
}

TEST_F(ActivationTest, TemplateResultWithoutTemplateSetsNoTitle) {
    Main_Prepare("");
    MecaResult = 1;
    MecaTemplateNo = 0;
    SeamLog log;
    Main_Activate(log.Seams());
    EXPECT_FALSE(log.Called("setTitle"));
    EXPECT_EQ(ElementCount, 1);
    EXPECT_EQ(MecaResult, 0);
}

TEST_F(ActivationTest, NothingToDoOnlySetsTheUnitRow) {
    Main_Prepare("");
    for (const int16_t result : {int16_t{0}, int16_t{4}, int16_t{99}}) {
        ElementCount = 2;
        MecaResult = result;
        SeamLog log;
        Main_Activate(log.Seams());
        EXPECT_EQ(log.calls, std::vector<std::string>{"setUnitRow"}) << result;
        EXPECT_EQ(ElementCount, 2) << result;
        EXPECT_EQ(MecaResult, result) << result;
    }
}

TEST_F(ActivationTest, ActivationWorksWithoutAnySeam) {
    Main_Prepare("");
    MecaResult = 1;
    MecaTemplateNo = 7;
    Main_Activate();
    EXPECT_EQ(ElementCount, 4);
    EXPECT_EQ(Element[2].ElementType, 16);
}

TEST_F(ActivationTest, PrepareWithADamagedUnitFileTellsItAndGoesOn) {
    WriteFile(appDir.File("UnitInfo.dat"), "1\r\nmm\r\n");
    Main_Prepare("");
    ASSERT_EQ(msg.Seen().size(), 1u);
    EXPECT_NE(msg.Seen()[0].text.find(appDir.File("UnitInfo.dat")), std::string::npos);
    EXPECT_EQ(UnitTable[6].Sel, 1);
    EXPECT_EQ(ElementCount, 1);
}

}  // namespace
