#include "sdp/crypto/LmSdpCryptoAttribute.h"

#include "LmLibs/LmUtil/LmException.h"
#include "LmLibs/LmUtil/LmStreamCursor.h"
#include "core/LogStatement.h"
#include "core/TraceScope.h"
#include "sdp/frame/LmSdpParseError.h"
#include "sdp/frame/LmSdpText.h"

#include <strings.h>

#include <charconv>
#include <memory>
#include <optional>
#include <string>
#include <utility>

using Quorvex::TraceScope;

namespace
{

Quorvex::FileLogger s_Logger("harnwick.lm.LmSdpCryptoAttribute");

constexpr unsigned int s_Powers = 64;
constexpr unsigned int s_WholeText = 0xFFFFFFFF; ///< may be read in front of a `reset`
constexpr std::size_t s_LongestToken = 255;
constexpr std::size_t s_UsualLength = 160; ///< of a value with one key

constexpr LmFewBytes s_BehindMethod = {':', ':', ':', ':', ':'};
constexpr LmFewBytes s_BehindKey = {';', '|', ' ', '\r', '\n'};
constexpr LmFewBytes s_BehindName = {'=', ' ', '\r', '\n', '\n'};
constexpr LmFewBytes s_BehindValue = {' ', '\r', '\n', '\n', '\n'};

constexpr const char* s_ParameterNames[] = {
    "KDR", "UNENCRYPTED_SRTP", "UNENCRYPTED_SRTCP", "UNAUTHENTICATED_SRTP", "FEC_ORDER", "FEC_KEY", "WSH"};

/// Takes the bytes in front of the first stop, white space in front of them passed over. Nothing at the end of input,
/// and for a token that is too long. The stops are known to the compiler, which compares no byte with one of them
/// twice.
template <const LmFewBytes& stops, typename Cursor>
std::optional<std::string_view> takeToken(Cursor& cursor)
{
    cursor.skipWhile(lmIsSpace);
    const bool isOver = cursor.peek() == -1;
    const std::string_view token = cursor.takeUntilOneOf(stops);
    if (isOver || token.size() > s_LongestToken)
    {
        return std::nullopt;
    }
    return lmUpToNul(token);
}

/// What the log may hold of a suite's text: where a peer left the suite out, a key stands in its place behind a colon,
/// which no suite name has.
std::string_view loggable(std::string_view suite)
{
    return suite.substr(0, suite.find(':'));
}

/// Whether this is the one key method there is, in upper or lower case. A letter and no other byte becomes a small
/// letter with the bit of those set.
bool isInline(std::string_view method)
{
    constexpr char name[] = {'i', 'n', 'l', 'i', 'n', 'e'};
    constexpr char smallBit = 0x20;
    if (method.size() != sizeof name)
    {
        return false;
    }
    int difference = 0;
    for (std::size_t i = 0; i < sizeof name; ++i)
    {
        difference |= (method[i] | smallBit) ^ name[i];
    }
    return difference == 0;
}

template <typename Number>
void appendNumber(std::string& text, Number number)
{
    char digits[20]; // the longest has 20, as a 64-bit one without a sign
    text.append(digits, std::to_chars(digits, digits + sizeof digits, number).ptr);
}

/// A 32-bit number as "%d" writes it: one that is not set as -1.
void appendSigned(std::string& text, unsigned int number)
{
    appendNumber(text, static_cast<int>(number));
}

void appendKey(std::string& text, const LmCryptoKey& key)
{
    text.append("inline:").append(key.m_Key.view());
    if (key.m_Lifetime != LmCryptoKey::sm_NoLifetime)
    {
        text += '|';
        const unsigned int power = key.getLifetimeAsPowerOfTwo();
        if (power != 0)
        {
            text += "2^";
            appendNumber(text, power);
        }
        else
        {
            appendNumber(text, key.m_Lifetime);
        }
    }
    if (key.m_MkiValue != LmCryptoKey::sm_NotSet)
    {
        text += '|';
        appendSigned(text, key.m_MkiValue);
        if (key.m_MkiLength != LmCryptoKey::sm_NotSet)
        {
            text += ':';
            appendSigned(text, key.m_MkiLength);
        }
    }
}

void appendParameter(std::string& text, const LmSecurityDescription& parameter)
{
    text += "\r\n";
    if (!parameter.m_Name.isBlank())
    {
        text.append(parameter.m_Name.view());
        if (!parameter.m_Value.isBlank())
        {
            text.append("=").append(parameter.m_Value.view());
        }
    }
}

} // namespace

