#include "app/cli/ChecksCli.h"

#include <iostream>

#include "app/cli/CliOpen.h"
#include "app/cli/GridPrint.h"
#include "app/cli/Json.h"
#include "core/Tables.h"
#include "selection/ChecksGrid.h"

namespace {

std::string_view Source_Name(CurveSource source) {
    switch (source) {
        case CurveSource::Found: return "found";
        case CurveSource::NoMotor: return "no motor";
        case CurveSource::NoCatalogue: return "no catalogue";
        case CurveSource::NoTable: return "no curve table";
        case CurveSource::NoCurve: return "no curve";
        case CurveSource::Unusable: return "unusable";
    }
    return "";
}

std::string_view Regen_Name(RegenState state) {
    switch (state) {
        case RegenState::Within: return "within";
        case RegenState::Exceeded: return "exceeded";
        case RegenState::NoLimit: return "no limit";
        case RegenState::NoDriver: return "no driver";
        case RegenState::NotComputed: return "not computed";
    }
    return "";
}

std::string_view Resistor_Name(ResistorState state) {
    switch (state) {
        case ResistorState::NotNeeded: return "not needed";
        case ResistorState::Needed: return "needed";
        case ResistorState::Unknown: break;
    }
    return "unknown";
}

void Torque_Json(const TorqueCheck& c, std::ostream& out) {
    out << "\"speedLow\":" << Json_Number(c.speedLow) << ",\"speedHigh\":" << Json_Number(c.speedHigh)
        << ",\"torque\":" << Json_Number(c.torque) << ",\"verdict\":" << Json_String(Check_Verdict(c.state));
    if (c.state != CheckState::NoCurve && c.state != CheckState::NotComputed)
        out << ",\"offered\":" << Json_Number(c.offered) << ",\"margin\":" << Json_Number(c.margin)
            << ",\"aboveTop\":" << (c.aboveTop ? "true" : "false");
}

void Regen_Json(const RegenCheck& c, std::ostream& out) {
    out << "{\"value\":" << Json_Number(c.value) << ",\"state\":" << Json_String(Regen_Name(c.state));
    if (c.state == RegenState::Within || c.state == RegenState::Exceeded)
        out << ",\"limit\":" << Json_Number(c.limit) << ",\"margin\":" << Json_Number(c.margin)
            << ",\"excess\":" << Json_Number(c.excess);
    out << '}';
}

void Print_Json(const ChosenParts& parts, const EngineeringChecks& checks, std::ostream& out) {
    out << "{\"motor\":" << Json_String(MotorSelected == kMotorChosen ? MotorModelText.Utf8() : "")
        << ",\"driver\":" << Json_String(MotorSelected == kMotorChosen ? DriverModelText.Utf8() : "")
        << ",\"curve\":{\"source\":" << Json_String(Source_Name(parts.curveSource));
    if (parts.curveSource == CurveSource::Unusable) out << ",\"problem\":" << Json_String(parts.problem);
    if (parts.curveSource == CurveSource::Found) {
        out << ",\"model\":" << Json_String(parts.curveModel) << ",\"points\":[";
        for (std::size_t i = 0; i < parts.curve.points.size(); ++i) {
            const CurvePoint& p = parts.curve.points[i];
            out << (i ? "," : "") << "{\"speed\":" << Json_Number(p.speed) << ",\"continuous\":"
                << Json_Number(p.continuous) << ",\"peak\":" << Json_Number(p.peak) << '}';
        }
        out << ']';
    }
    out << "},\"intervals\":[";
    for (int i = 0; i < checks.intervals; ++i) {
        const IntervalCheck& c = checks.interval[i];
        out << (i ? "," : "") << "{\"interval\":" << i + 1 << ",\"speedStart\":" << Json_Number(c.speedStart)
            << ",\"speedEnd\":" << Json_Number(c.speedEnd) << ',';
        Torque_Json(c.check, out);
        out << '}';
    }
    out << "],\"tightest\":" << checks.tightest << ",\"mean\":{\"speed\":" << Json_Number(checks.meanSpeed) << ',';
    Torque_Json(checks.mean, out);
    out << "},\"energy\":";
    Regen_Json(checks.energy, out);
    out << ",\"power\":";
    Regen_Json(checks.power, out);
    out << ",\"resistor\":{\"state\":" << Json_String(Resistor_Name(checks.resistor));
    if (checks.resistor == ResistorState::Needed)
        out << ",\"energy\":" << Json_Number(checks.resistorEnergy) << ",\"power\":" << Json_Number(checks.resistorPower)
            << ",\"margin\":" << Json_Number(kResistorMargin * 100);
    out << "},\"table\":";
    Grid_PrintJson(Checks_Grid(checks), out);
    out << "}\n";
}

void Print_Text(const ChosenParts& parts, const EngineeringChecks& checks, std::ostream& out) {
    if (MotorSelected == kMotorChosen)
        out << "Motor: " << MotorModelText.Utf8() << "  Driver: " << DriverModelText.Utf8() << '\n';
    if (parts.curveSource == CurveSource::Found) out << "Curve: " << parts.curveModel << '\n';
    Grid_PrintText(Checks_Grid(checks), out);
}

}  // namespace

ChecksCli::ChecksCli(CLI::App& app) {
    checks_ = app.add_subcommand("checks", "Open an application file and print the engineering checks of its motor and driver");
    checks_->add_option("FILE", file_, "the application file (.AP2)")->required();
    checks_->add_flag("--json", json_, "print JSON, every number in base units, and the table");
}

int ChecksCli::Run() const {
    if (!checks_->parsed()) return -1;
    if (!Cli_Open(file_)) return 1;
    const ChosenParts parts = Parts_OfDocument();
    EngineeringChecks checks;
    Checks_OfDocument(parts, checks);
    if (json_)
        Print_Json(parts, checks, std::cout);
    else
        Print_Text(parts, checks, std::cout);
    return 0;
}
