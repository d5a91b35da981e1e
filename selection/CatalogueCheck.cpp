#include "selection/CatalogueCheck.h"

#include <set>
#include <utility>

#include "base/NumberFormat.h"
#include "selection/Recordset.h"

namespace {

constexpr int kListSlots = 11;

bool Query(const Connection& db, const std::string& sql, Recordset& rows, std::string& error) {
    if (db.Execute(sql, rows)) return true;
    error = "not a catalogue: the query \"" + sql + "\" fails";
    return false;
}

void Motors(Recordset& motors, const std::set<std::string>& withDriver,
            std::vector<CatalogueFinding>& findings) {
    for (motors.MoveFirst(); !motors.IsEOF(); motors.MoveNext()) {
        const std::string model = motors.Field("MotorModel").Text();
        const auto add = [&](const std::string& problem) { findings.push_back({"MotorTable", model, problem}); };
        const FieldValue& inertia = motors.Field("Inertia");
        const FieldValue& allowed = motors.Field("MaxInertia");
        if (inertia.Num() == 0 && allowed.Num() != 0)
            add("Inertia is 0 while MaxInertia is " + NumberText(allowed.Num()) +
                ": the judgement divides by it and stops with a run-time failure");
        if (inertia.Blank() || motors.Field("BrakeInertia").Blank())
            add(std::string(inertia.Blank() ? "Inertia" : "BrakeInertia") +
                " is blank: taking the motor on keeps the previous motor's inertia (write 0 for none)");
        if (model.find('\'') != std::string::npos) add("the model holds a single quote: its driver query fails");
        if (!withDriver.contains(model)) add("no driver in MotorDriverTable and DriverTable: its driver page stays empty");
    }
}

}  // namespace

bool Catalogue_Check(const std::string& path, std::vector<CatalogueFinding>& findings, std::string& error) {
    findings.clear();
    Connection db;
    if (const int opened = db.Open(path); opened != 0) {
        error = opened == kErrFileNotFound ? path + ": no such file" : path + ": not a readable database";
        return false;
    }
    Recordset series, groups, motors, pairs;
    if (!Query(db, "SELECT * FROM MotorSeriesMaster;", series, error) ||
        !Query(db, "SELECT * FROM ModelMaster;", groups, error) || !Query(db, "SELECT * FROM MotorTable;", motors, error) ||
        !Query(db,
               "SELECT MotorDriverTable.MotorModel FROM MotorDriverTable, DriverTable "
               "WHERE MotorDriverTable.DriverModel = DriverTable.DriverModel;",
               pairs, error))
        return false;
    std::vector<CatalogueFinding> found;
    if (series.RecordCount() > kListSlots)
        found.push_back({"MotorSeriesMaster", series.Field("SeriesName").Text(),
                         std::to_string(series.RecordCount()) + " series: the list holds 11, the twelfth stops the wizard"});
    for (series.MoveFirst(); !series.IsEOF(); series.MoveNext()) {
        int count = 0;
        for (groups.MoveFirst(); !groups.IsEOF(); groups.MoveNext())
            count += groups.Field("SeriesFlg").Num() == series.Field("SeriesFlg").Num();
        if (count > kListSlots)
            found.push_back({"ModelMaster", series.Field("SeriesName").Text(),
                             std::to_string(count) + " model groups: the list holds 11, the twelfth stops the wizard"});
    }
    std::set<std::string> withDriver;
    for (pairs.MoveFirst(); !pairs.IsEOF(); pairs.MoveNext()) withDriver.insert(pairs.Field("MotorModel").Text());
    Motors(motors, withDriver, found);
    findings = std::move(found);
    return true;
}
