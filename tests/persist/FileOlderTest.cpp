// Reading a document of the older layout (persist/FileReadOlder): the elements, rows and texts taken over.
#include <gtest/gtest.h>

#include "core/Tables.h"
#include "persist/FileRead.h"
#include "tests/persist/OlderFile.h"
#include "tests/support/TestState.h"
#include "units/UnitTable.h"

class FileOlderTest : public StateTest {
protected:
    void Read() { ASSERT_EQ(File_Read(OlderFile()), FileReadResult::Read); }
};

TEST_F(FileOlderTest, ElementsKeepTypeModeAndDirectValue) {
    Read();
    EXPECT_EQ(Element[0].ElementType, 51);
    EXPECT_EQ(Element[1].ElementType, 1);
    EXPECT_EQ(Element[2].ElementType, 11);
    EXPECT_EQ(Element[3].ElementType, 31);
    EXPECT_EQ(Element[19].ElementType, 50);
    EXPECT_EQ(Element[2].InputMode, 1);
    EXPECT_EQ(Element[2].DirectValue, 0.0002);
    EXPECT_EQ(ElementCount, 4);
    EXPECT_EQ(MotorSelected, 1);
}

TEST_F(FileOlderTest, RowsZeroToTenComeFromTheFile) {
    Read();
    const ElementItem& pitch = Element[2].Item[0];
    EXPECT_EQ(pitch.ItemName.Str(), "Screw pitch");  // trimmed
    EXPECT_EQ(pitch.UnitKind, 1);
    EXPECT_EQ(pitch.UnitIndex, 0);
    EXPECT_EQ(pitch.Value, 0.01);
    EXPECT_EQ(pitch.ItemText.Str(), " 10");  // taken as it stands
    EXPECT_EQ(Element[0].Item[3].ItemName.Str(), "Rated torque");
    EXPECT_EQ(Element[0].Item[5].UnitKind, kUnitNotUsed);  // the file's row, not the catalogue's
}

TEST_F(FileOlderTest, RowsElevenToThirteenAreLaidOutAfresh) {
    Read();
    const ElementRecord& screw = Element[2];
    EXPECT_EQ(screw.Item[11].UnitKind, kUnitNotUsed);
    EXPECT_EQ(screw.Item[11].ItemName.Str(), "");
    EXPECT_EQ(screw.Item[13].ItemName.Str(), "Culculated inertia");
    EXPECT_EQ(screw.Item[13].UnitKind, 8);
    EXPECT_EQ(Element[0].Item[13].UnitKind, kUnitNotUsed);
    EXPECT_EQ(Element[19].Item[13].ItemName.Str(), "Culculated inertia");
}

TEST_F(FileOlderTest, PatternRowIGoesToRecordIPlusOne) {
    Read();
    EXPECT_EQ(Patarn[1].Time, 0.2);
    EXPECT_EQ(Patarn[1].Speed, 3000);
    EXPECT_EQ(Patarn[1].Torque, 0.8);
    EXPECT_EQ(Patarn[1].RowState, 3);
    EXPECT_EQ(Patarn[2].RowState, 0);
    EXPECT_EQ(Patarn[0].RowState, 0);
}

TEST_F(FileOlderTest, MotorAndDriverTextsAreCutAndTrimmed) {
    Read();
    EXPECT_EQ(MotorModelText.Str(), "TV-M200A");
    EXPECT_EQ(MotorComment.Str(), "Older comment");
    EXPECT_EQ(MotorComment.Raw().size(), 255u);
    EXPECT_EQ(DriverModelText.Str(), "TV-D02");
    EXPECT_EQ(DriverComment.Str(), "Driver note");
}

TEST_F(FileOlderTest, InfoMotorModelTakesTheSelectedMotorText) {
    Read();
    EXPECT_EQ(PRINTINFO.InfoMotorModel.Str(), "TV-M200A");
    EXPECT_EQ(PRINTINFO.InfoDriverModel.Str(), "TV-D02");
}

TEST_F(FileOlderTest, BlockStringsAreTrimmedAndSystemCutToSixty) {
    Read();
    EXPECT_EQ(PRINTINFO.PrintInfoSet, 1);
    EXPECT_EQ(PRINTINFO.cstCorporation.Str(), "Acme");
    EXPECT_EQ(PRINTINFO.Name.Str(), "R. Roe");
    EXPECT_EQ(PRINTINFO.System.Str(), std::string(55, 'S') + "-sixt");
    EXPECT_EQ(PRINTINFO.PrintComment.Str(), "Old comment");
    EXPECT_EQ(PRINTINFO.ReservedText.Str(), "");
}

TEST_F(FileOlderTest, PrintOptionsMapFromTheFourOldWords) {
    Read();
    const std::array<int16_t, 4> expected = {2, 3, 1, 5};
    EXPECT_EQ(PRINTINFO.PrintOption, expected);
    EXPECT_EQ(PRINTINFO.Reserved, 0);
}

TEST_F(FileOlderTest, UnitPicksAreCopied) {
    Read();
    const int16_t sel[11] = {1, 0, 2, 1, 0, 2, 1, 0, 1, 1, 4};
    for (int k = 0; k < 11; ++k) EXPECT_EQ(UnitTable[k].Sel, sel[k]) << k;
}

TEST_F(FileOlderTest, RatingsAreRebuiltFromTheMotorRows) {
    Read();
    const std::array<double, 7> rates = {0.64, 1.91, 3000, 1.2e-5, 7, 5, 0.64};
    EXPECT_EQ(ResultValues[Rate], rates);
}

TEST_F(FileOlderTest, ShortOlderFileFailsAndMovesNothing) {
    const std::string b = OlderFile();
    EXPECT_EQ(File_Read(std::string_view(b).substr(0, kOldFileSize - 1)), FileReadResult::Failed);
    EXPECT_EQ(ElementCount, 1);
    EXPECT_EQ(Element[1].ElementType, 50);
    EXPECT_EQ(MotorSelected, 0);
    EXPECT_EQ(PRINTINFO.Name.Str(), "");
}

TEST_F(FileOlderTest, LongerOlderFileReadsItsFirst31096Bytes) {
    EXPECT_EQ(File_Read(OlderFile() + "trailing"), FileReadResult::Read);
    EXPECT_EQ(ElementCount, 4);
}
