#pragma once

#include "LmLibs/LmUtil/LmByteArray.h"
#include "LmLibs/LmUtil/LmInputStream.h"

/// Reads a byte array, which it keeps alive. The whole rest of the array is its window.
class LMUTIL_API LmByteArrayInputStream : public LmInputStream
{
public:
    /// Reads `length` bytes from `offset`; a length of 0 means the rest. Both are cut at the end of the array, and a
    /// null array reads as an empty one.
    LmByteArrayInputStream(const LmByteArray* pArray, unsigned int offset, unsigned int length);
    ~LmByteArrayInputStream() override;

    unsigned int read(void* buffer, unsigned int offset, unsigned int length) override;
    int read() override;
    unsigned int skip(unsigned int count) override;
    unsigned int available() override;

    /// True.
    bool markSupported() override;

    /// The position holds however much is read behind it.
    void mark(unsigned int readLimit) override;

    /// Without a `mark` this goes to the start.
    void reset() override;

private:
    LmHandle<LmByteArray> m_Array;
    const char* m_Mark;
};
