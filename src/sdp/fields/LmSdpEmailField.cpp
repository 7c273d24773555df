#include "sdp/fields/LmSdpEmailField.h"

#include "LmLibs/LmUtil/LmCharacters.h"
#include "LmLibs/LmUtil/LmLine.h"
#include "sdp/frame/LmSdpLine.h"

namespace
{

constexpr const char* s_Incomplete = "LmSdpEmailField::serialize() Incomplete Email Field";
constexpr std::size_t s_None = std::string_view::npos;

/// What stands between the "<" at `open` and the ">"; empty where there is no ">".
std::string_view inBrackets(std::string_view line, std::size_t open)
{
    const std::size_t close = line.find('>', open);
    return close == s_None ? std::string_view() : line.substr(open + 1, close - (open + 1));
}

} // namespace

LmSdpEmailField::LmSdpEmailField() : LmSdpField("e") {}

LmSdpEmailField::LmSdpEmailField(const char* emailId, const char* comment)
    : LmSdpField("e"), m_Contact{emailId, comment}
{
    lmRefuseBlank<LmSdpParseError>(m_Contact.m_Address, "Attempting to create Email Field with blank E-mail ID");
}

LmSdpEmailField::LmSdpEmailField(const char* text) : LmSdpEmailField()
{
    lmParseText(*this, text);
}

LmSdpEmailField::~LmSdpEmailField() = default;

void LmSdpEmailField::setEmailId(const char* text)
{
    change(m_Contact.m_Address, text);
}

void LmSdpEmailField::setComment(const char* text)
{
    change(m_Contact.m_Comment, text);
}

void LmSdpEmailField::parse(LmInputStream& in)
{
    const LmLine wholeLine(in, s_Incomplete);
    const std::string_view line = lmTrimmed(wholeLine.view());
    std::string_view address = line;
    m_Contact.m_Format = LmSdpContact::eAddressOnly;
    if (const std::size_t open = line.find('('); open != s_None)
    {
        m_Contact.m_Format = LmSdpContact::eAddressThenComment;
        m_Contact.m_Comment = LmSdpContact::sCommentInParentheses(line, open);
        setChangedFlag();
        address = line.substr(0, open);
    }
    else if (const std::size_t bracket = line.find('<'); bracket != s_None)
    {
        m_Contact.m_Format = LmSdpContact::eCommentThenAddress;
        m_Contact.m_Comment = LmSdpContact::sCommentInFront(line, bracket).c_str();
        setChangedFlag();
        address = inBrackets(line, bracket);
    }
    if (address.empty())
    {
        LmException::sThrow("Parsing Error(blank EmailId) in LmSdpEmailField::parse()");
    }
    m_Contact.m_Address = LmString(address);
    setChangedFlag();
}

void LmSdpEmailField::serialize(LmOutputStream& out) const
{
    lmRefuseBlank<LmException>(m_Contact.m_Address, s_Incomplete);
    m_Contact.writeLine(out, *this, "Unknown error in LmSdpEmailField::serialize()");
}

LmSdpField* LmSdpEmailField::sConstruct()
{
    return new LmSdpEmailField;
}
