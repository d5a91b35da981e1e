// Reading Param.ini (reports/ParamIni): its place, keys and sections without regard to case, the defaults.
#include <gtest/gtest.h>

#include "reports/ParamIni.h"
#include "tests/reports/ReportFixture.h"

using ParamIniTest = ReportTest;

TEST_F(ParamIniTest, TheFileLiesInTheApplicationFolder) { EXPECT_EQ(ParamIni_Path(), appDir.File("Param.ini")); }

TEST_F(ParamIniTest, KeysAndSectionsWithoutRegardToCase) {
    WriteParamIni("[5]\r\nSET0=3\r\nset1=inert0=([1]^2+[0]^2)*m1/8\r\n");
    EXPECT_EQ(ParamIni_Int(ParamIni_Path(), "5", "Set0"), 3);
    EXPECT_EQ(ParamIni_String(ParamIni_Path(), "5", "Set1"), "inert0=([1]^2+[0]^2)*m1/8");
}

TEST_F(ParamIniTest, MissingFileSectionOrKeyGivesTheDefaults) {
    EXPECT_EQ(ParamIni_Int(ParamIni_Path(), "5", "Set0"), 0);
    EXPECT_EQ(ParamIni_String(ParamIni_Path(), "5", "Set1"), "");
    WriteParamIni("[5]\nSet0=1\n");
    EXPECT_EQ(ParamIni_Int(ParamIni_Path(), "6", "Set0"), 0);
    EXPECT_EQ(ParamIni_String(ParamIni_Path(), "5", "Set1"), "");
}

TEST_F(ParamIniTest, TheFirstOfTwoEqualKeysCounts) {
    WriteParamIni("[1]\nSet1=first\nSet1=second\n[1]\nSet1=third\n");
    EXPECT_EQ(ParamIni_String(ParamIni_Path(), "1", "Set1"), "first");
}

TEST_F(ParamIniTest, SectionsAreKeptApart) {
    WriteParamIni("[1]\nSet0=1\n[11]\nSet0=7\n");
    EXPECT_EQ(ParamIni_Int(ParamIni_Path(), "1", "Set0"), 1);
    EXPECT_EQ(ParamIni_Int(ParamIni_Path(), "11", "Set0"), 7);
}

TEST_F(ParamIniTest, ValuesAreTrimmedAndKeepSemicolonsAndColons) {
    WriteParamIni("[3]\nSet1 =   a=b ; c:d   \n");
    EXPECT_EQ(ParamIni_String(ParamIni_Path(), "3", "Set1"), "a=b ; c:d");
}

TEST_F(ParamIniTest, AnIndentedLineIsAnEntryOfItsOwn) {
    WriteParamIni("[3]\nSet1=a\n  Set2=b\n");
    EXPECT_EQ(ParamIni_String(ParamIni_Path(), "3", "Set1"), "a");
    EXPECT_EQ(ParamIni_String(ParamIni_Path(), "3", "Set2"), "b");
}

TEST_F(ParamIniTest, ValuesAreCutTo255BytesAndLongLinesStayWhole) {
    WriteParamIni("[3]\nSet1=" + std::string(300, 'x') + "=y\nSet2=z\n");
    EXPECT_EQ(ParamIni_String(ParamIni_Path(), "3", "Set1"), std::string(255, 'x'));
    EXPECT_EQ(ParamIni_String(ParamIni_Path(), "3", "Set2"), "z");
}

TEST_F(ParamIniTest, TheCountIsTheWholeNumberAtTheHead) {
    WriteParamIni("[3]\nSet0=2 items\n[4]\nSet0=none\n");
    EXPECT_EQ(ParamIni_Int(ParamIni_Path(), "3", "Set0"), 2);
    EXPECT_EQ(ParamIni_Int(ParamIni_Path(), "4", "Set0"), 0);
}
