// The judgement of a driver's regeneration limits, and the verdicts and
// comments that the catalogue's driver types attach to its result.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "selection/Recordset.h"

struct DriverTypeRec {
    int16_t DriverType = 0;
    std::string OKComment;
    int16_t OKJudgeFlg = 0;
    std::string NGComment;
    int16_t NGJudgeFlg = 0;
};

inline std::vector<DriverTypeRec> DriverTypes;

// A limit that the catalogue leaves blank.
inline constexpr double kNoLimit = 9999;

// Reads all of DriverTypeMaster into DriverTypes, replacing what was there.
void Comment_Judge_Set();

// All rows of DriverTypeMaster, by type; none when the query fails.
std::vector<DriverTypeRec> DriverTypes_Read();

// The limit of a regeneration field: kNoLimit when blank.
double Regeneration_Limit(const FieldValue& field);

// 0 both limits kept, 1 only limit 1 kept, 2 only limit 2 kept, 3 neither.
int16_t Regeneration_Judge(double limit1, double limit2, double value1, double value2);

// True when the limit is given (not 0), differs from the value and is below it.
bool Limit_Exceeded(double limit, double value);

// The verdict of the driver type for the code, and its colour. "NA" while
// there is no pattern. A type missing from DriverTypes is a run-time failure.
std::string_view Driver_Judge(int16_t driverType, int16_t code, std::string_view& color);

// The same verdict out of the driver types given.
std::string_view Driver_Verdict(const std::vector<DriverTypeRec>& types, int16_t driverType, int16_t code);

// The comment of the driver type for the code.
const std::string& Driver_Comment(int16_t driverType, int16_t code);

// 0 "OK", 1 "FAIR", 2 "NG", any other "NA".
std::string_view JudgeString(int16_t flag);

// "OK" and any unknown text the window text colour, "FAIR" orange, "NG" red.
std::string_view JudgeColor(std::string_view text);
