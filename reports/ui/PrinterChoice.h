// The printer box of the print dialogs: the status line of the printer
// chosen, and "Properties(&I)", its settings as the print system holds them
// in a small window of their own.
#pragma once

#include <QString>
#include <string>

class QComboBox;
class QLabel;
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
