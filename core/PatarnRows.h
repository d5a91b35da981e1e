// The rows of an operating pattern: the one writer of a field, insertion and
// clearing of rows, the count of complete rows, the fields derived from
// others and the split of a row at a zero crossing of speed. Every operation
// works on the table it is given, so the document's Patarn and the wizard's
// PatarnTrial share the same code.
#pragma once

#include <cstdint>

#include "core/Tables.h"

// Field numbers of a row, in the order of PatarnRow.
enum PatarnField : int16_t {
    FieldTime = 0,
    FieldDeltaTime = 1,
    FieldSpeed = 2,
    FieldLoadSpeed = 3,
    FieldPosition = 4,
    FieldTorque = 5,
    FieldRegeneration = 6,
    FieldRowState = 7
};

// Writes value, given in unit of kind, into the field of the row in base
// units; -9999 is stored as it is. Time fields set bit 0 of RowState, speed
// fields bit 1. Field 7 sets RowState itself; a field outside 0 to 7 is ignored.
void Patarn_SetField(PatarnTable& table, int16_t row, int16_t kind, int16_t unit, double value, int16_t field);

// Rows 0 to 20 of one table into the other, as the selection pages refresh
// their trial table from the document's; row 21 stays as it was.
void Patarn_CopyRows(const PatarnTable& from, PatarnTable& to);

// All fields of the row to 0.
void Patarn_ClearRow(PatarnTable& table, int16_t row);

// Opens a blank row at index; the rows from there move one record down, so
// that row 20 lands in record 21, out of sight.
void Patarn_InsertRow(PatarnTable& table, int16_t index);

// The number of leading complete rows (RowState 3), at most 20.
int16_t Patarn_CountRows(const PatarnTable& table);

// Rebuilds Time as the running sum of DeltaTime over the rows before the
// first row that is empty or has its speed side only.
void Patarn_UpdateTimes(PatarnTable& table);

// Sets LoadSpeed of the row: from its Speed through TotalRatio when byDistance
// is 0, else as the end speed of a straight ramp from startSpeed that covers
// distance in the row's DeltaTime.
void Patarn_SetLoadSpeed(PatarnTable& table, int16_t row, int16_t byDistance, double startSpeed, double distance);

// Sets Speed of the row from its LoadSpeed, rounded to one decimal of the
// picked motor speed unit.
void Patarn_SetSpeed(PatarnTable& table, int16_t row);

// Sets DeltaTime of the row before the grid row so that it covers its travel
// at the mean of its end speeds.
void Patarn_Retime(PatarnTable& table, int16_t gridRow);

// True when row i and row i + 1 have speeds of strictly opposite signs.
bool Patarn_SignChange(const PatarnTable& table, int16_t i);

// Cuts every row whose speed changes sign at its zero point, so that no
// interval mixes driving and braking.
void Patarn_SplitZero(PatarnTable& table);
