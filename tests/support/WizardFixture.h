// The selection wizard over a sized document: the fixture of the tests of its
// two pages, with small catalogues of motors and drivers of every verdict.
#pragma once

#include <QApplication>
#include <QColor>
#include <QListWidget>
#include <QPushButton>
#include <QTest>
#include <algorithm>
#include <memory>
#include <string>

#include "selection/mdlDataBase.h"
#include "selection/ui/GridView.h"
#include "selection/ui/frmList1.h"
#include "selection/ui/frmList2.h"
#include "tests/selection/CatalogueFixture.h"
#include "tests/selection/SizedDocument.h"
#include "tests/support/Controls.h"
#include "tests/support/WorkbenchFixture.h"
#include "workbench/frmMain.h"

class WizardTest : public WorkbenchTest {
protected:
    static constexpr double kJm = 1e-4;
    static inline const QColor kRed{255, 0, 0};
    static inline const QColor kOrange{255, 128, 0};

    void SetUp() override {
        WorkbenchTest::SetUp();
        w = std::make_unique<frmMain>();
        StartWith(*w, 1);
        Document_Sized();
        w->Disp_Refresh();
        v = Trial(kJm, 2);
    }

    void TearDown() override {
        w.reset();
        MotorRecordset.Close();
        DriverRecordset.Close();
        SeriesConnection.Close();
        WorkbenchTest::TearDown();
    }

    static std::string Motor(const std::string& model, int capacity, double rated, double maximum, double speed,
                             double inertia, double ratio, int group = 1) {
        return "INSERT INTO MotorTable VALUES (1, " + std::to_string(group) + ", '" + model + "', " + std::to_string(capacity) + ", " + Sql(speed) +
               ", " + Sql(inertia) + ", " + Sql(rated) + ", " + Sql(maximum) + ", " + Sql(ratio) +
               ", 2, 0, 'about " + model + "');";
    }
    static std::string Driver(const std::string& model, const std::string& r1, const std::string& r2, int type) {
        return "INSERT INTO DriverTable VALUES ('" + model + "', " + r1 + ", " + r2 + ", " + std::to_string(type) +
               ", 'Pulse', '200', 'Three-phase');";
    }

    // Twice what the application takes: rated and maximum torque, speed and allowable ratio.
    struct Room {
        double R, X, N, A;
    };
    Room Twice() const { return {2 * std::max(v.T1, v.T3), 2 * v.T2, 2 * v.N, 2 * v.JL / kJm}; }

    // Series "S" with the group "G" of five motors, one of each verdict and a
    // hidden FAIR, and the group "Empty"; series "T" has no group at all.
    // OK1 fits three drivers, FAIR1 one, the others none. The extra rows follow.
    void Build(const std::string& extra = "") {
        const auto [R, X, N, A] = Twice();
        Catalogue_Build(appDir.Path(),
                        "INSERT INTO MotorSeriesMaster VALUES ('S', 10, 1), ('T', 20, 2);"
                        "INSERT INTO ModelMaster VALUES (10, 'G', 1), (10, 'Empty', 2);" +
                            Motor("OK1", 100, R, X, N, kJm, A) + Motor("FAIR1", 200, R, v.T2 / 0.9, N, kJm, A) +
                            Motor("NG1", 400, R, X, v.N / 2, kJm, A) +
                            Motor("NGF", 750, v.T1 / 1.5, v.T2 / 0.9, N, kJm, A) +
                            Motor("DASH", 1000, 0, 0, 0, 0, 0) +
                            "INSERT INTO DriverTypeMaster VALUES (1, 'ok1', 'ng1', 0, 2), (2, 'ok2', 'ng2', 0, 1);" +
                            Driver("D1", "NULL", "NULL", 1) + Driver("D2", Sql(v.peak / 2), Sql(2 * v.mean), 1) +
                            Driver("D3", Sql(v.peak / 2), "NULL", 2) +
                            "INSERT INTO MotorDriverTable VALUES ('OK1', 'D1'), ('OK1', 'D2'), ('OK1', 'D3'),"
                            " ('FAIR1', 'D1');" +
                            extra);
    }

    frmList1* Open() {
        w->Action("mnuMortorSelect")->trigger();
        return w->Wizard();
    }

    // The wizard at the motors of "S"/"G", judged.
    frmList1* Judged() {
        Build();
        frmList1* page = Open();
        Ctl<QListWidget>(page, "lstS")->setCurrentRow(0);
        Ctl<QPushButton>(page, "cmdJudge")->click();
        return page;
    }

    // The driver page of the motor on the grid row.
    frmList2* Next(frmList1* page, int row) {
        Ctl<GridView>(page, "vsfData")->SetGridRow(row);
        Ctl<QPushButton>(page, "cmdNext")->click();
        QApplication::processEvents();
        frmList2* drivers = page->List2();
        if (drivers) drivers->Form_Activate();
        return drivers;
    }

    // The window becomes the active one, as a click on it makes it.
    static void Activate(QWidget* window) {
        window->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(window));
        QApplication::processEvents();
        ASSERT_EQ(QApplication::activeWindow(), window);
    }

    static void ExpectCell(const GridView* grid, int row, int col, const QString& text, bool bold,
                           const QColor& color) {
        EXPECT_EQ(grid->CellText(row, col), text) << "row " << row << " col " << col;
        EXPECT_EQ(grid->CellBold(row, col), bold) << "row " << row << " col " << col;
        EXPECT_EQ(grid->CellColor(row, col), color) << "row " << row << " col " << col;
    }
    QColor Text() const { return w->palette().color(QPalette::WindowText); }

    std::unique_ptr<frmMain> w;
    TrialValues v{};
};
