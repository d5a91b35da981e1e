// Documents that the file tests write and read.
#pragma once

#include <string>

// The "Horizontal ballscrew" chain in changed units, three pattern rows with
// fixed numbers (one of them marked -9999), a chosen motor and driver, and a
// filled information block. Nothing is calculated, so the file depends on
// the layout alone.
void Document_Golden();

// The path of a file under tests/data.
std::string TestData(const std::string& name);
