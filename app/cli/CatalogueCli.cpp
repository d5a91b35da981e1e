#include "app/cli/CatalogueCli.h"

#include <iostream>

#include "core/Startup.h"
#include "core/Tables.h"
#include "selection/CatalogueBuild.h"
#include "selection/CatalogueCheck.h"

namespace {

int Run_Build(const std::string& out, const std::vector<std::string>& sql) {
    std::string error;
    if (Catalogue_Build(out, sql, error)) return 0;
    std::cerr << "torvane-cli: " << error << '\n';
    return 1;
}

int Run_Check(std::string db) {
    if (db.empty()) {
        Main_Prepare("");
        db = AppPath + "/Series.db";
    }
    std::vector<CatalogueFinding> findings;
    std::string error;
    if (!Catalogue_Check(db, findings, error)) {
        std::cerr << "torvane-cli: " << error << '\n';
        return 1;
    }
    for (const CatalogueFinding& f : findings) std::cout << f.table << "  " << f.row << "  " << f.problem << '\n';
    std::cout << db << ": " << (findings.empty() ? "no row to look at" : std::to_string(findings.size()) + " to look at")
              << '\n';
    return findings.empty() ? 0 : 1;
}

}  // namespace

CatalogueCli::CatalogueCli(CLI::App& app)
    : catalogue_(app.add_subcommand("catalogue", "Build a catalogue database or check one")),
      build_(catalogue_->add_subcommand("build", "Build a catalogue database from SQL text, the files in order")),
      check_(catalogue_->add_subcommand("check", "Name the rows of a catalogue the wizard would trip on")) {
    catalogue_->require_subcommand(1);
    build_->add_option("OUT", out_, "the database file to write (.db)")->required();
    build_->add_option("FILE", sql_, "SQL text files")->required()->check(CLI::ExistingFile);
    check_->add_option("DB", db_, "the database file; the Series.db of the data folder when left out");
}

int CatalogueCli::Run() const {
    if (build_->parsed()) return Run_Build(out_, sql_);
    if (check_->parsed()) return Run_Check(db_);
    return -1;
}
