// Reduction of every component type to its calculation record. Expected
// numbers are the formulas of the type tables written out by hand.
#include <cmath>

#include "base/RuntimeError.h"
#include "calc/mdlCulcurate.h"
#include "tests/calc/CalcFixture.h"

namespace {


class CalcReduce : public CalcTest {
protected:
    // Reduces slot 1 holding the type with its defaults, after the changes.
    template <class Edit>
    void ReduceOne(int16_t type, Edit edit) {
        Place({type});
        edit();
        ASSERT_EQ(Element_Reduce(1, Element[1]), 0);
    }
    void ReduceOne(int16_t type) {
        ReduceOne(type, [] {});
    }

    static void ExpectParam(double m1, double m2, double m3, double inert0, double inert1, double ratio, double eff,
                            double exforce, double fric) {
        const ParamRecord& r = Param[1];
        EXPECT_DOUBLE_EQ(r.m1, m1);
        EXPECT_DOUBLE_EQ(r.m2, m2);
        EXPECT_DOUBLE_EQ(r.m3, m3);
        EXPECT_DOUBLE_EQ(r.inert0, inert0);
        EXPECT_DOUBLE_EQ(r.inert1, inert1);
        EXPECT_DOUBLE_EQ(r.ratio, ratio);
        EXPECT_DOUBLE_EQ(r.eff, eff);
        EXPECT_DOUBLE_EQ(r.exforce, exforce);
        EXPECT_DOUBLE_EQ(r.fric, fric);
    }

    // Row 13 and DirectValue hold inert0 + inert1 * ratio^2.
    static void ExpectOwnInertia(double J) {
        EXPECT_DOUBLE_EQ(Element[1].Item[13].Value, J);
        EXPECT_DOUBLE_EQ(Element[1].DirectValue, J);
    }

