#include "sdp/fields/LmSdpTimeField.h"

#include "LmLibs/LmUtil/LmStreamCursor.h"
#include "core/TraceScope.h"
#include "sdp/frame/LmSdpCommonText.h"
#include "sdp/frame/LmSdpLine.h"

#include <array>

namespace
{

Quorvex::FileLogger s_Logger("harnwick.lm.LmSdpTimeField");

[[noreturn]] void refuse()
{
    LmException::sThrow("LmSdpTimeField::Invalid Time Field");
}

template <typename Cursor>
LmString takeTime(Cursor& cursor)
{
    std::array<char, 127> digits;
    std::size_t count = 0;
    for (int next = cursor.peek(); lmIsDigit(next); next = cursor.peek())
    {
        cursor.advance();
        if (count == digits.size())
        {
            refuse();
        }
        digits[count] = static_cast<char>(next);
        ++count;
    }
    return lmSdpText(std::string_view(digits.data(), count));
}

template <typename Cursor>
void takeBlank(Cursor& cursor)
{
    if (lmTakeByte(cursor) != ' ')
    {
        refuse();
    }
}

} // namespace

LmSdpTimeField::LmSdpTimeField() : LmSdpField("t") {}

LmSdpTimeField::LmSdpTimeField(const char* startTime, const char* stopTime)
    : LmSdpField("t"), m_StartTime(startTime), m_StopTime(stopTime)
{
    const Quorvex::TraceScope trace(s_Logger, "LmSdpTimeField::LmSdpTimeField(const char *, const char *)");
    lmRefuseBlank<LmSdpParseError>(m_StartTime, "Attempting to create Time field with blank start time");
    lmRefuseBlank<LmSdpParseError>(m_StopTime, "Attempting to create Time field with blank stop time");
}

LmSdpTimeField::LmSdpTimeField(const char* text) : LmSdpTimeField()
{
    const Quorvex::TraceScope trace(s_Logger, "LmSdpTimeField::LmSdpTimeField(const char *)");
    lmParseText(*this, text);
}

LmSdpTimeField::~LmSdpTimeField() = default;

void LmSdpTimeField::setStartTime(const char* text)
{
    change(m_StartTime, text);
}

void LmSdpTimeField::setStopTime(const char* text)
{
    change(m_StopTime, text);
}

void LmSdpTimeField::parse(LmInputStream& in)
{
    const Quorvex::TraceScope trace(s_Logger, "LmSdpTimeField::parse");
    lmRefuseEmptyLine(in, "LmSdpTimeField::parse Incomplete Time Field");
    lmWithCursor(in, [this](auto& cursor) {
        LmString startTime = takeTime(cursor);
        takeBlank(cursor);
        m_StopTime = takeTime(cursor);
        m_StartTime = std::move(startTime);
    });
}

void LmSdpTimeField::serialize(LmOutputStream& out) const
{
    constexpr const char* incomplete = "LmSdpTimeField::serialize() Incomplete Time Field";
    lmRefuseBlank<LmException>(m_StartTime, incomplete);
    lmRefuseBlank<LmException>(m_StopTime, incomplete);
    lmWriteLine(out, *this, m_StartTime, " ", m_StopTime);
}

LmSdpField* LmSdpTimeField::sConstruct()
{
    return new LmSdpTimeField;
}
