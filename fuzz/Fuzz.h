#pragma once

#include "LmSdpObject.h"

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>

/// What the fuzz targets share: an invariant that fails ends the process, and two ways of reading the same bytes.

inline void require(bool holds, const char* invariant)
{
    if (!holds)
    {
        std::fprintf(stderr, "invariant broken: %s\n", invariant);
        std::abort();
    }
}

inline std::string_view viewOf(const std::uint8_t* data, std::size_t size)
{
    return {reinterpret_cast<const char*>(data), size};
}

inline LmHandle<LmByteArray> bytesOf(std::string_view text)
{
    return LmByteArray::sCreate(static_cast<unsigned int>(text.size()), text.data());
}

/// A stream as a caller would write one: byte by byte, with no window.
class ByteStream : public LmInputStream
{
public:
    explicit ByteStream(std::string_view text) : m_Text(text) {}

    unsigned int read(void* buffer, unsigned int offset, unsigned int length) override
    {
        const std::string_view part = std::string_view(m_Text).substr(m_Next, length);
        part.copy(static_cast<char*>(buffer) + offset, part.size());
        m_Next += part.size();
        return static_cast<unsigned int>(part.size());
    }
    int read() override { return m_Next == m_Text.size() ? -1 : static_cast<unsigned char>(m_Text[m_Next++]); }
    unsigned int skip(unsigned int count) override
    {
        const std::size_t passed = std::min<std::size_t>(count, m_Text.size() - m_Next);
        m_Next += passed;
        return static_cast<unsigned int>(passed);
    }
    unsigned int available() override { return static_cast<unsigned int>(m_Text.size() - m_Next); }
    bool markSupported() override { return true; }
    void mark(unsigned int) override { m_Mark = m_Next; }
    void reset() override { m_Next = m_Mark; }

private:
    const std::string m_Text;
    std::size_t m_Next = 0;
    std::size_t m_Mark = 0;
};

/// What came of an operation: its result, or the class and the words of what it raised.
struct Outcome
{
    std::string result;
    std::string failure;
    unsigned int left = 0;

    bool operator==(const Outcome& other) const
    {
        return result == other.result && failure == other.failure && left == other.left;
    }
};

template <typename Action>
Outcome outcomeOf(const Action& action)
{
    Outcome outcome;
    try
    {
        outcome.result = action();
    }
    catch (const LmSdpParseError& error)
    {
        outcome.failure = std::string("LmSdpParseError ") + error.getMessage();
    }
    catch (const LmException& error)
    {
        outcome.failure = std::string("LmException ") + error.getMessage();
    }
    return outcome;
}

/// Lets `read` take what it wants from the text, over the library's own stream and over a caller's; both must come to
/// the same.
template <typename Read>
Outcome readBothWays(std::string_view text, const Read& read)
{
    LmByteArrayInputStream window(bytesOf(text), 0, 0);
    Outcome outcome = outcomeOf([&] { return read(window); });
    outcome.left = window.available();
    ByteStream bytes(text);
    Outcome other = outcomeOf([&] { return read(bytes); });
    other.left = bytes.available();
    require(outcome == other, "both ways of reading agree");
    return outcome;
}

inline std::string written(const LmSerializable& object)
{
    LmStringOutputStream out;
    object.serialize(out);
    return std::string(out.getString().view());
}
