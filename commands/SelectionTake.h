// The wizard walked by name, without its windows: finding a motor in the
// catalogue, opening its driver page, and taking a motor and a driver on as
// "Finish" does.
#pragma once

#include <string>

#include "selection/DriverPage.h"
#include "selection/MotorPage.h"

// Walks the model groups of every series of a loaded page until the motor's
// row is the current one. False when no group holds it.
bool Motor_Find(MotorPage& page, const std::string& model);

// Finds the motor, takes it to the driver page and fills that page.
bool Drivers_Open(MotorPage& page, DriverPage& drivers, const std::string& model);

enum class TakeResult { Taken, NoMotor, NoDriver, Refused };

// On the current document: the motor page loaded, the motor found and taken,
// the driver picked on its page and the wizard finished, storing modelText
// (when not empty) as the model number. Refused when "Finish" refuses.
TakeResult Selection_Take(const std::string& motor, const std::string& driver, const std::string& modelText);
