// The five query texts of the wizard, word for word, and the one of the
// recommendation. Numbers enter as decimal digits without padding; the
// model text between single quotes, without escaping.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

std::string Query_Series();
std::string Query_Models(int16_t seriesFlg);
std::string Query_Motors(int16_t seriesID, int16_t modelFlg);
std::string Query_Drivers(std::string_view motorModel);
std::string Query_DriverTypes();

// Every motor and driver pair with the driver's row, FitMotor naming the
// motor, in the order of the drivers query.
std::string Query_MotorDrivers();
