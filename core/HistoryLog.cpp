#include "core/HistoryLog.h"

#include <ctime>
#include <fstream>

#include "core/Tables.h"

std::string History_Path() { return AppPath + "/History.log"; }

std::string History_SiblingPath() { return AppPath + "History.log"; }

void History_Append(const std::string& path, std::string_view text) {
    const std::time_t now = std::time(nullptr);
    std::tm local{};
    localtime_r(&now, &local);
    char stamp[32];
    std::strftime(stamp, sizeof stamp, "%Y/%m/%d %H:%M:%S", &local);
    std::ofstream log(path, std::ios::binary | std::ios::app);
    log << stamp << "  " << text << "\r\n";
}
