// An application file of the older layout, assembled byte by byte from its
// layout table: the chain 51, 1, 11, 31 with a chosen motor, one pattern row
// and a filled information block, 31,096 bytes.
#pragma once

#include <cstddef>
#include <string>

inline constexpr std::size_t kOldElementSize = 1356, kOldCountAt = 27120, kOldRowAt = 27122;
inline constexpr std::size_t kOldMotorSelectedAt = 28282, kOldMotorModelAt = 28284, kOldMotorCommentAt = 28344;
inline constexpr std::size_t kOldDriverModelAt = 28424, kOldDriverCommentAt = 28484;
inline constexpr std::size_t kOldInfoAt = 28564, kOldSelAt = 31074, kOldFileSize = 31096;

inline std::size_t OldItemAt(int slot, int row) { return slot * kOldElementSize + row * 112; }

std::string OlderFile();
