#include "reports/ResultsLine.h"

#include <algorithm>
#include <array>
#include <fstream>

#include "core/HistoryLog.h"

namespace {

std::ofstream report;
int failures = 0;  // statements of this file that failed

constexpr std::array<int, 13> kColumnWidth = {0, 14, 26, 8, 10, 8, 10, 10, 15, 33, 18, 18, 10};

}  // namespace

void Results_Open(const std::string& fileName) {
    failures = 0;
    report.open(fileName, std::ios::binary | std::ios::out | std::ios::trunc);
    if (!report.is_open()) Results_LogError(kErrPathAccess);
}

bool Results_Close() {
    if (!report.is_open()) return failures == 0;
    report.close();
    // The last of the buffer goes out here; its failure counts, and is not
    // logged, as the statements log only what they themselves do.
    if (report.fail()) {
        report.clear();
        ++failures;
    }
    return failures == 0;
}

void Results_Print(int blanks, std::string_view text, bool endLine) {
    if (!report.is_open()) {
        Results_LogError(kErrBadFileNumber);
        return;
    }
    report << std::string(static_cast<std::size_t>(blanks), ' ') << text;
    if (endLine) report << "\r\n";
    if (!report) {
        report.clear();
        Results_LogError(kErrDeviceIO);
    }
}

int16_t Results_Pad(std::string_view text, int column) {
    const int blanks = kColumnWidth.at(static_cast<std::size_t>(column)) - static_cast<int>(text.size());
    return static_cast<int16_t>(std::max(blanks, 0));
}

void Results_LogError(int16_t number) {
    ++failures;
    const std::string digits = std::to_string(number);
    History_Append(History_Path(), number < 0 ? digits : " " + digits);
}
