// The open and save file dialogs of the workbench. Tests script the answers
// instead of showing a dialog.
#pragma once

#include <QString>
#include <QStringList>

class QWidget;

// A path to open, or an empty text when the user cancelled.
QString FileDialog_Open(QWidget* parent, const QString& filter);
// A path to save to (the overwrite question included), or empty.
QString FileDialog_Save(QWidget* parent, const QString& filter);

// From now on the dialogs answer these paths in turn instead of showing
// themselves; an empty entry cancels. An empty list shows the dialogs again.
void FileDialog_Script(const QStringList& answers);
// Scripted answers not yet taken.
int FileDialog_Remaining();