LmCryptoKey::LmCryptoKey(const char* key, std::size_t lifetime, unsigned int mkiValue, unsigned int mkiLength)
    : m_Key(key), m_Lifetime(lifetime), m_MkiValue(mkiValue), m_MkiLength(mkiLength)
{
}

void LmCryptoKey::setLifetimeAsPowerOfTwo(unsigned int power)
{
    if (power < s_Powers)
    {
        m_Lifetime = std::uint64_t(1) << power;
    }
}

unsigned int LmCryptoKey::getLifetimeAsPowerOfTwo() const
{
    const bool isPower = m_Lifetime != 0 && (m_Lifetime & (m_Lifetime - 1)) == 0;
    return isPower ? static_cast<unsigned int>(__builtin_ctzll(m_Lifetime)) : 0;
}

LmSecurityDescription::LmSecurityDescription() = default;

LmSecurityDescription::LmSecurityDescription(const char* name, const char* value)
    : m_Name(name), m_Type(KDR), m_Value(value)
{
    const TraceScope trace(s_Logger, "LmSdpCryptoAttribute::LmSecurityDescription::LmSecurityDescription");
    while (m_Type < UNKNOWN && ::strcasecmp(m_Name.c_str(), s_ParameterNames[m_Type]) != 0)
    {
        m_Type = static_cast<ESecurityDescription>(m_Type + 1);
    }
}

LmSecurityDescription::LmSecurityDescription(ESecurityDescription type, const char* value)
    : m_Type(type), m_Value(value)
{
    const TraceScope trace(s_Logger, "LmSdpCryptoAttribute::LmSecurityDescription::LmSecurityDescription");
    if (static_cast<unsigned int>(type) < UNKNOWN)
    {
        m_Name = LmString(s_ParameterNames[type]);
    }
}

LmSdpCryptoAttribute::LmSdpCryptoAttribute() = default;

LmSdpCryptoAttribute::LmSdpCryptoAttribute(const char* text) : LmSdpAttribute(text)
{
    const TraceScope trace(s_Logger, "LmSdpCryptoAttribute::LmSdpCryptoAttribute");
    lmParseText(*this, text);
}

LmSdpCryptoAttribute::LmSdpCryptoAttribute(std::string_view text) : LmSdpAttribute(text)
{
    const TraceScope trace(s_Logger, "LmSdpCryptoAttribute::LmSdpCryptoAttribute");
    LmTextCursor cursor(text);
    read(cursor);
}

LmSdpCryptoAttribute::~LmSdpCryptoAttribute()
{
    const TraceScope trace(s_Logger, "LmSdpCryptoAttribute::~LmSdpCryptoAttribute");
}

LmObject* LmSdpCryptoAttribute::clone() const
{
    auto pClone = std::make_unique<LmSdpCryptoAttribute>();
    pClone->m_Tag = m_Tag;
    pClone->m_CryptoSuite = m_CryptoSuite;
    pClone->m_ExtendedCryptoSuite = m_ExtendedCryptoSuite;
    pClone->m_Keys = m_Keys;
    pClone->m_SecurityDescriptions = m_SecurityDescriptions;
    pClone->setBuiltValue(builtValue());
    return pClone.release();
}

void LmSdpCryptoAttribute::parse(LmInputStream& in)
{
    lmWithCursor(
        in, [this](auto& cursor) { read(cursor); }, s_WholeText);
}

template <typename Cursor>
void LmSdpCryptoAttribute::read(Cursor& cursor)
{
    const TraceScope trace(s_Logger, "LmSdpCryptoAttribute::parse");
    setTag(lmTakeUnsigned(cursor));
    readSuite(cursor);
    readKeys(cursor);
    readSessionParameters(cursor);
}

template <typename Cursor>
void LmSdpCryptoAttribute::readSuite(Cursor& cursor)
{
    if (const auto suite = takeToken<s_BehindValue>(cursor))
    {
        storeSuite(*suite);
    }
    if (m_CryptoSuite == CryptoType::EXTENDED && m_ExtendedCryptoSuite.isBlank())
    {
        LmSdpParseError::sThrow("LmSdpCryptoAttribute::parse-Failed to parse crypto suite.");
    }
}

template <typename Cursor>
void LmSdpCryptoAttribute::readKeys(Cursor& cursor)
{
    do
    {
        const auto method = takeToken<s_BehindMethod>(cursor);
        if (!method)
        {
            LmSdpParseError::sThrow("No : in key-params LmSdpCryptoAttribute::parse()");
        }
        if (isInline(*method))
        {
            lmTakeByte(cursor);
            readKey(cursor);
        }
    } while (lmTakeIf(cursor, ';'));
    if (m_Keys.empty())
    {
        LmSdpParseError::sThrow("LmSdpCryptoAttribute::parse-Failed to parse key/s.");
    }
}

