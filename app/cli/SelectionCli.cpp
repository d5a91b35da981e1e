#include "app/cli/SelectionCli.h"

#include <algorithm>
#include <iostream>
#include <vector>

#include "app/cli/GridPrint.h"
#include "app/cli/Json.h"
#include "commands/SelectionTake.h"
#include "core/Startup.h"
#include "persist/mdlFile.h"

namespace {

int NotFound(const std::string& what, const std::string& name) {
    std::cerr << "torvane-cli: no " << what << " \"" << name << "\" in the catalogue\n";
    return 1;
}

int IndexOf(const std::vector<std::string>& list, const std::string& name) {
    const auto at = std::ranges::find(list, name);
    return at == list.end() ? -1 : static_cast<int>(at - list.begin());
}

// Opens the document and the motor page as the menu does.
bool Open(const std::string& file, MotorPage& page) {
    Main_Prepare("");
    if (!File_Load(file)) return false;
    MotorPage_Load(page);
    return true;
}

void Print(const std::string& title, const Grid& grid, bool json) {
    if (json) {
        Grid_PrintJson(grid, std::cout);
        std::cout << '\n';
    } else {
        std::cout << title << '\n';
        Grid_PrintText(grid, std::cout);
    }
}

int Run_Series(bool json) {
    Main_Prepare("");
    MotorPage page;
    MotorPage_Load(page);
    std::cout << (json ? "[" : "");
    for (int s = 0; s < static_cast<int>(page.lstS.size()); ++s) {
        MotorPage_PickSeries(page, s);
        if (json) {
            std::cout << (s ? "," : "") << "{\"series\":" << Json_String(page.lstS[s]) << ",\"models\":[";
            for (std::size_t g = 0; g < page.lstM.size(); ++g) std::cout << (g ? "," : "") << Json_String(page.lstM[g]);
            std::cout << "]}";
        } else {
            std::cout << page.lstS[s] << '\n';
            for (const std::string& group : page.lstM) std::cout << "  " << group << '\n';
        }
    }
    std::cout << (json ? "]\n" : "");
    return 0;
}

int Run_Judge(const std::string& file, const std::string& series, const std::string& model, bool json) {
    MotorPage page;
    if (const int code = Group_Judge(file, series, model, page)) return code;
    Print(series + " / " + model, page.vsfData, json);
    return 0;
}

int Run_Drivers(const std::string& file, const std::string& motor, bool json) {
    MotorPage page;
    DriverPage drivers;
    if (!Open(file, page)) return 1;
    if (!Drivers_Open(page, drivers, motor)) return NotFound("motor", motor);
    Print("Drivers of " + motor, drivers.vsfDrvList, json);
    return 0;
}

int Run_Select(const std::string& file, const std::string& motor, const std::string& driver,
               const std::string& modelText, const std::string& out) {
    Main_Prepare("");
    if (!File_Load(file)) return 1;
    switch (Selection_Take(motor, driver, modelText)) {
        case TakeResult::NoMotor: return NotFound("motor", motor);
        case TakeResult::NoDriver: return NotFound("driver of the motor", driver);
        case TakeResult::Refused: return 1;
        case TakeResult::Taken: break;
    }
    return File_Save(out) ? 0 : 1;
}

}  // namespace

int Group_Judge(const std::string& file, const std::string& series, const std::string& model, MotorPage& page) {
    if (!Open(file, page)) return 1;
    const int s = IndexOf(page.lstS, series);
    if (s < 0) return NotFound("series", series);
    MotorPage_PickSeries(page, s);
    const int g = IndexOf(page.lstM, model);
    if (g < 0) return NotFound("model", model);
    MotorPage_PickModel(page, g);
    MotorPage_Judge(page);
    return 0;
}

SelectionCli::SelectionCli(CLI::App& app)
    : series_(app.add_subcommand("series", "List the motor series of the catalogue and their model groups")),
      judge_(app.add_subcommand("judge", "Judge every motor of a model group against an application file")),
      drivers_(app.add_subcommand("drivers", "Judge the drivers that fit a motor against an application file")),
      select_(app.add_subcommand("select", "Take a motor and a driver on and save the application file")) {
    series_->add_flag("--json", json_, "print JSON instead of text");
    for (CLI::App* command : {judge_, drivers_, select_})
        command->add_option("FILE", file_, "application file (.AP2)")->required()->check(CLI::ExistingFile);
    judge_->add_option("--series", seriesName_, "series name as listed")->required();
    judge_->add_option("--model", modelName_, "model group name as listed")->required();
    for (CLI::App* command : {drivers_, select_})
        command->add_option("--motor", motor_, "motor model number")->required();
    for (CLI::App* command : {judge_, drivers_}) command->add_flag("--json", json_, "print JSON instead of text");
    select_->add_option("--driver", driver_, "driver model number")->required();
    select_->add_option("--model-text", modelText_, "model number to store, with its options");
    select_->add_option("--out", out_, "application file to write")->required();
}

int SelectionCli::Run() const {
    if (series_->parsed()) return Run_Series(json_);
    if (judge_->parsed()) return Run_Judge(file_, seriesName_, modelName_, json_);
    if (drivers_->parsed()) return Run_Drivers(file_, motor_, json_);
    if (select_->parsed()) return Run_Select(file_, motor_, driver_, modelText_, out_);
    return -1;
}
