// What the engineering checks need of the catalogue for the document's chosen
// motor and driver: the motor's speed-torque curve and the driver's two
// regeneration limits. Read on a connection of its own, so that the wizard's
// connection and row sets stay untouched.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "selection/SpeedTorqueCurve.h"

enum class CurveSource {
    Found,        // curve holds the motor's points
    NoMotor,      // the document has no chosen motor
    NoCatalogue,  // the catalogue cannot be opened or read
    NoTable,      // the catalogue has no MotorCurve table
    NoCurve,      // the table has no points for the motor
    Unusable,     // the points make no curve (problem says why)
};

enum class DriverSource { Found, NoDriver, NoCatalogue, NotInCatalogue };

struct ChosenParts {
    CurveSource curveSource = CurveSource::NoMotor;
    std::string curveModel;  // the catalogue model whose curve was taken, UTF-8
    SpeedTorqueCurve curve;
    std::string_view problem;  // why the curve is unusable
    DriverSource driverSource = DriverSource::NoDriver;
    // The driver's limits; none when the catalogue leaves the field blank or
    // gives 0 (no limit, as in the driver judgement) or less.
    std::optional<double> energyLimit;  // Regeneration1, J
    std::optional<double> powerLimit;   // Regeneration2, W
};

// The parts named by the document's texts (UTF-8) in the catalogue file. The
// motor text may carry options behind the catalogue's model number: the
// curve of the longest catalogue model that the text begins with is taken.
// The driver is found by its whole model number.
ChosenParts Parts_Read(const std::string& catalogue, std::string_view motorText, std::string_view driverText);

// The parts of the document as it stands: its chosen motor and driver in the
// catalogue beside the program; no motor while none is chosen.
ChosenParts Parts_OfDocument();
