#include "selection/Queries.h"

std::string Query_Series() { return "SELECT * FROM MotorSeriesMaster;"; }

std::string Query_Models(int16_t seriesFlg) {
    return "SELECT * FROM ModelMaster WHERE ModelMaster.SeriesFlg= " + std::to_string(seriesFlg) + ";";
}

std::string Query_Motors(int16_t seriesID, int16_t modelFlg) {
    return "SELECT * FROM MotorTable WHERE MotorTable.SeriesID = " + std::to_string(seriesID) +
           " AND MotorTable.ModelFlg = " + std::to_string(modelFlg) + " order by Capacity;";
}

std::string Query_Drivers(std::string_view motorModel) {
    return "SELECT DriverTable.* FROM MotorDriverTable,DriverTable WHERE MotorDriverTable.MotorModel = '" +
           std::string(motorModel) +
           "' AND MotorDriverTable.[DriverModel] = DriverTable.[DriverModel] order by DriverTable.[DriverModel];";
}

std::string Query_DriverTypes() { return "SELECT * FROM DriverTypeMaster order by DriverType;"; }

std::string Query_MotorDrivers() {
    return "SELECT MotorDriverTable.MotorModel AS FitMotor, DriverTable.* FROM MotorDriverTable,DriverTable"
           " WHERE MotorDriverTable.[DriverModel] = DriverTable.[DriverModel] order by DriverTable.[DriverModel];";
}
