// Commands of the workbench on the whole document that need no window.
#pragma once

#include <functional>
#include <string>

// The question before a document is left (New, Open, Exit): with unsaved
// changes "Save changes?" Yes runs save (whose false stops), No goes on,
// Cancel stops. True when the caller may go on.
bool Document_ConfirmLeave(const std::function<bool()>& save);

// Save: the document goes to FileName; on success DirtyFlag is 0.
bool Document_Save();

// Save As: the document goes to path; on success DirtyFlag is 0, FileName
// is the path, and the answer is the caption the main window takes. Whether
// the document counts as named stays as it was. Empty on failure.
std::string Document_SaveAs(const std::string& path);
