#include "sdp/frame/LmSdpField.h"

#include "LmLibs/LmUtil/LmException.h"
#include "LmLibs/LmUtil/LmStreamTokenizer.h"
#include "core/LogStatement.h"
#include "core/TraceScope.h"
#include "sdp/frame/LmSdpChain.h"
#include "sdp/frame/LmSdpLineReading.h"

Quorvex::FileLogger LmSdpField::sm_Logger("harnwick.lm.LmSdpField");

void lmSdpTakeLongToken(LmInputStream& in, LmSdpTokenBuffer& token)
{
    if (!LmStreamTokenizer::sGetToken(in, "=", token, sizeof token))
    {
        LmException::sThrow("Invalid format generic SDP field in LmSdpField::sConstructFrom()");
    }
    in.read();
}

void LmSdpField::releaseChain() noexcept
{
    lmReleaseChain(m_Next, [](LmSdpField& field) -> LmHandle<LmSdpField>& { return field.m_Next; });
}

LmHandle<LmSdpField> LmSdpField::sConstructFrom(LmInputStream& in)
{
    return sReadLine(in);
}

LmHandle<LmSdpField> LmSdpField::sReadLineTraced(LmInputStream& in, const Quorvex::Logger* pLogger)
{
    const Quorvex::TraceScope trace(pLogger, "LmSdpField::sConstructFrom");
    LmSdpTokenBuffer tokenBuf;
    lmSdpTakeToken(in, tokenBuf);
    QUORVEX_LOG(pLogger, Quorvex::eDebug, "LmSdpField", "tokenBuf=" << tokenBuf << "|");
    return sReadValue(tokenBuf, in);
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