    static void ExpectMassRows(double row11, double row12) {
        EXPECT_DOUBLE_EQ(P(1, 11), row11);
        EXPECT_DOUBLE_EQ(P(1, 12), row12);
    }
};

// --- one worked example per type, from the catalogue defaults -----------------------

TEST_F(CalcReduce, ReducerWithRatioEfficiencyAndInputInertia) {
    ReduceOne(1, [] {
        P(1, 0) = 0.01;
        P(1, 1) = 0.9;
        P(1, 2) = 0.002;
    });
    ExpectParam(0, 0, 0, 0.002, 0, 0.01, 0.9, 0, 0);
    ExpectOwnInertia(0.002);
}

TEST_F(CalcReduce, GearOfDefaultValues) {
    ReduceOne(2);
    const double m1 = 7.8 * 3.14 * (0.02 * 0.02) * 0.01 / 4 * 1000;
    const double m2 = 7.8 * 3.14 * (0.06 * 0.06) * 0.01 / 4 * 1000;
    const double inert0 = 0.02 * 0.02 * m1 / 8;
    const double inert1 = 0.06 * 0.06 * m2 / 8;
    const double ratio = 0.02 / 0.06;
    ExpectParam(m1, m2, 0, inert0, inert1, ratio, 0.9, 0, 0);
    EXPECT_DOUBLE_EQ(Param[1].ratio, 1.0 / 3);
    ExpectMassRows(m1, m2);
    ExpectOwnInertia(inert1 * ratio * ratio + inert0);
}

TEST_F(CalcReduce, BeltAddsHalfItsMassAtTheInputPulley) {
    ReduceOne(3);
    const double m = Disk(0.1, 0.02, 2.7);
    const double inert0 = 0.1 * 0.1 * 0.5 / 4 + 0.1 * 0.1 * m / 8;
    const double inert1 = 0.1 * 0.1 * m / 8;
    ExpectParam(m, m, 0, inert0, inert1, 1, 0.9, 0, 0);
    ExpectMassRows(m, m);
    ExpectOwnInertia(inert1 + inert0);
}

TEST_F(CalcReduce, RollerOfDefaultValues) {
    ReduceOne(4);
    const double m = Disk(0.1, 0.02, 7.8);
    ExpectParam(m, m, 0, 0.01 * m / 8, 0.01 * m / 8, 1, 0.9, 0, 0);
    ExpectMassRows(m, m);
    ExpectOwnInertia(0.01 * m / 8 + 0.01 * m / 8);
}

TEST_F(CalcReduce, CylinderLoadWithExternalTorque) {
    ReduceOne(5, [] {
        P(1, 1) = 0.1;  // inner diameter
        P(1, 4) = 3;    // external torque
    });
    const double m = (0.2 * 0.2 - 0.1 * 0.1) * 7.8 * 3.14 * 0.05 / 4 * 1000;
    const double inert0 = (0.1 * 0.1 + 0.2 * 0.2) * m / 8;
    ExpectParam(m, 0, 0, inert0, 0, 1, 1, 3, 0);
    ExpectMassRows(0, m);
    ExpectOwnInertia(inert0);
}

TEST_F(CalcReduce, MultiDisksOfDefaultValues) {
    ReduceOne(6);
    const double m1 = Disk(0.04, 0.03, 7.8), m2 = Disk(0.06, 0.04, 7.8), m3 = Disk(0.04, 0.03, 7.8);
    const double inert0 = (0.04 * 0.04 * m1 + 0.06 * 0.06 * m2 + 0.04 * 0.04 * m3) / 8;
    ExpectParam(m1, m2, m3, inert0, 0, 1, 1, 0, 0);
    ExpectMassRows(0, 0);
    ExpectOwnInertia(inert0);
}

TEST_F(CalcReduce, EccentricDiskAddsItsMassAtTheEccentricity) {
    ReduceOne(7, [] { P(1, 3) = 0.05; });
    const double m = Disk(0.2, 0.02, 2.7);
    const double inert0 = 0.2 * 0.2 * m / 8 + 0.05 * 0.05 * m;
    ExpectParam(m, 0, 0, inert0, 0, 1, 1, 0, 0);
    ExpectMassRows(0, m);
    ExpectOwnInertia(inert0);
}

TEST_F(CalcReduce, RotatingBlockOfDefaultValues) {
    ReduceOne(8);
    const double m = 2.7 * 0.3 * 0.08 * 0.06 * 1000;
    const double inert0 = (0.08 * 0.08 + 0.3 * 0.3) * m / 12 + 0.1 * 0.1 * m;
    ExpectParam(m, 0, 0, inert0, 0, 1, 1, 0, 0);
    ExpectMassRows(0, m);
    ExpectOwnInertia(inert0);
}

TEST_F(CalcReduce, EccentricLoadIsAPointMass) {
    ReduceOne(9, [] { P(1, 0) = 2; });
    ExpectParam(0, 0, 0, 0.1 * 0.1 * 2, 0, 1, 1, 0, 0);
    ExpectMassRows(0, 0);
    ExpectOwnInertia(0.02);
}

TEST_F(CalcReduce, ExternalForceGivesATorqueAtItsDistance) {
    ReduceOne(10, [] { P(1, 0) = 20; });
    ExpectParam(0, 0, 0, 0, 0, 1, 1, 0.1 * 20, 0);
    ExpectOwnInertia(0);
}

TEST_F(CalcReduce, HorizontalBallscrewOfDefaultValues) {
    ReduceOne(11);
    const double screw = Steel(0.02, 0.6);
    const double inert0 = 0.02 * 0.02 * screw / 8;
    const double ratio = 0.01 / 6.28;
    ExpectParam(screw, 0, 0, inert0, 1, ratio, 0.9, 0, 0.1);
    ExpectMassRows(0, 0);
    ExpectOwnInertia(1 * ratio * ratio + inert0);
}

TEST_F(CalcReduce, VerticalBallscrewOfDefaultValues) {
    ReduceOne(12);
    const double screw = Steel(0.02, 0.6);
    const double ratio = 0.01 / 6.28;
    ExpectParam(screw, 0, 0, 0.02 * 0.02 * screw / 8, 1, ratio, 0.9, 1 * 9.8, 0);
    ExpectOwnInertia(1 * ratio * ratio + 0.02 * 0.02 * screw / 8);
}

TEST_F(CalcReduce, LinearBeltUsesTheDriveDiameterInBothTerms) {
    ReduceOne(13, [] { P(1, 3) = 0.2; });  // a larger slave pulley
    const double m1 = Disk(0.1, 0.02, 2.7), m2 = Disk(0.2, 0.02, 2.7);
    const double inert0 = 0.1 * 0.1 * m2 / 8 + 0.1 * 0.1 * m1 / 8;
    ExpectParam(m1, m2, 0, inert0, 0.5, 0.1 / 2, 0.9, 0, 0.1);
    ExpectMassRows(m1, m2);
    ExpectOwnInertia(0.5 * 0.05 * 0.05 + inert0);
}

TEST_F(CalcReduce, RollFeedWithPullForce) {
    ReduceOne(14, [] { P(1, 9) = 5; });
    const double m = Disk(0.1, 0.06, 7.8);
    const double inert0 = (0.1 * 0.1 * m + 0.1 * 0.1 * m) / 8;
    ExpectParam(m, m, 0, inert0, 1, 0.05, 0.9, 5, 0.1);
    ExpectMassRows(m, m);
    ExpectOwnInertia(1 * 0.05 * 0.05 + inert0);
}

TEST_F(CalcReduce, SuspensionMassesAddInInertiaAndSubtractInLoad) {
    ReduceOne(15, [] { P(1, 7) = 3; });  // workpiece 3 kg against a balancer of 1 kg
    const double m = Disk(0.1, 0.02, 2.7);
    const double inert0 = 0.1 * 0.1 * m / 8 + 0.1 * 0.1 * m / 8;
    ExpectParam(m, m, 0, inert0, 1 + 3, 0.05, 0.9, (3 - 1) * 9.8, 0);
    ExpectMassRows(m, m);
    ExpectOwnInertia(4 * 0.05 * 0.05 + inert0);
}

TEST_F(CalcReduce, SuspensionWithTheHeavierBalancerPullsBack) {
    ReduceOne(15, [] { P(1, 8) = 2; });
    EXPECT_DOUBLE_EQ(Param[1].exforce, (1 - 2) * 9.8);
}

TEST_F(CalcReduce, PinionAndRackOfDefaultValues) {
    ReduceOne(16);
    const double m = Disk(0.04, 0.02, 7.8);
    const double inert0 = 0.04 * 0.04 * m / 8;
    ExpectParam(m, 0, 0, inert0, 1, 0.02, 0.9, 0, 0.1);
    ExpectMassRows(0, 0);
    ExpectOwnInertia(1 * 0.02 * 0.02 + inert0);
}

TEST_F(CalcReduce, HorizontalNutRotationMovesTheScrew) {
    ReduceOne(17);
    const double nut = (0.04 * 0.04 - 0.02 * 0.02) * 24492 * 0.06 / 4;
    const double inert0 = (0.02 * 0.02 + 0.04 * 0.04) * nut / 8;
    const double screw = Steel(0.02, 0.6);
    const double ratio = 0.01 / 6.28;
    ExpectParam(nut, 0, 0, inert0, screw, ratio, 0.9, 0, 0.1);
    ExpectOwnInertia(screw * ratio * ratio + inert0);
}

TEST_F(CalcReduce, VerticalNutRotationCarriesTheScrewWeight) {
    ReduceOne(18);
    const double nut = (0.04 * 0.04 - 0.02 * 0.02) * 24492 * 0.06 / 4;
    const double inert0 = (0.02 * 0.02 + 0.04 * 0.04) * nut / 8;
    const double screw = Steel(0.02, 0.6);
    ExpectParam(nut, 0, 0, inert0, screw, 0.01 / 6.28, 0.9, screw * 9.8, 0);
}

TEST_F(CalcReduce, RackAndPinionTurnsTravelIntoRotation) {
    ReduceOne(21);
    const double m = Disk(0.04, 0.02, 7.8);
    const double inert1 = 0.04 * 0.04 * m / 8;
    const double ratio = 2 / 0.04;
    ExpectParam(m, 0, 0, 1, inert1, ratio, 0.9, 0, 0);
    ExpectMassRows(0, 0);
    ExpectOwnInertia(inert1 * ratio * ratio + 1);
}

TEST_F(CalcReduce, HorizontalLinearWithExternalLoad) {
    ReduceOne(31, [] { P(1, 1) = 5; });
    ExpectParam(0, 0, 0, 0, 1, 1, 1, 5, 0.1);
    ExpectOwnInertia(1);
}

TEST_F(CalcReduce, VerticalLinearCarriesItsWeight) {
    ReduceOne(32);
    ExpectParam(0, 0, 0, 0, 1, 1, 1, 1 * 9.8, 0);
    ExpectOwnInertia(1);
}

TEST_F(CalcReduce, InclineOfThirtyDegrees) {
    ReduceOne(33);
    const double angle = 3.14 / 6;
    ExpectParam(0, 0, 0, 0, 1, 1, 1, 1 * 9.8 * std::sin(angle), std::cos(angle) * 0.1);
    ExpectOwnInertia(1);
}

TEST_F(CalcReduce, BalancerOfDefaultValues) {
    ReduceOne(34, [] { P(1, 7) = 3; });
    const double m = Disk(0.1, 0.02, 2.7);
    ExpectParam(m, m, 0, 1 + 3, (m + m) / 2, 1, 0.9, (3 - 1) * 9.8, 0);
    ExpectMassRows(m, m);
    ExpectOwnInertia((m + m) / 2 + 4);
}

TEST_F(CalcReduce, CartKeepsItsBodiesForTheReportAndTakesItsInertiaWhole) {
    ReduceOne(41);
    const double wheels = 2.7 * 4 * 3.14 * (0.1 * 0.1) * 0.03 / 4 * 1000;
    const double R = 0.01 * 0.1 / 2;
    ExpectParam(1, wheels, 0, 0, 0, R, 0.8, 0, 0);
    ExpectOwnInertia(wheels * (0.1 * 0.1) * (0.01 * 0.01) / 8 + R * R * (wheels + 1));
}

TEST_F(CalcReduce, PinionCartKeepsItsPinionAndFriction) {
    ReduceOne(42);
    const double wheels = 2.7 * 4 * 3.14 * (0.1 * 0.1) * 0.03 / 4 * 1000;
    const double pinion = (0.04 * 0.04) * 0.02 * 3.14 * 7.8 / 4 * 1000;
    const double R = 0.01 * 0.04 / 2;
    ExpectParam(1, wheels, pinion, 0, 0, R, 0.8, 0, 0.1);
    const double all = wheels + 1 + pinion;
    ExpectOwnInertia((0.1 * 0.1 * wheels + 0.04 * 0.04 * pinion) * (0.01 * 0.01) / 8 + R * R * all);
}

TEST_F(CalcReduce, MotorSlotIsNoComponent) {
    Element[0].Item[2].Value = 0.0003;
    Param[0].ratio = 7;
    EXPECT_EQ(Element_Reduce(0, Element[0]), 1);
    EXPECT_EQ(Param[0].ratio, 7);
    EXPECT_EQ(Param[0].m1, 0);
    EXPECT_EQ(Element[0].Item[2].Value, 0.0003);
    EXPECT_EQ(Element[0].Item[11].Value, 0);
    EXPECT_EQ(Element[0].Item[12].Value, 0);
    EXPECT_EQ(Element[0].Item[13].Value, 0);
    EXPECT_EQ(Element[0].DirectValue, 0);
}

TEST_F(CalcReduce, IndexBeyondTwentyChangesNothing) {
    Place({2});
    EXPECT_EQ(Element_Reduce(21, Element[1]), 1);
    EXPECT_EQ(Element[1].Item[11].Value, 0);
}

// --- edge cases -------------------------------------------------------------------------

TEST_F(CalcReduce, GearOfDefaultValuesShowsBothMasses) {
    ReduceOne(2);
    const double m1 = 7.8 * 3.14 * (0.02 * 0.02) * 0.01 / 4 * 1000;
    EXPECT_DOUBLE_EQ(Param[1].m1, m1);
    EXPECT_DOUBLE_EQ(Param[1].ratio, 1.0 / 3);
    EXPECT_DOUBLE_EQ(P(1, 11), m1);
    EXPECT_DOUBLE_EQ(P(1, 12), 7.8 * 3.14 * (0.06 * 0.06) * 0.01 / 4 * 1000);
}

TEST_F(CalcReduce, DirectMassInputOnAGearKeepsTheEnteredMasses) {
    ReduceOne(2, [] {
        Element[1].InputMode = 2;
        P(1, 11) = 0.5;
        P(1, 12) = 1.5;
    });
    ExpectMassRows(0.5, 1.5);
    EXPECT_EQ(Param[1].m1, 0.5);
    EXPECT_EQ(Param[1].m2, 1.5);
    EXPECT_DOUBLE_EQ(Param[1].inert0, 0.02 * 0.02 * 0.5 / 8);
}

TEST_F(CalcReduce, DirectMassInputOnATypeWithoutMassRowsChangesNothing) {
    ReduceOne(11, [] {
        Element[1].InputMode = 2;
        P(1, 11) = 0.5;
    });
    EXPECT_DOUBLE_EQ(Param[1].m1, Steel(0.02, 0.6));
    EXPECT_EQ(P(1, 11), 0.5);
    EXPECT_EQ(P(1, 12), 0);
}

TEST_F(CalcReduce, DirectInertiaOnACylinderLoadStaysAsEntered) {
    ReduceOne(5, [] {
        Element[1].InputMode = 1;
        Element[1].DirectValue = 0.004;
    });
    EXPECT_EQ(Param[1].inert0, 0.004);
    EXPECT_EQ(P(1, 13), 0.004);
    ASSERT_EQ(Element_Reduce(1, Element[1]), 0);
    EXPECT_EQ(P(1, 13), 0.004);
}

TEST_F(CalcReduce, DirectInertiaOnAGearGrowsAtEachRecalculation) {
    ReduceOne(2, [] {
        Element[1].InputMode = 1;
        Element[1].DirectValue = 0.001;
    });
    const double m2 = 7.8 * 3.14 * (0.06 * 0.06) * 0.01 / 4 * 1000;
    const double raise = (0.06 * 0.06 * m2 / 8) * (1.0 / 3) * (1.0 / 3);
    EXPECT_DOUBLE_EQ(P(1, 13), 0.001 + raise);
    ASSERT_EQ(Element_Reduce(1, Element[1]), 0);
    EXPECT_DOUBLE_EQ(P(1, 13), 0.001 + 2 * raise);
    ASSERT_EQ(Element_Reduce(1, Element[1]), 0);
    EXPECT_DOUBLE_EQ(P(1, 13), 0.001 + 3 * raise);
}

TEST_F(CalcReduce, VerticalBallscrewCarriesTheTableWithoutFriction) {
    ReduceOne(12);
    EXPECT_DOUBLE_EQ(Param[1].exforce, 9.8);
    EXPECT_EQ(Param[1].fric, 0);
}

TEST_F(CalcReduce, HorizontalBallscrewHasFrictionAndNoLoad) {
    ReduceOne(11, [] { P(1, 5) = 0.15; });
    EXPECT_EQ(Param[1].exforce, 0);
    EXPECT_EQ(Param[1].fric, 0.15);
}

TEST_F(CalcReduce, FlatInclineHasNoLoadAndFullFriction) {
    ReduceOne(33, [] {
        P(1, 1) = 0;
        P(1, 2) = 0.2;
    });
    EXPECT_EQ(Param[1].exforce, 0);
    EXPECT_EQ(Param[1].fric, 0.2);
}

TEST_F(CalcReduce, EmptySlotBehindTheChainIsZeroed) {
    Place({2});
    Param[2] = ParamRecord{1, 2, 3, 4, 5, 6, 7, 8, 9};
    P(2, 13) = 5;
    Element_Reduce(2, Element[2]);
    const ParamRecord& r = Param[2];
    for (const double v : {r.m1, r.m2, r.m3, r.inert0, r.inert1, r.ratio, r.eff, r.exforce, r.fric}) EXPECT_EQ(v, 0);
    EXPECT_EQ(P(2, 13), 0);
}

TEST_F(CalcReduce, ZeroOutputDiameterOfAGearIsARunTimeFailure) {
    Place({2});
    P(1, 3) = 0;
    EXPECT_THROW(Element_Reduce(1, Element[1]), RuntimeError);
}

TEST_F(CalcReduce, ZeroPinionDiameterOfARackIsARunTimeFailure) {
    Place({21});
    P(1, 0) = 0;
    EXPECT_THROW(Element_Reduce(1, Element[1]), RuntimeError);
}

TEST_F(CalcReduce, ParamGetCopiesTheRecord) {
    ReduceOne(11);
    ParamRecord r;
    EXPECT_EQ(Param_Get(1, r), 0);
    EXPECT_EQ(r.fric, 0.1);
    EXPECT_EQ(Param_Get(0, r), 1);
    EXPECT_EQ(Param_Get(21, r), 1);
}

}  // namespace
