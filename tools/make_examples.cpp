// Makes the example applications the way a user makes them: a ready-made
// chain, its settings typed row by row, the operating pattern typed interval
// and speed, a motor and a driver taken on through the wizard, and the file
// saved. Run on the fresh-installation unit picks, so the files do not depend
// on the picks of the machine that makes them:
//   make_examples CATALOGUE.db OUT_FOLDER
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <stdexcept>
#include <vector>

#include <unistd.h>

#include "base/MsgBox.h"
#include "commands/Activation.h"
#include "commands/ItemCommands.h"
#include "commands/PatternCommands.h"
#include "commands/SelectionTake.h"
#include "core/Startup.h"
#include "core/Tables.h"
#include "persist/mdlFile.h"

namespace {

struct Setting {
    int16_t element;
    int row;  // the settings grid's row, from 1
    std::string text;
};

struct Interval {
    std::string time, speed;  // in the pattern's units: s and r/min
};

struct Example {
    std::string file;
    int16_t chain;  // the ready-made chain it starts from
    std::vector<Setting> settings;
    std::vector<Interval> pattern;
    std::string motor, driver;
};

const std::vector<Example> kExamples = {
    {"horizontal-ballscrew.AP2", 1,
     {{2, 1, "10"}, {2, 2, "20"}, {2, 3, "800"}, {2, 5, "15"}, {2, 6, "0.05"}, {3, 1, "20"}, {3, 3, "0.05"}},
     {{"0.1", "3000"}, {"0.6", "3000"}, {"0.1", "0"}, {"0.4", "0"}},
     "TVM-A020S3", "TVD-A04"},
    {"vertical-ballscrew-counterweight.AP2", 2,
     {{2, 1, "10"}, {2, 2, "16"}, {2, 3, "500"}, {2, 5, "5"}, {3, 1, "60"}, {3, 2, "15"}, {3, 4, "60"}, {3, 5, "15"},
      {3, 8, "8"}, {3, 9, "10"}},
     {{"0.15", "2000"}, {"0.3", "2000"}, {"0.15", "0"}, {"0.3", "0"}, {"0.15", "-2000"}, {"0.3", "-2000"},
      {"0.15", "0"}, {"0.3", "0"}},
     "TVM-A010S3-B", "TVD-A02"},
    {"turntable.AP2", 3,
     {{1, 1, "1/10"}, {1, 2, "0.85"}, {2, 1, "300"}, {2, 3, "20"}},
     {{"0.2", "1500"}, {"0.1", "1500"}, {"0.2", "0"}, {"0.5", "0"}},
     "TVM-B05M2", "TVD-N08"},
    {"conveyor-belt.AP2", 4,
     {{1, 1, "1/5"}, {1, 2, "0.9"}, {2, 1, "60"}, {2, 2, "30"}, {2, 4, "60"}, {2, 5, "30"}, {2, 7, "1.5"},
      {2, 8, "0.95"}, {3, 1, "10"}},
     {{"0.3", "2000"}, {"1", "2000"}, {"0.3", "0"}, {"0.6", "0"}},
     "TVM-A020S3", "TVD-A02"},
    {"cart.AP2", 8,
     {{1, 1, "100"}, {1, 3, "1/25"}, {1, 5, "125"}, {1, 6, "40"}, {1, 7, "7.8"}},
     {{"0.5", "2500"}, {"2", "2500"}, {"0.5", "0"}, {"1", "0"}},
     "TVM-A040S3", "TVD-N04"},
    {"rack-and-pinion.AP2", 7,
     {{1, 1, "1/10"}, {1, 2, "0.9"}, {2, 1, "40"}, {2, 4, "5"}, {3, 1, "50"}, {3, 3, "0.05"}},
     {{"0.25", "3000"}, {"0.8", "3000"}, {"0.25", "0"}, {"0.5", "0"}, {"0.25", "-3000"}, {"0.8", "-3000"},
      {"0.25", "0"}, {"0.5", "0"}},
     "TVM-A020S3", "TVD-A04"},
};

void Build(const Example& example) {
    MecaTemplateNo = example.chain;
    MecaResult = 1;
    Main_Activate({});
    for (const Setting& s : example.settings) {
        Item_Select(s.element);
        std::string text = s.text;
        if (!Item_Edit(s.element, s.row, text, false)) throw std::runtime_error("setting refused: " + s.text);
    }
    int16_t escape = 0;
    for (std::size_t i = 0; i < example.pattern.size(); ++i) {
        const int gridRow = static_cast<int>(i) + 2;
        Patarn_AfterEdit(gridRow, 2, example.pattern[i].time, escape);
        Patarn_AfterEdit(gridRow, 3, example.pattern[i].speed, escape);
    }
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 3) {
        std::fprintf(stderr, "usage: make_examples CATALOGUE.db OUT_FOLDER\n");
        return 2;
    }
    MsgBox_SetHandler(MsgBox_ConsoleHandler);
    namespace fs = std::filesystem;
    const fs::path data = fs::temp_directory_path() / ("make_examples." + std::to_string(getpid()));
    fs::create_directories(data);
    fs::copy_file(argv[1], data / "Series.db", fs::copy_options::overwrite_existing);
    setenv("TORVANE_APP_PATH", data.c_str(), 1);
    int failures = 0;
    for (const Example& example : kExamples) {
        Main_Prepare("");
        try {
            Build(example);
            if (!example.motor.empty() && Selection_Take(example.motor, example.driver, "") != TakeResult::Taken)
                throw std::runtime_error("cannot take " + example.motor + " with " + example.driver);
            if (!File_Save((fs::path(argv[2]) / example.file).string())) throw std::runtime_error("cannot save");
        } catch (const std::exception& e) {
            std::fprintf(stderr, "make_examples: %s: %s\n", example.file.c_str(), e.what());
            ++failures;
        }
    }
    fs::remove_all(data);
    return failures == 0 ? 0 : 1;
}
