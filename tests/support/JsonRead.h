// A small JSON reader, enough for the tests to check the command line tool's
// output: objects, arrays, strings (a \u escape beyond ASCII reads as "?"),
// numbers, true, false and null.
#pragma once

#include <cstddef>
#include <map>
#include <string>
#include <vector>

struct Json {
    enum Kind { Null, Bool, Number, String, Array, Object } kind = Null;
    double number = 0;
    std::string text;
    std::vector<Json> items;
    std::map<std::string, Json> fields;
    const Json& operator[](const std::string& key) const { return fields.at(key); }
    const Json& operator[](std::size_t i) const { return items.at(i); }
};

// Reads the whole text into out: false when it is no JSON text or something follows it.
bool Json_Parse(const std::string& text, Json& out);
