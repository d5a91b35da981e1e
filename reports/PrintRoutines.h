// The print routines of the report: each loads its template, fills it, and
// prints its pages on the request's printer. A routine that fails unwinds the
// engine's calls in reverse order and tells only through its result; the
// caller goes on with the next part.
#pragma once

#include "reports/ReportFill.h"

// Template files beside the program.
inline constexpr const char* kTitleTemplate = "Title.svg";
inline constexpr const char* kElementTemplate = "Element.svg";
inline constexpr const char* kMoveTemplate = "Move.svg";
inline constexpr const char* kNotesTemplate = "Notes.svg";
inline constexpr const char* kSelectTemplate = "Select.svg";

bool Print_Cover(ReportLibrary& wr, const PrintRequest& request);
bool Print_Elements(ReportLibrary& wr, const PrintRequest& request);
bool Print_Pattern(ReportLibrary& wr, const PrintRequest& request);
bool Print_Notes(ReportLibrary& wr, const PrintRequest& request);

// The parts the check boxes ask for, in the report's order: cover,
// components, patterns, precautions. The results are not looked at.
void Report_PrintParts(ReportLibrary& wr, const PrintRequest& request);
