#pragma once

#include "LmLibs/LmUtil/LmObject.h"
#include "LmLibs/LmUtil/LmString.h"

#include <string_view>

/// Where text goes to. A stream of a caller's own overrides `write`, and `flush` where that means something.
class LMUTIL_API LmOutputStream : public LmObject
{
public:
    ~LmOutputStream() override;

    /// Takes `length` bytes.
    virtual void write(const char* data, unsigned int length) = 0;

    /// Passes on what the stream has kept back. Does nothing here.
    virtual void flush();

    /// Writes a text; nothing for a null pointer.
    LmOutputStream& operator<<(const char* text);

    /// Writes a decimal number.
    LmOutputStream& operator<<(unsigned int number);

    /// Writes all bytes of a text of any length.
    void writeAll(std::string_view text);
};

/// Writes all bytes of a text.
inline LmOutputStream& operator<<(LmOutputStream& out, const LmString& text)
{
    out.writeAll(text.view());
    return out;
}
