#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

/// Little-endian numbers in byte buffers. The caller has checked that the bytes are there.
namespace zvonika::xls {

using ByteView = std::span<const std::uint8_t>;

inline std::uint16_t load16(const std::uint8_t* p) {
    return static_cast<std::uint16_t>(p[0] | (p[1] << 8));
}

inline std::uint32_t load32(const std::uint8_t* p) {
    return static_cast<std::uint32_t>(load16(p)) | (static_cast<std::uint32_t>(load16(p + 2)) << 16);
}

inline std::uint64_t load64(const std::uint8_t* p) {
    return static_cast<std::uint64_t>(load32(p)) | (static_cast<std::uint64_t>(load32(p + 4)) << 32);
}

inline double loadDouble(const std::uint8_t* p) {
    return std::bit_cast<double>(load64(p));
}

inline void store16(std::uint8_t* p, std::uint32_t value) {
    p[0] = static_cast<std::uint8_t>(value);
    p[1] = static_cast<std::uint8_t>(value >> 8);
}

inline void store32(std::uint8_t* p, std::uint32_t value) {
    store16(p, value & 0xFFFF);
    store16(p + 2, value >> 16);
}

inline void store64(std::uint8_t* p, std::uint64_t value) {
    store32(p, static_cast<std::uint32_t>(value));
    store32(p + 4, static_cast<std::uint32_t>(value >> 32));
}

inline void append16(std::vector<std::uint8_t>& out, std::uint32_t value) {
    out.push_back(static_cast<std::uint8_t>(value));
    out.push_back(static_cast<std::uint8_t>(value >> 8));
}

inline void append32(std::vector<std::uint8_t>& out, std::uint32_t value) {
    append16(out, value & 0xFFFF);
    append16(out, value >> 16);
}

} // namespace zvonika::xls
