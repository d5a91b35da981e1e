// What the main window does each time it becomes the active window: load the
// file named on the command line, or carry out the answer of the mechanical
// system selection. The window supplies what only it can do.
#pragma once

#include <functional>
#include <string>

struct ActivationSeams {
    std::function<void(const std::string& path)> loadFile;  // opens an application file
    std::function<void()> resetDisplay;                      // the window side of a new document
    std::function<void()> recalculate;                       // the master recalculation
    std::function<void(const std::string& title)> setTitle;  // the window caption
    std::function<void()> refresh;                           // redraws from the tables
    std::function<void()> setUnitRow;                        // the unit row of the pattern grid
};

// Runs one activation against the global state.
void Main_Activate(const ActivationSeams& seams);

// Start-up without windows: fills the fixed tables, reads the unit picks
// (a damaged file is told and replaced by the defaults) and clears the
// document. The command line, taken whole, becomes FileName when not empty.
void Main_Prepare(const std::string& commandLine);
