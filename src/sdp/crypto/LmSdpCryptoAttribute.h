#pragma once

#include "core/srtp/CryptoType.h"
#include "sdp/crypto/LmCryptoKey.h"
#include "sdp/crypto/LmSecurityDescription.h"
#include "sdp/media/LmSdpAttribute.h"

#include <cstddef>
#include <string_view>
#include <vector>

/// The value of an `a=crypto` line: suite, keys and session parameters of an SRTP stream (RFC 4568).
///
///     <tag> <crypto-suite> inline:<key||salt>[|<lifetime>][|<MKI>:<length>][;inline:...] [<session parameter> ...]
///     1 AES_CM_128_HMAC_SHA1_80 inline:PS1uQCVeeCFCanVmcjkpPywjNWhcYD0mXXtxaVBR|2^20|1:32
///
/// Keys are texts, neither decoded nor measured. The value text is built from the members when it is asked for:
/// several keys, and session parameters, make it a text of several lines. No log statement holds a key.
/// Not safe for use by two threads at once.
class LMSDP_API LmSdpCryptoAttribute : public LmSdpAttribute
{
public:
    /// Has the crypto suites.
    using CryptoType = Quorvex::Srtp::CryptoType;

    /// A blank value.
    LmSdpCryptoAttribute();

    /// Reads `text`, which stands behind `a=crypto:` and needs no line end. A null pointer makes a blank value.
    explicit LmSdpCryptoAttribute(const char* text);

    /// The same for a text that holds no NUL.
    explicit LmSdpCryptoAttribute(std::string_view text);
    ~LmSdpCryptoAttribute() override;

    /// A copy without an owner. Its text is the source's last built one, until a setter is used.
    LmObject* clone() const override;

    /// Reads a whole value, line breaks between its parameters included. Keys and session parameters are appended to
    /// those that are there; tag and suite are replaced. A tag that is no number reads as not set.
    /// @throws LmSdpParseError "LmSdpCryptoAttribute::parse-Failed to parse crypto suite." without a suite
    /// @throws LmSdpParseError "No : in key-params LmSdpCryptoAttribute::parse()" without a key method
    /// @throws LmSdpParseError "LmSdpCryptoAttribute::parse-Failed to parse key/s." for a method other than "inline"
    /// @throws LmSdpParseError "LmSdpCryptoAttribute::parseKey-Failed to parse key-salt." for an empty key, or one of
    ///         256 characters or more
    /// @throws LmSdpParseError "LmSdpCryptoAttribute::parseKeyMki-Invalid character while parsing MKI.", "Parse error
    ///         in srtp-key-info mki-value", "No : in srtp-key-info mki" or "Parse error in srtp-key-info mki-length"
    ///         for what stands behind the key and its lifetime
    /// After a failure the object has what was read in front of it.
    void parse(LmInputStream& in) override;

    /// Writes the value text.
    /// @throws LmException "LmSdpCryptoAttribute::serialize()Incomplete crypto attribute." without a tag, a suite or a
    ///         key; nothing has been written then.
    void serialize(LmOutputStream& out) const override;

    ///@{
    /// The number by which an answer names this line. All ones when not set.
    unsigned int getTag() const { return m_Tag; }
    void setTag(unsigned int tag);
    ///@}

    /// `EXTENDED` for a suite that is not known by name, and for none.
    CryptoType::eCryptoType getCryptoSuite() const { return m_CryptoSuite; }

    /// The suite's name; valid until the next change.
    const char* getCryptoSuiteString() const;

    /// Stores the suite; the text of a suite that is not known by name stays.
    void setCryptoSuite(CryptoType::eCryptoType suite);

    /// Stores the suite of that name; `EXTENDED` with its text when it is not known by name.
    void setCryptoSuite(const char* name);

    ///@{
    /// In the order of the text; valid until the next change.
    const std::vector<LmCryptoKey>& getKeyVector() const { return m_Keys; }
    const std::vector<LmSecurityDescription>& getSecurityDescriptionVector() const { return m_SecurityDescriptions; }
    ///@}

    ///@{
    /// What one key holds: its text, its lifetime in packets, and the exponent when that is a power of two of at
    /// least 2 (otherwise 0). For an index without a key they give false and leave `out` as it is.
    bool getEncodedMasterKeySalt(LmString& out, std::size_t index) const;
    bool getKeyLifetime(std::size_t& out, std::size_t index) const;
    bool getKeyLifetimeAsPowerofTwo(unsigned int& out, std::size_t index) const;
    ///@}

    /// Appends a copy.
    void addKey(const LmCryptoKey& key);

    /// Appends a key with a lifetime of 2 to the `lifetimePower` packets; 0 takes the suite's default, and 64 or above
    /// leaves it not set.
    void addKey(const LmString& key, unsigned int lifetimePower);

    /// Appends a copy.
    void addSecurityDescription(const LmSecurityDescription& description);

    QUORVEX_MEM_ACCOUNT_WITH_SIZE(LmSdpCryptoAttribute)

private:
    void buildValue() const override;
    bool isComplete() const;

    ///@{
    /// The steps of reading, over whatever there is to read from.
    template <typename Cursor>
    LMSDP_LOCAL void read(Cursor& cursor);
    template <typename Cursor>
    LMSDP_LOCAL void readSuite(Cursor& cursor);
    template <typename Cursor>
    LMSDP_LOCAL void readKeys(Cursor& cursor);
    template <typename Cursor>
    LMSDP_LOCAL void readKey(Cursor& cursor);
    template <typename Cursor>
    LMSDP_LOCAL void readKeyMki(LmCryptoKey& key, Cursor& cursor);
    template <typename Cursor>
    LMSDP_LOCAL void readSessionParameters(Cursor& cursor);
    ///@}

    void storeSuite(std::string_view name);
    const LmCryptoKey* findKey(std::size_t index) const;

    unsigned int m_Tag = LmCryptoKey::sm_NotSet;
    CryptoType::eCryptoType m_CryptoSuite = CryptoType::EXTENDED;
    LmString m_ExtendedCryptoSuite;
    std::vector<LmCryptoKey> m_Keys;
    std::vector<LmSecurityDescription> m_SecurityDescriptions;
};
