#include "tests/reports/ReportFixture.h"

#include <filesystem>
#include <regex>

#include "calc/mdlCulcurate.h"
#include "core/Catalogue.h"
#include "core/Tables.h"
#include "core/HistoryLog.h"
#include "reports/mdlFileOutput.h"

void ReportTest::TearDown() {
    std::filesystem::remove(History_SiblingPath());
    StateTest::TearDown();
}

void ReportTest::Chain(std::initializer_list<int16_t> types) {
    int16_t slot = 1;
    for (const int16_t type : types) {
        Element[slot].ElementType = type;
        Item_Defaults(type, Element[slot].Item);
        ++slot;
    }
    ElementCount = slot;
}

void ReportTest::Rows(std::initializer_list<RowEntry> rows) {
    int16_t i = 1;
    for (const RowEntry& row : rows) {
        Patarn[i].DeltaTime = row.dt;
        Patarn[i].Speed = row.speed;
        Patarn[i].RowState = 3;
        ++i;
    }
    PatternRowCount = static_cast<int16_t>(rows.size());
}

void ReportTest::ChooseMotor() {
    MotorSelected = 1;
    MotorModelText = "SVM-0400-A";
    SelectedJm = 0.000123;
    SelectedJb = 0.00002;
    SelectedMotorMass = 1.5;
    Element[0].Item[2].Value = SelectedJm - SelectedJb;
    Element[0].Item[6].Value = SelectedJb;
    Element[0].Item[7].Value = SelectedMotorMass;
}

void ReportTest::InstallParamIni() {
    std::filesystem::copy_file(std::string(TORVANE_SOURCE_DIR) + "/data/app/Param.ini", appDir.File("Param.ini"),
                               std::filesystem::copy_options::overwrite_existing);
}

void ReportTest::WriteParamIni(const std::string& text) { WriteFile(appDir.File("Param.ini"), text); }

std::string ReportTest::SaveResults() {
    Results_Save(ResultsPath());
    return ReadFile(ResultsPath());
}

std::vector<std::string> ReportTest::LogTexts(const std::string& path) const {
    static const std::regex stamp(R"(\d{4}/\d{2}/\d{2} \d{2}:\d{2}:\d{2}  )");
    std::vector<std::string> texts;
    for (const std::string& line : Lines(ReadFile(path))) {
        EXPECT_TRUE(std::regex_match(line.substr(0, 21), stamp)) << line;
        texts.push_back(line.substr(21));
    }
    return texts;
}

std::vector<std::string> Lines(const std::string& bytes) {
    std::vector<std::string> lines;
    std::size_t start = 0;
    for (std::size_t end; (end = bytes.find("\r\n", start)) != std::string::npos; start = end + 2)
        lines.push_back(bytes.substr(start, end - start));
    EXPECT_EQ(start, bytes.size()) << "the last line does not end with CR LF";
    return lines;
}
