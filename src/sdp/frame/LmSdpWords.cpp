#include "sdp/frame/LmSdpWords.h"

#include "sdp/frame/LmSdpCommonText.h"

#include <algorithm>

namespace
{

constexpr unsigned int s_ListCapacity = 256;

} // namespace

LmSdpWordList lmWords(std::string_view text)
{
    LmSdpWordList words;
    words.reserve(1 + static_cast<std::size_t>(std::count(text.begin(), text.end(), ' ')));
    // Words are so short that to look at each byte is the fastest way.
    const char* start = text.data();
    const char* const end = start + text.size();
    for (const char* place = start; place != end; ++place)
    {
        if (*place == ' ')
        {
            if (place != start)
            {
                words.push_back(lmSdpText({start, static_cast<std::size_t>(place - start)}));
            }
            start = place + 1;
        }
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
