// The unit categories: names, conversion factors, round trips, labels.
#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <vector>

#include "base/RuntimeError.h"
#include "tests/support/TestState.h"
#include "units/Constants.h"
#include "units/UnitTable.h"

namespace {

class UnitTableTest : public StateTest {};

// Value in the unit times factor = value in the base unit, with pi 3.14 and g 9.8.
const std::vector<std::vector<double>> kFactors = {
    {0.001, 1, 60},                                             // time, s
    {0.001, 0.01, 1},                                           // length, m
    {0.001, 0.01, 1},                                           // operating distance, m
    {2 * 3.14, 3.14 / 180, 1},                                  // rotation, rad
    {0.001, 0.01, 1, 1.0 / 60},                                 // speed, m/s
    {1, 60 / (2 * 3.14), 60, 1.0 / 6},                          // motor speed, r/min
    {2 * 3.14 / 60, 1, 2 * 3.14, 3.14 / 180},                   // rotational speed, rad/s
    {0.001, 1},                                                 // mass, kg
    {0.0001, 1, 0.000025, 0.25, 0.00001 * 9.8, 0.01 * 9.8},     // inertia, kg·m²
    {0.001, 1, 0.001 * 9.8, 9.8},                               // force, N
    {0.001, 1, 0.00001 * 9.8, 0.01 * 9.8, 9.8},                 // torque, N·m
};

TEST_F(UnitTableTest, ConstantsAreTheSystemsOwn) {
    EXPECT_EQ(kPi, 3.14);
    EXPECT_EQ(kTwoPi, 6.28);
    EXPECT_EQ(kGravity, 9.8);
}

TEST_F(UnitTableTest, EveryCategoryHasItsUnits) {
    const int counts[] = {3, 3, 3, 3, 4, 4, 4, 2, 6, 4, 5};
    for (int k = 0; k < kUnitCategories; ++k) EXPECT_EQ(Unit_Count(k), counts[k]) << k;
    EXPECT_EQ(Unit_Count(11), 0);
    EXPECT_EQ(Unit_Count(9999), 0);
}

TEST_F(UnitTableTest, ToSMultipliesByTheExactFactor) {
    for (int k = 0; k < kUnitCategories; ++k) {
        for (std::size_t u = 0; u < kFactors[k].size(); ++u) {
            EXPECT_DOUBLE_EQ(ToS(k, u, 1), kFactors[k][u]) << "kind " << k << " unit " << u;
            EXPECT_DOUBLE_EQ(ToS(k, u, 2.5), 2.5 * kFactors[k][u]) << "kind " << k << " unit " << u;
            EXPECT_DOUBLE_EQ(FromS(k, u, kFactors[k][u]), 1) << "kind " << k << " unit " << u;
        }
    }
}

TEST_F(UnitTableTest, WorkedConversions) {
    EXPECT_DOUBLE_EQ(FromS(0, 0, 1.5), 1500);         // 1.5 s = 1500 ms
    EXPECT_DOUBLE_EQ(FromS(0, 2, 90), 1.5);           // 90 s = 1.5 min
    EXPECT_DOUBLE_EQ(FromS(1, 0, 0.02), 20);          // 0.02 m = 20 mm
    EXPECT_DOUBLE_EQ(FromS(3, 1, 3.14), 180);         // pi rad = 180 degrees
    EXPECT_DOUBLE_EQ(FromS(3, 0, 6.28), 1);           // 2 pi rad = 1 rotation
    EXPECT_DOUBLE_EQ(FromS(4, 3, 1), 60);             // 1 m/s = 60 m/min
    EXPECT_DOUBLE_EQ(FromS(5, 1, 60), 6.28);          // 60 r/min = 60 / (60 / 6.28) rad/s
    EXPECT_DOUBLE_EQ(FromS(5, 2, 3000), 50);          // 3000 r/min = 50 r/s
    EXPECT_DOUBLE_EQ(FromS(5, 3, 1), 6);              // 1 r/min = 6 degree/s
    EXPECT_DOUBLE_EQ(FromS(6, 0, 6.28), 60);          // 6.28 rad/s = 60 r/min
    EXPECT_DOUBLE_EQ(FromS(7, 0, 1.5), 1500);         // kg to g
    EXPECT_DOUBLE_EQ(FromS(8, 0, 1), 10000);          // kg·m² to kg·cm²
    EXPECT_DOUBLE_EQ(FromS(8, 3, 1), 4);              // GD2 is four times the inertia
    EXPECT_DOUBLE_EQ(FromS(8, 2, 1), 40000);          // kgf·cm²(GD2): 1 / 0.000025
    EXPECT_DOUBLE_EQ(FromS(8, 5, 0.098), 1);          // 0.01 * 9.8 kg·m² = 1 kgf·cm·s²
    EXPECT_DOUBLE_EQ(FromS(9, 3, 9.8), 1);            // 9.8 N = 1 kgf
    EXPECT_DOUBLE_EQ(FromS(9, 2, 9.8), 1000);         // 9.8 N = 1000 gf
    EXPECT_DOUBLE_EQ(FromS(10, 3, 0.098), 1);         // 0.098 N·m = 1 kgf·cm
    EXPECT_DOUBLE_EQ(FromS(10, 0, 1.27), 1270);       // N·m to N·mm
    EXPECT_DOUBLE_EQ(ToS(10, 2, 1000), 0.098);        // 1000 gf·cm = 1000 * 0.000098 N·m
}

TEST_F(UnitTableTest, RoundTripForEveryKindAndUnit) {
    const double samples[] = {0, 1, -1, 0.02, 3000, 1.234567e-7, -9999, 6.28, 1e12};
    for (int k = 0; k <= 10; ++k) {
        for (int u = 0; u < Unit_Count(k); ++u) {
            for (const double x : samples) {
                const double back = ToS(k, u, FromS(k, u, x));
                EXPECT_NEAR(back, x, std::abs(x) * 1e-14) << "kind " << k << " unit " << u << " x " << x;
                const double there = FromS(k, u, ToS(k, u, x));
                EXPECT_NEAR(there, x, std::abs(x) * 1e-14) << "kind " << k << " unit " << u << " x " << x;
            }
        }
    }
}

TEST_F(UnitTableTest, KindsWithoutConversionReturnTheValueUnchanged) {
    const int16_t kinds[] = {11, 12, 13, 14, 15, 9999};
    for (const int16_t k : kinds) {
        for (const int16_t u : {int16_t{0}, int16_t{1}, int16_t{2}, int16_t{3}, int16_t{9999}}) {
            EXPECT_EQ(FromS(k, u, 7.8), 7.8) << k;
            EXPECT_EQ(ToS(k, u, 7.8), 7.8) << k;
            EXPECT_EQ(FromS(k, u, -9999), -9999) << k;
            EXPECT_EQ(ToS(k, u, 0.1), 0.1) << k;
        }
    }
}

TEST_F(UnitTableTest, DensityPassesFromSUnchanged) {
    EXPECT_EQ(FromS(12, 0, 2.7), 2.7);
    EXPECT_EQ(FromS(12, 0, 7.8), 7.8);
}

TEST_F(UnitTableTest, ConversionNeverFailsWhateverTheArguments) {
    EXPECT_EQ(FromS(-1, 0, 5), 5);
    EXPECT_EQ(ToS(16, 0, 5), 5);
    EXPECT_TRUE(std::isfinite(FromS(1, 9999, 5)));
    EXPECT_TRUE(std::isfinite(ToS(8, -1, 5)));
    EXPECT_TRUE(std::isfinite(FromS(0, 6, 5)));
}

TEST_F(UnitTableTest, NamesByteForByte) {
    const std::vector<std::vector<std::string>> names = {
        {"ms", "s", "min"},
        {"mm", "cm", "m"},
        {"mm", "cm", "m"},
        {"Rotations", "Degrees", "rad"},
        {"mm/s", "cm/s", "m/s", "m/min"},
        {"r/min", "rad/s", "r/s", "\x93" "degree/s"},
        {"r/min", "rad/s", "r/s", "\x93" "degree/s"},
        {"g", "kg"},
        {"kg\xB7" "cm\xB2" "(GD2/4)", "kg\xB7" "m\xB2" "(GD2/4)", "kgf\xB7" "cm\xB2" "(GD2)",
         "kgf\xB7" "m\xB2" "(GD2)", "gf\xB7" "cm\xB7" "s\xB2", "kgf\xB7" "cm\xB7" "s\xB2"},
        {"mN", "N", "gf", "kgf"},
        {"N\xB7" "mm", "N\xB7" "m", "gf\xB7" "cm", "kgf\xB7" "cm", "kgf\xB7" "m"},
    };
    for (int k = 0; k < kUnitCategories; ++k) {
        for (std::size_t i = 0; i < 7; ++i) {
            const std::string expected = i < names[k].size() ? names[k][i] : "";
            EXPECT_EQ(UnitTable[k].Names[i], expected) << "kind " << k << " index " << i;
            EXPECT_EQ(Unit_Name(k, i), expected) << "kind " << k << " index " << i;
        }
    }
    // The single bytes themselves, not their UTF-8 forms.
    EXPECT_EQ(Unit_Name(8, 1).size(), std::string("kg.m2(GD2/4)").size());
    EXPECT_EQ(static_cast<unsigned char>(Unit_Name(8, 1)[2]), 0xB7);
    EXPECT_EQ(static_cast<unsigned char>(Unit_Name(8, 1)[4]), 0xB2);
    EXPECT_EQ(static_cast<unsigned char>(Unit_Name(5, 3)[0]), 0x93);
    EXPECT_EQ(Unit_Name(5, 3).size(), 9u);
}

TEST_F(UnitTableTest, LabelsOfTheKindsWithoutPick) {
    EXPECT_EQ(Unit_Name(11, 0), "-");
    EXPECT_EQ(Unit_Name(11, 1), "%");
    EXPECT_EQ(Unit_Name(11, 2), "OUT/IN");
    EXPECT_EQ(Unit_Name(11, 3), "");
    for (const int16_t i : {int16_t{0}, int16_t{3}, int16_t{9999}}) {
        EXPECT_EQ(Unit_Name(12, i), "g/cm\xB3");
        EXPECT_EQ(Unit_Name(13, i), "W");
        EXPECT_EQ(Unit_Name(14, i), "J");
        EXPECT_EQ(Unit_Name(15, i), "Rate");
    }
    EXPECT_EQ(static_cast<unsigned char>(Unit_Name(12, 0)[4]), 0xB3);
}

TEST_F(UnitTableTest, NameOfAnyOtherKindIsEmpty) {
    EXPECT_EQ(Unit_Name(9999, 9999), "");
    EXPECT_EQ(Unit_Name(16, 0), "");
    EXPECT_EQ(Unit_Name(-1, 0), "");
}

TEST_F(UnitTableTest, NameIndexOfSevenOrMoreFails) {
    EXPECT_THROW(Unit_Name(0, 7), RuntimeError);
    EXPECT_THROW(Unit_Name(8, 9999), RuntimeError);
    EXPECT_THROW(Unit_Name(10, -1), RuntimeError);
    EXPECT_NO_THROW(Unit_Name(8, 6));  // exists, holds no name
    EXPECT_EQ(Unit_Name(8, 6), "");
}

TEST_F(UnitTableTest, MapGivesThePickKeepsKindElevenAndZeroesTheRest) {
    const int16_t picks[] = {2, 1, 2, 0, 3, 2, 3, 0, 5, 2, 4};
    for (int k = 0; k < kUnitCategories; ++k) UnitTable[k].Sel = picks[k];
    for (int k = 0; k < kUnitCategories; ++k) {
        EXPECT_EQ(Unit_Map(k, 0), picks[k]) << k;
        EXPECT_EQ(Unit_Map(k, 9999), picks[k]) << k;
    }
    EXPECT_EQ(Unit_Map(11, 2), 2);
    EXPECT_EQ(Unit_Map(11, 3), 3);
    EXPECT_EQ(Unit_Map(12, 5), 0);
    EXPECT_EQ(Unit_Map(15, 1), 0);
    EXPECT_EQ(Unit_Map(9999, 9999), 0);
}

TEST_F(UnitTableTest, FreshAndDefaultPicksDifferOnlyInRotationalSpeed) {
    const int16_t fresh[] = {1, 0, 0, 1, 0, 0, 1, 1, 1, 1, 1};
    const int16_t button[] = {1, 0, 0, 1, 0, 0, 0, 1, 1, 1, 1};
    for (int k = 0; k < kUnitCategories; ++k) {
        EXPECT_EQ(kUnitFreshSel[k], fresh[k]) << k;
        EXPECT_EQ(kUnitDefaultSel[k], button[k]) << k;
    }
}

}  // namespace
