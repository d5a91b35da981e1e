// The chosen motor's curve and the chosen driver's limits read from the
// catalogue (selection/ChosenParts), on small catalogues and on the bundled one.
#include "selection/ChosenParts.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "core/Tables.h"
#include "selection/MotorPage.h"
#include "selection/Recordset.h"
#include "tests/selection/CatalogueFixture.h"

namespace {

class ChosenPartsTest : public SeriesDbTest {
protected:
    std::string Db() const { return appDir.File("Series.db"); }
    // M1 with three points given out of order, M1-B with one; drivers with
    // both limits, with blank and zero limits.
    void BuildWithCurves(const std::string& more = "") {
        Build(Catalogue_CurveTable() +
              "INSERT INTO MotorCurve VALUES ('M1', 3000, 1, 3), ('M1', 0, 1, 3), ('M1', 5000, 0.5, 1),"
              " ('M1-B', 2000, 0.9, 2.5);"
              "INSERT INTO DriverTable VALUES ('D1', 20, 10, 1, '', '', ''), ('D2', NULL, 0, 1, '', '', ''),"
              " ('O''D', -3, 'x', 1, '', '', '');" +
              more);
    }
};

TEST_F(ChosenPartsTest, TheMotorsPointsComeBySpeed) {
    BuildWithCurves();
    const ChosenParts p = Parts_Read(Db(), "M1", "D1");
    ASSERT_EQ(p.curveSource, CurveSource::Found);
    EXPECT_EQ(p.curveModel, "M1");
    ASSERT_EQ(p.curve.points.size(), 3u);
    EXPECT_EQ(p.curve.points[0].speed, 0);
    EXPECT_EQ(p.curve.points[1].speed, 3000);
    EXPECT_EQ(p.curve.points[2].peak, 1);
    EXPECT_EQ(p.driverSource, DriverSource::Found);
    EXPECT_EQ(p.energyLimit, 20);
    EXPECT_EQ(p.powerLimit, 10);
}

TEST_F(ChosenPartsTest, AModelNumberWithOptionsTakesTheLongestCatalogueModel) {
    BuildWithCurves();
    EXPECT_EQ(Parts_Read(Db(), "M1-K7", "").curveModel, "M1");
    const ChosenParts braked = Parts_Read(Db(), "M1-B-K7", "");
    EXPECT_EQ(braked.curveModel, "M1-B");
    EXPECT_EQ(braked.curve.points.size(), 1u);
    EXPECT_EQ(Parts_Read(Db(), "M2", "").curveSource, CurveSource::NoCurve);
    EXPECT_EQ(Parts_Read(Db(), "M", "").curveSource, CurveSource::NoCurve);
}

TEST_F(ChosenPartsTest, BlankZeroAndNegativeLimitsAreNoLimit) {
    BuildWithCurves();
    const ChosenParts blank = Parts_Read(Db(), "", "D2");
    EXPECT_EQ(blank.driverSource, DriverSource::Found);
    EXPECT_FALSE(blank.energyLimit);
    EXPECT_FALSE(blank.powerLimit);
    const ChosenParts odd = Parts_Read(Db(), "", "O'D");  // a quote in the model number
    EXPECT_EQ(odd.driverSource, DriverSource::Found);
    EXPECT_FALSE(odd.energyLimit);
    EXPECT_FALSE(odd.powerLimit);
    EXPECT_EQ(Parts_Read(Db(), "", "D9").driverSource, DriverSource::NotInCatalogue);
    EXPECT_EQ(Parts_Read(Db(), "", "").driverSource, DriverSource::NoDriver);
    EXPECT_EQ(Parts_Read(Db(), "", "").curveSource, CurveSource::NoMotor);
}

TEST_F(ChosenPartsTest, ACatalogueWithoutTheCurveTableSaysSo) {
    Build("INSERT INTO DriverTable VALUES ('D1', 20, 10, 1, '', '', '');");
    const ChosenParts p = Parts_Read(Db(), "M1", "D1");
    EXPECT_EQ(p.curveSource, CurveSource::NoTable);
    EXPECT_TRUE(p.curve.points.empty());
    EXPECT_EQ(p.driverSource, DriverSource::Found);
    EXPECT_EQ(p.energyLimit, 20);
}

TEST_F(ChosenPartsTest, ACatalogueWithoutTheCurveTableJudgesMotorsAsBefore) {
    Build("INSERT INTO MotorSeriesMaster VALUES ('S', 10, 1); INSERT INTO ModelMaster VALUES (10, 'G', 1);"
          "INSERT INTO MotorTable VALUES (1, 1, 'M1', 100, 3000, 1e-5, 0.3, 0.9, 10, 1, 0, NULL);");
    MotorPage page;
    MotorPage_Load(page);
    ASSERT_EQ(page.lstS.size(), 1u);
    MotorPage_PickSeries(page, 0);
    MotorPage_Judge(page);
    EXPECT_EQ(MotorRowCount, 1);
    EXPECT_EQ(page.vsfData.Cell(2, 1).text, "M1");
    EXPECT_FALSE(page.vsfData.Cell(2, 0).text.empty());
}

TEST_F(ChosenPartsTest, PointsThatMakeNoCurveAreUnusable) {
    BuildWithCurves("INSERT INTO MotorCurve VALUES ('BAD', 0, 1, NULL), ('TEXT', 0, 'one', 2), ('NEG', 0, 1, -2);");
    for (const char* model : {"BAD", "TEXT", "NEG"}) {
        const ChosenParts p = Parts_Read(Db(), model, "");
        EXPECT_EQ(p.curveSource, CurveSource::Unusable) << model;
        EXPECT_FALSE(p.problem.empty()) << model;
    }
}

TEST_F(ChosenPartsTest, ACurveTableOfTheWrongShapeIsACatalogueThatCannotBeRead) {
    Build("CREATE TABLE MotorCurve (Model TEXT, Rpm REAL);");
    EXPECT_EQ(Parts_Read(Db(), "M1", "").curveSource, CurveSource::NoCatalogue);
}

TEST_F(ChosenPartsTest, AMissingOrBrokenCatalogueCannotBeRead) {
    EXPECT_EQ(Parts_Read(Db(), "M1", "D1").curveSource, CurveSource::NoCatalogue);
    EXPECT_EQ(Parts_Read(Db(), "M1", "D1").driverSource, DriverSource::NoCatalogue);
    WriteFile(Db(), "not a database at all, not at all");
    EXPECT_EQ(Parts_Read(Db(), "M1", "D1").curveSource, CurveSource::NoCatalogue);
}

TEST_F(ChosenPartsTest, TheDocumentsPartsComeFromItsTexts) {
    BuildWithCurves();
    MotorModelText = "M1-X";
    DriverModelText = "D1";
    EXPECT_EQ(Parts_OfDocument().curveSource, CurveSource::NoMotor);  // none chosen yet
    MotorSelected = kMotorChosen;
    const ChosenParts p = Parts_OfDocument();
    EXPECT_EQ(p.curveModel, "M1");
    EXPECT_EQ(p.powerLimit, 10);
}

// Every motor of the bundled catalogue with a rated speed and torques has a
// curve that gives its rated and maximum torques up to its rated speed and
// less above it.
TEST_F(ChosenPartsTest, TheBundledMotorsHaveCurvesFlatToTheirRatedSpeed) {
    std::filesystem::copy_file(Catalogue_Bundled(), Db());
    Connection db;
    ASSERT_EQ(db.Open(Db()), 0);
    Recordset motors;
    ASSERT_TRUE(db.Execute("SELECT * FROM MotorTable;", motors));
    int curves = 0;
    for (; !motors.IsEOF(); motors.MoveNext()) {
        const std::string model = motors.Field("MotorModel").Text();
        const double n = motors.Field("RotationalSpeed").Num(), rated = motors.Field("RatedTorque").Num(),
                     maximum = motors.Field("MaximumTorque").Num();
        const ChosenParts p = Parts_Read(Db(), model, "");
        if (n <= 0 || rated <= 0 || maximum <= 0) {
            EXPECT_EQ(p.curveSource, CurveSource::NoCurve) << model;
            continue;
        }
        ASSERT_EQ(p.curveSource, CurveSource::Found) << model;
        EXPECT_EQ(p.curveModel, model);
        ++curves;
        const CurveOffer flat = p.curve.LowestOver(0, n, &CurvePoint::continuous);
        EXPECT_DOUBLE_EQ(flat.torque, rated) << model;
        EXPECT_DOUBLE_EQ(p.curve.LowestOver(0, n, &CurvePoint::peak).torque, maximum) << model;
        EXPECT_GT(p.curve.TopSpeed(), n) << model;
        EXPECT_LT(p.curve.LowestOver(p.curve.TopSpeed(), p.curve.TopSpeed(), &CurvePoint::peak).torque, maximum);
    }
    EXPECT_GT(curves, 50);
}

}  // namespace
