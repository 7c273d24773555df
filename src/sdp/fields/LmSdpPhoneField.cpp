#include "sdp/fields/LmSdpPhoneField.h"

#include "LmLibs/LmUtil/LmCharacters.h"
#include "LmLibs/LmUtil/LmLine.h"
#include "sdp/frame/LmSdpLine.h"

namespace
{

constexpr std::size_t s_None = std::string_view::npos;

[[noreturn]] void refuseNumber()
{
    LmSdpParseError::sThrow("Invalid character in Phone Number - LmSdpPhoneField::parse()");
}

/// Checks a number and what stands behind it on the line. A number of one character passes.
void checkNumber(std::string_view number, char behind)
{
    for (std::size_t place = 1; place < number.size(); ++place)
    {
        const char character = number[place];
        const char next = place + 1 < number.size() ? number[place + 1] : behind;
        const bool separates = character == ' ' || character == '-';
        if (number.front() != '+' || !(separates ? lmIsDigit(next) : lmIsDigit(character)))
        {
            refuseNumber();
        }
    }
}

} // namespace

LmSdpPhoneField::LmSdpPhoneField() : LmSdpField("p") {}

LmSdpPhoneField::LmSdpPhoneField(const char* phoneNumber, const char* comment)
    : LmSdpField("p"), m_Contact{phoneNumber, comment}
{
    lmRefuseBlank<LmSdpParseError>(m_Contact.m_Address, "Attempting to create Phone Field with blank phone number");
}

LmSdpPhoneField::LmSdpPhoneField(const char* text) : LmSdpPhoneField()
{
    lmParseText(*this, text);
}

LmSdpPhoneField::~LmSdpPhoneField() = default;

void LmSdpPhoneField::setPhoneNumber(const char* text)
{
    change(m_Contact.m_Address, text);
}

void LmSdpPhoneField::setComment(const char* text)
{
    change(m_Contact.m_Comment, text);
}

void LmSdpPhoneField::parse(LmInputStream& in)
{
    const LmLine wholeLine(in);
    const std::string_view line = wholeLine.view();
    std::string_view number = line;
    if (const std::size_t open = line.find('('); open != s_None)
    {
        m_Contact.m_Format = LmSdpContact::eAddressThenComment;
        if (open == 0)
        {
            refuseNumber();
        }
        number = line.substr(0, open - 1);
        checkNumber(number, line[open - 1]);
        m_Contact.m_Comment = LmSdpContact::sCommentInParentheses(line, open);
        setChangedFlag();
    }
    else if (const std::size_t bracket = line.find('<'); bracket != s_None)
    {
        m_Contact.m_Format = LmSdpContact::eCommentThenAddress;
        const std::size_t close = line.find('>', bracket);
        if (close == s_None)
        {
            refuseNumber();
        }
        number = line.substr(bracket + 1, close - (bracket + 1));
        checkNumber(number, '>');
        m_Contact.m_Comment = LmSdpContact::sCommentInFront(line, bracket);
        setChangedFlag();
    }
    else
    {
        checkNumber(line, '\0');
        m_Contact.m_Format = LmSdpContact::eAddressOnly;
    }
    if (number.empty())
    {
        LmSdpParseError::sThrow("Parsing Error(blank PhoneNumber) in LmSdpPhoneField::parse()");
    }
    m_Contact.m_Address = LmString(number);
    setChangedFlag();
}

void LmSdpPhoneField::serialize(LmOutputStream& out) const
{
    lmRefuseBlank<LmException>(m_Contact.m_Address, "LmSdpPhoneField::serialize() Incomplete Phone Field");
    m_Contact.writeLine(out, *this, "Unknown error in LmSdpPhoneField::serialize()");
}

LmSdpField* LmSdpPhoneField::sConstruct()
{
    return new LmSdpPhoneField;
}
