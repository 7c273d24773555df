#pragma once

#include "LmLibs/LmUtil/LmObservable.h"
#include "LmLibs/LmUtil/LmString.h"

/// Where text comes from: bytes, read one after the other, with one position to go back to.
///
/// A stream of a caller's own overrides the operations below and needs nothing else. A stream that has its bytes in
/// memory can also show them as a window, which readers then scan without a call for each byte; the bytes in the
/// window are those that `read` would give next.
class LMUTIL_API LmInputStream : public LmObservable
{
public:
    ~LmInputStream() override;

    /// Copies up to `length` bytes to `buffer + offset` and gives how many there were.
    virtual unsigned int read(void* buffer, unsigned int offset, unsigned int length) = 0;

    /// The next byte, consumed, as 0 to 255; -1 at the end of input.
    virtual int read() = 0;

    /// Passes over up to `count` bytes and gives how many there were.
    virtual unsigned int skip(unsigned int count) = 0;

    /// The number of bytes left; 0 means the end of input.
    virtual unsigned int available() = 0;

    /// Whether `mark` and `reset` work. Reading a body needs them.
    virtual bool markSupported() = 0;

    /// Remembers this position. `readLimit` is how many bytes may be read before `reset`.
    virtual void mark(unsigned int readLimit) = 0;

    /// Goes back to the remembered position.
    virtual void reset() = 0;

    /// True when the window below shows all that is left to read.
    bool hasWindow() const { return m_Cursor != nullptr; }

    ///@{
    /// The bytes that are left; null pointers without a window. Valid until the stream is read from or goes.
    const char* windowBegin() const { return m_Cursor; }
    const char* windowEnd() const { return m_End; }
    ///@}

    /// Consumes the bytes of the window in front of `position`.
    void consumeTo(const char* position) { m_Cursor = position; }

protected:
    /// A stream that reads through the virtual operations only.
    LmInputStream() = default;

    /// Shows the bytes from `begin` up to, but not including, `end` as all that is left.
    void setWindow(const char* begin, const char* end)
    {
        m_Cursor = begin;
        m_End = end;
    }

private:
    const char* m_Cursor = nullptr;
    const char* m_End = nullptr;
};

/// Replaces `word` with the next word of this line: white space other than line ends is passed over, and the word
/// ends in front of any white space. Where the line or the input ends first, `word` becomes empty and the line end
/// stays unread.
LMUTIL_API LmInputStream& operator>>(LmInputStream& in, LmString& word);
