// The layout of a saved document (persist): the version, size and field offsets, the golden file, the reader chosen.
#include <gtest/gtest.h>

#include "base/Version.h"
#include "core/Catalogue.h"
#include "core/Tables.h"
#include "persist/FileRead.h"
#include "persist/mdlFile.h"
#include "tests/persist/Documents.h"
#include "tests/persist/FileBytes.h"
#include "tests/support/TestState.h"
#include "units/UnitTable.h"

class FileLayoutTest : public StateTest {};

TEST_F(FileLayoutTest, VersionTextIsVerWithMajorMinorRevision) {
    const std::string expected = "Ver." + std::to_string(kVersionMajor) + "." + std::to_string(kVersionMinor) + "." +
                                 std::to_string(kVersionRevision);
    EXPECT_EQ(File_VersionText(), expected);
    const std::string bytes = File_Bytes();
    EXPECT_EQ(TextAt(bytes, 0, 10), expected + std::string(10 - expected.size(), ' '));
}

TEST_F(FileLayoutTest, CurrentFileHas35763Bytes) { EXPECT_EQ(File_Bytes().size(), 35763u); }

TEST_F(FileLayoutTest, FieldsLieAtTheOffsetsOfTheLayout) {
    Document_Golden();
    const std::string b = File_Bytes();
    EXPECT_EQ(I16At(b, ItemAt(0, 3)), 10);                 // UnitKind of "Rated torque"
    EXPECT_EQ(I16At(b, ItemAt(0, 3) + 2), 0);              // its unit, N.mm
    EXPECT_EQ(TextAt(b, ItemAt(0, 3) + 4, 12), "Rated torque");
    EXPECT_EQ(TextAt(b, ItemAt(0, 3) + 54, 5), "1.27 ");
    EXPECT_EQ(F64At(b, ItemAt(0, 3) + 104), 1.27);
    EXPECT_EQ(I16At(b, kElementAt + 2 * kElementSize + 1568), 11);  // ElementType of slot 2
    EXPECT_EQ(I16At(b, kElementAt + 2 * kElementSize + 1570), 1);   // InputMode
    EXPECT_EQ(F64At(b, kElementAt + 2 * kElementSize + 1572), 0.000125);
    EXPECT_EQ(I16At(b, kElementAt + 19 * kElementSize + 1568), kTypeEmpty);
    EXPECT_EQ(F64At(b, RowAt(1)), 0.1);
    EXPECT_EQ(F64At(b, RowAt(2) + 8), 0.5);
    EXPECT_EQ(F64At(b, RowAt(2) + 16), 314.0);
    EXPECT_EQ(F64At(b, RowAt(3) + 32), 0.06);
    EXPECT_EQ(F64At(b, RowAt(3) + 40), -1.05);
    EXPECT_EQ(F64At(b, RowAt(3) + 48), -9999.0);
    EXPECT_EQ(I16At(b, RowAt(3) + 56), 3);
    EXPECT_EQ(I16At(b, RowAt(4) + 56), 0);
    EXPECT_EQ(I16At(b, kCountAt), 4);
    EXPECT_EQ(I16At(b, kMotorSelectedAt), 1);
    EXPECT_EQ(TextAt(b, kMotorModelAt, 60), "TV-M400A-B" + std::string(50, ' '));
    EXPECT_EQ(TextAt(b, kMotorCommentAt, 21), "Brake, straight shaft");
    EXPECT_EQ(TextAt(b, kDriverModelAt, 6), "TV-D04");
    EXPECT_EQ(TextAt(b, kDriverCommentAt, 30), "Regeneration resistor built in");
    EXPECT_EQ(I16At(b, kInfoAt), 1);
    EXPECT_EQ(TextAt(b, kInfoAt + 2, 10), "Acme Works");
    EXPECT_EQ(TextAt(b, kInfoAt + 282, 10), "J. Lef\xE8vre");
    EXPECT_EQ(TextAt(b, kInfoAt + 422, 22), "Pick and place, axis X");
    EXPECT_EQ(TextAt(b, kInfoAt + 622 + 5 * 100, 6), "Line 6");
    EXPECT_EQ(TextAt(b, kInfoAt + 1222, 24), "Checked at 20 degrees C.");
    EXPECT_EQ(I16At(b, kInfoAt + 2246), 1);
    EXPECT_EQ(I16At(b, kInfoAt + 2248), 1);
    EXPECT_EQ(I16At(b, kInfoAt + 2250), 0);
    EXPECT_EQ(I16At(b, kInfoAt + 2252), 1);
    EXPECT_EQ(I16At(b, kInfoAt + 2254), 0);
    EXPECT_EQ(TextAt(b, kInfoAt + 2256, 256), std::string(256, ' '));
    for (int k = 0; k < kUnitCategories; ++k) EXPECT_EQ(I16At(b, kSelAt + 2 * k), UnitTable[k].Sel) << k;
    EXPECT_EQ(I16At(b, kSelAt + 2 * 5), 1);
}

TEST_F(FileLayoutTest, NewDocumentStoresTheBlockDefaults) {
    const std::string b = File_Bytes();
    EXPECT_EQ(I16At(b, kInfoAt), 0);
    EXPECT_EQ(I16At(b, kInfoAt + 2246), 1);
    EXPECT_EQ(I16At(b, kInfoAt + 2248), 0);
    EXPECT_EQ(I16At(b, kInfoAt + 2250), 1);
    EXPECT_EQ(I16At(b, kInfoAt + 2252), 0);
    EXPECT_EQ(TextAt(b, kInfoAt + 2256, 256), std::string(256, ' '));
}

