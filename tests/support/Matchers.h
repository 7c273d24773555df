#pragma once

#include "support/LiveObjects.h"
#include "support/Reading.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

/// For the rows of a table.
inline Failure parseError(const char* words)
{
    return {"LmSdpParseError", words};
}
inline Failure exception(const char* words)
{
    return {"LmException", words};
}

/// `EXPECT_THAT([&] { message.parse(in); }, ThrowsParseError("..."))`. A plain LmException does not match.
MATCHER_P(ThrowsParseError, words, "raises LmSdpParseError \"" + std::string(words) + "\"")
{
    const Failure failure = failureOf(arg);
    *result_listener << "it gave: " << failure;
    return failure == parseError(words);
}

/// The same for a plain LmException. An LmSdpParseError does not match.
MATCHER_P(ThrowsException, words, "raises LmException \"" + std::string(words) + "\"")
{
    const Failure failure = failureOf(arg);
    *result_listener << "it gave: " << failure;
    return failure == exception(words);
}

template <typename T>
std::string written(const LmHandle<T>& hObject)
{
    const T* const pObject = hObject;
    return pObject == nullptr ? "(an empty handle)" : written(static_cast<const LmSerializable&>(*pObject));
}

/// For an object or a handle.
MATCHER_P(SerializesTo, text, "writes " + testing::PrintToString(text))
{
    const std::string whole = written(arg);
    *result_listener << "it wrote: " << testing::PrintToString(whole);
    return whole == text;
}

/// Lets `read` take what it wants from the text, which lies in a heap block exactly as long, and gives what came of
/// it. It runs over the library's own stream, over a caller's stream without a window and over a std::istream; that
/// all come to the same is expected here.
Reading readEachWay(std::string_view text, const Reader& read);

/// Reads one whole line (`c=IN IP4 10.0.0.1`), as `readEachWay` does; the result is what the line object writes.
Reading readLine(std::string_view line);

/// Reads a whole body, as `readEachWay` does; the result is what the message writes.
Reading readBody(std::string_view body);

/// Names the instances of a table after the member `name` of its rows.
struct RowName
{
    template <typename Row>
    std::string operator()(const testing::TestParamInfo<Row>& info) const
    {
        return info.param.name;
    }
};
