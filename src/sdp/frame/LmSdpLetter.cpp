#include "sdp/frame/LmSdpLetter.h"

#include <array>

namespace
{

constexpr char s_First = 'a';
constexpr char s_Last = 'z';

using Letters = std::array<LmStringBuffer*, s_Last - s_First + 1>;

Letters makeLetters()
{
    Letters letters{};
    for (char letter = s_First; letter <= s_Last; ++letter)
    {
        letters[static_cast<std::size_t>(letter - s_First)] = LmStringBuffer::sCreateImmortal({&letter, 1});
    }
    return letters;
}

} // namespace

LmString lmSdpToken(const char* token)
{
    static const Letters s_Letters = makeLetters();
    const bool isLetter = token != nullptr && token[0] >= s_First && token[0] <= s_Last && token[1] == '\0';
    return isLetter ? LmString(s_Letters[static_cast<std::size_t>(token[0] - s_First)]) : LmString(token);
}
