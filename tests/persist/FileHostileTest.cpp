// Damaged and hostile files: nothing crashes, the reader refuses what the
// program cannot use, and the program stays usable.
#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>

#include "core/Catalogue.h"
#include "core/Tables.h"
#include "persist/FileRead.h"
#include "persist/mdlFile.h"
#include "tests/persist/Documents.h"
#include "tests/persist/FileBytes.h"
#include "tests/persist/OlderFile.h"
#include "tests/support/TestState.h"
#include "units/UnitTable.h"

namespace {

// What the rest of the program relies on after any load.
void ExpectUsable() {
    EXPECT_GE(ElementCount, 1);
    EXPECT_LE(ElementCount, 20);
    EXPECT_TRUE(MotorSelected == 0 || MotorSelected == 1);
    EXPECT_EQ(Element[0].ElementType, kTypeMotor);
    for (int slot = 1; slot < 20; ++slot) {
        const int16_t t = Element[slot].ElementType;
        EXPECT_TRUE(t == kTypeEmpty || (t != kTypeMotor && Type_Known(t))) << slot;
    }
    for (int k = 0; k < kUnitCategories; ++k) EXPECT_TRUE(UnitTable[k].Sel >= 0 && UnitTable[k].Sel < Unit_Count(k));
    for (int row = 1; row <= 20; ++row) EXPECT_TRUE(std::isfinite(Patarn[row].Time));
}

}  // namespace

class FileHostileTest : public StateTest {
protected:
    void SetUp() override {
        StateTest::SetUp();
        Document_Golden();
        good = File_Bytes();
        State_Reset();
    }

    FileReadResult ReadPatched(std::size_t at, int16_t value) {
        std::string b = good;
        PutI16(b, at, value);
        return File_Read(b);
    }

    FileReadResult ReadPatched(std::size_t at, double value) {
        std::string b = good;
        PutF64(b, at, value);
        return File_Read(b);
    }

    std::string good;
};

TEST_F(FileHostileTest, EveryTruncationOfACurrentFileFailsAndLeavesAUsableDocument) {
    for (std::size_t n = 0; n < good.size(); ++n) {
        State_Reset();
        const FileReadResult r = File_Read(std::string_view(good).substr(0, n));
        EXPECT_EQ(r, n == 3 || n == 4 ? FileReadResult::NoReader : FileReadResult::Failed) << n;
        if (n % 997 == 0) ExpectUsable();
    }
    ExpectUsable();
}

TEST_F(FileHostileTest, EveryTruncationOfAnOlderFileFailsAndMovesNothing) {
    const std::string older = OlderFile();
    for (std::size_t n = 0; n < older.size(); ++n) {
        ASSERT_EQ(File_Read(std::string_view(older).substr(0, n)), FileReadResult::Failed) << n;
        ASSERT_EQ(ElementCount, 1) << n;
    }
    ExpectUsable();
}

TEST_F(FileHostileTest, FieldsReadBeforeTheEndStay) {
    EXPECT_EQ(File_Read(std::string_view(good).substr(0, kCountAt + 1)), FileReadResult::Failed);
    EXPECT_EQ(Element[2].ElementType, 11);
    EXPECT_EQ(Patarn[3].Regeneration, kOver);
    EXPECT_EQ(ElementCount, 1);  // the new document's
    EXPECT_EQ(MotorSelected, 0);
    EXPECT_EQ(ResultValues[Rate][0], 0);
}

TEST_F(FileHostileTest, RecordCutInTheMiddleKeepsTheNewDocumentsRecord) {
    EXPECT_EQ(File_Read(std::string_view(good).substr(0, kElementAt + 2 * kElementSize + 700)),
              FileReadResult::Failed);
    EXPECT_EQ(Element[1].ElementType, 1);
    EXPECT_EQ(Element[2].ElementType, kTypeEmpty);
    EXPECT_EQ(Element[2].Item[0].UnitKind, kUnitNotUsed);
}

TEST_F(FileHostileTest, RandomBytesNeverCrash) {
    std::mt19937 rng(4);
    for (int i = 0; i < 300; ++i) {
        std::string b(rng() % 40000, '\0');
        for (char& c : b) c = static_cast<char>(rng());
        if (i % 2) b.replace(0, std::min<std::size_t>(5, b.size()), "Ver.1");
        State_Reset();
        EXPECT_NE(File_Read(b), FileReadResult::Read);
        ExpectUsable();
    }
}

TEST_F(FileHostileTest, RandomByteChangesToAValidFileNeverCrash) {
    std::mt19937 rng(5);
    for (int i = 0; i < 300; ++i) {
        std::string b = good;
        for (int k = 0; k < 8; ++k) b[rng() % b.size()] = static_cast<char>(rng());
        State_Reset();
        File_Read(b);
        ExpectUsable();
    }
}

