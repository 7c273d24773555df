#include "Text.h"

#include "Secrets.h"

#include <algorithm>
#include <array>
#include <cstdio>

namespace lmsdp
{
namespace
{

constexpr std::size_t s_ShownOfKey = 4;
constexpr std::size_t s_WidestExcerpt = 160;
constexpr std::size_t s_InFrontOfPlace = 100;

/// The bytes that make one character of well-formed UTF-8 at the head of the text; 0 where there is none.
std::size_t characterLength(std::string_view text)
{
    const auto byte = [text](std::size_t i) { return static_cast<unsigned char>(text[i]); };
    const unsigned char lead = byte(0);
    const std::size_t length = lead < 0x80   ? 1
                               : lead < 0xC2 ? 0
                               : lead < 0xE0 ? 2
                               : lead < 0xF0 ? 3
                               : lead < 0xF5 ? 4
                                             : 0;
    if (length > text.size())
    {
        return 0;
    }
    for (std::size_t i = 1; i < length; ++i)
    {
        if ((byte(i) & 0xC0) != 0x80)
        {
            return 0;
        }
    }
    const bool overlong = (lead == 0xE0 && byte(1) < 0xA0) || (lead == 0xF0 && byte(1) < 0x90);
    const bool outside = (lead == 0xED && byte(1) > 0x9F) || (lead == 0xF4 && byte(1) > 0x8F);
    return overlong || outside ? 0 : length;
}

/// Control characters, and those that turn the direction of writing around or break a line.
bool isHarmful(std::string_view character)
{
    const auto byte = [character](std::size_t i) { return static_cast<unsigned char>(character[i]); };
    if (character.size() == 1)
    {
        return byte(0) < 0x20 || byte(0) == 0x7F;
    }
    if (character.size() == 2)
    {
        return byte(0) == 0xC2 && byte(1) < 0xA0;
    }
    const bool isGeneralPunctuation = character.size() == 3 && byte(0) == 0xE2;
    return isGeneralPunctuation && ((byte(1) == 0x80 && byte(2) >= 0xA8 && byte(2) <= 0xAE) ||
                                    (byte(1) == 0x81 && byte(2) >= 0xA6 && byte(2) <= 0xA9));
}

std::string escaped(char c)
{
    switch (c)
    {
    case '\r':
        return "\\r";
    case '\n':
        return "\\n";
    case '\t':
        return "\\t";
    default:
        std::array<char, 5> text;
        std::snprintf(text.data(), text.size(), "\\x%02X", static_cast<unsigned int>(static_cast<unsigned char>(c)));
        return text.data();
    }
}

/// Appends the first character of the text as it may be printed. Gives how many bytes it took; `width` grows by the
/// places that it fills.
std::size_t appendPrintable(std::string& out, std::string_view text, std::size_t& width)
{
    const std::size_t length = characterLength(text);
    if (length != 0 && !isHarmful(text.substr(0, length)))
    {
        out.append(text.substr(0, length));
        ++width;
        return length;
    }
    const std::size_t taken = std::max<std::size_t>(length, 1);
    for (const char c : text.substr(0, taken))
    {
        const std::string shown = escaped(c);
        out += shown;
        width += shown.size();
    }
    return taken;
}

/// The pieces of a line that may not be shown.
std::vector<Range> withheldRanges(std::string_view line, Keys keys)
{
    std::vector<Range> ranges;
    if (keys == Keys::withheld)
    {
        ranges = findSecrets(line);
        for (Range& range : ranges)
        {
            range.begin = std::min(range.begin + s_ShownOfKey, range.end);
        }
    }
    return ranges;
}

/// Where a long line is cut, so that the place is seen.
Range visibleRange(std::string_view line, std::size_t place)
{
    if (line.size() <= s_WidestExcerpt)
    {
        return {0, line.size()};
    }
    const std::size_t begin = place <= s_InFrontOfPlace ? 0 : place - s_InFrontOfPlace;
    return {begin, std::min(line.size(), begin + s_WidestExcerpt)};
}

} // namespace

std::string keyText(std::string_view key, Keys keys)
{
    return keys == Keys::shown ? std::string(key) : std::string(key.substr(0, s_ShownOfKey)) + ellipsis;
}

std::string lineText(std::string_view line, Keys keys)
{
    std::string text;
    std::size_t done = 0;
    for (const Range& range : withheldRanges(line, keys))
    {
        text.append(line.substr(done, range.begin - done)).append(ellipsis);
        done = range.end;
    }
    return text.append(line.substr(done));
}

std::string printable(std::string_view text)
{
    std::string out;
    std::size_t width = 0;
    while (!text.empty())
    {
        text.remove_prefix(appendPrintable(out, text, width));
    }
    return out;
}

Excerpt excerpt(std::string_view line, std::size_t place, Keys keys)
{
    const std::vector<Range> withheld = withheldRanges(line, keys);
    const Range visible = visibleRange(line, place);
    auto hidden = withheld.begin();
    Excerpt result{visible.begin == 0 ? "" : ellipsis, 0};
    std::size_t width = visible.begin == 0 ? 0 : 1;
    std::size_t at = visible.begin;
    bool placed = false;
    while (at < visible.end)
    {
        hidden = std::find_if(hidden, withheld.end(), [at](const Range& range) { return range.end > at; });
        const std::size_t widthInFront = width;
        if (hidden != withheld.end() && hidden->begin <= at)
        {
            result.text += ellipsis;
            ++width;
            at = hidden->end;
        }
        else
        {
            at += appendPrintable(result.text, line.substr(at), width);
        }
        if (!placed && at > place)
        {
            result.caret = widthInFront;
            placed = true;
        }
    }
    if (!placed)
    {
        result.caret = width;
    }
    if (at < line.size())
    {
        result.text += ellipsis;
    }
    return result;
}

} // namespace lmsdp
