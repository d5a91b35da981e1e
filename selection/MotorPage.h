// The motor page frmList1 without its window: the series and model group
// lists, the motor grid, the judgement of every motor and "Next >". The
// window shows this state and calls these operations from its handlers.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "selection/Grid.h"
#include "selection/MotorGrid.h"

struct DriverPage;

struct MotorPage {
    std::vector<std::string> lstS;  // series names
    std::vector<std::string> lstM;  // model group names
    int lstSIndex = -1;             // the picks; -1 while none
    int lstMIndex = -1;
    Grid vsfData{kMotorCols};
    int Row = 0;  // current row of vsfData
    std::string lblComment;
};

inline int16_t MotorRowCount = 0;
inline std::string SelectedMotorModel;          // UTF-8
inline std::vector<std::string> MotorCommentList;  // Comment by grid row minus 1

// Opens the catalogue, writes the headers and fills lstS.
void MotorPage_Load(MotorPage& page);

// Picks a series: fills lstM and picks its first group.
void MotorPage_PickSeries(MotorPage& page, int index);

// Picks a model group: queries its motors into MotorRecordset and fills the
// grid, verdicts empty.
void MotorPage_PickModel(MotorPage& page, int index);

// Moves the current row; lblComment follows.
void MotorPage_MoveToRow(MotorPage& page, int row);

// Picks the series and the model group at their positions in the lists and
// moves to the grid row, as clicks do; false when a position lies beyond
// the lists or the row beyond the grid, the picks made by then standing.
bool MotorPage_Pick(MotorPage& page, int series, int model, int row);

// "Judgement": judges every motor of the grid on PatarnTrial. True when
// the motors were judged; without a pick nothing happens, and without a
// pattern every motor is marked "NA" and the judgement ends there.
bool MotorPage_Judge(MotorPage& page);

// "Next >": takes the motor of the current row on as the candidate and
// shows it on the driver page; false, after the message, when no motor is
// selected.
bool MotorPage_TakeMotor(const MotorPage& page, DriverPage& next);

// Closes the catalogue; silent when it never opened.
void MotorPage_Unload();
