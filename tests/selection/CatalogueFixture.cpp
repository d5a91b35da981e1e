#include "tests/selection/CatalogueFixture.h"

#include <cstdio>
#include <filesystem>
#include <stdexcept>

#include "selection/CatalogueBuild.h"
#include "selection/mdlDataBase.h"

void Catalogue_Build(const std::string& folder, const std::string& rows) {
    const std::string rowsFile = folder + "/rows.sql";
    WriteFile(rowsFile, rows);
    std::string error;
    const bool ok = Catalogue_Build(folder + "/Series.db",
                                    {std::string(TORVANE_SOURCE_DIR) + "/data/catalogue/10_schema.sql", rowsFile}, error);
    std::filesystem::remove(rowsFile);
    if (!ok) throw std::runtime_error(error);
}

std::string Catalogue_Bundled() {
    return (std::filesystem::path(TORVANE_CLI).parent_path() / "Series.db").string();
}

std::string Sql(double x) {
    char text[32];
    std::snprintf(text, sizeof text, "%.17g", x);
    return text;
}

void SeriesDbTest::TearDown() {
    MotorRecordset.Close();
    DriverRecordset.Close();
    SeriesConnection.Close();
    StateTest::TearDown();
}
