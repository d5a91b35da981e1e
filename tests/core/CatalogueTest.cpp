// The component catalogue: the rows a placed component is filled with, their
// texts, and how Item_Format shows them.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <string>
#include <vector>

#include "core/Catalogue.h"
#include "core/Tables.h"
#include "tests/support/TestState.h"
#include "units/UnitTable.h"

namespace {

// A row's default that the reduction computes: not checked here.
const double kCalc = std::numeric_limits<double>::quiet_NaN();
// The unit of the row follows the pick of its category.
constexpr int P = -1;

struct CatalogueRow {
    int row;
    const char* name;
    int kind;
    int unit;  // P, or a fixed index
    double value;
};

struct CatalogueType {
    int16_t code;
    std::vector<CatalogueRow> rows;
};

// The rows of every type as the catalogue lists them.
const std::vector<CatalogueType> kCatalogue = {
    {1, {{0, "Reduction ratio", 11, 2, 1},
         {1, "Trans. efficiency", 11, 1, 1},
         {2, "Input axis inertia", 8, P, 0}}},
    {2, {{0, "Input gear dia.", 1, P, 0.02},
         {1, "In gear thickness", 1, P, 0.01},
         {2, "Input gear density", 12, 0, 7.8},
         {3, "Output gear dia.", 1, P, 0.06},
         {4, "Out gear thickness", 1, P, 0.01},
         {5, "Out gear density", 12, 0, 7.8},
         {6, "Trans. efficiency", 11, 1, 0.9},
         {11, "Input gear mass", 7, P, kCalc},
         {12, "Output gear mass", 7, P, kCalc}}},
    {3, {{0, "Input pulley dia.", 1, P, 0.1},
         {1, "In pulley thickness", 1, P, 0.02},
         {2, "In pulley density", 12, 0, 2.7},
         {3, "Output pulley dia.", 1, P, 0.1},
         {4, "Out pulley thickness", 1, P, 0.02},
         {5, "Out pulley density", 12, 0, 2.7},
         {6, "Belt mass", 7, P, 0.5},
         {7, "Trans. efficiency", 11, 1, 0.9},
         {11, "Input pulley mass", 7, P, kCalc},
         {12, "Out pulley mass", 7, P, kCalc}}},
    {4, {{0, "Input roller dia.", 1, P, 0.1},
         {1, "In roller thickness", 1, P, 0.02},
         {2, "In roller density", 12, 0, 7.8},
         {3, "Output roller dia.", 1, P, 0.1},
         {4, "Out roller thickness", 1, P, 0.02},
         {5, "Out roller density", 12, 0, 7.8},
         {6, "Trans. efficiency", 11, 1, 0.9},
         {11, "Input roller mass", 7, P, kCalc},
         {12, "Out roller mass", 7, P, kCalc}}},
    {5, {{0, "Outer diameter", 1, P, 0.2},
         {1, "Inner diameter", 1, P, 0},
         {2, "Length", 1, P, 0.05},
         {3, "Density", 12, 0, 7.8},
         {4, "External torque", 10, P, 0},
         {12, "Cylinder mass", 7, P, kCalc}}},
    {6, {{0, "Disk 1 outer dia.", 1, P, 0.04},
         {1, "Disk 1 thickness", 1, P, 0.03},
         {2, "Disk 1 density", 12, 0, 7.8},
         {3, "Disk 2 outer dia.", 1, P, 0.06},
         {4, "Disk 2 thickness", 1, P, 0.04},
         {5, "Disk 2 density", 12, 0, 7.8},
         {6, "Disk 3 diameter", 1, P, 0.04},
         {7, "Disk 3 thickness", 1, P, 0.03},
         {8, "Disk 3 density", 12, 0, 7.8}}},
    {7, {{0, "Outer diameter", 1, P, 0.2},
         {1, "Thickness", 1, P, 0.02},
         {2, "Density", 12, 0, 2.7},
         {3, "Eccentricity", 1, P, 0},
         {12, "Disk mass", 7, P, kCalc}}},
    {8, {{0, "Length L", 1, P, 0.3},
         {1, "Width a", 1, P, 0.08},
         {2, "Width b", 1, P, 0.06},
         {3, "Density", 12, 0, 2.7},
         {4, "Eccentricity", 1, P, 0.1},
         {12, "Block mass", 7, P, kCalc}}},
    {9, {{0, "Mass", 7, P, 1},
         {1, "Eccentricity", 1, P, 0.1}}},
    {10, {{0, "External force", 9, P, 0},
         {1, "Load center dist.", 1, P, 0.1}}},
    {11, {{0, "Screw pitch", 1, P, 0.01},
         {1, "Screw diameter", 1, P, 0.02},
         {2, "Screw length", 1, P, 0.6},
         {3, "Trans. efficiency", 11, 1, 0.9},
         {4, "Table mass", 7, P, 1},
         {5, "Friction coef.", 11, 0, 0.1}}},
    {12, {{0, "Screw pitch", 1, P, 0.01},
         {1, "Screw diameter", 1, P, 0.02},
         {2, "Screw length", 1, P, 0.6},
         {3, "Trans. efficiency", 11, 1, 0.9},
         {4, "Table mass", 7, P, 1}}},
    {13, {{0, "Drive pulley dia.", 1, P, 0.1},
         {1, "D pulley thickness", 1, P, 0.02},
         {2, "D pulley density", 12, 0, 2.7},
         {3, "Slave pulley dia.", 1, P, 0.1},
         {4, "S pulley thickness", 1, P, 0.02},
         {5, "S pulley density", 12, 0, 2.7},
         {6, "Belt mass", 7, P, 0.5},
         {7, "Trans. efficiency", 11, 1, 0.9},
         {8, "Friction coef.", 11, 0, 0.1},
         {11, "Drive pulley mass", 7, P, kCalc},
         {12, "Slave pulley mass", 7, P, kCalc}}},
    {14, {{0, "Drive roller dia.", 1, P, 0.1},
         {1, "D roller thickness", 1, P, 0.06},
         {2, "D roller denity", 12, 0, 7.8},
         {3, "Slave roller dia.", 1, P, 0.1},
         {4, "S roller thickness", 1, P, 0.06},
         {5, "S roller density", 12, 0, 7.8},
         {6, "Trans. efficiency", 11, 1, 0.9},
         {7, "Feed material mass", 7, P, 1},
         {8, "Friction coef.", 11, 0, 0.1},
         {9, "Pull force", 9, P, 0},
         {11, "Drive rolller mass", 7, P, kCalc},
         {12, "Slave roller mass", 7, P, kCalc}}},
    {15, {{0, "Drive roller dia.", 1, P, 0.1},
         {1, "D roller thickness", 1, P, 0.02},
         {2, "D roller density", 12, 0, 2.7},
         {3, "Slave roller dia.", 1, P, 0.1},
         {4, "S roller thickness", 1, P, 0.02},
         {5, "S roller density", 12, 0, 2.7},
         {6, "Trans. efficiency", 11, 1, 0.9},
         {7, "Workpiece mass", 7, P, 1},
         {8, "Balancer mass", 7, P, 1},
         {11, "Drive roller mass", 7, P, kCalc},
         {12, "Slave roller mass", 7, P, kCalc}}},
    {16, {{0, "Pinion diameter", 1, P, 0.04},
         {1, "Pinion thickness", 1, P, 0.02},
         {2, "Pinion density", 12, 0, 7.8},
         {3, "Rack mass", 7, P, 1},
         {4, "Trans. efficiency", 11, 1, 0.9},
         {5, "Friction coef.", 11, 0, 0.1}}},
    {17, {{0, "Screw pitch", 1, P, 0.01},
         {1, "Screw diameter", 1, P, 0.02},
         {2, "Screw length", 1, P, 0.6},
         {3, "Nut outer diameter", 1, P, 0.04},
         {4, "Nut inner diameter", 1, P, 0.02},
         {5, "Nut length", 1, P, 0.06},
         {6, "Trans. efficiency", 11, 1, 0.9},
         {7, "Friction coef.", 11, 0, 0.1}}},
    {18, {{0, "Screw pitch", 1, P, 0.01},
         {1, "Screw diameter", 1, P, 0.02},
         {2, "Screw length", 1, P, 0.6},
         {3, "Nut outer diameter", 1, P, 0.04},
         {4, "Nut inner diameter", 1, P, 0.02},
         {5, "Nut length", 1, P, 0.06},
         {6, "Trans. efficiency", 11, 1, 0.9}}},
    {21, {{0, "Pinion diameter", 1, P, 0.04},
         {1, "Pinion length", 1, P, 0.02},
         {2, "Pinion density", 12, 0, 7.8},
         {3, "Rack mass", 7, P, 1},
         {4, "Trans. efficiency", 11, 1, 0.9}}},
    {31, {{0, "Workpiece mass", 7, P, 1},
         {1, "External load", 9, P, 0},
         {2, "Friction coef.", 11, 0, 0.1}}},
    {32, {{0, "Workpiece mass", 7, P, 1}}},
    {33, {{0, "Workpiece mass", 7, P, 1},
         {1, "Angle of incline", 3, P, 0.5233333333333333},
         {2, "Friction coef.", 11, 0, 0.1}}},
    {34, {{0, "Roller 1 diameter", 1, P, 0.1},
         {1, "Roller 1 thickness", 1, P, 0.02},
         {2, "Roller 1 density", 12, 0, 2.7},
         {3, "Roller 2 diameter ", 1, P, 0.1},
         {4, "Roller 2 thickness", 1, P, 0.02},
         {5, "Roller 2 density", 12, 0, 2.7},
         {6, "Trans. efficiency", 11, 1, 0.9},
         {7, "Workpiece mass", 7, P, 1},
         {8, "Balancer mass", 7, P, 1},
         {11, "Roller 1 mass", 7, P, kCalc},
         {12, "Roller 2 mass", 7, P, kCalc}}},
    {41, {{0, "Total cart weight", 7, P, 1},
         {1, "Total efficiency", 11, 1, 0.8},
         {2, "Total reduction ratio", 11, 2, 0.01},
         {3, "Number of wheels", 11, 3, 4},
         {4, "Wheel diameter", 1, P, 0.1},
         {5, "Wheel thickness", 1, P, 0.03},
         {6, "Wheel density", 12, 0, 2.7}}},
    {42, {{0, "Total car weight", 7, P, 1},
         {1, "Total efficiency", 11, 1, 0.8},
         {2, "Total reduction ratio", 11, 2, 0.01},
         {3, "Number of wheels", 11, 3, 4},
         {4, "Wheel diameter", 1, P, 0.1},
         {5, "Wheel thickness", 1, P, 0.03},
         {6, "Wheel density", 12, 0, 2.7},
         {7, "Pinion diameter", 1, P, 0.04},
         {8, "Pinion thickness", 1, P, 0.02},
         {9, "Pinion density", 12, 0, 7.8},
         {10, "Friction coef.", 11, 0, 0.1}}},
    {51, {{0, "Capacity", 13, 0, kCalc},
         {1, "Rotational speed", 5, P, kCalc},
         {2, "Inertia", 8, P, kCalc},
         {3, "Rated torque", 10, P, kCalc},
         {4, "Maximum torque", 10, P, kCalc},
         {5, "Allowable inertia rate", 15, 0, kCalc},
         {6, "Brake inertia", 8, P, kCalc},
         {7, "Mass", 7, P, kCalc},
         {8, "Regeneration(J)", 14, 0, kCalc},
         {9, "Regeneration(W)", 13, 0, kCalc}}},
};

struct TypeEntry {
    int16_t code;
    const char* label;
    const char* bitmap;
    int16_t itemCount;
};

const std::vector<TypeEntry> kTypeList = {
    {1, "Reduct. gear", "\\BMP_data\\rotoro1.bmp", 3},
    {2, "Gear", "\\BMP_data\\rotoro2.bmp", 7},
    {3, "Belt", "\\BMP_data\\rotoro3.bmp", 8},
    {4, "Roller", "\\BMP_data\\rotoro4.bmp", 7},
    {5, "Cylinder load", "\\BMP_data\\rotoro5.bmp", 5},
    {6, "Multi disks", "\\BMP_data\\rotoro6.bmp", 9},
    {7, "Eccent. disk", "\\BMP_data\\rotoro7.bmp", 4},
    {8, "Rotat. block", "\\BMP_data\\rotoro8.bmp", 5},
    {9, "Eccent. load", "\\BMP_data\\rotoro9.bmp", 2},
    {10, "Exter. Force", "\\BMP_data\\rotoro10.bmp", 2},
    {11, "H ballscrew", "\\BMP_data\\rotost1.bmp", 6},
    {12, "V ballscrew", "\\BMP_data\\rotost2.bmp", 5},
    {13, "Belt", "\\BMP_data\\rotost3.bmp", 9},
    {14, "Roll feed", "\\BMP_data\\rotost4.bmp", 10},
    {15, "Suspension", "\\BMP_data\\rotost5.bmp", 9},
    {16, "Pinion&Rack", "\\BMP_data\\rotost6.bmp", 6},
    {17, "H nut rotat.", "\\BMP_data\\rotost7.bmp", 8},
    {18, "V nut rotat.", "\\BMP_data\\rotost8.bmp", 7},
    {21, "Rack&Pinion", "\\BMP_data\\sttoro1.bmp", 5},
    {31, "H linear", "\\BMP_data\\sttost1.bmp", 3},
    {32, "V linear", "\\BMP_data\\sttost2.bmp", 1},
    {33, "Lin inclined", "\\BMP_data\\sttost3.bmp", 3},
    {34, "Balancer", "\\BMP_data\\sttost4.bmp", 9},
    {41, "Cart", "\\BMP_data\\sp_ex1.bmp", 7},
    {42, "Pinion cart", "\\BMP_data\\sp_ex2.bmp", 11},
    {51, "Motor", "", 10},
};

// Picks that differ from the fresh installation in every category that has a choice.
constexpr std::array<int16_t, 11> kPicks = {2, 2, 1, 0, 3, 3, 2, 0, 4, 3, 4};

// The ItemText a fresh row starts with: only these rows carry one.
std::string FreshText(int16_t type, int row, bool inUse) {
    if (type == 1 && inUse && (row == 0 || row == 1)) return "1";
    if (type == 1 && (!inUse || row == 13)) return "0";
    if (type == 2 && row == 0) return "0.02";
    if (type == 2 && row == 1) return "0.01";
    if (type == 2 && row == 2) return "7.8";
    if (type == 33 && row == 1) return "0.523";
    if ((type == 41 || type == 42) && row == 2) return "1/100";
    return "";
}

void FillGarbage(std::array<ElementItem, kItemRows>& rows) {
    for (ElementItem& item : rows) {
        item.UnitKind = 77;
        item.UnitIndex = 77;
        item.ItemName = "garbage";
        item.ItemText = "garbage";
        item.Value = 123;
    }
}

class CatalogueTest : public StateTest {
protected:
    void UsePicks() {
        for (int k = 0; k < kUnitCategories; ++k) UnitTable[k].Sel = kPicks[k];
    }
};

TEST_F(CatalogueTest, InitItemCountsFillsTheCountOfEveryType) {
    ElementItemCount.fill(99);
    Init_ItemCounts();
    std::array<int16_t, 52> expected{};
    for (const TypeEntry& t : kTypeList) expected[t.code] = t.itemCount;
    for (int code = 0; code <= 51; ++code) EXPECT_EQ(ElementItemCount[code], expected[code]) << "type " << code;
    EXPECT_EQ(ElementItemCount[50], 0);
    EXPECT_EQ(ElementItemCount[19], 0);
}

TEST_F(CatalogueTest, LabelsAndPicturesOfEveryType) {
    for (const TypeEntry& t : kTypeList) {
        EXPECT_TRUE(Type_Known(t.code)) << t.code;
        EXPECT_EQ(Type_Label(t.code), t.label) << t.code;
        EXPECT_EQ(Type_Bitmap(t.code), t.bitmap) << t.code;
    }
    for (const int16_t unknown : {0, 19, 20, 22, 30, 35, 40, 43, 49, 50, 52, 9999}) {
        EXPECT_FALSE(Type_Known(unknown)) << unknown;
        EXPECT_EQ(Type_Label(unknown), "") << unknown;
        EXPECT_EQ(Type_Bitmap(unknown), "") << unknown;
    }
}

TEST_F(CatalogueTest, ItemDefaultsWritesTheRowsOfEveryType) {
    UsePicks();
    for (const CatalogueType& type : kCatalogue) {
        if (type.code == kTypeMotor) continue;
        SCOPED_TRACE("type " + std::to_string(type.code));
        std::array<ElementItem, kItemRows> rows;
        FillGarbage(rows);
        Item_Defaults(type.code, rows);

        bool row11 = false, row12 = false;
        int count = 0;
        for (const CatalogueRow& r : type.rows) {
            SCOPED_TRACE("row " + std::to_string(r.row));
            const ElementItem& item = rows[r.row];
            EXPECT_EQ(item.ItemName, FixedText<50>(r.name));  // "Roller 2 diameter " ends in a blank
            EXPECT_EQ(item.UnitKind, r.kind);
            EXPECT_EQ(item.UnitIndex, r.unit == P ? kPicks[r.kind] : r.unit);
            if (!std::isnan(r.value)) {
                EXPECT_DOUBLE_EQ(item.Value, r.value);
            }
            EXPECT_EQ(item.ItemText.Str(), FreshText(type.code, r.row, true));
            row11 |= r.row == 11;
            row12 |= r.row == 12;
            if (r.row < 11) count = r.row + 1;
        }
        EXPECT_EQ(count, ElementItemCount[type.code]);

        // Rows behind the parameters: up to 10 with two mass rows, 11 with one, else 12 (13 is named).
        const int lastFree = row11 ? 10 : row12 ? 11 : 12;
        for (int row = count; row <= lastFree; ++row) {
            SCOPED_TRACE("free row " + std::to_string(row));
            EXPECT_EQ(rows[row].UnitKind, 9999);
            EXPECT_EQ(rows[row].UnitIndex, 9999);
            EXPECT_EQ(rows[row].ItemName.Str(), "");
            EXPECT_EQ(rows[row].Value, 0);
            EXPECT_EQ(rows[row].ItemText.Str(), FreshText(type.code, row, false));
        }

        EXPECT_EQ(rows[13].ItemName.Str(), "Culculated inertia");
        EXPECT_EQ(rows[13].UnitKind, 8);
        EXPECT_EQ(rows[13].UnitIndex, kPicks[8]);
        EXPECT_EQ(rows[13].ItemText.Str(), FreshText(type.code, 13, true));
    }
}

TEST_F(CatalogueTest, MotorRowsGoIntoSlotZeroWhateverTheCaller) {
    UsePicks();
    FillGarbage(Element[0].Item);
    FillGarbage(Element[3].Item);
    Item_Defaults(kTypeMotor, Element[3].Item);
    for (int row = 0; row < kItemRows; ++row) EXPECT_EQ(Element[3].Item[row].ItemName.Str(), "garbage");

    const CatalogueType& motor = kCatalogue.back();
    ASSERT_EQ(motor.code, kTypeMotor);
    for (const CatalogueRow& r : motor.rows) {
        const ElementItem& item = Element[0].Item[r.row];
        EXPECT_EQ(item.ItemName.Str(), r.name) << r.row;
        EXPECT_EQ(item.UnitKind, r.kind) << r.row;
        EXPECT_EQ(item.UnitIndex, r.unit == P ? kPicks[r.kind] : r.unit) << r.row;
        EXPECT_EQ(item.ItemText.Str(), "") << r.row;
    }
    // Rows 10 to 13 are not in use: the motor has no calculated inertia row.
    for (int row = 10; row <= 13; ++row) {
        EXPECT_EQ(Element[0].Item[row].UnitKind, 9999) << row;
        EXPECT_EQ(Element[0].Item[row].UnitIndex, 9999) << row;
        EXPECT_EQ(Element[0].Item[row].ItemName.Str(), "") << row;
        EXPECT_EQ(Element[0].Item[row].Value, 0) << row;
    }
}

TEST_F(CatalogueTest, EmptySlotHasNoRowInUseButItsInertiaRowIsNamed) {
    std::array<ElementItem, kItemRows> rows;
    FillGarbage(rows);
    Item_Defaults(kTypeEmpty, rows);
    for (int row = 0; row <= 12; ++row) {
        EXPECT_EQ(rows[row].UnitKind, 9999) << row;
        EXPECT_EQ(rows[row].UnitIndex, 9999) << row;
        EXPECT_EQ(rows[row].ItemName.Str(), "") << row;
        EXPECT_EQ(rows[row].Value, 0) << row;
    }
    EXPECT_EQ(rows[13].ItemName.Str(), "Culculated inertia");
    EXPECT_EQ(rows[13].UnitKind, 8);
    EXPECT_EQ(rows[13].UnitIndex, 1);  // kg·m², the fresh pick of inertia
}

TEST_F(CatalogueTest, UnknownCodeChangesNoRowButTheInertiaRow) {
    for (const int16_t code : {int16_t{0}, int16_t{19}, int16_t{35}}) {
        std::array<ElementItem, kItemRows> rows;
        FillGarbage(rows);
        Item_Defaults(code, rows);
        for (int row = 0; row <= 12; ++row) {
            EXPECT_EQ(rows[row].UnitKind, 77) << code << " row " << row;
            EXPECT_EQ(rows[row].ItemName.Str(), "garbage") << code << " row " << row;
            EXPECT_EQ(rows[row].Value, 123) << code << " row " << row;
        }
        EXPECT_EQ(rows[13].ItemName.Str(), "Culculated inertia") << code;
        EXPECT_EQ(rows[13].UnitKind, 8) << code;
        EXPECT_EQ(rows[13].UnitIndex, 1) << code;
    }
}

TEST_F(CatalogueTest, NewGearHasItsSevenRowsBlankRowsAndNamedMassRows) {
    std::array<ElementItem, kItemRows> rows;
    FillGarbage(rows);
    Item_Defaults(2, rows);
    const char* names[] = {"Input gear dia.",    "In gear thickness", "Input gear density", "Output gear dia.",
                           "Out gear thickness", "Out gear density",  "Trans. efficiency"};
    for (int row = 0; row <= 6; ++row) EXPECT_EQ(rows[row].ItemName.Str(), names[row]);
    for (int row = 7; row <= 10; ++row) {
        EXPECT_EQ(rows[row].ItemName.Str(), "") << row;
        EXPECT_EQ(rows[row].UnitKind, 9999) << row;
    }
    EXPECT_EQ(rows[11].ItemName.Str(), "Input gear mass");
    EXPECT_EQ(rows[12].ItemName.Str(), "Output gear mass");
    EXPECT_EQ(rows[13].ItemName.Str(), "Culculated inertia");
    EXPECT_EQ(rows[11].UnitKind, 7);
    EXPECT_EQ(rows[12].UnitKind, 7);
}

TEST_F(CatalogueTest, NewElementTakesTheLengthUnitPickedAndKeepsMetres) {
    UnitTable[1].Sel = 1;  // cm
    std::array<ElementItem, kItemRows> rows;
    Item_Defaults(2, rows);
    for (const int row : {0, 1, 3, 4}) {
        EXPECT_EQ(rows[row].UnitKind, 1) << row;
        EXPECT_EQ(rows[row].UnitIndex, 1) << row;
    }
    EXPECT_EQ(rows[0].Value, 0.02);  // metres, not 2 cm
    EXPECT_EQ(rows[3].Value, 0.06);
    EXPECT_EQ(rows[2].UnitIndex, 0);  // density stays g/cm3
}

TEST_F(CatalogueTest, InclineAngleDefaultsToThirtyDegreesBySystemPi) {
    std::array<ElementItem, kItemRows> rows;
    Item_Defaults(33, rows);
    EXPECT_DOUBLE_EQ(rows[1].Value, 3.14 / 6);
    EXPECT_DOUBLE_EQ(rows[1].Value, 0.5233333333333333);
    EXPECT_EQ(rows[1].ItemText.Str(), "0.523");
}

// --- Item_Format ---------------------------------------------------------------------

ElementRecord Fresh(int16_t type) {
    ElementRecord e;
    e.ElementType = type;
    Item_Defaults(type, e.Item);
    return e;
}

TEST_F(CatalogueTest, TotalReductionRatioKeepsItsFraction) {
    for (const int16_t type : {int16_t{41}, int16_t{42}}) {
        ElementRecord e = Fresh(type);
        Item_Format(e);
        EXPECT_EQ(e.Item[2].ItemText.Str(), "1/100") << type;
        EXPECT_EQ(e.Item[2].Value, 0.01) << type;
    }
}

TEST_F(CatalogueTest, ReductionRatioOfAReducerKeepsItsTypedForm) {
    ElementRecord e = Fresh(1);
    e.Item[0].ItemText = "1/50";
    e.Item[0].Value = 0.02;
    Item_Format(e);
    EXPECT_EQ(e.Item[0].ItemText.Str(), "1/50");
}

TEST_F(CatalogueTest, InertiaOfZeroShowsThroughTheScientificMask) {
    ElementRecord e = Fresh(1);
    Item_Format(e);
    EXPECT_EQ(e.Item[2].ItemText.Str(), ".0E+0");   // "Input axis inertia"
    EXPECT_EQ(e.Item[13].ItemText.Str(), ".0E+0");  // "Culculated inertia"
    EXPECT_NE(e.Item[2].ItemText.Str(), "0");
}

TEST_F(CatalogueTest, NonZeroInertiaKeepsFourDigitsInScientificForm) {
    ElementRecord e = Fresh(1);
    e.Item[2].Value = 0.00012346;  // kg·m²
    e.Item[13].Value = 0.00012346;
    Item_Format(e);
    EXPECT_EQ(e.Item[2].ItemText.Str(), "1.235E-4");
    EXPECT_EQ(e.Item[13].ItemText.Str(), "1.235E-4");

    UnitTable[8].Sel = 0;  // kg·cm²: 0.00012346 / 0.0001 = 1.2346
    e = Fresh(1);
    e.Item[2].Value = 0.00012346;
    Item_Format(e);
    EXPECT_EQ(e.Item[2].UnitIndex, 0);
    EXPECT_EQ(e.Item[2].ItemText.Str(), "1.235E+0");
}

TEST_F(CatalogueTest, FormatShowsEachRowInItsOwnUnit) {
    ElementRecord e = Fresh(2);  // lengths in mm by the fresh picks
    Item_Format(e);
    EXPECT_EQ(e.Item[0].ItemText.Str(), "20");  // 0.02 m / 0.001
    EXPECT_EQ(e.Item[1].ItemText.Str(), "10");
    EXPECT_EQ(e.Item[2].ItemText.Str(), "7.8");
    EXPECT_EQ(e.Item[3].ItemText.Str(), "60");
    EXPECT_EQ(e.Item[6].ItemText.Str(), "0.9");  // kind 11 has no conversion
    EXPECT_EQ(e.Item[7].ItemText.Str(), "0");    // a row not in use
    EXPECT_EQ(e.Item[11].ItemText.Str(), "0");   // a mass row, 0 kg
    EXPECT_EQ(e.Item[13].ItemText.Str(), ".0E+0");
    EXPECT_EQ(e.Item[0].Value, 0.02);  // only the display changes

    UnitTable[1].Sel = 1;  // cm
    e = Fresh(2);
    Item_Format(e);
    EXPECT_EQ(e.Item[0].ItemText.Str(), "2");  // 0.02 m / 0.01
    EXPECT_EQ(e.Item[3].ItemText.Str(), "6");
}

TEST_F(CatalogueTest, FormatShowsTheInclineInDegrees) {
    ElementRecord e = Fresh(33);  // angles in Degrees by the fresh picks
    Item_Format(e);
    EXPECT_EQ(e.Item[1].ItemText.Str(), "30");  // (3.14 / 6) / (3.14 / 180)
}

TEST_F(CatalogueTest, FormatSkipsRowsThatHoldNoNumber) {
    ElementRecord e = Fresh(31);
    e.Item[0].ItemText = "--";
    e.Item[0].Value = 5;
    e.Item[2].ItemText = "a--b";
    Item_Format(e);
    EXPECT_EQ(e.Item[0].ItemText.Str(), "--");
    EXPECT_EQ(e.Item[2].ItemText.Str(), "a--b");
    EXPECT_EQ(e.Item[1].ItemText.Str(), "0");
}

TEST_F(CatalogueTest, FormatAlwaysRewritesTheInertiaRow) {
    ElementRecord e = Fresh(31);
    e.Item[13].ItemText = "--";
    e.Item[13].Value = 0.5;  // kg·m²
    Item_Format(e);
    EXPECT_EQ(e.Item[13].ItemText.Str(), "5.0E-1");
}

TEST_F(CatalogueTest, FormatOfTheMotorKeepsInertiaNamesScientific) {
    Item_Defaults(kTypeMotor, Element[0].Item);
    Element[0].Item[0].Value = 400;     // W
    Element[0].Item[1].Value = 3000;    // r/min
    Element[0].Item[5].Value = 30;      // "Allowable inertia rate"
    Element[0].Item[3].Value = 1.27;    // N·m
    Item_Format(Element[0]);
    EXPECT_EQ(Element[0].Item[0].ItemText.Str(), "400");
    EXPECT_EQ(Element[0].Item[1].ItemText.Str(), "3000");
    EXPECT_EQ(Element[0].Item[3].ItemText.Str(), "1.27");
    EXPECT_EQ(Element[0].Item[5].ItemText.Str(), "3.0E+1");
    EXPECT_EQ(Element[0].Item[2].ItemText.Str(), ".0E+0");
    EXPECT_EQ(Element[0].Item[6].ItemText.Str(), ".0E+0");
}

// --- Num_Format ------------------------------------------------------------------------

TEST_F(CatalogueTest, NumFormatExamples) {
    EXPECT_EQ(Num_Format(1234.6, 0, 1), "1235");  // "1.235E+3" read back
    EXPECT_EQ(Num_Format(0, 0, 0), "0.000");
    EXPECT_EQ(Num_Format(0, 0, 1), "0");
}

TEST_F(CatalogueTest, NumFormatKeepsTheMaskTextWhenAsked) {
    EXPECT_EQ(Num_Format(1234.6, 1, 0), "1.235E+3");
    EXPECT_EQ(Num_Format(0, 1, 1), ".0E+0");
    EXPECT_EQ(Num_Format(0.002, 1, 0), "2.0E-3");
}

TEST_F(CatalogueTest, NumFormatReadsBackTheFourDigits) {
    EXPECT_EQ(Num_Format(12.3456, 0, 1), "12.35");
    EXPECT_EQ(Num_Format(0.00012, 0, 1), "0.00012");
    EXPECT_EQ(Num_Format(0.0000123, 0, 1), "1.23E-05");
    EXPECT_EQ(Num_Format(-2.5, 0, 1), "-2.5");
    EXPECT_EQ(Num_Format(123456, 0, 1), "123500");  // 1.235E+5
}

// --- Item_Values and Item_HasMassInput ---------------------------------------------------

TEST_F(CatalogueTest, ItemValuesCopiesAllFourteenRows) {
    ElementRecord e = Fresh(42);
    for (int row = 0; row < kItemRows; ++row) e.Item[row].Value = 1.5 * row - 2;
    std::array<double, kItemRows> values{};
    values.fill(-1);
    Item_Values(e, values);
    for (int row = 0; row < kItemRows; ++row) EXPECT_EQ(values[row], 1.5 * row - 2) << row;
}

TEST_F(CatalogueTest, MassInputOnlyForTheTypesWithMassRows) {
    const std::vector<int16_t> massTypes = {2, 3, 4, 5, 7, 8, 13, 14, 15, 34};
    for (int16_t code = -1; code <= 60; ++code) {
        const bool mass = std::find(massTypes.begin(), massTypes.end(), code) != massTypes.end();
        EXPECT_EQ(Item_HasMassInput(code), mass ? 1 : -1) << code;
    }
    EXPECT_EQ(Item_HasMassInput(9999), -1);
}

}  // namespace
