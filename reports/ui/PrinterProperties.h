// "Properties(&I)" of the print dialogs: the printer's settings as the
// print system holds them, in a small window of their own.
#pragma once

#include <QString>

class QWidget;

// Shows the settings of the printer modally; false, showing nothing, when
// the print system does not know the printer.
bool PrinterProperties_Show(QWidget* parent, const QString& printer);
