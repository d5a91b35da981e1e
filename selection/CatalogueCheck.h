// The rows of a catalogue database that the wizard would trip on, each named:
// a motor whose Inertia is 0 (or blank) while its MaxInertia is not (the
// judgement divides by it and ends with a run-time failure), a motor with a
// blank Inertia or BrakeInertia (taking it on keeps the previous motor's
// inertia), a motor model holding a single quote (its driver query breaks),
// a motor with no driver (its driver page stays empty), and more than 11
// series, or model groups in a series (the lists hold 11).
#pragma once

#include <string>
#include <vector>

struct CatalogueFinding {
    std::string table;  // where the row lies
    std::string row;    // the row's name: a model number, a series name
    std::string problem;
};

// Reads the database at path. False, with error set, when it cannot be
// opened or lacks a table of the catalogue; findings is then empty.
bool Catalogue_Check(const std::string& path, std::vector<CatalogueFinding>& findings, std::string& error);
