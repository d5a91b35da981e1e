// A window's handler run so that a run-time failure of the core is told in
// a message under the window's title and the window stays usable.
#pragma once

#include <functional>
#include <string_view>

// True when the command ran to its end.
bool Run_Guarded(std::string_view title, const std::function<void()>& command);
