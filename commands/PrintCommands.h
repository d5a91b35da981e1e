// The print dialog without its window: what its information grid, header
// and footer boxes, comment and check boxes hold, how they come from the
// document and go back into its information block, the rules of the grid's
// editing, the printer status line, and the print command itself.
#pragma once

#include <array>
#include <functional>
#include <string>

#include "reports/ReportFill.h"

inline constexpr int kInfoRows = 15;
// Rows of the information grid that only show.
inline constexpr int kInfoMotorRow = 12, kInfoDriverRow = 13;

// Column 0 and column 1 of a row of the information grid.
struct InfoRowCaption {
    const char* group;
    const char* label;
};
extern const std::array<InfoRowCaption, kInfoRows> kInfoRowCaptions;

// The dialog's state; texts in the single-byte code page.
struct PrintDialogState {
    std::array<std::string, kInfoRows> info{};  // column 2 of the grid
    std::array<std::string, 6> txtData{};      // header left, centre, right; footer left, centre, right
    std::string comment;                        // the comment box as shown
    std::array<int16_t, 5> PrintCheck{};       // chkPrint(0) to chkPrint(3), chkTemp
    std::string txtTemp;                        // the attachment
};

// The dialog as it opens on the document: the information block, or for the
// administrator's rows of a block never stored, MtrUser.dat; the comment box
// set to 5 lines of 100 characters. Throws RuntimeError on a malformed
// MtrUser.dat.
PrintDialogState Print_Open();

// Whether the user may edit a cell of the grid: only column 2, and not the
// motor and driver rows.
bool Print_CellEditable(int row, int col);

// Whether a key may be typed into a cell of column 2 whose edit text has
// length characters: the administrator's names stop after 30, the telephone
// and fax after 18; delete (46), backspace (8) and key 144 always may.
bool Print_CellKeyAllowed(int row, int length, int key);

// The row Enter moves to: the next one, and the last stays.
int Print_EnterRow(int row);

// Stores the dialog into PRINTINFO: each text cut to its field, the comment
// without its automatic line ends, the four print options; the attachment
// is not kept.
void PRINTINFO_Set(const PrintDialogState& state);

// The dialog unloads, by Cancel as by Print: the block is stored and marked set.
void Print_Unload(const PrintDialogState& state);

// What the report needs of the dialog, to print on printer at date.
PrintRequest Print_Request(const PrintDialogState& state, const std::string& printer, const std::string& date);

// The words of a printer's status line.
struct StatusWords {
    std::string defaultPrefix;  // in front for the default printer; others have their name and ":"
    std::string queue;          // in front of the count of jobs
    std::string failure;        // when the queue cannot be read
};

// The status line of the printer from the count of its jobs (-1 when the
// queue cannot be asked). Empty when there is no default printer.
std::string Status_Line(const StatusWords& words, const std::string& printer, const std::string& defaultPrinter,
                        int jobs);

// The print dialog's status line.
std::string Print_StatusLine(const std::string& printer, const std::string& defaultPrinter, int jobs);

// "Print": stores the block, prints the checked parts through the engine,
// then the attachment through printAttachment (a missing file is told), and
// asks "OK to exit printing?". True when the dialog is to close. Without a
// printer nothing happens.
bool Print_Command(const PrintDialogState& state, ReportLibrary& wr, const PrintRequest& request,
                   const std::function<void(const std::string& path)>& printAttachment);

// "Export PDF...": the checked parts of the report into the PDF file at
// path, with no printer. False, after a message, when nothing is checked or
// the file cannot be written.
bool Print_Export(const PrintRequest& request, const std::string& path);
