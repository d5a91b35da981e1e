// Opens with its header: app/cli/ReportCli.h.
#include "app/cli/ReportCli.h"

#include <functional>
#include <iostream>
#include <map>
#include <regex>

#include "app/cli/Json.h"
#include "app/cli/SelectionCli.h"
#include "base/Cp1252.h"
#include "commands/ListPrintCommands.h"
#include "commands/PrintCommands.h"
#include "core/Startup.h"
#include "persist/mdlFile.h"
#include "reports/PdfExport.h"
#include "reports/PrintRoutines.h"
#include "reports/RecordingReport.h"

namespace {

// The filling calls as JSON, one object per line.
void Objects_Print(const RecordingReportLibrary& wr) {
    static const std::map<std::string, std::string> kCalls = {
        {"wrSetText", "text"}, {"wrSetObjectProp", "hide"}, {"wrLoadDIB", "picture"}};
    std::cout << "[";
    bool first = true;
    for (const ReportCall& c : wr.Calls()) {
        const auto kind = kCalls.find(c.op);
        if (kind == kCalls.end()) continue;
        std::cout << (first ? "\n" : ",\n") << "{\"template\":" << Json_String(c.report)
                  << ",\"call\":" << Json_String(kind->second) << ",\"object\":" << Json_String(Cp1252_ToUtf8(c.object))
                  << ",\"value\":" << Json_String(Cp1252_ToUtf8(kind->second == "hide" ? "" : c.value)) << "}";
        first = false;
    }
    std::cout << "\n]\n";
}

// Runs the flow on the recording engine and lists it, or into the PDF file.
int Produce(bool objects, const std::string& out, const std::function<void(ReportLibrary&)>& flow) {
    if (objects) {
        RecordingReportLibrary wr;
        flow(wr);
        Objects_Print(wr);
        return 0;
    }
    if (Report_ExportPdf(out, flow)) return 0;
    std::cerr << "torvane-cli: the PDF file could not be written: " << out << '\n';
    return 1;
}

}  // namespace

ReportCli::ReportCli(CLI::App& app)
    : report_(app.add_subcommand("report", "Write the printed report of an application file as a PDF")),
      list_(app.add_subcommand("series-list", "Write the judged motor list of a model group as a PDF")) {
    for (CLI::App* command : {report_, list_}) {
        command->add_option("FILE", file_, "application file (.AP2)")->required();
        command->add_option("OUT", out_, "the PDF file to write");
        command->add_option("--date", date_, "the date the pages print, YYYY-MM-DD (today by default)")
            ->check(CLI::Validator(
                [](std::string& d) {
                    return std::regex_match(d, std::regex(R"(\d{4}-(0[1-9]|1[0-2])-(0[1-9]|[12]\d|3[01]))"))
                               ? std::string()
                               : std::string("not a date YYYY-MM-DD");
                },
                "YYYY-MM-DD"));
        command->add_flag("--objects", objects_, "print the filling of the templates as JSON instead");
    }
    report_->add_flag("--cover", cover_, "print the cover");
    report_->add_flag("--components", components_, "print the component settings");
    report_->add_flag("--patterns", patterns_, "print the operating patterns");
    report_->add_flag("--notes", notes_, "print the user precautions");
    list_->add_option("--series", series_, "series name as listed")->required();
    list_->add_option("--model", model_, "model group name as listed")->required();
}

std::string ReportCli::Date() const {
    if (date_.empty()) return Report_Today();
    return Report_Date(std::stoi(date_.substr(0, 4)), std::stoi(date_.substr(5, 2)), std::stoi(date_.substr(8, 2)));
}

int ReportCli::Run() const {
    if ((report_->parsed() || list_->parsed()) && out_.empty() && !objects_) {
        std::cerr << "torvane-cli: give the PDF file to write, or --objects\n";
        return 2;
    }
    if (report_->parsed()) return Run_Report();
    if (list_->parsed()) return Run_SeriesList();
    return -1;
}

int ReportCli::Run_Report() const {
    Main_Prepare("");
    if (!File_Load(file_)) return 1;
    PrintRequest request = Print_Request(Print_Open(), "", Date());
    if (cover_ || components_ || patterns_ || notes_) {
        request.PrintCheck[kPrintCover] = cover_;
        request.PrintCheck[kPrintElements] = components_;
        request.PrintCheck[kPrintPattern] = patterns_;
        request.PrintCheck[kPrintNotes] = notes_;
    }
    return Produce(objects_, out_, [&](ReportLibrary& wr) { Report_PrintParts(wr, request); });
}

int ReportCli::Run_SeriesList() const {
    MotorPage page;
    if (const int code = Group_Judge(file_, series_, model_, page)) return code;
    const ListSheet sheet = ListPrint_Sheet(page);
    MotorPage_Unload();
    return Produce(objects_, out_, [&](ReportLibrary& wr) { List_Print(wr, sheet, kPdfDevice, Date()); });
}
