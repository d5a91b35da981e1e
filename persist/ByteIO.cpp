#include "persist/ByteIO.h"

#include <cmath>
#include <cstring>

void ByteReader::Int16(int16_t& value) {
    const std::string_view b = Take(2);
    value = static_cast<int16_t>(static_cast<uint16_t>(static_cast<unsigned char>(b[0]) |
                                                       static_cast<unsigned char>(b[1]) << 8));
}

void ByteReader::Double(double& value) {
    const std::string_view b = Take(8);
    uint64_t bits = 0;
    for (int i = 7; i >= 0; --i) bits = bits << 8 | static_cast<unsigned char>(b[i]);
    double read = 0;
    std::memcpy(&read, &bits, sizeof read);
    if (!std::isfinite(read)) throw RuntimeError("Invalid number");
    value = read;
}

std::string_view ByteReader::Take(std::size_t count) {
    if (count > bytes_.size() - at_) throw RuntimeError("Input past end of file");
    const std::string_view part = bytes_.substr(at_, count);
    at_ += count;
    return part;
}

void ByteWriter::Int16(const int16_t& value) {
    const auto bits = static_cast<uint16_t>(value);
    bytes_ += static_cast<char>(bits & 0xFF);
    bytes_ += static_cast<char>(bits >> 8);
}

void ByteWriter::Double(const double& value) {
    uint64_t bits = 0;
    std::memcpy(&bits, &value, sizeof bits);
    for (int i = 0; i < 8; ++i) bytes_ += static_cast<char>(bits >> (8 * i) & 0xFF);
}
