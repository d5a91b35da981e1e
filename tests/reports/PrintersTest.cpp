// Printers on a real print server that the test starts itself: the printer list, the default printer, job counts, printing a file, the printer sink, the report and the print command printed for real, the status line.
#include <cups/cups.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "commands/PrintCommands.h"
#include "core/Tables.h"
#include "core/Text.h"
#include "persist/mdlFile.h"
#include "reports/PageSink.h"
#include "reports/PrintRoutines.h"
#include "reports/Printers.h"
#include "reports/SvgReport.h"
#include "tests/support/PrivateCups.h"
#include "tests/support/TestState.h"

namespace {

namespace fs = std::filesystem;

constexpr const char* kQueue = "torvane-test";
constexpr const char* kDefaultQueue = "torvane-default";

bool Contains(const std::vector<std::string>& names, const std::string& name) {
    return std::find(names.begin(), names.end(), name) != names.end();
}

// The text of a PDF file as pdftotext reads it.
std::string PdfText(const std::string& path) {
    const ToolResult r = Tool_Run({"pdftotext", "-q", "-layout", path, "-"});
    EXPECT_EQ(r.status, 0) << "pdftotext (the package poppler-utils holds it): " << r.errors;
    return r.output;
}

std::size_t Count(const std::string& text, const std::string& what) {
    std::size_t n = 0;
    for (std::size_t at = text.find(what); at != std::string::npos; at = text.find(what, at + 1)) ++n;
    return n;
}

// A PDF of one empty page that no printing of ours wrote.
std::string TinyPdf() {
    return "%PDF-1.4\n1 0 obj<</Type/Catalog/Pages 2 0 R>>endobj\n"
           "2 0 obj<</Type/Pages/Kids[3 0 R]/Count 1>>endobj\n"
           "3 0 obj<</Type/Page/Parent 2 0 R/MediaBox[0 0 595 842]>>endobj\n"
           "trailer<</Root 1 0 R>>\n%%EOF\n";
}

}  // namespace

// One server for the suite, with a queue and the default queue; a test that
// prints makes a queue of its own. ctest runs each test in a process of its
// own, so each of them then starts its own server on its own folder and port.
class PrintersTest : public StateTest {
protected:
    static void SetUpTestSuite() {
        server_ = std::make_unique<PrivateCups>();
        if (!server_->Running()) return;
        queuesReady_ =
            server_->AddQueue(kQueue) && server_->AddQueue(kDefaultQueue) && server_->SetDefault(kDefaultQueue);
    }
    static void TearDownTestSuite() { server_.reset(); }

    void SetUp() override {
        StateTest::SetUp();
        if (!server_->Running()) GTEST_SKIP() << "no private print server: " << server_->Why();
        ASSERT_TRUE(queuesReady_) << server_->Why();
    }

    // A new queue, so that its output and its jobs are the test's own, also
    // when the tests run again in the process.
    std::string Queue(const std::string& stem) {
        static int made = 0;
        const std::string name = stem + "-" + std::to_string(++made);
        EXPECT_TRUE(server_->AddQueue(name)) << server_->Why();
        return name;
    }

    // The document loaded, and AppPath with the templates and the component
    // pictures the build puts beside the programs.
    void LoadDocument() {
        const fs::path build = fs::path(TORVANE_CLI).parent_path();
        for (const char* name : {kTitleTemplate, kElementTemplate, kMoveTemplate, kNotesTemplate})
            fs::copy_file(build / name, appDir.File(name));
        fs::create_directory_symlink(build / "BMP_data", appDir.File("BMP_data"));
        ASSERT_TRUE(File_Load(std::string(TORVANE_SOURCE_DIR) + "/tests/data/horizontal-ballscrew.AP2"));
        systemName_ = Text_Clean(PRINTINFO.System.Raw());
        ASSERT_FALSE(systemName_.empty());
    }

    static std::unique_ptr<PrivateCups> server_;
    static bool queuesReady_;
    std::string systemName_;
};

std::unique_ptr<PrivateCups> PrintersTest::server_;
bool PrintersTest::queuesReady_ = false;

TEST_F(PrintersTest, ListHoldsThePrivateQueues) {
    const std::vector<std::string> names = Printer_List();
    EXPECT_TRUE(Contains(names, kQueue));
    EXPECT_TRUE(Contains(names, kDefaultQueue));
}

TEST_F(PrintersTest, DefaultNamesTheDefaultQueue) { EXPECT_EQ(Printer_Default(), kDefaultQueue); }

TEST_F(PrintersTest, JobCountOfAnIdleQueueIsZero) {
    EXPECT_EQ(Printer_JobCount(kQueue), 0);
    EXPECT_EQ(Printer_JobCount(kDefaultQueue), 0);
}

