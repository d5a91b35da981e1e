// The open and save file dialogs of the program. Each opens where
// Dialog_StartFolder says; a save dialog may add a suffix to a name typed
// without one. Tests script the answers instead of showing a dialog.
#pragma once

#include <QString>
#include <QStringList>

#include "core/DialogFolder.h"

class QWidget;

// A path to open, or an empty text when the user cancelled.
QString FileDialog_Open(QWidget* parent, const QString& filter, DialogFor purpose = DialogFor::OtherFile);
// A path to save to (the overwrite question included), or empty. A name
// typed without a suffix gets defaultSuffix, when one is given.
QString FileDialog_Save(QWidget* parent, const QString& filter, const QString& title = "Save As",
                        const QString& defaultSuffix = {});

// From now on the dialogs answer these paths in turn instead of showing
// themselves; an empty entry cancels. An empty list shows the dialogs again.
void FileDialog_Script(const QStringList& answers);
// Scripted answers not yet taken.
int FileDialog_Remaining();
