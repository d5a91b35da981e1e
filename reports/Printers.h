// The printers of the print system (CUPS): their names, the default one, the
// length of a queue, and a job that prints a file. The server is the one the
// environment names (CUPS_SERVER), else the local one.
#pragma once

#include <string>
#include <vector>

// The names of all printers, in the order the print system lists them.
std::vector<std::string> Printer_List();

// The default printer's name, or empty when there is none.
std::string Printer_Default();

// The number of jobs waiting or printing on the printer, or -1 when it
// cannot be asked.
int Printer_JobCount(const std::string& printer);

// Sends the file to the printer as one job titled title; false on failure.
// The print system detects the file's type (PDF, text, ...).
bool Printer_PrintFile(const std::string& printer, const std::string& path, const std::string& title);

// The printer's options as "name=value" lines, or false when it is unknown.
bool Printer_Options(const std::string& printer, std::vector<std::string>& lines);
