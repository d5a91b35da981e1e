// The engineering checks run after every edit while their window is up: once
// the catalogue's parts are read, computing them touches no heap. Shares the
// counting operator new of this binary.
#include "selection/EngineeringChecks.h"

#include "calc/mdlCulcurate.h"
#include "tests/calc/CalcFixture.h"
#include "tests/noalloc/CountingNew.h"
#include "tests/support/ChecksParts.h"

namespace {

class ChecksNoAlloc : public CalcTest {
protected:
    void SetUp() override {
        CalcTest::SetUp();
        BuildSizedBallscrew();
        Culcurate_All();
    }
    // A driver that absorbs next to nothing: the resistor is sized too.
    ChosenParts parts = Parts_Falling(0.001, 0.001);
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
