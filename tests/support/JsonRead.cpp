// Opens with its header: tests/support/JsonRead.h.
#include "tests/support/JsonRead.h"

#include <utility>

namespace {

class JsonReader {
public:
    explicit JsonReader(std::string s) : s_(std::move(s)) {}
    bool Parse(Json& out) {
        if (!Value(out)) return false;
        Blank();
        return i_ == s_.size();
    }

private:
    void Blank() {
        while (i_ < s_.size() && (s_[i_] == ' ' || s_[i_] == '\n' || s_[i_] == '\r' || s_[i_] == '\t')) ++i_;
    }
    bool Literal(const char* word) {
        const std::string w(word);
        if (s_.compare(i_, w.size(), w) != 0) return false;
        i_ += w.size();
        return true;
    }
    bool Str(std::string& out) {
        if (s_[i_] != '"') return false;
        for (++i_; i_ < s_.size(); ++i_) {
            const char c = s_[i_];
            if (c == '"') return ++i_, true;
            if (static_cast<unsigned char>(c) < 0x20) return false;
            if (c == '\\') {
                if (++i_ >= s_.size()) return false;
                const char e = s_[i_];
                if (e == 'u') {
                    if (i_ + 4 >= s_.size()) return false;
                    const unsigned v = std::stoul(s_.substr(i_ + 1, 4), nullptr, 16);
                    out += v < 0x80 ? std::string(1, static_cast<char>(v)) : std::string("?");
                    i_ += 4;
                } else {
                    const std::string from = "\"\\/bfnrt", to = "\"\\/\b\f\n\r\t";
                    const auto k = from.find(e);
                    if (k == std::string::npos) return false;
                    out += to[k];
                }
            } else {
                out += c;
            }
        }
        return false;
    }
    bool Value(Json& v) {
        Blank();
        if (i_ >= s_.size()) return false;
        const char c = s_[i_];
        if (c == '{') {
            v.kind = Json::Object;
            ++i_;
            Blank();
            if (s_[i_] == '}') return ++i_, true;
            for (;;) {
                Blank();
                std::string key;
                if (!Str(key)) return false;
                Blank();
                if (s_[i_++] != ':') return false;
                if (!Value(v.fields[key])) return false;
                Blank();
                if (s_[i_] == ',') { ++i_; continue; }
                return s_[i_++] == '}';
            }
        }
        if (c == '[') {
            v.kind = Json::Array;
            ++i_;
            Blank();
            if (s_[i_] == ']') return ++i_, true;
            for (;;) {
                v.items.emplace_back();
                if (!Value(v.items.back())) return false;
                Blank();
                if (s_[i_] == ',') { ++i_; continue; }
                return s_[i_++] == ']';
            }
        }
        if (c == '"') return v.kind = Json::String, Str(v.text);
        if (Literal("null")) return v.kind = Json::Null, true;
        if (Literal("true")) return v.kind = Json::Bool, v.number = 1, true;
        if (Literal("false")) return v.kind = Json::Bool, true;
        const std::size_t start = i_;
        while (i_ < s_.size() && std::string("+-0123456789.eE").find(s_[i_]) != std::string::npos) ++i_;
        if (i_ == start) return false;
        std::size_t used = 0;
        v.kind = Json::Number;
        v.number = std::stod(s_.substr(start, i_ - start), &used);
        return used == i_ - start;
    }

    std::string s_;
    std::size_t i_ = 0;
};


}  // namespace

bool Json_Parse(const std::string& text, Json& out) { return JsonReader(text).Parse(out); }
