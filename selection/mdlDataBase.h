// The catalogue module: the connection, the open row sets, the lists filled
// from them, and the two query helpers.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "selection/Recordset.h"

inline constexpr std::string_view kSeriesFile = "Series.db";
inline constexpr std::string_view kTitleMotorSelection = "Motor Selection";

inline constexpr int kListSlots = 11;

inline Connection SeriesConnection;
inline Recordset MotorRecordset;   // kept open across both wizard pages
inline Recordset DriverRecordset;  // open while the driver page is up
inline std::array<int16_t, kListSlots> SeriesFlgList{};
inline std::array<int16_t, kListSlots> SeriesIDList{};
inline std::array<int16_t, kListSlots> ModelFlgList{};
inline int16_t CurrentSeriesFlg = 0;
inline int16_t CurrentSeriesID = 0;
inline int16_t CurrentModelFlg = 0;

// Opens SeriesConnection on Series.db in AppPath. A missing file is told in
// a message box; any other failure is silent. Either way the connection
// stays closed and the lists stay empty.
void Series_Connect();

// A new row set on SeriesConnection with the query: 0, or -1 on any
// failure. Never shows a message.
int16_t Recordset_Open(std::string_view query, Recordset& recordset);

// The message of a model group or motor query that failed.
void Recordset_Failed();

// Clears the list and adds the rows from the current one to the end: kind 0
// the series (SeriesName, SeriesFlg, ID), any other the model groups
// (ModelName, ModelFlg). A twelfth row is a run-time failure.
void List_Fill(Recordset& recordset, std::vector<std::string>& list, int16_t kind);
