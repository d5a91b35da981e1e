// The printed list of the wizard's motor page: every motor of the picked
// series and model group with its verdict, twenty to a page of the one
// template page, which prints again for every page with the rows of the
// page before overwritten.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "reports/ReportLibrary.h"

inline constexpr int kListColumns = 10;
inline constexpr int kListRowsPerPage = 20;

// The motor grid as the page shows it, texts in the single-byte code page.
struct ListSheet {
    std::string series, model;                        // lstS and lstM
    std::array<std::string, kListColumns> units{};    // grid row 1
    std::vector<std::array<std::string, kListColumns>> motors;  // grid rows 2 on
};

// One row group: the head row (index -1) or motor index, under its prefix
// ("Unit." or "SelectMtr3."). False when a call failed.
bool List_Row(ReportLibrary& wr, int32_t handle, const ListSheet& sheet, int16_t index, const std::string& prefix);

// The device name under which the list prints into a PDF file instead of a printer.
inline constexpr const char* kPdfDevice = "PDF";

enum class ListPrinted { Done, NoPrinter, Failed };

// Prints the whole list on the printer; the date as the report prints it.
// Failed when a call of the engine failed (PrintFailed). With no printer it
// says "Printer is not set." and prints nothing.
ListPrinted List_Print(ReportLibrary& wr, const ListSheet& sheet, const std::string& printer, const std::string& date);

// The number of list pages for count motors: a whole multiple of twenty
// gives one more, empty, page.
int List_Pages(int count);
