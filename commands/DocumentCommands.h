// Commands of the workbench on the whole document that need no window.
#pragma once

#include <functional>

// The question before a document is left (New, Open, Exit): with unsaved
// changes "Save changes?" Yes runs save (whose false stops), No goes on,
// Cancel stops. True when the caller may go on.
bool Document_ConfirmLeave(const std::function<bool()>& save);
