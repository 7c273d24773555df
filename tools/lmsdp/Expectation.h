#pragma once

#include <string>
#include <string_view>

namespace lmsdp
{

/// What the RFC expects of a line that begins like this one; empty for a letter that it does not know.
std::string expectedForm(std::string_view line);

/// What the RFC expects of the order of lines.
const char* expectedOrder();

/// What the RFC expects between two lines.
const char* expectedLineEnd();

} // namespace lmsdp
