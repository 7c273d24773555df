#pragma once

#include "LmLibs/LmUtil/LmHandle.h"
#include "LmLibs/LmUtil/LmInputStream.h"
#include "LmLibs/LmUtil/LmSerializable.h"
#include "support/LiveObjects.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>
#include <ostream>
#include <string>
#include <string_view>

/// How an operation failed: the exact class of what it raised, and its words. No class when nothing was raised.
struct Failure
{
    std::string thrown;
    std::string words;

    friend bool operator==(const Failure& left, const Failure& right)
    {
        return left.thrown == right.thrown && left.words == right.words;
    }
    friend std::ostream& operator<<(std::ostream& out, const Failure& failure);
};

/// For the rows of a table.
inline Failure parseError(const char* words)
{
    return {"LmSdpParseError", words};
}
inline Failure exception(const char* words)
{
    return {"LmException", words};
}

Failure failureOf(const std::function<void()>& action);

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

/// What `serialize` writes.
std::string written(const LmSerializable& object);

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

/// What came of reading a text: the reader's result or its failure, and how many bytes it left unread.
struct Reading
{
    std::string result;
    Failure failure;
    unsigned int left = 0;

    friend bool operator==(const Reading& one, const Reading& other)
    {
        return one.result == other.result && one.failure == other.failure && one.left == other.left;
    }
    friend std::ostream& operator<<(std::ostream& out, const Reading& reading);
};

/// Lets `read` take what it wants from the text, which lies in a heap block exactly as long, and gives what came of
/// it. It runs over the library's own stream, over a caller's stream without a window and over a std::istream; that
/// all come to the same is expected here.
using Reader = std::function<std::string(LmInputStream& in)>;
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
