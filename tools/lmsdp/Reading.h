#pragma once

#include "Input.h"
#include "LmSdpObject.h"

#include <optional>
#include <string>
#include <vector>

namespace lmsdp
{

/// What an exception of the library said.
struct Failure
{
    std::string exceptionClass;
    std::string words; ///< without white space at their end
};

Failure failureOf(const LmException& exception);

/// Calls an operation of the library. Gives what it threw, if it did.
template <typename Operation>
std::optional<Failure> attempt(Operation operation)
{
    try
    {
        operation();
        return std::nullopt;
    }
    catch (const LmException& exception)
    {
        return failureOf(exception);
    }
}

/// What came of a body.
struct Reading
{
    LmHandle<LmSdpMsg> message;     ///< empty when the body was refused
    std::optional<Failure> refusal; ///< set when it was
    std::size_t stop = 0;           ///< how many bytes the library consumed, white space behind a line included
};

Reading read(const Body& body);

/// A line of a body on its own: the object that was made of it, and where it stands.
struct ReadLine
{
    LmHandle<LmSdpField> field; ///< empty when it was refused
    std::size_t begin;          ///< offset of its letter
    std::size_t end;            ///< offset behind the last byte that was consumed for it
};

/// The lines up to where the reading of the whole body stopped, in the order of the text. Of a body that was refused,
/// the last one is the line that caused it; there is none where the body does not begin as it must.
std::vector<ReadLine> readLines(const Body& body, const Reading& reading);

/// The offset of the line that caused a refusal.
std::size_t refusedAt(const Body& body, const Reading& reading);

/// The text of a line or a message as the library writes it.
/// @throws LmException what `serialize` raises
std::string written(const LmSerializable& object);

/// A text of the library, NUL bytes included.
inline std::string asString(const LmString& text)
{
    return std::string(text.view());
}

} // namespace lmsdp
