#pragma once

#include "LmLibs/LmUtil/LmInputStream.h"
#include "core/FileLogger.h"
#include "sdp/frame/LmSdpField.h"
#include "sdp/frame/LmSdpRegistry.h"
#include "sdp/frame/LmSdpUnusedField.h"

/// Reading one line, for the two places that do it: LmSdpField::sConstructFrom and the loop over a description's lines.

/// A line's token with a NUL behind it.
using LmSdpTokenBuffer = char[4];

/// The way of tokens that are no single letter, and of streams without a window.
[[gnu::cold]] LMSDP_LOCAL void lmSdpTakeLongToken(LmInputStream& in, LmSdpTokenBuffer& token);

/// Takes a line's token and the "=" behind it. Nearly every token is one letter, which a window shows at a glance.
inline void lmSdpTakeToken(LmInputStream& in, LmSdpTokenBuffer& token)
{
    const char* const next = in.windowBegin();
    if (__builtin_expect(in.windowEnd() - next < 2, 0) || __builtin_expect(next[1] != '=', 0) ||
        __builtin_expect(next[0] < 'a' || next[0] > 'z', 0))
    {
        lmSdpTakeLongToken(in, token);
        return;
    }
    token[0] = next[0];
    token[1] = '\0';
    in.consumeTo(next + 2);
}

/// Makes the field that is registered for a token, and has it read the rest of the line.
__attribute__((always_inline)) inline LmHandle<LmSdpField> LmSdpField::sReadValue(const char* token, LmInputStream& in)
{
    const Constructor constructor =
        __builtin_expect(sm_pConstructorMap == nullptr, 0) ? nullptr : sm_pConstructorMap->find(token);
    LmSdpField* pField = __builtin_expect(constructor == nullptr, 0) ? nullptr : constructor();
    if (__builtin_expect(pField == nullptr, 0))
    {
        pField = new LmSdpUnusedField(token);
    }
    LmHandle<LmSdpField> hField(pField);
    pField->parse(in);
    return hField;
}

__attribute__((always_inline)) inline LmHandle<LmSdpField> LmSdpField::sReadLine(LmInputStream& in)
{
    const Quorvex::Logger* const pLogger = sm_Logger.listening(Quorvex::eDebug);
    if (__builtin_expect(pLogger != nullptr, 0))
    {
        return sReadLineTraced(in, pLogger);
    }
    LmSdpTokenBuffer token;
    lmSdpTakeToken(in, token);
    return sReadValue(token, in);
}
