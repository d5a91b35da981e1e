// The report flows into a PDF file of the user's choice instead of a
// printer: the same templates, filling and pages, with no printer needed.
#pragma once

#include <functional>
#include <string>

#include "reports/ReportLibrary.h"

// Runs the flow on the real engine with every page going into the file at
// path. False when the file could not be written or no page was printed.
bool Report_ExportPdf(const std::string& path, const std::function<void(ReportLibrary& wr)>& flow);
