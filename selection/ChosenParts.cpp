#include "selection/ChosenParts.h"

#include <cmath>

#include "base/Numeric.h"
#include "core/Tables.h"
#include "selection/Recordset.h"
#include "selection/mdlDataBase.h"

namespace {

// A text between single quotes as SQL reads it.
std::string Quoted(std::string_view text) {
    std::string out = "'";
    for (const char c : text) out += c == '\'' ? std::string("''") : std::string(1, c);
    return out + "'";
}

bool HasCurveTable(const Connection& db) {
    Recordset tables;
    return db.Execute("SELECT name FROM sqlite_master WHERE type = 'table' AND name = 'MotorCurve';", tables) &&
           tables.RecordCount() == 1;
}

double Number(const FieldValue& field) { return field.kind == FieldValue::Kind::Number ? field.number : NAN; }

void Read_Curve(const Connection& db, std::string_view motorText, ChosenParts& parts) {
    if (!HasCurveTable(db)) {
        parts.curveSource = CurveSource::NoTable;
        return;
    }
    // The longest model that the text begins with comes first, its points by speed.
    Recordset rows;
    const std::string query = "SELECT MotorModel, Speed, ContinuousTorque, PeakTorque FROM MotorCurve WHERE MotorModel <> ''"
                              " AND substr(" + Quoted(motorText) + ", 1, length(MotorModel)) = MotorModel"
                              " ORDER BY length(MotorModel) DESC, MotorModel, Speed;";
    if (!db.Execute(query, rows)) {
        parts.curveSource = CurveSource::NoCatalogue;
        return;
    }
    if (rows.IsEOF()) {
        parts.curveSource = CurveSource::NoCurve;
        return;
    }
    parts.curveModel = rows.Field("MotorModel").Text();
    for (; !rows.IsEOF() && rows.Field("MotorModel").Text() == parts.curveModel; rows.MoveNext())
        parts.curve.points.push_back({Number(rows.Field("Speed")), Number(rows.Field("ContinuousTorque")),
                                      Number(rows.Field("PeakTorque"))});
    parts.problem = Curve_Problem(parts.curve);
    parts.curveSource = parts.problem.empty() ? CurveSource::Found : CurveSource::Unusable;
}

std::optional<double> Limit(const FieldValue& field) {
    if (field.Blank()) return std::nullopt;
    const double value = field.Num();
    if (!std::isfinite(value) || value <= 0 || Same_Single(value, 0)) return std::nullopt;
    return value;
}

void Read_Driver(const Connection& db, std::string_view driverText, ChosenParts& parts) {
    Recordset rows;
    if (!db.Execute("SELECT Regeneration1, Regeneration2 FROM DriverTable WHERE DriverModel = " + Quoted(driverText) + ";",
                    rows)) {
        parts.driverSource = DriverSource::NoCatalogue;
        return;
    }
    if (rows.IsEOF()) {
        parts.driverSource = DriverSource::NotInCatalogue;
        return;
    }
    parts.driverSource = DriverSource::Found;
    parts.energyLimit = Limit(rows.Field("Regeneration1"));
    parts.powerLimit = Limit(rows.Field("Regeneration2"));
}

}  // namespace

ChosenParts Parts_Read(const std::string& catalogue, std::string_view motorText, std::string_view driverText) {
    ChosenParts parts;
    Connection db;
    const bool open = db.Open(catalogue) == 0;
    if (!motorText.empty()) {
        parts.curveSource = CurveSource::NoCatalogue;
        if (open) Read_Curve(db, motorText, parts);
    }
    if (!driverText.empty()) {
        parts.driverSource = DriverSource::NoCatalogue;
        if (open) Read_Driver(db, driverText, parts);
    }
    return parts;
}

ChosenParts Parts_OfDocument() {
    if (MotorSelected != kMotorChosen) return {};
    return Parts_Read(AppPath + "/" + std::string(kSeriesFile), MotorModelText.Utf8(), DriverModelText.Utf8());
}
