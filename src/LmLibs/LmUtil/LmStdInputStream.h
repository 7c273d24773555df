#pragma once

#include "LmLibs/LmUtil/LmInputStream.h"

#include <istream>
#include <string>

/// Reads a `std::istream` of the caller's, such as a file or a pipe, byte by byte. The caller keeps it alive; bytes
/// are taken from it as they are asked for, and looking one byte ahead takes that byte.
class LMUTIL_API LmStdInputStream : public LmInputStream
{
public:
    /// Reads from where `in` stands.
    explicit LmStdInputStream(std::istream& in);
    ~LmStdInputStream() override;

    unsigned int read(void* buffer, unsigned int offset, unsigned int length) override;
    int read() override;
    unsigned int skip(unsigned int count) override;

    /// At least 1 while there is something to read; the source may know no more than that.
    unsigned int available() override;

    /// True.
    bool markSupported() override;
    void mark(unsigned int readLimit) override;

    /// Without a `mark` this goes to where this object began.
    void reset() override;

private:
    bool isKept() const { return m_Next < m_Kept.size(); }

    std::istream& m_In;
    std::string m_Kept;     ///< the bytes from a little in front of the mark on
    std::size_t m_Mark = 0; ///< places in `m_Kept`
    std::size_t m_Next = 0;
};
