// Helpers every test fixture uses: a fresh program state in a temporary
// AppPath, and messages answered by script.
#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <initializer_list>
#include <string>

#include "base/MsgBox.h"

// Zeroes every table and scalar, fills the fixed tables, gives the units
// their fresh-installation picks and clears the document.
void State_Reset();

// The types from slot `first` on, each with its catalogue defaults; every
// slot behind them holds the empty type. ElementCount follows.
void Chain_Set(std::initializer_list<int16_t> types, int16_t first = 0);

// A fresh temporary folder, removed at the end.
class TempDir {
public:
    TempDir();
    ~TempDir();
    TempDir(const TempDir&) = delete;
    TempDir& operator=(const TempDir&) = delete;
    const std::string& Path() const { return path_; }
    std::string File(const std::string& name) const { return path_ + "/" + name; }

private:
    std::string path_;
};

// Writes bytes to a file, replacing it.
void WriteFile(const std::string& path, const std::string& bytes);
// The whole file; "" when it cannot be read.
std::string ReadFile(const std::string& path);

// Base of most fixtures: a temporary AppPath, a reset state and scripted messages.
class StateTest : public ::testing::Test {
protected:
    void SetUp() override;
    void TearDown() override;

    TempDir appDir;
    ScriptedMsgBox msg;
};
