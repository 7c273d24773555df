#include "Secrets.h"

#include <algorithm>
#include <string>

namespace lmsdp
{
namespace
{

constexpr std::string_view s_White = " \t\r\n\v\f";
constexpr std::size_t s_None = std::string_view::npos;

std::size_t orEnd(std::size_t place, std::string_view text)
{
    return std::min(place, text.size());
}

std::size_t skipWhite(std::string_view text, std::size_t from)
{
    return orEnd(text.find_first_not_of(s_White, from), text);
}

std::size_t skipWord(std::string_view text, std::size_t from)
{
    return orEnd(text.find_first_of(s_White, from), text);
}

std::string lowered(std::string_view text)
{
    std::string lower(text);
    for (char& c : lower)
    {
        if (c >= 'A' && c <= 'Z')
        {
            c = static_cast<char>(c - 'A' + 'a');
        }
    }
    return lower;
}

bool beginsWith(std::string_view text, std::string_view start)
{
    return text.substr(0, start.size()) == start;
}

class Search
{
public:
    explicit Search(std::string_view line) : m_Lower(lowered(line)), m_Line(m_Lower) {}

    std::vector<Range> run()
    {
        const std::size_t start = skipWhite(m_Line, 0);
        if (beginsWith(m_Line.substr(start), "k="))
        {
            keyLine(start + 2);
        }
        if (beginsWith(m_Line.substr(start), "a=crypto:"))
        {
            keyParameters(start + 9);
        }
        behindEach("inline:", [this](std::size_t from) {
            const std::size_t begin = skipWhite(m_Line, from);
            return add(begin, orEnd(m_Line.find_first_of(";| \t\r\n\v\f", begin), m_Line));
        });
        behindEach("key-mgmt:", [this](std::size_t from) {
            const std::size_t begin = skipWhite(m_Line, skipWord(m_Line, from));
            return add(begin, skipWord(m_Line, begin));
        });
        return merged();
    }

private:
    /// All that stands behind the method; a line without one is a key as a whole.
    void keyLine(std::size_t from)
    {
        const std::string_view value = m_Line.substr(from);
        if (value != "prompt" && !beginsWith(value, "http://"))
        {
            const std::size_t colon = value.find(':');
            add(colon == s_None ? from : from + colon + 1, m_Line.size());
        }
    }

    /// The third word of a crypto line: key parameters with ";" between them, also where the method is misspelt.
    void keyParameters(std::size_t from)
    {
        const std::size_t suite = skipWhite(m_Line, skipWord(m_Line, from));
        std::size_t begin = skipWhite(m_Line, skipWord(m_Line, suite));
        const std::string_view word = m_Line.substr(0, skipWord(m_Line, begin));
        while (begin < word.size())
        {
            const std::string_view upToEnd = word.substr(0, word.find(';', begin));
            const std::size_t colon = upToEnd.find(':', begin);
            const std::size_t key = colon == s_None ? begin : colon + 1;
            add(key, orEnd(upToEnd.find('|', key), upToEnd));
            begin = upToEnd.size() + 1;
        }
    }

    /// Calls the operation with the place behind each of the words. It gives the place to go on from.
    template <typename Operation>
    void behindEach(std::string_view word, Operation operation)
    {
        std::size_t at = m_Line.find(word);
        while (at != s_None)
        {
            at = m_Line.find(word, operation(at + word.size()));
        }
    }

    std::size_t add(std::size_t begin, std::size_t end)
    {
        if (begin < end)
        {
            m_Found.push_back({begin, end});
        }
        return end;
    }

    std::vector<Range> merged()
    {
        std::sort(m_Found.begin(), m_Found.end(), [](Range left, Range right) { return left.begin < right.begin; });
        std::vector<Range> result;
        for (const Range& range : m_Found)
        {
            if (!result.empty() && range.begin <= result.back().end)
            {
                result.back().end = std::max(result.back().end, range.end);
            }
            else
            {
                result.push_back(range);
            }
        }
        return result;
    }

    const std::string m_Lower;
    const std::string_view m_Line;
    std::vector<Range> m_Found;
};

} // namespace

std::vector<Range> findSecrets(std::string_view line)
{
    return Search(line).run();
}

} // namespace lmsdp
