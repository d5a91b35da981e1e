// The catalogues the benchmarks judge against the sized document: generated
// ones of any size, or the one the build carries, each as Series.db in a
// folder of its own that serves as AppPath.
#pragma once

#include <filesystem>
#include <string>

// SQL rows for the catalogue's schema: `series` series of `groups` model
// groups of `motors` motors each, capacities rising through each group, and
// every motor fitting two of twenty drivers, one without limits.
std::string Catalogue_Generated(int series, int groups, int motors);

// A folder with the catalogue as Series.db, made AppPath, and the sized
// document loaded; the folder goes at the end.
class BenchCatalogue {
public:
    // From SQL rows of the schema.
    BenchCatalogue(const std::string& name, const std::string& rows);
    // A copy of a catalogue file.
    BenchCatalogue(const std::string& name, const std::filesystem::path& file);
    ~BenchCatalogue();
    BenchCatalogue(const BenchCatalogue&) = delete;
    BenchCatalogue& operator=(const BenchCatalogue&) = delete;

private:
    void Prepare();
    std::filesystem::path folder_;
};
