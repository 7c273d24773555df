#include "Members.h"

#include "Reading.h"

#include <sstream>

namespace lmsdp
{
namespace
{

/// Collects the members of one line.
class Collector
{
public:
    explicit Collector(Keys keys) : m_Keys(keys) {}

    bool collect(LmSdpField& field)
    {
        return take<LmSdpProtocolVersionField>(field) || take<LmSdpOriginField>(field) ||
               take<LmSdpSessionNameField>(field) || take<LmSdpInformationField>(field) || take<LmSdpUriField>(field) ||
               take<LmSdpEmailField>(field) || take<LmSdpPhoneField>(field) || take<LmSdpConnectionField>(field) ||
               take<LmSdpBandwidthField>(field) || take<LmSdpTimeField>(field) || take<LmSdpRepeatField>(field) ||
               take<LmSdpTimeZoneField>(field) || take<LmSdpKeyField>(field) || take<LmSdpMediaField>(field) ||
               take<LmSdpAttributeField>(field);
    }

    Json result() && { return std::move(m_Result); }

private:
    template <typename Class>
    bool take(LmSdpField& field)
    {
        auto* const typed = dynamic_cast<Class*>(&field);
        if (typed != nullptr)
        {
            add(*typed);
        }
        return typed != nullptr;
    }

    void set(const char* name, const char* text) { m_Result[name] = text == nullptr ? "" : text; }
    void set(const char* name, const LmString& text) { m_Result[name] = asString(text); }
    void set(const char* name, unsigned int number) { m_Result[name] = number; }

    void setIfAny(const char* name, const char* text)
    {
        if (text != nullptr && *text != '\0')
        {
            set(name, text);
        }
    }

    void setIfAny(const char* name, unsigned int number)
    {
        if (number != 0)
        {
            set(name, number);
        }
    }

    /// The words of a text as a list.
    void setWords(const char* name, const LmString& text)
    {
        Json& words = m_Result[name] = Json::array();
        std::istringstream in(asString(text));
        for (std::string word; in >> word;)
        {
            words.push_back(word);
        }
    }

    void add(LmSdpProtocolVersionField& field) { set("version", field.getProtocolVersion()); }
    void add(LmSdpSessionNameField& field) { set("name", field.getSessionName()); }
    void add(LmSdpInformationField& field) { set("information", field.getInformation()); }
    void add(LmSdpUriField& field) { set("uri", field.getUri()); }

    void add(LmSdpOriginField& field)
    {
        set("username", field.getUsername());
        set("sessionId", field.getSessionId());
        set("sessionVersion", field.getSessionVersion());
        set("networkType", field.getNetworkType());
        set("addressType", field.getAddressType());
        set("address", field.getAddress());
    }

    void add(LmSdpEmailField& field)
    {
        set("address", field.getEmailId());
        setIfAny("comment", field.getComment());
    }

    void add(LmSdpPhoneField& field)
    {
        set("number", field.getPhoneNumber());
        setIfAny("comment", field.getComment());
    }

    void add(LmSdpConnectionField& field)
    {
        set("networkType", field.getNetworkType());
        set("addressType", field.getAddressType());
        set("address", field.getAddress());
    }

    void add(LmSdpBandwidthField& field)
    {
        set("type", field.getType());
        set("amount", field.getAmount());
    }

    void add(LmSdpTimeField& field)
    {
        set("start", field.getStartTime());
        set("stop", field.getStopTime());
    }

    void add(LmSdpRepeatField& field)
    {
        set("interval", field.getRepeatInterval());
        set("duration", field.getActiveDuration());
        setWords("offsets", field.getOffsetList());
    }

    void add(LmSdpTimeZoneField& field) { setWords("adjustments", field.getTimeZoneElements()); }

    void add(LmSdpKeyField& field)
    {
        set("method", field.getMethod());
        if (*field.getKey() != '\0')
        {
            m_Result["key"] = keyText(field.getKey(), m_Keys);
        }
    }

    void add(LmSdpMediaField& field)
    {
        set("media", field.getMediaType());
        set("port", field.getPort());
        setIfAny("numberOfPorts", field.getNumberOfPorts());
        set("transport", field.getTransport());
        setWords("formats", field.getMediaFormats());
    }

    void add(LmSdpAttributeField& field)
    {
        set("name", field.getName());
        LmSdpAttribute* const value = field.getAttribute();
        if (auto* const rtp = dynamic_cast<LmSdpRtpAttribute*>(value))
        {
            addRtp(*rtp);
        }
        else if (const auto* const crypto = dynamic_cast<const LmSdpCryptoAttribute*>(value))
        {
            addCrypto(*crypto);
        }
        else if (value != nullptr)
        {
            constexpr std::string_view line = "a=";
            const std::string head = std::string(line) + field.getName() + ':';
            m_Result["value"] = lineText(head + asString(value->getValue()), m_Keys).substr(head.size());
        }
    }

    void addRtp(LmSdpRtpAttribute& rtp)
    {
        set("payloadType", rtp.getPayloadType());
        set("encodingName", rtp.getEncodingName());
        set("clockRate", rtp.getClockRate());
        setIfAny("channels", rtp.getNumberOfChannels());
        setIfAny("encodingParameters", rtp.getEncodingParameters());
    }

    void addCrypto(const LmSdpCryptoAttribute& crypto)
    {
        if (crypto.getTag() != LmCryptoKey::sm_NotSet)
        {
            set("tag", crypto.getTag());
        }
        set("suite", crypto.getCryptoSuiteString());
        Json& list = m_Result["keys"] = Json::array();
        for (const LmCryptoKey& key : crypto.getKeyVector())
        {
            list.push_back(keyOf(key));
        }
        Json& parameters = m_Result["sessionParameters"] = Json::array();
        for (const LmSecurityDescription& parameter : crypto.getSecurityDescriptionVector())
        {
            parameters.push_back(parameterOf(parameter));
        }
    }

    Json keyOf(const LmCryptoKey& key) const
    {
        Json result{{"key", keyText(key.m_Key.view(), m_Keys)}};
        if (key.m_Lifetime != LmCryptoKey::sm_NoLifetime)
        {
            result["lifetime"] = key.m_Lifetime;
        }
        if (key.m_MkiValue != LmCryptoKey::sm_NotSet)
        {
            result["mki"] = key.m_MkiValue;
        }
        if (key.m_MkiLength != LmCryptoKey::sm_NotSet)
        {
            result["mkiLength"] = key.m_MkiLength;
        }
        return result;
    }

    static Json parameterOf(const LmSecurityDescription& parameter)
    {
        Json result{{"name", asString(parameter.m_Name)}};
        if (!parameter.m_Value.isBlank())
        {
            result["value"] = asString(parameter.m_Value);
        }
        return result;
    }

    const Keys m_Keys;
    Json m_Result = Json::object();
};

} // namespace

Json membersOf(LmSdpField& field, Keys keys)
{
    Collector collector(keys);
    collector.collect(field);
    return std::move(collector).result();
}

} // namespace lmsdp
