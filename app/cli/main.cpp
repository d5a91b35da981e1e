// torvane-cli: the headless core for scripts, tests and machines without a
// display. Exit code 0 on success, 1 when a file could not be read, 2 on bad
// usage; messages go to standard error.
#include <CLI/CLI.hpp>

#include <iostream>
#include <string>

#include "app/cli/CatalogueCli.h"
#include "app/cli/ChainPrint.h"
#include "app/cli/Json.h"
#include "app/cli/ReportCli.h"
#include "app/cli/ResultsCli.h"
#include "app/cli/SelectionCli.h"
#include "app/cli/SizeCli.h"
#include "base/MsgBox.h"
#include "base/Version.h"
#include "base/RuntimeError.h"
#include "commands/Activation.h"
#include "core/Startup.h"
#include "core/Tables.h"
#include "core/Templates.h"

namespace {

int RunTemplate(int number, bool json) {
    Main_Prepare("");
    MecaTemplateNo = static_cast<int16_t>(number);
    MecaResult = 1;
    std::string title;
    ActivationHooks hooks;
    hooks.setTitle = [&title](const std::string& t) { title = t; };
    Main_Activate(hooks);
    if (json) {
        std::cout << "{\"template\":" << number << ",\"name\":" << Json_String(std::string(Template_Name(number)))
                  << ",\"elementCount\":" << ElementCount << ",\"elements\":";
        Chain_PrintJson(std::cout);
        std::cout << "}\n";
    } else {
        std::cout << "Template " << number << ": " << Template_Name(number) << '\n';
        Chain_PrintText(std::cout);
    }
    return 0;
}

}  // namespace

int main(int argc, char** argv) {
    MsgBox_SetHandler(MsgBox_ConsoleHandler);
    CLI::App app{"Torvane command line tool: servo drive sizing without windows"};
    app.require_subcommand(1);
    app.set_version_flag("--version", std::string("torvane-cli ") + kVersionText, "print the version and exit");

    int number = 0;
    bool json = false;
    CLI::App* templ = app.add_subcommand("template", "Build a ready-made chain (0 to 9) and print it");
    templ->add_option("N", number, "template number, 0 hand selection to 9 pinion-driven cart")
        ->required()
        ->check(CLI::Range(0, kTemplates - 1));
    templ->add_flag("--json", json, "print JSON instead of text");
    SelectionCli selection(app);
    ResultsCli results(app);
    ReportCli report(app);
    SizeCli size(app);
    CatalogueCli catalogue(app);

    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError& e) {
        const int code = app.exit(e);
        return e.get_exit_code() == 0 ? code : 2;
    }
    const auto run = [&] {
        if (templ->parsed()) return RunTemplate(number, json);
        if (const int code = selection.Run(); code >= 0) return code;
        if (const int code = results.Run(); code >= 0) return code;
        if (const int code = report.Run(); code >= 0) return code;
        if (const int code = size.Run(); code >= 0) return code;
        if (const int code = catalogue.Run(); code >= 0) return code;
        return 2;
    };
    int code = 2;
    try {
        code = run();
    } catch (const RuntimeError& e) {
        std::cerr << "torvane-cli: " << e.what() << '\n';
        code = 1;
    }
    if (!std::cout.flush()) {
        std::cerr << "torvane-cli: the output could not be written\n";
        return 1;
    }
    return code;
}
