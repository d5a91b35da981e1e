// Opening a document (persist/FileLoad): the file becomes the document and what follows from it is rebuilt.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "calc/mdlCulcurate.h"
#include "core/Catalogue.h"
#include "core/Tables.h"
#include "core/UnitFile.h"
#include "persist/mdlFile.h"
#include "tests/persist/Documents.h"
#include "tests/persist/FileBytes.h"
#include "tests/persist/OlderFile.h"
#include "tests/support/TestState.h"
#include "units/UnitTable.h"

namespace {

// Records which window steps the loading asked for, in order.
struct WindowLog {
    std::vector<std::string> calls;
    std::string title;

    FileLoadHooks Seams() {
        FileLoadHooks s;
        s.resetDisplay = [this] { calls.push_back("resetDisplay"); };
        s.refresh = [this] { calls.push_back("refresh"); };
        s.setTitle = [this](const std::string& t) {
            calls.push_back("setTitle");
            title = t;
        };
        s.showInfobox = [this] { calls.push_back("showInfobox"); };
        return s;
    }
};

}  // namespace

class FileLoadTest : public StateTest {
protected:
    // The golden document with the ratings a chosen motor gives, calculated.
    // The screw's inertia is computed from its dimensions: a direct inertia on
    // it grows at each recalculation, so only this way does opening the saved
    // file reproduce the same numbers.
    void Document_Calculated() {
        Document_Golden();
        Element[2].InputMode = 0;
        const int rows[7] = {3, 4, 1, 2, 8, 9, 3};
        for (int j = 0; j < 7; ++j) ResultValues[Rate][j] = Element[0].Item[rows[j]].Value;
        SelectedJm = Element[0].Item[2].Value + Element[0].Item[6].Value;
        SelectedJb = Element[0].Item[6].Value;
        SelectedMotorMass = Element[0].Item[7].Value;
        Culcurate_All();
    }

    std::string Saved(const std::string& name = "lift axis.AP2") {
        const std::string path = appDir.File(name);
        EXPECT_TRUE(File_Save(path));
        return path;
    }

    void ExpectReadFailedOnce() {
        ASSERT_EQ(msg.Seen().size(), 1u);
        EXPECT_EQ(msg.Seen()[0].text, "File read failed.");
        EXPECT_EQ(msg.Seen()[0].title, "Open");
        EXPECT_EQ(msg.Seen()[0].icon, MsgIcon::Exclamation);
        EXPECT_EQ(msg.Seen()[0].buttons, MsgButtons::OK);
    }

    WindowLog window;
};

TEST_F(FileLoadTest, OpeningMakesTheFileTheDocument) {
    Document_Calculated();
    const std::string path = Saved();
    State_Reset();
    DirtyFlag = 1;
    EXPECT_TRUE(File_Load(path, window.Seams()));
    EXPECT_TRUE(msg.Seen().empty());
    EXPECT_EQ(DocumentNamed, 1);
    EXPECT_EQ(FileName, path);
    EXPECT_EQ(DirtyFlag, 0);
    EXPECT_EQ(ElementCount, 4);
    EXPECT_EQ(Element[2].ElementType, 11);
    const std::vector<std::string> steps = {"resetDisplay", "refresh", "setTitle", "showInfobox"};
    EXPECT_EQ(window.calls, steps);
    EXPECT_EQ(window.title, "Torvane-[lift axis.AP2]");
}

TEST_F(FileLoadTest, DocumentWrittenAndReadAgainGivesByteIdenticalFields) {
    Document_Calculated();
    const std::string written = File_Bytes();
    const std::string path = Saved();
    State_Reset();
    ASSERT_TRUE(File_Load(path));
    EXPECT_TRUE(File_Bytes() == written);
    EXPECT_EQ(TextAt(ReadFile(path), 0, 10), File_VersionText() + std::string(10 - File_VersionText().size(), ' '));
}

