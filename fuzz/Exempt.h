#pragma once

#include "LmSdpObject.h"

#include <algorithm>
#include <string_view>
#include <vector>

/// The lines whose written form reads differently, or not at all. Everything else that is read and written reads again
/// and writes the same text. Each form stands here with its reason.
namespace Exempt
{

inline std::string_view textOf(const char* text)
{
    return text == nullptr ? std::string_view() : std::string_view(text);
}

inline bool isSignedBelowZero(unsigned int number)
{
    return static_cast<int>(number) < 0;
}

/// A blank in front of "(" is part of the address, and is written in front of another one.
inline bool isEmail(LmSdpField& field)
{
    return dynamic_cast<LmSdpEmailField*>(&field) != nullptr;
}

/// The character in front of "(" is dropped, also when it is the digit that a blank or a hyphen in front of it needs.
inline bool isPhoneThatLostADigit(LmSdpField& field)
{
    const auto* const pPhone = dynamic_cast<LmSdpPhoneField*>(&field);
    const std::string_view number = pPhone == nullptr ? std::string_view() : textOf(pPhone->getPhoneNumber());
    return number.size() > 1 && (number.back() == ' ' || number.back() == '-');
}

/// `k=clear:` is written as `k=clear`, which is no form of the line.
inline bool isKeyWithoutKey(LmSdpField& field)
{
    auto* const pKey = dynamic_cast<LmSdpKeyField*>(&field);
    return pKey != nullptr && textOf(pKey->getKey()).empty();
}

/// Without a name in front of the colon the type is the whole line, which then gets a colon and an amount.
inline bool isBandwidthWithoutName(LmSdpField& field)
{
    const auto* const pBandwidth = dynamic_cast<LmSdpBandwidthField*>(&field);
    return pBandwidth != nullptr && textOf(pBandwidth->getType()).substr(0, 1) == ":";
}

/// A value of no length in front of a blank takes the rest of the line along.
inline bool isConnectionWithEmptyValue(LmSdpField& field)
{
    const auto* const pConnection = dynamic_cast<LmSdpConnectionField*>(&field);
    return pConnection != nullptr && (textOf(pConnection->getNetworkType()).find(' ') != std::string_view::npos ||
                                      textOf(pConnection->getAddressType()).find(' ') != std::string_view::npos);
}

/// A port beyond 32 bits may become 0, which has no number of ports.
inline bool isMediaWithWrappedPort(LmSdpField& field)
{
    const auto* const pMedia = dynamic_cast<LmSdpMediaField*>(&field);
    return pMedia != nullptr && pMedia->getNumberOfPorts() != 0 && pMedia->getPort() == 0;
}

/// Numbers above 31 bits are written with a sign, and an MKI without its length is not read behind a lifetime.
inline bool hasSignedNumber(const LmSdpCryptoAttribute& crypto)
{
    const std::vector<LmCryptoKey>& keys = crypto.getKeyVector();
    return isSignedBelowZero(crypto.getTag()) || std::any_of(keys.begin(), keys.end(), [](const LmCryptoKey& key) {
               return key.m_MkiValue != LmCryptoKey::sm_NotSet &&
                      (isSignedBelowZero(key.m_MkiValue) || isSignedBelowZero(key.m_MkiLength));
           });
}

/// The value text of several keys, or with session parameters, has several lines.
inline bool isCryptoBeyondALine(const LmSdpCryptoAttribute& crypto)
{
    return crypto.getKeyVector().size() != 1 || !crypto.getSecurityDescriptionVector().empty() ||
           hasSignedNumber(crypto);
}

inline bool isCrypto(LmSdpField& field)
{
    auto* const pAttribute = dynamic_cast<LmSdpAttributeField*>(&field);
    const LmHandle<LmSdpCryptoAttribute> hCrypto = pAttribute == nullptr ? nullptr : pAttribute->getAttribute();
    return hCrypto && isCryptoBeyondALine(*hCrypto);
}

inline bool isLine(LmSdpField& field)
{
    return isEmail(field) || isPhoneThatLostADigit(field) || isKeyWithoutKey(field) || isBandwidthWithoutName(field) ||
           isConnectionWithEmptyValue(field) || isMediaWithWrappedPort(field) || isCrypto(field);
}

/// Whether a message or a description has such a line of its own.
template <typename Owner>
bool hasLine(Owner& owner)
{
    for (const char letter : std::string_view("vtmosiuepcbrzka"))
    {
        const char token[] = {letter, '\0'};
        for (LmHandle<LmSdpField> hField = owner.getField(token); hField; hField = hField->getNext())
        {
            if (isLine(*hField))
            {
                return true;
            }
        }
    }
    return false;
}

template <typename Description>
bool hasLineInChain(LmHandle<Description> hDescription)
{
    for (LmHandle<LmSdpDescription> hNext = hDescription; hNext; hNext = hNext->getNext())
    {
        if (hasLine(*hNext))
        {
            return true;
        }
    }
    return false;
}

/// A second version line is written in front of the time descriptions, where it keeps them from being read.
inline bool hasSecondVersion(LmSdpMsg& message)
{
    const LmHandle<LmSdpField> hVersion = message.getField("v");
    return hVersion && hVersion->getNext();
}

inline bool isMessage(LmSdpMsg& message)
{
    return hasLine(message) || hasSecondVersion(message) || hasLineInChain(message.getTimeDescription()) ||
           hasLineInChain(message.getMediaDescription());
}

} // namespace Exempt
