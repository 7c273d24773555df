#include "sdp/frame/LmSdpField.h"

#include "LmLibs/LmUtil/LmException.h"
#include "LmLibs/LmUtil/LmStreamTokenizer.h"
#include "core/LogStatement.h"
#include "core/TraceScope.h"
#include "sdp/frame/LmSdpChain.h"
#include "sdp/frame/LmSdpLetter.h"
#include "sdp/frame/LmSdpRegistry.h"
#include "sdp/frame/LmSdpUnusedField.h"

namespace
{

Quorvex::FileLogger s_Logger("harnwick.lm.LmSdpField");

} // namespace

LmSdpField::LmSdpField(const char* token) : m_Token(lmSdpToken(token)) {}

LmSdpField::~LmSdpField()
{
    lmReleaseChain(m_Next, [](LmSdpField& field) -> LmHandle<LmSdpField>& { return field.m_Next; });
}

LmHandle<LmSdpField> LmSdpField::sConstructFrom(LmInputStream& in)
{
    const Quorvex::TraceScope trace(s_Logger, "LmSdpField::sConstructFrom");
    char tokenBuf[4];
    if (!LmStreamTokenizer::sGetToken(in, "=", tokenBuf, sizeof tokenBuf))
    {
        LmException::sThrow("Invalid format generic SDP field in LmSdpField::sConstructFrom()");
    }
    in.read();
    QUORVEX_LOG(s_Logger, Quorvex::eDebug, "LmSdpField", "tokenBuf=" << tokenBuf << "|");

    const Constructor constructor = sm_pConstructorMap == nullptr ? nullptr : sm_pConstructorMap->find(tokenBuf);
    LmHandle<LmSdpField> hField = constructor == nullptr ? nullptr : constructor();
    if (hField.isNull())
    {
        hField = new LmSdpUnusedField(tokenBuf);
    }
    hField->parse(in);
    return hField;
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

void LmSdpField::addNext(LmHandle<LmSdpField> hNext)
{
    last()->m_Next = std::move(hNext);
}

LmSdpField* LmSdpField::last()
{
    LmSdpField* pLast = this;
    while (LmSdpField* const pNext = pLast->m_Next)
    {
        pLast = pNext;
    }
    return pLast;
}
