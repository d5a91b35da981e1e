// Small catalogues built in a test: the tables of the bundled catalogue's
// schema, filled by the test's own rows, as Series.db in the temporary AppPath.
#pragma once

#include <string>

#include "tests/support/TestState.h"

// Creates Series.db in the folder: the schema, then the SQL text of rows.
void Catalogue_Build(const std::string& folder, const std::string& rows);

// The SQL text that creates the optional table of speed-torque curves.
std::string Catalogue_CurveTable();

// The catalogue that the build placed beside the executables.
std::string Catalogue_Bundled();

// A number as SQL text, to the last digit.
std::string Sql(double x);

class SeriesDbTest : public StateTest {
protected:
    void TearDown() override;
    void Build(const std::string& rows) { Catalogue_Build(appDir.Path(), rows); }
};
