#include "sdp/fields/LmSdpTimeZoneField.h"

#include "LmLibs/LmUtil/LmStreamCursor.h"
#include "sdp/frame/LmSdpLine.h"
#include "sdp/frame/LmSdpWords.h"

#include <array>
#include <charconv>
#include <utility>

namespace
{

[[noreturn]] void refuse()
{
    LmException::sThrow("LmSdpTimeField::Invalid Time Zone Field");
}

/// Walks over the value of a `z=` line and collects its normal form.
template <typename Cursor>
class Reader
{
public:
    explicit Reader(Cursor& cursor) : m_Cursor(cursor) {}

    /// The elements, each two separated by one blank.
    std::string_view read()
    {
        do
        {
            takeAdjustmentTime();
            takeOffset();
        } while (isElementNext());
        return {m_Text.data(), m_Length};
    }

private:
    static constexpr std::size_t sm_LongestText = 510;
    static constexpr unsigned int sm_FewestDigits = 10;

    void store(int character)
    {
        if (m_Length == m_Text.size())
        {
            refuse();
        }
        m_Text[m_Length] = static_cast<char>(character);
        ++m_Length;
    }

    void takeAdjustmentTime()
    {
        int next = lmTakeByte(m_Cursor);
        if (!lmIsDigit(next) || next == '0')
        {
            refuse();
        }
        unsigned int digits = 0;
        while (lmIsDigit(next))
        {
            store(next);
            ++digits;
            if (m_Length == m_Text.size())
            {
                refuse();
            }
            next = lmTakeByte(m_Cursor);
        }
        if (digits < sm_FewestDigits || next != ' ')
        {
            refuse();
        }
        store(' ');
    }

    void takeOffset()
    {
        if (lmTakeIf(m_Cursor, '-'))
        {
            store('-');
        }
        char digits[10];
        const char* const end = std::to_chars(digits, digits + sizeof digits, lmTakeUnsigned(m_Cursor)).ptr;
        for (const char* digit = digits; digit != end; ++digit)
        {
            store(*digit);
        }
        if (m_Length > sm_LongestText)
        {
            refuse();
        }
    }

    /// Takes what stands behind an offset: a blank, a unit with a blank, or the line end.
    bool isElementNext()
    {
        int next = lmTakeByte(m_Cursor);
        if (next == '\r')
        {
            lmTakeByte(m_Cursor);
            return false;
        }
        if (next == '\n')
        {
            return false;
        }
        if (next == 'd' || next == 'h' || next == 'm' || next == 's')
        {
            store(next);
            next = lmTakeByte(m_Cursor);
            if (next != ' ')
            {
                refuse();
            }
        }
        else if (next != ' ')
        {
            LmException::sThrow("LmSdpTimeField::Invalid Time Zone Field 1");
        }
        store(' ');
        return true;
    }

    Cursor& m_Cursor;
    std::array<char, 512> m_Text;
    std::size_t m_Length = 0;
};

/// Appends the pairs of words of the text, and what is left behind the last pair.
void appendElements(LmSdpWordList& elements, std::string_view text)
{
    std::size_t start = 0;
    bool pairEnds = false;
    for (std::size_t blank = text.find(' '); blank != std::string_view::npos; blank = text.find(' ', blank + 1))
    {
        if (pairEnds)
        {
            elements.emplace_back(text.substr(start, blank - start));
            start = blank + 1;
        }
        pairEnds = !pairEnds;
    }
    elements.emplace_back(text.substr(start, text.find("\r\n", start) - start));
}

} // namespace

LmSdpTimeZoneField::LmSdpTimeZoneField() : LmSdpField("z") {}

LmSdpTimeZoneField::LmSdpTimeZoneField(const char* text) : LmSdpTimeZoneField()
{
    lmParseText(*this, text);
}

LmSdpTimeZoneField::~LmSdpTimeZoneField() = default;

LmString LmSdpTimeZoneField::getTimeZoneElements()
{
    return lmJoinWords(m_TimeZoneElements);
}

void LmSdpTimeZoneField::setTimeZoneElements(const char* text)
{
    if (text != nullptr)
    {
        LmSdpWordList elements;
        appendElements(elements, text);
        m_TimeZoneElements = std::move(elements);
    }
    setChangedFlag();
}

void LmSdpTimeZoneField::addTimeZoneElements(const char* text)
{
    appendElements(m_TimeZoneElements, lmViewOf(text));
}

void LmSdpTimeZoneField::parse(LmInputStream& in)
{
    lmRefuseEmptyLine(in, "LmSdpTimeZoneField::parse() Incomplete Time Zone Field");
    LmSdpWordList elements;
    lmWithCursor(in, [&elements](auto& cursor) { appendElements(elements, Reader(cursor).read()); });
    m_TimeZoneElements = std::move(elements);
    setChangedFlag();
}

void LmSdpTimeZoneField::serialize(LmOutputStream& out) const
{
    if (m_TimeZoneElements.empty())
    {
        LmException::sThrow("No time zone elements in LmSdpTimeZoneField::serialize()");
    }
    lmWriteLine(out, *this, lmJoinWords(m_TimeZoneElements));
}

LmSdpField* LmSdpTimeZoneField::sConstruct()
{
    return new LmSdpTimeZoneField;
}