TEST_F(PrintersTest, JobCountCountsTheJobsWaitingOnAStoppedQueue) {
    const std::string queue = Queue("torvane-stopped");
    ASSERT_TRUE(server_->StopQueue(queue)) << server_->Why();
    WriteFile(appDir.File("waiting.pdf"), TinyPdf());
    ASSERT_TRUE(Printer_PrintFile(queue, appDir.File("waiting.pdf"), "first"));
    ASSERT_TRUE(Printer_PrintFile(queue, appDir.File("waiting.pdf"), "second"));
    EXPECT_EQ(Printer_JobCount(queue), 2);
    EXPECT_EQ(Print_StatusLine(queue, Printer_Default(), Printer_JobCount(queue)),
              queue + ":Online\x81]Document in queue:2");
    EXPECT_FALSE(fs::exists(server_->Output(queue)));
}

TEST_F(PrintersTest, JobCountOfAnUnknownPrinterIsMinusOne) {
    EXPECT_EQ(Printer_JobCount("no-such-printer"), -1);
    EXPECT_EQ(Printer_JobCount(""), -1);
    EXPECT_EQ(Print_StatusLine("no-such-printer", Printer_Default(), Printer_JobCount("no-such-printer")),
              "no-such-printer:Attention required:Cannot access document to be printed.");
}

TEST_F(PrintersTest, OptionsOfAQueueAndOfAnUnknownPrinter) {
    std::vector<std::string> lines;
    ASSERT_TRUE(Printer_Options(kQueue, lines));
    EXPECT_TRUE(Contains(lines, "printer-is-accepting-jobs=true"));
    EXPECT_TRUE(Contains(lines, "device-uri=file://" + server_->Output(kQueue)));
    EXPECT_FALSE(Printer_Options("no-such-printer", lines));
    EXPECT_TRUE(lines.empty());
}

TEST_F(PrintersTest, StatusLineOfTheIdleDefaultQueue) {
    const std::string name = Printer_Default();
    EXPECT_EQ(Print_StatusLine(name, Printer_Default(), Printer_JobCount(name)),
              "Default Printer:Online\x81]Document in queue:0");
}

TEST_F(PrintersTest, PrintFileLandsItsBytesInTheQueuesOutput) {
    const std::string queue = Queue("torvane-file");
    const std::string bytes = TinyPdf();
    WriteFile(appDir.File("page.pdf"), bytes);
    ASSERT_TRUE(Printer_PrintFile(queue, appDir.File("page.pdf"), "A page"));
    ASSERT_TRUE(server_->WaitIdle(queue)) << server_->ErrorLog();
    EXPECT_EQ(ReadFile(server_->Output(queue)), bytes);
    const std::vector<QueueJob> jobs = server_->Jobs(queue);
    ASSERT_EQ(jobs.size(), 1u);
    EXPECT_EQ(jobs[0].title, "A page");
    EXPECT_EQ(jobs[0].state, IPP_JSTATE_COMPLETED);
    EXPECT_EQ(Printer_JobCount(queue), 0);
}

TEST_F(PrintersTest, PrintFileOnAnUnknownPrinterFails) {
    WriteFile(appDir.File("page.pdf"), TinyPdf());
    EXPECT_FALSE(Printer_PrintFile("no-such-printer", appDir.File("page.pdf"), "A page"));
    EXPECT_FALSE(Printer_PrintFile("", appDir.File("page.pdf"), "A page"));
}

TEST_F(PrintersTest, ReportPrintsTheCoverAndThePatternsOnTheQueue) {
    LoadDocument();
    const std::string queue = Queue("torvane-report");
    PrintRequest request;
    request.printer = queue;
    request.date = Report_Date(2026, 11, 14);
    request.PrintCheck[kPrintCover] = 1;
    request.PrintCheck[kPrintPattern] = 1;
    PrinterSink sink;
    SvgReportLibrary wr(sink);
    Report_PrintParts(wr, request);
    ASSERT_TRUE(server_->WaitIdle(queue)) << server_->ErrorLog();

    // A job per part, in the report's order, each printed whole.
    const std::vector<QueueJob> jobs = server_->Jobs(queue);
    ASSERT_EQ(jobs.size(), 2u);
    EXPECT_EQ(jobs[0].title, kTitleTemplate);
    EXPECT_EQ(jobs[1].title, kMoveTemplate);
    for (const QueueJob& job : jobs) EXPECT_EQ(job.state, IPP_JSTATE_COMPLETED) << job.title;

    // The device file is written anew by each job: it holds the last one,
    // the pattern page, which shows the date and the system name as well.
    const std::string pdf = ReadFile(server_->Output(queue));
    ASSERT_EQ(pdf.rfind("%PDF-", 0), 0u) << pdf.substr(0, 40);
    EXPECT_EQ(Count(pdf, "%PDF-"), 1u);
    const std::string text = PdfText(server_->Output(queue));
    EXPECT_NE(text.find("Nov.14,2026"), std::string::npos) << text;
    EXPECT_NE(text.find(systemName_), std::string::npos) << systemName_ << "\n" << text;
}

