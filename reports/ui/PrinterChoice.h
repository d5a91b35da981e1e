// What the print dialogs share: the status line of the printer chosen,
// "Properties(&I)" (its settings as the print system holds them, in a small
// window of their own), and the row of buttons under the dialog.
#pragma once

#include <QString>
#include <string>

class QComboBox;
class QHBoxLayout;
class QLabel;
class QPushButton;
class QWidget;

// The words of a dialog's status line, from the printer, the default
// printer and the count of the printer's jobs.
using StatusLineOf = std::string (*)(const std::string& printer, const std::string& defaultPrinter, int jobs);

// Shows the status of the printer of the box on the label; without a
// default printer the label stays as it is.
void PrinterChoice_Status(const QComboBox* box, QLabel* label, StatusLineOf line);

// Shows the settings of the printer of the box modally; with an empty box
// nothing happens, and a printer the print system does not know is told
// with the dialog's own words.
void PrinterChoice_Properties(QWidget* parent, const QComboBox* box, const char* failure, const char* title);

// The buttons "Export PDF..." on the left, then the print button with the
// dialog's caption and "Cancel" on the right.
struct PrintButtons {
    QPushButton* CmdExport;
    QPushButton* CmdPrint;
    QPushButton* CmdCancel;
    QHBoxLayout* row;
};
PrintButtons PrinterChoice_Buttons(QWidget* dialog, const char* printCaption);
