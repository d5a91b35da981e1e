// The caption of the main window: "Torvane-[" and what the document is.
#pragma once

#include <string>
#include <string_view>

// "Torvane-[" + name + "]".
std::string Caption_Of(std::string_view name);

// The caption of a document opened or saved as the file at path: its name
// without the folder.
std::string Caption_OfFile(const std::string& path);
