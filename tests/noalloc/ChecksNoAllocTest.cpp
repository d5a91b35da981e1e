// The engineering checks run after every edit while their window is up: once
// the catalogue's parts are read, computing them touches no heap. Shares the
// counting operator new of this binary.
#include "selection/EngineeringChecks.h"

#include "calc/mdlCulcurate.h"
#include "tests/calc/CalcFixture.h"
#include "tests/noalloc/CountingNew.h"

namespace {

class ChecksNoAlloc : public CalcTest {
protected:
    void SetUp() override {
        CalcTest::SetUp();
        BuildSizedBallscrew();
        Culcurate_All();
        parts.curveSource = CurveSource::Found;
        parts.curve = {{{0, 1, 3}, {3000, 1, 3}, {5000, 0.5, 1}}};
        parts.driverSource = DriverSource::Found;
        parts.energyLimit = 0.001;
        parts.powerLimit = 0.001;
    }
    ChosenParts parts;
    EngineeringChecks checks;
};

TEST_F(ChecksNoAlloc, ChecksOfEveryIntervalAllocateNothing) {
    const long before = allocations;
    Checks_OfDocument(parts, checks);
    EXPECT_EQ(allocations, before);
    EXPECT_EQ(checks.intervals, 4);
    EXPECT_NE(checks.tightest, 0);
    EXPECT_EQ(checks.resistor, ResistorState::Needed);
}

}  // namespace
