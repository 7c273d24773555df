#pragma once

#include "sdp/frame/LmSdpField.h"

/// The `o=` line: who made the session, and from where (RFC 4566, section 5.2).
///
///     o=<username> <sess-id> <sess-version> <nettype> <addrtype> <unicast-address>
///     o=user1 2890844526 2890842807 IN IP4 10.47.16.5
///
/// The six values are text: a session id may be longer than any number, and the address is not looked into.
/// Not safe for use by two threads at once.
class LMSDP_API LmSdpOriginField : public LmSdpField
{
public:
    /// Reads `text`, which stands behind `o=` and needs no line end. A null pointer makes a blank field.
    explicit LmSdpOriginField(const char* text);
    ~LmSdpOriginField() override;

    ///@{
    /// Each value as it stood in the text; empty when the line had none. Valid until the next change.
    const char* getUsername() { return m_Username.c_str(); }
    const char* getSessionId() { return m_SessionId.c_str(); }
    const char* getSessionVersion() { return m_SessionVersion.c_str(); }
    const char* getNetworkType() { return m_NetworkType.c_str(); }
    const char* getAddressType() { return m_AddressType.c_str(); }
    const char* getAddress() { return m_Address.c_str(); }
    ///@}

    ///@{
    /// Each replaces one value, which is not looked into, and sets the changed flag.
    void setUsername(const char* text);
    void setSessionId(const char* text);
    void setSessionVersion(const char* text);
    void setNetworkType(const char* text);
    void setAddressType(const char* text);
    void setAddress(const char* text);
    ///@}

    /// Reads the first six words of the line; words that are missing become empty, and further ones stay unread. The
    /// changed flag stays.
    void parse(LmInputStream& in) override;

    /// @throws LmException "LmSdpOriginField::serialize() Incomplete Origin Field" when any value is blank;
    ///         nothing has been written then.
    void serialize(LmOutputStream& out) const override;

    /// The class of the letter "o".
    static LmSdpField* sConstruct();

private:
    LmSdpOriginField();

    LmString m_Username;
    LmString m_SessionId;
    LmString m_SessionVersion;
    LmString m_NetworkType;
    LmString m_AddressType;
    LmString m_Address;
};