TEST_F(FileLayoutTest, ChainOfThreeStillStoresTwentyElementRecords) {
    Document_Golden();
    ElementCount = 3;
    Element[10].ElementType = 2;
    Item_Defaults(2, Element[10].Item);
    const std::string b = File_Bytes();
    ASSERT_EQ(b.size(), 35763u);
    EXPECT_EQ(I16At(b, kCountAt), 3);
    EXPECT_EQ(I16At(b, kElementAt + 3 * kElementSize + 1568), 31);  // the load, behind the count
    EXPECT_EQ(I16At(b, kElementAt + 10 * kElementSize + 1568), 2);
    EXPECT_EQ(TextAt(b, ItemAt(10, 0) + 4, 15), "Input gear dia.");

    State_Reset();
    ASSERT_EQ(File_Read(b), FileReadResult::Read);
    EXPECT_EQ(Element[3].ElementType, 31);
    EXPECT_EQ(Element[10].ElementType, 2);
    EXPECT_EQ(Element[10].Item[0].Value, 0.02);
}

TEST_F(FileLayoutTest, GoldenFileIsByteIdentical) {
    Document_Golden();
    const std::string golden = ReadFile(TestData("horizontal-ballscrew.AP2"));
    ASSERT_EQ(golden.size(), 35763u);
    EXPECT_TRUE(File_Bytes() == golden);
}

TEST_F(FileLayoutTest, GoldenFileReadsIntoIdenticalTables) {
    Document_Golden();
    const auto element = Element;
    const auto patarn = Patarn;
    const PrintInfoRecord info = PRINTINFO;
    const std::string written = File_Bytes();

    State_Reset();
    ASSERT_EQ(File_Read(ReadFile(TestData("horizontal-ballscrew.AP2"))), FileReadResult::Read);
    EXPECT_TRUE(File_Bytes() == written);
    for (int slot = 0; slot < 20; ++slot) {
        EXPECT_EQ(Element[slot].ElementType, element[slot].ElementType) << slot;
        EXPECT_EQ(Element[slot].DirectValue, element[slot].DirectValue) << slot;
        for (int row = 0; row < kItemRows; ++row) {
            EXPECT_EQ(Element[slot].Item[row].ItemName, element[slot].Item[row].ItemName);
            EXPECT_EQ(Element[slot].Item[row].ItemText, element[slot].Item[row].ItemText);
            EXPECT_EQ(Element[slot].Item[row].UnitIndex, element[slot].Item[row].UnitIndex);
            EXPECT_EQ(Element[slot].Item[row].Value, element[slot].Item[row].Value);
        }
    }
    for (int row = 1; row <= 20; ++row) {
        EXPECT_EQ(Patarn[row].Time, patarn[row].Time);
        EXPECT_EQ(Patarn[row].Regeneration, patarn[row].Regeneration);
        EXPECT_EQ(Patarn[row].RowState, patarn[row].RowState);
    }
    EXPECT_EQ(ElementCount, 4);
    EXPECT_EQ(MotorSelected, 1);
    EXPECT_EQ(PRINTINFO.Name, info.Name);
    EXPECT_EQ(PRINTINFO.PrintComment, info.PrintComment);
    EXPECT_EQ(PRINTINFO.PrintOption, info.PrintOption);
    EXPECT_EQ(UnitTable[5].Sel, 1);
    EXPECT_EQ(UnitTable[10].Sel, 0);
}

TEST_F(FileLayoutTest, ReadTextsKeepTheirBlanks) {
    Document_Golden();
    const std::string b = File_Bytes();
    State_Reset();
    ASSERT_EQ(File_Read(b), FileReadResult::Read);
    EXPECT_EQ(MotorModelText.Raw(), "TV-M400A-B" + std::string(50, ' '));
}

TEST_F(FileLayoutTest, RatingsAreRebuiltFromTheMotorRows) {
    Document_Golden();
    const std::string b = File_Bytes();
    State_Reset();
    ASSERT_EQ(File_Read(b), FileReadResult::Read);
    const std::array<double, 7> rates = {1.27, 4.46, 3000, 2.63e-5, 18, 12, 1.27};
    EXPECT_EQ(ResultValues[Rate], rates);
}

TEST_F(FileLayoutTest, FileBeginningVer9IsReadAsCurrent) {
    Document_Golden();
    std::string b = File_Bytes();
    PutText(b, 0, 10, "Ver.9.4.2");
    State_Reset();
    EXPECT_EQ(File_Read(b), FileReadResult::Read);
    EXPECT_EQ(ElementCount, 4);
}

TEST_F(FileLayoutTest, AnyDigitInPlaceFiveChoosesTheCurrentReader) {
    Document_Golden();
    std::string b = File_Bytes();
    PutText(b, 0, 10, "Ver 0");
    State_Reset();
    EXPECT_EQ(File_Read(b), FileReadResult::Read);
}

TEST_F(FileLayoutTest, VerWithALetterInPlaceFiveReadsNothing) {
    Document_Golden();
    std::string b = File_Bytes();
    PutText(b, 0, 10, "Ver.x.0.0");
    State_Reset();
    EXPECT_EQ(File_Read(b), FileReadResult::NoReader);
    EXPECT_EQ(ElementCount, 1);
    EXPECT_EQ(Element[1].ElementType, kTypeEmpty);
    EXPECT_EQ(ResultValues[Rate][0], 0);
}

TEST_F(FileLayoutTest, VerWithoutAFifthCharacterReadsNothing) {
    EXPECT_EQ(File_Read("Ver"), FileReadResult::NoReader);
    EXPECT_EQ(File_Read("Ver."), FileReadResult::NoReader);
}
