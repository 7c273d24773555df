#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

namespace lmsdp
{

/// How a line ends.
enum class LineEnd
{
    crLf,
    lf,
    cr,
    none
};

/// One line of a body as the library counts lines: up to CR LF, a lone LF, a lone CR or the end.
struct Line
{
    std::size_t begin; ///< offset of its first byte
    std::size_t end;   ///< offset behind its text
    LineEnd lineEnd;
};

/// The lines of a body, counted from 1. The bytes must outlive this.
class Lines
{
public:
    explicit Lines(std::string_view bytes);

    /// How many there are; at least one.
    std::size_t count() const { return m_Lines.size(); }

    const Line& operator[](std::size_t number) const { return m_Lines[number - 1]; }
    std::string_view text(std::size_t number) const;

    /// True for a line of nothing but white space.
    bool isBlank(std::size_t number) const;

    /// The number of the line in which a byte stands; a line end belongs to the line it ends.
    std::size_t numberAt(std::size_t offset) const;

private:
    std::string_view m_Bytes;
    std::vector<Line> m_Lines;
};

/// True for what separates words and lines: blank, tab, CR, LF, VT and FF.
bool isWhite(char c);

} // namespace lmsdp
