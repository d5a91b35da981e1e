// The catalogue database (selection/mdlDataBase): the connection, its messages, the lists it fills and the queries.
#include "selection/mdlDataBase.h"

#include <gtest/gtest.h>

#include "base/RuntimeError.h"
#include "selection/Queries.h"
#include "tests/selection/CatalogueFixture.h"

namespace {

class DataBaseTest : public SeriesDbTest {};

std::string Series(int count) {
    std::string rows;
    for (int i = 1; i <= count; ++i)
        rows += "INSERT INTO MotorSeriesMaster VALUES ('S" + std::to_string(i) + "', " + std::to_string(10 * i) +
                ", " + std::to_string(i) + ");\n";
    return rows;
}

TEST_F(DataBaseTest, MissingCatalogueGivesItsMessageAndNoConnection) {
    Series_Connect();
    ASSERT_EQ(msg.Seen().size(), 1u);
    EXPECT_EQ(msg.Seen()[0].text, "Series.db File was not found.");
    EXPECT_EQ(msg.Seen()[0].title, "Motor Selection");
    EXPECT_EQ(msg.Seen()[0].icon, MsgIcon::Exclamation);
    EXPECT_FALSE(SeriesConnection.IsOpen());
    Recordset rs;
    EXPECT_EQ(Recordset_Open(Query_Series(), rs), -1);
}

TEST_F(DataBaseTest, FileThatIsNoDatabaseFailsSilently) {
    WriteFile(appDir.File("Series.db"), "this is not a database, only some text that is long enough");
    Series_Connect();
    EXPECT_TRUE(msg.Seen().empty());
    EXPECT_FALSE(SeriesConnection.IsOpen());
}

TEST_F(DataBaseTest, FailedQueryMessageHasNoBlank) {
    Recordset_Failed();
    ASSERT_EQ(msg.Seen().size(), 1u);
    EXPECT_EQ(msg.Seen()[0].text, "Series.dbFile was not found.");
}

TEST_F(DataBaseTest, ConnectionIsReadOnly) {
    Build(Series(1));
    Series_Connect();
    Recordset rs;
    EXPECT_EQ(Recordset_Open("DELETE FROM MotorSeriesMaster;", rs), -1);
    EXPECT_EQ(Recordset_Open(Query_Series(), rs), 0);
    EXPECT_EQ(rs.RecordCount(), 1);
}

TEST_F(DataBaseTest, ElevenSeriesFillTheList) {
    Build(Series(11));
    Series_Connect();
    Recordset rs;
    ASSERT_EQ(Recordset_Open(Query_Series(), rs), 0);
    std::vector<std::string> list{"old"};
    List_Fill(rs, list, 0);
    ASSERT_EQ(list.size(), 11u);
    EXPECT_EQ(list[10], "S11");
    EXPECT_EQ(SeriesFlgList[10], 110);
    EXPECT_EQ(SeriesIDList[10], 11);
}

TEST_F(DataBaseTest, TwelfthRowIsARunTimeFailure) {
    Build(Series(12));
    Series_Connect();
    Recordset rs;
    ASSERT_EQ(Recordset_Open(Query_Series(), rs), 0);
    std::vector<std::string> list;
    EXPECT_THROW(List_Fill(rs, list, 0), RuntimeError);
}

TEST_F(DataBaseTest, AKeyOutsideSixteenBitsIsTheFailureOverflow) {
    Build("INSERT INTO MotorSeriesMaster VALUES ('S', 1e11, 1);");
    Series_Connect();
    Recordset rs;
    ASSERT_EQ(Recordset_Open(Query_Series(), rs), 0);
    std::vector<std::string> list;
    try {
        List_Fill(rs, list, 0);
        ADD_FAILURE();
    } catch (const RuntimeError& e) {
        EXPECT_STREQ(e.what(), "Overflow");
    }
}

TEST_F(DataBaseTest, ModelGroupsFillFromTheCurrentRow) {
    Build("INSERT INTO ModelMaster VALUES (10, 'G1', 1), (10, 'G2', 7), (20, 'Other', 3);");
    Series_Connect();
    Recordset rs;
    ASSERT_EQ(Recordset_Open(Query_Models(10), rs), 0);
    std::vector<std::string> list;
    List_Fill(rs, list, 1);
    EXPECT_EQ(list, (std::vector<std::string>{"G1", "G2"}));
    EXPECT_EQ(ModelFlgList[1], 7);
}

TEST_F(DataBaseTest, FieldsByNameWithoutRegardToCaseAndBlanks) {
    Build("INSERT INTO DriverTable VALUES ('D1', NULL, '', 2, 'Pulse', NULL, NULL);");
    Series_Connect();
    Recordset rs;
    ASSERT_EQ(Recordset_Open("SELECT * FROM DriverTable;", rs), 0);
    EXPECT_EQ(rs.Field("DriverType").Num(), 2);
    EXPECT_EQ(rs.Field("DRIVERMODEL").Text(), "D1");
    EXPECT_TRUE(rs.Field("Regeneration1").Blank());
    EXPECT_TRUE(rs.Field("Regeneration2").Blank());
    EXPECT_FALSE(rs.Field("CommandSystem").Blank());
    EXPECT_THROW(rs.Field("NoSuchField"), RuntimeError);
}

TEST_F(DataBaseTest, MovesFromTheFirstRow) {
    Build(Series(3));
    Series_Connect();
    Recordset rs;
    ASSERT_EQ(Recordset_Open(Query_Series(), rs), 0);
    rs.MoveNext();
    rs.MoveFirst();
    rs.Move(2);
    EXPECT_EQ(rs.Field("SeriesName").Text(), "S3");
    rs.MoveNext();
    EXPECT_TRUE(rs.IsEOF());
    EXPECT_THROW(rs.Field("SeriesName"), RuntimeError);
    rs.MoveFirst();
    EXPECT_THROW(rs.Move(-1), RuntimeError);
}

TEST_F(DataBaseTest, BlankCapacitySortsFirstAndQuoteInModelFailsTheDriverQuery) {
    Build("INSERT INTO MotorTable (SeriesID, ModelFlg, MotorModel, Capacity) VALUES"
          " (1, 1, 'M200', 200), (1, 1, 'M-none', NULL), (1, 1, 'M100', 100), (1, 2, 'Other', 50);");
    Series_Connect();
    Recordset rs;
    ASSERT_EQ(Recordset_Open(Query_Motors(1, 1), rs), 0);
    ASSERT_EQ(rs.RecordCount(), 3);
    EXPECT_EQ(rs.Field("MotorModel").Text(), "M-none");
    EXPECT_EQ(Recordset_Open(Query_Drivers("M'1"), rs), -1);
    EXPECT_TRUE(msg.Seen().empty());
}

TEST(Queries, TextsWordForWord) {
    EXPECT_EQ(Query_Series(), "SELECT * FROM MotorSeriesMaster;");
    EXPECT_EQ(Query_Models(20), "SELECT * FROM ModelMaster WHERE ModelMaster.SeriesFlg= 20;");
    EXPECT_EQ(Query_Motors(3, 12),
              "SELECT * FROM MotorTable WHERE MotorTable.SeriesID = 3 AND MotorTable.ModelFlg = 12 order by Capacity;");
    EXPECT_EQ(Query_Drivers("AB-1"),
              "SELECT DriverTable.* FROM MotorDriverTable,DriverTable WHERE MotorDriverTable.MotorModel = 'AB-1' AND "
              "MotorDriverTable.[DriverModel] = DriverTable.[DriverModel] order by DriverTable.[DriverModel];");
    EXPECT_EQ(Query_DriverTypes(), "SELECT * FROM DriverTypeMaster order by DriverType;");
}

}  // namespace