template <typename Cursor>
void LmSdpCryptoAttribute::readKey(Cursor& cursor)
{
    const TraceScope trace(s_Logger, "LmSdpCryptoAttribute::parseKey");
    LmCryptoKey key;
    if (const auto keySalt = takeToken<s_BehindKey>(cursor))
    {
        key.m_Key = LmString(*keySalt);
    }
    if (key.m_Key.isBlank())
    {
        LmSdpParseError::sThrow("LmSdpCryptoAttribute::parseKey-Failed to parse key-salt.");
    }

    bool wantMki = true;
    if (lmTakeIf(cursor, '|'))
    {
        if (cursor.takePair('2', '^'))
        {
            key.setLifetimeAsPowerOfTwo(lmTakeUnsigned(cursor));
        }
        else
        {
            const unsigned int number = lmTakeUnsigned(cursor);
            if (lmTakeIf(cursor, ':'))
            {
                key.m_MkiValue = number;
                key.m_MkiLength = lmTakeUnsigned(cursor);
                wantMki = false;
            }
            else
            {
                key.m_Lifetime = number;
            }
        }
    }
    if (key.m_Lifetime == LmCryptoKey::sm_NoLifetime)
    {
        key.setLifetimeAsPowerOfTwo(CryptoType::getKeyLifetimeIndex(m_CryptoSuite));
    }
    if (wantMki)
    {
        readKeyMki(key, cursor);
    }
    m_Keys.push_back(std::move(key));
    setChangedFlag(true);
}

template <typename Cursor>
void LmSdpCryptoAttribute::readKeyMki(LmCryptoKey& key, Cursor& cursor)
{
    const TraceScope trace(s_Logger, "LmSdpCryptoAttribute::parseKeyMki");
    if (cursor.isAtEnd())
    {
        return;
    }
    const int next = cursor.peek();
    if (next == ' ' || next == '\r' || next == '\n' || next == ';')
    {
        return;
    }
    cursor.advance();
    if (next != '|')
    {
        LmSdpParseError::sThrow("LmSdpCryptoAttribute::parseKeyMki-Invalid character while parsing MKI.");
    }
    key.m_MkiValue = lmTakeUnsigned(cursor);
    if (key.m_MkiValue == LmCryptoKey::sm_NotSet)
    {
        LmSdpParseError::sThrow("Parse error in srtp-key-info mki-value");
    }
    if (lmTakeByte(cursor) != ':')
    {
        LmSdpParseError::sThrow("No : in srtp-key-info mki");
    }
    key.m_MkiLength = lmTakeUnsigned(cursor);
    if (key.m_MkiLength == LmCryptoKey::sm_NotSet)
    {
        LmSdpParseError::sThrow("Parse error in srtp-key-info mki-length");
    }
}

template <typename Cursor>
void LmSdpCryptoAttribute::readSessionParameters(Cursor& cursor)
{
    while (!cursor.isAtEnd())
    {
        const auto name = takeToken<s_BehindName>(cursor);
        if (!name)
        {
            if (!cursor.isAtEnd() && cursor.peek() == -1)
            {
                return; // a stream that promises bytes and gives none
            }
            continue;
        }
        if (name->empty())
        {
            // A stray "=": taken, so that the loop moves on.
            lmTakeByte(cursor);
            continue;
        }
        LmSecurityDescription parameter(LmString(*name).c_str(), "");
        if (lmTakeByte(cursor) == '=')
        {
            if (const auto value = takeToken<s_BehindValue>(cursor))
            {
                parameter.m_Value = LmString(*value);
            }
        }
        addSecurityDescription(parameter);
    }
}

void LmSdpCryptoAttribute::serialize(LmOutputStream& out) const
{
    const TraceScope trace(s_Logger, "LmSdpCryptoAttribute::serialize");
    if (!isComplete())
    {
        LmException::sThrow("LmSdpCryptoAttribute::serialize()Incomplete crypto attribute.");
    }
    out << getValue();
}

void LmSdpCryptoAttribute::setTag(unsigned int tag)
{
    m_Tag = tag;
    setChangedFlag(true);
}

const char* LmSdpCryptoAttribute::getCryptoSuiteString() const
{
    const TraceScope trace(s_Logger, "LmSdpCryptoAttribute::getCryptoSuiteString");
    return m_CryptoSuite >= CryptoType::EXTENDED ? m_ExtendedCryptoSuite.c_str()
                                                 : CryptoType::getCryptoTypeName(m_CryptoSuite);
}

