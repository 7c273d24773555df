#pragma once

#include "LmLibs/LmUtil/LmInputStream.h"
#include "LmLibs/LmUtil/LmString.h"
#include "sdp/LmSdpExport.h"

#include <initializer_list>
#include <string_view>

/// The shared texts of single letters by their code; null for any other, and until the library has been loaded.
LMSDP_API extern LmStringBuffer* lmSdpLetters[256];

/// The shared text that is the same; null for none, and until the library has been loaded.
LMSDP_API LmStringBuffer* lmSdpSharedText(std::string_view text) noexcept;

/// A text of a line, as any other LmString. The words that nearly every body has (letters, attribute names, payload
/// types, encoding names, "IN", "IP4" and the like) are made once and shared, so that they take no memory and no
/// counting; any other text is copied.
inline LmString lmSdpText(std::string_view text)
{
    if (__builtin_expect(text.empty(), 0))
    {
        return LmString();
    }
    LmStringBuffer* const pShared = lmSdpSharedText(text);
    return pShared != nullptr ? LmString::sShareImmortal(*pShared) : LmString(text);
}

/// The token of a line or description; the single letters are shared.
inline LmString lmSdpToken(const char* token)
{
    const bool isLetter = token != nullptr && token[0] != '\0' && token[1] == '\0';
    LmStringBuffer* const pShared = isLetter ? lmSdpLetters[static_cast<unsigned char>(token[0])] : nullptr;
    return pShared != nullptr ? LmString::sShareImmortal(*pShared) : LmString(token);
}

/// Gives each member the next word of this line, as `operator>>` takes it.
LMSDP_API void lmSdpTakeWords(LmInputStream& in, std::initializer_list<LmString*> members);
