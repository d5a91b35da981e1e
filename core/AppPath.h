// Where the program's data files lie.
#pragma once

#include <string>

// The folder of the running executable, or the folder named by the
// environment variable TORVANE_APP_PATH when it is set and not empty.
std::string AppPath_Find();
