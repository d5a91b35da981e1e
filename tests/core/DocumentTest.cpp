// The fixed tables filled at start-up, the templates, and clearing the document.
#include <gtest/gtest.h>

#include <vector>

#include "core/Catalogue.h"
#include "core/Document.h"
#include "core/Tables.h"
#include "core/Templates.h"
#include "tests/support/TestState.h"
#include "units/UnitTable.h"

namespace {

class DocumentTest : public StateTest {};

struct TemplateEntry {
    int16_t number;
    const char* name;
    std::vector<int16_t> types;
};

const std::vector<TemplateEntry> kTemplateList = {
    {0, "hand selection", {51}},
    {1, "Horizontal ballscrew", {51, 1, 11, 31}},
    {2, "Vertical ballscrew", {51, 1, 12, 34}},
    {3, "Turntable", {51, 1, 5}},
    {4, "Conveyor belt", {51, 1, 13, 31}},
    {5, "Roll feeder", {51, 1, 14}},
    {6, "Suspension", {51, 1, 15}},
    {7, "Rack and pinion", {51, 1, 16, 31}},
    {8, "Cart", {51, 41}},
    {9, "Pinion-driven cart", {51, 42}},
};

TEST_F(DocumentTest, InitTemplatesFillsTheTenChainsAndPadsWithEmptySlots) {
    for (auto& slot : MecaTemplate) slot.fill(-7);
    MecaTemplateCount.fill(-7);
    Init_Templates();
    for (const TemplateEntry& t : kTemplateList) {
        SCOPED_TRACE(t.name);
        EXPECT_EQ(MecaTemplateCount[t.number], static_cast<int16_t>(t.types.size()));
        for (std::size_t slot = 0; slot < t.types.size(); ++slot) EXPECT_EQ(MecaTemplate[slot][t.number], t.types[slot]);
        for (std::size_t slot = t.types.size(); slot <= 19; ++slot) EXPECT_EQ(MecaTemplate[slot][t.number], 50) << slot;
        EXPECT_EQ(Template_Name(t.number), t.name);
    }
}

TEST_F(DocumentTest, TemplateNameOfANumberBeyondTheListIsEmpty) {
    EXPECT_EQ(Template_Name(10), "");
    EXPECT_EQ(Template_Name(-1), "");
}

TEST_F(DocumentTest, DispResetLeavesTheMotorAloneWithDefaults) {
    Element[1].ElementType = 11;
    Element[1].InputMode = 2;
    Element[0].InputMode = 1;
    Element[0].Item[0].ItemName = "changed";
    ElementCount = 4;
    Disp_Reset();
    EXPECT_EQ(ElementCount, 1);
    EXPECT_EQ(Element[0].ElementType, 51);
    EXPECT_EQ(Element[0].InputMode, 0);
    EXPECT_EQ(Element[0].Item[0].ItemName.Str(), "Capacity");
    EXPECT_EQ(Element[0].Item[13].UnitKind, 9999);
    for (int slot = 1; slot <= 19; ++slot) {
        EXPECT_EQ(Element[slot].ElementType, 50) << slot;
        EXPECT_EQ(Element[slot].InputMode, 0) << slot;
        EXPECT_EQ(Element[slot].Item[0].UnitKind, 9999) << slot;
        EXPECT_EQ(Element[slot].Item[13].ItemName.Str(), "Culculated inertia") << slot;
    }
    EXPECT_EQ(Element[20].ElementType, 0);  // never filled
}

TEST_F(DocumentTest, DispResetErasesPatternResultsMotorAndReportTexts) {
    Patarn[3].Speed = 3000;
    Patarn[21].Time = 1;
    PatternRowCount = 5;
    ResultValues[Cul][MaxTorque] = 2.5;
    ResultValues[Hantei][StoppingTorque] = 1;
    MotorSelected = 1;
    DirtyFlag = 1;
    SelectedJm = SelectedJb = SelectedMotorMass = 1;
    CandidateJm = CandidateJb = CandidateMotorMass = 2;
    MotorModelText = "M-100";
    MotorComment = "comment";
    DriverModelText = "D-1";
    DriverComment = "comment";
    Disp_Reset();
    for (const PatarnRow& row : Patarn) {
        EXPECT_EQ(row.Speed, 0);
        EXPECT_EQ(row.Time, 0);
    }
    EXPECT_EQ(PatternRowCount, 0);
    for (const auto& record : ResultValues)
        for (const double v : record) EXPECT_EQ(v, 0);
    EXPECT_EQ(MotorSelected, 0);
    EXPECT_EQ(DirtyFlag, 0);
    EXPECT_EQ(SelectedJm + SelectedJb + SelectedMotorMass, 0);
    EXPECT_EQ(CandidateJm + CandidateJb + CandidateMotorMass, 0);
    EXPECT_EQ(MotorModelText.Str(), "");
    EXPECT_EQ(MotorComment.Str(), "");
    EXPECT_EQ(DriverModelText.Str(), "");
    EXPECT_EQ(DriverComment.Str(), "");
    EXPECT_EQ(MotorModelText.Raw(), std::string(60, ' '));
}

TEST_F(DocumentTest, DispResetOpensRowsInTheUnitsPicked) {
    UnitTable[8].Sel = 3;
    UnitTable[5].Sel = 2;
    Disp_Reset();
    EXPECT_EQ(Element[0].Item[1].UnitIndex, 2);  // "Rotational speed" in r/s
    EXPECT_EQ(Element[0].Item[2].UnitIndex, 3);  // "Inertia" in kgf·m²
    EXPECT_EQ(Element[5].Item[13].UnitIndex, 3);
}

TEST_F(DocumentTest, TemplateFillBuildsTheChainWithFormattedTexts) {
    Template_Fill(1, true);
    EXPECT_EQ(Element[1].ElementType, 1);
    EXPECT_EQ(Element[2].ElementType, 11);
    EXPECT_EQ(Element[3].ElementType, 31);
    EXPECT_EQ(Element[4].ElementType, 50);
    EXPECT_EQ(Element[2].Item[2].ItemText.Str(), "600");  // 0.6 m in mm
    EXPECT_EQ(Element[1].Item[2].ItemText.Str(), ".0E+0");
}

TEST_F(DocumentTest, TemplateFillWithoutFormatKeepsTheFreshTexts) {
    Template_Fill(1, false);
    EXPECT_EQ(Element[2].ElementType, 11);
    EXPECT_EQ(Element[2].Item[2].ItemText.Str(), "");
    EXPECT_EQ(Element[1].Item[2].ItemText.Str(), "");
}

}  // namespace
