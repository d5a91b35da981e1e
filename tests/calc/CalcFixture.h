// A fresh program state with helpers to lay out a chain and a pattern.
#pragma once

#include <initializer_list>

#include "core/Catalogue.h"
#include "core/Document.h"
#include "core/Tables.h"
#include "core/PatarnRows.h"
#include "tests/support/TestState.h"

// The mass forms of the formula tables, written out by hand: a disk of
// diameter d, thickness t and density r in g/cm3, and a steel rod of diameter
// d and length l, both in kg.
inline double Disk(double d, double t, double r) { return r * 3.14 * (d * d) * t / 4 * 1000; }
inline double Steel(double d, double l) { return (d * d) * 24492 * l / 4; }

class CalcTest : public StateTest {
protected:
    // The chain of the types from slot 1 on, each with its defaults, behind the motor.
    static void Place(std::initializer_list<int16_t> types) { Chain_Set(types, 1); }


    // A template chain as the main window builds it.
    static void Build(int16_t number) {
        Template_Fill(number, false);
        ElementCount = MecaTemplateCount[number];
    }

    // The horizontal ballscrew template (motor, reducer 1:1, H ballscrew, H
    // linear) with a chosen motor, its ratings, and a pattern up to 3000 r/min
    // in 0.1 s, 0.5 s at speed, down in 0.1 s and 0.3 s at rest.
    static void BuildSizedBallscrew() {
        Build(1);
        MotorSelected = 1;
        SelectedJm = 0.00003;  // rotor and brake
        SelectedJb = 0.00001;
        Element[0].Item[5].ItemText = "30";
        ResultValues[Rate] = {0.64, 0.42, 3000, 0.00002, 10, 5, 0.64};
        Row(Patarn, 1, 0.1, 3000);
        Row(Patarn, 2, 0.5, 3000);
        Row(Patarn, 3, 0.1, 0);
        Row(Patarn, 4, 0.3, 0);
    }

    static double& P(int16_t slot, int row) { return Element[slot].Item[row].Value; }

    // A complete row: DeltaTime in s, Speed in r/min.
    static void Row(PatarnTable& table, int16_t row, double dt, double speed) {
        Patarn_SetField(table, row, 0, 1, dt, FieldDeltaTime);
        Patarn_SetField(table, row, 5, 0, speed, FieldSpeed);
    }
};
