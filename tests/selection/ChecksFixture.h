// The fixture of the tests of the checks' table and chart: the falling motor
// of Parts_Falling with a driver of 10 J and no power limit, and a pattern of
// three intervals: 0 to 3000 r/min at 2.7 N m in 0.1 s, back to 0 at -1 N m
// in 0.1 s, then up to 5500 r/min, past the top speed, at 0.5 N m in 0.2 s.
#pragma once

#include <gtest/gtest.h>

#include "selection/EngineeringChecks.h"
#include "tests/support/ChecksParts.h"
#include "tests/support/TestState.h"

class ChecksFixture : public StateTest {
protected:
    void SetUp() override {
        StateTest::SetUp();
        table[1] = {0, 0.1, 3000, 0, 0, 2.7, 0, 3};
        table[2] = {0, 0.1, 0, 0, 0, -1, 0, 3};
        table[3] = {0, 0.2, 5500, 0, 0, 0.5, 0, 3};
    }
    // The checks with an effective torque of 0.9 N m and the regenerations given.
    void Compute(double peak = 0, double mean = 0) { Checks_Compute(table, 3, 0.9, peak, mean, parts, checks); }

    ChosenParts parts = Parts_Falling(10, std::nullopt);
    PatarnTable table{};
    EngineeringChecks checks;
};
