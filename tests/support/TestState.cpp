#include "tests/support/TestState.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>

#include "calc/mdlCulcurate.h"
#include "core/Catalogue.h"
#include "core/Document.h"
#include "core/Tables.h"
#include "core/Templates.h"
#include "persist/mdlFile.h"
#include "reports/CommentBox.h"
#include "selection/DriverJudge.h"
#include "selection/MotorPage.h"
#include "selection/mdlDataBase.h"
#include "units/UnitTable.h"

void State_Reset() {
    Init_ItemCounts();
    Init_Templates();
    Unit_SetNames();
    for (int k = 0; k < kUnitCategories; ++k) UnitTable[k].Sel = kUnitFreshSel[k];
    Param.fill(ParamRecord{});
    PatarnTrial.fill(PatarnRow{});
    FileName.clear();
    UnreadFile.clear();
    CommandFileGiven = DocumentNamed = MecaTemplateNo = MecaResult = 0;
    SelectedElement = FirstVisible = DragType = InsertAnswer = LoadMotion = 0;
    ItemTab = 1;
    LoadInertiaTotal = TotalRatio = 0;
    Disp_Reset();
    // The state of the other layers, as core/Tables.h lists it.
    TorqueAcc = TorqueEx = TorqueFric = 0;
    SeriesConnection.Close();
    MotorRecordset.Close();
    DriverRecordset.Close();
    SeriesFlgList.fill(0);
    SeriesIDList.fill(0);
    ModelFlgList.fill(0);
    CurrentSeriesFlg = CurrentSeriesID = CurrentModelFlg = 0;
    MotorRowCount = 0;
    SelectedMotorModel.clear();
    MotorCommentList.clear();
    DriverTypes.clear();
    BoxText.clear();
    BoxWidth = BoxLines = 0;
}

TempDir::TempDir() {
    std::string pattern = (std::filesystem::temp_directory_path() / "torvane-test-XXXXXX").string();
    if (mkdtemp(pattern.data()) == nullptr) throw std::runtime_error("mkdtemp failed");
    path_ = pattern;
}

TempDir::~TempDir() {
    std::error_code ec;
    std::filesystem::remove_all(path_, ec);
}

void WriteFile(const std::string& path, const std::string& bytes) {
    std::ofstream(path, std::ios::binary | std::ios::trunc) << bytes;
}

std::string ReadFile(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    std::ostringstream s;
    s << in.rdbuf();
    return s.str();
}

void StateTest::SetUp() {
    setenv("TORVANE_APP_PATH", appDir.Path().c_str(), 1);
    AppPath = appDir.Path();
    State_Reset();
}

void StateTest::TearDown() { unsetenv("TORVANE_APP_PATH"); }

void Chain_Set(std::initializer_list<int16_t> types, int16_t first) {
    int slot = first;
    for (const int16_t type : types) {
        Element[slot].ElementType = type;
        Item_Defaults(type, Element[slot].Item);
        ++slot;
    }
    ElementCount = static_cast<int16_t>(slot);
    for (; slot <= kMaxElements - 1; ++slot) {  // slot 20 keeps type 0
        Element[slot].ElementType = kTypeEmpty;
        Item_Defaults(kTypeEmpty, Element[slot].Item);
    }
}
