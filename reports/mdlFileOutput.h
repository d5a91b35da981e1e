// The calculation results file: the selected motor, every component with its
// parameters in SI units and its general-parameter block, the inertia and
// torque formulas as text, and one row per pattern interval with the
// regeneration worked out in numbers. It reads the shared tables and never
// changes them, apart from what the load inertia routine stores. Writing is
// never broken off and tells the user nothing; errors go to History.log.
#pragma once

#include <string>

// --- the file whole (reports/ResultsSave.cpp) -------------------------------------

// Opens the file (created or emptied), writes all sections in order, closes
// it. True when the file was written whole; the user is told nothing either way.
bool Results_Save(const std::string& fileName);

// --- the components (reports/ResultsElement.cpp) ------------------------------------

// Every component: its number and label, its parameter rows, its block.
void Results_Element();

// --- the formulas (reports/ResultsFormulas.cpp) -------------------------------------

// The inertia formula as text and the load inertia J of the components.
void Results_Inertia();

// The torque and regeneration formulas, the same in every file.
void Results_Torque();

// --- the intervals (reports/ResultsInterval.cpp) -------------------------------------

// One row per counted interval, with freshly computed torque parts.
void Results_Interval();
