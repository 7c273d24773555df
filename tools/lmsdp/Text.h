#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace lmsdp
{

/// Whether key texts are shown in full or cut to their first four characters.
enum class Keys
{
    withheld,
    shown
};

/// What stands in place of the rest of a text.
constexpr const char* ellipsis = "\xE2\x80\xA6";

/// A key as it may be shown.
std::string keyText(std::string_view key, Keys keys);

/// A line of a body, letter included, with its keys as they may be shown.
std::string lineText(std::string_view line, Keys keys);

/// Text that a terminal can be given: what is no printable character shows as \r, \n, \t or \x1B.
std::string printable(std::string_view text);

/// A line to look at, and where a place of it has come to stand.
struct Excerpt
{
    std::string text;
    std::size_t caret; ///< characters in front of the place
};

/// A line of a body as one line of a terminal, cut when it is long. `place` is an offset into the line.
Excerpt excerpt(std::string_view line, std::size_t place, Keys keys);

} // namespace lmsdp
