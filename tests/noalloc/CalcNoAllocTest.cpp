// The recalculation runs on every edit and the torque loop for every motor of
// a series: neither may touch the heap. This binary's operator new counts.
#include "calc/mdlCulcurate.h"
#include "tests/calc/CalcFixture.h"
#include "tests/noalloc/CountingNew.h"

namespace {

// A store the optimiser must keep: a new whose result lands here is never removed.
int* volatile kept = nullptr;

class CalcNoAlloc : public CalcTest {
protected:
    // A sized horizontal ballscrew with a chosen motor and a trapezoid with a rest row.
    void SetUp() override {
        CalcTest::SetUp();
        BuildSizedBallscrew();
        Culcurate_All();  // once, so that every lazily built table exists
    }
};

// The proof below holds only if this binary's operator new is the counting one.
TEST_F(CalcNoAlloc, CountingOperatorNewIsInForce) {
    const long before = allocations;
    kept = new int(1);
    delete kept;
    EXPECT_EQ(allocations, before + 1);
}

TEST_F(CalcNoAlloc, RecalculationAllocatesNothing) {
    const long before = allocations;
    Culcurate_All();
    EXPECT_EQ(allocations, before);
    EXPECT_NE(ResultValues[Hantei][MaxTorque], 0);
}

TEST_F(CalcNoAlloc, RecalculationOfACartAllocatesNothing) {
    Build(9);
    const long before = allocations;
    Culcurate_All();
    EXPECT_EQ(allocations, before);
}

TEST_F(CalcNoAlloc, PatternTorquesAllocateNothing) {
    PatarnTrial = Patarn;
    double Jm = 0.0002, mass = 3;
    const long before = allocations;
    Pattern_Torques(PatarnTrial, 2, Jm, mass);
    EXPECT_EQ(allocations, before);
    EXPECT_NE(PatarnTrial[1].Torque, Patarn[1].Torque);
}

TEST_F(CalcNoAlloc, JudgementAllocatesNothing) {
    const long before = allocations;
    Judge_Results(ResultValues);
    EXPECT_EQ(allocations, before);
}

}  // namespace
