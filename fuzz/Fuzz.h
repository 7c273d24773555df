#pragma once

#include "LmSdpObject.h"
#include "support/ByteStream.h"
#include "support/Reading.h"

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

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

/// What an object writes, or how it refuses to be written.
inline Reading writing(const LmSerializable& object)
{
    Reading outcome;
    outcome.failure = failureOf([&] { outcome.result = written(object); });
    return outcome;
}

/// Lets `read` take what it wants from the text, over the library's own stream and over a caller's; both must come to
/// the same.
inline Reading readBothWays(std::string_view text, const Reader& read)
{
    LmByteArrayInputStream window(bytesOf(text), 0, 0);
    const Reading reading = readFrom(window, read);
    ByteStream bytes(bytesOf(text));
    require(readFrom(bytes, read) == reading, "both ways of reading agree");
    return reading;
}
