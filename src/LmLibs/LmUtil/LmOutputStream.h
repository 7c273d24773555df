#pragma once

#include "LmLibs/LmUtil/LmObject.h"
#include "LmLibs/LmUtil/LmString.h"

#include <cstddef>
#include <string_view>

/// Where text goes to. A stream of a caller's own overrides `write`, and `flush` where that means something.
///
/// A stream that collects text in memory can also show the room that it has left; short texts are then copied there
/// without a call for each.
class LMUTIL_API LmOutputStream : public LmObject
{
public:
    LmOutputStream() = default;

    ///@{
    /// A copy has no room to show until it makes its own.
    LmOutputStream(const LmOutputStream& other) noexcept : LmObject(other) {}
    // NOLINTNEXTLINE(bugprone-unhandled-self-assignment): nothing is assigned
    LmOutputStream& operator=(const LmOutputStream&) noexcept { return *this; }
    ///@}
    ~LmOutputStream() override;

    /// Takes `length` bytes.
    virtual void write(const char* data, unsigned int length) = 0;

    /// Passes on what the stream has kept back. Does nothing here.
    virtual void flush();

    /// Writes a text; nothing for a null pointer.
    LmOutputStream& operator<<(const char* text)
    {
        if (text != nullptr)
        {
            writeAll(text);
        }
        return *this;
    }

    /// Writes a decimal number.
    LmOutputStream& operator<<(unsigned int number);

    /// Writes all bytes of a text of any length.
    void writeAll(std::string_view text)
    {
        if (__builtin_expect(text.size() <= static_cast<std::size_t>(m_RoomEnd - m_RoomBegin), 1))
        {
            m_RoomBegin += text.copy(m_RoomBegin, text.size());
            return;
        }
        writeBeyondRoom(text);
    }

protected:
    /// Shows where the next bytes may be put. What has been put there moves the begin.
    void setRoom(char* begin, char* end)
    {
        m_RoomBegin = begin;
        m_RoomEnd = end;
    }

    /// Where the next byte would be put.
    char* roomBegin() const { return m_RoomBegin; }

private:
    void writeBeyondRoom(std::string_view text);

    char* m_RoomBegin = nullptr;
    char* m_RoomEnd = nullptr;
};

/// Writes all bytes of a text.
inline LmOutputStream& operator<<(LmOutputStream& out, const LmString& text)
{
    out.writeAll(text.view());
    return out;
}
