#pragma once

#include "Reading.h"

namespace lmsdp
{

enum class Severity
{
    error, ///< text is refused, left unread, or read as part of another line
    note   ///< the text was read, and comes back in another form or place, or cannot be written back
};

/// One thing that happens to a body when it is read and written.
struct Finding
{
    Severity severity;
    std::size_t line;   ///< counted from 1
    std::size_t column; ///< in bytes, counted from 1
    std::string message;
    std::string exceptionClass; ///< of a refusal
    std::string written;        ///< the line as it comes back, when that is what has changed
    std::string text;           ///< of the line
    std::string expected;       ///< what the RFC expects
};

/// All findings, in the order of the lines.
std::vector<Finding> findingsOf(const Body& body);

} // namespace lmsdp
