#pragma once

#include "LmLibs/LmUtil/LmByteArrayInputStream.h"
#include "LmLibs/LmUtil/LmSerializable.h"

#include <functional>
#include <ostream>
#include <string>
#include <string_view>

/// What the tests and the fuzz targets look at: what was read or written, and how it failed.

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

Failure failureOf(const std::function<void()>& action);

/// What `serialize` writes.
std::string written(const LmSerializable& object);

/// The text in a heap block exactly as long.
LmHandle<LmByteArray> bytesOf(std::string_view text);

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

using Reader = std::function<std::string(LmInputStream& in)>;
Reading readFrom(LmInputStream& in, const Reader& read);
