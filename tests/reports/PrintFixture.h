// The fixture of the printed report's tests: a fresh state in a temporary
// AppPath that holds the report templates and the component pictures, the
// example document, and readers of the recording engine's trace.
#pragma once

#include <string>
#include <vector>

#include "reports/RecordingReport.h"
#include "reports/ReportFill.h"
#include "tests/support/TestState.h"

// The folder of the build, where the component pictures are made.
std::string Build_Folder();

// The sized example: a horizontal ballscrew with a chosen motor and driver.
inline constexpr const char* kExampleFile = TORVANE_SOURCE_DIR "/tests/data/horizontal-ballscrew.AP2";

// Calls as "op object=value" lines, short to compare and to read when a test fails.
std::vector<std::string> Trace(const std::vector<ReportCall>& calls);
// The operations only, in order.
std::vector<std::string> Ops(const std::vector<ReportCall>& calls);
// The calls of one operation.
std::vector<ReportCall> CallsOf(const std::vector<ReportCall>& calls, const std::string& op);
// The objects of one operation, in order.
std::vector<std::string> ObjectsOf(const std::vector<ReportCall>& calls, const std::string& op);
// The value the last call of op on object set; "<none>" when there is none.
std::string ValueOf(const std::vector<ReportCall>& calls, const std::string& op, const std::string& object);
// Whether any call of op names the object.
bool Names(const std::vector<ReportCall>& calls, const std::string& op, const std::string& object);

class PrintTest : public StateTest {
protected:
    void SetUp() override;

    // The five templates into AppPath and BMP_data beside them.
    void InstallTemplates();
    // The example document through File_Load; false when it did not load.
    bool LoadExample();
    // A request on printer "Office" for 14 Nov 2026 with the check boxes given.
    PrintRequest Request(bool cover, bool components, bool patterns, bool notes = false) const;
    // The chain: motor and components of these types with catalogue defaults.
    void Chain(std::initializer_list<int16_t> types);
    // A chain of count elements, the motor and count-1 components of every
    // type that has a picture, in turn.
    void LongChain(int count);
    // Complete pattern rows 1 to count, with times, speeds and torques.
    void PatternRows(int count);

    RecordingReportLibrary wr;
};
