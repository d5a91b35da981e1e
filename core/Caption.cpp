#include "core/Caption.h"

#include "core/Text.h"

std::string Caption_Of(std::string_view name) { return "Torvane-[" + std::string(name) + "]"; }

std::string Caption_OfFile(const std::string& path) {
    std::string dir, name;
    Path_Split(path, dir, name);
    return Caption_Of(name);
}
