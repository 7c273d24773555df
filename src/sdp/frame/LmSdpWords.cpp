#include "sdp/frame/LmSdpWords.h"

#include "sdp/frame/LmSdpCommonText.h"

namespace
{

constexpr unsigned int s_ListCapacity = 256;

/// Words are so short that to look at each byte is the fastest way.
const char* nextBlank(const char* place, const char* end)
{
    while (place != end && *place != ' ')
    {
        ++place;
    }
    return place;
}

} // namespace

LmSdpWordList lmWords(std::string_view text)
{
    const char* start = text.data();
    const char* const end = start + text.size();
    std::size_t blanks = 0;
    for (const char* blank = nextBlank(start, end); blank != end; blank = nextBlank(blank + 1, end))
    {
        ++blanks;
    }
    LmSdpWordList words;
    words.reserve(blanks + 1);
    for (const char* blank = nextBlank(start, end); blank != end; blank = nextBlank(start, end))
    {
        if (blank != start)
        {
            words.push_back(lmSdpText({start, static_cast<std::size_t>(blank - start)}));
        }
        start = blank + 1;
    }
    words.push_back(lmSdpText({start, static_cast<std::size_t>(end - start)}));
    return words;
}

LmString lmJoinWords(const LmSdpWordList& words)
{
    LmString joined(*LmStringBuffer::sCreate(std::string_view(), s_ListCapacity));
    for (const LmString& word : words)
    {
        if (&word != &words.front())
        {
            joined.append(" ");
        }
        joined.append(word);
    }
    return joined;
}

LmOutputStream& operator<<(LmOutputStream& out, const LmSdpTrailingWords& trailing)
{
    for (const LmString& word : trailing.words)
    {
        out << " " << word;
    }
    return out;
}
