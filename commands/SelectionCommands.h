// What the menu command "Motor Selection" asks before the wizard opens.
#pragma once

// True when the wizard may open. Without a complete pattern row it may not:
// "Motor cannot be selected because operating pattern is not input." is told.
bool MotorSelection_MayOpen();
