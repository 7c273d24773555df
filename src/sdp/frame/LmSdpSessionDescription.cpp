#include "sdp/frame/LmSdpSessionDescription.h"

#include "LmLibs/LmUtil/LmException.h"
#include "LmLibs/LmUtil/LmStreamTokenizer.h"
#include "core/Assertion.h"
#include "core/LogStatement.h"
#include "core/TraceScope.h"

#include <cstring>
#include <type_traits>

namespace
{

Quorvex::FileLogger s_Logger("harnwick.lm.LmSdpSessionDescription");

constexpr const char* s_FieldTokens = "vosiuepcbzka";

/// The time descriptions are written in front of this slot, that of `z=`.
constexpr unsigned int s_SlotBehindTimes = 12;

bool isToken(const char* token, const char* letter)
{
    return token != nullptr && std::strcmp(token, letter) == 0;
}

} // namespace

LmSdpSessionDescription::LmSdpSessionDescription()
    : LmSdpDescription("v", s_FieldTokens, std::integral_constant<std::uint32_t, sLettersOf(s_FieldTokens)>::value)
{
}

LmSdpSessionDescription::~LmSdpSessionDescription() = default;

LmHandle<LmSdpDescription> LmSdpSessionDescription::getDescription(const char* token)
{
    const Quorvex::TraceScope trace(s_Logger, "LmSdpSessionDescription::getDescription");
    if (isToken(token, "t"))
    {
        return m_TimeDescription;
    }
    if (isToken(token, "m"))
    {
        return m_MediaDescription;
    }
    return nullptr;
}

void LmSdpSessionDescription::addDescription(const LmHandle<LmSdpDescription>& hDescription)
{
    const Quorvex::TraceScope trace(s_Logger, "LmSdpSessionDescription::addDescription");
    if (hDescription.isNull())
    {
        return;
    }
    const char* const token = hDescription->getToken();
    const LmHandle<LmSdpTimeDescription> hTime = isToken(token, "t") ? hDescription : nullptr;
    const LmHandle<LmSdpMediaDescription> hMedia = isToken(token, "m") ? hDescription : nullptr;
    if (hTime.isNull() && hMedia.isNull())
    {
        LmException::sThrow("trying to add unknown description in LmSdpSessionDescription::addDescription()");
    }
    if (const LmHandle<LmSdpDescription> hFirst = getDescription(token))
    {
        hFirst->addNext(hDescription);
    }
    else if (hTime)
    {
        m_TimeDescription = hTime;
    }
    else
    {
        m_MediaDescription = hMedia;
    }
}

void LmSdpSessionDescription::parse(LmInputStream& in)
{
    LmSdpDescription::parse(in);
    while (LmStreamTokenizer::sDiscardWhite(in) == 't')
    {
        addDescription(LmSdpDescription::sConstructFrom(in));
    }
    const int next = LmStreamTokenizer::sDiscardWhite(in);
    if (next != 'm' && next != -1)
    {
        LmSdpDescription::parse(in);
    }
    while (LmStreamTokenizer::sDiscardWhite(in) == 'm')
    {
        addDescription(LmSdpDescription::sConstructFrom(in));
    }
}

void LmSdpSessionDescription::serialize(LmOutputStream& out) const
{
    const Quorvex::TraceScope trace(s_Logger, "LmSdpSessionDescription::serialize");
    serializeSlots(out, 0, s_SlotBehindTimes);
    serializeDescription(m_TimeDescription, out);
    serializeSlots(out, s_SlotBehindTimes, sm_SlotCount);
    serializeDescription(m_MediaDescription, out);
}

void LmSdpSessionDescription::serializeDescription(LmHandle<LmSdpDescription> hDescription, LmOutputStream& out)
{
    constexpr const char* scope = "LmSdpSessionDescription::serializeDescription";
    const Quorvex::TraceScope trace(s_Logger, scope);
    while (LmSdpDescription* const pDescription = hDescription)
    {
        QUORVEX_LOG(s_Logger, Quorvex::eDebug, "LmSdpSessionDescription",
                    scope << " : "
                          << "hDescription: " << static_cast<const void*>(pDescription));
        const LmSdpDescription& readOnly = *pDescription;
        readOnly.serialize(out);
        const LmHandle<LmSdpDescription> hNext = pDescription->getNext();
        if (hNext == hDescription)
        {
            Quorvex::Assertion(false, "hDescription != hDescription->getNext()", "LmSdpSessionDescription", __LINE__);
        }
        hDescription = hNext;
    }
}

LmSdpDescription* LmSdpSessionDescription::sConstruct()
{
    return new LmSdpSessionDescription;
}

bool LmSdpSessionDescription::checkForChangeFlag()
{
    return isAnyFieldChanged(0, s_SlotBehindTimes) || (m_TimeDescription && m_TimeDescription->checkForChangeFlag()) ||
           isAnyFieldChanged(s_SlotBehindTimes, sm_SlotCount) ||
           (m_MediaDescription && m_MediaDescription->checkForChangeFlag());
}
