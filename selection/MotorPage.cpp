#include "selection/MotorPage.h"

#include <algorithm>

#include "base/MsgBox.h"
#include "base/Numeric.h"
#include "core/PatarnRows.h"
#include "core/Tables.h"
#include "selection/DriverPage.h"
#include "selection/MotorJudge.h"
#include "selection/MotorTrial.h"
#include "selection/Queries.h"
#include "selection/mdlDataBase.h"

namespace {

void Mark_NoPattern(Grid& vsfData) {
    for (int row = kFixedRows; row <= MotorRowCount + 1; ++row) {
        GridCell& cell = vsfData.Cell(row, 0);
        cell.text = "NA";
        cell.bold = true;
        cell.color = kColorWindowText;
    }
}

// Every motor of the grid judged on PatarnTrial. JL starts at 0 on each
// judgement and keeps the last good load inertia across a motor whose load
// inertia cannot be computed.
void Judge_Rows(Grid& vsfData) {
    double JL = 0;
    for (int row = kFixedRows; row <= MotorRowCount + 1; ++row, MotorRecordset.MoveNext()) {
        const MotorLimits motor = Motor_Limits(MotorRecordset);
        const MotorLoad load = Motor_Trial(PatarnTrial, MotorRecordset, JL);
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

bool MotorPage_Pick(MotorPage& page, int series, int model, int row) {
    const auto within = [](int index, std::size_t size) {
        return index >= 0 && index < static_cast<int>(std::min<std::size_t>(size, kListSlots));
    };
    if (!within(series, page.lstS.size())) return false;
    MotorPage_PickSeries(page, series);
    if (!within(model, page.lstM.size())) return false;
    MotorPage_PickModel(page, model);
    if (row < kFixedRows || row > MotorRowCount + 1) return false;
    MotorPage_MoveToRow(page, row);
    return true;
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
