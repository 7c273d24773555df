#include "sdp/fields/LmSdpRepeatField.h"

#include "LmLibs/LmUtil/LmCharacters.h"
#include "LmLibs/LmUtil/LmLine.h"
#include "sdp/frame/LmSdpCommonText.h"
#include "sdp/frame/LmSdpLine.h"
#include "sdp/frame/LmSdpWords.h"

LmSdpRepeatField::LmSdpRepeatField() : LmSdpField("r") {}

LmSdpRepeatField::LmSdpRepeatField(const char* text) : LmSdpRepeatField()
{
    lmParseText(*this, text);
}

LmSdpRepeatField::~LmSdpRepeatField() = default;

void LmSdpRepeatField::setRepeatInterval(const char* text)
{
    change(m_RepeatInterval, text);
}

void LmSdpRepeatField::setActiveDuration(const char* text)
{
    change(m_ActiveDuration, text);
}

LmString LmSdpRepeatField::getOffsetList()
{
    return lmJoinWords(m_Offsets);
}

void LmSdpRepeatField::setOffsetList(const char* text)
{
    m_Offsets = lmWords(lmViewOf(text));
    setChangedFlag();
}

void LmSdpRepeatField::addOffsets(const char* text)
{
    const LmSdpWordList added = lmWords(lmViewOf(text));
    m_Offsets.insert(m_Offsets.end(), added.begin(), added.end());
}

void LmSdpRepeatField::parse(LmInputStream& in)
{
    lmRefuseEmptyLine(in, "LmSdpRepeatField::parse Incomplete Repeat Field");
    lmSdpTakeWords(in, {&m_RepeatInterval, &m_ActiveDuration});
    const LmLine offsets(in);
    m_Offsets = lmWords(lmUpToNul(offsets.view()));
    setChangedFlag();
}

void LmSdpRepeatField::serialize(LmOutputStream& out) const
{
    constexpr const char* incomplete = "LmSdpRepeatField::serialize() Incomplete Repeat Field";
    lmRefuseBlank<LmException>(m_RepeatInterval, incomplete);
    lmRefuseBlank<LmException>(m_ActiveDuration, incomplete);
    lmWriteLine(out, *this, m_RepeatInterval, " ", m_ActiveDuration, LmSdpTrailingWords{m_Offsets});
}

LmSdpField* LmSdpRepeatField::sConstruct()
{
    return new LmSdpRepeatField;
}
