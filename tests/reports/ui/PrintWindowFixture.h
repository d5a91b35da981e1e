// The print windows driven as a user drives them: a document loaded, the
// templates and pictures beside the program, and a print system that is
// either the test's own or none at all.
#pragma once

#include <QApplication>
#include <QTest>
#include <QTimer>
#include <cups/cups.h>
#include <filesystem>
#include <gtest/gtest.h>

#include "core/Tables.h"
#include "persist/mdlFile.h"
#include "tests/support/Controls.h"
#include "tests/support/TestState.h"

class PrintWindowTest : public StateTest {
protected:
    void SetUp() override {
        StateTest::SetUp();
        namespace fs = std::filesystem;
        for (const char* t : {"Title.svg", "Element.svg", "Move.svg", "Notes.svg", "Select.svg"})
            fs::copy_file(std::string(TORVANE_SOURCE_DIR "/data/app/") + t, AppPath + "/" + t);
        fs::copy(TORVANE_BUILD_DIR "/BMP_data", AppPath + "/BMP_data", fs::copy_options::recursive);
        ASSERT_TRUE(File_Load(TORVANE_SOURCE_DIR "/tests/data/horizontal-ballscrew.AP2"));
        NoPrintServer();
    }

    void TearDown() override {
        unsetenv("CUPS_SERVER");
        cupsSetServer(nullptr);
        StateTest::TearDown();
    }

    // A print server that is not there: no printer, no default printer.
    static void NoPrintServer() {
        setenv("CUPS_SERVER", "localhost:9", 1);
        cupsSetServer(nullptr);
    }

    // Was the message shown, under that title?
    bool Told(const std::string& text, const std::string& title) const {
        for (const MsgRequest& r : msg.Seen())
            if (r.text == text && r.title == title) return true;
        return false;
    }
};
