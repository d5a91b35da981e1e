// A sized document to judge the catalogue against.
#pragma once

// The horizontal ballscrew with a pattern that accelerates, runs, brakes
// and stands still, calculated.
void Document_Sized();

// What the trial calculation gives on the document for a motor.
struct TrialValues {
    double T1, T2, T3, N, JL, peak, mean;
};
TrialValues Trial(double Jm, double mass);
