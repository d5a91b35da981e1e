// Building a catalogue database from its SQL text: the files run in the
// order given, in one transaction, into a fresh file that replaces the
// target only when every statement succeeded.
#pragma once

#include <string>
#include <vector>

// True when built; otherwise error says which file or step failed and the
// target is left as it was.
bool Catalogue_Build(const std::string& target, const std::vector<std::string>& sqlFiles, std::string& error);
