// The sizing calculation: each element reduced to its calculation record, the
// load inertia and motion ratio of the chain, the torque and regeneration of
// every pattern interval, the seven sizing values and their judgement.
//
// Failure is a value: a status (0 ok), -1 from Load_Inertia, -9999 in a row or
// sizing value. The one exception is a zero diameter in a denominator of the
// reduction, which throws RuntimeError and so ends the running command.
// Nothing here allocates.
#pragma once

#include <array>
#include <cstdint>

#include "core/Tables.h"

using ElementTable = std::array<ElementRecord, kElementSlots>;
using ResultTable = std::array<std::array<double, 7>, 4>;

// The parts of the torque of the last interval computed, by anyone.
inline double TorqueAcc = 0;   // acceleration, N.m
inline double TorqueEx = 0;    // constant external load, N.m
inline double TorqueFric = 0;  // friction, N.m

// --- reduction (calc/Reduce.cpp, with calc/Cart.h for the carts) ---------------

// Fills Param(index) from the element by its type's formulas, writes the
// computed masses into rows 11 and 12 and the element's own inertia into
// DirectValue and row 13. 1 when index is not in 1 to 20, else the status of
// the inertia.
int16_t Element_Reduce(int16_t index, ElementRecord& element);

// A copy of Param(index); 1 when index is not in 1 to 20.
int16_t Param_Get(int16_t index, ParamRecord& record);

// --- load inertia (calc/Inertia.cpp) ----------------------------------------------

// Mode 1: the chain up to Param(n) at the motor shaft. Mode 0: element n
// alone at its own input. 1 on a bad mode or n outside 1 to 20.
int16_t Chain_Inertia(int16_t mode, int16_t n, double& JL, double& ratio);

// The inertia of a cart (41) or pinion-driven cart (42) carrying mass kg
// more; 1 for any other type.
int16_t Special_Inertia(const ElementRecord& element, double mass, double& JL, double& ratio);

// The load inertia at the motor shaft with the chosen motor's brake, or -1.
// mass is overwritten with the chosen motor's mass (0 with flag 0) for a
// special mechanism. Unless flag is 2, LoadInertiaTotal and TotalRatio follow.
double Load_Inertia(const ElementTable& elements, int16_t flag, double& mass);

// --- interval torque (calc/Torque.cpp; Pattern_Torques in calc/PatternTorques.cpp) --

// Torque T (N.m) and regenerated energy R (J) of an interval of dt seconds
// from v1 to v2 r/min through the first n components, for a motor of inertia
// Jm. 1 when dt is below 1e-6 s, and T and R are left alone.
int16_t Interval_Torque(int16_t n, double dt, double v1, double v2, double Jm, double& T, double& R);

// The parts of the interval torque that the chain alone decides, each term of
// a component already divided by the efficiency up to it: the inertias at the
// motor shaft per unit of acceleration, the external force and the friction.
// A pattern works them out once for all its intervals.
struct ChainTerms {
    double inertIn = 0, inertOut = 0, exforce = 0, fric = 0;
};
ChainTerms Chain_Terms(int16_t n);
int16_t Interval_Torque(const ChainTerms& chain, double dt, double v1, double v2, double Jm, double& T, double& R);

// The same for a special mechanism carrying mass kg more; 1 also for a type
// that is neither 41 nor 42.
int16_t Special_Torque(const ElementRecord& element, double dt, double v1, double v2, double mass, double Jm,
                       double& T, double& R);

// Torque and Regeneration of every complete row. With flag 0, Jm and mass
// are zeroed first. A row that cannot be computed is marked -9999; a
// non-finite result also ends the loop.
void Pattern_Torques(PatarnTable& rows, int16_t flag, double& Jm, double& mass);

// The parts of the last interval computed.
void Torque_Parts(double& acc, double& ex, double& fric);

// --- the master recalculation (calc/Culcurate.cpp) ----------------------------------

// Runs the whole calculation of the document, from the elements to the judgement.
void Culcurate_All();

// --- positions (calc/PatternPosition.cpp) ---------------------------------------------

// Position of every complete row: the signed travel of the load.
void Pattern_Position(PatarnTable& table);

// --- sizing values (calc/Sizing.cpp) ----------------------------------------------------

// The sizing values of a table's complete rows: 0 without rows, -9999 when a
// row holds the mark or the value cannot be computed.
double Effective_Torque(const PatarnTable& table);
double Max_Torque(const PatarnTable& table);
double Max_Speed(const PatarnTable& table);
double Regeneration_Peak(const PatarnTable& table);
double Regeneration_Mean(const PatarnTable& table);
double Stopping_Torque(const PatarnTable& table);

// Calculated per rating: 0 without a rating, -9999 for a marked value.
double Safe_Rate(double calculated, double rating);

// --- judgement (calc/Judge.cpp) -------------------------------------------------------

// Rates and verdicts (0 no rating, 1 OK, 2 FAIR, 3 NG) of the seven values.
void Judge_Results(ResultTable& results);
