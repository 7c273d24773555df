#include "sdp/frame/LmSdpMsg.h"

#include "LmLibs/LmUtil/LmStreamTokenizer.h"
#include "core/TraceScope.h"
#include "sdp/frame/LmSdpParseError.h"
#include "sdp/frame/LmSdpText.h"

Quorvex::FileLogger& LmSdpMsg::sLogger()
{
    static Quorvex::FileLogger s_Logger("harnwick.lm.LmSdpMsg");
    return s_Logger;
}

LmSdpMsg::LmSdpMsg() = default;

LmSdpMsg::LmSdpMsg(const char* text)
{
    const Quorvex::TraceScope trace(sLogger(), "LmSdpMsg::LmSdpMsg(const char *)");
    lmParseText(*this, text);
}

LmSdpMsg::~LmSdpMsg() = default;

void LmSdpMsg::parse(LmInputStream& in)
{
    const Quorvex::TraceScope trace(sLogger(), "LmSdpMsg::parse");
    if (LmStreamTokenizer::sDiscardWhite(in) != 'v')
    {
        LmSdpParseError::sThrow("SDP Message does not begin with 'v'");
    }
    m_SessionDescription = LmSdpDescription::sConstructFrom(in);
}

void LmSdpMsg::serialize(LmOutputStream& out) const
{
    if (m_SessionDescription.isNull())
    {
        LmException::sThrow("Session Description is invalid in LmSdpMsg::serialize()");
    }
    const LmSdpSessionDescription& session = *m_SessionDescription;
    session.serialize(out);
    out.flush();
}

void LmSdpMsg::addField(const LmHandle<LmSdpField>& hField)
{
    if (hField.isNull())
    {
        return;
    }
    if (m_SessionDescription.isNull())
    {
        LmException::sThrow("Session Description is invalid in LmSdpMsg::addField()");
    }
    if (!m_SessionDescription->isFieldInDescription(hField->getToken()))
    {
        LmSdpParseError::sThrow("Attempting to insert invalid field at Session-level");
    }
    m_SessionDescription->addField(hField);
}

void LmSdpMsg::addDescription(const LmHandle<LmSdpDescription>& hDescription)
{
    if (hDescription.isNull())
    {
        return;
    }
    if (m_SessionDescription.isNull())
    {
        LmException::sThrow("Session Description is invalid in LmSdpMsg::addDescription()");
    }
    m_SessionDescription->addDescription(hDescription);
}

LmHandle<LmSdpField> LmSdpMsg::getField(const char* token)
{
    return m_SessionDescription ? m_SessionDescription->getField(token) : nullptr;
}

LmHandle<LmSdpTimeDescription> LmSdpMsg::getTimeDescription()
{
    return m_SessionDescription ? m_SessionDescription->getDescription("t") : nullptr;
}

LmHandle<LmSdpMediaDescription> LmSdpMsg::getMediaDescription()
{
    return m_SessionDescription ? m_SessionDescription->getDescription("m") : nullptr;
}
