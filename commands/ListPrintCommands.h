// The wizard's "Print" without its window: whether the series list may be
// printed, and the list as the motor page shows it.
#pragma once

#include "reports/ListPrint.h"
#include "selection/MotorPage.h"

// Nothing prints while no series or no model group is picked.
bool ListPrint_MayOpen(const MotorPage& page);

// The series list dialog's status line, with the words of its own.
std::string ListPrint_StatusLine(const std::string& printer, const std::string& defaultPrinter, int jobs);

// The page's grid, series and group as the list prints them.
ListSheet ListPrint_Sheet(const MotorPage& page);

// "Export PDF...": the list into the PDF file at path, printed at date; false,
// after a message, when the file cannot be written.
bool ListPrint_Export(const ListSheet& sheet, const std::string& path, const std::string& date);
