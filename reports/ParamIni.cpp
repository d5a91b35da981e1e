#include "reports/ParamIni.h"

#include <ini.h>

#include <charconv>
#include <strings.h>

#include "core/Tables.h"

namespace {

constexpr std::size_t kValueBytes = 255;  // a buffer of 256 with its NUL

struct Lookup {
    std::string_view section;
    std::string_view key;
    bool found = false;
    std::string value;
};

bool SameText(std::string_view a, std::string_view b) {
    return a.size() == b.size() && strncasecmp(a.data(), b.data(), a.size()) == 0;
}

std::string_view Trim(std::string_view text) {
    const auto first = text.find_first_not_of(" \t");
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(" \t") - first + 1);
}

int Collect(void* user, const char* section, const char* name, const char* value) {
    auto& lookup = *static_cast<Lookup*>(user);
    if (!lookup.found && SameText(Trim(section), lookup.section) && SameText(name, lookup.key)) {
        lookup.found = true;
        lookup.value = std::string(value).substr(0, kValueBytes);
    }
    return 1;
}

constexpr int kLineBytes = 65536;

// One line is one entry, as the system's own reader has it: no continuation
// lines and no comments behind a value. The line buffer is on the heap and
// of one fixed size, since the library's own is 200 bytes.
void Configure() {
    ini_allow_multiline = false;
    ini_allow_inline_comments = false;
    ini_use_stack = false;
    ini_allow_realloc = false;
    ini_initial_alloc = kLineBytes;
    ini_max_line = kLineBytes;
}

}  // namespace

std::string ParamIni_Path() { return AppPath + "/Param.ini"; }

std::string ParamIni_String(const std::string& path, std::string_view section, std::string_view key) {
    Configure();
    Lookup lookup{section, key, false, {}};
    ini_parse(path.c_str(), Collect, &lookup);
    return lookup.value;
}

int ParamIni_Int(const std::string& path, std::string_view section, std::string_view key) {
    const std::string text = ParamIni_String(path, section, key);
    int number = 0;
    std::from_chars(text.data(), text.data() + text.size(), number);
    return number;
}
