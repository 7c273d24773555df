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
    return pShared != nullptr ? LmString::sAdopt(*pShared) : LmString(text);
}

/// The token of a line or description, counted for an LmString to adopt; the single letters are shared.
inline LmStringBuffer& lmSdpTokenBuffer(const char* token)
{
    const std::string_view text = lmViewOf(token);
    if (text.empty())
    {
        return *LmStringBuffer::sEmpty();
    }
    LmStringBuffer* const pShared = text.size() == 1 ? lmSdpLetters[static_cast<unsigned char>(text[0])] : nullptr;
    return pShared != nullptr ? *pShared : *LmStringBuffer::sCreateOwned(text);
}

/// Gives each member the next word of this line, as `operator>>` takes it.
LMSDP_API void lmSdpTakeWords(LmInputStream& in, std::initializer_list<LmString*> members);
