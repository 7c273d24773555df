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
    std::size_t start = 0;
    for (std::size_t blank = text.find(' '); blank != std::string_view::npos; blank = text.find(' ', start))
    {
        if (blank > start)
        {
            words.push_back(lmSdpText(text.substr(start, blank - start)));
        }
        start = blank + 1;
    }
    words.push_back(lmSdpText(text.substr(start)));
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
