#include "app/cli/PatternCli.h"

#include "commands/PatternFile.h"
#include "core/Startup.h"
#include "persist/mdlFile.h"

PatternCli::PatternCli(CLI::App& app) {
    CLI::App* pattern = app.add_subcommand("pattern", "Read the operating pattern from, or write it to, a point table (CSV)");
    pattern->require_subcommand(1);
    import_ = pattern->add_subcommand("import", "Replace the pattern of an application file with a point table and save it");
    export_ = pattern->add_subcommand("export", "Write the pattern of an application file as a point table");
    for (CLI::App* command : {import_, export_})
        command->add_option("FILE", file_, "the application file (.AP2)")->required();
    import_->add_option("POINTS", table_, "the point table to read (CSV)")->required();
    import_->add_option("--out", out_, "the application file to write")->required();
    export_->add_option("OUT", table_, "the point table to write (CSV), taken as given")->required();
    export_->add_flag("--intervals", intervals_, "write the length of each row instead of the time at its end");
}

int PatternCli::Run() const {
    if (!import_->parsed() && !export_->parsed()) return -1;
    Main_Prepare("");
    if (!File_Load(file_)) return 1;
    if (export_->parsed())
        return Pattern_Export(table_, intervals_ ? PointColumns::Interval : PointColumns::Time) ? 0 : 1;
    return Pattern_Import(table_) && File_Save(out_) ? 0 : 1;
}
