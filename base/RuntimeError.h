// The one failure type of the core. An operation that "fails with a run-time
// error" throws it; the edge of the running command (a menu command, a cell
// edit, a file open) catches it, shows the text and keeps the program going.
#pragma once

#include <stdexcept>
#include <string>

class RuntimeError : public std::runtime_error {
public:
    explicit RuntimeError(const std::string& what) : std::runtime_error(what) {}
};