TEST_F(FileHostileTest, NotANumberInAnItemValueIsRefused) {
    EXPECT_EQ(ReadPatched(ItemAt(2, 0) + 104, std::numeric_limits<double>::quiet_NaN()), FileReadResult::Failed);
    EXPECT_EQ(Element[1].ElementType, 1);
    EXPECT_EQ(Element[2].ElementType, kTypeEmpty);
    ExpectUsable();
}

TEST_F(FileHostileTest, InfiniteDoublesAreRefused) {
    EXPECT_EQ(ReadPatched(RowAt(2) + 40, std::numeric_limits<double>::infinity()), FileReadResult::Failed);
    EXPECT_EQ(Patarn[1].Time, 0.1);
    EXPECT_EQ(Patarn[2].RowState, 0);
    EXPECT_EQ(ReadPatched(kElementAt + 3 * kElementSize + 1572, -std::numeric_limits<double>::infinity()),
              FileReadResult::Failed);
    ExpectUsable();
}

TEST_F(FileHostileTest, ElementCountMinusFiveIsRefused) {
    EXPECT_EQ(ReadPatched(kCountAt, int16_t{-5}), FileReadResult::Failed);
    EXPECT_EQ(ElementCount, 1);
    EXPECT_EQ(Element[3].ElementType, 31);
    ExpectUsable();
}

TEST_F(FileHostileTest, ElementCount300IsRefused) {
    EXPECT_EQ(ReadPatched(kCountAt, int16_t{300}), FileReadResult::Failed);
    EXPECT_EQ(ElementCount, 1);
    ExpectUsable();
}

TEST_F(FileHostileTest, ElementCountTwentyIsAccepted) {
    EXPECT_EQ(ReadPatched(kCountAt, int16_t{20}), FileReadResult::Read);
    EXPECT_EQ(ElementCount, 20);
}

TEST_F(FileHostileTest, MotorSelected7IsRefused) {
    EXPECT_EQ(ReadPatched(kMotorSelectedAt, int16_t{7}), FileReadResult::Failed);
    EXPECT_EQ(MotorSelected, 0);
    EXPECT_EQ(ElementCount, 4);
    ExpectUsable();
}

TEST_F(FileHostileTest, TypesOutsideTheCatalogueAreRefused) {
    const std::size_t type1 = kElementAt + 1 * kElementSize + 1568;
    for (const int16_t t : {int16_t{-1}, int16_t{0}, int16_t{19}, int16_t{300}, int16_t{32767}, kTypeMotor}) {
        State_Reset();
        EXPECT_EQ(ReadPatched(type1, t), FileReadResult::Failed) << t;
        EXPECT_EQ(Element[1].ElementType, kTypeEmpty) << t;
        ExpectUsable();
    }
}

TEST_F(FileHostileTest, SlotZeroMustHoldTheMotor) {
    EXPECT_EQ(ReadPatched(kElementAt + 1568, int16_t{1}), FileReadResult::Failed);
    ExpectUsable();
}

TEST_F(FileHostileTest, OlderFileWithAnUnknownTypeIsRefusedWhole) {
    std::string b = OlderFile();
    PutI16(b, 5 * kOldElementSize + 12 * 112, 99);
    EXPECT_EQ(File_Read(b), FileReadResult::Failed);
    EXPECT_EQ(Element[1].ElementType, kTypeEmpty);
    ExpectUsable();
}

TEST_F(FileHostileTest, UnitIndexOutsideItsCategoryIsRefused) {
    EXPECT_EQ(ReadPatched(ItemAt(2, 0) + 2, int16_t{3}), FileReadResult::Failed);
    EXPECT_EQ(ReadPatched(ItemAt(2, 0), int16_t{16}), FileReadResult::Failed);
    ExpectUsable();
}

TEST_F(FileHostileTest, InputModeOutsideZeroToTwoIsRefused) {
    EXPECT_EQ(ReadPatched(kElementAt + 2 * kElementSize + 1570, int16_t{3}), FileReadResult::Failed);
}

TEST_F(FileHostileTest, RowStateOutsideZeroToThreeIsRefused) {
    EXPECT_EQ(ReadPatched(RowAt(4) + 56, int16_t{4}), FileReadResult::Failed);
    EXPECT_EQ(Patarn[3].RowState, 3);
    EXPECT_EQ(Patarn[4].RowState, 0);
}

TEST_F(FileHostileTest, UnitPickOutsideItsCategoryIsRefused) {
    UnitTable[7].Sel = 1;
    EXPECT_EQ(ReadPatched(kSelAt + 2 * 7, int16_t{7}), FileReadResult::Failed);
    EXPECT_EQ(UnitTable[7].Sel, 1);
    ExpectUsable();
}
