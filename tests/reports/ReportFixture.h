// The fixture of the results file tests: a fresh state in a temporary
// AppPath, chains and pattern rows built in a line, the log entries read back.
#pragma once

#include <initializer_list>
#include <string>
#include <vector>

#include "tests/support/TestState.h"

struct RowEntry {
    double dt;
    double speed;
};

class ReportTest : public StateTest {
protected:
    void TearDown() override;

    // The motor and components of these types with catalogue defaults.
    void Chain(std::initializer_list<int16_t> types);
    // Complete rows 1, 2, ... of the pattern, counted in PatternRowCount.
    void Rows(std::initializer_list<RowEntry> rows);
    // A motor as the wizard's "Finish" leaves it: SelectedJm is the rotor
    // inertia (row 2) plus the brake inertia (row 6).
    void ChooseMotor();
    // The delivered Param.ini, or the given text, as AppPath's Param.ini.
    void InstallParamIni();
    void WriteParamIni(const std::string& text);

    // Results_Save into AppPath and the bytes of the file.
    std::string SaveResults();
    std::string ResultsPath() const { return appDir.File("Results.TXT"); }

    // The texts of the entries of a log, behind the time stamp and its two
    // blanks; each entry is checked for the stamp and the CR LF.
    std::vector<std::string> LogTexts(const std::string& path) const;
};

// The lines of a file split at CR LF, the last line's end included.
std::vector<std::string> Lines(const std::string& bytes);
