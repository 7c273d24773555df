#include "sdp/frame/LmSdpField.h"

#include "LmLibs/LmUtil/LmException.h"
#include "LmLibs/LmUtil/LmStreamTokenizer.h"
#include "core/LogStatement.h"
#include "core/TraceScope.h"
#include "sdp/frame/LmSdpChain.h"
#include "sdp/frame/LmSdpRegistry.h"
#include "sdp/frame/LmSdpUnusedField.h"

namespace
{

Quorvex::FileLogger s_Logger("harnwick.lm.LmSdpField");

using TokenBuffer = char[4];

/// Takes a line's token and the "=" behind it. Nearly every token is one letter, which a window shows at a glance.
inline void takeToken(LmInputStream& in, TokenBuffer& token)
{
    const char* const next = in.windowBegin();
    const bool isLetter =
        in.hasWindow() && in.windowEnd() - next >= 2 && next[1] == '=' && next[0] > ' ' && next[0] != '=';
    if (__builtin_expect(isLetter, 1))
    {
        token[0] = next[0];
        token[1] = '\0';
        in.consumeTo(next + 2);
        return;
    }
    if (!LmStreamTokenizer::sGetToken(in, "=", token, sizeof token))
    {
        LmException::sThrow("Invalid format generic SDP field in LmSdpField::sConstructFrom()");
    }
    in.read();
}

} // namespace

LmSdpField::~LmSdpField()
{
    lmReleaseChain(m_Next, [](LmSdpField& field) -> LmHandle<LmSdpField>& { return field.m_Next; });
}

/// Makes the field that is registered for a token, and has it read the rest of the line.
inline LmHandle<LmSdpField> LmSdpField::sRead(const char* token, LmInputStream& in)
{
    const Constructor constructor = sm_pConstructorMap == nullptr ? nullptr : sm_pConstructorMap->find(token);
    LmSdpField* pField = constructor == nullptr ? nullptr : constructor();
    if (__builtin_expect(pField == nullptr, 0))
    {
        pField = new LmSdpUnusedField(token);
    }
    LmHandle<LmSdpField> hField(pField);
    pField->parse(in);
    return hField;
}

LmHandle<LmSdpField> LmSdpField::sConstructFrom(LmInputStream& in)
{
    const Quorvex::Logger* const pLogger = s_Logger.listening(Quorvex::eDebug);
    if (__builtin_expect(pLogger != nullptr, 0))
    {
        return sConstructTraced(in, pLogger);
    }
    TokenBuffer tokenBuf;
    takeToken(in, tokenBuf);
    return sRead(tokenBuf, in);
}

LmHandle<LmSdpField> LmSdpField::sConstructTraced(LmInputStream& in, const Quorvex::Logger* pLogger)
{
    const Quorvex::TraceScope trace(pLogger, "LmSdpField::sConstructFrom");
    TokenBuffer tokenBuf;
    takeToken(in, tokenBuf);
    QUORVEX_LOG(pLogger, Quorvex::eDebug, "LmSdpField", "tokenBuf=" << tokenBuf << "|");
    return sRead(tokenBuf, in);
}

void LmSdpField::sAddConstructor(const char* token, Constructor constructor)
{
    LmSdpRegistry<LmSdpField>::sAdd(sm_pConstructorMap, token, constructor);
}

void LmSdpField::change(LmString& member, const char* text)
{
    member = LmString(text);
    setChangedFlag();
}
