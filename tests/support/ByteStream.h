#pragma once

#include "LmLibs/LmUtil/LmByteArray.h"
#include "LmLibs/LmUtil/LmInputStream.h"

/// A stream as a caller would write one: byte by byte, with no window. It raises std::logic_error where a
/// reader goes back further than the limit it has announced.
class ByteStream : public LmInputStream
{
public:
    explicit ByteStream(const LmHandle<LmByteArray>& hBytes);

    unsigned int read(void* buffer, unsigned int offset, unsigned int length) override;
    int read() override;
    unsigned int skip(unsigned int count) override;
    unsigned int available() override;
    bool markSupported() override;
    void mark(unsigned int readLimit) override;
    void reset() override;

private:
    LmHandle<LmByteArray> m_Bytes;
    unsigned int m_Next = 0;
    unsigned int m_Mark = 0;
    unsigned int m_Limit = 0;
};