TEST_F(PrintersTest, PrintCommandPrintsOnTheQueueAndClosesOnYes) {
    LoadDocument();
    const std::string queue = Queue("torvane-command");
    PrintDialogState state = Print_Open();
    state.PrintCheck = {1, 0, 0, 0, 0};  // the cover only
    const PrintRequest request = Print_Request(state, queue, Report_Date(2026, 11, 14));
    PrinterSink sink;
    SvgReportLibrary wr(sink);
    msg.Answer(MsgAnswer::Yes);
    bool attachment = false;
    EXPECT_TRUE(Print_Command(state, wr, request, [&](const std::string&) { attachment = true; }));
    EXPECT_FALSE(attachment);
    ASSERT_EQ(msg.Seen().size(), 1u);
    EXPECT_EQ(msg.Seen()[0].text, "OK to exit printing?");
    ASSERT_TRUE(server_->WaitIdle(queue)) << server_->ErrorLog();

    const std::vector<QueueJob> jobs = server_->Jobs(queue);
    ASSERT_EQ(jobs.size(), 1u);
    EXPECT_EQ(jobs[0].title, kTitleTemplate);
    EXPECT_EQ(jobs[0].state, IPP_JSTATE_COMPLETED);
    const std::string pdf = ReadFile(server_->Output(queue));
    ASSERT_EQ(pdf.rfind("%PDF-", 0), 0u) << pdf.substr(0, 40);
    const std::string text = PdfText(server_->Output(queue));
    EXPECT_NE(text.find("Nov.14,2026"), std::string::npos) << text;
    EXPECT_NE(text.find(systemName_), std::string::npos) << systemName_ << "\n" << text;
}

TEST_F(PrintersTest, PrinterSinkWithoutPagesPrintsNothing) {
    const std::string queue = Queue("torvane-empty");
    // The sink's temporary files go here, to be counted.
    TempDir tmp;
    const char* saved = std::getenv("TMPDIR");
    const std::string savedTmp = saved ? saved : "";
    setenv("TMPDIR", tmp.Path().c_str(), 1);
    bool begun = false, ended = false;
    {
        PrinterSink sink;
        begun = sink.BeginJob(queue, "Nothing") != nullptr;
        ended = sink.EndJob();
    }
    if (saved)
        setenv("TMPDIR", savedTmp.c_str(), 1);
    else
        unsetenv("TMPDIR");
    EXPECT_TRUE(begun);
    EXPECT_TRUE(ended);
    EXPECT_TRUE(server_->Jobs(queue).empty());
    EXPECT_FALSE(fs::exists(server_->Output(queue)));
    EXPECT_TRUE(fs::is_empty(tmp.Path()));
}

TEST_F(PrintersTest, PrinterSinkOnAnUnknownPrinterFailsAtEndJob) {
    PrinterSink sink;
    cairo_t* cr = sink.BeginJob("no-such-printer", "Lost");
    ASSERT_NE(cr, nullptr);
    cairo_rectangle(cr, 10, 10, 100, 100);
    cairo_fill(cr);
    sink.PageDone();
    EXPECT_FALSE(sink.EndJob());
}

// A server with a queue and no default printer.
class PrintersNoDefaultTest : public StateTest {
protected:
    static void SetUpTestSuite() {
        server_ = std::make_unique<PrivateCups>();
        if (server_->Running()) queueReady_ = server_->AddQueue(kQueue);
    }
    static void TearDownTestSuite() { server_.reset(); }

    void SetUp() override {
        StateTest::SetUp();
        if (!server_->Running()) GTEST_SKIP() << "no private print server: " << server_->Why();
        ASSERT_TRUE(queueReady_) << server_->Why();
    }

    static std::unique_ptr<PrivateCups> server_;
    static bool queueReady_;
};

std::unique_ptr<PrivateCups> PrintersNoDefaultTest::server_;
bool PrintersNoDefaultTest::queueReady_ = false;

TEST_F(PrintersNoDefaultTest, DefaultIsEmpty) {
    EXPECT_TRUE(Contains(Printer_List(), kQueue));
    EXPECT_EQ(Printer_Default(), "");
    EXPECT_EQ(Print_StatusLine(kQueue, Printer_Default(), Printer_JobCount(kQueue)), "");
}
