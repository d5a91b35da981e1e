// Little-endian 16-bit integers, IEEE doubles and fixed-width texts, back to
// back with no alignment, as the application file lays them out. The reader
// and the writer offer the same calls, so that one description of a layout
// serves both directions.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "base/FixedText.h"
#include "base/RuntimeError.h"

// Reads from a byte string. Every read is checked against its end: a read
// past the end, a double that is no finite number and a record that fails
// its check throw RuntimeError, and the target keeps what it held.
class ByteReader {
public:
    explicit ByteReader(std::string_view bytes) : bytes_(bytes) {}

    void Int16(int16_t& value);
    void Double(double& value);
    template <std::size_t N>
    void Text(FixedText<N>& text) {
        text.Set(Take(N));
    }
    void Skip(std::size_t count) { Take(count); }

    // Reads a whole record into a copy and stores it only when valid says so.
    template <class T, class Visit, class Valid>
    void Record(T& target, Visit visit, Valid valid) {
        T copy = target;
        visit(*this, copy);
        if (!valid(copy)) throw RuntimeError("Invalid record");
        target = copy;
    }

private:
    std::string_view Take(std::size_t count);

    std::string_view bytes_;
    std::size_t at_ = 0;
};

// Appends to a byte string.
class ByteWriter {
public:
    void Int16(const int16_t& value);
    void Double(const double& value);
    template <std::size_t N>
    void Text(const FixedText<N>& text) {
        bytes_ += text.Raw();
    }

    template <class T, class Visit, class Valid>
    void Record(T& source, Visit visit, Valid) {
        visit(*this, source);
    }

    const std::string& Bytes() const { return bytes_; }

private:
    std::string bytes_;
};
