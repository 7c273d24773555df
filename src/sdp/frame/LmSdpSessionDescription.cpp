#include "sdp/frame/LmSdpSessionDescription.h"

#include "LmLibs/LmUtil/LmException.h"
#include "LmLibs/LmUtil/LmStreamTokenizer.h"
#include "core/Assertion.h"
#include "core/LogStatement.h"
#include "core/TraceScope.h"

#include <utility>

namespace
{

Quorvex::FileLogger s_Logger("harnwick.lm.LmSdpSessionDescription");

/// The time descriptions are written in front of this slot, that of `z=`.
constexpr unsigned int s_SlotBehindTimes = 12;

bool isToken(const char* token, char letter)
{
    return token != nullptr && token[0] == letter && token[1] == '\0';
}

} // namespace

const LmSdpDescription::FieldTokens& LmSdpSessionDescription::sFieldTokens()
{
    static const FieldTokens& s_Tokens = *new FieldTokens("vosiuepcbzka"); // outlives every object
    return s_Tokens;
}

LmSdpSessionDescription::LmSdpSessionDescription() : LmSdpDescription("v", sFieldTokens()) {}

LmSdpSessionDescription::~LmSdpSessionDescription() = default;

LmHandle<LmSdpDescription> LmSdpSessionDescription::getDescription(const char* token)
{
    return first(token, s_Logger.listening(Quorvex::eTrace));
}

/// The first description of a kind; null when there is none.
inline LmSdpDescription* LmSdpSessionDescription::first(const char* token, const Quorvex::Logger* pLogger) const
{
    const Quorvex::TraceScope trace(pLogger, "LmSdpSessionDescription::getDescription");
    if (isToken(token, 't'))
    {
        return m_TimeDescription.untested();
    }
    return isToken(token, 'm') ? m_MediaDescription.untested() : nullptr;
}

void LmSdpSessionDescription::addDescription(const LmHandle<LmSdpDescription>& hDescription)
{
    add(LmHandle<LmSdpDescription>(hDescription));
}

void LmSdpSessionDescription::add(LmHandle<LmSdpDescription>&& hDescription)
{
    const Quorvex::Logger* const pLogger = s_Logger.listening(Quorvex::eTrace);
    const Quorvex::TraceScope trace(pLogger, "LmSdpSessionDescription::addDescription");
    LmSdpDescription* const pDescription = hDescription.untested();
    if (pDescription == nullptr)
    {
        return;
    }
    const char* const token = pDescription->getToken();
    const bool isTime = isToken(token, 't') && LmTypeTest<LmSdpTimeDescription>::sCast(pDescription) != nullptr;
    const bool isMedia = isToken(token, 'm') && LmTypeTest<LmSdpMediaDescription>::sCast(pDescription) != nullptr;
    if (!isTime && !isMedia)
    {
        LmException::sThrow("trying to add unknown description in LmSdpSessionDescription::addDescription()");
    }
    if (LmSdpDescription* const pFirst = first(token, pLogger))
    {
        pFirst->addNext(std::move(hDescription));
    }
    else if (isTime)
    {
        m_TimeDescription = std::move(hDescription);
    }
    else
    {
        m_MediaDescription = std::move(hDescription);
    }
}

void LmSdpSessionDescription::parse(LmInputStream& in)
{
    LmSdpDescription::parse(in);
    while (LmStreamTokenizer::sDiscardWhite(in) == 't')
    {
        add(LmSdpDescription::sConstructFrom(in));
    }
    const int next = LmStreamTokenizer::sDiscardWhite(in);
    if (next != 'm' && next != -1)
    {
        LmSdpDescription::parse(in);
    }
    while (LmStreamTokenizer::sDiscardWhite(in) == 'm')
    {
        add(LmSdpDescription::sConstructFrom(in));
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
