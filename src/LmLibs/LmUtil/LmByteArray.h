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

    const unsigned char* getBytes() const { return m_Bytes; }
    unsigned int getSize() const { return m_Size; }

private:
    LmByteArray(std::size_t size, const void* data);

    unsigned char* m_Bytes;
    unsigned int m_Size;
};
