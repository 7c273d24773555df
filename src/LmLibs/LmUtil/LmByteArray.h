#pragma once

#include "LmLibs/LmUtil/LmHandle.h"

#include <cstddef>

/// Bytes for a stream to read. It has a copy of what it was made from, and does not change afterwards.
class LMUTIL_API LmByteArray final : public LmObject
{
public:
    /// The bytes of the text, without its NUL. A null text gives an empty array. @throws std::bad_alloc
    static LmHandle<LmByteArray> sCreate(const char* text);

    /// `size` bytes from `data`. @throws std::bad_alloc
    static LmHandle<LmByteArray> sCreate(unsigned int size, const void* data);

    ~LmByteArray() override;

    /// The bytes; valid as long as the array.
    const unsigned char* getBytes() const { return reinterpret_cast<const unsigned char*>(this + 1); }

    /// How many there are.
    unsigned int getSize() const { return m_Size; }

    /// For `delete`, which handles call.
    static void operator delete(void* block) noexcept;

private:
    LmByteArray(std::size_t size, const void* data) noexcept;

    /// The bytes lie behind the object in the same block of memory.
    static void* operator new(std::size_t objectSize, std::size_t size);
    static void operator delete(void* block, std::size_t size) noexcept;

    unsigned int m_Size;
};
