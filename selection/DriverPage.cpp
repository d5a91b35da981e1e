#include "selection/DriverPage.h"

#include <algorithm>

#include "base/MsgBox.h"
#include "base/Numeric.h"
#include "calc/mdlCulcurate.h"
#include "core/PatarnRows.h"
#include "core/Tables.h"
#include "selection/DriverJudge.h"
#include "selection/MotorPage.h"
#include "selection/Queries.h"
#include "selection/SelectionStore.h"
#include "selection/mdlDataBase.h"

namespace {

void Mark_Limit(GridCell& cell, double limit, double value) {
    cell.color = Limit_Exceeded(limit, value) ? kColorRed : kColorWindowText;
}

void Driver_Row(Grid& grid, int row) {
    Driver_Cells(DriverRecordset, grid, row);
    const FieldValue& regeneration1 = DriverRecordset.Field("Regeneration1");
    const FieldValue& regeneration2 = DriverRecordset.Field("Regeneration2");
    const double limit1 = Regeneration_Limit(regeneration1);
    const double limit2 = Regeneration_Limit(regeneration2);
    double Jm = CandidateJm;
    double mass = CandidateMotorMass;
    Pattern_Torques(PatarnTrial, kMotorTrial, Jm, mass);
    const double value1 = Regeneration_Peak(PatarnTrial);
    const double value2 = Regeneration_Mean(PatarnTrial);
    const int16_t code = Regeneration_Judge(limit1, limit2, value1, value2);
    const auto type = CInt(DriverRecordset.Field("drivertype").Num());
    GridCell& verdict = grid.Cell(row, 0);
    verdict.text = Driver_Judge(type, code, verdict.color);
    verdict.bold = true;
    if (!regeneration1.Blank()) Mark_Limit(grid.Cell(row, 2), limit1, value1);
    if (!regeneration2.Blank()) Mark_Limit(grid.Cell(row, 3), limit2, value2);
    grid.Cell(row, 7).text = Driver_Comment(type, code);
}

}  // namespace

void DriverPage_Fill(DriverPage& page) {
    Recordset_Open(Query_Drivers(SelectedMotorModel), DriverRecordset);  // a failure shows as no drivers
    Comment_Judge_Set();
    Patarn_CopyRows(Patarn, PatarnTrial);
    if (DriverRecordset.RecordCount() > 0) DriverRecordset.MoveFirst();
    page.vsfDrvList.Clear();
    Driver_Header(page.vsfDrvList);
    for (; !DriverRecordset.IsEOF(); DriverRecordset.MoveNext()) Driver_Row(page.vsfDrvList, page.vsfDrvList.AddRow());
    page.DriverRowCount = CInt(DriverRecordset.RecordCount());
    page.Row = kFixedRows;
}

bool DriverPage_Finish(const MotorPage& motors, const DriverPage& page) {
    if (page.Row >= page.DriverRowCount + 2 || page.Row < kFixedRows || page.DriverRowCount == 0) {
        MsgBox("Driver is not selected.", "Driver Selection", MsgIcon::Exclamation);
        return false;
    }
    SelectedJm = CandidateJm;
    SelectedJb = CandidateJb;
    SelectedMotorMass = CandidateMotorMass;
    MotorRecordset.MoveFirst();
    MotorRecordset.Move(motors.Row - kFixedRows);
    DriverRecordset.MoveFirst();
    DriverRecordset.Move(page.Row - kFixedRows);
    Selection_Store(MotorRecordset, DriverRecordset);
    MotorModelText.SetUtf8(page.txtMotor);
    MotorComment.SetUtf8(MotorRecordset.Field("Comment").Text());
    DriverModelText.SetUtf8(DriverRecordset.Field("DriverModel").Text());
    DriverComment.SetUtf8(page.vsfDrvList.Cell(page.Row, 7).text);
    MotorSelected = 1;
    DirtyFlag = 1;
    Culcurate_All();
    return true;
}