TEST_F(FileLoadTest, ChosenMotorGivesTheSelectedValues) {
    Document_Golden();
    const std::string path = Saved();
    State_Reset();
    ASSERT_TRUE(File_Load(path));
    EXPECT_EQ(SelectedMotorMass, 1.6);
    EXPECT_EQ(SelectedJm, 2.63e-5 + 0.5e-5);
    EXPECT_EQ(SelectedJb, 0.5e-5);
}

TEST_F(FileLoadTest, WithoutAChosenMotorTheSelectedValuesStayZero) {
    Document_Golden();
    MotorSelected = 0;
    const std::string path = Saved();
    State_Reset();
    ASSERT_TRUE(File_Load(path));
    EXPECT_EQ(SelectedMotorMass, 0);
    EXPECT_EQ(SelectedJm, 0);
    EXPECT_EQ(SelectedJb, 0);
}

TEST_F(FileLoadTest, PatternRowCountIsCountedAfresh) {
    Document_Golden();
    PatternRowCount = 17;
    const std::string path = Saved();
    State_Reset();
    ASSERT_TRUE(File_Load(path));
    EXPECT_EQ(PatternRowCount, 3);
}

TEST_F(FileLoadTest, RecalculationAndJudgementRunOnTheOpenedDocument) {
    Document_Calculated();
    const auto results = ResultValues;
    const double inertia = LoadInertiaTotal;
    const std::string path = Saved();
    State_Reset();
    ASSERT_TRUE(File_Load(path));
    EXPECT_EQ(ResultValues, results);
    EXPECT_EQ(LoadInertiaTotal, inertia);
    EXPECT_NE(ResultValues[Hantei][EffectiveTorque], 0);
}

TEST_F(FileLoadTest, SavedUnitPicksOverruleUnitInfoDat) {
    Document_Golden();  // lengths in mm, speed in rad/s, inertia in kg.cm2, torque in N.mm
    const std::string path = Saved();
    State_Reset();
    Unit_Save();  // the user's own picks
    ASSERT_TRUE(File_Load(path));
    EXPECT_EQ(UnitTable[1].Sel, 0);
    EXPECT_EQ(UnitTable[5].Sel, 1);
    std::string expected;
    for (const UnitCategory& c : UnitTable) expected += std::to_string(c.Sel) + "\r\n";
    EXPECT_EQ(ReadFile(UnitFile_Path()), expected);
    EXPECT_EQ(Element[2].Item[0].UnitIndex, 0);  // the screw pitch keeps its stored mm
    EXPECT_EQ(Element[0].Item[3].UnitIndex, UnitTable[10].Sel);
}

TEST_F(FileLoadTest, ShortFileTellsReadFailedAndStillFinishesTheLoad) {
    Document_Golden();
    const std::string path = appDir.File("short.AP2");
    WriteFile(path, File_Bytes().substr(0, kCountAt + 1));
    State_Reset();
    EXPECT_FALSE(File_Load(path, window.Seams()));
    ExpectReadFailedOnce();
    EXPECT_EQ(Element[2].ElementType, 11);  // read before the end
    EXPECT_EQ(ElementCount, 1);             // a new document's
    EXPECT_EQ(DocumentNamed, 1);
    EXPECT_EQ(PatternRowCount, 3);
    EXPECT_EQ(window.title, "Torvane-[short.AP2]");
    EXPECT_EQ(window.calls.back(), "showInfobox");
    EXPECT_FALSE(ReadFile(UnitFile_Path()).empty());
}

TEST_F(FileLoadTest, MissingFileTellsReadFailed) {
    EXPECT_FALSE(File_Load(appDir.File("none.AP2"), window.Seams()));
    ExpectReadFailedOnce();
    EXPECT_EQ(ElementCount, 1);
    EXPECT_EQ(window.title, "Torvane-[none.AP2]");
}

