#pragma once
// Little-endian reads from a block of bytes, each checked against its end: a read past it throws
// TypeLibError naming what was being read.

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "typelib/typelib_reader.h"

namespace quillet::typelib {

class ByteView {
public:
    ByteView() = default;
    ByteView(const std::uint8_t* data, std::size_t size) : data_(data), size_(size) {}

    std::size_t size() const { return size_; }
    const std::uint8_t* data() const { return data_; }
    bool contains(std::int64_t offset, std::int64_t length) const {
        return offset >= 0 && length >= 0 && static_cast<std::uint64_t>(offset) <= size_ &&
               static_cast<std::uint64_t>(length) <= size_ - static_cast<std::uint64_t>(offset);
    }
    void require(std::int64_t offset, std::int64_t length, const char* what) const {
        if (!contains(offset, length)) throw TypeLibError(std::string("truncated or damaged type library: ") + what);
    }
    std::uint8_t u8(std::int64_t offset, const char* what) const {
        require(offset, 1, what);
        return data_[offset];
    }
    std::uint16_t u16(std::int64_t offset, const char* what) const {
        require(offset, 2, what);
        return static_cast<std::uint16_t>(data_[offset] | (data_[offset + 1] << 8));
    }
    std::int16_t i16(std::int64_t offset, const char* what) const { return static_cast<std::int16_t>(u16(offset, what)); }
    std::uint32_t u32(std::int64_t offset, const char* what) const {
        require(offset, 4, what);
        return static_cast<std::uint32_t>(data_[offset]) | (static_cast<std::uint32_t>(data_[offset + 1]) << 8) |
               (static_cast<std::uint32_t>(data_[offset + 2]) << 16) |
               (static_cast<std::uint32_t>(data_[offset + 3]) << 24);
    }
    std::int32_t i32(std::int64_t offset, const char* what) const { return static_cast<std::int32_t>(u32(offset, what)); }
    std::uint64_t u64(std::int64_t offset, const char* what) const {
        return u32(offset, what) | (static_cast<std::uint64_t>(u32(offset + 4, what)) << 32);
    }
    std::string_view bytes(std::int64_t offset, std::int64_t length, const char* what) const {
        require(offset, length, what);
        return {reinterpret_cast<const char*>(data_ + offset), static_cast<std::size_t>(length)};
    }
    ByteView sub(std::int64_t offset, std::int64_t length, const char* what) const {
        require(offset, length, what);
        return {data_ + offset, static_cast<std::size_t>(length)};
    }

private:
    const std::uint8_t* data_ = nullptr;
    std::size_t size_ = 0;
};

}  // namespace quillet::typelib
