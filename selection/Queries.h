// The five query texts of the selection, word for word. Numbers enter as
// decimal digits without padding; the model text between single quotes,
// without escaping.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

std::string Query_Series();
std::string Query_Models(int16_t seriesFlg);
std::string Query_Motors(int16_t seriesID, int16_t modelFlg);
std::string Query_Drivers(std::string_view motorModel);
std::string Query_DriverTypes();
