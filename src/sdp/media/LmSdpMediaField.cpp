#include "sdp/media/LmSdpMediaField.h"

#include "LmLibs/LmUtil/LmCharacters.h"
#include "LmLibs/LmUtil/LmStreamCursor.h"
#include "core/TraceScope.h"
#include "sdp/frame/LmSdpCommonText.h"
#include "sdp/frame/LmSdpLine.h"
#include "sdp/frame/LmSdpWords.h"

#include <algorithm>
#include <charconv>

namespace
{

Quorvex::FileLogger s_Logger("harnwick.lm.LmSdpMediaField");

constexpr std::size_t s_LongestText = 255; ///< of the ports, and of all formats

[[noreturn, gnu::cold]] void refuseIncomplete()
{
    LmException::sThrow("LmSdpMediaField::parse Incomplete Media Field");
}

[[noreturn, gnu::cold]] void refuse()
{
    LmSdpParseError::sThrow("Parse error in LmSdpMediaField::parse()");
}

template <typename Cursor>
bool isLineOver(Cursor& cursor)
{
    const int next = cursor.peek();
    return next == -1 || lmIsLineEnd(next);
}

/// Takes the byte behind a value. One blank stands there; a second one is refused.
template <typename Cursor>
void takeSeparator(Cursor& cursor)
{
    lmTakeByte(cursor);
    if (lmTakeIf(cursor, ' '))
    {
        refuseIncomplete();
    }
}

} // namespace

LmSdpMediaField::LmSdpMediaField() : LmSdpField("m") {}

LmSdpMediaField::LmSdpMediaField(const char* text) : LmSdpMediaField()
{
    const Quorvex::TraceScope trace(s_Logger, "LmSdpMediaField::LmSdpMediaField");
    lmParseText(*this, text);
}

LmSdpMediaField::~LmSdpMediaField() = default;

LmString LmSdpMediaField::getMediaFormats()
{
    return lmJoinWords(m_MediaFormats);
}

void LmSdpMediaField::setMediaType(const char* text)
{
    change(m_MediaType, text);
}

void LmSdpMediaField::setPort(unsigned int port)
{
    m_Port = port;
    setChangedFlag();
}

void LmSdpMediaField::setNumberOfPorts(unsigned int number)
{
    m_NumberOfPorts = number;
    setChangedFlag();
}

void LmSdpMediaField::setTransport(const char* text)
{
    change(m_Transport, text);
}

void LmSdpMediaField::setPort(const char* text)
{
    if (text != nullptr)
    {
        setPort(static_cast<unsigned int>(lmAtoi(text)));
    }
}

void LmSdpMediaField::setNumberOfPorts(const char* text)
{
    if (text != nullptr)
    {
        setNumberOfPorts(static_cast<unsigned int>(lmAtoi(text)));
    }
}

void LmSdpMediaField::setMediaFormats(const char* text)
{
    m_MediaFormats = lmWords(lmViewOf(text));
    setChangedFlag();
}

bool LmSdpMediaField::isMediaFormatPresent(unsigned int format)
{
    return find(format) != m_MediaFormats.end();
}

void LmSdpMediaField::addMediaFormat(unsigned int format)
{
    if (!isMediaFormatPresent(format))
    {
        char digits[11];
        const std::to_chars_result end = std::to_chars(digits, digits + sizeof digits, static_cast<int>(format));
        m_MediaFormats.emplace_back(std::string_view(digits, static_cast<std::size_t>(end.ptr - digits)));
    }
}

void LmSdpMediaField::removeMediaFormat(unsigned int format)
{
    if (const auto found = find(format); found != m_MediaFormats.end())
    {
        m_MediaFormats.erase(found);
    }
}

void LmSdpMediaField::parse(LmInputStream& in)
{
    const Quorvex::TraceScope trace(s_Logger, "LmSdpMediaField::parse");
    lmWithCursor(in, [this](auto& cursor) { read(cursor); });
}

template <typename Cursor>
void LmSdpMediaField::read(Cursor& cursor)
{
    if (isLineOver(cursor))
    {
        refuseIncomplete();
    }
    m_MediaType = lmSdpText(lmTakeWord(cursor));
    takeSeparator(cursor);

    cursor.skipWhile(lmIsSpace);
    const bool isOver = cursor.peek() == -1;
    const std::string_view ports = cursor.takeUntil([](int c) { return c == ' '; });
    if (isOver || ports.size() > s_LongestText)
    {
        refuse();
    }
    takePort(lmUpToNul(ports));
    takeSeparator(cursor);

    m_Transport = lmSdpText(lmTakeWord(cursor));
    if (isLineOver(cursor))
    {
        refuseIncomplete();
    }
    const std::string_view formats = lmTakeLine(cursor);
    if (formats.size() > s_LongestText)
    {
        refuse();
    }
    m_MediaFormats = lmWords(lmUpToNul(formats));
    setChangedFlag();
}

void LmSdpMediaField::serialize(LmOutputStream& out) const
{
    constexpr const char* incomplete = "LmSdpMediaField::serialize() Incomplete Media Field";
    lmRefuseBlank<LmException>(m_MediaType, incomplete);
    lmRefuseBlank<LmException>(m_Transport, incomplete);
    const LmSdpTrailingWords formats{m_MediaFormats};
    if (m_NumberOfPorts == 0)
    {
        lmWriteLine(out, *this, m_MediaType, " ", m_Port, " ", m_Transport, formats);
    }
    else
    {
        lmWriteLine(out, *this, m_MediaType, " ", m_Port, "/", m_NumberOfPorts, " ", m_Transport, formats);
    }
}

LmSdpField* LmSdpMediaField::sConstruct()
{
    return new LmSdpMediaField;
}

void LmSdpMediaField::takePort(std::string_view token)
{
    const std::size_t slash = lmFindByte(token, '/');
    if (slash == std::string_view::npos)
    {
        setPort(static_cast<unsigned int>(lmAtoi(token)));
        return;
    }
    const std::string_view port = token.substr(0, slash);
    const std::string_view number = token.substr(slash + 1);
    if (lmAtol(port) <= 0 || lmAtoi(number) <= 0)
    {
        refuse();
    }
    setPort(static_cast<unsigned int>(lmAtoi(port)));
    setNumberOfPorts(static_cast<unsigned int>(lmAtoi(number)));
}

LmSdpWordList::iterator LmSdpMediaField::find(unsigned int format)
{
    return std::find_if(m_MediaFormats.begin(), m_MediaFormats.end(),
                        [format](const LmString& entry) { return lmAtoi(entry.view()) == static_cast<int>(format); });
}
