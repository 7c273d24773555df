#include "Lines.h"

#include <algorithm>

namespace lmsdp
{
namespace
{

LineEnd lineEndAt(std::string_view bytes, std::size_t at)
{
    if (at == bytes.size())
    {
        return LineEnd::none;
    }
    if (bytes[at] == '\n')
    {
        return LineEnd::lf;
    }
    return at + 1 < bytes.size() && bytes[at + 1] == '\n' ? LineEnd::crLf : LineEnd::cr;
}

} // namespace

bool isWhite(char c)
{
    return std::string_view(" \t\r\n\v\f").find(c) != std::string_view::npos;
}

Lines::Lines(std::string_view bytes) : m_Bytes(bytes)
{
    std::size_t begin = 0;
    do
    {
        const std::size_t end = std::min(bytes.find_first_of("\r\n", begin), bytes.size());
        const LineEnd lineEnd = lineEndAt(bytes, end);
        m_Lines.push_back({begin, end, lineEnd});
        begin = end + (lineEnd == LineEnd::crLf ? 2 : 1);
    } while (begin < bytes.size());
}

std::string_view Lines::text(std::size_t number) const
{
    const Line& line = (*this)[number];
    return m_Bytes.substr(line.begin, line.end - line.begin);
}

bool Lines::isBlank(std::size_t number) const
{
    const std::string_view line = text(number);
    return std::all_of(line.begin(), line.end(), &isWhite);
}

std::size_t Lines::numberAt(std::size_t offset) const
{
    const auto behind = std::upper_bound(m_Lines.begin(), m_Lines.end(), offset,
                                         [](std::size_t place, const Line& line) { return place < line.begin; });
    return static_cast<std::size_t>(std::max<std::ptrdiff_t>(behind - m_Lines.begin(), 1));
}

} // namespace lmsdp
