#include "selection/MotorPage.h"

#include <algorithm>

#include "base/MsgBox.h"
#include "base/Numeric.h"
#include "calc/mdlCulcurate.h"
#include "core/PatarnRows.h"
#include "core/Tables.h"
#include "selection/DriverPage.h"
#include "selection/MotorJudge.h"
#include "selection/Queries.h"
#include "selection/mdlDataBase.h"

namespace {

MotorLimits Limits(const Recordset& motor) {
    return {motor.Field("RatedTorque").Num(), motor.Field("MaximumTorque").Num(),
            motor.Field("RotationalSpeed").Num(), motor.Field("Inertia").Num(), motor.Field("MaxInertia").Num()};
}

void Mark_NoPattern(Grid& vsfData) {
    for (int row = kFixedRows; row <= MotorRowCount + 1; ++row) {
        GridCell& cell = vsfData.Cell(row, 0);
        cell.text = "NA";
        cell.bold = true;
        cell.color = kColorWindowText;
    }
}

// The trial calculation per motor. JL keeps the last good load inertia
// across a motor whose load inertia cannot be computed.
void Judge_Rows(Grid& vsfData) {
    double JL = 0;
    for (int row = kFixedRows; row <= MotorRowCount + 1; ++row, MotorRecordset.MoveNext()) {
        const MotorLimits motor = Limits(MotorRecordset);
        double Jm = MotorRecordset.Field("BrakeInertia").Num() + motor.Inertia;
        double mass = MotorRecordset.Field("mass").Num();
        Pattern_Torques(PatarnTrial, kMotorTrial, Jm, mass);
        MotorLoad load;
        load.T1 = Effective_Torque(PatarnTrial);
        load.T2 = Max_Torque(PatarnTrial);
        load.N = Max_Speed(PatarnTrial);
        const double inertia = Load_Inertia(Element, kMotorTrial, mass);
        if (inertia != -1) JL = inertia;
        load.JL = JL;
        load.T3 = Stopping_Torque(PatarnTrial);
        Motor_Mark(Motor_Judge(load, motor), vsfData, row);
    }
}

}  // namespace

void MotorPage_Load(MotorPage& page) {
    Series_Connect();
    page.vsfData.Clear();
    Header_Format(page.vsfData);
    Recordset series;
    if (Recordset_Open(Query_Series(), series) == 0) List_Fill(series, page.lstS, 0);
}

void MotorPage_PickSeries(MotorPage& page, int index) {
    page.lstSIndex = index;
    CurrentSeriesFlg = SeriesFlgList[index];
    CurrentSeriesID = SeriesIDList[index];
    Recordset groups;
    if (Recordset_Open(Query_Models(CurrentSeriesFlg), groups) != 0) return Recordset_Failed();
    List_Fill(groups, page.lstM, 1);
    page.lstMIndex = -1;
    if (!page.lstM.empty()) MotorPage_PickModel(page, 0);
}

void MotorPage_PickModel(MotorPage& page, int index) {
    page.lstMIndex = index;
    CurrentModelFlg = ModelFlgList[index];
    if (Recordset_Open(Query_Motors(CurrentSeriesID, CurrentModelFlg), MotorRecordset) != 0)
        return Recordset_Failed();
    page.vsfData.Clear();
    Header_Format(page.vsfData);
    MotorCommentList.assign(1, "");
    for (; !MotorRecordset.IsEOF(); MotorRecordset.MoveNext()) {
        const int row = page.vsfData.AddRow();
        Motor_Cells(MotorRecordset, page.vsfData, row);
        MotorCommentList.push_back(MotorRecordset.Field("Comment").Text());
    }
    MotorRowCount = CInt(MotorRecordset.RecordCount());
    MotorPage_MoveToRow(page, kFixedRows);
}

void MotorPage_MoveToRow(MotorPage& page, int row) {
    page.Row = row;
    if (row >= kFixedRows && row <= MotorRowCount + 1) page.lblComment = MotorCommentList[row - 1];
}

bool MotorPage_Judge(MotorPage& page) {
    if (page.lstSIndex < 0 || page.lstMIndex < 0) return false;
    Patarn_CopyRows(Patarn, PatarnTrial);
    if (MotorRecordset.RecordCount() > 0) MotorRecordset.MoveFirst();
    if (PatternRowCount == 0) {
        Mark_NoPattern(page.vsfData);
        return false;
    }
    Judge_Rows(page.vsfData);
    return true;
}

bool MotorPage_TakeMotor(const MotorPage& page, DriverPage& next) {
    if (page.Row < kFixedRows || page.Row >= MotorRowCount + 2 || MotorRowCount == 0) {
        MsgBox("Motor is not selected.", "Motor Selection", MsgIcon::Exclamation);
        return false;
    }
    MotorRecordset.MoveFirst();
    MotorRecordset.Move(page.Row - kFixedRows);
    SelectedMotorModel = MotorRecordset.Field("MotorModel").Text();
    const FieldValue& inertia = MotorRecordset.Field("Inertia");
    const FieldValue& brake = MotorRecordset.Field("BrakeInertia");
    if (!inertia.Blank() && !brake.Blank()) {
        CandidateJm = inertia.Num() + brake.Num();
        CandidateJb = brake.Num();
    }
    const FieldValue& mass = MotorRecordset.Field("mass");
    if (!mass.Blank()) CandidateMotorMass = mass.Num();
    next.txtMotor = next.lblMotor = SelectedMotorModel;
    return true;
}

void MotorPage_Unload() { SeriesConnection.Close(); }