TEST_F(FileLoadTest, VerWithALetterLeavesANewDocumentWithTheFileNameInTheCaption) {
    Document_Golden();
    std::string b = File_Bytes();
    PutText(b, 0, 10, "Ver.A.0.0");
    const std::string path = appDir.File("letter.AP2");
    WriteFile(path, b);
    State_Reset();
    EXPECT_FALSE(File_Load(path, window.Seams()));
    EXPECT_TRUE(msg.Seen().empty());
    EXPECT_EQ(ElementCount, 1);
    EXPECT_EQ(Element[1].ElementType, kTypeEmpty);
    EXPECT_EQ(MotorSelected, 0);
    EXPECT_EQ(window.title, "Torvane-[letter.AP2]");
    EXPECT_EQ(DocumentNamed, 1);
}

TEST_F(FileLoadTest, OlderFileTakesTheSelectedMotorTextIntoInfoMotorModel) {
    const std::string path = appDir.File("older.AP2");
    WriteFile(path, OlderFile());
    EXPECT_TRUE(File_Load(path));
    EXPECT_TRUE(msg.Seen().empty());
    EXPECT_EQ(PRINTINFO.InfoMotorModel.Str(), "TV-M200A");
    EXPECT_EQ(SelectedMotorMass, 0.9);
    EXPECT_EQ(PatternRowCount, 1);
}

TEST_F(FileLoadTest, FailedCalculationIsToldAndTheLoadFinishes) {
    Document_Golden();
    Element[1].ElementType = 2;  // a gear whose output diameter is 0
    Item_Defaults(2, Element[1].Item);
    Element[1].Item[3].Value = 0;
    const std::string path = Saved("gear.AP2");
    State_Reset();
    EXPECT_FALSE(File_Load(path, window.Seams()));
    ASSERT_EQ(msg.Seen().size(), 1u);
    EXPECT_EQ(msg.Seen()[0].title, "Open");
    EXPECT_EQ(msg.Seen()[0].icon, MsgIcon::Exclamation);
    EXPECT_EQ(Element[1].ElementType, 2);
    EXPECT_EQ(window.title, "Torvane-[gear.AP2]");
    EXPECT_EQ(window.calls.back(), "showInfobox");
}

TEST_F(FileLoadTest, RefusedFieldTellsReadFailedAndTheProgramGoesOn) {
    Document_Golden();
    std::string b = File_Bytes();
    PutI16(b, kCountAt, 300);
    const std::string bad = appDir.File("bad.AP2");
    WriteFile(bad, b);
    State_Reset();
    EXPECT_FALSE(File_Load(bad));
    ExpectReadFailedOnce();
    EXPECT_EQ(ElementCount, 1);
    msg.Clear();

    const std::string good = appDir.File("good.AP2");
    ASSERT_TRUE(File_Save(good));
    EXPECT_TRUE(File_Load(good));
    EXPECT_TRUE(msg.Seen().empty());
}

TEST_F(FileLoadTest, TruncatedFilesEachTellReadFailedOnce) {
    Document_Golden();
    const std::string full = File_Bytes();
    const std::string path = appDir.File("cut.AP2");
    for (std::size_t n = 5; n < full.size(); n += 1789) {
        WriteFile(path, full.substr(0, n));
        msg.Clear();
        EXPECT_FALSE(File_Load(path)) << n;
        ExpectReadFailedOnce();
        EXPECT_GE(ElementCount, 1);
    }
}

TEST_F(FileLoadTest, UnitFileThatCannotBeWrittenIsToldAndTheLoadFinishes) {
    Document_Golden();
    const std::string path = Saved();
    State_Reset();
    AppPath = appDir.File("no such folder");
    EXPECT_FALSE(File_Load(path, window.Seams()));
    ASSERT_EQ(msg.Seen().size(), 1u);
    EXPECT_EQ(msg.Seen()[0].title, "Open");
    EXPECT_NE(msg.Seen()[0].text.find("UnitInfo.dat"), std::string::npos);
    EXPECT_EQ(ElementCount, 4);
    EXPECT_NE(ResultValues[Cul][MaxTorque], 0);  // the recalculation still ran
    EXPECT_EQ(window.calls.back(), "showInfobox");
}
