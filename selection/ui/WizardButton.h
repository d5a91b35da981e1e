// A command button of a wizard page. The pages are plain windows, where a
// Qt button answers only Space; these answer Enter too while they have the
// focus, as the buttons of the dialogs do.
#pragma once

#include <QString>

class QPushButton;
class QWidget;

// A button named after its control, with the caption given.
QPushButton* Wizard_Button(QWidget* page, const char* name, const QString& caption);