void LmSdpCryptoAttribute::setCryptoSuite(CryptoType::eCryptoType suite)
{
    m_CryptoSuite = suite;
    setChangedFlag(true);
}

void LmSdpCryptoAttribute::setCryptoSuite(const char* name)
{
    storeSuite(lmViewOf(name));
}

void LmSdpCryptoAttribute::storeSuite(std::string_view name)
{
    const TraceScope trace(s_Logger, "LmSdpCryptoAttribute::setCryptoSuite");
    const CryptoType::eCryptoType suite = CryptoType::parseCryptoTypeStr(name);
    if (suite == CryptoType::EXTENDED)
    {
        const LmString text(name);
        QUORVEX_LOG(s_Logger, Quorvex::eDebug, "LmSdpCryptoAttribute",
                    "Parsed extended crypto suite " << loggable(text.view()));
        m_ExtendedCryptoSuite = text;
    }
    setCryptoSuite(suite);
}

bool LmSdpCryptoAttribute::getEncodedMasterKeySalt(LmString& out, std::size_t index) const
{
    const TraceScope trace(s_Logger, "LmSdpCryptoAttribute::getEncodedMasterKeySalt");
    const LmCryptoKey* const pKey = findKey(index);
    if (pKey != nullptr)
    {
        out = pKey->m_Key;
    }
    return pKey != nullptr;
}

bool LmSdpCryptoAttribute::getKeyLifetime(std::size_t& out, std::size_t index) const
{
    const TraceScope trace(s_Logger, "LmSdpCryptoAttribute::getKeyLifetime");
    const LmCryptoKey* const pKey = findKey(index);
    if (pKey != nullptr)
    {
        out = pKey->m_Lifetime;
    }
    return pKey != nullptr;
}

bool LmSdpCryptoAttribute::getKeyLifetimeAsPowerofTwo(unsigned int& out, std::size_t index) const
{
    const TraceScope trace(s_Logger, "LmSdpCryptoAttribute::getKeyLifetimeAsPowerofTwo");
    const LmCryptoKey* const pKey = findKey(index);
    if (pKey != nullptr)
    {
        out = pKey->getLifetimeAsPowerOfTwo();
    }
    return pKey != nullptr;
}

const LmCryptoKey* LmSdpCryptoAttribute::findKey(std::size_t index) const
{
    if (index >= m_Keys.size())
    {
        QUORVEX_LOG(s_Logger, Quorvex::eError, "LmSdpCryptoAttribute", "Can not find key " << index);
        return nullptr;
    }
    return &m_Keys[index];
}

void LmSdpCryptoAttribute::addKey(const LmCryptoKey& key)
{
    m_Keys.push_back(key);
    setChangedFlag(true);
}

void LmSdpCryptoAttribute::addKey(const LmString& key, unsigned int lifetimePower)
{
    const TraceScope trace(s_Logger, "LmSdpCryptoAttribute::addKey");
    LmCryptoKey added;
    added.m_Key = key;
    added.setLifetimeAsPowerOfTwo(lifetimePower == 0 ? CryptoType::getKeyLifetimeIndex(m_CryptoSuite) : lifetimePower);
    addKey(added);
}

void LmSdpCryptoAttribute::addSecurityDescription(const LmSecurityDescription& description)
{
    m_SecurityDescriptions.push_back(description);
    setChangedFlag(true);
}

bool LmSdpCryptoAttribute::isComplete() const
{
    const bool hasSuite = m_CryptoSuite != CryptoType::EXTENDED || !m_ExtendedCryptoSuite.isBlank();
    return m_Tag != LmCryptoKey::sm_NotSet && hasSuite && !m_Keys.empty();
}

void LmSdpCryptoAttribute::buildValue() const
{
    const TraceScope trace(s_Logger, "LmSdpCryptoAttribute::buildValue");
    if (!isComplete())
    {
        return;
    }
    std::string text;
    text.reserve(s_UsualLength);
    appendSigned(text, m_Tag);
    text.append(" ").append(getCryptoSuiteString());
    text += m_Keys.size() == 1 ? " " : "\r\n";
    for (const LmCryptoKey& key : m_Keys)
    {
        if (key.m_Key.isBlank())
        {
            continue;
        }
        appendKey(text, key);
        if (&key != &m_Keys.back())
        {
            text += ";\r\n";
        }
    }
    for (const LmSecurityDescription& parameter : m_SecurityDescriptions)
    {
        appendParameter(text, parameter);
    }
    setBuiltValue(LmString(std::string_view(text)));
    clearChangedFlag();
}
