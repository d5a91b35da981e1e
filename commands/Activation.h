// What the main window does each time it becomes the active window: open the
// file named on the command line, or carry out the answer of the mechanical
// system selection, recalculating a ready-made chain. The window supplies the
// hooks of what only it can do; without them the tables come out the same.
#pragma once

#include <functional>
#include <string>

#include "persist/mdlFile.h"

struct ActivationHooks {
    FileLoadHooks fileLoad;                                  // the window side of opening the named file
    std::function<void()> resetDisplay;                      // the window side of a new document
    std::function<void(const std::string& title)> setTitle;  // the window caption
    std::function<void()> refresh;                           // redraws from the tables
    std::function<void()> setUnitRow;                        // the unit row of the pattern grid
};

// Runs one activation against the global state. False only when the file
// named on the command line was opened and could not be read whole.
bool Main_Activate(const ActivationHooks& hooks = {});
