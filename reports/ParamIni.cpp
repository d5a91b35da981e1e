#include "reports/ParamIni.h"

#include <ini.h>

#include <algorithm>
#include <charconv>
#include <cstring>
#include <strings.h>

#include "base/ReadFile.h"
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

// No setting file of formula texts comes near this size; a larger one is
// read this far, and a device is not read at all.
constexpr std::size_t kFileBytes = 1 << 20;

// The bytes of the file, handed to the parser line by line as fgets hands
// them: up to and with the line feed, NUL bytes and all.
struct Lines {
    std::string_view rest;
};

char* NextLine(char* line, int room, void* stream) {
    auto& lines = *static_cast<Lines*>(stream);
    if (lines.rest.empty() || room < 2) return nullptr;
    const std::size_t end = lines.rest.find('\n');
    const std::size_t take =
        std::min(end == std::string_view::npos ? lines.rest.size() : end + 1, static_cast<std::size_t>(room - 1));
    std::memcpy(line, lines.rest.data(), take);
    line[take] = '\0';
    lines.rest.remove_prefix(take);
    return line;
}

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
    std::string bytes;
    if (!File_ReadPrefix(path, kFileBytes, bytes)) return {};
    Lines lines{bytes};
    ini_parse_stream(NextLine, &lines, Collect, &lookup);
    return lookup.value;
}

int ParamIni_Int(const std::string& path, std::string_view section, std::string_view key) {
    const std::string text = ParamIni_String(path, section, key);
    int number = 0;
    std::from_chars(text.data(), text.data() + text.size(), number);
    return number;
}
