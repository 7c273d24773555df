#pragma once

#include "sdp/frame/LmSdpField.h"

/// The `c=` line: where the media go (RFC 4566, section 5.7). It stands at session level or under an `m=` line.
///
///     c=<nettype> <addrtype> <connection-address>
///     c=IN IP4 224.2.36.42/127
///
/// The three values are text. The address is a host name or an address of any kind, with the number of hops and of
/// addresses as they stand; only an IPv4 address may have blanks around it.
/// Not safe for use by two threads at once.
class LMSDP_API LmSdpConnectionField : public LmSdpField
{
public:
    /// Takes the three texts as they stand.
    /// @throws LmSdpParseError "Error creating Connection field with blank Network Type", "Error creating Connection
    ///         field with blank Address Type" or "Error creating Connection field with blank Address" for the first
    ///         that is a null pointer or empty
    LmSdpConnectionField(const char* networkType, const char* addressType, const char* address);

    /// Reads `text`, which stands behind `c=` and needs no line end. A null pointer makes a blank field.
    explicit LmSdpConnectionField(const char* text);
    ~LmSdpConnectionField() override;

    ///@{
    /// Each value as it stood in the text; valid until the next change.
    const char* getNetworkType() const { return m_NetworkType.c_str(); }
    const char* getAddressType() const { return m_AddressType.c_str(); }
    const char* getAddress() const { return m_Address.c_str(); }
    ///@}

    ///@{
    /// Each replaces one value, which is not looked into, and sets the changed flag.
    void setNetworkType(const char* text);
    void setAddressType(const char* text);
    void setAddress(const char* text);
    ///@}

    /// Cuts the line at its first two blanks and sets the changed flag.
    /// @throws LmException "LmSdpConnectionField::parse() Incomplete Connection Field" for an empty line; the field is
    ///         as it was then
    /// @throws LmException "LmSdpConnectionField::parse() Incomplete AddressType Field" for a line without a blank,
    ///         "LmSdpConnectionField::parse() Incomplete Address Field" for one with a single blank, and
    ///         "LmSdpConnectionField::parse() Invalid Address Field" for an address that is not IPv4 and has a blank
    ///         in it. What stood in front is set then, and one blank stands for the value that failed: the network
    ///         type, the address type or the address.
    void parse(LmInputStream& in) override;

    /// @throws LmException "LmSdpConnectionField::serialize() Incomplete Connection Field" when any value is blank;
    ///         nothing has been written then.
    void serialize(LmOutputStream& out) const override;

    /// The class of the letter "c".
    static LmSdpField* sConstruct();

private:
    LmSdpConnectionField();

    [[noreturn]] void fail(LmString& member, const char* message);

    LmString m_NetworkType;
    LmString m_AddressType;
    LmString m_Address;
};
